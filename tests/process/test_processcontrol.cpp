// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/control.h"
#include "tests/process/support/menus.h"

#include <QtTest>

#include <signal.h>

#include <limits>

namespace {

const int stoppedState = 16;

} // namespace

class TestProcessControl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void stopContinueTerminateReachTheChosenProcessOnly();
    void killReachesTheChosenProcessOnly();
    void whatIsNotConfirmedSendsNothing_data();
    void whatIsNotConfirmedSendsNothing();
    void whatIsNotConfirmedDoesNotContinueAStoppedProcess();

    void anEndedProcessGivesTheErrorBox();
    void anotherUsersProcessGivesTheErrorBox();
    void noPidOfZeroOrBelowReachesKill_data();
    void noPidOfZeroOrBelowReachesKill();
    void aProcessGroupSurvivesItsNegativePid();
    void anInvalidSignalGivesTheErrorBox();

    void aSelectionThatChangesDuringTheQuestionChangesNothing();
    void aSelectionThatIsLostDuringTheQuestionChangesNothing();
    void aProcessThatLeavesTheListDuringTheQuestionGetsItsSignal();
    void aProcessThatEndsDuringTheQuestionGivesTheErrorBox();
    void aResetDuringTheQuestionChangesNothing();
    void aStaleSelectionIsWhatGetsTheSignal();
};

void TestProcessControl::stopContinueTerminateReachTheChosenProcessOnly()
{
    Child chosen;
    Child other;
    const Desk desk;
    const ModalDriver driver(
        {pressing(QMessageBox::Ok), pressing(QMessageBox::Ok), pressing(QMessageBox::Ok)});
    desk.select(chosen.pid());
    desk.trigger("Stop process");
    QCOMPARE(chosen.waitForSignal(), SIGSTOP);
    desk.select(chosen.pid(), stoppedState);
    desk.trigger("Continue process");
    QCOMPARE(chosen.waitForSignal(), SIGCONT);
    desk.select(chosen.pid());
    desk.trigger("Terminate process");
    QCOMPARE(chosen.waitForSignal(), SIGTERM);
    QCOMPARE(driver.count(), std::size_t(3));
    QVERIFY(!other.hasChanged());
    QCOMPARE(other.endAndTell(), SIGVTALRM);
}

void TestProcessControl::killReachesTheChosenProcessOnly()
{
    Child before;
    Child chosen;
    Child after;
    const Desk desk;
    desk.select(chosen.pid());
    const ModalDriver driver(pressing(QMessageBox::Ok));
    desk.trigger("Kill process");
    QCOMPARE(chosen.waitForSignal(), SIGKILL);
    QCOMPARE(before.endAndTell(), SIGVTALRM);
    QCOMPARE(after.endAndTell(), SIGVTALRM);
}

void TestProcessControl::whatIsNotConfirmedSendsNothing_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("way");
    const char *const actions[] = {"Stop process", "Continue process", "Terminate process", "Kill process"};
    const char *const ways[] = {"Cancel", "Escape", "closing", "Enter", "the keypad's Enter"};
    for (const char *const action : actions) {
        for (int way = 0; way < 5; ++way) {
            const QByteArray name = QByteArray(action) + ", " + ways[way];
            QTest::newRow(name.constData()) << QString::fromLatin1(action) << way;
        }
    }
}

void TestProcessControl::whatIsNotConfirmedSendsNothing()
{
    QFETCH(QString, action);
    QFETCH(int, way);
    const ModalDriver::Handler ways[] = {pressing(QMessageBox::Cancel), typing(Qt::Key_Escape), closing(),
                                         typing(Qt::Key_Return), typing(Qt::Key_Enter)};
    Child child;
    const Desk desk;
    desk.select(child.pid());
    desk.action(action.toLatin1().constData())->setEnabled(true);
    const ModalDriver driver(ways[way]);
    desk.trigger(action.toLatin1().constData());
    QCOMPARE(driver.count(), std::size_t(1));
    QVERIFY(!child.hasChanged());
    QCOMPARE(child.endAndTell(), SIGVTALRM);
}

void TestProcessControl::whatIsNotConfirmedDoesNotContinueAStoppedProcess()
{
    Child child;
    kill(child.pid(), SIGSTOP);
    QCOMPARE(child.waitForSignal(), SIGSTOP);
    const Desk desk;
    desk.select(child.pid(), stoppedState);
    const ModalDriver driver({pressing(QMessageBox::Cancel), typing(Qt::Key_Return)});
    desk.trigger("Continue process");
    desk.trigger("Continue process");
    QCOMPARE(driver.count(), std::size_t(2));
    QVERIFY(!child.hasChanged());
}

void TestProcessControl::anEndedProcessGivesTheErrorBox()
{
    const Desk desk;
    desk.select(endedPid());
    SeenBox seen;
    const ModalDriver driver({pressing(QMessageBox::Ok), pressing(QMessageBox::Ok, &seen)});
    desk.trigger("Terminate process");
    QCOMPARE(driver.count(), std::size_t(2));
    verifyErrorBox(seen, "Unable send signal to process. Reason - No such process");
}

void TestProcessControl::anotherUsersProcessGivesTheErrorBox()
{
    if (geteuid() != 0) {
        QSKIP("only root can start a process of another user");
    }
    Child child(daemonUser);
    const Desk desk;
    desk.select(child.pid());
    SeenBox seen;
    const ModalDriver driver({pressing(QMessageBox::Ok), pressing(QMessageBox::Ok, &seen)});
    {
        const WithoutRights nobody;
        QVERIFY(nobody.dropped);
        desk.trigger("Kill process");
    }
    QCOMPARE(driver.count(), std::size_t(2));
    verifyErrorBox(seen, "Unable send signal to process. Reason - Operation not permitted");
    QCOMPARE(child.endAndTell(), SIGVTALRM);
}

