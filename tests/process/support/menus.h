// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_MENUS_H
#define TESTS_PROCESS_MENUS_H

#include "process/processmenu.h"
#include "process/proxyprocmodel.h"
#include "tests/process/support/synthetic.h"

#include <QAction>
#include <QMenu>
#include <QTreeView>

/// The process actions with the list and the view that they work on.
struct Desk
{
    Desk() : list(new ProxyProcModel(&owner)), actions(new ProcessMenu(&owner, list))
    {
        list->setView(&view);
    }

    /// The action of that text; null if there is none.
    QAction *action(const char *text) const
    {
        for (QAction *const candidate : actions->findChildren<QAction *>()) {
            if (candidate->text() == QLatin1String(text)) {
                return candidate;
            }
        }
        return nullptr;
    }
    void trigger(const char *text) const { action(text)->trigger(); }

    /// Makes a process of that pid and state the selected one.
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
