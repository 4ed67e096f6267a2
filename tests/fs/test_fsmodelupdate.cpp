// SPDX-License-Identifier: GPL-3.0-or-later
#include "mounts.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <random>

namespace {

using Rows = QVector<int>;

/// Gives the devices, which are in a column that no view sees.
class OpenModel : public FSModel
{
public:
    QStringList devices() const
    {
        QStringList list;
        for (int row = 0; row < rowCount(); ++row) {
            list << createIndex(row, 2).data().toString();
        }
        return list;
    }
};

/// Records the announcements of a model.
class Watch
{
public:
    explicit Watch(const FSModel &model)
        : inserted(&model, SIGNAL(rowsAboutToBeInserted(QModelIndex, int, int))),
          removed(&model, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int))),
          changed(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>))),
          reset(&model, SIGNAL(modelAboutToBeReset())),
          laidOut(&model, SIGNAL(layoutAboutToBeChanged(QList<QPersistentModelIndex>,
                                                        QAbstractItemModel::LayoutChangeHint)))
    {}

    /// The rows announced since the last call, each of which must come alone and at the top level.
    static Rows taken(QSignalSpy &spy)
    {
        Rows rows;
        for (const QList<QVariant> &call : qAsConst(spy)) {
            const bool alone = call.at(1) == call.at(2) && !call.at(0).value<QModelIndex>().isValid();
            rows << (alone ? call.at(1).toInt() : -1);
        }
        spy.clear();
        return rows;
    }

    QSignalSpy inserted;
    QSignalSpy removed;
    QSignalSpy changed;
    QSignalSpy reset;
    QSignalSpy laidOut;
};

QStringList dirs(const char *letters)
{
    QStringList list;
    for (const FSInfo &info : mounts(letters)) {
        list << info.mountDir;
    }
    return list;
}

/// The refresh as plainly as it can be said, with linear searches, to hold the model against.
struct PlainRefresh
{
    void update(const std::list<FSInfo> &list)
    {
        for (const FSInfo &info : list) {
            const auto found = std::find_if(rows.begin(), rows.end(),
                                            [&info](const FSInfo &row) { return row.device == info.device; });
            if (found == rows.end()) {
                rows.push_back(info);
            } else {
                *found = info;
            }
        }
        announced.clear();
        int counter = 0;
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            const bool mounted = std::any_of(list.begin(), list.end(), [&row](const FSInfo &info) {
                return row->mountDir == info.mountDir;
            });
            if (mounted) {
                ++counter;
                continue;
            }
            announced << counter;
            row = rows.erase(row);
            if (row == rows.end()) {
                break;
            }
        }
    }

    QStringList names(QString FSInfo::*field) const
    {
        QStringList list;
        for (const FSInfo &row : rows) {
            list << row.*field;
        }
        return list;
    }

    std::vector<FSInfo> rows;
    Rows announced;
};

} // namespace

class TestFSModelUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newMountsAreAppendedOneByOneInListOrder();
    void aKnownDeviceIsUpdatedInItsRow();
    void anUpdatedRowIsAnnouncedWithAnInvalidBottomRight();
    void aDeviceMountedTwiceHasOneRowWithTheLaterMount();
    void aDeviceThatMovesKeepsItsRow();
    void aRowWhoseMountPointIsTakenOverStays();
    void aReplacedMountKeepsTheProtocol();
    void rowsThatGoAreRemovedByTheOddWalk_data();
    void rowsThatGoAreRemovedByTheOddWalk();
    void sixRowsGoInThreeRefreshes();
    void aRowSkippedOnceGoesAtTheNextRefresh();
    void anEmptyListOnAnEmptyModelDoesNothing();
    void randomRefreshesAgreeWithThePlainWords();
    void tenThousandMountsComeAndGo();
};

void TestFSModelUpdate::newMountsAreAppendedOneByOneInListOrder()
{
    FSModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    Watch watch(model);
    model.update(mounts("cab"));
    QCOMPARE(columnTexts(model), dirs("cab"));
    QCOMPARE(Watch::taken(watch.inserted), (Rows{0, 1, 2}));
    QCOMPARE(watch.changed.count(), 0);
    QCOMPARE(watch.removed.count(), 0);
}

