// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processmenu.h"

#include "images/icons.h"
#include "process/dlgnice.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDebug>
#include <QMessageBox>

#include <sys/resource.h>

#include <cerrno>

using gtop_wrappers::IntProcessParam;
using gtop_wrappers::Process;

namespace {

/// What an action does: the first number of its data. The second is the argument.
enum CommandKind {
    SetTypes = 0,         ///< argument: gtop_wrappers::ProcessTypes
    SendSignal = 1,       ///< argument: signal number
    ExpandOrCollapse = 2, ///< argument: 1 expands all rows, 0 collapses them
    ToggleTree = 3,       ///< no argument
    ChangePriority = 4    ///< no argument
};
const int none = -1;

const int stoppedState = 16; // libgtop's code

/// The question before a signal. The texts are meant as they are, wording included.
struct Confirmation
{
    int signal;
    const char *title;
    const char *text;
};

const Confirmation confirmations[] = {
    {19, QT_TRANSLATE_NOOP("ProcessMenu", "Process stopping"),
     QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to stop process?\n"
                                      "You would be able to resume it later.")},
    {18, QT_TRANSLATE_NOOP("ProcessMenu", "Process resuming"),
     QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to resume process?")},
    {15, QT_TRANSLATE_NOOP("ProcessMenu", "Process terminating"),
     QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to terminate process?\n"
                                      "Process will have ability to finish normally.")},
    {9, QT_TRANSLATE_NOOP("ProcessMenu", "Process killing"),
     QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to kill process?\n"
                                      "Process will no have ability to finish normally.\n"
                                      "All process data can be lost.")},
    {none, QT_TRANSLATE_NOOP("ProcessMenu", "Unknown signal"),
     QT_TRANSLATE_NOOP("ProcessMenu", "Unknown signal")},
};

const Confirmation &confirmationOf(int signal)
{
    const Confirmation *row = confirmations;
    while (row->signal != signal && row->signal != none) {
        ++row;
    }
    return *row;
}

/// Asks before a signal is sent. Cancel is the default, so that a stray Enter sends nothing.
bool confirm(int signal)
{
    const Confirmation &question = confirmationOf(signal);
    return QMessageBox::question(nullptr, ProcessMenu::tr(question.title), ProcessMenu::tr(question.text),
                                 QMessageBox::Ok | QMessageBox::Cancel,
                                 QMessageBox::Cancel) == QMessageBox::Ok;
}

/// Value of an integer column of a process; null if the column has none.
std::tr1::shared_ptr<IntProcessParam> intParam(const Process &process, unsigned long column)
{
    return std::tr1::dynamic_pointer_cast<IntProcessParam>(process.getParam(column));
}

/// The nice value that the kernel has now; if it does not tell, the one that was read with the process.
int niceOf(const Process &process)
{
    if (process.pid() > 0) {
        errno = 0; // -1 is a nice value too
        const int nice = getpriority(PRIO_PROCESS, static_cast<id_t>(process.pid()));
        if (errno == 0) {
            return nice;
        }
    }
    const gtop_wrappers::ParamPtr nice = process.getParam(gtop_wrappers::NiceColumn);
    return nice ? nice->sortValue().toInt() : 0;
}

/// How an action is checked.
enum Checking { Plain, Checkable, Exclusive };

} // namespace

struct ProcessMenu::ActionRow
{
    QAction *ProcessMenu::*member;
    const char *text;
    const char *shortcut;
    const char *themeIcon;
    const char *fallbackIcon;
    Checking checking;
    CommandKind kind;
    int argument;
};

// clang-format off
/// In the order of creation.
const ProcessMenu::ActionRow ProcessMenu::actionRows[] = {
    {&ProcessMenu::treeView, QT_TRANSLATE_NOOP("ProcessMenu", "Tree view"),
     "Ctrl+F", "", "", Checkable, ToggleTree, none},
    {&ProcessMenu::expandAll, QT_TRANSLATE_NOOP("ProcessMenu", "Expand all"),
     "", "", "", Plain, ExpandOrCollapse, 1},
    {&ProcessMenu::collapseAll, QT_TRANSLATE_NOOP("ProcessMenu", "Collapse all"),
     "", "", "", Plain, ExpandOrCollapse, 0},
    {&ProcessMenu::allProcesses, QT_TRANSLATE_NOOP("ProcessMenu", "All processes"),
     "Ctrl+A", "", "", Exclusive, SetTypes, gtop_wrappers::AllProcesses},
    {&ProcessMenu::myProcesses, QT_TRANSLATE_NOOP("ProcessMenu", "My processes"),
     "Ctrl+M", "", "", Exclusive, SetTypes, gtop_wrappers::MyProcesses},
    {&ProcessMenu::stopProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Stop process"),
     "Ctrl+S", "media-playback-pause", ":/images/pause", Plain, SendSignal, 19},
    {&ProcessMenu::continueProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Continue process"),
     "Ctrl+C", "media-playback-start", ":/images/continue", Plain, SendSignal, 18},
    {&ProcessMenu::terminateProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Terminate process"),
     "Ctrl+T", "", "", Plain, SendSignal, 15},
    {&ProcessMenu::killProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Kill process"),
     "Ctrl+K", "", "", Plain, SendSignal, 9},
    {&ProcessMenu::changePriority, QT_TRANSLATE_NOOP("ProcessMenu", "Change priority..."),
     "", "", "", Plain, ChangePriority, none},
};
// clang-format on

