// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"
#include "tests/process/support/synthetic.h"

#include <QtTest>

#include <limits>

using gtop_wrappers::Process;

namespace {

const int cpuColumn = 1;

ProcModel::Snapshot oneProcess(int cpuCounter)
{
    Facts facts;
    facts.pid = 7;
    facts.name = QStringLiteral("seven");
    facts.cpuCounter = cpuCounter;
    return makeSnapshot({{7, facts}});
}

QString cpuText(const ProcModel &model)
{
    return model.index(0, cpuColumn).data().toString();
}

double cpuLoad(const ProcModel &model)
{
    return model.index(0, cpuColumn).data(Qt::UserRole).toDouble();
}

} // namespace

class TestProcModelCpu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void firstLoadIsOneUnitAndTheSecondTheRealShare();
    void aCounterOfZeroShowsOneUnitEveryTime();
    void loadIsShownWithOneDecimal();
    void aCounterThatFellWrapsAndTheNextShareIsRight();
    void countersAtTheEndsOfTheirRangeAreTaken();
    void aTotalOfZeroShowsInfAndNan();
    void aLoadThatIsNoNumberHasASortValueThatIsOne();
    void aProcessWithoutCpuParameterIsTaken();
};

void TestProcModelCpu::firstLoadIsOneUnitAndTheSecondTheRealShare()
{
    ProcModel model;
    model.update(oneProcess(5000), 400);
    QCOMPARE(cpuLoad(model), 0.25); // 100.0 / 400
    model.update(oneProcess(5050), 400);
    QCOMPARE(cpuLoad(model), 12.5);
    QCOMPARE(cpuText(model), QStringLiteral("12.5 %"));
    model.update(oneProcess(5050), 400);
    QCOMPARE(cpuText(model), QStringLiteral("0.0 %"));
}

void TestProcModelCpu::aCounterOfZeroShowsOneUnitEveryTime()
{
    ProcModel model;
    for (int i = 0; i < 3; ++i) {
        model.update(oneProcess(0), 1000);
        QCOMPARE(cpuLoad(model), 0.1);
    }
    model.update(oneProcess(10), 1000);
    QCOMPARE(cpuLoad(model), 0.1); // still no previous value: one unit, not ten
    model.update(oneProcess(20), 1000);
    QCOMPARE(cpuLoad(model), 1.0);
}

void TestProcModelCpu::loadIsShownWithOneDecimal()
{
    ProcModel model;
    model.update(oneProcess(100), 3000);
    QCOMPARE(cpuText(model), QStringLiteral("0.0 %"));
    model.update(oneProcess(1100), 3000);
    QCOMPARE(cpuText(model), QStringLiteral("33.3 %"));
    model.update(oneProcess(4100), 3000);
    QCOMPARE(cpuText(model), QStringLiteral("100.0 %"));
}

void TestProcModelCpu::aCounterThatFellWrapsAndTheNextShareIsRight()
{
    ProcModel model;
    model.update(oneProcess(1000), 100);
    model.update(oneProcess(990), 100); // an unsigned difference of 2^64 - 10
    QCOMPARE(cpuLoad(model), 18446744073709551606.0);
    model.update(oneProcess(1000), 100);
    QCOMPARE(cpuLoad(model), 10.0);
}

void TestProcModelCpu::countersAtTheEndsOfTheirRangeAreTaken()
{
    ProcModel model;
    model.update(oneProcess(std::numeric_limits<int>::max()), 100);
    QCOMPARE(cpuLoad(model), 1.0);
    model.update(oneProcess(std::numeric_limits<int>::min()), 100);
    QCOMPARE(cpuLoad(model), 18446744069414584321.0);
    model.clear();
    // The lowest counter less one is the highest as a 32-bit value: a huge first load.
    model.update(oneProcess(std::numeric_limits<int>::min()), 100);
    QCOMPARE(cpuLoad(model), 18446744069414584321.0);
    model.update(oneProcess(std::numeric_limits<int>::min() + 1), std::numeric_limits<unsigned long>::max());
    QVERIFY(cpuLoad(model) < 1e-15);
}

void TestProcModelCpu::aTotalOfZeroShowsInfAndNan()
{
    ProcModel model;
    model.update(oneProcess(100), 0);
    QCOMPARE(cpuText(model), QStringLiteral("inf %"));
    model.update(oneProcess(100), 0);
    QCOMPARE(cpuText(model), QStringLiteral("nan %"));
    model.update(oneProcess(101), 100);
    QCOMPARE(cpuText(model), QStringLiteral("1.0 %"));
}

void TestProcModelCpu::aLoadThatIsNoNumberHasASortValueThatIsOne()
{
    ProcModel model;
    model.update(oneProcess(100), 0);
    QVERIFY(qIsInf(cpuLoad(model)));
    model.update(oneProcess(100), 0);
    QCOMPARE(cpuText(model), QStringLiteral("nan %"));
    QVERIFY(!qIsNaN(cpuLoad(model)));
}

void TestProcModelCpu::aProcessWithoutCpuParameterIsTaken()
{
    ProcModel model;
    const ProcModel::Snapshot bare{{3, Process(3)}};
    model.update(bare, 10);
    model.update(bare, 10);
    QCOMPARE(shapeOf(model), QStringLiteral("3"));
    QVERIFY(!model.index(0, cpuColumn).data().isValid());
}

QTEST_MAIN(TestProcModelCpu)
#include "test_procmodel_cpu.moc"
