// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/fsmodel.h"

#include "images/icons.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

/// Header titles of all seven columns, although the table shows only the first two.
const char *const titles[] = {
    QT_TRANSLATE_NOOP("FSModel", "Mountpoint"), QT_TRANSLATE_NOOP("FSModel", "Type"),
    QT_TRANSLATE_NOOP("FSModel", "Device"),     QT_TRANSLATE_NOOP("FSModel", "Total space"),
    QT_TRANSLATE_NOOP("FSModel", "Free space"), QT_TRANSLATE_NOOP("FSModel", "Available space"),
    QT_TRANSLATE_NOOP("FSModel", "Files"),
};

bool isOpticalType(const QString &type)
{
    return type.startsWith(QLatin1String("iso")) || type == QLatin1String("udf");
}

} // namespace

FSModel::FSModel(QObject *parent)
    : QAbstractTableModel(parent),
      opticalIcon(themedIcon(QStringLiteral("drive-optical"), QStringLiteral(":/images/cd"))),
      diskIcon(themedIcon(QStringLiteral("drive-harddisk"), QStringLiteral(":/images/hard")))
{}

FSModel::~FSModel() = default;

int FSModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int FSModel::columnCount(const QModelIndex & /*parent*/) const
{
    // Intentional: rows have seven cells, but the other figures are shown by the details panel.
    return 2;
}

QVariant FSModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return QVariant();
    }
    const FSItem &row = *rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.cells.value(index.column());
    case Qt::DecorationRole:
        return index.column() == 0 ? QVariant(icon(row.item)) : QVariant();
    case Qt::UserRole:
        return row.item.mountDir;
    default:
        return QVariant();
    }
}

QVariant FSModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= static_cast<int>(std::size(titles))) {
        return QVariant();
    }
    return tr(titles[section]);
}

void FSModel::update(const std::list<FSInfo> &list)
{
    updateAndInsert(list);
    removeUnmounted(list);
}

/// Intentional: the two passes match rows by different keys. This one goes by device, so a device mounted
/// twice has one row, which shows the later mount; the other one goes by mount point.
void FSModel::updateAndInsert(const std::list<FSInfo> &list)
{
    QHash<QString, int> rowOfDevice;
    for (const auto &row : rows) {
        rowOfDevice.insert(row->item.device, rowOfDevice.size());
    }
    for (const FSInfo &info : list) {
        const int count = rowCount();
        const int found = rowOfDevice.value(info.device, count);
        if (found < count) {
            rows[static_cast<std::size_t>(found)]->setItem(info);
            // Intentional: the bottom right is one past the last column and thereby an invalid index.
            Q_EMIT dataChanged(index(found, 0), index(found, columnCount()));
            continue;
        }
        beginInsertRows(QModelIndex(), count, count);
        rows.push_back(std::tr1::shared_ptr<FSItem>(new FSItem(info)));
        endInsertRows();
        rowOfDevice.insert(info.device, count);
    }
}

/// Intentional: after an erase the walk skips the row that moved into the gap, which may thus stay until the
/// next refresh, and doesn't count it, so each removal is announced one row too low per earlier removal of
/// the walk.
void FSModel::removeUnmounted(const std::list<FSInfo> &list)
{
    QSet<QString> mountDirs;
    for (const FSInfo &info : list) {
        mountDirs.insert(info.mountDir);
    }
    int announced = 0;
    auto row = rows.begin();
    while (row != rows.end()) {
        if (mountDirs.contains((*row)->item.mountDir)) {
            ++announced;
            ++row;
            continue;
        }
        beginRemoveRows(QModelIndex(), announced, announced);
        row = rows.erase(row);
        endRemoveRows();
        if (row != rows.end()) {
            ++row;
        }
    }
}

FSInfo FSModel::itemByMountDir(const QString &mountDir) const
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&mountDir](const auto &row) { return row->item.mountDir == mountDir; });
    return found != rows.end() ? (*found)->item : FSInfo();
}

qint64 FSModel::availableDevSpace() const
{
    return sumOverDevices(&FSInfo::availBlocks);
}

qint64 FSModel::totalDevSpace() const
{
    return sumOverDevices(&FSInfo::blocks);
}

QModelIndex FSModel::firstIndex() const
{
    return rows.empty() ? QModelIndex() : createIndex(0, 0, rows.front().get());
}

QIcon FSModel::icon(const FSInfo &info) const
{
    return isOpticalType(info.type) ? opticalIcon : diskIcon;
}

qint64 FSModel::sumOverDevices(qint32 FSInfo::*count) const
{
    quint64 bytes = 0; // unsigned, since wrapped counts may overflow the sum
    for (const auto &row : rows) {
        if (row->item.device.startsWith(QLatin1String("/dev"))) {
            bytes += blocksToBytes(row->item.*count, row->item.blockSize);
        }
    }
    return static_cast<qint64>(bytes);
}
