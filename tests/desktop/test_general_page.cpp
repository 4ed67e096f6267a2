// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QtTest>

class TestGeneralPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void memoryAndDiskFollowTheMachine();
    void theLoadOfEachCpuFollowsItsCounters();
    void countersThatStandStillShowAHundredPercent();
    void aSingleCpuIsNotCalledACore();
    void aMachineThatTellsNothingShowsNoUndefinedNumbers_data();
    void aMachineThatTellsNothingShowsNoUndefinedNumbers();
    void theWindowOpensAtItsDefaultSizeAndEachGaugeCanBeReached_data();
    void theWindowOpensAtItsDefaultSizeAndEachGaugeCanBeReached();

private:
    void start(const standin::Machine &machine, const SessionOptions &options = {});
    double value(const QString &gauge);
    int filledTicks(const QString &gauge, char color);
    QString loadText(int cpu);
    bool lastGaugeIsShown();
    bool reachLastGaugeByKeys();
    bool reachLastGaugeByWheel();
    std::unique_ptr<PageSession> m_session;
};

namespace {

constexpr std::uint64_t gigabyte = 1024 * 1024 * 1024;
const QString memoryGauge = QStringLiteral("Free memory");
const QString diskGauge = QStringLiteral("Free space");

QString loadGauge(int cpu)
{
    return QStringLiteral("CPU core %1 load").arg(cpu);
}

standin::Mount mount(const char *device, const char *directory, std::uint64_t blocks, std::uint64_t available)
{
    standin::Mount made;
    made.device = device;
    made.directory = directory;
    made.type = "ext4";
    made.blocks = blocks;
    made.freeBlocks = available;
    made.availBlocks = available;
    return made;
}

standin::Machine machineWithCpus(int count)
{
    standin::Machine machine;
    machine.cpus = std::vector<standin::Cpu>(std::size_t(count));
    machine.memory = standin::Memory{8 * gigabyte, gigabyte, gigabyte, 2 * gigabyte};
    machine.mounts = {mount("/dev/sda1", "/", 1000000, 250000)};
    return machine;
}

// A gauge has a tick each 10 pixels from 20 on: how many of the fields between them the bar should fill.
int expectedTicks(int width, double percent)
{
    const double bar = (width - 10) * percent / 100.0;
    return qMax(0, int((10 + bar - 25) / 10) + 1);
}

} // namespace

void TestGeneralPage::start(const standin::Machine &machine, const SessionOptions &options)
{
    m_session = std::make_unique<PageSession>(machine, options);
    QVERIFY2(m_session->start({QStringLiteral("general")}), qPrintable(m_session->error()));
}

void TestGeneralPage::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning("%s", qPrintable(m_session->error()));
    QVERIFY2(m_session->endsCleanly(), qPrintable(m_session->error()));
}

double TestGeneralPage::value(const QString &gauge)
{
    return m_session->named(QStringLiteral("QProg"), gauge).value(QLatin1String("value")).toDouble(-1);
}

int TestGeneralPage::filledTicks(const QString &gauge, char color)
{
    const QImage picture = m_session->picture(m_session->named(QStringLiteral("QProg"), gauge));
    int filled = 0;
    for (int x = 25; x < picture.width(); x += 10)
        filled += shade(picture, {x, picture.height() / 2}) == QLatin1Char(color);
    return filled;
}

// The number stands between the caption and the gauge.
QString TestGeneralPage::loadText(int cpu)
{
    const QVector<QJsonObject> labels = m_session->widgets(QStringLiteral("QLabel"));
    for (int i = 0; i + 1 < labels.size(); ++i) {
        if (labels[i].value(QLatin1String("text")).toString() == loadGauge(cpu))
            return labels[i + 1].value(QLatin1String("text")).toString();
    }
    return {};
}

