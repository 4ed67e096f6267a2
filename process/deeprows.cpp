// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/deeprows.h"

#include "process/proxyprocmodel.h"

#include <QSignalBlocker>
#include <QTreeView>

#include <vector>

namespace {

const int ordinaryDepth = 32;

struct Row
{
    QModelIndex index;
    int depth;
};

/// `top` and its descendants, parents first.
std::vector<Row> subtree(const QAbstractItemModel &model, const Row &top)
{
    std::vector<Row> rows{top};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row above = rows[i];
        const int children = model.rowCount(above.index);
        for (int row = 0; row < children; ++row) {
            rows.push_back({model.index(row, 0, above.index), above.depth + 1});
        }
    }
    return rows;
}

} // namespace

DeepRows::DeepRows(const ProxyProcModel *model, QTreeView *treeView)
    : QObject(treeView), proxy(model), view(treeView), isAside(false)
{
    connect(proxy, SIGNAL(rowsAboutToBeRemoved(QModelIndex, int, int)), this, SLOT(putAside()));
    connect(proxy, SIGNAL(rowsInserted(QModelIndex, int, int)), this,
            SLOT(forgetInserted(QModelIndex, int, int)));
}

/// Walks the source model, as the proxy would make a mapping even for rows without children.
void DeepRows::putAside()
{
    if (isAside || proxy->isFlat()) {
        return;
    }
    isAside = true;
    const QSignalBlocker silent(view); // it is not the user who collapses them
    for (const Row &row : subtree(*proxy->sourceModel(), {QModelIndex(), 0})) {
        const QModelIndex shown = row.depth > ordinaryDepth ? proxy->mapFromSource(row.index) : QModelIndex();
        if (shown.isValid() && view->isExpanded(shown)) {
            collapsed.insert(row.index.internalId());
            view->collapse(shown);
        }
    }
}

void DeepRows::forgetInserted(const QModelIndex &parent, int first, int last)
{
    for (int row = first; row <= last && !collapsed.empty(); ++row) {
        const QModelIndex inserted = proxy->mapToSource(proxy->index(row, 0, parent));
        for (const Row &below : subtree(*proxy->sourceModel(), {inserted, 0})) {
            collapsed.erase(below.index.internalId());
        }
    }
}

/// From the bottom upward, since expanding a row whose ancestors are all expanded would lay it out.
void DeepRows::restore()
{
    isAside = false;
    if (collapsed.empty()) {
        return;
    }
    const QSignalBlocker silent(view);
    const std::vector<Row> rows = subtree(*proxy->sourceModel(), {QModelIndex(), 0});
    for (auto row = rows.rbegin(); row != rows.rend() && row->depth > ordinaryDepth; ++row) {
        if (collapsed.count(row->index.internalId()) > 0) {
            view->expand(proxy->mapFromSource(row->index));
        }
    }
    collapsed.clear();
}
