// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/proxyfsmodel.h"

#include "mounts.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>

#include <random>

namespace {

using Tester = QAbstractItemModelTester;

/// The page's view, set up as the window sets it up, on a proxy.
struct Page
{
    explicit Page(QObject *parent = nullptr) : proxy(parent)
    {
        view.setRootIsDecorated(false);
        view.setSortingEnabled(true);
        proxy.setView(&view);
    }

    QTreeView view; // outlives the proxy, as a child of the window may
    ProxyFsModel proxy;
};

QStringList dirs(const char *letters)
{
    QStringList list;
    for (const FSInfo &info : mounts(letters)) {
        list << info.mountDir;
    }
    return list;
}

/// Whether every row of the proxy stands for a source row of its own, and all of them are there.
bool mapsEachRowOnce(const ProxyFsModel &proxy)
{
    QSet<int> sourceRows;
    for (int row = 0; row < proxy.rowCount(); ++row) {
        const QModelIndex source = proxy.mapToSource(proxy.index(row, 0));
        if (!source.isValid() || proxy.mapFromSource(source) != proxy.index(row, 0)) {
            return false;
        }
        sourceRows.insert(source.row());
    }
    return sourceRows.size() == proxy.rowCount() && proxy.rowCount() == proxy.sourceModel()->rowCount();
}

} // namespace

class TestProxyFsModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setViewConnectsModelProxyAndView();
    void theFirstUpdateFitsTheColumnsAndSortsByMountPoint();
    void laterUpdatesLeaveWidthsAndOrderToTheUser();
    void sortingComparesTheTexts();
    void anUpdateBeforeTheViewLeavesTheFirstFitToTheView();
    void anUpdateAfterTheViewIsGoneStillUpdates();
    void itGivesTheModelsAnswers();
    void theMountPointIsFoundThroughTheProxy();
    void ordinaryRefreshesKeepTheProtocolTowardsTheView();
    void selectionStaysOnTheMountThatStays();
    void oddRemovalsLeaveTheProxyConsistent();
    void manyMountsAreShown_data();
    void manyMountsAreShown();
    void aParentDeletesProxyAndModelOnce();
    void noSignalsSlotsOrPropertiesOfItsOwn();
};

void TestProxyFsModel::setViewConnectsModelProxyAndView()
{
    QTreeView view;
    ProxyFsModel proxy;
    QVERIFY(!proxy.sourceModel());
    proxy.setView(&view);
    QVERIFY(qobject_cast<FSModel *>(proxy.sourceModel()));
    QVERIFY(view.model() == &proxy);
    QCOMPARE(proxy.sortRole(), int{Qt::DisplayRole});
}