void TestGeneralPage::memoryAndDiskFollowTheMachine()
{
    standin::Machine machine = machineWithCpus(1);
    machine.mounts->push_back(mount("overlay", "/var", 5000000, 5000000)); // no disk: counts for nothing
    start(machine);
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblMemTotal"), QStringLiteral("8.00 GB")},
                                     {QStringLiteral("lblMemFree"), QStringLiteral("4.00 GB")},
                                     {QStringLiteral("lblDiskFree"), QStringLiteral("976.56 MB")}}));
    QCOMPARE(value(memoryGauge), 50.0);
    QCOMPARE(value(diskGauge), 25.0);
    const int width = m_session->picture(m_session->named(QStringLiteral("QProg"), memoryGauge)).width();
    const auto barsReach = [&](int memory, int disk) {
        return qAbs(filledTicks(memoryGauge, 'b') - expectedTicks(width, memory)) <= 1 &&
               qAbs(filledTicks(diskGauge, 'r') - expectedTicks(width, disk)) <= 1;
    };
    QVERIFY(m_session->waitFor([&] { return barsReach(50, 25); }));

    machine.memory = standin::Memory{300, 3, 1, 1};
    machine.mounts->front().availBlocks = 999999;
    machine.mounts->push_back(mount("/dev/sdb1", "/data", 1000000, 0));
    m_session->setMachine(machine);
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblMemTotal"), QStringLiteral("300.00 B")},
                                     {QStringLiteral("lblMemFree"), QStringLiteral("5.00 B")},
                                     {QStringLiteral("lblDiskFree"), QStringLiteral("3.81 GB")}}));
    QCOMPARE(value(memoryGauge), 1.0); // 1.67 and 49.99995 are cut, not rounded
    QCOMPARE(value(diskGauge), 49.0);
    QVERIFY(m_session->waitFor([&] { return barsReach(1, 49); }));
}

void TestGeneralPage::theLoadOfEachCpuFollowsItsCounters()
{
    standin::Machine machine = machineWithCpus(3);
    start(machine);
    // The counters go on while the test looks: each refresh finds the same shares of idle time.
    const auto runUntil = [&](const std::vector<standin::Cpu> &step, const std::function<bool()> &condition) {
        return m_session->waitFor([&] {
            for (std::size_t i = 0; i < step.size(); ++i) {
                (*machine.cpus)[i].idle += step[i].idle;
                (*machine.cpus)[i].total += step[i].total;
            }
            m_session->setMachine(machine);
            return condition();
        });
    };
    const auto loads = [&](double first, double second, double third) {
        return value(loadGauge(1)) == first && value(loadGauge(2)) == second && value(loadGauge(3)) == third;
    };
    const auto text = [](double load) { return QStringLiteral("%1 %").arg(load); };
    const auto shows = [&](double first, double second, double third) {
        return loads(first, second, third) && loadText(1) == text(first) && loadText(2) == text(second) &&
               loadText(3) == text(third);
    };
    QVERIFY(runUntil({{63, 100}, {100, 100}, {0, 100}}, [&] { return shows(37, 0, 100); }));
    QVERIFY(runUntil({{63, 100}, {100, 100}, {0, 100}}, [&] {
        const int width = m_session->picture(m_session->named(QStringLiteral("QProg"), loadGauge(1))).width();
        return qAbs(filledTicks(loadGauge(1), 'g') - expectedTicks(width, 37)) <= 1 &&
               filledTicks(loadGauge(2), 'g') == 0 &&
               qAbs(filledTicks(loadGauge(3), 'g') - expectedTicks(width, 100)) <= 1;
    }));
    QVERIFY(runUntil({{997, 1000}, {500, 1000}, {100, 1000}}, [&] { return shows(1, 50, 90); }));
}

void TestGeneralPage::countersThatStandStillShowAHundredPercent()
{
    start(machineWithCpus(2));
    QVERIFY(m_session->waitFor([&] { return value(loadGauge(2)) == 100.0; }));
    QCOMPARE(loadText(2), QStringLiteral("100 %"));
}

void TestGeneralPage::aSingleCpuIsNotCalledACore()
{
    start(machineWithCpus(1));
    QVERIFY(!m_session->named(QStringLiteral("QProg"), QStringLiteral("CPU load")).isEmpty());
    QVERIFY(m_session->named(QStringLiteral("QProg"), loadGauge(1)).isEmpty());
}

void TestGeneralPage::aMachineThatTellsNothingShowsNoUndefinedNumbers_data()
{
    QTest::addColumn<bool>("mountListFails");
    QTest::addColumn<QString>("device");
    QTest::newRow("zeroed records") << false << "/dev/sda1";
    QTest::newRow("no disk") << false << "overlay";
    QTest::newRow("no mount") << false << "";
    QTest::newRow("no mount list") << true << "";
}

