// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "tests/desktop/pagesession.h"
#include <QtTest>

#include <functional>

namespace {

constexpr std::uint64_t gigabyte = 1024 * 1024 * 1024;
const QString memoryGauge = "Free memory";
const QString diskGauge = "Free space";

standin::Mount mount(const char *device, const char *directory, std::uint64_t blocks, std::uint64_t available)
{
    return {device, directory, "ext4", blocks, available, available};
}

standin::Machine machineWithCpus(int count)
{
    standin::Machine machine;
    machine.cpus = std::vector<standin::Cpu>(std::size_t(count));
    machine.memory = standin::Memory{8 * gigabyte, gigabyte, gigabyte, 2 * gigabyte};
    machine.mounts = {mount("/dev/sda1", "/", 1000000, 250000)};
    return machine;
}

} // namespace

class TestGeneralPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(session->endsCleanly()); }
    void memoryAndDiskFollowTheMachineAndASingleCpuIsNotCalledACore()
    {
        standin::Machine machine = machineWithCpus(1);
        machine.mounts->push_back(mount("overlay", "/var", 5000000, 5000000)); // no disk, so not counted
        start(machine);
        QVERIFY(!gauge("CPU load").isEmpty());
        QVERIFY(gauge(loadGauge(1)).isEmpty());
        QVERIFY(session->waitForTexts(
            {{"lblMemTotal", "8.00 GB"}, {"lblMemFree", "4.00 GB"}, {"lblDiskFree", "976.56 MB"}}));
        QCOMPARE(value(memoryGauge), 50.0);
        QCOMPARE(value(diskGauge), 25.0);
        QVERIFY(
            session->waitFor([&] { return isFilled(memoryGauge, 'b', 50) && isFilled(diskGauge, 'r', 25); }));

        machine.memory = standin::Memory{300, 3, 1, 1};
        machine.mounts->front().availBlocks = 999999;
        machine.mounts->push_back(mount("/dev/sdb1", "/data", 1000000, 0));
        session->setMachine(machine);
        QVERIFY(session->waitForTexts(
            {{"lblMemTotal", "300.00 B"}, {"lblMemFree", "5.00 B"}, {"lblDiskFree", "3.81 GB"}}));
        QCOMPARE(value(memoryGauge), 1.0); // 1.67 and 49.99995 are truncated, not rounded
        QCOMPARE(value(diskGauge), 49.0);
        QVERIFY(
            session->waitFor([&] { return isFilled(memoryGauge, 'b', 1) && isFilled(diskGauge, 'r', 49); }));
    }

    void theLoadOfEachCpuFollowsItsCounters()
    {
        standin::Machine machine = machineWithCpus(3);
        start(machine);
        // The counters advance with each poll, so that each refresh finds the same shares of idle time.
        const auto advanceUntil = [&](const std::vector<standin::Cpu> &step,
                                      const std::function<bool()> &condition) {
            return session->waitFor([&] {
                for (std::size_t i = 0; i < step.size(); ++i) {
                    (*machine.cpus)[i].idle += step[i].idle;
                    (*machine.cpus)[i].total += step[i].total;
                }
                session->setMachine(machine);
                return condition();
            });
        };
        const auto shows = [&](int cpu, double load) {
            return value(loadGauge(cpu)) == load && loadText(cpu) == QString("%1 %").arg(load);
        };
        QVERIFY(session->waitFor([&] { return shows(3, 100); })); // as long as the counters stand still
        const std::vector<standin::Cpu> step{{63, 100}, {100, 100}, {0, 100}};
        QVERIFY(advanceUntil(step, [&] { return shows(1, 37) && shows(2, 0) && shows(3, 100); }));
        QVERIFY(advanceUntil(step, [&] {
            return isFilled(loadGauge(1), 'g', 37) && filledTicks(loadGauge(2), 'g') == 0 &&
                   isFilled(loadGauge(3), 'g', 100);
        }));
        QVERIFY(advanceUntil({{997, 1000}, {500, 1000}, {100, 1000}},
                             [&] { return shows(1, 1) && shows(2, 50) && shows(3, 90); }));
    }

    void missingDataShowsNoUndefinedNumbers_data()
    {
        const Rows<bool, QString> row("mountListFails", "device");
        row("zeroed records", false, "/dev/sda1");
        row("no disk", false, "overlay");
        row("no mount", false, "");
        row("no mount list", true, "");
    }

    void missingDataShowsNoUndefinedNumbers()
    {
        QFETCH(bool, mountListFails);
        QFETCH(QString, device);
        standin::Machine machine = machineWithCpus(2);
        machine.memory = standin::Memory{};
        machine.mountListFails = mountListFails;
        machine.mounts->front().device = device.toStdString();
        machine.mounts->front().fails = device.startsWith('/');
        if (device.isEmpty()) {
            machine.mounts->clear();
        }
        start(machine);
        QVERIFY(session->waitForTexts(
            {{"lblMemTotal", "0.00 B"}, {"lblMemFree", "0.00 B"}, {"lblDiskFree", "0.00 B"}}));
        QCOMPARE(value(memoryGauge), 0.0);
        QCOMPARE(value(diskGauge), 0.0);
        QCOMPARE(filledTicks(memoryGauge, 'b'), 0);
        QCOMPARE(session->undefinedNumber(), QString());
    }

    void theWindowOpensAsHighAsThePageNeeds_data()
    {
        addNumberRows("cpus", {1, 2, 8, 12, 14, 16, 64, 256, 1024}, "%1 CPUs");
    }

    void theWindowOpensAsHighAsThePageNeeds()
    {
        QFETCH(int, cpus);
        start(machineWithCpus(cpus));
        const QRect rect = session->windowRect();
        const QRect frame = rectOf(session->mainWindow().value("frame"));
        QVERIFY2(frame.top() < rect.top(), "the window manager draws a title bar");
        QVERIFY2(QRect(QPoint(), SessionOptions().screen).contains(frame | rect),
                 "the window is on the screen");
        QVERIFY(session->widgetRect("tab").contains(scrollArea()));
        QCOMPARE(session->widgets("QProg").size(), cpus + 2);
        QVERIFY(session->savePicture(QString("general-%1-cpus").arg(cpus)));
        const int lowest = 480;
        const int highest = SessionOptions().screen.height() - 40;
        QCOMPARE(rect.width(), 640);
        QVERIFY(rect.height() >= lowest && rect.height() <= highest);
        QVERIFY2(lastGaugeIsShown() || rect.height() == highest, "the page would fit the screen");
        if (rect.height() > lowest && rect.height() < highest) {
            const int spare = scrollArea().bottom() - lastGauge().bottom();
            QVERIFY2(spare < lastGauge().height(), qPrintable(QString::number(spare)));
        } else {
            QCOMPARE(rect.height(), cpus <= 4 ? lowest : highest);
        }
        QVERIFY(reachLastGauge());
    }

    void everyPageCanBeMadeSmall_data() { addNumberRows("cpus", {2, 12, 14, 64}, "%1 CPUs"); }

    void everyPageCanBeMadeSmall()
    {
        QFETCH(int, cpus);
        start(machineWithCpus(cpus));
        for (const char *tab : {"Processes", "File systems", "Network", "System"}) {
            QVERIFY(session->clickTab(tab));
            QVERIFY(session->resizeMainWindow({640, 480}));
            const QSize small(400, 320);
            QVERIFY(session->resizeMainWindow(small));
            QCOMPARE(session->windowRect().height(), small.height());
            QVERIFY2(session->windowRect().width() < 640, tab);
            QVERIFY(session->savePicture(QString("small-%1-%2-cpus").arg(tab).arg(cpus)));
        }
        QVERIFY(!lastGaugeIsShown());
        QVERIFY(reachLastGauge());
    }

    void aLongHostNameIsElided()
    {
        const QString host = QString("host-").repeated(12) + "end";
        SessionOptions options;
        options.preload = QStringList(ZSM_HOST_OBJECT);
        options.environment["ZSM_HOST"] = "short";
        start(machineWithCpus(2), options);
        const QSize least = rectOf(session->mainWindow().value("minimumSize")).size();
        QCOMPARE(session->widget("lblHost").value("toolTip").toString(), QString());
        QVERIFY(session->endsCleanly());
        options.environment["ZSM_HOST"] = host;
        start(machineWithCpus(2), options);
        QCOMPARE(rectOf(session->mainWindow().value("minimumSize")).size(), least);
        QCOMPARE(session->windowRect().size(), QSize(640, 480));
        QVERIFY(session->resizeMainWindow(least));
        QVERIFY(session->text("lblHost").startsWith(host));
        session->x().moveTo(session->widgetRect("lblHost").center());
        QVERIFY(session->waitFor([&] { return session->text("QTipLabel").startsWith(host); }));
        QVERIFY(session->savePicture("general-long-host"));
    }

