// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_FSMODEL_H
#define FS_FSMODEL_H

#include "fs/fsitem.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <tr1/memory>
#include <vector>

/// The mounted file systems as a table, one row per device name, in the order in which they appeared.
/// Rows carry seven cells, of which the table shows two. The mount point is every cell's Qt::UserRole.
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

    /// Brings the rows in step with a fresh mount list, row by row and without a reset.
    void update(const std::list<FSInfo> &list);

    /// What the first row mounted at `mountDir` shows; an empty record if there is none.
    FSInfo itemByMountDir(const QString &mountDir) const;
    /// Bytes that ordinary users may still fill on all rows whose device begins with "/dev".
    qint64 availableDevSpace() const;
    /// Bytes in all on the rows whose device begins with "/dev".
    qint64 totalDevSpace() const;
    /// Row 0, column 0, with the row's object as internal pointer, which nothing ever follows; invalid if
    /// there is no row.
    QModelIndex firstIndex() const;

private:
    void updateAndInsert(const std::list<FSInfo> &list);
    void removeUnmounted(const std::list<FSInfo> &list);
    QIcon icon(const FSInfo &info) const;
    qint64 sumOverDevices(qint32 FSInfo::*count) const;

    std::vector<std::tr1::shared_ptr<FSItem>> rows;
    // Made for the first cell that is painted, since that takes a while, and kept.
    mutable QIcon opticalFallback;
    mutable QIcon diskFallback;
};

#endif