/// In the order of the menu; null is a separator.
QAction *ProcessMenu::*const ProcessMenu::menuOrder[] = {
    &ProcessMenu::treeView,
    &ProcessMenu::expandAll,
    &ProcessMenu::collapseAll,
    nullptr,
    &ProcessMenu::myProcesses,
    &ProcessMenu::allProcesses,
    nullptr,
    &ProcessMenu::stopProcess,
    &ProcessMenu::continueProcess,
    &ProcessMenu::terminateProcess,
    &ProcessMenu::killProcess,
    &ProcessMenu::changePriority,
    nullptr,
};

ProcessMenu::ProcessMenu(QObject *parent, ProxyProcModel *proxy) : QObject(parent), model(proxy), selected(-1)
{
    QActionGroup *group = nullptr;
    for (const ActionRow &row : actionRows) {
        createAction(row, group);
    }
}

/// The group of the exclusive actions is made before the first of them.
void ProcessMenu::createAction(const ActionRow &row, QActionGroup *&group)
{
    if (row.checking == Exclusive && !group) {
        group = new QActionGroup(this);
    }
    auto *const action = new QAction(tr(row.text), this);
    action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
    if (*row.themeIcon) {
        const QIcon fallback = embeddedIcon(QLatin1String(row.fallbackIcon));
        action->setIcon(QIcon::fromTheme(QLatin1String(row.themeIcon), fallback));
    }
    action->setCheckable(row.checking != Plain);
    if (row.checking == Exclusive) {
        group->addAction(action);
    }
    QList<QVariant> data{row.kind};
    if (row.argument != none) {
        data.append(row.argument);
    }
    action->setData(data);
    connect(action, SIGNAL(triggered(bool)), this, SLOT(process()));
    this->*row.member = action;
}

void ProcessMenu::fillMenu(QMenu *menu)
{
    lastMenu = menu;
    treeView->setChecked(!model->isFlat());
    for (QAction *ProcessMenu::*const member : menuOrder) {
        if (member) {
            menu->addAction(this->*member);
        } else {
            menu->addSeparator();
        }
    }
}

void ProcessMenu::setProcess(const Process &process)
{
    selected = process;
    updateListActions();
    updateSignalActions();
}

void ProcessMenu::updateListActions()
{
    treeView->setChecked(!model->isFlat());
    expandAll->setVisible(!model->isFlat());
    collapseAll->setVisible(!model->isFlat());
    myProcesses->setChecked(model->processTypes() == gtop_wrappers::MyProcesses);
    allProcesses->setChecked(model->processTypes() == gtop_wrappers::AllProcesses);
}

void ProcessMenu::updateSignalActions()
{
    const bool isProcess = selected.pid() != -1;
    const auto state =
        isProcess ? intParam(selected, gtop_wrappers::StateColumn) : std::tr1::shared_ptr<IntProcessParam>();
    for (QAction *const action :
         {stopProcess, continueProcess, terminateProcess, killProcess, changePriority}) {
        action->setVisible(state != nullptr);
    }
    const bool stopped = state && state->value() == stoppedState;
    stopProcess->setEnabled(state && !stopped);
    continueProcess->setEnabled(stopped);
    if (isProcess) { // without a process the hidden rest is meant to be left as it is
        for (QAction *const action : {terminateProcess, killProcess, changePriority}) {
            action->setEnabled(state != nullptr);
        }
    }
}

void ProcessMenu::setActionsEnabled(bool on)
{
    for (QAction *const action : findChildren<QAction *>()) {
        if (action->isVisible()) {
            action->setEnabled(on);
        }
    }
}

void ProcessMenu::process()
{
    const auto *const action = qobject_cast<QAction *>(sender());
    if (!action) {
        qCritical() << Q_FUNC_INFO << "call not by signal";
        return;
    }
    const QList<QVariant> data = action->data().toList();
    const int kind = data.value(0, none).toInt();
    const int argument = data.value(1).toInt();
    switch (kind) {
    case SendSignal:
        signalSelected(argument);
        break;
    case SetTypes:
        model->setProcessTypes(argument);
        break;
    case ExpandOrCollapse:
        if (argument) {
            model->expandAll();
        } else {
            model->collapseAll();
        }
        break;
    case ToggleTree:
        model->setFlat(!model->isFlat());
        break;
    case ChangePriority:
        changePriorityOfSelected();
        break;
    default:
        break;
    }
}

/// The process is taken before the question: while the box is open the selection can change, and what was
/// asked about is what gets the signal.
void ProcessMenu::signalSelected(int signal)
{
    const int pid = selected.pid();
    if (confirm(signal)) {
        model->sendSignal(pid, signal);
    }
}

void ProcessMenu::changePriorityOfSelected()
{
    const int pid = selected.pid();
    const int current = niceOf(selected);
    const int chosen = DlgNice(QApplication::activeWindow()).askPriority(current);
    if (chosen != current) {
        model->setPriority(pid, chosen);
    }
}
