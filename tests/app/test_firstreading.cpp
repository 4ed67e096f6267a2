// SPDX-License-Identifier: GPL-3.0-or-later
// The first reading of the processes, of which a program has only one.
#include "fixture.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

using gtop_wrappers::ParamPtr;
using gtop_wrappers::ParentPidColumn;

class TestFirstReading : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTreeSetUpAtOnceHasItsParentsThoughTheFlatListDidNotReadThem()
    {
        made(300).parent = 200;
        made(400).parent = 300;
        for (const int pid : {100, 200, 300, 400}) {
            made(pid).startTime = 1500000000;
        }
        made(400).startTime = 1600000000; // the youngest process is read entirely
        fixture->start(ProcessesPage);
        QVERIFY(list()->isFlat());
        QVERIFY(!parentOf(200)->isRead());
        QVERIFY(!parentOf(300)->isRead());
        list()->setFlat(false);
        QVERIFY(parentOf(300)->isRead());
        QCOMPARE(list()->pidAt(list()->rowOfPid(300).parent()), 200);
        QCOMPARE(list()->pidAt(list()->rowOfPid(400).parent()), 300);
    }

private:
    static ParamPtr parentOf(int pid) { return list()->processByPid(pid).getParam(ParentPidColumn); }
};

QTEST_MAIN(TestFirstReading)
#include "test_firstreading.moc"
