// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/menus.h"

#include <QActionGroup>
#include <QtTest>

using gtop_wrappers::Process;

namespace {

const char *const signalActions[] = {"Stop process", "Continue process", "Terminate process", "Kill process",
                                     "Change priority..."};
const int runningState = 1;
const int stoppedState = 16;

QStringList textsOf(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *const action : menu.actions()) {
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts;
}

} // namespace

class TestProcessMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(images); }
    void actionsAreMadeInTheOrderOfTheTable();
    void actionsHaveTheirProperties_data();
    void actionsHaveTheirProperties();
    void theTypesAreExclusive();
    void theIconsFallBackOnTheEmbeddedOnes();
    void fillMenuAddsTheActionsInOrder();
    void fillMenuChecksTheTreeViewByTheMode();
    void severalMenusShareTheActions();

    void withoutAProcessTheSignalActionsAreHidden();
    void withoutAProcessTerminateAndKillKeepTheirState();
    void aRunningProcessCanBeStoppedAStoppedOneContinued();
    void everyStateButStoppedOffersStop();
    void withoutAStateAllAreHiddenAndDisabled();
    void expandAndCollapseShowInTreeModeOnly();
    void theTypesAreCheckedByTheList();
    void disablingLeavesInvisibleActionsAlone();
    void enablingReachesActionsDeepBelow();
};

void TestProcessMenu::actionsAreMadeInTheOrderOfTheTable()
{
    const Desk desk;
    QStringList made;
    for (const QObject *const child : desk.actions->children()) {
        const auto *const action = qobject_cast<const QAction *>(child);
        made.append(action ? action->text() : QLatin1String(child->metaObject()->className()));
    }
    QCOMPARE(made, (QStringList{QStringLiteral("Tree view"), QStringLiteral("Expand all"),
                                QStringLiteral("Collapse all"), QStringLiteral("QActionGroup"),
                                QStringLiteral("All processes"), QStringLiteral("My processes"),
                                QStringLiteral("Stop process"), QStringLiteral("Continue process"),
                                QStringLiteral("Terminate process"), QStringLiteral("Kill process"),
                                QStringLiteral("Change priority...")}));
}

void TestProcessMenu::actionsHaveTheirProperties_data()
{
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("hasIcon");
    QTest::addColumn<QVariantList>("data");
    QTest::newRow("Tree view") << "Ctrl+F" << true << false << QVariantList{3};
    QTest::newRow("Expand all") << "" << false << false << QVariantList{2, 1};
    QTest::newRow("Collapse all") << "" << false << false << QVariantList{2, 0};
    QTest::newRow("All processes") << "Ctrl+A" << true << false << QVariantList{0, 0};
    QTest::newRow("My processes") << "Ctrl+M" << true << false << QVariantList{0, 1};
    QTest::newRow("Stop process") << "Ctrl+S" << false << true << QVariantList{1, 19};
    QTest::newRow("Continue process") << "Ctrl+C" << false << true << QVariantList{1, 18};
    QTest::newRow("Terminate process") << "Ctrl+T" << false << false << QVariantList{1, 15};
    QTest::newRow("Kill process") << "Ctrl+K" << false << false << QVariantList{1, 9};
    QTest::newRow("Change priority...") << "" << false << false << QVariantList{4};
}

void TestProcessMenu::actionsHaveTheirProperties()
{
    QFETCH(QString, shortcut);
    QFETCH(bool, checkable);
    QFETCH(bool, hasIcon);
    QFETCH(QVariantList, data);
    const Desk desk;
    const QAction *const action = desk.action(QTest::currentDataTag());
    QVERIFY(action);
    QCOMPARE(action->parent(), desk.actions);
    QCOMPARE(action->shortcut().toString(QKeySequence::PortableText), shortcut);
    QCOMPARE(action->isCheckable(), checkable);
    QCOMPARE(action->data().userType(), int(QMetaType::QVariantList));
    QCOMPARE(action->data().toList(), data);
    if (!hasIcon) {
        QVERIFY(action->icon().isNull());
    }
}

void TestProcessMenu::theTypesAreExclusive()
{
    const Desk desk;
    const QActionGroup *const group = desk.action("All processes")->actionGroup();
    QVERIFY(group);
    QVERIFY(group->isExclusive());
    QCOMPARE(group->actions(), (QList<QAction *>{desk.action("All processes"), desk.action("My processes")}));
    QVERIFY(!desk.action("Tree view")->actionGroup());
}

void TestProcessMenu::theIconsFallBackOnTheEmbeddedOnes()
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

void TestProcessMenu::fillMenuAddsTheActionsInOrder()
{
    const Desk desk;
    QMenu menu;
    desk.actions->fillMenu(&menu);
    QCOMPARE(textsOf(menu).join(QLatin1Char('|')),
             QStringLiteral("Tree view|Expand all|Collapse all|-|My processes|All processes|-|Stop process|"
                            "Continue process|Terminate process|Kill process|Change priority...|-"));
}

