// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/treeexpansion.h"

#include "process/proxyprocmodel.h"

#include <QScopedValueRollback>
#include <QTreeView>

TreeExpansion::TreeExpansion(ProxyProcModel *treeModel) : QObject(treeModel), model(treeModel)
{}

void TreeExpansion::follow(QTreeView *treeView)
{
    view = treeView;
    connect(view, SIGNAL(expanded(QModelIndex)), this, SLOT(rowExpanded(QModelIndex)));
    connect(view, SIGNAL(collapsed(QModelIndex)), this, SLOT(rowCollapsed(QModelIndex)));
}

void TreeExpansion::remember()
{
    expanded.clear();
    others = false;
    isRemembering = true;
    forEachParent([this](const QModelIndex &row, int pid) { expanded[pid] = view->isExpanded(row); });
}

void TreeExpansion::filterChanged()
{
    collapsedByUser.clear();
    wasAllCollapsed = false;
}

void TreeExpansion::showMatches(const ShownRows &shown)
{
    if (wasAllCollapsed) {
        return;
    }
    const QScopedValueRollback<bool> arranging(isArranging, true);
    forEachParent([&](const QModelIndex &row, int pid) {
        if (shown.isAncestor(pid) && collapsedByUser.count(pid) == 0) {
            view->expand(row);
        }
    });
}

void TreeExpansion::restore()
{
    const QScopedValueRollback<bool> arranging(isArranging, true);
    forEachParent([this](const QModelIndex &row, int pid) {
        const auto found = expanded.find(pid);
        view->setExpanded(row, found != expanded.end() ? found->second : others);
    });
    expanded.clear();
    isRemembering = false;
}

void TreeExpansion::setAll(bool areExpanded)
{
    expanded.clear();
    collapsedByUser.clear();
    others = areExpanded;
    wasAllCollapsed = !areExpanded;
}

void TreeExpansion::rowExpanded(const QModelIndex &row)
{
    note(row, true);
}

void TreeExpansion::rowCollapsed(const QModelIndex &row)
{
    note(row, false);
}

void TreeExpansion::note(const QModelIndex &row, bool isExpanded)
{
    if (!isRemembering || isArranging) {
        return;
    }
    const int pid = model->pidAt(row);
    expanded[pid] = isExpanded;
    if (isExpanded) {
        collapsedByUser.erase(pid);
    } else {
        collapsedByUser.insert(pid);
    }
}

/// Iterative, since a line of ancestors can be as long as the process table.
void TreeExpansion::forEachParent(const Visit &visit) const
{
    if (!view || model->isFlat()) {
        return;
    }
    std::vector<QModelIndex> parents{QModelIndex()};
    while (!parents.empty()) {
        const QModelIndex parent = parents.back();
        parents.pop_back();
        if (parent.isValid()) {
            visit(parent, model->pidAt(parent));
        }
        for (int row = 0; row < model->rowCount(parent); ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            if (model->rowCount(index) > 0) {
                parents.push_back(index);
            }
        }
    }
}
