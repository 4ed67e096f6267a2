// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "tests/process/support/listview.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

namespace {

const int nameColumn = 0;
const int cpuColumn = 1;

/// Makes a language the user's.
class Language
{
public:
    explicit Language(const QLocale &locale) { QLocale::setDefault(locale); }
    ~Language() { QLocale::setDefault(QLocale::c()); }
};

} // namespace

class TestSorting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesSortByTheRulesOfTheLanguage_data()
    {
        const Rows<QLocale, QStringList> row("locale", "sorted");
        row("none", QLocale::c(), {"apt", "Bash", "bash", "cat", "Zsh"});
        row("German", QLocale(QLocale::German), {"apt", "\u00c4rger", "Bash", "bash", "zsh"});
        row("Swedish", QLocale(QLocale::Swedish), {"apt", "Bash", "bash", "zsh", "\u00c4rger"});
    }

    /// Equal ones stay in the order of the source, which is that of their pids.
    void namesSortByTheRulesOfTheLanguage()
    {
        QFETCH(QLocale, locale);
        QFETCH(QStringList, sorted);
        const Language language(locale);
        for (const bool isFlat : {true, false}) {
            List list;
            list.proxy->setFlat(isFlat);
            FactsByPid facts = factsUpTo(5);
            const int pidOfName[] = {4, 2, 3, 5, 1};
            for (int i = 0; i < 5; ++i) {
                facts[pidOfName[i]].name = sorted.at(i);
            }
            list.view.sortByColumn(nameColumn, Qt::AscendingOrder);
            list.proxy->refresh(makeSnapshot(facts));
            QCOMPARE(names(list), sorted);
            list.proxy->refresh(makeSnapshot(facts));
            QCOMPARE(names(list), sorted);
            QCOMPARE(list.proxy->sourceModel()->index(0, 0).data(Qt::UserRole).toString(), facts[1].name);
        }
    }

    void valuesKeepTheirOrder_data()
    {
        const double infinity = std::numeric_limits<double>::infinity();
        const Rows<QVariantList> row("ascending");
        row("integers",
            {std::numeric_limits<int>::min(), -20, -1, 0, 1, 19, std::numeric_limits<int>::max()});
        row("sizes", {0ULL, 1ULL, quint64(1) << 32, quint64(1) << 62});
        row("shares", {-infinity, -1.5, 0.0, 0.1, 99.9, 1e300, infinity});
        row("missing ones", {3, QVariant()});
        row("missing texts", {QString(), QString("a"), QVariant()});
    }

    void valuesKeepTheirOrder()
    {
        QFETCH(QVariantList, ascending);
        SortKeys keys;
        for (int i = 0; i < ascending.size(); ++i) {
            for (int j = 0; j < ascending.size(); ++j) {
                QCOMPARE(keys.of(ascending.at(i)) < keys.of(ascending.at(j)), i < j);
            }
        }
    }

    void aNegativeZeroIsZero()
    {
        SortKeys keys;
        QVERIFY(!(keys.of(-0.0) < keys.of(0.0)));
    }

    void ranksFollowTheKeys()
    {
        Ranks ranked;
        ranked.rank({5, 3, 3, 9, 1});
        QCOMPARE(ranked.places(), QVector<int>({2, 1, 1, 3, 0}));
        ranked.rank({50, 30, 30, 90, 10});
        QCOMPARE(ranked.places(), QVector<int>({2, 1, 1, 3, 0}));
        ranked.rank({1, 2, 3});
        QCOMPARE(ranked.places(), QVector<int>({0, 1, 2}));
        ranked.rank({3, 2, 1});
        QCOMPARE(ranked.places(), QVector<int>({2, 1, 0}));
    }

    /// Against a stable sort, through changes of values and rows, and clicks on headers.
    void theListIsSortedAfterEveryChange()
    {
        List list;
        std::mt19937 random(5);
        FactsByPid facts = factsUpTo(60);
        unsigned long total = 1000;
        for (int round = 0; round < 300; ++round) {
            const auto letters = static_cast<unsigned>(round % 9 + 1);
            for (auto &entry : facts) {
                entry.second.name = QString(QChar('a' + static_cast<int>(random() % letters)));
            }
            const int pid = static_cast<int>(random() % 90) + 1;
            if (facts.erase(pid) == 0) {
                facts[pid].pid = pid;
            }
            if (round % 2 == 0) {
                list.view.sortByColumn(random() % 2 ? nameColumn : cpuColumn,
                                       random() % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
            }
            for (int refresh = 0; refresh < 3; ++refresh) { // the last one inserts nothing
                for (auto &entry : facts) {
                    entry.second.cpuCounter += static_cast<int>(random() % 4);
                }
                list.proxy->setTotalCpuTime(total += 1000);
                list.proxy->refresh(makeSnapshot(facts));
            }
            QCOMPARE(list.pids(), sortedPids(list));
        }
    }

private:
    class Ranks
    {
    public:
        void rank(const std::vector<quint64> &numbers)
        {
            std::vector<SortKey> keys;
            for (const quint64 number : numbers) {
                keys.push_back({number, nullptr});
            }
            ranks.rank(keys);
            rows = static_cast<int>(keys.size());
        }
        QVector<int> places() const
        {
            QVector<int> all;
            for (int row = 0; row < rows; ++row) {
                all.append(ranks.of(row));
            }
            return all;
        }

    private:
        SortRanks ranks;
        int rows = 0;
    };

    static QStringList names(const List &list)
    {
        QStringList all;
        for (int row = 0; row < list.proxy->rowCount(); ++row) {
            all.append(list.proxy->index(row, nameColumn).data().toString());
        }
        return all;
    }

    static QList<int> sortedPids(const List &list)
    {
        const QAbstractItemModel *source = list.proxy->sourceModel();
        const int column = list.proxy->sortColumn();
        QList<int> rows;
        for (int row = 0; row < source->rowCount(); ++row) {
            rows.append(row);
        }
        const auto isLess = [&](int a, int b) {
            const QVariant left = source->index(a, column).data(Qt::UserRole);
            const QVariant right = source->index(b, column).data(Qt::UserRole);
            return column == nameColumn ? left.toString() < right.toString()
                                        : left.toDouble() < right.toDouble();
        };
        const bool isAscending = list.proxy->sortOrder() == Qt::AscendingOrder;
        std::stable_sort(rows.begin(), rows.end(),
                         [&](int a, int b) { return isAscending ? isLess(a, b) : isLess(b, a); });
        QList<int> pids;
        for (const int row : rows) {
            pids.append(static_cast<int>(source->index(row, 0).internalId()));
        }
        return pids;
    }
};

QTEST_MAIN(TestSorting)
#include "test_sorting.moc"
