// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <limits>

// The real machine, all pages, as fast as it goes.
class TestTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void descriptorsAndMemoryStayWhereTheyWere();

private:
    void tick(int count);

    std::unique_ptr<Fixture> fixture;
    int ticks = 0;
};

void TestTime::tick(int count)
{
    for (int i = 0; i < count; ++i, ++ticks) {
        if (ticks % 5 == 0) {
            Fixture::choosePage(ticks / 5 % 4);
        }
        QMetaObject::invokeMethod(&fixture->updater(), "update");
        QCoreApplication::processEvents();
    }
}

// ZSM_SOAK_TICKS sets how many ticks. What grows with each of them grows in each span of them; what is only
// filled once, a cache or a store of glyphs, does not.
void TestTime::descriptorsAndMemoryStayWhereTheyWere()
{
    const int wanted =
        qEnvironmentVariableIsSet("ZSM_SOAK_TICKS") ? qEnvironmentVariableIntValue("ZSM_SOAK_TICKS") : 500;
    constexpr int spans = 10;
    constexpr long allowedBytes = 4096; // the change to the other machine and back
    constexpr long allowedBytesPerTick = 16;
    const int span = wanted / spans;
    fixture = std::make_unique<Fixture>();
    standin::machine() = {};
    fixture->start(0);
    tick(span);
    const Resources first = settled(*fixture);
    Resources before = first;
    long leastGrowth = std::numeric_limits<long>::max();
    for (int i = 1; i < spans; ++i) {
        QElapsedTimer elapsed;
        elapsed.start();
        tick(span);
        const qint64 spent = elapsed.elapsed();
        const Resources after = settled(*fixture);
        leastGrowth = std::min(leastGrowth, after.allocated - before.allocated);
        qInfo("ticks %d to %d: %lld ms, %s", ticks - span + 1, ticks, spent, qPrintable(after.text()));
        QCOMPARE(after.descriptors, first.descriptors);
        before = after;
    }
    qInfo("%d ticks: before %s; least growth in %d ticks %ld bytes; peak %ld KiB", ticks,
          qPrintable(first.text()), span, leastGrowth, Resources::peakKiB());
    QVERIFY(leastGrowth <= allowedBytes + allowedBytesPerTick * span);
}

QTEST_MAIN(TestTime)
#include "test_time.moc"
