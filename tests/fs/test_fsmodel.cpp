// SPDX-License-Identifier: GPL-3.0-or-later
#include "mounts.h"

#include <QCoreApplication>
#include <QTranslator>
#include <QtTest>

#include <limits>

namespace {

/// Lets a test make indexes that no view gets.
class OpenModel : public FSModel
{
public:
    using FSModel::createIndex;
};

class FSModelTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "FSModel") == 0 ? QLatin1Char('<') + QLatin1String(source) + QLatin1Char('>')
                                                : QString();
    }
};

const qint32 lowest = std::numeric_limits<qint32>::min();

} // namespace

class TestFSModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anItemHasSevenCells();
    void anItemThatIsSetAnewKeepsNothing();
    void wrappedCountsMakeHugeSizeTexts_data();
    void wrappedCountsMakeHugeSizeTexts();
    void aNewModelIsEmpty();
    void rowsHaveNoRowsBelowThem();
    void twoColumnsAreShown();
    void displayRoleGivesTheCellOfAnyColumn();
    void userRoleGivesTheMountPointInEveryColumn();
    void otherRolesGiveNothing();
    void indexesThatPointNowhereGiveNothing();
    void headersNameAllSevenColumns();
    void headersBesideTheSevenGiveNothing();
    void headersAreTranslatedInTheContextOfTheModel();
    void itemsAreFoundByMountPoint();
    void theFirstOfTwoRowsOnOneMountPointIsFound();
    void spaceIsSummedOverDeviceFilesOnly();
    void spaceOfWrappedCountsIsSignExtended();
    void sumsThatLeave64BitsWrap();
    void firstIndexNamesTheFirstRow();
    void noSignalsSlotsOrPropertiesOfItsOwn();
};

void TestFSModel::anItemHasSevenCells()
{
    const FSItem item(mount(QStringLiteral("/dev/sda1"), QStringLiteral("/home")));
    const QList<QVariant> expected = {
        QStringLiteral("/home"),
        QStringLiteral("ext4"),
        QStringLiteral("/dev/sda1"),
        QStringLiteral("3.91 MB"),
        QStringLiteral("1.56 MB"),
        QStringLiteral("1.17 MB"),
        50,
    };
    QCOMPARE(item.cells, expected);
    QCOMPARE(item.cells.at(6).type(), QVariant::Int);
    QCOMPARE(item.item.device, QStringLiteral("/dev/sda1"));
    QCOMPARE(item.item.availBlocks, 300);
}

void TestFSModel::anItemThatIsSetAnewKeepsNothing()
{
    FSItem item(mount(QStringLiteral("/dev/sda1"), QStringLiteral("/home")));
    item.setItem(mount(QStringLiteral("/dev/sdb1"), QStringLiteral("/srv")));
    QCOMPARE(item.cells.size(), 7);
    QCOMPARE(item.cells.at(0).toString(), QStringLiteral("/srv"));
    QCOMPARE(item.cells.at(2).toString(), QStringLiteral("/dev/sdb1"));
    QCOMPARE(item.item.mountDir, QStringLiteral("/srv"));
}

void TestFSModel::wrappedCountsMakeHugeSizeTexts_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("blockSize");
    QTest::addColumn<QString>("text");
    QTest::newRow("-1 of 1 byte") << -1 << 1 << "17179869184.00 GB";
    QTest::newRow("-2^31 of 4096 bytes") << int{lowest} << 4096 << "17179860992.00 GB";
    QTest::newRow("-1 of -1 byte") << -1 << -1 << "1.00 B";
    QTest::newRow("-2^31 of -2^31 bytes") << int{lowest} << int{lowest} << "4294967296.00 GB";
    QTest::newRow("none") << 0 << 4096 << "0.00 B";
}

void TestFSModel::wrappedCountsMakeHugeSizeTexts()
{
    QFETCH(int, count);
    QFETCH(int, blockSize);
    QFETCH(QString, text);
    FSInfo info;
    info.blocks = info.freeBlocks = info.availBlocks = count;
    info.blockSize = blockSize;
    const FSItem item(info);
    for (int column = 3; column <= 5; ++column) {
        QCOMPARE(item.cells.at(column).toString(), text);
    }
}

void TestFSModel::aNewModelIsEmpty()
{
    const FSModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.availableDevSpace(), qint64{0});
    QCOMPARE(model.totalDevSpace(), qint64{0});
    QVERIFY(!model.firstIndex().isValid());
}

