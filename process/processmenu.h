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

/// The actions on the process list and on the selected process. The actions are children of this object and
/// are shared by all the menus that fillMenu() fills.
class ProcessMenu : public QObject
{
    Q_OBJECT
public:
    /// `proxy` is not owned and must outlive this object.
    ProcessMenu(QObject *parent, ProxyProcModel *proxy);

    /// Appends the actions to `menu`; may be called for several menus.
    void fillMenu(QMenu *menu);
    /// Selects a copy of `process`, Process(-1) for none, and shows, enables and checks the actions for it.
    void setProcess(const gtop_wrappers::Process &process);
    /// Enables or disables every visible action below this object; invisible ones are left alone.
    void setActionsEnabled(bool on);

public Q_SLOTS:
    /// Runs the command of the QAction that is the sender; any other caller gets a critical log line.
    void process();

Q_SIGNALS:
    /// "Find process..." was chosen.
    void findRequested();

private:
    struct ActionRow;
    static const ActionRow actionRows[];
    static QAction *ProcessMenu::*const menuOrder[];

    static bool confirmSignal(int signal, const gtop_wrappers::Process &process);
    void createAction(const ActionRow &row, QActionGroup *&group);
    void updateListActions();
    void updateSignalActions();
    void signalSelected(int signal);
    void changePriorityOfSelected();

    QAction *treeView;
    QAction *expandAll;
    QAction *collapseAll;
    QAction *completeTree;
    QAction *myProcesses;
    QAction *allProcesses;
    QAction *stopProcess;
    QAction *continueProcess;
    QAction *terminateProcess;
    QAction *killProcess;
    QAction *changePriority;
    QAction *copyRow;
    QAction *findProcess;
    ProxyProcModel *model;
    gtop_wrappers::Process selected; ///< a copy, which can be stale
    /// Required, but never read. Guarded, since a context menu is deleted long before this object.
    QPointer<QMenu> lastMenu;
};

#endif
