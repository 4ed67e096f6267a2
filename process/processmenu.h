// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCESSMENU_H
#define PROCESS_PROCESSMENU_H

#include "process/gtop_wrappers/process.h"

#include <QMenu>
#include <QObject>
#include <QPointer>

class ProxyProcModel;
class QAction;
class QActionGroup;

/// The actions of the process list and of the selected process. They are children of this object and are
/// put into menus by fillMenu().
class ProcessMenu : public QObject
{
    Q_OBJECT
public:
    ProcessMenu(QObject *parent, ProxyProcModel *proxy);

    /// Adds the actions to a menu; may be called for several menus.
    void fillMenu(QMenu *menu);
    /// The selected process, Process(-1) for none: shows, enables and checks the actions accordingly.
    void setProcess(const gtop_wrappers::Process &process);
    /// Enables or disables the visible actions; invisible ones are left alone.
    void setActionsEnabled(bool on);

public Q_SLOTS:
    /// Carries out the action that sent the signal.
    void process();

private:
    struct ActionRow;
    static const ActionRow actionRows[];
    static QAction *ProcessMenu::*const menuOrder[];

    void createAction(const ActionRow &row, QActionGroup *&group);
    void updateListActions();
    void updateSignalActions();
    void signalSelected(int signal);
    void changePriorityOfSelected();

    QAction *treeView;
    QAction *expandAll;
    QAction *collapseAll;
    QAction *myProcesses;
    QAction *allProcesses;
    QAction *stopProcess;
    QAction *continueProcess;
    QAction *terminateProcess;
    QAction *killProcess;
    QAction *changePriority;
    ProxyProcModel *model;
    gtop_wrappers::Process selected; ///< a copy, which can be stale
    QPointer<QMenu> lastMenu;        ///< a context menu is gone before the next one is filled
};

#endif
