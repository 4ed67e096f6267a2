// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_DEEPROWS_H
#define PROCESS_DEEPROWS_H

#include <QObject>

#include <unordered_set>

class ProxyProcModel;
class QModelIndex;
class QTreeView;

/// Keeps removals from a deep tree fast. QTreeView has a persistent index for each expanded row, and at each
/// removal Qt walks from every one of them up to the root. Therefore the expanded rows deep in the tree are
/// collapsed before the first removal of a refresh, and those that were not inserted anew are expanded again
/// after it. Trees of ordinary depth are left alone.
class DeepRows : public QObject
{
    Q_OBJECT
public:
    /// The view, which owns this object, must already show the model: told of a removal first, it has dropped
    /// its layout, so that collapsing a row takes no time.
    DeepRows(const ProxyProcModel *model, QTreeView *treeView);

    /// To be called after each refresh, before the view lays out.
    void restore();

private Q_SLOTS:
    void putAside();
    void forgetInserted(const QModelIndex &parent, int first, int last);

private:
    const ProxyProcModel *proxy;
    QTreeView *view;
    bool isAside;                           ///< since the last restore()
    std::unordered_set<quintptr> collapsed; ///< pids
};

#endif
