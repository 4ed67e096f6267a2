// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <unistd.h>

/// The interval dialogs. The settings file has intervals so long that a tick refreshes a page only after the
/// dialog has changed its interval.
class TestDialogsInterval : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        machine = standin::Machine{};
        machine.memory = standin::Memory{8 << 20, 1 << 20, 0, 0};
        machine.interfaces = std::vector<standin::Interface>(1);
        machine.interfaces->front().name = "eth0";
        SessionOptions options;
        options.settings = "[interval]\ngeneral=100000\nnet=100000\n";
        options.machine = machine;
        startProgram(options, {});
    }

    void cleanup()
    {
        reportFailure();
        verifyQuitsCleanly();
    }

    void everyPageHasItsDialog_data()
    {
        const Rows<QString, QString> row("pageName", "shown");
        row("General interval", "General page", "100000");
        row("Process interval", "Processes page", "3");
        row("Filesystem interval", "Filesystems page", "3");
        row("Network interval", "Network page", "100000");
    }

    /// A stored value outside of the slider's range is shown unchanged; the slider is at its end.
    void everyPageHasItsDialog()
    {
        QFETCH(QString, pageName);
        QFETCH(QString, shown);
        QVERIFY(open(QTest::currentDataTag()));
        QVERIFY(
            labels().contains("You can set time interval (in secs)\n between updates for page " + pageName));
        QVERIFY(labels().contains(shown));
        QVERIFY(labels().contains("Interval"));
        QCOMPARE(slider().value("minimum").toInt(), 1);
        QCOMPARE(slider().value("maximum").toInt(), 5);
        QCOMPARE(sliderValue(), std::min(shown.toInt(), 5));
        QVERIFY(!okIsEnabled());
    }

    void okIsDisabledUntilTheSliderIsDraggedOrMovedByKey()
    {
        QVERIFY(open("Process interval"));
        QVERIFY(!okIsEnabled());
        QVERIFY(session->clickButton("OK"));
        QVERIFY(!session->dialog().isEmpty());
        dragSliderTo(4);
        QVERIFY(session->waitFor([&] { return okIsEnabled(); }));
        QCOMPARE(sliderValue(), 4);
        QVERIFY(labels().contains("4"));
        QVERIFY(session->clickButton("Cancel"));
        QVERIFY(page->waitForNoDialog());
        // The slider is set down in advance, so the toolkit reports steps by key as moves too.
        QVERIFY(open("Process interval"));
        QVERIFY(session->key("Left"));
        QVERIFY(session->waitFor([&] { return sliderValue() == 2 && okIsEnabled(); }));
        QVERIFY(session->key("Return"));
        QVERIFY(page->waitForNoDialog());
        QVERIFY(open("Process interval"));
        QCOMPARE(sliderValue(), 2);
    }

    void acceptedIntervalIsUsed()
    {
        QVERIFY(open("General interval"));
        const QString before = session->text("lblMemFree");
        machine.memory->free = 3 << 20;
        session->setMachine(machine);
        dragSliderTo(1);
        QVERIFY(session->waitFor([&] { return okIsEnabled(); }));
        QCOMPARE(session->text("lblMemFree"), before);
        QVERIFY(session->clickButton("OK"));
        QVERIFY(session->waitFor([&] { return session->text("lblMemFree").startsWith("3.00 MB"); }));
        QVERIFY2(page->quit(), qPrintable(session->error()));
        QFile file(session->settingsFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("\ngeneral=1\n"));
        QVERIFY(session->start());
    }

    void cancelledIntervalIsNot()
    {
        QVERIFY(open("General interval"));
        dragSliderTo(1);
        QVERIFY(session->waitFor([&] { return okIsEnabled(); }));
        QVERIFY(session->clickButton("Cancel"));
        QVERIFY(page->waitForNoDialog());
        QVERIFY(page->showPage("Processes"));
        QVERIFY(waitForTick());
        QVERIFY(open("General interval"));
        QVERIFY(labels().contains("100000"));
        QCOMPARE(sliderValue(), 5);
    }

    /// Showing the page takes a sample; no tick takes another.
    void networkDialogClearsTheGraphEvenWhenCancelled()
    {
        QVERIFY(page->showPage("Network"));
        QVERIFY(session->waitFor([&] { return !graph().isEmpty(); }));
        QVERIFY(open("General interval"));
        QVERIFY(session->clickButton("Cancel"));
        QVERIFY(page->waitForNoDialog());
        QVERIFY2(!graph().isEmpty(), "the dialog of another page has cleared the graph");
        QVERIFY(open("Network interval"));
        QVERIFY(!graph().isEmpty());
        QVERIFY(session->key("Escape"));
        QVERIFY(session->waitFor([&] { return graph().isEmpty(); }));
    }

private:
    bool open(const QString &entry)
    {
        return clickMenus({"Edit", "Update interval", entry}) && page->waitForDialog("Interval changing");
    }

    /// Texts of the dialog and of the window behind it.
    QStringList labels()
    {
        QStringList texts;
        for (const QJsonValue &label : session->probe("widgets QLabel").value("widgets").toArray()) {
            texts.append(label["text"].toString());
        }
        return texts;
    }

    QJsonObject slider() { return session->widget("QSlider"); }
    int sliderValue() { return slider().value("value").toInt(); }
    /// Half of the handle's width stays free at each end of the slider.
    void dragSliderTo(int value)
    {
        const QRect rect = rectOf(slider().value("rect"));
        const int halfHandle = 8;
        const int length = rect.width() - 2 * halfHandle;
        const auto place = [&](int at) {
            return QPoint(rect.left() + halfHandle + length * (at - 1) / 4, rect.center().y());
        };
        session->drag(place(sliderValue()), place(value));
    }

    /// The process list is refreshed every third tick: waits for a new process to appear in it.
    bool waitForTick()
    {
        if (!machine.processes) {
            machine.processes.emplace();
        }
        const int pid = 1000 + int(machine.processes->size());
        standin::Process &process = (*machine.processes)[pid];
        process.name = "tick";
        process.uid = testUser() >= 0 ? testUser() : int(getuid());
        session->setMachine(machine);
        return page->waitForRow(pid);
    }

    QString graph() { return session->widget("TimeHisto").value("accessibleDescription").toString(); }

    standin::Machine machine;
};

QTEST_GUILESS_MAIN(TestDialogsInterval)
#include "test_dialogs_interval.moc"
