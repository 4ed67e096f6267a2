// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_LISTVIEW_H
#define TESTS_PROCESS_LISTVIEW_H

#include "process/proxyprocmodel.h"
#include "tests/process/support/synthetic.h"

#include <QList>
#include <QTreeView>

class View : public QTreeView
{
public:
    int columnHint(int column) const { return sizeHintForColumn(column); }
};

/// A proxy with its view.
struct List
{
    List() : proxy(new ProxyProcModel(&owner))
    {
        view.setSortingEnabled(true);
        view.setUniformRowHeights(true);
        proxy->setView(&view);
        source = qobject_cast<ProcModel *>(proxy->sourceModel());
    }
    QList<int> pids() const
    {
        QList<int> all;
        for (int row = 0; row < proxy->rowCount(); ++row) {
            all.append(proxy->processAt(proxy->index(row, 0)).pid());
        }
        return all;
    }
    QModelIndex find(int pid) const
    {
        const QVariant wanted(pid);
        for (int row = 0; row < proxy->rowCount(); ++row) {
            if (proxy->index(row, gtop_wrappers::PidColumn).data() == wanted) {
                return proxy->index(row, 0);
            }
        }
        return QModelIndex();
    }

    QObject owner;
    View view;
    ProxyProcModel *proxy;
    ProcModel *source = nullptr;
};

#endif
