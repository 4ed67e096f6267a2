// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROXYPROCMODEL_H
#define PROCESS_PROXYPROCMODEL_H

#include "process/procmodel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTreeView>

/// The sorted process list that the view shows, and the one object through which the rest of the program
/// reaches the processes.
class ProxyProcModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    /// Makes the process model too, with the same parent.
    explicit ProxyProcModel(QObject *parent);
    ~ProxyProcModel() override;

    /// Puts the list into the view. Needed before the first refresh; the view is not owned.
    void setView(QTreeView *treeView);

    /// The machine's CPU time since boot, in the unit of Process::getCpuLoad(); told before each refresh.
    void setTotalCpuTime(unsigned long total);
    /// Brings list and view up to date; the first time and after a reset expands all rows and fits the
    /// columns. The second argument is unused.
    void refresh(const ProcModel::Snapshot &snapshot, int = 0);

    /// As long as the layout is held, refreshes owe the view its rows and column widths; it gets them in the
    /// end. For changes in a row that nobody sees.
    void setLayoutHeld(bool held);

    /// Which processes are listed: a gtop_wrappers::ProcessTypes.
    int processTypes() const { return types; }
    void setProcessTypes(int processTypes);
    bool isFlat() const;
    void setFlat(bool on);
    /// Both throw std::out_of_range past the last process column.
    bool isColumnVisible(unsigned long i) const;
    void setColumnVisible(unsigned long i, bool on);

    /// The process column that the list is sorted by; -1 if it is not sorted.
    int sortedColumn() const { return source->processColumn(sortColumn()); }

    /// The source's; in a flat list also that no row ever has children.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// The process of a row of this proxy; Process(-1) for an invalid index.
    gtop_wrappers::Process processAt(const QModelIndex &index) const;
    gtop_wrappers::Process processByPid(int pid) const;
    /// As ProcModel's.
    void sendSignal(int pid, int signal);
    void setPriority(int pid, int priority);

    void expandAll();
    void collapseAll();

private:
    void reset();
    void payLayout();
    void layOutView();

    ProcModel *source;
    QPointer<QTreeView> view;
    bool pendingLayout; ///< expand the tree and fit the columns after the next refresh
    bool layoutHeld;
    bool layoutOwed; ///< a refresh came while the layout was held
    int types;
    quint64 currentCpuTotal;
    quint64 previousCpuTotal;
};

#endif
