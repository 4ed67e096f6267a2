// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/startclock.h"

#include <QtTest>

#include <limits>

using gtop_wrappers::StartClock;
using std::chrono::milliseconds;

class TestStartClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondIsOverOnlyIfThatIsCertain()
    {
        const StartClock::Time start{};
        StartClock clock;
        QVERIFY(!clock.secondIsOver(0, start));
        clock.see(100, start);
        QVERIFY(clock.secondIsOver(99, start));
        QVERIFY(!clock.secondIsOver(100, start));
        QVERIFY(!clock.secondIsOver(100, start + milliseconds(999)));
        QVERIFY(clock.secondIsOver(100, start + milliseconds(1000)));
        QVERIFY(!clock.secondIsOver(101, start + milliseconds(1000)));
        clock.see(101, start + milliseconds(1500)); // no news: the current second is 101 at least
        QVERIFY(clock.secondIsOver(101, start + milliseconds(2000)));
        clock.see(110, start + milliseconds(2000));
        QVERIFY(!clock.secondIsOver(110, start + milliseconds(2999)));
        clock.see(std::numeric_limits<quint64>::max(), start + milliseconds(3000));
        QVERIFY(!clock.secondIsOver(std::numeric_limits<quint64>::max(), start + milliseconds(9000)));
    }
};

QTEST_GUILESS_MAIN(TestStartClock)
#include "test_startclock.moc"
