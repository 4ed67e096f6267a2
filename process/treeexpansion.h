// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_TREEEXPANSION_H
#define PROCESS_TREEEXPANSION_H

#include "process/shownrows.h"

#include <QObject>

#include <functional>
#include <unordered_map>
#include <unordered_set>

class ProxyProcModel;
class QTreeView;

/// Which rows of the tree are expanded, remembered by pid while a filter hides rows and expands the way to
/// those that match. What the user expands or collapses in the meantime counts.
///
/// Rows are expanded and collapsed while the view has a layout pending, since each takes a search through all
/// rows otherwise.
class TreeExpansion : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the model.
    explicit TreeExpansion(ProxyProcModel *model);
    /// Follows this view, which is not owned and must not be null.
    void follow(QTreeView *treeView);

    /// Remembers all rows, until restore().
    void remember();
    /// Expands what leads to a match, except rows that the user has collapsed since the last change of the
    /// filter.
    void showMatches(const ShownRows &shown);
    void filterChanged();
    /// Brings back what was remembered.
    void restore();
    /// All rows have been expanded or collapsed.
    void setAll(bool expanded);

private Q_SLOTS:
    void rowExpanded(const QModelIndex &row);
    void rowCollapsed(const QModelIndex &row);

private:
    using Visit = std::function<void(const QModelIndex &row, int pid)>;

    void forEachParent(const Visit &visit) const;
    void note(const QModelIndex &row, bool expanded);

    ProxyProcModel *model;
    QTreeView *view = nullptr;
    bool isRemembering = false;
    bool isArranging = false; ///< it is this object that expands or collapses
    bool wasAllCollapsed = false;
    bool others = false;                     ///< whether rows that are not remembered are expanded
    std::unordered_map<int, bool> expanded;  ///< by pid
    std::unordered_set<int> collapsedByUser; ///< since the last change of the filter
};

#endif