void TestProxyFsModel::theFirstUpdateFitsTheColumnsAndSortsByMountPoint()
{
    Page page;
    std::list<FSInfo> list = mounts("cab");
    list.front().mountDir = QLatin1Char('/') + QString(100, QLatin1Char('c'));
    page.view.header()->resizeSection(1, 700);
    page.view.header()->setStretchLastSection(false);
    page.proxy.update(list);
    QCOMPARE(columnTexts(page.proxy).mid(0, 2), dirs("ab"));
    QVERIFY(page.view.columnWidth(0) > page.view.fontMetrics().horizontalAdvance(list.front().mountDir));
    QVERIFY(page.view.columnWidth(1) < 700);
    QCOMPARE(page.view.header()->sortIndicatorSection(), 0);
    QCOMPARE(page.view.header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void TestProxyFsModel::laterUpdatesLeaveWidthsAndOrderToTheUser()
{
    Page page;
    page.view.header()->setStretchLastSection(false);
    page.proxy.update(mounts("cab"));
    page.view.setColumnWidth(0, 41);
    page.view.setColumnWidth(1, 43);
    page.view.sortByColumn(0, Qt::DescendingOrder);
    page.proxy.update(mounts("cabd"));
    QCOMPARE(columnTexts(page.proxy), dirs("dcba"));
    QCOMPARE(page.view.columnWidth(0), 41);
    QCOMPARE(page.view.columnWidth(1), 43);
    QCOMPARE(page.view.header()->sortIndicatorOrder(), Qt::DescendingOrder);
}

void TestProxyFsModel::sortingComparesTheTexts()
{
    Page page;
    page.proxy.update({mount(QStringLiteral("/dev/1"), QStringLiteral("/m10")),
                       mount(QStringLiteral("/dev/2"), QStringLiteral("/m9")),
                       mount(QStringLiteral("/dev/3"), QStringLiteral("/M9"))});
    const QStringList expected = {QStringLiteral("/M9"), QStringLiteral("/m10"), QStringLiteral("/m9")};
    QCOMPARE(columnTexts(page.proxy), expected);
}

void TestProxyFsModel::anUpdateBeforeTheViewLeavesTheFirstFitToTheView()
{
    QTreeView view;
    view.setSortingEnabled(true);
    ProxyFsModel proxy;
    proxy.update(mounts("ba"));
    proxy.setView(&view);
    proxy.update(mounts("ba"));
    QCOMPARE(columnTexts(proxy), dirs("ab"));
    QCOMPARE(view.header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void TestProxyFsModel::anUpdateAfterTheViewIsGoneStillUpdates()
{
    ProxyFsModel proxy;
    {
        QTreeView view;
        proxy.setView(&view);
    }
    proxy.update(mounts("ab"));
    QCOMPARE(proxy.rowCount(), 2);
}

void TestProxyFsModel::itGivesTheModelsAnswers()
{
    Page page;
    QVERIFY(!page.proxy.firstIndex().isValid());
    page.proxy.update(mounts("ba"));
    QCOMPARE(page.proxy.itemByMountDir(QStringLiteral("/a")).device, QStringLiteral("/dev/a"));
    QVERIFY(page.proxy.itemByMountDir(QStringLiteral("/c")).device.isEmpty());
    QCOMPARE(page.proxy.availableDevSpace(), qint64{2 * 300 * 4096});
    QCOMPARE(page.proxy.totalDevSpace(), qint64{2 * 1000 * 4096});
    QVERIFY(page.proxy.firstIndex().model() == page.proxy.sourceModel());
    QCOMPARE(page.proxy.firstIndex().data().toString(), QStringLiteral("/b"));
}

void TestProxyFsModel::theMountPointIsFoundThroughTheProxy()
{
    Page page;
    page.proxy.update(mounts("ba"));
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(page.proxy.data(page.proxy.index(0, column), Qt::UserRole).toString(), QStringLiteral("/a"));
    }
    QVERIFY(!page.proxy.data(QModelIndex(), Qt::UserRole).isValid());
}

void TestProxyFsModel::ordinaryRefreshesKeepTheProtocolTowardsTheView()
{
    Page page;
    const Tester tester(&page.proxy, Tester::FailureReportingMode::QtTest);
    for (const char *refresh : {"cab", "cab", "bac", "ac", "acx", "x", "", "", "abc"}) {
        page.proxy.update(mounts(refresh));
        QVERIFY(mapsEachRowOnce(page.proxy));
    }
    QCOMPARE(columnTexts(page.proxy), dirs("abc"));
}

void TestProxyFsModel::selectionStaysOnTheMountThatStays()
{
    Page page;
    page.proxy.update(mounts("abc"));
    page.view.setCurrentIndex(page.proxy.index(1, 0));
    page.proxy.update(mounts("bc"));
    page.proxy.update(mounts("cbda"));
    QCOMPARE(page.view.currentIndex().data().toString(), QStringLiteral("/b"));
}

void TestProxyFsModel::oddRemovalsLeaveTheProxyConsistent()
{
    Page page;
    page.view.show();
    std::mt19937 random(20260102); // a fixed seed: every run sees the same refreshes
    std::uniform_int_distribution<int> name(0, 19);
    std::uniform_int_distribution<int> length(0, 25);
    for (int refresh = 0; refresh < 300; ++refresh) {
        std::list<FSInfo> list;
        for (int left = length(random); left > 0; --left) {
            list.push_back(
                mount(QStringLiteral("/dev/%1").arg(name(random)), QStringLiteral("/%1").arg(name(random))));
        }
        if (refresh % 7 == 0) {
            page.view.sortByColumn(refresh % 2, refresh % 3 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
        }
        page.proxy.update(list);
        QVERIFY(mapsEachRowOnce(page.proxy));
        page.view.setCurrentIndex(page.proxy.index(name(random), 0));
        QCoreApplication::processEvents();
    }
}

void TestProxyFsModel::manyMountsAreShown_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("500") << 500;
    QTest::newRow("10000") << 10000;
}

void TestProxyFsModel::manyMountsAreShown()
{
    QFETCH(int, count);
    Page page;
    page.view.show();
    const std::list<FSInfo> list = manyMounts(count);
    page.proxy.update(list);
    page.proxy.update(list);
    QCOMPARE(page.proxy.rowCount(), count);
    QCOMPARE(page.proxy.index(0, 0).data().toString(), QStringLiteral("/mnt/0"));
    QCOMPARE(page.proxy.index(2, 0).data().toString(), QStringLiteral("/mnt/10"));
    std::list<FSInfo> allButTheFirst = list;
    allButTheFirst.pop_front();
    page.proxy.update(allButTheFirst);
    QVERIFY(mapsEachRowOnce(page.proxy));
    QCOMPARE(page.proxy.index(0, 0).data().toString(), QStringLiteral("/mnt/1"));
}

void TestProxyFsModel::aParentDeletesProxyAndModelOnce()
{
    auto *parent = new QObject;
    auto *proxy = new ProxyFsModel(parent);
    QTreeView view;
    proxy->setView(&view);
    proxy->update(mounts("ab"));
    QCOMPARE(parent->children(), (QObjectList{proxy, proxy->sourceModel()}));
    const QSignalSpy proxyGone(proxy, SIGNAL(destroyed()));
    const QSignalSpy modelGone(proxy->sourceModel(), SIGNAL(destroyed()));
    delete parent;
    QCOMPARE(proxyGone.count(), 1);
    QCOMPARE(modelGone.count(), 1);
    QVERIFY(view.model() != proxy);
}

void TestProxyFsModel::noSignalsSlotsOrPropertiesOfItsOwn()
{
    const QMetaObject &meta = ProxyFsModel::staticMetaObject;
    QCOMPARE(meta.className(), "ProxyFsModel");
    QCOMPARE(meta.methodCount(), QSortFilterProxyModel::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QSortFilterProxyModel::staticMetaObject.propertyCount());
}

QTEST_MAIN(TestProxyFsModel)
#include "test_proxyfsmodel.moc"
