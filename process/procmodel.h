// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCMODEL_H
#define PROCESS_PROCMODEL_H

#include "process/completetree.h"
#include "process/gtop_wrappers/process.h"
#include "process/processcontrol.h"
#include "process/procitem.h"

#include <QAbstractItemModel>

#include <map>
#include <tr1/memory>
#include <unordered_set>
#include <vector>

struct InsertedLine;

/// The processes as a tree by parent pid or as a flat list, updated from snapshots.
///
/// The internal id of an index is the pid, which is looked up in a map, so an index that outlives its item is
/// harmless.
class ProcModel : public QAbstractItemModel
{
    Q_OBJECT
public:
    using Snapshot = std::map<int, gtop_wrappers::Process>;

    explicit ProcModel(QObject *parent = nullptr);
    ~ProcModel() override;

    /// Invalid outside the rows and the visible columns.
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /// Qt::DisplayRole gives the shown value, Qt::UserRole the value to sort by; other roles give none.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    bool isFlat() const { return flat; }
    /// A change of mode empties the model.
    void setFlat(bool on);

    /// Whether the tree has every process once, under its parent. Off at first, and without effect on a flat
    /// list.
    bool isComplete() const { return complete; }
    /// A change empties a tree.
    void setComplete(bool on);

    /// Throws std::out_of_range past the last process column.
    bool isColumnVisible(unsigned long i) const;
    /// Throws std::out_of_range past the last process column. Emits no signal: the caller must reset.
    void setColumnVisible(unsigned long i, bool on);

    /// The process column shown in the model's column `column`; -1 if there is none.
    int processColumn(int column) const;
    /// The model's column that shows this process column; -1 if it is hidden.
    int columnOf(unsigned long processColumn) const;

    /// Removes all processes; the columns and the mode stay.
    void clear();
    /// Makes the model match the snapshot. `totalDelta` is the CPU time of the machine since the last
    /// refresh, in the unit of Process::getCpuLoad(). The third argument is required, but unused.
    void update(const Snapshot &snapshot, unsigned long totalDelta, int = 0);

    // As in processcontrol.h. A pid means the process that the model has under it or, if there is none, the
    // pid itself.
    void sendSignal(int pid, int signal);
    void sendSignal(const HeldProcess &process, int signal);
    void setPriority(int pid, int priority);
    void setPriority(const HeldProcess &process, int priority);

    /// A copy of the process; Process(-1) if it is not in the model.
    gtop_wrappers::Process processByPid(int pid) const;
    /// A copy of the process in the row of `index`; Process(-1) for an invalid or stale index.
    gtop_wrappers::Process processAt(const QModelIndex &index) const;
    /// First cell of the process's row; invalid if it has none.
    QModelIndex indexOfPid(int pid) const;

    struct Row
    {
        const gtop_wrappers::Process *process; ///< valid until the next change of the model
        int parent;                            ///< position in rows(); -1 at the top
    };
    /// All rows, parents before their children.
    std::vector<Row> rows() const;

private:
    using ItemPtr = std::tr1::shared_ptr<ProcItem>;
    using ProcessList = std::vector<const gtop_wrappers::Process *>;

    /// The difference between a snapshot and the items.
    struct Matches
    {
        ProcessList known;      ///< to be updated
        ProcessList fresh;      ///< to be inserted
        std::vector<int> stale; ///< pids to be removed last, ascending
    };

    ProcItem *itemOf(const QModelIndex &index) const;
    ProcItem *itemByPid(int pid) const;
    QModelIndex indexOf(const ProcItem *item) const;

    Matches matchSnapshot(const Snapshot &snapshot);
    void updateKnown(const ProcessList &known, quint64 totalDelta);
    void insertFresh(const ProcessList &fresh, const Snapshot &snapshot, quint64 totalDelta);
    void insert(const InsertedLine &line, quint64 totalDelta);
    void removeReplaced(int pid);
    void removeSubtrees(const std::vector<int> &pids);
    void removeSubtree(ProcItem *top);
    // The same for the complete tree: procmodel_complete.cpp
    void updateComplete(const Snapshot &snapshot, quint64 totalDelta);
    TreePlaces currentPlaces() const;
    ProcItem *parentAt(const TreePlace &place) const;
    void insertAt(const TreePlaces &places, const Snapshot &snapshot, quint64 totalDelta);
    void updateAll(const Snapshot &snapshot, quint64 totalDelta);
    void moveTo(const TreePlaces &places);
    void followMoved(const std::vector<const ProcItem *> &parents);
    void removeItems(const std::vector<int> &pids);
    void removeChildren(ProcItem *parent, const std::unordered_set<const ProcItem *> &leaving);
    void destroyItems();
    void rebuildVisibleColumns();

    ItemPtr root;
    std::map<int, ItemPtr> items;
    bool flat;
    bool complete;
    std::vector<bool> columnVisibility;
    std::vector<unsigned long> visibleColumns;
};

#endif