void TestGeneralPage::aMachineThatTellsNothingShowsNoUndefinedNumbers()
{
    QFETCH(bool, mountListFails);
    QFETCH(QString, device);
    standin::Machine machine = machineWithCpus(2);
    machine.memory = standin::Memory{};
    machine.mountListFails = mountListFails;
    machine.mounts->front().device = device.toStdString();
    machine.mounts->front().fails = device.startsWith(QLatin1Char('/'));
    if (device.isEmpty())
        machine.mounts->clear();
    start(machine);
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblMemTotal"), QStringLiteral("0.00 B")},
                                     {QStringLiteral("lblMemFree"), QStringLiteral("0.00 B")},
                                     {QStringLiteral("lblDiskFree"), QStringLiteral("0.00 B")}}));
    QCOMPARE(value(memoryGauge), 0.0);
    QCOMPARE(value(diskGauge), 0.0);
    QCOMPARE(filledTicks(memoryGauge, 'b'), 0);
    QCOMPARE(m_session->undefinedNumber(), QString());
}

void TestGeneralPage::theWindowOpensAtItsDefaultSizeAndEachGaugeCanBeReached_data()
{
    QTest::addColumn<int>("cpus");
    for (const int cpus : {1, 2, 16, 64, 256, 1024})
        QTest::newRow(qPrintable(QString::number(cpus))) << cpus;
}

void TestGeneralPage::theWindowOpensAtItsDefaultSizeAndEachGaugeCanBeReached()
{
    QFETCH(int, cpus);
    start(machineWithCpus(cpus));
    const QJsonObject window = m_session->mainWindow();
    const QRect rect = rectOf(window.value(QLatin1String("rect")));
    QVERIFY2(QRect(0, 0, 1280, 1024).contains(rect), "the window is on the screen");
    const bool scrolls = m_session->widget(QStringLiteral("generalScroll")).contains(QLatin1String("rect"));
    QVERIFY(scrolls ? cpus > 2 : cpus < 64);
    const QSize least = scrolls ? QSize() : rectOf(window.value(QLatin1String("minimumSize"))).size();
    QCOMPARE(rect.size(), QSize(640, 480).expandedTo(least));
    QCOMPARE(m_session->widgets(QStringLiteral("QProg")).size(), cpus + 2);
    if (lastGaugeIsShown())
        return;
    QVERIFY2(reachLastGaugeByKeys(), qPrintable(m_session->error()));
    QVERIFY2(reachLastGaugeByWheel(), qPrintable(m_session->error()));
}

// Gauges stand below one another, so where the view has come to the last one it has passed all.
bool TestGeneralPage::lastGaugeIsShown()
{
    const QRect gauge =
        rectOf(m_session->widgets(QStringLiteral("QProg")).last().value(QLatin1String("rect")));
    const QJsonObject area = m_session->widget(QStringLiteral("generalScroll"));
    const QRect room =
        rectOf(area.contains(QLatin1String("rect")) ? area.value(QLatin1String("rect"))
                                                    : m_session->mainWindow().value(QLatin1String("rect")));
    return room.contains(gauge);
}

bool TestGeneralPage::reachLastGaugeByKeys()
{
    m_session->clickWidget(QStringLiteral("lblHost"));
    return m_session->waitFor([&] {
        for (int i = 0; i < 50; ++i)
            m_session->key(QStringLiteral("Page_Down"));
        return lastGaugeIsShown();
    });
}

// From the bottom back to the top and down again.
bool TestGeneralPage::reachLastGaugeByWheel()
{
    const QRect area =
        rectOf(m_session->widget(QStringLiteral("generalScroll")).value(QLatin1String("rect")));
    const auto turnUntil = [&](int button, const std::function<bool()> &condition) {
        return m_session->waitFor([&] {
            m_session->x().moveTo(area.center());
            for (int i = 0; i < 100; ++i)
                m_session->x().click(button);
            return condition();
        });
    };
    const auto topIsShown = [&] {
        return area.contains(
            rectOf(m_session->widget(QStringLiteral("lblHost")).value(QLatin1String("rect"))));
    };
    return turnUntil(4, topIsShown) && turnUntil(5, [&] { return lastGaugeIsShown(); });
}

QTEST_GUILESS_MAIN(TestGeneralPage)
#include "test_general_page.moc"
