// SPDX-License-Identifier: GPL-3.0-or-later
// What is kept from one run to the next, in the real settings file.
#include "../support/rows.h"
#include "fixture.h"

#include "app/defaultgeometry.h"
#include "app/pagescroll.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

class TestSettings : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartHasTheDefaults()
    {
        QVERIFY(!QFile::exists(Fixture::settingsFile()));
        fixture->start(0);
        verifyDefaults();
        // Larger only where the page needs more in the fonts of the platform.
        const QSize least = Fixture::window()->minimumSizeHint();
        auto *page = Fixture::find<PageScroll>("generalScroll");
        const int needed = heightForWholePage(Fixture::window(), page);
        QCOMPARE(Fixture::window()->size(), QSize(640, qMax(480, needed)).expandedTo(least));
        QCOMPARE(Fixture::window()->pos(), QPoint(0, 0));
    }

    void theDefaultGeometryFitsSmallScreens_data()
    {
        const Rows<QRect, int, QRect> row("available", "neededHeight", "expected");
        row("large", QRect(0, 0, 1920, 1080), 300, QRect(0, 0, 640, 480));
        row("800 x 500", QRect(0, 0, 800, 500), 300, QRect(0, 0, 640, 460));
        row("just fits", QRect(0, 0, 660, 520), 480, QRect(0, 0, 640, 480));
        row("narrow", QRect(0, 0, 659, 519), 300, QRect(0, 0, 639, 479));
        row("with a panel", QRect(50, 30, 1230, 690), 300, QRect(0, 0, 640, 480));
        row("a higher page", QRect(0, 0, 1920, 1080), 481, QRect(0, 0, 640, 481));
        row("a page higher than the screen", QRect(0, 0, 1920, 1080), 5000, QRect(0, 0, 640, 1040));
        row("a higher page on a low screen", QRect(0, 0, 800, 500), 5000, QRect(0, 0, 640, 460));
    }

    void theDefaultGeometryFitsSmallScreens()
    {
        QFETCH(QRect, available);
        QFETCH(int, neededHeight);
        QTEST(defaultGeometry(available, neededHeight), "expected");
    }

    void everyKeyIsWritten()
    {
        fixture->start(0);
        fixture->stop();
        QVERIFY(QFile::exists(Fixture::settingsFile()));
        QStringList expected = {"interval/general", "interval/procs",  "interval/fs", "interval/nwt",
                                "proc_sort_column", "proc_sort_order", "fsSplitter"};
        const auto *filler = gtop_wrappers::ProcessFiller::instance();
        for (unsigned long i = 0; i < filler->size(); ++i) {
            expected << QStringLiteral("column/") + filler->name(i);
        }
        const QSettings settings;
        for (const QString &key : expected) {
            QVERIFY2(settings.contains(key), qPrintable(key));
        }
        QVERIFY(!settings.contains(QStringLiteral("interval/net")));
        // The geometry is one more, under a key of the integration library.
        QCOMPARE(settings.allKeys().size(), expected.size() + 1);
    }

    void storedGeneralIntervalHoldsAndLasts_data()
    {
        const Rows<int, int> row("interval", "refreshes");
        row("1", 1, 20);
        row("4", 4, 5);
        row("5", 5, 4);
        row("0 is due on every tick", 0, 20);
        row("-3 is due on every tick", -3, 20);
    }

    void storedGeneralIntervalHoldsAndLasts()
    {
        QFETCH(int, interval);
        store("interval/general", interval);
        fixture->start(0);
        QTEST(generalRefreshesOf(20), "refreshes");
        fixture->stop();
        QCOMPARE(stored("interval/general").toInt(), interval);
        QCOMPARE(stored("interval/procs").toInt(), 3);
    }

    void networkIntervalIsReadFromAnotherKeyThanItIsWrittenTo()
    {
        store("interval/nwt", 5);
        fixture->start(0);
        fixture->stop();
        QCOMPARE(stored("interval/nwt").toInt(), 3);
        store("interval/net", 5);
        fixture->start(0);
        fixture->stop();
        QCOMPARE(stored("interval/nwt").toInt(), 5);
        QCOMPARE(stored("interval/net").toInt(), 5);
    }

    void columnVisibilityLasts_data()
    {
        const Rows<int, bool> row("column", "visible");
        row("hidden", 3, false);
        row("shown", 8, true);
    }

    void columnVisibilityLasts()
    {
        QFETCH(int, column);
        QFETCH(bool, visible);
        const auto number = static_cast<unsigned long>(column);
        fixture->start(1);
        list()->setColumnVisible(number, visible);
        fixture->start(1);
        QCOMPARE(list()->isColumnVisible(number), visible);
        const auto *filler = gtop_wrappers::ProcessFiller::instance();
        QCOMPARE(QSettings().value(QStringLiteral("column/") + filler->name(number)),
                 QVariant(visible ? QStringLiteral("true") : QStringLiteral("false")));
    }

    void theSortColumnAndOrderLast()
    {
        fixture->start(1);
        view()->sortByColumn(2, Qt::DescendingOrder);
        fixture->start(1);
        QCOMPARE(list()->sortColumn(), 2);
        QCOMPARE(list()->sortOrder(), Qt::DescendingOrder);
        QCOMPARE(view()->header()->sortIndicatorSection(), 2);
        fixture->stop();
        QCOMPARE(stored("proc_sort_column").toInt(), 2);
        QCOMPARE(stored("proc_sort_order").toInt(), 1);
    }

    void theCompleteTreeIsOnlyStoredWhileItIsOn()
    {
        const auto restart = [this] {
            fixture->stop();
            fixture->start(1);
        };
        const QString key = QStringLiteral("complete_tree");
        fixture->start(1);
        QVERIFY(!Fixture::processes()->isComplete());
        Fixture::processes()->setComplete(true);
        restart();
        QVERIFY(QSettings().value(key).toBool());
        QVERIFY(Fixture::processes()->isComplete() && Fixture::processes()->isFlat());
        restart();
        QVERIFY(Fixture::processes()->isComplete());
        Fixture::processes()->setComplete(false);
        restart();
        QVERIFY(!QSettings().contains(key));
        QVERIFY(!Fixture::processes()->isComplete());
    }

    void splitterLastsOrIsLeftAlone()
    {
        const auto splitter = [] { return Fixture::find<QSplitter>("splitter"); };
        fixture->start(2);
        const QList<int> natural = splitter()->sizes();
        splitter()->setSizes({220, 400});
        const QByteArray state = splitter()->saveState();
        fixture->stop();
        QCOMPARE(stored("fsSplitter").toByteArray(), state);
        fixture->start(2);
        QCOMPARE(splitter()->saveState(), state);
        fixture->stop();
        QSettings().remove(QStringLiteral("fsSplitter"));
        fixture->start(2);
        QCOMPARE(splitter()->sizes(), natural);
    }

    void theWindowSizeLasts()
    {
        fixture->start(0);
        const QSize size = Fixture::window()->minimumSizeHint().expandedTo(QSize(700, 520)) + QSize(11, 7);
        Fixture::window()->resize(size);
        fixture->start(0);
        QCOMPARE(Fixture::window()->size(), size);
    }

    void badFileGivesTheDefaultsAndNoMessage_data()
    {
        const Rows<QByteArray> row("content");
        row("a directory", QByteArray());
        row("empty", "");
        row("no settings", "<html>\nnot a settings file\n");
        row("zeros", QByteArray(5000, '\0'));
        row("bytes", "\xff\xfe\x80[[[]]]==\n=\n\xc3(\n");
        row("cut in a byte array", "[General]\nfsSplitter=@ByteArray(\\0\\0\\0\\xff\\0\\0");
        row("cut in a key", "[General]\nproc_sort_col");
        row("one long line", QByteArray(1 << 20, 'x'));
        row("wrong byte arrays", "[General]\nfsSplitter=@ByteArray(abc)\ngeometry=@ByteArray(abc)\n");
        row("invalid variants", "[General]\nfsSplitter=@Invalid()\nproc_sort_column=@Invalid()\n");
    }

    void badFileGivesTheDefaultsAndNoMessage()
    {
        QFETCH(QByteArray, content);
        const QFileInfo info(Fixture::settingsFile());
        QVERIFY(QDir().mkpath(content.isNull() ? info.filePath() : info.path()));
        if (!content.isNull()) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        const int windows = QApplication::topLevelWidgets().size();
        fixture->start(0);
        verifyDefaults();
        QCOMPARE(QApplication::topLevelWidgets().size() - windows,
                 1 + Fixture::window()->findChildren<QMenu *>().size());
        fixture->stop();
        QCOMPARE(QFileInfo(Fixture::settingsFile()).isDir(), content.isNull());
    }

    void wrongTypesAreSurvived_data()
    {
        const Rows<QVariant> row("value");
        row("text", QVariant(QStringLiteral("x")));
        row("bytes", QVariant(QByteArray("\0\1\2", 3)));
        row("list", QVariant(QVariantList{1, 2}));
        row("point", QVariant(QPoint(3, 4)));
        row("empty text", QVariant(QString()));
        row("-1", QVariant(-1));
        row("1e300", QVariant(1e300));
    }

    void wrongTypesAreSurvived()
    {
        QFETCH(QVariant, value);
        for (const char *key :
             {"interval/general", "interval/procs", "interval/fs", "interval/net", "column/Name",
              "column/CPU", "proc_sort_column", "proc_sort_order", "fsSplitter", "geometry"}) {
            store(key, value);
        }
        fixture->start(1);
        fixture->updater().update();
        fixture->stop();
    }

    void intervalsThatAreNotNumbersAreTheDefault()
    {
        for (const char *key : {"interval/general", "interval/procs", "interval/fs", "interval/net"}) {
            store(key, QStringLiteral("often"));
        }
        fixture->start(0);
        QCOMPARE(generalRefreshesOf(12), 4);
        fixture->stop();
        for (const char *key : {"interval/general", "interval/procs", "interval/fs", "interval/nwt"}) {
            QCOMPARE(stored(key).toInt(), 3);
        }
    }

    void missingSortColumnIsSurvived_data()
    {
        addNumberRows("column", {-1, -2, -100, 9, 13, 1000, std::numeric_limits<int>::max(),
                                 std::numeric_limits<int>::min()});
    }

    void missingSortColumnIsSurvived()
    {
        QFETCH(int, column);
        store("proc_sort_column", column);
        store("proc_sort_order", 7);
        fixture->start(1);
        fixture->refresh(1);
        QCOMPARE(list()->rowCount(), 4);
        fixture->stop();
    }

private:
    static QVariant stored(const char *key) { return QSettings().value(QLatin1String(key)); }
    static void store(const char *key, const QVariant &value)
    {
        QSettings().setValue(QLatin1String(key), value);
    }
    void verifyDefaults()
    {
        QCOMPARE(generalRefreshesOf(12), 4);
        for (unsigned long i = 0; i < gtop_wrappers::ProcessFiller::instance()->size(); ++i) {
            QCOMPARE(list()->isColumnVisible(i), i < 6 || i > 9);
        }
        QCOMPARE(list()->sortColumn(), 0);
        QCOMPARE(list()->sortOrder(), Qt::AscendingOrder);
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        QCOMPARE(Fixture::window()->width(),
                 qMax(defaultGeometry(available, 0).width(), Fixture::window()->minimumSizeHint().width()));
        QVERIFY(available.intersects(Fixture::window()->geometry()));
    }

    /// How many of the next ticks refresh the General page, which must be shown.
    int generalRefreshesOf(int ticks)
    {
        fixture->refresh(0);
        standin::resetCalls();
        for (int i = 0; i < ticks; ++i) {
            fixture->updater().update();
        }
        return static_cast<int>(standin::calls().memory);
    }
};

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
