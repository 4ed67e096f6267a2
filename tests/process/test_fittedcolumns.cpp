// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "process/gtop_wrappers/textondemand.h"
#include "process/processdelegate.h"
#include "tests/process/support/listview.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

using namespace gtop_wrappers;

Q_DECLARE_METATYPE(std::function<void(List &)>)

namespace {

/// Notes whether it is read.
class NotedText : public SimpleProcessParam
{
public:
    NotedText(const QString &text, QSet<const IProcessParam *> *noted) : SimpleProcessParam(text), read(noted)
    {}
    QVariant displayValue() const override
    {
        read->insert(this);
        return SimpleProcessParam::displayValue();
    }

private:
    QSet<const IProcessParam *> *read;
};

void showOnly(const List &list, const std::function<bool(unsigned long)> &isShown)
{
    for (unsigned long column = 0; column < ColumnCount; ++column) {
        list.proxy->setColumnVisible(column, isShown(column));
    }
}

/// Processes with pids of all lengths. Those of medium length are deepest in the tree.
ProcModel::Snapshot manyProcesses()
{
    FactsByPid facts;
    for (int pid = 1; pid < 4000000; pid += 1 + pid / 64) {
        Facts &process = facts[pid];
        process.pid = pid;
        process.name = QStringLiteral("process %1").arg(pid * 7919LL % 1000);
        process.cpuCounter = pid * 3;
        process.nice = pid % 40 - 20;
        process.start = pid % 11 == 0 ? 0 : 1000000000U + static_cast<unsigned>(pid) * 61U;
        process.ppid = pid < 3000 ? facts.lower_bound(pid / 2)->first % pid : 0; // 1 has none
    }
    ProcModel::Snapshot snapshot = makeSnapshot(facts);
    for (auto &entry : snapshot) {
        const auto pid = static_cast<quint64>(entry.first);
        auto &params = entry.second.params;
        params[UserColumn].reset(new SimpleProcessParam(pid % 3 ? QStringLiteral("root") : QString()));
        for (const ProcessColumn memory : {MemoryColumn, VirtualMemoryColumn, SharedMemoryColumn}) {
            params[memory].reset(new SizeProcessParam(pid % 3000 * (500 + memory)));
        }
        params[CommandLineColumn].reset(new SimpleProcessParam(QStringLiteral("/bin/%1").arg(pid % 1000)));
        params[ProcessorColumn].reset(new IntProcessParam(entry.first % 130 - 1));
        params[CpuTimeColumn].reset(new CpuTimeProcessParam(pid * 977, 100));
    }
    return snapshot;
}

} // namespace

class TestFittedColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theyAreAsWideAsIfEachCellHadBeenMeasured_data()
    {
        const Rows<std::function<void(List &)>> row("arrange");
        row("list", [](List &) {});
        row("tree", [](List &list) { list.proxy->setFlat(false); });
        row("complete tree", [](List &list) {
            list.proxy->setComplete(true);
            list.proxy->setFlat(false);
        });
        row("all columns", [](List &list) { showOnly(list, [](unsigned long) { return true; }); });
        row("a tree of numbers", [](List &list) {
            showOnly(list,
                     [](unsigned long column) { return column == PidColumn || column == CpuTimeColumn; });
            list.proxy->sortBy(PidColumn, Qt::DescendingOrder);
            list.proxy->setComplete(true);
            list.proxy->setFlat(false);
        });
        row("sorted by pid, descending",
            [](List &list) { list.proxy->sortBy(PidColumn, Qt::DescendingOrder); });
        row("sorted by start", [](List &list) { list.proxy->sortBy(StartedColumn, Qt::AscendingOrder); });
        row("filtered", [](List &list) { list.proxy->setFilter(QStringLiteral("77")); });
        row("large font", [](List &list) {
            QFont font = list.view.font();
            font.setPointSizeF(font.pointSizeF() * 1.9);
            list.view.setFont(font);
        });
        row("bold and spaced", [](List &list) {
            list.view.setStyleSheet(QStringLiteral("QTreeView { font: bold; letter-spacing: 2px; }"));
        });
        row("padded", [](List &list) {
            list.view.setStyleSheet(QStringLiteral("QTreeView::item { padding: 0 9px; border: 2px solid; }"));
        });
        row("another style", [](List &list) {
            QStyle *style = QStyleFactory::create(QStringLiteral("Windows"));
            style->setParent(&list.owner);
            list.view.setStyle(style);
        });
        row("other digits", [](List &list) { list.view.setLocale(QLocale(QLocale::Persian)); });
        row("digits in groups", [](List &list) { list.view.setLocale(QLocale(QLocale::German)); });
    }

    void theyAreAsWideAsIfEachCellHadBeenMeasured()
    {
        QFETCH(std::function<void(List &)>, arrange);
        List list;
        list.view.resize(200, 300); // the last column is not stretched
        list.view.show();
        arrange(list);
        list.proxy->setTotalCpuTime(1000000000);
        list.proxy->refresh(manyProcesses());
        QVector<int> fitted;
        for (int column = 0; column < list.proxy->columnCount(); ++column) {
            fitted.append(list.view.columnWidth(column));
        }
        ProcessDelegate plain; // measures every cell
        list.view.setItemDelegate(&plain);
        QHeaderView *header = list.view.header();
        for (int column = 0; column < list.proxy->columnCount(); ++column) {
            const auto processColumn = static_cast<unsigned long>(list.source->processColumn(column));
            const bool isExpensive = ProcessFiller::instance()->isExpensive(processColumn);
            header->setResizeContentsPrecision(isExpensive ? 100 : 1000);
            const int cells = list.view.columnHint(column);
            const int widest = list.view.fontMetrics().averageCharWidth() * 40;
            QCOMPARE(fitted.at(column), qMin(qMax(cells, header->sectionSizeHint(column)), widest));
        }
    }

    void commandLinesAreNotReadOnceTheirColumnIsAsWideAsItGets()
    {
        List list;
        QSet<const IProcessParam *> read;
        ProcModel::Snapshot snapshot = makeSnapshot(factsUpTo(300));
        for (auto &entry : snapshot) {
            const QString line(entry.first == 5 ? 100 : 2, QLatin1Char('x'));
            entry.second.params[CommandLineColumn].reset(new NotedText(line, &read));
        }
        list.view.sortByColumn(PidColumn, Qt::AscendingOrder);
        list.proxy->refresh(snapshot);
        QCOMPARE(read.size(), 5);
    }

    void noColumnIsFittedWiderThanFortyCharacters()
    {
        List list;
        FactsByPid facts = factsUpTo(2);
        facts.at(1).name = QString(200, QLatin1Char('x'));
        list.proxy->refresh(makeSnapshot(facts));
        QCOMPARE(list.view.columnWidth(0), list.view.fontMetrics().averageCharWidth() * 40);
    }

    void theLastColumnTakesWhatIsLeft()
    {
        List list;
        list.view.resize(3000, 200);
        list.view.show();
        const int last = list.proxy->columnCount() - 1;
        for (int fit = 0; fit < 2; ++fit) {
            list.proxy->setFlat(fit > 0); // fits again
            list.proxy->refresh(makeSnapshot(factsUpTo(2)));
            const int end = list.view.columnViewportPosition(last) + list.view.columnWidth(last);
            QCOMPARE(end, list.view.viewport()->width());
        }
        list.view.resize(200, 200); // in which the last one is out of view
        list.proxy->refresh(makeSnapshot(factsUpTo(2)));
        QCOMPARE(list.view.columnWidth(last), list.view.header()->sectionSizeHint(last));
    }
};

QTEST_MAIN(TestFittedColumns)
#include "test_fittedcolumns.moc"
