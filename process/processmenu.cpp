// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processmenu.h"

#include "images/icons.h"
#include "process/dlgnice.h"
#include "process/gtop_wrappers/filler.h"
#include "process/processbox.h"
#include "process/proxyprocmodel.h"
#include "process/sortmenu.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDebug>

#include <signal.h>
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <iterator>

using gtop_wrappers::IntProcessParam;
using gtop_wrappers::Process;

namespace {

/// What an action does: the first number in its data. The second one is the argument.
enum CommandKind {
    SetTypes = 0,         ///< argument: gtop_wrappers::ProcessTypes
    SendSignal = 1,       ///< argument: signal number
    ExpandOrCollapse = 2, ///< argument: 1 expands all rows, 0 collapses them
    ToggleTree = 3,       ///< no argument
    ChangePriority = 4,   ///< no argument
    FindProcess = 5,      ///< no argument
    CopyRow = 6,          ///< no argument
    ToggleComplete = 7    ///< no argument
};
constexpr int noArgument = -1;
constexpr int unknownKind = -1;

/// How an action is checked.
enum Checking { Plain, Checkable, Exclusive };

struct Question
{
    const char *title = nullptr;
    const char *text = nullptr;
};

constexpr Question unknownSignalQuestion{QT_TRANSLATE_NOOP("ProcessMenu", "Unknown signal"),
                                         QT_TRANSLATE_NOOP("ProcessMenu", "Unknown signal")};

/// Value of an integer column of a process; null if the column has none.
std::tr1::shared_ptr<IntProcessParam> intParam(const Process &process, unsigned long column)
{
    return std::tr1::dynamic_pointer_cast<IntProcessParam>(process.getParam(column));
}

/// The nice value according to the kernel; if getpriority(2) fails, the one that was read with the process.
int niceOf(const HeldProcess &process)
{
    if (process.exists()) {
        errno = 0; // -1 is a valid nice value too
        const int nice = getpriority(PRIO_PROCESS, static_cast<id_t>(process.process().pid()));
        if (errno == 0) {
            return nice;
        }
    }
    const gtop_wrappers::ParamPtr nice = process.process().getParam(gtop_wrappers::NiceColumn);
    return nice ? nice->sortValue().toInt() : 0;
}

} // namespace

/// One action, and for a signal the question that is asked before it is sent.
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
    Question question = {};
};

static_assert(SIGSTOP == 19 && SIGCONT == 18 && SIGTERM == 15 && SIGKILL == 9,
              "the data of the actions must hold these numbers");

// clang-format off
/// In the order of creation. Intentional: the questions keep their wording, slips of English included.
const ProcessMenu::ActionRow ProcessMenu::actionRows[] = {
    {&ProcessMenu::treeView, QT_TRANSLATE_NOOP("ProcessMenu", "Tree view"),
     "Ctrl+F", "", "", Checkable, ToggleTree, noArgument},
    {&ProcessMenu::expandAll, QT_TRANSLATE_NOOP("ProcessMenu", "Expand all"),
     "", "", "", Plain, ExpandOrCollapse, 1},
    {&ProcessMenu::collapseAll, QT_TRANSLATE_NOOP("ProcessMenu", "Collapse all"),
     "", "", "", Plain, ExpandOrCollapse, 0},
    {&ProcessMenu::allProcesses, QT_TRANSLATE_NOOP("ProcessMenu", "All processes"),
     "Ctrl+A", "", "", Exclusive, SetTypes, gtop_wrappers::AllProcesses},
    {&ProcessMenu::myProcesses, QT_TRANSLATE_NOOP("ProcessMenu", "My processes"),
     "Ctrl+M", "", "", Exclusive, SetTypes, gtop_wrappers::MyProcesses},
    {&ProcessMenu::stopProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Stop process"),
     "Ctrl+S", "media-playback-pause", ":/images/pause", Plain, SendSignal, SIGSTOP,
     {QT_TRANSLATE_NOOP("ProcessMenu", "Process stopping"),
      QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to stop process?\n"
                                       "You would be able to resume it later.")}},
    {&ProcessMenu::continueProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Continue process"),
     "Ctrl+C", "media-playback-start", ":/images/continue", Plain, SendSignal, SIGCONT,
     {QT_TRANSLATE_NOOP("ProcessMenu", "Process resuming"),
      QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to resume process?")}},
    {&ProcessMenu::terminateProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Terminate process"),
     "Ctrl+T", "", "", Plain, SendSignal, SIGTERM,
     {QT_TRANSLATE_NOOP("ProcessMenu", "Process terminating"),
      QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to terminate process?\n"
                                       "Process will have ability to finish normally.")}},
    {&ProcessMenu::killProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Kill process"),
     "Ctrl+K", "", "", Plain, SendSignal, SIGKILL,
     {QT_TRANSLATE_NOOP("ProcessMenu", "Process killing"),
      QT_TRANSLATE_NOOP("ProcessMenu", "Are you really want to kill process?\n"
                                       "Process will no have ability to finish normally.\n"
                                       "All process data can be lost.")}},
    {&ProcessMenu::changePriority, QT_TRANSLATE_NOOP("ProcessMenu", "Change priority..."),
     "", "", "", Plain, ChangePriority, noArgument},
    {&ProcessMenu::copyRow, QT_TRANSLATE_NOOP("ProcessMenu", "Copy row"),
     "", "", "", Plain, CopyRow, noArgument},
    {&ProcessMenu::completeTree, QT_TRANSLATE_NOOP("ProcessMenu", "Complete tree"),
     "", "", "", Checkable, ToggleComplete, noArgument},
    {&ProcessMenu::findProcess, QT_TRANSLATE_NOOP("ProcessMenu", "Find process..."),
     "", "", "", Plain, FindProcess, noArgument},
};
// clang-format on

