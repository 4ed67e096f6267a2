// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/proxyfsmodel.h"

ProxyFsModel::ProxyFsModel(QObject *parent) : QSortFilterProxyModel(parent), model(parent)
{}

ProxyFsModel::~ProxyFsModel() = default;

void ProxyFsModel::setView(QTreeView *treeView)
{
    setSourceModel(&model);
    treeView->setModel(this);
    view = treeView;
}

void ProxyFsModel::update(const std::list<FSInfo> &list)
{
    model.update(list);
    if (!firstUpdate || !view) {
        return;
    }
    for (int column = 0; column < columnCount(); ++column) {
        view->resizeColumnToContents(column);
    }
    firstUpdate = false;
    view->sortByColumn(0, Qt::AscendingOrder);
}

FSInfo ProxyFsModel::itemByMountDir(const QString &mountDir) const
{
    return model.itemByMountDir(mountDir);
}

qint64 ProxyFsModel::availableDevSpace() const
{
    return model.availableDevSpace();
}

qint64 ProxyFsModel::totalDevSpace() const
{
    return model.totalDevSpace();
}

QModelIndex ProxyFsModel::firstIndex() const
{
    return model.firstIndex();
}
