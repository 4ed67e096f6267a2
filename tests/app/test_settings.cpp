// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "app/defaultgeometry.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QtTest>
#include <QtWidgets>

#include <unistd.h>

// What is kept from one run to the next, in the real settings file.
class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFirstStartHasTheDefaults();
    void theDefaultGeometryFitsSmallScreens_data();
    void theDefaultGeometryFitsSmallScreens();
    void everyKeyIsWritten();
    void aChosenGeneralIntervalLasts_data();
    void aChosenGeneralIntervalLasts();
    void theNetworkIntervalIsWrittenUnderAnotherKeyThanItIsRead();
    void aHiddenColumnStaysHidden();
    void aShownColumnStaysShown();
    void theSortColumnAndOrderLast();
    void theSplitterLasts();
    void withoutAStoredSplitterItIsLeftAlone();
    void theWindowSizeLasts();
    void aBadFileGivesTheDefaultsAndNoMessage_data();
    void aBadFileGivesTheDefaultsAndNoMessage();
    void aFolderInPlaceOfTheFileIsSurvived();
    void wrongTypesAreSurvived();
    void intervalsThatAreNoNumbersAreTheDefault();
    void aSortColumnThatIsNotThereIsSurvived_data();
    void aSortColumnThatIsNotThereIsSurvived();
    void anIntervalOfZeroFromTheFileIsDueOnEveryTick();

private:
    static QVariant stored(const char *key) { return QSettings().value(QLatin1String(key)); }
    static void store(const char *key, const QVariant &value)
    {
        QSettings().setValue(QLatin1String(key), value);
    }
    static ProxyProcModel *processes()
    {
        return qobject_cast<ProxyProcModel *>(Fixture::find<QTreeView>("treeView")->model());
    }
    static void writeFile(const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(Fixture::settingsFile()).path());
        QFile file(Fixture::settingsFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void verifyDefaults();
    // How many of the next ticks refresh the shown General page.
    int generalRefreshesOf(int ticks)
    {
        QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 0));
        standin::resetCalls();
        for (int i = 0; i < ticks; ++i) {
            QMetaObject::invokeMethod(&fixture->updater(), "update");
        }
        return static_cast<int>(standin::calls().memory);
    }

    std::unique_ptr<Fixture> fixture;
};

void TestSettings::init()
{
    fixture = std::make_unique<Fixture>();
}

void TestSettings::cleanup()
{
    fixture.reset();
}

void TestSettings::verifyDefaults()
{
    QCOMPARE(generalRefreshesOf(12), 4);
    for (unsigned long i = 0; i < gtop_wrappers::ProcessFiller::instance()->size(); ++i) {
        QCOMPARE(processes()->isColumnVisible(i), i < 6 || i > 9);
    }
    QCOMPARE(processes()->sortColumn(), 0);
    QCOMPARE(processes()->sortOrder(), Qt::AscendingOrder);
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(Fixture::window()->width(),
             qMax(defaultGeometry(available).width(), Fixture::window()->minimumSizeHint().width()));
    QVERIFY(available.intersects(Fixture::window()->geometry()));
}

void TestSettings::aFirstStartHasTheDefaults()
{
    QVERIFY(!QFile::exists(Fixture::settingsFile()));
    fixture->start(0);
    verifyDefaults();
    // Larger only where the fonts of the platform need more.
    QCOMPARE(Fixture::window()->size(), QSize(640, 480).expandedTo(Fixture::window()->minimumSizeHint()));
    QCOMPARE(Fixture::window()->pos(), QPoint(0, 0));
}

void TestSettings::theDefaultGeometryFitsSmallScreens_data()
{
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("large") << QRect(0, 0, 1920, 1080) << QRect(0, 0, 640, 480);
    QTest::newRow("800 x 500") << QRect(0, 0, 800, 500) << QRect(0, 0, 640, 460);
    QTest::newRow("just fits") << QRect(0, 0, 660, 520) << QRect(0, 0, 640, 480);
    QTest::newRow("narrow") << QRect(0, 0, 659, 519) << QRect(0, 0, 639, 479);
    QTest::newRow("with a panel") << QRect(50, 30, 1230, 690) << QRect(0, 0, 640, 480);
}

void TestSettings::theDefaultGeometryFitsSmallScreens()
{
    QFETCH(QRect, available);
    QFETCH(QRect, expected);
    QCOMPARE(defaultGeometry(available), expected);
}

void TestSettings::everyKeyIsWritten()
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
    // One more: the geometry, under a key of the integration library's choosing.
    QCOMPARE(settings.allKeys().size(), expected.size() + 1);
}

void TestSettings::aChosenGeneralIntervalLasts_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("refreshes");
    QTest::newRow("1") << 1 << 20;
    QTest::newRow("4") << 4 << 5;
    QTest::newRow("5") << 5 << 4;
}

void TestSettings::aChosenGeneralIntervalLasts()
{
    QFETCH(int, interval);
    QFETCH(int, refreshes);
    store("interval/general", interval);
    fixture->start(0);
    QCOMPARE(generalRefreshesOf(20), refreshes);
    fixture->stop();
    QCOMPARE(stored("interval/general").toInt(), interval);
    QCOMPARE(stored("interval/procs").toInt(), 3);
}

void TestSettings::theNetworkIntervalIsWrittenUnderAnotherKeyThanItIsRead()
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

