// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROXYPROCMODEL_H
#define PROCESS_PROXYPROCMODEL_H

#include "process/listfilter.h"
#include "process/procmodel.h"
#include "process/sortkeys.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <functional>
#include <vector>

class DeepRows;
class FittedColumns;
class PaintedRows;
class ProcessDelegate;
class TreeExpansion;

/// The sorted process list that the view shows, and the only access to the processes for the rest of the
/// program.
class ProxyProcModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    /// Also creates the process model, which is owned by `parent` and not by this proxy.
    explicit ProxyProcModel(QObject *parent);
    ~ProxyProcModel() override;

    /// Shows the list in a view, which is not owned and may be null. Needed before the first refresh, since
    /// the proxy has no source model before.
    void setView(QTreeView *treeView);

    /// CPU time of the machine since boot, in the unit of Process::getCpuLoad(). To be set before each
    /// refresh.
    void setTotalCpuTime(unsigned long total);
    /// Updates the list and lays out the view. The first layout, and the first after a reset, also expands
    /// all rows and fits the columns. The second argument is required, but unused.
    void refresh(const ProcModel::Snapshot &snapshot, int = 0);

    /// Which processes are listed: a gtop_wrappers::ProcessTypes.
    int processTypes() const { return types; }
    void setProcessTypes(int processTypes);
    bool isFlat() const;
    void setFlat(bool on);
    /// Whether the tree is complete (see ProcModel). A flat list stays as it is.
    bool isComplete() const;
    void setComplete(bool on);
    /// Both throw std::out_of_range past the last process column.
    bool isColumnVisible(unsigned long i) const;
    /// The list stays sorted by the same process column; by name, ascending, if that one is hidden.
    void setColumnVisible(unsigned long i, bool on);

    /// The process column that the list is sorted by; -1 if it is not sorted.
    int sortedProcessColumn() const { return source->processColumn(sortColumn()); }

    /// By process column, whether all rows need their values, shown or not: the one that the list is sorted
    /// by, and parents, which make the tree. Where parents are shown, all at once take less than one by one.
    std::vector<bool> columnsForAllRows() const;

    /// Sorts by a process column, which must be visible.
    void sortBy(unsigned long processColumn, Qt::SortOrder order);
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// The flags of the source model; rows of a flat list also have Qt::ItemNeverHasChildren.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // As in ProcModel. processAt() takes an index of this proxy; processByPid() is required, but only tests
    // call it.
    gtop_wrappers::Process processAt(const QModelIndex &index) const;
    gtop_wrappers::Process processByPid(int pid) const;
    /// First cell of the process's row; invalid if it has none.
    QModelIndex rowOfPid(int pid) const { return mapFromSource(source->indexOfPid(pid)); }
    void sendSignal(int pid, int signal);
    void sendSignal(const HeldProcess &process, int signal);
    void setPriority(int pid, int priority);
    void setPriority(const HeldProcess &process, int priority);

    void expandAll();
    void collapseAll();

    /// Of the cells and the title of a column in the view. Numbers stand right in right-to-left layouts too.
    Qt::Alignment alignment(int column) const;
    /// What the visible columns say of a process, in the order in which the view shows them, with tabs
    /// between them.
    QString rowText(const gtop_wrappers::Process &process) const;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Of a row that is shown only because one of its descendants matches the filter: true. Otherwise
    /// invalid.
    static constexpr int AncestorOnlyRole = Qt::UserRole + 1;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Shows only what matches (see ProcessFilter) and, in tree mode, its ancestors. An empty text shows
    /// everything. Keeps what was read for the filter, until closeFilter().
    void setFilter(const QString &text);
    void closeFilter();
    bool isFiltered() const { return filter.isActive(); }
    /// Whether the filter lets the process pass, whether or not it has a row.
    bool passesFilter(int pid) const { return filter.accepts(pid); }
    /// Rows that match the filter, and all rows that there are without it.
    int matchCount() const;
    int unfilteredCount() const;
    /// Reads command lines that the filter still lacks, for about this time, and shows what they match.
    void readForFilter(int milliseconds);
    /// False while readForFilter() has something to read.
    bool isFilterComplete() const { return filter.isComplete(); }

    /// Pid of the process in the row; -1 for an invalid index.
    int pidAt(const QModelIndex &row) const;

Q_SIGNALS:
    /// After each refresh and each change of what the filter shows.
    void filtered();
    /// Before and after a change of types, mode or columns. In between come all of its resets; afterwards the
    /// list is empty and wants a refresh.
    void aboutToEmptyList();
    void listEmptied();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    /// Texts by the rules of the user's language, everything else by its value.
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private Q_SLOTS:
    void rankRows() { rankRows(sortColumn()); }
    void forgetRanks() { ranks.clear(); }

private:
    void rankRows(int column);
    void reset();
    void settleFilter();
    void showRows(const std::function<void()> &change);
    void arrangeFiltered();
    void fitColumns();
    void sortByProcessColumn(int processColumn);
    void sortInView(int column, Qt::SortOrder order);
    void update(const ProcModel::Snapshot &snapshot);
    void layOutView();
    void expandAndFitView();

    ProcModel *source;
    QPointer<QTreeView> view;
    ProcessDelegate *delegate;    ///< of the view
    DeepRows *deepRows;           ///< of the view, which owns it
    FittedColumns *fittedColumns; ///< of the view, which owns it
    PaintedRows *paintedRows;     ///< of the view, which owns it
    bool expandAndFit;            ///< in the next layout, as it is the first one or the first after a reset
    int types;
    quint64 currentCpuTotal;
    quint64 previousCpuTotal;
    mutable SortKeys sortKeys;
    SortRanks ranks; ///< of the source's rows by rankedColumn, until values or rows change
    int rankedColumn = -1;
    ListFilter filter;
    TreeExpansion *expansion;
    bool fitUnfiltered; ///< the columns were fitted to filtered rows only
};

#endif
