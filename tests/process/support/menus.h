// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_MENUS_H
#define TESTS_PROCESS_MENUS_H

#include "process/processmenu.h"
#include "process/proxyprocmodel.h"
#include "tests/process/support/synthetic.h"

#include <QAction>
#include <QMenu>
#include <QTreeView>

/// The process actions with the list and the view that they act on.
struct Desk
{
    Desk() : list(new ProxyProcModel(&owner)), actions(new ProcessMenu(&owner, list))
    {
        list->setView(&view);
    }

    /// The action of that text; null if there is none.
    QAction *action(const char *text) const
    {
        for (QAction *candidate : actions->findChildren<QAction *>()) {
            if (candidate->text() == QLatin1String(text)) {
                return candidate;
            }
        }
        return nullptr;
    }
    void trigger(const char *text) const { action(text)->trigger(); }
    /// Triggers an action that is none of the menu's own, with that data.
    void triggerForeign(const QVariant &data) const
    {
        QAction foreign;
        QObject::connect(&foreign, SIGNAL(triggered(bool)), actions, SLOT(process()));
        foreign.setData(data);
        foreign.trigger();
    }

    /// Selects a process of that pid, state and nice value.
    void select(int pid, int state = 1, int nice = 0) const
    {
        Facts facts;
        facts.pid = pid;
        facts.state = state;
        facts.nice = nice;
        actions->setProcess(makeProcess(facts));
    }

    QObject owner;
    QTreeView view;
    ProxyProcModel *list;
    ProcessMenu *actions;
};

#endif