void TestProcessControl::noPidOfZeroOrBelowReachesKill_data()
{
    QTest::addColumn<int>("pid");
    QTest::newRow("0, the test's own group") << 0;
    QTest::newRow("-1, everyone") << -1;
    QTest::newRow("-5, a group") << -5;
    QTest::newRow("the test's own group by its number") << -getpgrp();
    QTest::newRow("the lowest number") << std::numeric_limits<int>::min();
}

void TestProcessControl::noPidOfZeroOrBelowReachesKill()
{
    QFETCH(int, pid);
    const Desk desk;
    SeenBox seen;
    const ModalDriver driver(pressing(QMessageBox::Ok, &seen));
    // Signal 0 harms nobody: kill would say yes to most of these, and no box would come.
    desk.list->sendSignal(pid, 0);
    QCOMPARE(driver.count(), std::size_t(1));
    verifyErrorBox(seen, "Unable send signal to process. Reason - No such process");
}

void TestProcessControl::aProcessGroupSurvivesItsNegativePid()
{
    Child child;
    QCOMPARE(kill(-child.pid(), 0), 0); // the group is there
    const Desk desk;
    desk.select(-child.pid());
    SeenBox seen;
    const ModalDriver driver({pressing(QMessageBox::Ok), pressing(QMessageBox::Ok, &seen)});
    desk.trigger("Kill process");
    QCOMPARE(driver.count(), std::size_t(2));
    verifyErrorBox(seen, "Unable send signal to process. Reason - No such process");
    QCOMPARE(child.endAndTell(), SIGVTALRM);
}

void TestProcessControl::anInvalidSignalGivesTheErrorBox()
{
    const Child child;
    const Desk desk;
    SeenBox seen;
    const ModalDriver driver(pressing(QMessageBox::Ok, &seen));
    desk.list->sendSignal(child.pid(), 4711);
    verifyErrorBox(seen, "Unable send signal to process. Reason - Invalid argument");
    QCOMPARE(driver.count(), std::size_t(1));
}

void TestProcessControl::aSelectionThatChangesDuringTheQuestionChangesNothing()
{
    Child asked;
    Child other;
    const Desk desk;
    desk.select(asked.pid());
    const ModalDriver driver([&](QWidget *dialog) {
        desk.select(other.pid());
        pressing(QMessageBox::Ok)(dialog);
    });
    desk.trigger("Kill process");
    QCOMPARE(asked.waitForSignal(), SIGKILL);
    QCOMPARE(other.endAndTell(), SIGVTALRM);
}

void TestProcessControl::aSelectionThatIsLostDuringTheQuestionChangesNothing()
{
    Child asked;
    const Desk desk;
    desk.select(asked.pid());
    const ModalDriver driver([&](QWidget *dialog) {
        desk.actions->setProcess(gtop_wrappers::Process(-1));
        pressing(QMessageBox::Ok)(dialog);
    });
    desk.trigger("Terminate process");
    QCOMPARE(driver.count(), std::size_t(1));
    QCOMPARE(asked.waitForSignal(), SIGTERM);
}

void TestProcessControl::aProcessThatLeavesTheListDuringTheQuestionGetsItsSignal()
{
    Child asked;
    Child successor;
    const Desk desk;
    desk.list->refresh(makeSnapshot({{asked.pid(), 0}}));
    desk.actions->setProcess(desk.list->processAt(desk.list->index(0, 0)));
    const ModalDriver driver([&](QWidget *dialog) {
        desk.list->refresh(makeSnapshot({{successor.pid(), 0}})); // takes the row
        pressing(QMessageBox::Ok)(dialog);
    });
    desk.trigger("Kill process");
    QCOMPARE(asked.waitForSignal(), SIGKILL);
    QCOMPARE(successor.endAndTell(), SIGVTALRM);
}

void TestProcessControl::aProcessThatEndsDuringTheQuestionGivesTheErrorBox()
{
    Child asked;
    const Desk desk;
    desk.select(asked.pid());
    SeenBox seen;
    const ModalDriver driver({[&](QWidget *dialog) {
                                  asked.endAndTell();
                                  pressing(QMessageBox::Ok)(dialog);
                              },
                              pressing(QMessageBox::Ok, &seen)});
    desk.trigger("Kill process");
    QCOMPARE(driver.count(), std::size_t(2));
    verifyErrorBox(seen, "Unable send signal to process. Reason - No such process");
}

void TestProcessControl::aResetDuringTheQuestionChangesNothing()
{
    Child asked;
    const Desk desk;
    desk.list->refresh(makeSnapshot({{asked.pid(), 0}}));
    desk.actions->setProcess(desk.list->processAt(desk.list->index(0, 0)));
    const ModalDriver driver([&](QWidget *dialog) {
        desk.list->setFlat(false);
        desk.list->setColumnVisible(2, false);
        pressing(QMessageBox::Ok)(dialog);
    });
    desk.trigger("Kill process");
    QCOMPARE(asked.waitForSignal(), SIGKILL);
}

void TestProcessControl::aStaleSelectionIsWhatGetsTheSignal()
{
    // The pid stored last is what is acted on, whatever the list shows by now.
    Child chosen;
    Child shown;
    const Desk desk;
    desk.select(chosen.pid());
    desk.list->refresh(makeSnapshot({{shown.pid(), 0}}));
    const ModalDriver driver(pressing(QMessageBox::Ok));
    desk.trigger("Kill process");
    QCOMPARE(chosen.waitForSignal(), SIGKILL);
    QCOMPARE(shown.endAndTell(), SIGVTALRM);
}

QTEST_MAIN(TestProcessControl)
#include "test_processcontrol.moc"
