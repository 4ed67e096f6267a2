// SPDX-License-Identifier: GPL-3.0-or-later
// What a start reads, and how the ticks stand after it.
#include "fixture.h"

#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"
#include "resources/timehisto.h"

#include <QtTest>
#include <QtWidgets>

class TestStart : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachThingIsReadOnce_data()
    {
        const Rows<int, unsigned, unsigned, unsigned> row("page", "processLists", "memory", "mountLists");
        // The full refresh reads memory once and the mounts for two pages. The rest is the shown page, which
        // is refreshed when the settings are loaded.
        row("no page given", -1, 0U, 2U, 3U);
        row("General", 0, 0U, 2U, 3U);
        row("Processes", 1, 1U, 1U, 2U);
        row("File systems", 2, 0U, 1U, 3U);
        row("Network", 3, 0U, 1U, 2U);
    }

    void eachThingIsReadOnce()
    {
        QFETCH(int, page);
        fixture->start(page);
        QTEST(standin::calls().processList, "processLists");
        QTEST(standin::calls().memory, "memory");
        QTEST(standin::calls().mountList, "mountLists");
    }

    void theGraphHasOneSample_data()
    {
        const Rows<int, int> row("page", "interval"); // of the Network page
        for (const int page : {-1, 0, 1, 2, 3}) {
            for (const int interval : {1, 3, 5}) {
                QTest::addRow("page %d, interval %d", page, interval) << page << interval;
            }
        }
    }

    void theGraphHasOneSample()
    {
        QFETCH(int, page);
        QFETCH(int, interval);
        QSettings().setValue(QStringLiteral("interval/net"), interval);
        fixture->start(page);
        Fixture::graph()->resize(1200, 400);
        QCOMPARE(Fixture::drawnSamples(), 1);
        // The first full refresh, whose counters are the base of the sample, and the sample.
        QCOMPARE(standin::calls().interfaceList, 2U);
    }

    void theListIsFilledWhateverIsStored_data()
    {
        const Rows<int, int> row("interval", "hidden"); // number of columns
        for (const int interval : {1, 2, 3, 4, 5}) {
            for (const int hidden : {0, 1, 2, 3, 4, 8}) {
                QTest::addRow("interval %d, %d columns hidden", interval, hidden) << interval << hidden;
            }
        }
    }

    void theListIsFilledWhateverIsStored()
    {
        QFETCH(int, interval);
        QFETCH(int, hidden);
        QSettings().setValue(QStringLiteral("interval/procs"), interval);
        for (int column = 0; column < columns(); ++column) {
            const QString name = gtop_wrappers::ProcessFiller::instance()->name(uint(column));
            QSettings().setValue(QStringLiteral("column/") + name, column < columns() - hidden);
        }
        fixture->start(1);
        QCOMPARE(Fixture::processes()->columnCount(), columns() - hidden);
        QCOMPARE(Fixture::processes()->rowCount(), 4);
        QCOMPARE(standin::calls().processList, 1U);
    }

    void everyResetOfTheLoadingIsATick_data()
    {
        const Rows<int, int> row("page", "interval"); // of all pages
        for (const int page : {0, 1, 2, 3}) {
            for (const int interval : {2, 3, 4, 5, 7, 11}) {
                QTest::addRow("page %d, interval %d", page, interval) << page << interval;
            }
        }
    }

    void everyResetOfTheLoadingIsATick()
    {
        QFETCH(int, page);
        QFETCH(int, interval);
        for (const char *key : {"interval/general", "interval/procs", "interval/fs", "interval/net"}) {
            QSettings().setValue(QLatin1String(key), interval);
        }
        fixture->start(page);
        // One for the first refresh, which a start page begins again, and two for each column.
        int tick = 1 + 2 * columns();
        for (int i = 0; i < 2 * interval; ++i, ++tick) {
            standin::resetCalls();
            fixture->updater().update();
            const standin::Calls &calls = standin::calls();
            const unsigned due = tick % interval == 0 ? 1 : 0;
            QCOMPARE(calls.memory, page == 0 ? due : 0);
            QCOMPARE(calls.processList, page == 1 ? due : 0);
            QCOMPARE(calls.mountList, page == 0 || page == 2 ? due : 0);
            QCOMPARE(calls.interfaceList, due);
        }
    }

    void afterTheStartEveryRefreshReadsTheProcesses()
    {
        fixture->start(1);
        (*standin::machine().processes)[500] = (*standin::machine().processes)[400];
        fixture->refresh(1);
        QCOMPARE(standin::calls().processList, 2U);
        QCOMPARE(Fixture::processes()->rowCount(), 5);
    }

private:
    static int columns() { return static_cast<int>(gtop_wrappers::ProcessFiller::instance()->size()); }
};

QTEST_MAIN(TestStart)
#include "test_start.moc"
