// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/firstcellonly.h"
#include "tests/process/support/listview.h"
#include "tests/process/support/world.h"
#include "tests/support/rows.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QtTest>

#include <algorithm>
#include <optional>

namespace {

using gtop_wrappers::Process;

/// The list in a window, refreshed with simulated processes.
class FilteredList : public List
{
public:
    explicit FilteredList(bool isFlat)
    {
        proxy->setFlat(isFlat);
        view.sortByColumn(2, Qt::AscendingOrder); // the pid
        view.resize(600, 400);
        view.show();
    }

    void refresh(const ProcModel::Snapshot &snapshot)
    {
        proxy->setTotalCpuTime(total += 100);
        proxy->refresh(snapshot);
    }

    /// "1(2(3)) 4", ancestors that don't match with a "-", without what is below collapsed rows.
    QString shown(const QModelIndex &parent = QModelIndex()) const
    {
        QStringList shapes;
        for (int row = 0; row < proxy->rowCount(parent); ++row) {
            const QModelIndex index = proxy->index(row, 0, parent);
            const bool isDim = index.data(ProxyProcModel::AncestorOnlyRole).toBool();
            const QString below = view.isExpanded(index) ? shown(index) : QString();
            shapes.append(QString::number(proxy->pidAt(index)) + QLatin1String(isDim ? "-" : "") +
                          (below.isEmpty() ? QString() : QLatin1Char('(') + below + QLatin1Char(')')));
        }
        return shapes.join(QLatin1Char(' '));
    }

    QModelIndex row(int pid) const { return proxy->rowOfPid(pid); }

    unsigned long total = 1;
};

/// What a plain filter shows of the model's rows: "1(2(3)) 4" in the order of the model.
QString plainlyFiltered(const ProcModel &model, const FactsByPid &facts, const QString &text,
                        const QModelIndex &parent = QModelIndex())
{
    QMap<int, QString> shapes;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const int pid = static_cast<int>(index.internalId());
        const QString below = plainlyFiltered(model, facts, text, index);
        const QStringList words = text.toLower().split(QLatin1Char(' '));
        const bool matches = std::all_of(words.begin(), words.end(), [&](const QString &word) {
            return facts.at(pid).name.toLower().contains(word) || QString::number(pid).contains(word);
        });
        if (matches || !below.isEmpty()) {
            shapes[pid] = QString::number(pid) + QLatin1String(matches ? "" : "-") +
                          (below.isEmpty() ? QString() : QLatin1Char('(') + below + QLatin1Char(')'));
        }
    }
    return QStringList(shapes.values()).join(QLatin1Char(' '));
}

/// Processes named "p<pid>". In the required tree no two children have one parent.
ProcModel::Snapshot family()
{
    return makeSnapshot({{1, 0}, {2, 1}, {3, 2}, {4, 0}, {5, 4}, {6, 0}});
}
constexpr char familyTree[] = "1(2(3)) 4(5) 6";

} // namespace

