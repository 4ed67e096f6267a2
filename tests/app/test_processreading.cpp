// SPDX-License-Identifier: GPL-3.0-or-later
// Costly values are read only when something shows them, and what the window shows still follows the machine.
#include "fixture.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <limits>

using namespace gtop_wrappers;

class TestProcessReading : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ControllerTest::init();
        const standin::Process newest = made(100);
        made(200).startTime = made(300).startTime = 1600000000;
        made(100).startTime = made(400).startTime = 1500000000;
        standin::machine().processes->emplace(500, newest);
        fixture->start(GeneralPage); // the list is filled but not painted
        list()->setProcessTypes(AllProcesses);
        fixture->updater().update(true);
        fixture->updater().update(true); // the first snapshots read more
    }

    void costlyValuesAreNotReadUntilLookedAt()
    {
        // State and time of five, and twice the parent of 100, which is not listed; 500 is too young to be
        // recognized, so it is read completely; the view measures two cells of its first row, the command
        // line, with the time, and the memory, which comes with the rest.
        QCOMPARE(callsOfRefresh(), 5U * 2 + 2 + 4 + 2 + 1);
        standin::resetCalls();
        shown(300, MemoryColumn);
        QCOMPARE(standin::calls().processData, 2U);
        shown(300, MemoryColumn);
        QCOMPARE(standin::calls().processData, 2U);
    }

    void shownValuesFollowTheMachine()
    {
        QCOMPARE(shown(300, MemoryColumn), QStringLiteral("300.00 MB"));
        made(300).resident = 1024;
        made(300).nice = 7;
        made(300).arguments = std::string("new\0line\0", 9);
        made(300).state = 16;
        made(300).uid = 65534;
        fixture->updater().update(true);
        QCOMPARE(shown(300, MemoryColumn), QStringLiteral("1.00 KB"));
        QCOMPARE(shown(300, NiceColumn), QStringLiteral("7"));
        QCOMPARE(shown(300, CommandLineColumn), QStringLiteral("new line"));
        QCOMPARE(shown(300, StateColumn), QStringLiteral("Stopped"));
        QVERIFY(shown(300, UserColumn) != shown(200, UserColumn));

        standin::machine().processes->erase(100); // the parent of 200 to 400
        made(300).parent = 1;
        fixture->updater().update(true); // removes the reparented process
        fixture->updater().update(true); // and inserts it again
        QCOMPARE(shown(300, ParentPidColumn), QStringLiteral("1"));
    }

    void aRefreshMakesOnlyWhatChanged()
    {
        const std::vector<ParamPtr> before = list()->processByPid(300).params;
        made(300).uid = 65534;
        fixture->updater().update(true);
        const std::vector<ParamPtr> now = list()->processByPid(300).params;
        QCOMPARE(now.size(), before.size());
        for (unsigned long i = 0; i < now.size(); ++i) {
            QCOMPARE(now[i] == before[i], i != UserColumn);
        }
    }

    void anEmptyReadingKeepsTheList()
    {
        const std::map<int, standin::Process> listed = *standin::machine().processes;
        standin::machine().processes->clear();
        fixture->updater().update(true);
        QCOMPARE(Fixture::processes()->rowCount(), static_cast<int>(listed.size()));
        standin::machine().processes->emplace(*listed.begin());
        fixture->updater().update(true);
        QCOMPARE(Fixture::processes()->rowCount(), 1);
    }

    void sortedMemoryIsReadWithEachRefresh()
    {
        const int memory = MemoryColumn; // no earlier column is hidden
        view()->sortByColumn(memory, Qt::DescendingOrder);
        QCOMPARE(list()->sortedProcessColumn(), int(MemoryColumn));
        QCOMPARE(callsOfRefresh(), 5U * 3 + 2 + 3 + 2); // and the first row's command line
        made(200).resident = std::uint64_t(1) << 40;
        fixture->updater().update(true);
        QCOMPARE(list()->processAt(list()->index(0, 0)).pid(), 200);
    }

    void myProcessesFollowTheUserColumn()
    {
        list()->setProcessTypes(MyProcesses);
        fixture->updater().update(true);
        QCOMPARE(list()->processByPid(300).pid(), 300);
        made(300).uid = 65534;
        fixture->updater().update(true);
        QCOMPARE(list()->processByPid(300).pid(), -1);
    }

    void valuesInViewAreReadWithTheRefresh_data()
    {
        QTest::addColumn<int>("sortedBy");
        QTest::newRow("sorted by name") << int(NameColumn);
        QTest::newRow("sorted by memory") << int(MemoryColumn);
    }

    void valuesInViewAreReadWithTheRefresh()
    {
        QFETCH(int, sortedBy);
        showMany();
        Fixture::window()->resize(2000, 500); // all columns are in view
        QCoreApplication::processEvents();
        view()->sortByColumn(sortedBy, Qt::AscendingOrder);
        fixture->updater().update(true);
        const QModelIndex first = view()->indexAt(QPoint(0, 0));
        const QModelIndex last = view()->indexAt(view()->viewport()->rect().bottomLeft());
        QVERIFY(first.isValid());
        QVERIFY(last.isValid());
        QVERIFY(last.row() < 300);
        // All processes exit: painting only shows.
        standin::machine().processes->clear();
        standin::resetCalls();
        view()->viewport()->grab();
        QCOMPARE(standin::calls().processData, 0U);
        const QModelIndex memory = list()->index(0, MemoryColumn);
        const QModelIndex commandLine = memory.siblingAtColumn(list()->columnCount() - 2);
        QCOMPARE(list()->headerData(commandLine.column(), Qt::Horizontal).toString(),
                 QStringLiteral("Command line"));
        for (int row = first.row(); row <= last.row(); ++row) {
            QVERIFY(memory.sibling(row, memory.column()).data().toString().endsWith(QStringLiteral(" MB")));
            QCOMPARE(commandLine.sibling(row, commandLine.column()).data().toString(),
                     QStringLiteral("argument"));
        }
        // Those out of view are read on demand, in vain by now.
        QCOMPARE(commandLine.sibling(350, commandLine.column()).data().toString(), QString());
    }

    void valuesInViewAreReadBeforeTheFirstPaint()
    {
        fixture->stop();
        for (auto &entry : *standin::machine().processes) {
            entry.second.arguments = std::string("argument\0", 9);
        }
        fixture->start(ProcessesPage);
        standin::resetCalls();
        QCoreApplication::processEvents();
        view()->viewport()->grab();
        QCOMPARE(standin::calls().processData, 0U);
    }

    void fittingTheColumnsReadsOnlyAFewCostlyValues()
    {
        showMany();
        standin::machine().processes->at(1300).name = "longer than the others";
        standin::resetCalls();
        list()->setProcessTypes(AllProcesses); // reads state and time, and fits again
        const unsigned costly = standin::calls().processData - 400 * 2;
        QVERIFY2(costly >= 100 * 4 && costly < 300 * 4, qPrintable(QString::number(costly)));
        const QFontMetrics metrics(view()->font());
        QVERIFY(view()->columnWidth(0) > metrics.horizontalAdvance(QStringLiteral("longer than the")));
    }

    void aHiddenListIsNotReadAhead()
    {
        showMany();
        Fixture::choosePage(GeneralPage);
        const unsigned hidden = callsOfRefresh();
        Fixture::choosePage(ProcessesPage);
        QVERIFY(callsOfRefresh() > hidden + 10);
    }

    void aFilterReadsTheCommandLinesOutOfView()
    {
        showMany();
        made(1390).arguments = std::string("needle\0", 7);
        fixture->updater().update(true);
        QTest::keyClick(view(), Qt::Key_N);
        Fixture::find<QLineEdit>("filterText")->setText(QStringLiteral("needle"));
        QTRY_COMPARE(list()->rowCount(), 1);
        QCOMPARE(list()->processAt(list()->index(0, 0)).pid(), 1390);
    }

