// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive technology sees of the running program, over AT-SPI. Needs at-spi2-core.
#include "assistive.h"
#include "madeupprocess.h"
#include "processespage.h"

#include <QtTest>

#include <unistd.h>

class TestAssistive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!bus.start()) {
            QSKIP("the services of assistive technology are not there");
        }
        SessionOptions options;
        options.environment = bus.environment();
        options.machine = halfBusyMachine();
        session = std::make_unique<DesktopSession>(options);
        // More than once: the toolkit sometimes registers before its connection is up, and then never.
        for (int attempt = 0; attempt < 20 && !program; ++attempt) {
            QVERIFY(attempt == 0 || session->endsCleanly());
            QVERIFY2(session->start({"general"}), qPrintable(session->error()));
            program = bus.application("zarn-system-monitor", 3000);
        }
        QVERIFY(program);
    }

    void cleanupTestCase() { QVERIFY(!session || session->endsCleanly()); }

    void aGaugeHasNameAndValue_data()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("Free memory") << 50.0;
        QTest::newRow("CPU core 1 load") << 0.0;
        QTest::newRow("CPU core 2 load") << 100.0;
    }

    void aGaugeHasNameAndValue()
    {
        QFETCH(double, value);
        const auto gauge = program->find("progress bar", QTest::currentDataTag());
        QVERIFY(gauge);
        QTRY_COMPARE_WITH_TIMEOUT(gauge->value().value_or(-1), value, desktopDeadline);
    }

    void aLoadIsLabelledByItsCore()
    {
        std::optional<Accessible> load;
        QTRY_VERIFY_WITH_TIMEOUT(load = program->find("label", "100 %"), desktopDeadline);
        QCOMPARE(load->labels(), QStringList("CPU core 2 load"));
    }

    void picturesAreHidden()
    {
        const auto picture = program->find("graphic", QString());
        QVERIFY(picture);
        QVERIFY(!picture->isShowing());
    }

    /// An assistive technology selects a row without making it the current one.
    void commandsGoToTheSelectedRow()
    {
        ProcessesPage page(*session);
        QVERIFY2(page.showPage("Processes"), qPrintable(session->error()));
        QVERIFY2(page.select(pids[0]), qPrintable(session->error()));
        const auto list = program->find("tree", QString());
        QVERIFY(list);
        list->call("org.a11y.atspi.Table", "AddRowSelection", {rowOf(page.list(), pids[1])});
        QVERIFY(session->waitFor([&] { return page.isSelected(pids[1]); }));
        QVERIFY(!page.isSelected(pids[0]));
        QVERIFY(session->key("ctrl+k"));
        QVERIFY2(page.waitForDialog("Process killing"), qPrintable(session->error()));
        QCOMPARE(session->dialog().value("informativeText").toString(), QString("second (%1)").arg(pids[1]));
        QVERIFY(page.dismissAll());
    }

private:
    static standin::Machine halfBusyMachine()
    {
        standin::Machine machine;
        machine.processes.emplace();
        for (const int pid : pids) {
            standin::Process &process = (*machine.processes)[pid];
            process = madeUpProcess(pid == pids[0] ? "first" : "second");
            process.uid = static_cast<int>(getuid()); // the bus serves only the user who started it
        }
        machine.cpus = {{0, 0, 0}, {0, 0, 100}};
        machine.memory = standin::Memory{1U << 30U, 1U << 29U, 0, 0};
        return machine;
    }

    static constexpr int pids[] = {madeUpPid(412), madeUpPid(413)};

    AssistiveBus bus;
    std::unique_ptr<DesktopSession> session;
    std::optional<Accessible> program;
};

QTEST_GUILESS_MAIN(TestAssistive)
#include "test_assistive.moc"