void TestSettings::aHiddenColumnStaysHidden()
{
    fixture->start(1);
    processes()->setColumnVisible(3, false);
    fixture->start(1);
    QVERIFY(!processes()->isColumnVisible(3));
    const auto *filler = gtop_wrappers::ProcessFiller::instance();
    QCOMPARE(QSettings().value(QStringLiteral("column/") + filler->name(3)),
             QVariant(QStringLiteral("false")));
}

void TestSettings::aShownColumnStaysShown()
{
    fixture->start(1);
    processes()->setColumnVisible(8, true);
    fixture->start(1);
    QVERIFY(processes()->isColumnVisible(8));
}

void TestSettings::theSortColumnAndOrderLast()
{
    fixture->start(1);
    Fixture::find<QTreeView>("treeView")->sortByColumn(2, Qt::DescendingOrder);
    fixture->start(1);
    QCOMPARE(processes()->sortColumn(), 2);
    QCOMPARE(processes()->sortOrder(), Qt::DescendingOrder);
    QCOMPARE(Fixture::find<QTreeView>("treeView")->header()->sortIndicatorSection(), 2);
    fixture->stop();
    QCOMPARE(stored("proc_sort_column").toInt(), 2);
    QCOMPARE(stored("proc_sort_order").toInt(), 1);
}

void TestSettings::theSplitterLasts()
{
    fixture->start(2);
    auto *splitter = Fixture::find<QSplitter>("splitter");
    splitter->setSizes({220, 400});
    const QByteArray state = splitter->saveState();
    fixture->stop();
    QCOMPARE(stored("fsSplitter").toByteArray(), state);
    fixture->start(2);
    QCOMPARE(Fixture::find<QSplitter>("splitter")->saveState(), state);
}

void TestSettings::withoutAStoredSplitterItIsLeftAlone()
{
    fixture->start(2);
    const QList<int> natural = Fixture::find<QSplitter>("splitter")->sizes();
    fixture->stop();
    QSettings().remove(QStringLiteral("fsSplitter"));
    fixture->start(2);
    QCOMPARE(Fixture::find<QSplitter>("splitter")->sizes(), natural);
}

void TestSettings::theWindowSizeLasts()
{
    fixture->start(0);
    const QSize size = Fixture::window()->minimumSizeHint().expandedTo(QSize(700, 520)) + QSize(11, 7);
    Fixture::window()->resize(size);
    fixture->start(0);
    QCOMPARE(Fixture::window()->size(), size);
}

void TestSettings::aBadFileGivesTheDefaultsAndNoMessage_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no settings") << QByteArray("<html>\nnot a settings file\n");
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("bytes") << QByteArray("\xff\xfe\x80[[[]]]==\n=\n\xc3(\n");
    QTest::newRow("cut in a byte array")
        << QByteArray("[General]\nfsSplitter=@ByteArray(\\0\\0\\0\\xff\\0\\0");
    QTest::newRow("cut in a key") << QByteArray("[General]\nproc_sort_col");
    QTest::newRow("one long line") << QByteArray(1 << 20, 'x');
    QTest::newRow("wrong byte arrays")
        << QByteArray("[General]\nfsSplitter=@ByteArray(abc)\ngeometry=@ByteArray(abc)\n");
    QTest::newRow("invalid variants")
        << QByteArray("[General]\nfsSplitter=@Invalid()\nproc_sort_column=@Invalid()\n");
}

void TestSettings::aBadFileGivesTheDefaultsAndNoMessage()
{
    QFETCH(QByteArray, content);
    writeFile(content);
    const int windows = QApplication::topLevelWidgets().size();
    fixture->start(0);
    verifyDefaults();
    QCOMPARE(QApplication::topLevelWidgets().size() - windows,
             1 + Fixture::window()->findChildren<QMenu *>().size());
    fixture->stop();
}

void TestSettings::aFolderInPlaceOfTheFileIsSurvived()
{
    QVERIFY(QDir().mkpath(Fixture::settingsFile()));
    fixture->start(0);
    verifyDefaults();
    fixture->stop();
    QVERIFY(QFileInfo(Fixture::settingsFile()).isDir());
}

void TestSettings::wrongTypesAreSurvived()
{
    const QVariantList values = {
        QStringLiteral("x"), QByteArray("\0\1\2", 3), QVariantList{1, 2}, QPoint(3, 4), QString(), -1, 1e300};
    for (const QVariant &value : values) {
        for (const char *key :
             {"interval/general", "interval/procs", "interval/fs", "interval/net", "column/Name",
              "column/CPU", "proc_sort_column", "proc_sort_order", "fsSplitter", "geometry"}) {
            store(key, value);
        }
        fixture->start(1);
        QMetaObject::invokeMethod(&fixture->updater(), "update");
        fixture->stop();
    }
}

void TestSettings::intervalsThatAreNoNumbersAreTheDefault()
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

void TestSettings::aSortColumnThatIsNotThereIsSurvived_data()
{
    QTest::addColumn<int>("column");
    for (int column :
         {-1, -2, -100, 9, 13, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QTest::newRow(QByteArray::number(column).constData()) << column;
    }
}

void TestSettings::aSortColumnThatIsNotThereIsSurvived()
{
    QFETCH(int, column);
    store("proc_sort_column", column);
    store("proc_sort_order", 7);
    fixture->start(1);
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    QCOMPARE(processes()->rowCount(), 4);
    fixture->stop();
}

void TestSettings::anIntervalOfZeroFromTheFileIsDueOnEveryTick()
{
    for (int interval : {0, -3}) {
        store("interval/general", interval);
        fixture->start(0);
        QCOMPARE(generalRefreshesOf(7), 7);
        fixture->stop();
        QCOMPARE(stored("interval/general").toInt(), interval);
    }
}

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
