// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "mounts.h"

#include <QtTest>

#include <memory>

namespace {

/// One refresh: the mounts, the rows after it, and what is announced, as in Announcements.
struct Refresh
{
    const char *mounted;
    const char *rows;
    const char *announced;
};

using Refreshes = QVector<Refresh>;

/// Device and mount point of a row, in the letters of mounts().
QString rowText(const QString &device, const QString &mountDir)
{
    const QString name = device.mid(5);
    const QString dir = mountDir.mid(1);
    return name == dir ? name : name + '>' + dir;
}

/// Exposes the devices, which are in a column that no view shows.
class OpenModel : public FSModel
{
public:
    QString rowTexts() const
    {
        QString texts;
        for (int row = 0; row < rowCount(); ++row) {
            texts += rowText(createIndex(row, 2).data().toString(), index(row, 0).data().toString());
        }
        return texts;
    }
};

/// Records what a model announces: "+0 ~2 -1" for row 0 inserted, 2 updated and 1 removed.
class Announcements
{
public:
    explicit Announcements(const FSModel &model)
    {
        const auto rows = [this](const char *sign) {
            return [this, sign](const QModelIndex &parent, int first, int last) {
                add(sign, !parent.isValid() && first == last, first);
            };
        };
        QObject::connect(&model, &FSModel::rowsAboutToBeInserted, rows("+"));
        QObject::connect(&model, &FSModel::rowsAboutToBeRemoved, rows("-"));
        QObject::connect(
            &model, &FSModel::dataChanged, [this](const auto &first, const auto &last, auto roles) {
                // Intentional: the bottom right is invalid.
                add("~", first.isValid() && first.column() == 0 && !last.isValid() && roles.isEmpty(),
                    first.row());
            });
        QObject::connect(&model, &FSModel::modelAboutToBeReset, [this] { add("reset", false, 0); });
        QObject::connect(&model, &FSModel::layoutAboutToBeChanged, [this] { add("layout", false, 0); });
    }

    /// Those since the last call.
    QString take() { return std::exchange(texts, {}).join(' '); }

private:
    void add(const char *sign, bool expected, int row)
    {
        texts << sign + QString::number(row) + (expected ? "" : " unexpected");
    }

    QStringList texts;
};

/// The refresh in its simplest form, with linear searches, as a reference for the model.
struct PlainRefresh
{
    void update(const std::list<FSInfo> &list)
    {
        for (const FSInfo &info : list) {
            const auto found = std::find_if(rows.begin(), rows.end(),
                                            [&info](const FSInfo &row) { return row.device == info.device; });
            if (found == rows.end()) {
                announced << '+' + QString::number(rows.size());
                rows.push_back(info);
            } else {
                announced << '~' + QString::number(found - rows.begin());
                *found = info;
            }
        }
        int counter = 0;
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            const bool mounted = std::any_of(list.begin(), list.end(), [&row](const FSInfo &info) {
                return row->mountDir == info.mountDir;
            });
            if (mounted) {
                ++counter;
                continue;
            }
            announced << '-' + QString::number(counter);
            row = rows.erase(row);
            if (row == rows.end()) {
                break;
            }
        }
    }

    QString rowTexts() const
    {
        QString texts;
        for (const FSInfo &row : rows) {
            texts += rowText(row.device, row.mountDir);
        }
        return texts;
    }

    std::vector<FSInfo> rows;
    QStringList announced;
};

} // namespace

Q_DECLARE_METATYPE(Refreshes)

class TestFSModelUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsFollowTheMounts_data()
    {
        const Rows<QByteArray, Refreshes, bool> rows("before", "refreshes", "keepsProtocol");
        const auto row = [&](const char *title, const char *before, const Refreshes &refreshes,
                             bool keepsProtocol = false) { rows(title, before, refreshes, keepsProtocol); };
        row("an empty list on an empty model", "", {{"", "", ""}});
        row("new mounts are appended in list order", "", {{"cab", "cab", "+0 +1 +2"}}, true);
        row("known devices are updated in their rows", "abc", {{"cab", "abc", "~2 ~0 ~1"}});
        row("a device mounted twice has one row", "",
            {{"aa>z", "a>z", "+0 ~0"}, {"aa>z", "a>z", "~0 ~0"}, {"aa>z", "a>z", "~0 ~0"}});
        row("a device that moves keeps its row", "ab", {{"a>zb", "a>zb", "~0 ~1"}});
        row("a row stays while another device is on its mount point", "a",
            {{"n>a", "an>a", "+1"}, {"n>a", "an>a", "~1"}});
        row("mounts are replaced", "a",
            {{"b", "b", "+1 -0"}, {"cd", "cd", "+1 +2 -0"}, {"", "d", "-0"}, {"", "", "-0"}}, true);
        row("none is removed", "abc", {{"abc", "abc", "~0 ~1 ~2"}});
        row("the only one is removed", "a", {{"", "", "-0"}});
        row("the first is removed", "abc", {{"bc", "bc", "~1 ~2 -0"}});
        row("the middle one is removed", "abc", {{"ac", "ac", "~0 ~2 -1"}});
        row("the last is removed", "abc", {{"ab", "ab", "~0 ~1 -2"}});
        row("first and third of three are removed", "abc", {{"b", "b", "~1 -0 -0"}});
        row("of two adjacent the second is skipped until the next refresh", "abcd",
            {{"ad", "acd", "~0 ~3 -1"}, {"ad", "ad", "~0 ~2 -1"}});
        row("of the last two the second is skipped", "abc", {{"a", "ac", "~0 -1"}});
        row("the row after a gap isn't counted", "abcde", {{"bde", "bde", "~1 ~3 ~4 -0 -0"}});
        row("each earlier removal lowers the number", "abcdefg", {{"bdf", "bdf", "~1 ~3 ~5 -0 -0 -0 -0"}});
        row("counting continues after a gap", "abcdef", {{"abde", "abde", "~0 ~1 ~3 ~4 -2 -3"}});
        row("six are removed in three refreshes", "abcdef",
            {{"", "bdf", "-0 -0 -0"}, {"", "d", "-0 -0"}, {"", "", "-0"}, {"", "", ""}});
        row("a new one counts at the end", "ab", {{"x", "bx", "+2 -0"}});
    }

    void rowsFollowTheMounts()
    {
        using Tester = QAbstractItemModelTester;
        QFETCH(QByteArray, before);
        QFETCH(Refreshes, refreshes);
        QFETCH(bool, keepsProtocol);
        OpenModel model;
        std::unique_ptr<Tester> tester;
        if (keepsProtocol) {
            tester = std::make_unique<Tester>(&model, Tester::FailureReportingMode::QtTest);
        }
        model.update(mounts(before));
        Announcements announcements(model);
        for (const Refresh &refresh : qAsConst(refreshes)) {
            model.update(mounts(refresh.mounted));
            QCOMPARE(model.rowTexts(), QString(refresh.rows));
            QCOMPARE(announcements.take(), QString(refresh.announced));
        }
    }

    void aKnownDeviceIsUpdatedInItsRow()
    {
        FSModel model;
        model.update(mounts("abc"));
        std::list<FSInfo> list = mounts("cba");
        list.front().availBlocks = 1;
        list.front().type = QStringLiteral("xfs");
        model.update(list);
        QCOMPARE(shownDirs(model), QString("/a /b /c"));
        QCOMPARE(model.index(2, 1).data().toString(), QString("xfs"));
        QCOMPARE(model.itemByMountDir("/c").availBlocks, 1);
    }

    void aDeviceMountedTwiceShowsTheLaterMount() // its refreshes are a row of rowsFollowTheMounts()
    {
        std::list<FSInfo> list = mounts("aa>z");
        list.back().availBlocks = 7;
        FSModel model;
        model.update(list);
        model.update(list);
        QCOMPARE(model.itemByMountDir("/z").availBlocks, 7);
        QVERIFY(model.itemByMountDir("/a").device.isEmpty());
    }

    void randomRefreshesAgreeWithThePlainOnes()
    {
        OpenModel model;
        PlainRefresh plain;
        Announcements announcements(model);
        std::mt19937 random(20260101); // a fixed seed: the same refreshes in every run
        for (int refresh = 0; refresh < 2000; ++refresh) {
            const std::list<FSInfo> list = randomMounts(random, 12, 14);
            model.update(list);
            plain.update(list);
            QCOMPARE(model.rowTexts(), plain.rowTexts());
            QCOMPARE(announcements.take(), std::exchange(plain.announced, {}).join(' '));
        }
    }

    void tenThousandMountsComeAndGo()
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
};

QTEST_MAIN(TestFSModelUpdate)
#include "test_fsmodelupdate.moc"
