// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_PROXYFSMODEL_H
#define FS_PROXYFSMODEL_H

#include "fs/fsmodel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTreeView>

/// The file system table as the user sorts it: owns the model and feeds the page's view. Sorting compares
/// the texts shown.
class ProxyFsModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ProxyFsModel(QObject *parent = nullptr);
    ~ProxyFsModel() override;

    /// Shows the model in `treeView`, which must not be null. To be called once.
    void setView(QTreeView *treeView);

    /// Brings the rows in step with a fresh mount list. The first update that has a view also fits its
    /// columns to their contents and sorts by mount point; from then on the user's header clicks decide.
    void update(const std::list<FSInfo> &list);

    /// See FSModel.
    FSInfo itemByMountDir(const QString &mountDir) const;
    /// See FSModel. Bytes.
    qint64 availableDevSpace() const;
    /// See FSModel. Bytes.
    qint64 totalDevSpace() const;
    /// See FSModel. An index of the source model, not of this proxy.
    QModelIndex firstIndex() const;

private:
    FSModel model;
    QPointer<QTreeView> view; ///< null until setView, and once the view is gone
    bool firstUpdate = true;
};

#endif