void TestFSModel::rowsHaveNoRowsBelowThem()
{
    FSModel model;
    model.update(mounts("ab"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
}

void TestFSModel::twoColumnsAreShown()
{
    FSModel model;
    model.update(mounts("a"));
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.columnCount(model.index(0, 0)), 2);
    QVERIFY(!model.index(0, 2).isValid());
}

void TestFSModel::displayRoleGivesTheCellOfAnyColumn()
{
    OpenModel model;
    model.update(mounts("a"));
    const FSItem item(mounts("a").front());
    for (int column = 0; column < 7; ++column) {
        QCOMPARE(model.data(model.createIndex(0, column), Qt::DisplayRole), item.cells.at(column));
    }
    QCOMPARE(model.data(model.createIndex(0, 5), Qt::DisplayRole).toString(), QStringLiteral("1.17 MB"));
    QVERIFY(!model.data(model.createIndex(0, 7), Qt::DisplayRole).isValid());
}

void TestFSModel::userRoleGivesTheMountPointInEveryColumn()
{
    OpenModel model;
    model.update(mounts("ab"));
    for (int column = 0; column < 8; ++column) {
        QCOMPARE(model.data(model.createIndex(1, column), Qt::UserRole), QVariant(QStringLiteral("/b")));
    }
}

void TestFSModel::otherRolesGiveNothing()
{
    FSModel model;
    model.update(mounts("a"));
    for (const int role :
         {int{Qt::EditRole}, int{Qt::ToolTipRole}, int{Qt::FontRole}, Qt::UserRole + 1, -1}) {
        QVERIFY(!model.data(model.index(0, 0), role).isValid());
    }
    QVERIFY(!model.data(model.index(0, 1), Qt::DecorationRole).isValid());
}

void TestFSModel::indexesThatPointNowhereGiveNothing()
{
    OpenModel model;
    model.update(mounts("a"));
    for (const int role : {int{Qt::DisplayRole}, int{Qt::DecorationRole}, int{Qt::UserRole}}) {
        QVERIFY(!model.data(QModelIndex(), role).isValid());
        QVERIFY(!model.data(model.createIndex(-1, 0), role).isValid());
        QVERIFY(!model.data(model.createIndex(0, -1), role).isValid());
        QVERIFY(!model.data(model.createIndex(1, 0), role).isValid());
    }
}

void TestFSModel::headersNameAllSevenColumns()
{
    const FSModel model;
    const char *const titles[] = {"Mountpoint",      "Type", "Device", "Total space", "Free space",
                                  "Available space", "Files"};
    for (int section = 0; section < 7; ++section) {
        QCOMPARE(model.headerData(section, Qt::Horizontal).toString(), QLatin1String(titles[section]));
    }
}

void TestFSModel::headersBesideTheSevenGiveNothing()
{
    const FSModel model;
    for (const int section : {-1, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QVERIFY(!model.headerData(section, Qt::Horizontal).isValid());
    }
    for (int section = 0; section < 7; ++section) {
        QVERIFY(!model.headerData(section, Qt::Vertical).isValid());
        QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::ToolTipRole).isValid());
        QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::DecorationRole).isValid());
    }
}

void TestFSModel::headersAreTranslatedInTheContextOfTheModel()
{
    FSModelTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(FSModel().headerData(5, Qt::Horizontal).toString(), QStringLiteral("<Available space>"));
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

void TestFSModel::itemsAreFoundByMountPoint()
{
    FSModel model;
    model.update(mounts("abc"));
    QCOMPARE(model.itemByMountDir(QStringLiteral("/b")).device, QStringLiteral("/dev/b"));
    for (const char *unknown : {"/B", "/", "", "/dev/b"}) {
        const FSInfo none = model.itemByMountDir(QLatin1String(unknown));
        QVERIFY(none.device.isEmpty() && none.mountDir.isEmpty() && none.type.isEmpty());
        QCOMPARE(none.blocks, 0);
        QCOMPARE(none.blockSize, 0);
    }
}

void TestFSModel::theFirstOfTwoRowsOnOneMountPointIsFound()
{
    FSModel model;
    model.update({mount(QStringLiteral("/dev/under"), QStringLiteral("/mnt")),
                  mount(QStringLiteral("/dev/over"), QStringLiteral("/mnt"))});
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.itemByMountDir(QStringLiteral("/mnt")).device, QStringLiteral("/dev/under"));
}

void TestFSModel::spaceIsSummedOverDeviceFilesOnly()
{
    FSModel model;
    model.update({mount(QStringLiteral("/dev/sda1"), QStringLiteral("/")),
                  mount(QStringLiteral("/devices/x"), QStringLiteral("/x")),
                  mount(QStringLiteral("/DEV/sda2"), QStringLiteral("/y")),
                  mount(QStringLiteral("dev"), QStringLiteral("/z")),
                  mount(QStringLiteral("/de"), QStringLiteral("/v")),
                  mount(QStringLiteral("server:/dev"), QStringLiteral("/w"))});
    QCOMPARE(model.availableDevSpace(), qint64{2 * 300 * 4096});
    QCOMPARE(model.totalDevSpace(), qint64{2 * 1000 * 4096});
}

void TestFSModel::spaceOfWrappedCountsIsSignExtended()
{
    FSInfo info = mount(QStringLiteral("/dev/sda1"), QStringLiteral("/"));
    info.blocks = lowest;
    info.availBlocks = -1;
    FSModel model;
    model.update({info});
    QCOMPARE(model.totalDevSpace(), qint64{lowest} * 4096);
    QCOMPARE(model.availableDevSpace(), qint64{-4096});
}

void TestFSModel::sumsThatLeave64BitsWrap()
{
    std::list<FSInfo> list = mounts("abc");
    for (FSInfo &info : list) {
        info.blocks = info.blockSize = lowest; // 2^62 bytes each
    }
    FSModel model;
    model.update(list);
    QCOMPARE(model.totalDevSpace(), std::numeric_limits<qint64>::min() + (qint64{1} << 62));
}

void TestFSModel::firstIndexNamesTheFirstRow()
{
    FSModel model;
    model.update(mounts("ab"));
    const QModelIndex first = model.firstIndex();
    QCOMPARE(first.row(), 0);
    QCOMPARE(first.column(), 0);
    QVERIFY(first.internalPointer() != nullptr);
    QVERIFY(first.model() == &model);
    QCOMPARE(first.data().toString(), QStringLiteral("/a"));
}

void TestFSModel::noSignalsSlotsOrPropertiesOfItsOwn()
{
    const QMetaObject &meta = FSModel::staticMetaObject;
    QCOMPARE(meta.className(), "FSModel");
    QCOMPARE(meta.methodCount(), QAbstractTableModel::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QAbstractTableModel::staticMetaObject.propertyCount());
}

QTEST_MAIN(TestFSModel)
#include "test_fsmodel.moc"
