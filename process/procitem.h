// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCITEM_H
#define PROCESS_PROCITEM_H

#include "process/gtop_wrappers/process.h"

#include <QList>
#include <QVariant>

#include <vector>

/// One process of the model, or the invisible root above all. ProcModel's map owns the items; parents and
/// children know one another by plain pointers.
class ProcItem
{
public:
    /// An item without a process (pid -1). It knows its parent at once; the parent knows it from append() on.
    ProcItem(const QList<QVariant> &itemData, ProcItem *parent);
    /// Leaves its parent; its children live on without one.
    ~ProcItem();

    int pid() const { return itemProcess.pid(); }
    const gtop_wrappers::Process &process() const { return itemProcess; }

    ProcItem *parent() const { return parentItem; }
    int childCount() const { return static_cast<int>(children.size()); }
    /// The child in that row; null outside.
    ProcItem *child(int row) const;
    /// Position among the parent's children; 0 without a parent.
    int row() const;
    /// Whether the chain of parents reaches `ancestor`.
    bool hangsUnder(const ProcItem *ancestor) const;

    void append(ProcItem *child) { children.push_back(child); }
    /// Goes out of the parent's children and forgets the parent.
    void leaveParent();
    /// Forgets parent and children without telling them: for taking everything down at once.
    void forgetRelatives();

    /// Starts a refresh: the item has not been updated in it.
    void startPass() { updated = false; }
    /// Takes over the values of `fresh` and computes its CPU load against `totalDelta`, the machine's CPU
    /// time since the last refresh in the unit of getCpuLoad(). False if already done in this refresh.
    bool update(const gtop_wrappers::Process &fresh, quint64 totalDelta);

private:
    Q_DISABLE_COPY(ProcItem)

    double takeCpuShare(int counter, quint64 totalDelta);

    std::vector<ProcItem *> children;
    QList<QVariant> itemData; ///< empty for every item
    ProcItem *parentItem;
    gtop_wrappers::Process itemProcess;
    qint64 previousCpu; ///< CPU counter at the last update; 0 = none yet
    double cpuPercent;
    bool updated;
};

#endif