/// The list while a filter is on.
class TestFilteredList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRefreshShowsWhatAPlainFilterShows_data()
    {
        const Rows<bool, unsigned int> row("flat", "seed");
        row("flat", true, 815U);
        row("tree", false, 816U);
    }

    void everyRefreshShowsWhatAPlainFilterShows()
    {
        QFETCH(bool, flat);
        QFETCH(unsigned int, seed);
        const QStringList texts{"", "1", "process 2", "12", "process", "PROCESS 4", "none", "7"};
        FilteredList list(flat);
        std::optional<QAbstractItemModelTester> tester;
        if (flat) { // in the tree, each cell of a row has the children of the row, which it does not expect
            tester.emplace(list.proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        }
        World world(seed, 40);
        QString text;
        const int rounds = qEnvironmentVariableIntValue("ZSM_TEST_REFRESHES");
        for (int round = 1; round <= (rounds > 0 ? rounds : 300); ++round) {
            world.step();
            list.refresh(makeSnapshot(world.facts()));
            verify(list, world, text);
            for (int i = world.pick(4); i > 0; --i) {
                text = texts.at(world.pick(texts.size()));
                list.proxy->setFilter(text);
                verify(list, world, text);
                use(list, world);
            }
            if (round % 40 == 0) {
                list.proxy->setFlat(flat); // empties the list
            }
            if (world.pick(10) == 0) {
                list.proxy->closeFilter();
                text.clear();
            }
            if (QTest::currentTestFailed()) {
                qWarning("failed in round %d with \"%s\"", round, qPrintable(text));
                return;
            }
        }
    }

    void inTreeModeAncestorsAreShownAndDimmed_data()
    {
        const Rows<QString, QString, int> row("text", "shown", "found");
        row("a leaf", "p3", "1-(2-(3))", 1);
        row("a parent, without its children", "p2", "1-(2)", 1);
        row("parents and children", "p", familyTree, 6);
        row("nothing", "q", "", 0);
    }

    void inTreeModeAncestorsAreShownAndDimmed()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QFETCH(int, found);
        FilteredList list(false);
        list.refresh(family());
        list.proxy->setFilter(text);
        QCOMPARE(list.shown(), shown);
        QCOMPARE(list.proxy->matchCount(), found);
        QCOMPARE(list.proxy->unfilteredCount(), 6);
        list.refresh(family());
        QCOMPARE(list.shown(), shown);
        QCOMPARE(list.proxy->matchCount(), found);
    }

    void expandedRowsSurviveTheFilter()
    {
        FilteredList list(false);
        list.refresh(family());
        list.view.collapse(list.row(2));
        list.view.collapse(list.row(4));
        const QString before = list.shown();
        QCOMPARE(before, QStringLiteral("1(2) 4 6"));
        list.proxy->setFilter(QStringLiteral("p3"));
        QCOMPARE(list.shown(), QStringLiteral("1-(2-(3))")); // a match is not left in a collapsed row
        list.refresh(family());
        list.proxy->setFilter(QStringLiteral("none"));
        list.refresh(family());
        list.proxy->closeFilter();
        QCOMPARE(list.shown(), before);
    }

    void whatTheUserExpandsWhileFilteringCounts()
    {
        FilteredList list(false);
        list.refresh(family());
        list.view.collapse(list.row(4));
        list.proxy->setFilter(QStringLiteral("p"));
        list.view.collapse(list.row(2));
        list.refresh(family());
        QCOMPARE(list.shown(), QStringLiteral("1(2) 4(5) 6")); // until the text changes
        list.view.collapse(list.row(4));
        list.view.expand(list.row(4));
        list.proxy->closeFilter();
        QCOMPARE(list.shown(), QStringLiteral("1(2) 4(5) 6"));
    }

    void expandAllAndCollapseAllWhileFilteringCount()
    {
        FilteredList list(false);
        list.refresh(family());
        list.proxy->setFilter(QStringLiteral("p3"));
        list.proxy->collapseAll();
        list.refresh(family());
        QCOMPARE(list.shown(), QStringLiteral("1-"));
        list.proxy->closeFilter();
        QCOMPARE(list.shown(), QStringLiteral("1 4 6"));
        list.proxy->setFilter(QStringLiteral("p3"));
        list.proxy->expandAll();
        list.proxy->closeFilter();
        QCOMPARE(list.shown(), QLatin1String(familyTree));
    }

    void aResetKeepsTheFilter_data()
    {
        const Rows<bool> row("flat");
        row("flat", true);
        row("tree", false);
    }

    void aResetKeepsTheFilter()
    {
        QFETCH(bool, flat);
        FilteredList list(flat);
        list.refresh(family());
        list.proxy->setFilter(QStringLiteral("p4"));
        const QString before = list.shown();
        list.proxy->setColumnVisible(4, !list.proxy->isColumnVisible(4));
        list.proxy->setProcessTypes(0);
        list.refresh(family());
        QCOMPARE(list.shown(), before);
        list.proxy->setFlat(!flat);
        list.proxy->setFlat(flat);
        list.refresh(family());
        QCOMPARE(list.shown(), before);
    }

    void columnsFittedToAFilteredListAreFittedAgainWithoutTheFilter()
    {
        FilteredList list(true);
        ProcModel::Snapshot snapshot = family();
        snapshot.at(3).params[gtop_wrappers::NameColumn].reset(
            new gtop_wrappers::SimpleProcessParam(QString(60, QLatin1Char('w'))));
        list.refresh(snapshot);
        const int fitting = list.view.columnWidth(0);
        list.proxy->setFilter(QStringLiteral("p4"));
        QCOMPARE(list.view.columnWidth(0), fitting); // typing moves no column
        list.proxy->setProcessTypes(0);
        list.refresh(snapshot);
        QVERIFY(list.view.columnWidth(0) < fitting);
        list.proxy->closeFilter();
        QCOMPARE(list.view.columnWidth(0), fitting);
    }

    void columnsKeepTheirWidthsThroughAnEmptyList()
    {
        FilteredList list(true);
        list.refresh(family());
        list.view.setColumnWidth(1, 123);
        list.proxy->setFilter(QStringLiteral("none"));
        list.refresh(family());
        list.proxy->closeFilter();
        QCOMPARE(list.view.columnWidth(1), 123);
    }

    void aHiddenSelectionIsGone()
    {
        FilteredList list(true);
        list.refresh(family());
        list.view.setCurrentIndex(list.row(4));
        list.proxy->setFilter(QStringLiteral("p5"));
        QVERIFY(!list.view.selectionModel()->hasSelection());
        QVERIFY(!list.view.currentIndex().isValid());
        list.proxy->closeFilter();
        QVERIFY(!list.view.selectionModel()->hasSelection());
    }

    /// The view's index of the match would otherwise outlive its row.
    void aMatchLeavesWithItsParent()
    {
        FilteredList list(false);
        list.refresh(makeSnapshot({{1, 0}, {2, 1}, {3, 2}}));
        list.proxy->setFilter(QStringLiteral("p3"));
        const QPersistentModelIndex match(list.row(3));
        QVERIFY(match.isValid());
        list.refresh(makeSnapshot({{1, 0}, {3, 2}})); // read before the kernel reparented it
        QVERIFY(!match.isValid());
        QCOMPARE(list.shown(), QString());
    }

    void aRowThatMovesUnderAHiddenOneIsHidden()
    {
        FilteredList list(false);
        list.proxy->setComplete(true);
        FirstCellOnly firstCellOnly;
        firstCellOnly.setSourceModel(list.proxy);
        const QAbstractItemModelTester tester(&firstCellOnly,
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.refresh(makeSnapshot({{2, 0}, {3, 2}, {4, 0}}));
        list.proxy->setFilter(QStringLiteral("p3"));
        QCOMPARE(list.shown(), QStringLiteral("2-(3)"));
        list.refresh(makeSnapshot({{2, 4}, {3, 0}, {4, 0}}));
        QCOMPARE(list.shown(), QStringLiteral("3"));
    }

    void aProcessThatBeginsOrEndsToMatchComesAndGoes()
    {
        FilteredList list(true);
        list.refresh(makeSnapshot({{1, 0}, {2, 0}}));
        list.proxy->setFilter(QStringLiteral("1"));
        list.refresh(makeSnapshot({{1, 0}, {2, 0}, {10, 0}}));
        QCOMPARE(list.shown(), QStringLiteral("1 10"));
        list.refresh(makeSnapshot({{2, 0}, {10, 0}}));
        QCOMPARE(list.shown(), QStringLiteral("10"));
        QCOMPARE(list.proxy->matchCount(), 1);
        QCOMPARE(list.proxy->unfilteredCount(), 2);
    }

private:
    static void verify(const FilteredList &list, const World &world, const QString &text)
    {
        const QString expected = plainlyFiltered(*list.source, world.facts(), text);
        QCOMPARE(rowsOf(list), expected);
        const QStringList rows = expected.split(QRegularExpression("[() ]+"), Qt::SkipEmptyParts);
        QCOMPARE(list.proxy->matchCount(), rows.size() - rows.filter(QStringLiteral("-")).size());
        QCOMPARE(list.proxy->unfilteredCount(), static_cast<int>(list.source->rows().size()));
    }

    static QString rowsOf(const FilteredList &list, const QModelIndex &parent = QModelIndex())
    {
        QMap<int, QString> shapes;
        for (int row = 0; row < list.proxy->rowCount(parent); ++row) {
            const QModelIndex index = list.proxy->index(row, 0, parent);
            const bool isDim = index.data(ProxyProcModel::AncestorOnlyRole).toBool();
            const QString below = rowsOf(list, index);
            const int pid = list.proxy->pidAt(index);
            shapes[pid] = QString::number(pid) + QLatin1String(isDim ? "-" : "") +
                          (below.isEmpty() ? QString() : QLatin1Char('(') + below + QLatin1Char(')'));
        }
        return QStringList(shapes.values()).join(QLatin1Char(' '));
    }

    /// Does what users do between two keystrokes.
    static void use(FilteredList &list, World &world)
    {
        const int rows = list.proxy->rowCount();
        const QModelIndex any = rows > 0 ? list.proxy->index(world.pick(rows), 0) : QModelIndex();
        switch (world.pick(6)) {
        case 0:
            list.view.setCurrentIndex(any);
            break;
        case 1:
            list.view.setExpanded(any, world.pick(2) == 0);
            break;
        case 2:
            list.view.scrollTo(any);
            break;
        case 3:
            list.view.verticalScrollBar()->setValue(world.pick(1000));
            break;
        case 4:
            list.view.sortByColumn(world.pick(3), Qt::DescendingOrder);
            break;
        default:
            QCoreApplication::processEvents();
            break;
        }
    }
};

QTEST_MAIN(TestFilteredList)
#include "test_filteredlist.moc"