void TestFSModelUpdate::aKnownDeviceIsUpdatedInItsRow()
{
    FSModel model;
    model.update(mounts("abc"));
    Watch watch(model);
    std::list<FSInfo> list = mounts("cba");
    list.front().availBlocks = 1;
    list.front().type = QStringLiteral("xfs");
    model.update(list);
    QCOMPARE(columnTexts(model), dirs("abc"));
    QCOMPARE(columnTexts(model, 1).last(), QStringLiteral("xfs"));
    QCOMPARE(model.itemByMountDir(QStringLiteral("/c")).availBlocks, 1);
    QCOMPARE(watch.inserted.count() + watch.removed.count() + watch.reset.count() + watch.laidOut.count(), 0);
}

void TestFSModelUpdate::anUpdatedRowIsAnnouncedWithAnInvalidBottomRight()
{
    FSModel model;
    model.update(mounts("abc"));
    Watch watch(model);
    model.update(mounts("cab"));
    QCOMPARE(watch.changed.count(), 3);
    Rows rows;
    for (const QList<QVariant> &call : qAsConst(watch.changed)) {
        const auto topLeft = call.at(0).value<QModelIndex>();
        QVERIFY(topLeft.isValid());
        QCOMPARE(topLeft.column(), 0);
        QVERIFY(!call.at(1).value<QModelIndex>().isValid());
        QVERIFY(call.at(2).value<QVector<int>>().isEmpty());
        rows << topLeft.row();
    }
    QCOMPARE(rows, (Rows{2, 0, 1}));
}

void TestFSModelUpdate::aDeviceMountedTwiceHasOneRowWithTheLaterMount()
{
    FSInfo later = mount(QStringLiteral("/dev/a"), QStringLiteral("/later"));
    later.availBlocks = 7;
    const std::list<FSInfo> list = {mount(QStringLiteral("/dev/a"), QStringLiteral("/a")), later};
    FSModel model;
    Watch watch(model);
    for (int refresh = 0; refresh < 3; ++refresh) {
        model.update(list);
        QCOMPARE(columnTexts(model), QStringList{QStringLiteral("/later")});
        QCOMPARE(model.itemByMountDir(QStringLiteral("/later")).availBlocks, 7);
        QVERIFY(model.itemByMountDir(QStringLiteral("/a")).device.isEmpty());
    }
    QCOMPARE(watch.inserted.count(), 1);
    QCOMPARE(watch.removed.count(), 0);
    QCOMPARE(watch.changed.count(), 5);
}

void TestFSModelUpdate::aDeviceThatMovesKeepsItsRow()
{
    FSModel model;
    model.update(mounts("ab"));
    Watch watch(model);
    model.update({mount(QStringLiteral("/dev/a"), QStringLiteral("/moved")),
                  mount(QStringLiteral("/dev/b"), QStringLiteral("/b"))});
    QCOMPARE(columnTexts(model), (QStringList{QStringLiteral("/moved"), QStringLiteral("/b")}));
    QCOMPARE(watch.inserted.count() + watch.removed.count(), 0);
}

void TestFSModelUpdate::aRowWhoseMountPointIsTakenOverStays()
{
    FSModel model;
    model.update(mounts("a"));
    for (int refresh = 0; refresh < 2; ++refresh) {
        model.update({mount(QStringLiteral("/dev/new"), QStringLiteral("/a"))});
        QCOMPARE(columnTexts(model), dirs("aa"));
        QCOMPARE(model.itemByMountDir(QStringLiteral("/a")).device, QStringLiteral("/dev/a"));
    }
}

void TestFSModelUpdate::aReplacedMountKeepsTheProtocol()
{
    FSModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.update(mounts("a"));
    model.update(mounts("b"));
    QCOMPARE(columnTexts(model), dirs("b"));
    model.update(mounts("cd"));
    QCOMPARE(columnTexts(model), dirs("cd"));
    model.update({});
    QCOMPARE(columnTexts(model), dirs("d"));
    model.update({});
    QCOMPARE(model.rowCount(), 0);
}

