// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/control.h"
#include "tests/process/support/menus.h"

#include <QSlider>
#include <QtTest>

#include <limits>

namespace {

/// Moves the slider of the priority dialog and presses OK.
ModalDriver::Handler choosing(int nice, int *shown = nullptr)
{
    return [nice, shown](QWidget *dialog) {
        auto *const slider = dialog->findChild<QSlider *>();
        if (shown) {
            *shown = slider->value();
        }
        slider->setValue(slider->value() == 20 ? -20 : 20);
        slider->setValue(nice);
        for (QPushButton *const button : dialog->findChildren<QPushButton *>()) {
            if (button->isDefault()) {
                button->click();
            }
        }
    };
}

} // namespace

class TestProcessPriority : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void noPidOfZeroOrBelowReachesSetpriority_data();
    void noPidOfZeroOrBelowReachesSetpriority();
    void aChosenPriorityIsReadBackFromTheKernel();
    void theDialogStartsAtTheKernelsValue();
    void theDialogStartsAtTheListedValueWhenTheKernelHasNone();
    void anUnchangedPriorityIsNotSet();
    void aCancelledPriorityIsNotSet();
    void aSelectionThatChangesDuringTheDialogChangesNothing();
    void thePriorityOfAnEndedProcessGivesTheErrorBox();
    void aPriorityWithoutTheRightGivesTheErrorBox();
    void theValuesAtTheEndsOfTheSliderAreTaken();
};

void TestProcessPriority::noPidOfZeroOrBelowReachesSetpriority_data()
{
    QTest::addColumn<int>("pid");
    QTest::newRow("0, the test's own group") << 0;
    QTest::newRow("-1, everyone") << -1;
    QTest::newRow("-5, a group") << -5;
    QTest::newRow("the test's own group by its number") << -getpgrp();
    QTest::newRow("the lowest number") << std::numeric_limits<int>::min();
}

void TestProcessPriority::noPidOfZeroOrBelowReachesSetpriority()
{
    QFETCH(int, pid);
    const int before = niceOf(getpid());
    const Desk desk;
    SeenBox seen;
    const ModalDriver driver(pressing(QMessageBox::Ok, &seen));
    desk.list->setPriority(pid, before + 1); // 0 would be this process
    QCOMPARE(driver.count(), std::size_t(1));
    verifyErrorBox(seen, "Unable change priority. Reason - No such process");
    QCOMPARE(niceOf(getpid()), before);
}

void TestProcessPriority::aChosenPriorityIsReadBackFromTheKernel()
{
    const Child chosen;
    const Child other;
    const int before = niceOf(other.pid());
    const Desk desk;
    desk.select(chosen.pid());
    const ModalDriver driver(choosing(11));
    desk.trigger("Change priority...");
    QCOMPARE(driver.count(), std::size_t(1));
    QCOMPARE(niceOf(chosen.pid()), 11);
    QCOMPARE(niceOf(other.pid()), before);
}

void TestProcessPriority::theDialogStartsAtTheKernelsValue()
{
    const Child child;
    QCOMPARE(setpriority(PRIO_PROCESS, static_cast<id_t>(child.pid()), 7), 0);
    const Desk desk;
    desk.select(child.pid(), 1, 0); // the list still says 0
    int shown = 0;
    const ModalDriver driver(choosing(9, &shown));
    desk.trigger("Change priority...");
    QCOMPARE(shown, 7);
    QCOMPARE(niceOf(child.pid()), 9);
}

void TestProcessPriority::theDialogStartsAtTheListedValueWhenTheKernelHasNone()
{
    const Desk desk;
    for (const int pid : {endedPid(), 0, -7}) {
        desk.select(pid, 1, 4);
        int shown = 0;
        const ModalDriver driver([&](QWidget *dialog) {
            shown = dialog->findChild<QSlider *>()->value();
            dialog->close();
        });
        desk.trigger("Change priority...");
        QCOMPARE(driver.count(), std::size_t(1));
        QCOMPARE(shown, 4);
    }
}

void TestProcessPriority::anUnchangedPriorityIsNotSet()
{
    const Child child;
    const int before = niceOf(child.pid());
    const Desk desk;
    desk.select(child.pid());
    const ModalDriver driver([&](QWidget *dialog) {
        setpriority(PRIO_PROCESS, static_cast<id_t>(child.pid()), before + 3); // somebody else, meanwhile
        choosing(before)(dialog);
    });
    desk.trigger("Change priority...");
    QCOMPARE(driver.count(), std::size_t(1));
    QCOMPARE(niceOf(child.pid()), before + 3);
}

void TestProcessPriority::aCancelledPriorityIsNotSet()
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
    QCOMPARE(driver.count(), std::size_t(1));
    QCOMPARE(niceOf(child.pid()), before);
}

void TestProcessPriority::aSelectionThatChangesDuringTheDialogChangesNothing()
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

void TestProcessPriority::thePriorityOfAnEndedProcessGivesTheErrorBox()
{
    const Desk desk;
    desk.select(endedPid());
    SeenBox seen;
    const ModalDriver driver({choosing(5), pressing(QMessageBox::Ok, &seen)});
    desk.trigger("Change priority...");
    QCOMPARE(driver.count(), std::size_t(2));
    verifyErrorBox(seen, "Unable change priority. Reason - No such process");
}

void TestProcessPriority::aPriorityWithoutTheRightGivesTheErrorBox()
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
    QCOMPARE(driver.count(), std::size_t(4));
    verifyErrorBox(foreignBox, "Unable change priority. Reason - Operation not permitted");
    verifyErrorBox(ownBox, "Unable change priority. Reason - Permission denied");
    QCOMPARE(niceOf(foreign.pid()), niceOf(getpid()));
    QCOMPARE(niceOf(own.pid()), niceOf(getpid()));
}

void TestProcessPriority::theValuesAtTheEndsOfTheSliderAreTaken()
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

QTEST_MAIN(TestProcessPriority)
#include "test_processcontrol_priority.moc"