/// In the order of the menu; null is a separator.
QAction *ProcessMenu::*const ProcessMenu::menuOrder[] = {
    &ProcessMenu::treeView,
    &ProcessMenu::expandAll,
    &ProcessMenu::collapseAll,
    &ProcessMenu::completeTree,
    nullptr,
    &ProcessMenu::myProcesses,
    &ProcessMenu::allProcesses,
    nullptr,
    &ProcessMenu::stopProcess,
    &ProcessMenu::continueProcess,
    &ProcessMenu::terminateProcess,
    &ProcessMenu::killProcess,
    &ProcessMenu::changePriority,
    &ProcessMenu::copyRow,
    nullptr,
    &ProcessMenu::findProcess,
};

ProcessMenu::ProcessMenu(QObject *parent, ProxyProcModel *proxy) : QObject(parent), model(proxy), selected(-1)
{
    QActionGroup *group = nullptr;
    for (const ActionRow &row : actionRows) {
        createAction(row, group);
    }
}

/// Intentional: the group is created right before its first action, which is its place among the children.
void ProcessMenu::createAction(const ActionRow &row, QActionGroup *&group)
{
    const bool isExclusive = row.checking == Exclusive;
    if (isExclusive && !group) {
        group = new QActionGroup(this);
    }
    auto *action = new QAction(tr(row.text), this);
    action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
    if (*row.themeIcon) {
        action->setIcon(themedIcon(QLatin1String(row.themeIcon), QLatin1String(row.fallbackIcon)));
    }
    action->setCheckable(row.checking != Plain);
    if (isExclusive) {
        group->addAction(action);
    }
    QList<QVariant> data{row.kind};
    if (row.argument != noArgument) {
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
    for (QAction *ProcessMenu::*member : menuOrder) {
        if (member == &ProcessMenu::findProcess) {
            menu->addMenu(new SortMenu(model, menu));
        }
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
    completeTree->setVisible(!model->isFlat());
    completeTree->setChecked(model->isComplete());
    myProcesses->setChecked(model->processTypes() == gtop_wrappers::MyProcesses);
    allProcesses->setChecked(model->processTypes() == gtop_wrappers::AllProcesses);
}

void ProcessMenu::updateSignalActions()
{
    const bool isProcess = selected.pid() != -1;
    const auto state =
        isProcess ? intParam(selected, gtop_wrappers::StateColumn) : std::tr1::shared_ptr<IntProcessParam>();
    for (QAction *action :
         {stopProcess, continueProcess, terminateProcess, killProcess, changePriority, copyRow}) {
        action->setVisible(state != nullptr);
    }
    const bool stopped = state && state->value() == gtop_wrappers::stoppedState;
    stopProcess->setEnabled(state && !stopped);
    continueProcess->setEnabled(stopped);
    if (isProcess) { // Intentional: without a process the others, now hidden, keep their enabled state.
        for (QAction *action : {terminateProcess, killProcess, changePriority, copyRow}) {
            action->setEnabled(state != nullptr);
        }
    }
}

void ProcessMenu::setActionsEnabled(bool on)
{
    for (QAction *action : findChildren<QAction *>()) {
        if (action->isVisible()) {
            action->setEnabled(on);
        }
    }
}

void ProcessMenu::process()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (!action) {
        qCritical() << Q_FUNC_INFO << "call not by signal";
        return;
    }
    const QList<QVariant> data = action->data().toList();
    const int kind = data.value(0, unknownKind).toInt();
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
    case ToggleComplete:
        model->setComplete(!model->isComplete());
        break;
    case ChangePriority:
        changePriorityOfSelected();
        break;
    case CopyRow:
        QGuiApplication::clipboard()->setText(model->rowText(selected));
        break;
    case FindProcess:
        Q_EMIT findRequested();
        break;
    default:
        break;
    }
}

/// Asks before a signal is sent; false unless the user presses OK.
bool ProcessMenu::confirmSignal(int signal, const Process &process)
{
    const auto sendsIt = [signal](const ActionRow &row) {
        return row.kind == SendSignal && row.argument == signal;
    };
    const auto *row = std::find_if(std::begin(actionRows), std::end(actionRows), sendsIt);
    const Question &question = row != std::end(actionRows) ? row->question : unknownSignalQuestion;
    // Cancel is the default, so that a stray Enter sends nothing.
    return showProcessBox(QMessageBox::Question, tr(question.title), tr(question.text), process,
                          QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
}

/// Holds the process before the box opens: while its event loop runs, the selection can change and the pid
/// can go to another process, and the signal must go to the process that the user was asked about.
void ProcessMenu::signalSelected(int signal)
{
    const HeldProcess asked(selected);
    if (confirmSignal(signal, asked.process())) {
        model->sendSignal(asked, signal);
    }
}

void ProcessMenu::changePriorityOfSelected()
{
    const HeldProcess asked(selected);
    const int current = niceOf(asked);
    DlgNice dialog(QApplication::activeWindow(), processLabel(asked.process()));
    const int chosen = dialog.askPriority(current);
    if (chosen != current) {
        model->setPriority(asked, chosen);
    }
}
