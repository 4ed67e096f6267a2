// SPDX-License-Identifier: GPL-3.0-or-later
// CPU figures over too little time are followed by true ones.
#include "fixture.h"

#include "../support/rows.h"
#include "app/followup.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

class TestFollowUp : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void aShortSpanAsksForOneMoreRefresh_data()
    {
        const Rows<double, bool> row("seconds", "asks");
        row("none", 0.0, true);
        row("a jiffy", 0.01, true);
        row("just too short", 0.1999, true);
        row("just long enough", 0.2, false);
        row("a tick", 1.0, false);
        row("a counter fell", 1e15, false);
    }

    void aShortSpanAsksForOneMoreRefresh()
    {
        QFETCH(double, seconds);
        QFETCH(bool, asks);
        FollowUp followUp(nullptr);
        QSignalSpy due(&followUp, SIGNAL(due(int)));
        // What is sampled while due() is emitted asks for nothing.
        connect(&followUp, &FollowUp::due, this, [&](int page) { followUp.sampled(page, 0.0); });
        followUp.sampled(1, seconds);
        QCOMPARE(isPending(followUp), asks);
        QCOMPARE(due.count(), 0);
        QTRY_VERIFY(!isPending(followUp));
        QCOMPARE(due.count(), asks ? 1 : 0);
        if (asks) {
            QCOMPARE(due.first().first().toInt(), 1);
        }
    }

    void onlyALongSampleOfThePageCancels()
    {
        FollowUp followUp(nullptr);
        followUp.sampled(1, 0.0);
        followUp.sampled(0, 1.0);
        QVERIFY(isPending(followUp));
        followUp.sampled(1, 1.0);
        QVERIFY(!isPending(followUp));
    }

    void itComesAfterThreeTenthsOfASecond()
    {
        FollowUp followUp(nullptr);
        const auto *timer = followUp.findChild<QTimer *>();
        QVERIFY(timer->isSingleShot());
        QCOMPARE(timer->interval(), 300);
    }

    void countersThatStandStillAreFollowedOncePerRefresh_data() { pages(); }

    void countersThatStandStillAreFollowedOncePerRefresh()
    {
        QFETCH(int, page);
        settle(page);
        for (int round = 0; round < 2; ++round) {
            fixture->refresh(page);
            verifyReads(page, 1, 1);
            QVERIFY(isPending());
            standin::resetCalls();
            QTRY_VERIFY(!isPending());
            // That page and nothing else, and no tick: the next one is still the second from tick 0.
            verifyReads(page, 1, 0);
            standin::resetCalls();
            fixture->updater().update();
            verifyReads(page, 0, 0);
            fixture->updater().update();
            verifyReads(page, 0, 0);
            fixture->updater().update();
            verifyReads(page, 1, 1);
            QTRY_VERIFY(!isPending());
            standin::resetCalls();
        }
    }

    void aPageThatWasLeftIsNotRefreshed_data() { pages(); }

    void aPageThatWasLeftIsNotRefreshed()
    {
        QFETCH(int, page);
        settle(page);
        fixture->refresh(page);
        QVERIFY(isPending());
        Fixture::choosePage(2);
        standin::resetCalls();
        QTRY_VERIFY(!isPending());
        verifyReads(2, 0, 0);
    }

    void spansAreMachineTimeAndALongOneCancels_data()
    {
        const Rows<int, int, bool> row("page", "jiffies", "follows"); // of each of the two CPUs
        for (const int page : {0, 1}) {
            row("too short on page " + QByteArray::number(page), page, 19, true);
            row("long enough on page " + QByteArray::number(page), page, 20, false);
        }
    }

    void spansAreMachineTimeAndALongOneCancels()
    {
        QFETCH(int, page);
        QFETCH(int, jiffies);
        settle(page);
        pass(jiffies, 0);
        fixture->refresh(page);
        QTEST(isPending(), "follows");
        pass(25, 0); // cancels
        fixture->refresh(page);
        QVERIFY(!isPending());
    }

    void aHiddenPageIsNotFollowed()
    {
        settle(2);
        fixture->updater().update(true);
        QVERIFY(!isPending());
        fixture->refresh(3);
        QVERIFY(!isPending());
    }

    void anIdleMachineShowsNoLoadAfterAStartAndAfterChangesOfTheTab_data() { pages(); }

    void anIdleMachineShowsNoLoadAfterAStartAndAfterChangesOfTheTab()
    {
        QFETCH(int, page);
        fixture->start(page);
        stopTicks();
        for (int round = 0; round < 10; ++round) {
            QVERIFY(isPending());
            pass(30, 30);
            QTRY_VERIFY(!isPending());
            for (int i = 0; i < (page == 0 ? 2 : 4); ++i) {
                QCOMPARE(page == 0 ? coreLoad(i) : processLoad(i), QString(page == 0 ? "0 %" : "0.0 %"));
            }
            Fixture::choosePage((page + 1 + round % 3) % 4);
            Fixture::choosePage(page);
        }
    }

    void aBusyProcessShowsItsShareAfterAStart()
    {
        fixture->start(1);
        stopTicks();
        (*standin::machine().processes)[100].userTime += 15;
        pass(30, 15);
        QTRY_VERIFY(!isPending());
        QCOMPARE(processLoad(0), QStringLiteral("25.0 %"));
    }

    void aChangeOfTheListIsFollowed()
    {
        settle(1);
        Fixture::processes()->setFlat(false);
        QVERIFY(isPending());
        pass(30, 30);
        QTRY_VERIFY(!isPending());
        QCOMPARE(processLoad(0), QStringLiteral("0.0 %"));
        QCOMPARE(Fixture::processes()->rowCount(), 1);
    }

private:
    static bool isPending(const FollowUp &followUp) { return followUp.findChild<QTimer *>()->isActive(); }
    bool isPending() { return isPending(*fixture->updater().findChild<FollowUp *>()); }

    static void pages()
    {
        const Rows<int> row("page");
        row("General", 0);
        row("Processes", 1);
    }

    static void stopTicks()
    {
        Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->stop();
    }

    /// Starts on the page, and waits until nothing is pending.
    void settle(int page)
    {
        fixture->start(page);
        stopTicks();
        QTRY_VERIFY(!isPending());
        standin::resetCalls();
    }

    /// Lets each CPU count so many jiffies.
    static void pass(int jiffies, int idle)
    {
        for (standin::Cpu &cpu : *standin::machine().cpus) {
            cpu.total += static_cast<std::uint64_t>(jiffies);
            cpu.idle += static_cast<std::uint64_t>(idle);
        }
    }

    /// The reads since the last reset: so many of the page, so many of the network, and no other.
    static void verifyReads(int page, unsigned ofThePage, unsigned ofTheNetwork)
    {
        const standin::Calls &calls = standin::calls();
        QCOMPARE(calls.memory, page == 0 ? ofThePage : 0);
        QCOMPARE(calls.mountList, page == 0 ? ofThePage : 0);
        QCOMPARE(calls.processList, page == 1 ? ofThePage : 0);
        QCOMPARE(calls.interfaceList, ofTheNetwork);
    }

    static QString coreLoad(int cpu)
    {
        const auto *grid = Fixture::find<QGridLayout>("glState");
        return qobject_cast<QLabel *>(grid->itemAtPosition(3 + cpu, 2)->widget())->text();
    }
    static QString processLoad(int row) { return Fixture::processes()->index(row, 1).data().toString(); }
};

QTEST_MAIN(TestFollowUp)
#include "test_followup.moc"
