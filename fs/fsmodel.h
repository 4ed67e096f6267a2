// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_FSMODEL_H
#define FS_FSMODEL_H

#include "fs/fsitem.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <tr1/memory>
#include <vector>

/// Table of the mounted file systems, one row per device name, in order of appearance. Rows have seven cells,
/// of which the table shows two. Qt::UserRole of every cell is the mount point.
class FSModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit FSModel(QObject *parent = nullptr);
    ~FSModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Updates, inserts and removes single rows to match a fresh mount list; never resets the model.
    void update(const std::list<FSInfo> &list);

    /// The record of the first row that is mounted at `mountDir`; an empty one if there is none.
    FSInfo itemByMountDir(const QString &mountDir) const;
    /// Sum of the bytes available to ordinary users over the rows whose device begins with "/dev".
    qint64 availableDevSpace() const;
    /// Sum of the total bytes over the rows whose device begins with "/dev".
    qint64 totalDevSpace() const;
    /// Row 0, column 0, with the row's object as internal pointer, which is never dereferenced; invalid if
    /// there is no row. Called by tests only.
    QModelIndex firstIndex() const;

private:
    void updateAndInsert(const std::list<FSInfo> &list);
    void removeUnmounted(const std::list<FSInfo> &list);
    QIcon icon(const FSInfo &info) const;
    qint64 sumOverDevices(qint32 FSInfo::*count) const;

    std::vector<std::tr1::shared_ptr<FSItem>> rows;
    QIcon opticalIcon;
    QIcon diskIcon;
};

#endif
