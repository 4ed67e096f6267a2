// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/proxyfsmodel.h"

#include "../support/rows.h"
#include "mounts.h"

#include <QHeaderView>
#include <QtTest>

#include <memory>

namespace {

using Tester = QAbstractItemModelTester;

/// The page's view, set up like the window's, on a proxy.
struct Page
{
    Page()
    {
        view.setRootIsDecorated(false);
        view.setSortingEnabled(true);
        proxy.setView(&view);
    }

    QTreeView view; ///< outlives the proxy, as a child of the window may
    ProxyFsModel proxy;
};

/// Whether the rows of proxy and source map to each other one to one.
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
    void setViewConnectsModelProxyAndView()
    {
        QTreeView view;
        ProxyFsModel proxy;
        QVERIFY(!proxy.sourceModel());
        proxy.setView(&view);
        QVERIFY(qobject_cast<FSModel *>(proxy.sourceModel()));
        QVERIFY(view.model() == &proxy);
        QCOMPARE(proxy.sortRole(), int{Qt::DisplayRole});
    }

    void theFirstUpdateFitsColumnsAndSortsByMountPoint()
    {
        Page page;
        std::list<FSInfo> list = mounts("cab");
        list.front().mountDir = QLatin1Char('/') + QString(100, QLatin1Char('c'));
        page.view.header()->resizeSection(1, 700);
        page.view.header()->setStretchLastSection(false);
        page.proxy.update(list);
        QCOMPARE(shownDirs(page.proxy), QString("/a /b ") + list.front().mountDir);
        QVERIFY(page.view.columnWidth(0) > page.view.fontMetrics().horizontalAdvance(list.front().mountDir));
        QVERIFY(page.view.columnWidth(1) < 700);
        QCOMPARE(page.view.header()->sortIndicatorSection(), 0);
        QCOMPARE(page.view.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    void laterUpdatesLeaveWidthsAndOrderToTheUser()
    {
        Page page;
        page.view.header()->setStretchLastSection(false);
        page.proxy.update(mounts("cab"));
        page.view.setColumnWidth(0, 41);
        page.view.setColumnWidth(1, 43);
        page.view.sortByColumn(0, Qt::DescendingOrder);
        page.proxy.update(mounts("cabd"));
        QCOMPARE(shownDirs(page.proxy), QString("/d /c /b /a"));
        QCOMPARE(page.view.columnWidth(0), 41);
        QCOMPARE(page.view.columnWidth(1), 43);
        QCOMPARE(page.view.header()->sortIndicatorOrder(), Qt::DescendingOrder);
    }

    void sortingComparesTheTexts()
    {
        Page page;
        page.proxy.update({mount("/dev/1", "/m10"), mount("/dev/2", "/m9"), mount("/dev/3", "/M9")});
        QCOMPARE(shownDirs(page.proxy), QString("/M9 /m10 /m9"));
    }

    void updatesNeedNoViewAndSurviveIt()
    {
        ProxyFsModel proxy;
        proxy.update(mounts("ba"));
        {
            QTreeView view;
            view.setSortingEnabled(true);
            proxy.setView(&view);
            proxy.update(mounts("ba")); // sorts, as the first update with a view
            QCOMPARE(shownDirs(proxy), QString("/a /b"));
            QCOMPARE(view.header()->sortIndicatorOrder(), Qt::AscendingOrder);
        }
        proxy.update(mounts("bac"));
        QCOMPARE(proxy.rowCount(), 3);

        ProxyFsModel leftAtOnce;
        leftAtOnce.setView(std::make_unique<QTreeView>().get());
        leftAtOnce.update(mounts("ab"));
        QCOMPARE(leftAtOnce.rowCount(), 2);
    }

    void itForwardsToTheModel()
    {
        Page page;
        QVERIFY(!page.proxy.firstIndex().isValid());
        page.proxy.update(mounts("ba"));
        for (int column = 0; column < 2; ++column) {
            QCOMPARE(page.proxy.data(page.proxy.index(0, column), Qt::UserRole).toString(),
                     QStringLiteral("/a"));
        }
        QVERIFY(!page.proxy.data(QModelIndex(), Qt::UserRole).isValid());
        QCOMPARE(page.proxy.itemByMountDir(QStringLiteral("/a")).device, QStringLiteral("/dev/a"));
        QVERIFY(page.proxy.itemByMountDir(QStringLiteral("/c")).device.isEmpty());
        QCOMPARE(page.proxy.availableDevSpace(), qint64{2 * 300 * 4096});
        QCOMPARE(page.proxy.totalDevSpace(), qint64{2 * 1000 * 4096});
        QVERIFY(page.proxy.firstIndex().model() == page.proxy.sourceModel());
        QCOMPARE(page.proxy.firstIndex().data().toString(), QStringLiteral("/b"));
    }

    void ordinaryRefreshesKeepTheModelProtocol()
    {
        Page page;
        const Tester tester(&page.proxy, Tester::FailureReportingMode::QtTest);
        for (const char *refresh : {"cab", "cab", "bac", "ac", "acx", "x", "", "", "abc"}) {
            page.proxy.update(mounts(refresh));
            QVERIFY(mapsEachRowOnce(page.proxy));
        }
        QCOMPARE(shownDirs(page.proxy), QString("/a /b /c"));
    }

    void theSelectionFollowsItsMount()
    {
        Page page;
        page.proxy.update(mounts("abc"));
        page.view.setCurrentIndex(page.proxy.index(1, 0));
        page.proxy.update(mounts("bc"));
        page.proxy.update(mounts("cbda"));
        QCOMPARE(page.view.currentIndex().data().toString(), QStringLiteral("/b"));
    }

    void oddRemovalsLeaveTheProxyConsistent()
    {
        Page page;
        page.view.show();
        std::mt19937 random(20260102); // a fixed seed: the same refreshes in every run
        std::uniform_int_distribution<int> row(0, 19);
        for (int refresh = 0; refresh < 300; ++refresh) {
            if (refresh % 7 == 0) {
                page.view.sortByColumn(refresh % 2,
                                       refresh % 3 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            }
            page.proxy.update(randomMounts(random, 20, 25));
            QVERIFY(mapsEachRowOnce(page.proxy));
            page.view.setCurrentIndex(page.proxy.index(row(random), 0));
            QCoreApplication::processEvents();
        }
    }

    void manyMountsAreShown_data() { addNumberRows("count", {500, 10000}); }

    void manyMountsAreShown()
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

    void aParentDeletesProxyAndModelOnce()
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

    void noSignalsSlotsOrPropertiesOfItsOwn()
    {
        const QMetaObject &meta = ProxyFsModel::staticMetaObject;
        QCOMPARE(meta.className(), "ProxyFsModel");
        QCOMPARE(meta.methodCount(), QSortFilterProxyModel::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QSortFilterProxyModel::staticMetaObject.propertyCount());
    }
};

QTEST_MAIN(TestProxyFsModel)
#include "test_proxyfsmodel.moc"
