// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/control.h"
#include "tests/process/support/menus.h"
#include "tests/support/rows.h"

#include <signal.h>

#include <limits>

namespace {

const int stoppedState = 16;
const int noSuchPid = 0x7ffffff0; ///< beyond the kernel's largest

const char noSuchProcess[] = "Unable send signal to process. Reason - No such process";

/// What happens to the list while a question is open.
using Change = std::function<void(const Desk &desk, pid_t other)>;

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(ModalDriver::Handler)

/// Which process a signal reaches, and what refuses it.
class TestProcessControl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachSignalReachesTheSelectedProcessOnly()
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
        desk.trigger("Terminate process"); // SIGKILL: theProcessThatWasAskedAboutGetsTheSignal()
        QCOMPARE(chosen.waitForSignal(), SIGTERM);
        QVERIFY(!other.hasChanged());
        QCOMPARE(other.endAndTell(), SIGVTALRM);
    }

    void whatIsNotConfirmedSendsNothing_data()
    {
        const Rows<QByteArray, ModalDriver::Handler> row("action", "answer");
        for (const char *action : {"Stop process", "Continue process", "Terminate process", "Kill process"}) {
            QTest::addRow("%s, Cancel", action) << QByteArray(action) << pressing(QMessageBox::Cancel);
            QTest::addRow("%s, Escape", action) << QByteArray(action) << typing(Qt::Key_Escape);
            QTest::addRow("%s, closing", action) << QByteArray(action) << closing();
            QTest::addRow("%s, Return", action) << QByteArray(action) << typing(Qt::Key_Return);
            QTest::addRow("%s, the keypad's Enter", action) << QByteArray(action) << typing(Qt::Key_Enter);
        }
    }

    void whatIsNotConfirmedSendsNothing()
    {
        QFETCH(QByteArray, action);
        QFETCH(ModalDriver::Handler, answer);
        const bool stopped = action == "Continue process";
        Child child;
        if (stopped) {
            kill(child.pid(), SIGSTOP);
            QCOMPARE(child.waitForSignal(), SIGSTOP);
        }
        const Desk desk;
        desk.select(child.pid(), stopped ? stoppedState : 1);
        const ModalDriver driver(answer);
        desk.trigger(action.constData());
        QVERIFY(!child.hasChanged());
        if (stopped) {
            kill(child.pid(), SIGCONT);
            QCOMPARE(child.waitForSignal(), SIGCONT);
        }
        QCOMPARE(child.endAndTell(), SIGVTALRM);
    }

    void aProcessThatExitedGivesTheErrorBox_data()
    {
        const Rows<bool> row("duringTheQuestion");
        row("before the question", false);
        row("during the question", true);
    }

    void aProcessThatExitedGivesTheErrorBox()
    {
        QFETCH(bool, duringTheQuestion);
        Child asked;
        const Desk desk;
        desk.select(asked.pid());
        if (!duringTheQuestion) {
            asked.endAndTell();
        }
        SeenBox seen;
        const auto confirm = [&](QWidget *dialog) {
            if (duringTheQuestion) {
                asked.endAndTell();
            }
            pressing(QMessageBox::Ok)(dialog);
        };
        const ModalDriver driver({confirm, pressing(QMessageBox::Ok, &seen)});
        desk.trigger("Terminate process");
        verifyErrorBox(seen, noSuchProcess);
    }

    void theErrorBoxNamesTheProcessThatWasAskedAbout_data()
    {
        const Rows<Change> row("duringTheQuestion");
        row("listed", [](const Desk &, pid_t) {});
        row("it has left the list", [](const Desk &desk, pid_t other) {
            desk.list->refresh(makeSnapshot({{other, 0}}));
        });
        row("its pid is another process's", [](const Desk &desk, pid_t) {
            const FactsByPid another = {{noSuchPid, {noSuchPid, 0, "another"}}};
            desk.list->refresh(makeSnapshot(another));
            desk.list->refresh(makeSnapshot(another));
            QCOMPARE(desk.list->processByPid(noSuchPid).getName(), QString("another"));
        });
        row("another one is selected", [](const Desk &desk, pid_t other) { desk.select(other); });
    }

    void theErrorBoxNamesTheProcessThatWasAskedAbout()
    {
        QFETCH(Change, duringTheQuestion);
        const Child other;
        const Desk desk;
        desk.list->refresh(makeSnapshot({{noSuchPid, 0}}));
        desk.actions->setProcess(desk.list->processAt(desk.list->index(0, 0)));
        SeenBox question;
        SeenBox error;
        const auto confirm = [&](QWidget *dialog) {
            duringTheQuestion(desk, other.pid());
            pressing(QMessageBox::Ok, &question)(dialog);
        };
        const ModalDriver driver({confirm, pressing(QMessageBox::Ok, &error)});
        desk.trigger("Terminate process");
        const QString label = QStringLiteral("p%1 (%1)").arg(noSuchPid);
        QCOMPARE(question.informativeText, label);
        QCOMPARE(error.informativeText, label);
    }

    void aPidAloneIsNamedAsTheListDoes_data()
    {
        const Rows<int, QString> row("listedPid", "label");
        row("listed", noSuchPid, "p2147483632 (2147483632)");
        row("unknown", 1, "2147483632");
    }

    void aPidAloneIsNamedAsTheListDoes()
    {
        QFETCH(int, listedPid);
        QFETCH(QString, label);
        const Desk desk;
        desk.list->refresh(makeSnapshot({{listedPid, 0}}));
        SeenBox signalBox;
        SeenBox priorityBox;
        const ModalDriver driver(
            {pressing(QMessageBox::Ok, &signalBox), pressing(QMessageBox::Ok, &priorityBox)});
        desk.list->sendSignal(noSuchPid, 0);
        desk.list->setPriority(noSuchPid, 1);
        QCOMPARE(signalBox.informativeText, label);
        QCOMPARE(priorityBox.informativeText, label);
    }

    void anotherUsersProcessGivesTheErrorBox()
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
        verifyErrorBox(seen, "Unable send signal to process. Reason - Operation not permitted");
        QCOMPARE(child.endAndTell(), SIGVTALRM);
    }

    void noPidOfZeroOrBelowReachesTheKernel_data()
    {
        const Rows<int> row("pid");
        row("0, the test's own group", 0);
        row("-1, everyone", -1);
        row("-5, a group", -5);
        row("the test's own group by its number", -getpgrp());
        row("the lowest number", std::numeric_limits<int>::min());
    }

    void noPidOfZeroOrBelowReachesTheKernel()
    {
        QFETCH(int, pid);
        const int before = niceOf(getpid());
        const Desk desk;
        SeenBox signalBox;
        SeenBox priorityBox;
        const ModalDriver driver(
            {pressing(QMessageBox::Ok, &signalBox), pressing(QMessageBox::Ok, &priorityBox)});
        // Signal 0 harms nobody: kill(2) would succeed for most of these, and no box would open.
        desk.list->sendSignal(pid, 0);
        verifyErrorBox(signalBox, noSuchProcess);
        desk.list->setPriority(pid, before + 1); // for 0 this would be the test itself
        verifyErrorBox(priorityBox, "Unable change priority. Reason - No such process");
        QCOMPARE(niceOf(getpid()), before);
    }

    void aProcessGroupSurvivesItsNegativePid()
    {
        Child child;
        QCOMPARE(kill(-child.pid(), 0), 0); // the group exists
        const Desk desk;
        desk.select(-child.pid());
        SeenBox seen;
        const ModalDriver driver({pressing(QMessageBox::Ok), pressing(QMessageBox::Ok, &seen)});
        desk.trigger("Kill process");
        verifyErrorBox(seen, noSuchProcess);
        QCOMPARE(child.endAndTell(), SIGVTALRM);
    }

    void anInvalidSignalGivesTheErrorBox()
    {
        const Child child;
        const Desk desk;
        SeenBox seen;
        const ModalDriver driver(pressing(QMessageBox::Ok, &seen));
        desk.list->sendSignal(child.pid(), 4711);
        verifyErrorBox(seen, "Unable send signal to process. Reason - Invalid argument");
    }

    void theProcessThatWasAskedAboutGetsTheSignal_data()
    {
        const Rows<Change, Change> row("beforeTheQuestion", "duringTheQuestion");
        const Change none = [](const Desk &, pid_t) {};
        const Change anotherTakesItsRow = [](const Desk &desk, pid_t other) {
            desk.list->refresh(makeSnapshot({{other, 0}}));
        };
        row("nothing changes", none, none);
        row("another process is selected", none, [](const Desk &desk, pid_t other) { desk.select(other); });
        row("the selection is lost", none,
            [](const Desk &desk, pid_t) { desk.actions->setProcess(gtop_wrappers::Process(-1)); });
        row("another process takes its row", none, anotherTakesItsRow);
        row("another process has taken its row before", anotherTakesItsRow, none);
        row("the list is reset", none, [](const Desk &desk, pid_t) {
            desk.list->setFlat(false);
            desk.list->setColumnVisible(2, false);
        });
    }

    void theProcessThatWasAskedAboutGetsTheSignal()
    {
        QFETCH(Change, beforeTheQuestion);
        QFETCH(Change, duringTheQuestion);
        Child before;
        Child asked;
        Child after;
        const Desk desk;
        desk.list->refresh(makeSnapshot({{asked.pid(), 0}}));
        desk.actions->setProcess(desk.list->processAt(desk.list->index(0, 0)));
        beforeTheQuestion(desk, after.pid());
        const ModalDriver driver([&](QWidget *dialog) {
            duringTheQuestion(desk, after.pid());
            pressing(QMessageBox::Ok)(dialog);
        });
        desk.trigger("Kill process");
        QCOMPARE(asked.waitForSignal(), SIGKILL);
        QCOMPARE(before.endAndTell(), SIGVTALRM);
        QCOMPARE(after.endAndTell(), SIGVTALRM);
    }
};

QTEST_MAIN(TestProcessControl)
#include "test_processcontrol.moc"