private:
    static QString loadGauge(int cpu) { return QString("CPU core %1 load").arg(cpu); }

    void start(const standin::Machine &machine, const SessionOptions &options = {})
    {
        session = std::make_unique<PageSession>(machine, options);
        QVERIFY(session->start({"general"}));
    }

    QJsonObject gauge(const QString &name) { return session->named("QProg", name); }
    double value(const QString &name) { return gauge(name).value("value").toDouble(-1); }
    // A gauge has a tick every 10 pixels from 20 on; this counts the fields between them that the bar fills.
    int filledTicks(const QString &name, char color)
    {
        const QImage picture = session->picture(gauge(name));
        int filled = 0;
        for (int x = 25; x < picture.width(); x += 10) {
            filled += shade(picture, {x, picture.height() / 2}) == color;
        }
        return filled;
    }

    bool isFilled(const QString &name, char color, double percent)
    {
        const double bar = (session->picture(gauge(name)).width() - 10) * percent / 100.0;
        const int expected = qMax(0, int((10 + bar - 25) / 10) + 1);
        return qAbs(filledTicks(name, color) - expected) <= 1;
    }

    // The number is between the caption and the gauge.
    QString loadText(int cpu)
    {
        const QVector<QJsonObject> labels = session->widgets("QLabel");
        for (int i = 0; i + 1 < labels.size(); ++i) {
            if (labels[i].value("text").toString() == loadGauge(cpu)) {
                return labels[i + 1].value("text").toString();
            }
        }
        return {};
    }

    QRect scrollArea() { return session->widgetRect("generalScroll"); }
    QRect lastGauge() { return rectOf(session->widgets("QProg").last().value("rect")); }
    // The gauges are below one another, so a view that shows the last one has passed all of them.
    bool lastGaugeIsShown() { return scrollArea().contains(lastGauge()); }
    /// By keys, then with the wheel from the bottom to the top and back.
    bool reachLastGauge()
    {
        if (lastGaugeIsShown()) {
            return true;
        }
        const QRect area = scrollArea();
        if (!session->clickWidget("lblHost") ||
            !sendUntil([&] { session->key("Page_Down"); }, [&] { return lastGaugeIsShown(); })) {
            return false;
        }
        session->x().moveTo(area.center());
        return sendUntil([&] { session->x().click(4); },
                         [&] { return area.contains(session->widgetRect("lblHost")); }) &&
               sendUntil([&] { session->x().click(5); }, [&] { return lastGaugeIsShown(); });
    }

    bool sendUntil(const std::function<void()> &input, const std::function<bool()> &condition)
    {
        return session->waitFor([&] {
            for (int i = 0; i < 100; ++i) {
                input();
            }
            return condition();
        });
    }

    std::unique_ptr<PageSession> session;
};

QTEST_GUILESS_MAIN(TestGeneralPage)
#include "test_general_page.moc"
