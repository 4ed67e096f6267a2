// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive technology sees of the running program, over AT-SPI. Needs at-spi2-core.
#include "assistive.h"
#include "session.h"

#include <QtTest>

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
        QVERIFY2(session->start({"general"}), qPrintable(session->error()));
        program = bus.application("zarn-system-monitor", 10000);
        if (!program) { // seen when the registry starts at the same time as the program
            QSKIP("the services of assistive technology don't list the program");
        }
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

private:
    static standin::Machine halfBusyMachine()
    {
        standin::Machine machine;
        machine.cpus = {{0, 0, 0}, {0, 0, 100}};
        machine.memory = standin::Memory{1U << 30U, 1U << 29U, 0, 0};
        return machine;
    }

    AssistiveBus bus;
    std::unique_ptr<DesktopSession> session;
    std::optional<Accessible> program;
};

QTEST_GUILESS_MAIN(TestAssistive)
#include "test_assistive.moc"
