// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_LISTPLACE_H
#define PROCESS_LISTPLACE_H

#include "process/procmodel.h"

#include <QModelIndex>

class ProxyProcModel;
class QTreeView;

/// Where the user is in the process list: which process is selected, and what is in view. Taken before the
/// rows change and restored afterwards. Processes are followed by pid and start, never by row.
class ListPlace
{
public:
    ListPlace(const ProxyProcModel &model, const QTreeView &view);

    bool hasSelection() const { return selected.pid() != -1; }
    /// True if the selected process is in the snapshot that the list was refreshed with, but has no row: one
    /// that was reparented, or that runs another program, is inserted again with the next refresh only. One
    /// that the filter hides is no longer selected.
    bool isRowless(const ProxyProcModel &model, const ProcModel::Snapshot &snapshot) const;
    /// Selects the row of the same process again, without scrolling; clears the selection if the process is
    /// no longer listed. Left alone, the view would select a neighbour of a removed row.
    void restoreSelection(const ProxyProcModel &model, QTreeView &view) const;
    /// Scrolls to what was in view: the top row, and the selected one if it was. A list at its top stays
    /// there.
    void restoreView(const ProxyProcModel &model, QTreeView &view) const;

private:
    gtop_wrappers::Process selected; ///< Process(-1) without a selection
    gtop_wrappers::Process top;      ///< of the first row in view
    int column;                      ///< of the current index
    bool isExpandedTo;               ///< all ancestors of the selected row are expanded
    bool isInView;                   ///< the selected row
    int verticalValue;               ///< of the scroll bars
    int horizontalValue;
};

/// First cell of the selected row; invalid without a selection. The current index is mostly in that row, but
/// an assistive technology selects without moving it. Of several selected rows the current one counts; if
/// none of them is the current one, it is unknown which is meant, and none counts.
QModelIndex selectedRow(const QTreeView &view);

/// Reads the values of the cells in view that are read on demand. Left to painting, they could be of a
/// process that has exited since its snapshot, and be empty. Does nothing while the view is hidden.
void readCellsInView(const QTreeView &view);

#endif