void TestProcessMenu::fillMenuChecksTheTreeViewByTheMode()
{
    const Desk desk;
    QMenu menu;
    desk.actions->fillMenu(&menu);
    QVERIFY(!desk.action("Tree view")->isChecked());
    desk.list->setFlat(false);
    desk.actions->fillMenu(&menu);
    QVERIFY(desk.action("Tree view")->isChecked());
}

void TestProcessMenu::severalMenusShareTheActions()
{
    const Desk desk;
    QMenu lasting;
    desk.actions->fillMenu(&lasting);
    {
        QMenu passing;
        desk.actions->fillMenu(&passing);
        QCOMPARE(textsOf(passing), textsOf(lasting));
        QCOMPARE(passing.actions().first(), lasting.actions().first());
    }
    desk.select(5);
    QVERIFY(desk.action("Kill process")->isVisible());
    QCOMPARE(lasting.actions().size(), 13);
}

void TestProcessMenu::withoutAProcessTheSignalActionsAreHidden()
{
    const Desk desk;
    desk.select(5);
    desk.actions->setProcess(Process(-1));
    for (const char *const text : signalActions) {
        QVERIFY(!desk.action(text)->isVisible());
    }
    // Visible again, the two show how they were left.
    for (const char *const text : {"Stop process", "Continue process"}) {
        desk.action(text)->setVisible(true);
        QVERIFY(!desk.action(text)->isEnabled());
    }
}

void TestProcessMenu::withoutAProcessTerminateAndKillKeepTheirState()
{
    const Desk desk;
    desk.select(5);
    desk.actions->setProcess(Process(-1));
    for (const char *const text : {"Terminate process", "Kill process", "Change priority..."}) {
        desk.action(text)->setVisible(true);
        QVERIFY(desk.action(text)->isEnabled());
    }
}

void TestProcessMenu::aRunningProcessCanBeStoppedAStoppedOneContinued()
{
    const Desk desk;
    for (const int state : {runningState, stoppedState, runningState}) {
        desk.select(5, state);
        for (const char *const text : signalActions) {
            QVERIFY(desk.action(text)->isVisible());
        }
        QCOMPARE(desk.action("Stop process")->isEnabled(), state != stoppedState);
        QCOMPARE(desk.action("Continue process")->isEnabled(), state == stoppedState);
        QVERIFY(desk.action("Terminate process")->isEnabled());
        QVERIFY(desk.action("Kill process")->isEnabled());
        QVERIFY(desk.action("Change priority...")->isEnabled());
    }
}

void TestProcessMenu::everyStateButStoppedOffersStop()
{
    const Desk desk;
    for (const int state : {0, 1, 2, 4, 8, 32, 64, 128, -1}) {
        desk.select(5, state);
        QVERIFY(desk.action("Stop process")->isEnabled());
        QVERIFY(!desk.action("Continue process")->isEnabled());
    }
}

void TestProcessMenu::withoutAStateAllAreHiddenAndDisabled()
{
    const Desk desk;
    desk.select(5);
    desk.actions->setProcess(Process(6));
    for (const char *const text : signalActions) {
        QVERIFY(!desk.action(text)->isVisible());
        desk.action(text)->setVisible(true);
        QVERIFY(!desk.action(text)->isEnabled());
    }
}

void TestProcessMenu::expandAndCollapseShowInTreeModeOnly()
{
    const Desk desk;
    for (const bool flat : {true, false, true}) {
        desk.list->setFlat(flat);
        desk.actions->setProcess(Process(-1));
        QCOMPARE(desk.action("Tree view")->isChecked(), !flat);
        QCOMPARE(desk.action("Expand all")->isVisible(), !flat);
        QCOMPARE(desk.action("Collapse all")->isVisible(), !flat);
    }
}

void TestProcessMenu::theTypesAreCheckedByTheList()
{
    const Desk desk;
    for (const int types : {1, 0, 1}) {
        desk.list->setProcessTypes(types);
        desk.actions->setProcess(Process(-1));
        QCOMPARE(desk.action("My processes")->isChecked(), types == 1);
        QCOMPARE(desk.action("All processes")->isChecked(), types == 0);
    }
}

void TestProcessMenu::disablingLeavesInvisibleActionsAlone()
{
    const Desk desk; // flat: "Expand all" is hidden
    desk.select(5);
    desk.actions->setActionsEnabled(false);
    QVERIFY(!desk.action("Tree view")->isEnabled());
    QVERIFY(!desk.action("Kill process")->isEnabled());
    desk.action("Expand all")->setVisible(true);
    QVERIFY(desk.action("Expand all")->isEnabled());
    desk.actions->setActionsEnabled(true);
    QVERIFY(desk.action("Tree view")->isEnabled());
    QVERIFY(desk.action("Kill process")->isEnabled());
}

void TestProcessMenu::enablingReachesActionsDeepBelow()
{
    const Desk desk;
    auto *const deep = new QAction(desk.action("Tree view"));
    desk.actions->setActionsEnabled(false);
    QVERIFY(!deep->isEnabled());
}

QTEST_MAIN(TestProcessMenu)
#include "test_processmenu.moc"
