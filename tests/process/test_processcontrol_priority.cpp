// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/control.h"
#include "tests/process/support/menus.h"

namespace {

int exitedPid()
{
    const Child child;
    return child.pid();
}

void setNice(const Child &child, int nice)
{
    QCOMPARE(setpriority(PRIO_PROCESS, static_cast<id_t>(child.pid()), nice), 0);
}

} // namespace

/// Which process gets the chosen priority, and what refuses it. For pids of 0 and below see
/// test_processcontrol.cpp.
class TestProcessPriority : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theDialogStartsAtTheKernelsValueAndSetsTheChosenOne()
    {
        const Child chosen;
        const Child other;
        const int before = niceOf(other.pid());
        setNice(chosen, 7);
        const Desk desk;
        desk.select(chosen.pid(), 1, 0); // the list still has 0
        int shown = 0;
        const ModalDriver driver(choosing(11, &shown));
        desk.trigger("Change priority...");
        QCOMPARE(shown, 7);
        QCOMPARE(niceOf(chosen.pid()), 11);
        QCOMPARE(niceOf(other.pid()), before);
    }

    void theDialogStartsAtTheListedValueWhenTheKernelHasNone()
    {
        const Desk desk;
        for (const int pid : {exitedPid(), 0, -7}) {
            desk.select(pid, 1, 4);
            const ModalDriver driver([](QWidget *dialog) {
                QCOMPARE(dialog->findChild<QSlider *>()->value(), 4);
                dialog->close();
            });
            desk.trigger("Change priority...");
        }
    }

    void anUnchangedPriorityIsNotSet()
    {
        const Child child;
        const int before = niceOf(child.pid());
        const Desk desk;
        desk.select(child.pid());
        const ModalDriver driver([&](QWidget *dialog) {
            setNice(child, before + 3); // by another program, meanwhile
            choosing(before)(dialog);
        });
        desk.trigger("Change priority...");
        QCOMPARE(niceOf(child.pid()), before + 3);
    }

    void aCancelledPriorityIsNotSet()
    {
        const Child child;
        const int before = niceOf(child.pid());
        const Desk desk;
        desk.select(child.pid());
        const ModalDriver driver([](QWidget *dialog) {
            dialog->findChild<QSlider *>()->setValue(15);
            dialog->close();
        });
        desk.trigger("Change priority...");
        QCOMPARE(niceOf(child.pid()), before);
    }

    void aSelectionThatChangesDuringTheDialogChangesNothing()
    {
        const Child asked;
        const Child other;
        const int before = niceOf(other.pid());
        const Desk desk;
        desk.select(asked.pid());
        const ModalDriver driver([&](QWidget *dialog) {
            desk.select(other.pid());
            choosing(13)(dialog);
        });
        desk.trigger("Change priority...");
        QCOMPARE(niceOf(asked.pid()), 13);
        QCOMPARE(niceOf(other.pid()), before);
    }

    void thePriorityOfAnEndedProcessGivesTheErrorBoxThatNamesIt()
    {
        const int pid = exitedPid();
        const Desk desk;
        desk.list->refresh(makeSnapshot({{pid, 0}}));
        desk.actions->setProcess(desk.list->processAt(desk.list->index(0, 0)));
        const QString label = QStringLiteral("p%1 (%1)").arg(pid);
        const auto choose = [&](QWidget *dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Change priority - ") + label);
            desk.list->refresh(makeSnapshot({{1, 0}})); // it leaves the list
            choosing(5)(dialog);
        };
        SeenBox seen;
        const ModalDriver driver({choose, pressing(QMessageBox::Ok, &seen)});
        desk.trigger("Change priority...");
        verifyErrorBox(seen, "Unable change priority. Reason - No such process");
        QCOMPARE(seen.informativeText, label);
    }

    void aPriorityWithoutTheRightGivesTheErrorBox()
    {
        if (geteuid() != 0) {
            QSKIP("only root can start a process of another user");
        }
        const Child foreign(daemonUser);
        const Child own(nobodyUser);
        const Desk desk;
        SeenBox foreignBox;
        SeenBox ownBox;
        const ModalDriver driver({choosing(5), pressing(QMessageBox::Ok, &foreignBox), choosing(-5),
                                  pressing(QMessageBox::Ok, &ownBox)});
        {
            const WithoutRights nobody;
            QVERIFY(nobody.dropped);
            desk.select(foreign.pid());
            desk.trigger("Change priority...");
            desk.select(own.pid());
            desk.trigger("Change priority...");
        }
        verifyErrorBox(foreignBox, "Unable change priority. Reason - Operation not permitted");
        verifyErrorBox(ownBox, "Unable change priority. Reason - Permission denied");
        QCOMPARE(niceOf(foreign.pid()), niceOf(getpid()));
        QCOMPARE(niceOf(own.pid()), niceOf(getpid()));
    }

    void theValuesAtTheEndsOfTheSliderAreTaken()
    {
        const Child child;
        const Desk desk;
        desk.select(child.pid());
        {
            const ModalDriver driver(choosing(20));
            desk.trigger("Change priority...");
            QCOMPARE(niceOf(child.pid()), 19); // the kernel's highest
        }
        if (geteuid() == 0) {
            const ModalDriver driver(choosing(-20));
            desk.trigger("Change priority...");
            QCOMPARE(niceOf(child.pid()), -20);
        }
    }
};

QTEST_MAIN(TestProcessPriority)
#include "test_processcontrol_priority.moc"