void TestFSModelUpdate::rowsThatGoAreRemovedByTheOddWalk_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("mounted");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<Rows>("announced");
    const auto row = [](const char *title, const char *before, const char *mounted, const char *after,
                        const Rows &announced) {
        QTest::newRow(title) << QByteArray(before) << QByteArray(mounted) << QByteArray(after) << announced;
    };
    row("none goes", "abc", "abc", "abc", {});
    row("the only one goes", "a", "", "", {0});
    row("the first goes", "abc", "bc", "bc", {0});
    row("the middle one goes", "abc", "ac", "ac", {1});
    row("the last goes", "abc", "ab", "ab", {2});
    row("first and third of three go", "abc", "b", "b", {0, 0});
    row("two adjacent go", "abcd", "ad", "acd", {1});
    row("the last two go", "abc", "a", "ac", {1});
    row("the row after a gap isn't counted", "abcde", "bde", "bde", {0, 0});
    row("each earlier removal lowers the number", "abcdefg", "bdf", "bdf", {0, 0, 0, 0});
    row("counting goes on behind a gap", "abcdef", "abde", "abde", {2, 3});
    row("all of six go", "abcdef", "", "bdf", {0, 0, 0});
    row("a new one counts at the end", "ab", "x", "bx", {0});
}

void TestFSModelUpdate::rowsThatGoAreRemovedByTheOddWalk()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, mounted);
    QFETCH(QByteArray, after);
    QFETCH(Rows, announced);
    FSModel model;
    model.update(mounts(before.constData()));
    Watch watch(model);
    model.update(mounts(mounted.constData()));
    QCOMPARE(columnTexts(model), dirs(after.constData()));
    QCOMPARE(Watch::taken(watch.removed), announced);
    QCOMPARE(watch.reset.count() + watch.laidOut.count(), 0);
}

void TestFSModelUpdate::sixRowsGoInThreeRefreshes()
{
    FSModel model;
    model.update(mounts("abcdef"));
    Watch watch(model);
    model.update({});
    QCOMPARE(columnTexts(model), dirs("bdf"));
    QCOMPARE(Watch::taken(watch.removed), (Rows{0, 0, 0}));
    model.update({});
    QCOMPARE(columnTexts(model), dirs("d"));
    QCOMPARE(Watch::taken(watch.removed), (Rows{0, 0}));
    model.update({});
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(Watch::taken(watch.removed), (Rows{0}));
    model.update({});
    QCOMPARE(Watch::taken(watch.removed), Rows());
    QCOMPARE(watch.inserted.count() + watch.changed.count(), 0);
}

void TestFSModelUpdate::aRowSkippedOnceGoesAtTheNextRefresh()
{
    FSModel model;
    model.update(mounts("abcd"));
    Watch watch(model);
    model.update(mounts("ad"));
    QCOMPARE(columnTexts(model), dirs("acd"));
    Watch::taken(watch.removed);
    model.update(mounts("ad"));
    QCOMPARE(columnTexts(model), dirs("ad"));
    QCOMPARE(Watch::taken(watch.removed), (Rows{1}));
}

void TestFSModelUpdate::anEmptyListOnAnEmptyModelDoesNothing()
{
    FSModel model;
    Watch watch(model);
    model.update({});
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(watch.inserted.count() + watch.removed.count() + watch.changed.count() + watch.reset.count(), 0);
}

void TestFSModelUpdate::randomRefreshesAgreeWithThePlainWords()
{
    OpenModel model;
    PlainRefresh plain;
    Watch watch(model);
    std::mt19937 random(20260101); // a fixed seed: every run sees the same refreshes
    std::uniform_int_distribution<int> name(0, 11);
    std::uniform_int_distribution<int> length(0, 14);
    for (int refresh = 0; refresh < 2000; ++refresh) {
        std::list<FSInfo> list;
        for (int left = length(random); left > 0; --left) {
            list.push_back(
                mount(QStringLiteral("/dev/%1").arg(name(random)), QStringLiteral("/%1").arg(name(random))));
        }
        model.update(list);
        plain.update(list);
        QCOMPARE(columnTexts(model), plain.names(&FSInfo::mountDir));
        QCOMPARE(Watch::taken(watch.removed), plain.announced);
        QCOMPARE(model.devices(), plain.names(&FSInfo::device));
    }
}

void TestFSModelUpdate::tenThousandMountsComeAndGo()
{
    FSModel model;
    const std::list<FSInfo> list = manyMounts(10000);
    model.update(list);
    model.update(list);
    QCOMPARE(model.rowCount(), 10000);
    QCOMPARE(model.totalDevSpace(), qint64{10000} * 1000 * 4096);
    model.update({});
    QCOMPARE(model.rowCount(), 5000);
    QCOMPARE(model.index(4999, 0).data().toString(), QStringLiteral("/mnt/9999"));
}

QTEST_MAIN(TestFSModelUpdate)
#include "test_fsmodelupdate.moc"