private:
    /// 400 processes in a list that shows a part of them, and of their columns.
    void showMany()
    {
        for (int pid = 1000; pid < 1400; ++pid) {
            standin::Process process = made(100);
            process.resident = static_cast<std::uint64_t>(pid) << 20;
            process.arguments = std::string("argument\0", 9);
            standin::machine().processes->emplace(pid, process);
        }
        for (const int pid : {100, 200, 300, 400, 500}) {
            standin::machine().processes->erase(pid);
        }
        Fixture::choosePage(ProcessesPage);
        QCoreApplication::processEvents();
    }

    QString shown(int pid, ProcessColumn column)
    {
        const ParamPtr value = list()->processByPid(pid).getParam(column);
        return value ? value->displayValue().toString() : QStringLiteral("none");
    }

    /// Calls for process data in a full refresh. In one of 200 snapshots a parent is read again; in at
    /// least one of three snapshots none is.
    unsigned callsOfRefresh()
    {
        unsigned fewest = std::numeric_limits<unsigned>::max();
        for (int i = 0; i < 3; ++i) {
            standin::resetCalls();
            standin::machine().processes->rbegin()->second.startTime += 10; // too young to be recognized
            fixture->updater().update(true);
            fewest = std::min(fewest, standin::calls().processData);
        }
        return fewest;
    }
};

QTEST_MAIN(TestProcessReading)
#include "test_processreading.moc"
