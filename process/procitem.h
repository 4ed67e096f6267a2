// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCITEM_H
#define PROCESS_PROCITEM_H

#include "process/gtop_wrappers/process.h"

#include <QList>
#include <QVariant>

#include <vector>

/// A node of ProcModel: one process, or the invisible root. ProcModel owns the items; parents and children
/// refer to one another by plain pointers.
class ProcItem
{
public:
    /// An item for Process(-1). It refers to its parent at once, but becomes its child only by append().
    ProcItem(const QList<QVariant> &data, ProcItem *parent);
    /// Leaves its parent; its children stay alive without a parent.
    ~ProcItem();

    int pid() const { return itemProcess.pid(); }
    const gtop_wrappers::Process &process() const { return itemProcess; }

    ProcItem *parent() const { return parentItem; }
    int childCount() const { return static_cast<int>(children.size()); }
    /// The child at `row`; null if there is none.
    ProcItem *child(int row) const;
    /// Position among the parent's children; 0 without a parent.
    int row() const;
    bool isDescendantOf(const ProcItem *ancestor) const;

    /// Does not set the child's parent, which the constructor did.
    void append(ProcItem *child) { children.push_back(child); }
    /// Removes itself from the parent's children and clears the parent.
    void leaveParent();
    /// Appends itself to another parent's children. The one before keeps it until forgetMovedChildren().
    void moveTo(ProcItem *parent);
    /// Drops the children that have another parent by now.
    void forgetMovedChildren();
    /// Clears parent and children without updating them; only for destroying all items at once.
    void forgetRelatives();

    /// Another process has the pid: its CPU load begins anew.
    void restart() { previousCpu = 0; }
    /// Begins a refresh: update() works once until the next call.
    void startPass() { updated = false; }
    /// Copies the values of `fresh` and computes the CPU load relative to `totalDelta`, the CPU time of the
    /// machine since the last refresh in the unit of getCpuLoad(). The load is also written into the CPU
    /// value that `fresh` shares with this item. Returns false if already called in this refresh.
    bool update(const gtop_wrappers::Process &fresh, quint64 totalDelta);

private:
    Q_DISABLE_COPY(ProcItem)

    double nextCpuShare(int counter, quint64 totalDelta);

    std::vector<ProcItem *> children;
    QList<QVariant> itemData; ///< required; empty for every item and never read
    ProcItem *parentItem;
    gtop_wrappers::Process itemProcess;
    qint64 previousCpu; ///< CPU counter at the last update; 0 = none yet
    double cpuPercent;  ///< required; the CPU column holds the load that is shown
    bool updated;       ///< in the current refresh
};

#endif
