// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_PROXYFSMODEL_H
#define FS_PROXYFSMODEL_H

#include "fs/fsmodel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTreeView>

/// Sorting proxy of the file system table: owns the model and feeds the page's view. Sorts by the texts
/// shown.
class ProxyFsModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ProxyFsModel(QObject *parent = nullptr);
    ~ProxyFsModel() override;

    /// Shows the model in `treeView`, which must not be null. Must be called only once.
    void setView(QTreeView *treeView);

    /// Updates the model from a fresh mount list. The first update with a view also resizes its columns to
    /// their contents and sorts by mount point; after that the user's header clicks decide.
    void update(const std::list<FSInfo> &list);

    /// See FSModel.
    FSInfo itemByMountDir(const QString &mountDir) const;
    /// See FSModel. Bytes.
    qint64 availableDevSpace() const;
    /// See FSModel. Bytes.
    qint64 totalDevSpace() const;
    /// See FSModel. An index of the source model, not of this proxy; called by tests only.
    QModelIndex firstIndex() const;

private:
    /// Also a QObject child of the proxy's own parent. It is not deleted twice: that parent deletes the
    /// proxy, its earlier child, first, and the model's destructor then removes the model from the parent's
    /// children. This holds only as long as the proxy is not reparented.
    FSModel model;
    QPointer<QTreeView> view; ///< null before setView() and after the view is destroyed
    bool firstUpdate = true;
};

#endif
