// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/menus.h"
#include "tests/support/modal.h"
#include "tests/support/rows.h"

#include <QActionGroup>
#include <QClipboard>
#include <QHeaderView>
#include <QtTest>

#include <csignal>

using gtop_wrappers::Process;

namespace {

const char *const signalActions[] = {"Stop process", "Continue process",   "Terminate process",
                                     "Kill process", "Change priority...", "Copy row"};
const int stoppedState = 16;

QString textsOf(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions()) {
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts.join(QLatin1Char('|'));
}

/// Whether a hidden action is enabled: QAction reports that only while it is visible.
bool isEnabledWhenShown(QAction *action)
{
    action->setVisible(true);
    return action->isEnabled();
}

constexpr int noSuchPid = 0x7ffffff0; ///< beyond the kernel's largest

QStringList logged;

void keepLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    logged.append(QStringLiteral("%1 %2: %3").arg(type).arg(QLatin1String(context.category), text));
}

/// The lines that `act` logs, with their type and category.
QStringList linesOf(const std::function<void()> &act)
{
    logged.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepLine);
    act();
    qInstallMessageHandler(before);
    return logged;
}

} // namespace

class TestProcessMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(images); }
    void actionsAreMadeInTheOrderOfTheTable()
    {
        const Desk desk;
        QStringList made;
        for (const QObject *child : desk.actions->children()) {
            const auto *action = qobject_cast<const QAction *>(child);
            made.append(action ? action->text() : QLatin1String(child->metaObject()->className()));
        }
        QCOMPARE(made.join(QLatin1Char('|')),
                 QStringLiteral("Tree view|Expand all|Collapse all|QActionGroup|All processes|My processes|"
                                "Stop process|Continue process|Terminate process|Kill process|"
                                "Change priority...|Copy row|Complete tree|Find process..."));
    }

    void actionsHaveTheirProperties_data()
    {
        const Rows<QString, bool, bool, QVariantList> row("shortcut", "checkable", "hasIcon", "data");
        row("Tree view", "Ctrl+F", true, false, QVariantList{3});
        row("Expand all", "", false, false, QVariantList{2, 1});
        row("Collapse all", "", false, false, QVariantList{2, 0});
        row("All processes", "Ctrl+A", true, false, QVariantList{0, 0});
        row("My processes", "Ctrl+M", true, false, QVariantList{0, 1});
        row("Stop process", "Ctrl+S", false, true, QVariantList{1, 19});
        row("Continue process", "Ctrl+C", false, true, QVariantList{1, 18});
        row("Terminate process", "Ctrl+T", false, false, QVariantList{1, 15});
        row("Kill process", "Ctrl+K", false, false, QVariantList{1, 9});
        row("Change priority...", "", false, false, QVariantList{4});
        row("Copy row", "", false, false, QVariantList{6});
        row("Complete tree", "", true, false, QVariantList{7});
        row("Find process...", "", false, false, QVariantList{5});
    }

    void actionsHaveTheirProperties()
    {
        QFETCH(bool, hasIcon);
        const Desk desk;
        const QAction *action = desk.action(QTest::currentDataTag());
        QVERIFY(action);
        QCOMPARE(action->parent(), desk.actions);
        QTEST(action->shortcut().toString(QKeySequence::PortableText), "shortcut");
        QTEST(action->isCheckable(), "checkable");
        QCOMPARE(action->data().userType(), int(QMetaType::QVariantList));
        QTEST(action->data().toList(), "data");
        if (!hasIcon) {
            QVERIFY(action->icon().isNull());
        }
    }

    void theTypesAreExclusive()
    {
        const Desk desk;
        const QActionGroup *group = desk.action("All processes")->actionGroup();
        QVERIFY(group);
        QVERIFY(group->isExclusive());
        QCOMPARE(group->actions(),
                 (QList<QAction *>{desk.action("All processes"), desk.action("My processes")}));
        QVERIFY(!desk.action("Tree view")->actionGroup());
    }

    void theIconsFallBackOnTheEmbeddedOnes()
    {
        QIcon::setThemeName(QStringLiteral("a theme that nobody has"));
        QIcon::setFallbackThemeName(QStringLiteral("nor this one"));
        const Desk desk;
        const auto looksLike = [](const QAction *action, const char *resource) {
            const QIcon embedded{QLatin1String(resource)};
            return !embedded.availableSizes().isEmpty() &&
                   action->icon().pixmap(16).toImage() == embedded.pixmap(16).toImage();
        };
        QVERIFY(looksLike(desk.action("Stop process"), ":/images/pause"));
        QVERIFY(looksLike(desk.action("Continue process"), ":/images/continue"));
    }

    void severalMenusShareTheActionsInOrderAndCheckTheTreeViewByTheMode()
    {
        const Desk desk;
        const QString texts = QStringLiteral(
            "Tree view|Expand all|Collapse all|Complete tree|-|My processes|All processes|-|Stop process|"
            "Continue process|Terminate process|Kill process|Change priority...|Copy row|-|Sort &by|"
            "Find process...");
        QMenu lasting;
        desk.actions->fillMenu(&lasting);
        QVERIFY(!desk.action("Tree view")->isChecked());
        {
            QMenu passing;
            desk.list->setFlat(false);
            desk.actions->fillMenu(&passing);
            QVERIFY(desk.action("Tree view")->isChecked());
            QCOMPARE(textsOf(passing), texts);
            QCOMPARE(passing.actions().first(), lasting.actions().first());
        }
        desk.select(5);
        QVERIFY(desk.action("Kill process")->isVisible());
        QCOMPARE(textsOf(lasting), texts);
    }

    void withoutAProcessTheSignalActionsAreHiddenAndOnlyTwoDisabled()
    {
        const Desk desk;
        desk.select(5);
        desk.actions->setProcess(Process(-1));
        for (const char *text : signalActions) {
            QVERIFY2(!desk.action(text)->isVisible(), text);
        }
        for (const char *text : {"Stop process", "Continue process"}) {
            QVERIFY2(!isEnabledWhenShown(desk.action(text)), text);
        }
        for (const char *text : {"Terminate process", "Kill process", "Change priority...", "Copy row"}) {
            QVERIFY2(isEnabledWhenShown(desk.action(text)), text);
        }
    }

    void onlyAStoppedProcessCanBeContinued_data()
    {
        const Rows<int> row("state");
        for (const int state : {0, 1, 2, 4, 8, stoppedState, 32, 64, 128, -1}) {
            QTest::addRow("state %d", state) << state;
        }
    }

    void onlyAStoppedProcessCanBeContinued()
    {
        QFETCH(int, state);
        const Desk desk;
        desk.select(5, state == stoppedState ? 1 : stoppedState);
        desk.select(5, state);
        for (const char *text : signalActions) {
            QVERIFY2(desk.action(text)->isVisible(), text);
        }
        QCOMPARE(desk.action("Stop process")->isEnabled(), state != stoppedState);
        QCOMPARE(desk.action("Continue process")->isEnabled(), state == stoppedState);
        for (const char *text : {"Terminate process", "Kill process", "Change priority...", "Copy row"}) {
            QVERIFY2(desk.action(text)->isEnabled(), text);
        }
    }

    void withoutAStateAllAreHiddenAndDisabled()
    {
        const Desk desk;
        desk.select(5);
        desk.actions->setProcess(Process(6));
        for (const char *text : signalActions) {
            QVERIFY2(!desk.action(text)->isVisible(), text);
            QVERIFY2(!isEnabledWhenShown(desk.action(text)), text);
        }
    }

    void actionsOnTheTreeShowInTreeModeOnly()
    {
        const Desk desk;
        for (const bool flat : {true, false, true}) {
            desk.list->setFlat(flat);
            desk.actions->setProcess(Process(-1));
            QCOMPARE(desk.action("Tree view")->isChecked(), !flat);
            QCOMPARE(desk.action("Expand all")->isVisible(), !flat);
            QCOMPARE(desk.action("Collapse all")->isVisible(), !flat);
            QCOMPARE(desk.action("Complete tree")->isVisible(), !flat);
        }
    }

    void theCompleteTreeIsCheckedByTheList()
    {
        const Desk desk;
        for (const bool complete : {false, true, false}) {
            desk.list->setComplete(complete);
            desk.actions->setProcess(Process(-1));
            QCOMPARE(desk.action("Complete tree")->isChecked(), complete);
        }
    }

    void theTypesAreCheckedByTheList()
    {
        const Desk desk;
        for (const int types : {1, 0, 1}) {
            desk.list->setProcessTypes(types);
            desk.actions->setProcess(Process(-1));
            QCOMPARE(desk.action("My processes")->isChecked(), types == 1);
            QCOMPARE(desk.action("All processes")->isChecked(), types == 0);
        }
    }

    void disablingReachesAllVisibleActionsAndNoOthers()
    {
        const Desk desk; // flat: "Expand all" is hidden
        const auto *deep = new QAction(desk.action("Tree view"));
        desk.select(5);
        desk.actions->setActionsEnabled(false);
        QVERIFY(!deep->isEnabled());
        QVERIFY(!desk.action("Tree view")->isEnabled());
        QVERIFY(!desk.action("Kill process")->isEnabled());
        QVERIFY(isEnabledWhenShown(desk.action("Expand all")));
        desk.actions->setActionsEnabled(true);
        QVERIFY(desk.action("Tree view")->isEnabled());
        QVERIFY(desk.action("Kill process")->isEnabled());
    }

    // What the actions do when they are triggered.
    void treeViewSwitchesTheMode()
    {
        const Desk desk;
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        desk.trigger("Tree view");
        QVERIFY(!desk.list->isFlat());
        QCOMPARE(resets.count(), 3);
        desk.trigger("Tree view");
        QVERIFY(desk.list->isFlat());
    }

    void completeTreeSwitchesTheModeOfTheTree()
    {
        const Desk desk;
        desk.trigger("Tree view");
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        const QSignalSpy emptied(desk.list, SIGNAL(listEmptied()));
        desk.trigger("Complete tree");
        QVERIFY(desk.list->isComplete() && !desk.list->isFlat());
        QCOMPARE(resets.count(), 3);
        QCOMPARE(emptied.count(), 1);
        desk.trigger("Complete tree");
        QVERIFY(!desk.list->isComplete());
    }

    void aFlatListStaysAsItIsWhenTheTreeBecomesComplete()
    {
        const Desk desk;
        desk.list->refresh(makeSnapshot({{1, 0}, {2, 1}}));
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        desk.list->setComplete(true);
        QCOMPARE(resets.count(), 0);
        QCOMPARE(desk.list->rowCount(), 2);
    }

    void allProcessesResetsEvenWhenChecked()
    {
        const Desk desk;
        desk.trigger("All processes");
        QCOMPARE(desk.list->processTypes(), 0);
        QVERIFY(desk.action("All processes")->isChecked());
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        desk.trigger("All processes");
        QCOMPARE(desk.list->processTypes(), 0);
        QCOMPARE(resets.count(), 2);
    }

    void myProcessesSetsTheTypes()
    {
        const Desk desk;
        desk.list->setProcessTypes(0);
        desk.trigger("My processes");
        QCOMPARE(desk.list->processTypes(), 1);
    }

    void expandAndCollapseReachTheView()
    {
        const Desk desk;
        desk.list->setFlat(false);
        desk.list->refresh(makeSnapshot({{1, 0}, {2, 1}}));
        const QModelIndex top = desk.list->index(0, 0);
        desk.trigger("Collapse all");
        QVERIFY(!desk.view.isExpanded(top));
        desk.trigger("Expand all");
        QVERIFY(desk.view.isExpanded(top));
    }

    void anUnknownKindDoesNothing()
    {
        const Desk desk;
        const ModalDriver noDialog;
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        for (const QVariant &data :
             {QVariant(QVariantList{5, 1}), QVariant(QVariantList{-1}), QVariant(QVariantList()), QVariant(),
              QVariant(QStringLiteral("text"))}) {
            desk.triggerForeign(data);
        }
        QCOMPARE(resets.count(), 0);
        QVERIFY(desk.list->isFlat());
    }

    void withoutAnActionAsSenderOneCriticalLineIsLogged()
    {
        const Desk desk;
        QObject sender;
        connect(&sender, SIGNAL(objectNameChanged(QString)), desk.actions, SLOT(process()));
        const QStringList expected{
            QStringLiteral("%1 default: void ProcessMenu::process() call not by signal").arg(QtCriticalMsg)};
        QCOMPARE(linesOf([&] { desk.actions->process(); }), expected);
        QCOMPARE(linesOf([&] { sender.setObjectName(QStringLiteral("x")); }), expected);
    }

    void eachSignalAsksItsQuestion_data()
    {
        const Rows<int, QString, QString> row("signal", "title", "text");
        row("Stop process", 19, "Process stopping",
            "Are you really want to stop process?\n"
            "You would be able to resume it later.");
        row("Continue process", 18, "Process resuming", "Are you really want to resume process?");
        row("Terminate process", 15, "Process terminating",
            "Are you really want to terminate process?\n"
            "Process will have ability to finish normally.");
        row("Kill process", 9, "Process killing",
            "Are you really want to kill process?\n"
            "Process will no have ability to finish normally.\n"
            "All process data can be lost.");
        for (const int unknown : {1, 0, -1, 64}) {
            QTest::addRow("signal %d", unknown) << unknown << "Unknown signal"
                                                << "Unknown signal";
        }
    }

    void eachSignalAsksItsQuestion()
    {
        QFETCH(int, signal);
        const Desk desk; // nothing is selected at first: even a wrong answer would reach nobody
        QList<SeenBox> boxes;
        const auto cancel = [&](QWidget *dialog) {
            boxes.append(SeenBox());
            pressing(QMessageBox::Cancel, &boxes.last())(dialog);
        };
        const bool hasAction = desk.action(QTest::currentDataTag()) != nullptr;
        const ModalDriver driver(std::vector<ModalDriver::Handler>(hasAction ? 3 : 1, cancel));
        desk.triggerForeign(QVariantList{1, signal});
        if (hasAction) {
            desk.trigger(QTest::currentDataTag());
            desk.actions->setProcess(
                makeProcess({noSuchPid, 0, "<b>%1</b>", 100, signal == SIGCONT ? stoppedState : 1}));
            desk.trigger(QTest::currentDataTag());
            QCOMPARE(boxes.last().informativeText, QString("<b>%1</b> (2147483632)"));
        }
        for (const SeenBox &seen : boxes) {
            QTEST(seen.title, "title");
            QTEST(seen.text, "text");
            QCOMPARE(seen.icon, QMessageBox::Question);
            QCOMPARE(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
            QCOMPARE(seen.defaultButton, QMessageBox::Cancel);
            QVERIFY(!seen.hasParent);
        }
    }

    void aCopiedRowHasWhatTheViewShows()
    {
        const Desk desk;
        desk.list->setColumnVisible(gtop_wrappers::CpuColumn, false);
        desk.view.header()->moveSection(1, 0); // the pid in front of the name
        Facts facts;
        facts.pid = 12345;
        facts.name = QStringLiteral("a name");
        desk.actions->setProcess(makeProcess(facts));
        desk.trigger("Copy row");
        const QStringList copied = QGuiApplication::clipboard()->text().split(QLatin1Char('\t'));
        QCOMPARE(copied.size(), desk.list->columnCount());
        QCOMPARE(copied.mid(0, 2), QStringList({"12345", "a name"}));
        QCOMPARE(copied.at(4), QStringLiteral("state"));
    }
};

QTEST_MAIN(TestProcessMenu)
#include "test_processmenu.moc"
