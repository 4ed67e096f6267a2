// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "mounts.h"

#include "../support/brackettranslator.h"

#include <QtTest>

#include <limits>

namespace {

/// Makes indexes that no view gets.
class OpenModel : public FSModel
{
public:
    using FSModel::createIndex;
};

const qint32 lowest = std::numeric_limits<qint32>::min();

} // namespace

class TestFSModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anItemHasSevenCells()
    {
        FSItem item(mount("/dev/sda1", "/home"));
        QCOMPARE(item.cells,
                 (QList<QVariant>{"/home", "ext4", "/dev/sda1", "3.91 MB", "1.56 MB", "1.17 MB", 50}));
        QCOMPARE(item.cells.at(6).type(), QVariant::Int);
        QCOMPARE(item.item.device, QString("/dev/sda1"));
        QCOMPARE(item.item.availBlocks, 300);

        item.setItem(mount("/dev/sdb1", "/srv", "xfs"));
        QCOMPARE(item.cells,
                 (QList<QVariant>{"/srv", "xfs", "/dev/sdb1", "3.91 MB", "1.56 MB", "1.17 MB", 50}));
        QCOMPARE(item.item.mountDir, QString("/srv"));
    }

    void namesAreShownAsHarmlessLinesButRemainKeys()
    {
        const QString dir = QStringLiteral("/a\nb\u202e");
        const FSItem item(mount(QStringLiteral("/dev/\u200bx"), dir, QStringLiteral("fuse.\ty")));
        QCOMPARE(item.cells.mid(0, 3), (QVariantList{"/a b\ufffd", "fuse. y", "/dev/\ufffdx"}));
        FSModel model;
        model.update({item.item});
        QCOMPARE(model.index(0, 0).data(Qt::UserRole).toString(), dir);
        QCOMPARE(model.itemByMountDir(dir).device, item.item.device);
    }

    void wrappedCountsMakeHugeSizeTexts_data()
    {
        const Rows<int, int, QString> row("count", "blockSize", "text");
        row("-1 of 1 byte", -1, 1, "17179869184.00 GB");
        row("-2^31 of 4096 bytes", int{lowest}, 4096, "17179860992.00 GB");
        row("-1 of -1 byte", -1, -1, "1.00 B");
        row("-2^31 of -2^31 bytes", int{lowest}, int{lowest}, "4294967296.00 GB");
        row("none", 0, 4096, "0.00 B");
    }

    void wrappedCountsMakeHugeSizeTexts()
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

    void aNewModelIsEmptyAndRowsHaveTwoColumnsAndNoChildren()
    {
        FSModel model;
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.columnCount(), 2);
        QCOMPARE(model.availableDevSpace(), qint64{0});
        QCOMPARE(model.totalDevSpace(), qint64{0});
        QVERIFY(!model.firstIndex().isValid());
        model.update(mounts("ab"));
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
        QCOMPARE(model.columnCount(), 2);
        QCOMPARE(model.columnCount(model.index(0, 0)), 2);
        QVERIFY(!model.index(0, 2).isValid());
        const QModelIndex first = model.firstIndex();
        QCOMPARE(first.row(), 0);
        QCOMPARE(first.column(), 0);
        QVERIFY(first.internalPointer());
        QVERIFY(first.model() == &model);
        QCOMPARE(first.data().toString(), QStringLiteral("/a"));
    }

    void dataGivesCellTextsAndTheMountPoint_data()
    {
        const Rows<int, int, int, QVariant> row("row", "column", "role", "data");
        const QVariantList cells = {"/b", "ext4", "/dev/b", "3.91 MB", "1.56 MB", "1.17 MB", 50, QVariant()};
        for (int column = 0; column < 8; ++column) {
            QTest::addRow("text of column %d", column)
                << 1 << column << int{Qt::DisplayRole} << cells.at(column);
            QTest::addRow("mount point of column %d", column)
                << 1 << column << int{Qt::UserRole} << QVariant("/b");
        }
        for (int role : {int{Qt::EditRole}, int{Qt::ToolTipRole}, int{Qt::FontRole}, Qt::UserRole + 1, -1}) {
            QTest::addRow("role %d", role) << 1 << 0 << role << QVariant();
        }
        row("icon of column 1", 1, 1, int{Qt::DecorationRole}, QVariant());
        for (int role : {int{Qt::DisplayRole}, int{Qt::DecorationRole}, int{Qt::UserRole}}) {
            QTest::addRow("invalid index, role %d", role) << -1 << -1 << role << QVariant();
            QTest::addRow("negative row, role %d", role) << -1 << 0 << role << QVariant();
            QTest::addRow("negative column, role %d", role) << 0 << -1 << role << QVariant();
            QTest::addRow("row out of range, role %d", role) << 2 << 0 << role << QVariant();
        }
    }

    void dataGivesCellTextsAndTheMountPoint()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(int, role);
        OpenModel model;
        model.update(mounts("ab"));
        QTEST(model.data(model.createIndex(row, column), role), "data");
    }

    void headersNameAllSevenColumns()
    {
        const FSModel model;
        const auto titles = [&model] {
            QStringList list;
            for (int section = 0; section < 7; ++section) {
                list << model.headerData(section, Qt::Horizontal).toString();
            }
            return list.join(", ");
        };
        QCOMPARE(titles(),
                 QString("Mountpoint, Type, Device, Total space, Free space, Available space, Files"));
        const BracketTranslator translator("FSModel");
        QCOMPARE(titles(), QString("<Mountpoint>, <Type>, <Device>, <Total space>, <Free space>, "
                                   "<Available space>, <Files>"));

        for (const int section : {-1, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
            QVERIFY(!model.headerData(section, Qt::Horizontal).isValid());
        }
        for (int section = 0; section < 7; ++section) {
            QVERIFY(!model.headerData(section, Qt::Vertical).isValid());
            QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::ToolTipRole).isValid());
            QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::DecorationRole).isValid());
        }
    }

    void itemsAreFoundByMountPointTheFirstOfTwo()
    {
        FSModel model;
        model.update(mounts("abu>mo>m"));
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.itemByMountDir(QStringLiteral("/b")).device, QStringLiteral("/dev/b"));
        QCOMPARE(model.itemByMountDir(QStringLiteral("/m")).device, QStringLiteral("/dev/u"));
        for (const char *unknown : {"/B", "/", "", "/dev/b"}) {
            const FSInfo none = model.itemByMountDir(QLatin1String(unknown));
            QCOMPARE(namesOf(none), QString(", , "));
            QCOMPARE(countsOf(none), QVector<qint32>(5, 0));
        }
    }

    void spaceIsSummedOverDevicesOnly()
    {
        FSModel model;
        model.update({mount("/dev/sda1", "/"), mount("/devices/x", "/x"), mount("/DEV/sda2", "/y"),
                      mount("dev", "/z"), mount("/de", "/v"), mount("server:/dev", "/w")});
        QCOMPARE(model.availableDevSpace(), qint64{2 * 300 * 4096});
        QCOMPARE(model.totalDevSpace(), qint64{2 * 1000 * 4096});
    }

    void spaceOfWrappedCountsIsSignExtendedAndWraps()
    {
        FSModel model;
        std::list<FSInfo> list = mounts("abc");
        list.front().blocks = lowest;
        list.front().availBlocks = -1;
        model.update({list.front()});
        QCOMPARE(model.totalDevSpace(), qint64{lowest} * 4096);
        QCOMPARE(model.availableDevSpace(), qint64{-4096});

        for (FSInfo &info : list) {
            info.blocks = info.blockSize = lowest; // 2^62 bytes each, which overflows 64 bits
        }
        model.update(list);
        QCOMPARE(model.totalDevSpace(), std::numeric_limits<qint64>::min() + (qint64{1} << 62));
    }

    void noSignalsSlotsOrPropertiesOfItsOwn()
    {
        const QMetaObject &meta = FSModel::staticMetaObject;
        QCOMPARE(meta.className(), "FSModel");
        QCOMPARE(meta.methodCount(), QAbstractTableModel::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QAbstractTableModel::staticMetaObject.propertyCount());
    }
};

QTEST_MAIN(TestFSModel)
#include "test_fsmodel.moc"
