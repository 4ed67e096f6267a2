// SPDX-License-Identifier: GPL-3.0-or-later
#include "support.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <limits>

/// The real machine on all pages, ticking as fast as it can.
class TestTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// What leaks with each tick grows in each span of ticks; what is filled only once, such as a glyph
    /// cache, does not, so the span that grows least is judged. ZSM_SOAK_TICKS sets the number of ticks.
    void descriptorsAndMemoryDoNotGrow()
    {
        constexpr int spans = 10;
        constexpr long allowedBytes = 4096; // for the switch to the other machine and back
        constexpr long allowedBytesPerTick = 16;
        const int span = runSize("ZSM_SOAK_TICKS", 500) / spans;
        standin::machine() = {};
        fixture.start(0);
        tick(span);
        const Resources first = settledResources(fixture);
        Resources before = first;
        long leastGrowth = std::numeric_limits<long>::max();
        for (int i = 1; i < spans; ++i) {
            QElapsedTimer elapsed;
            elapsed.start();
            tick(span);
            const qint64 spent = elapsed.elapsed();
            const Resources after = settledResources(fixture);
            leastGrowth = std::min(leastGrowth, after.allocated - before.allocated);
            qInfo("ticks %d to %d: %lld ms, %s", ticks - span + 1, ticks, spent, qPrintable(after.text()));
            QCOMPARE(after.descriptors, first.descriptors);
            before = after;
        }
        qInfo("%d ticks: before %s; least growth in %d ticks %ld bytes; peak %ld KiB", ticks,
              qPrintable(first.text()), span, leastGrowth, Resources::peakKiB());
        QVERIFY(leastGrowth <= allowedBytes + allowedBytesPerTick * span);
    }

private:
    void tick(int count)
    {
        for (int i = 0; i < count; ++i, ++ticks) {
            if (ticks % 5 == 0) {
                Fixture::choosePage(ticks / 5 % 4);
            }
            QMetaObject::invokeMethod(&fixture.updater(), "update");
            QCoreApplication::processEvents();
        }
    }

    Fixture fixture;
    int ticks = 0;
};

QTEST_MAIN(TestTime)
#include "test_time.moc"
