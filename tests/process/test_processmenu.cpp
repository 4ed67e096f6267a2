// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/menus.h"

#include <QActionGroup>
#include <QtTest>

using gtop_wrappers::Process;

namespace {

const char *const signalActions[] = {"Stop process", "Continue process", "Terminate process", "Kill process",
                                     "Change priority..."};
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
                                "Change priority...|Find process..."));
    }

    void actionsHaveTheirProperties_data()
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
        QTest::newRow("Find process...") << "" << false << false << QVariantList{5};
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

    void fillMenuChecksTheTreeViewByTheMode()
    {
        const Desk desk;
        QMenu menu;
        desk.actions->fillMenu(&menu);
        QVERIFY(!desk.action("Tree view")->isChecked());
        desk.list->setFlat(false);
        desk.actions->fillMenu(&menu);
        QVERIFY(desk.action("Tree view")->isChecked());
    }

    void severalMenusShareTheActionsInOrder()
    {
        const Desk desk;
        const QString texts =
            QStringLiteral("Tree view|Expand all|Collapse all|-|My processes|All processes|-|Stop process|"
                           "Continue process|Terminate process|Kill process|Change priority...|-|"
                           "Find process...");
        QMenu lasting;
        desk.actions->fillMenu(&lasting);
        {
            QMenu passing;
            desk.actions->fillMenu(&passing);
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
        for (const char *text : {"Terminate process", "Kill process", "Change priority..."}) {
            QVERIFY2(isEnabledWhenShown(desk.action(text)), text);
        }
    }

    void onlyAStoppedProcessCanBeContinued_data()
    {
        QTest::addColumn<int>("state");
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
        for (const char *text : {"Terminate process", "Kill process", "Change priority..."}) {
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

    void expandAndCollapseShowInTreeModeOnly()
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
};

QTEST_MAIN(TestProcessMenu)
#include "test_processmenu.moc"
