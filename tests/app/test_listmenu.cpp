// SPDX-License-Identifier: GPL-3.0-or-later
// Which process is selected: over the refreshes of a tree, and when the context menu opens.
#include "fixture.h"
#include "tests/support/rows.h"

#include "process/proxyprocmodel.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

class TestListMenu : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSelectedProcessThatForksStaysSelected_data()
    {
        const Rows<int> row("selected");
        row("a leaf", 300);
        row("a parent", 100);
    }

    void aSelectedProcessThatForksStaysSelected()
    {
        QFETCH(int, selected);
        startWithTree();
        select(selected);
        for (int child = 500; child < 504; ++child) {
            fork(selected, child);
            fixture->refresh(1);
            QVERIFY(list()->rowOfPid(child).isValid());
            verifySelected(selected);
            QVERIFY(isInView(selected));
            QVERIFY(killAction()->isVisible());
        }
    }

    void aGrandchildKeepsTheSelectionAndItsAncestorsExpanded()
    {
        startWithTree();
        fork(300, 500);
        fixture->refresh(1);
        fork(500, 501);
        fixture->refresh(1);
        view()->expandAll();
        select(501);
        fork(501, 502);
        fixture->refresh(1);
        verifySelected(501);
        for (const int ancestor : {100, 300, 500}) {
            QVERIFY(view()->isExpanded(list()->rowOfPid(ancestor)));
        }
    }

    void aCollapsedAncestorStaysCollapsed()
    {
        startWithTree();
        select(300);
        view()->collapse(list()->rowOfPid(100));
        fork(300, 500);
        fixture->refresh(1);
        verifySelected(300);
        QVERIFY(!view()->isExpanded(list()->rowOfPid(100)));
    }

    void aSelectionWithoutARowComesBackWithTheRow_data()
    {
        const Rows<bool, bool> row("flat", "execs");
        row("reparented in the list", true, false);
        row("reparented in the tree", false, false);
        row("exec in the list", true, true);
        row("exec in the tree", false, true);
    }

    void aSelectionWithoutARowComesBackWithTheRow()
    {
        QFETCH(bool, flat);
        QFETCH(bool, execs);
        startWithTree(1); // not listed, so the parent is read in every refresh
        list()->setFlat(flat);
        for (int round = 0; round < 3; ++round) {
            select(400);
            if (execs) {
                made(400).name = "exec" + std::to_string(round);
            } else {
                made(400).parent = made(400).parent == 1 ? 2 : 1;
            }
            fixture->refresh(1);
            QVERIFY(!list()->rowOfPid(400).isValid());
            verifySelected(-1);
            QVERIFY(!killAction()->isVisible());
            fixture->refresh(1);
            verifySelected(400);
            QVERIFY(killAction()->isVisible());
        }
    }

    void aSelectionWithoutARowGivesWayToAnotherOneAndToTheContextMenu()
    {
        startWithTree();
        list()->setFlat(true);
        const auto loseRow = [this](const char *name) {
            select(400);
            made(400).name = name;
            fixture->refresh(1);
            verifySelected(-1);
        };
        loseRow("exec");
        select(200);
        fixture->refresh(1);
        verifySelected(200);

        loseRow("exec again");
        askForMenu(QContextMenuEvent::Mouse, view()->viewport(), [this](QMenu *) {
            fixture->refresh(1);
            QVERIFY(!killAction()->isVisible());
        });
        fixture->refresh(1);
        verifySelected(-1);
    }

    void theSelectionEndsWithTheProcess_data()
    {
        const Rows<bool> row("flat");
        row("list", true);
        row("tree", false);
    }

    void theSelectionEndsWithTheProcess()
    {
        QFETCH(bool, flat);
        startWithTree();
        list()->setFlat(flat);
        for (const bool reused : {true, false}) {
            select(300);
            if (reused) {
                made(300).startTime += 100;
            } else {
                standin::machine().processes->erase(300);
            }
            fixture->refresh(1);
            QVERIFY2(!killAction()->isVisible(), reused ? "pid reused" : "gone");
            verifySelected(-1);
        }
    }

    void aRefreshDoesNotMoveTheView()
    {
        startWithTree();
        list()->setFlat(true);
        addMany();
        fixture->refresh(1);
        view()->sortByColumn(2, Qt::AscendingOrder);
        select(100);
        QScrollBar *bar = view()->verticalScrollBar();
        bar->setValue(90);
        fixture->refresh(1);
        QCOMPARE(bar->value(), 90);
        verifySelected(100);
    }

    void pressesClearTheSelectionOnlyOnEmptySpaceByTheRightButton_data()
    {
        const Rows<int, bool, int> row("button", "onRow", "selected");
        row("right, empty space", int(Qt::RightButton), false, -1);
        row("right, another row", int(Qt::RightButton), true, 400);
        row("left, empty space", int(Qt::LeftButton), false, 300);
        row("left, another row", int(Qt::LeftButton), true, 400);
        row("middle, empty space", int(Qt::MiddleButton), false, 300);
    }

    void pressesClearTheSelectionOnlyOnEmptySpaceByTheRightButton()
    {
        QFETCH(int, button);
        QFETCH(bool, onRow);
        QFETCH(int, selected);
        startWithTree();
        select(300);
        const QPoint at = onRow ? view()->visualRect(list()->rowOfPid(400)).center() : emptySpace();
        QTest::mouseClick(view()->viewport(), static_cast<Qt::MouseButton>(button), Qt::NoModifier, at);
        verifySelected(selected);
        QCOMPARE(killAction()->isVisible(), selected != -1);
    }

    void theMenuOnEmptySpaceOffersNoSignal()
    {
        startWithTree();
        select(300);
        QTest::mousePress(view()->viewport(), Qt::RightButton, Qt::NoModifier, emptySpace());
        askForMenu(QContextMenuEvent::Mouse, view()->viewport(), [](QMenu *menu) {
            for (const QAction *action : menu->actions()) {
                QVERIFY2(!action->isVisible() || action->text() != QStringLiteral("Kill process"), "offered");
            }
        });
    }

    void theMenuOpensAtTheMouseAlsoByItsKeyWithoutASelection()
    {
        startWithTree();
        QCursor::setPos(view()->viewport()->mapToGlobal(QPoint(90, 40)));
        const auto isAtTheMouse = [](QMenu *menu) { QCOMPARE(menu->pos(), QCursor::pos()); };
        askForMenu(QContextMenuEvent::Keyboard, view(), isAtTheMouse);
        select(300);
        askForMenu(QContextMenuEvent::Mouse, view()->viewport(), isAtTheMouse);
        verifySelected(300);
    }

    void theMenuKeyOpensAtTheSelectedRow_data()
    {
        const Rows<int> row("selected");
        row("selected", 300);
        row("scrolled out of view", 1150);
        row("collapsed", 600);
    }

    void theMenuKeyOpensAtTheSelectedRow()
    {
        QFETCH(int, selected);
        startWithTree();
        // Leaves room for the whole menu below.
        view()->setFixedHeight(120);
        view()->parentWidget()->layout()->setAlignment(view(), Qt::AlignTop);
        QCoreApplication::processEvents();
        addMany();
        fork(300, 600);
        list()->setFlat(false);
        select(selected);
        view()->verticalScrollBar()->setValue(0);
        if (selected == 600) {
            view()->collapse(list()->rowOfPid(300));
        }
        view()->horizontalScrollBar()->setValue(view()->horizontalScrollBar()->maximum());
        QVERIFY(view()->horizontalScrollBar()->value() > 0);
        QCursor::setPos(Fixture::window()->mapToGlobal(QPoint(1, 41)));
        askForMenu(QContextMenuEvent::Keyboard, view(), [selected](QMenu *menu) {
            const QRect row = view()->visualRect(list()->rowOfPid(selected));
            QVERIFY(view()->viewport()->rect().intersects(row));
            QCOMPARE(menu->pos(), view()->viewport()->mapToGlobal(row.bottomLeft()));
            QVERIFY(killAction()->isVisible());
        });
        verifySelected(selected);
        // The next one, by the mouse, is at the mouse again.
        askForMenu(QContextMenuEvent::Mouse, view()->viewport(),
                   [](QMenu *menu) { QCOMPARE(menu->pos(), QCursor::pos()); });
    }

    void theSelectedRowCountsWhereAnotherIsCurrent_data()
    {
        const Rows<bool> row("byAssistiveTechnology");
        row("assistive technology", true);
        row("selection model", false);
    }

    void theSelectedRowCountsWhereAnotherIsCurrent()
    {
        QFETCH(bool, byAssistiveTechnology);
        startWithTree();
        list()->setFlat(true);
        select(100);
        highlight(300, byAssistiveTechnology);
        verifyActsOn(300, 100);
        highlight(400, byAssistiveTechnology);
        verifyActsOn(400, 100);
        fixture->refresh(1);
        verifyActsOn(400, 100);
        askForMenu(QContextMenuEvent::Keyboard, view(), [](QMenu *menu) {
            const QRect row = view()->visualRect(list()->rowOfPid(400));
            QCOMPARE(menu->pos(), view()->viewport()->mapToGlobal(row.bottomLeft()));
        });
        list()->setFlat(false); // makes all rows anew
        verifySelected(400);
        list()->setFlat(true);
        highlight(300, byAssistiveTechnology);
        standin::machine().processes->erase(400); // the current row
        fixture->refresh(1);
        verifySelected(300);
        verifyActsOn(300, 300);
        highlight(200, byAssistiveTechnology);
        standin::machine().processes->erase(200); // the selected row
        fixture->refresh(1);
        verifySelected(-1);
        QVERIFY(!killAction()->isVisible());
    }

private:
    /// Selects the row without making it current.
    static void highlight(int pid, bool byAssistiveTechnology)
    {
        const QModelIndex row = list()->rowOfPid(pid);
        if (byAssistiveTechnology) {
            QAccessibleInterface *table = QAccessible::queryAccessibleInterface(view());
            QVERIFY(table->tableInterface()->selectRow(row.row()));
        } else {
            view()->selectionModel()->select(row,
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        }
        QVERIFY(view()->selectionModel()->isRowSelected(row.row(), QModelIndex()));
    }

    /// The question of the action is about the process, while the row of another one is current.
    static void verifyActsOn(int pid, int current)
    {
        QCOMPARE(list()->processAt(view()->currentIndex()).pid(), current);
        SeenBox seen;
        const ModalDriver driver(pressing(QMessageBox::Cancel, &seen));
        killAction()->trigger();
        QCOMPARE(seen.informativeText, QStringLiteral("made-up%1 (%1)").arg(pid));
    }

    static QAction *killAction() { return Fixture::processAction("Kill process"); }

    /// A tree in which each process of the fixture is the parent of the next. Only the test refreshes.
    void startWithTree(int parentOfTheLast = 300)
    {
        made(200).parent = 100;
        made(300).parent = 200;
        made(400).parent = parentOfTheLast;
        fixture->start(1);
        Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->stop();
        Fixture::window()->setGeometry(0, -20, 700, 500); // the menu is almost as high as the screen
        QCoreApplication::processEvents();
        list()->setFlat(false);
    }

    static void fork(int parent, int child)
    {
        standin::Process process = made(parent);
        process.parent = parent;
        process.name = "child" + std::to_string(child);
        standin::machine().processes->emplace(child, process);
    }

    /// Processes that stand at the top of the tree.
    static void addMany()
    {
        for (int pid = 1000; pid < 1200; ++pid) {
            fork(100, pid);
            made(pid).parent = 1;
        }
    }

    static bool isInView(int pid)
    {
        return view()->viewport()->rect().intersects(view()->visualRect(list()->rowOfPid(pid)));
    }
    static QPoint emptySpace()
    {
        const QPoint point = view()->viewport()->rect().center();
        return view()->indexAt(point).isValid() ? QPoint() : point;
    }

    /// Sends the event that asks for the context menu, calls `act` and closes the menu.
    static void askForMenu(QContextMenuEvent::Reason reason, QWidget *receiver,
                           const std::function<void(QMenu *)> &act)
    {
        const ModalDriver driver([&](QWidget *widget) {
            auto *menu = qobject_cast<QMenu *>(widget);
            act(menu);
            menu->close();
        });
        QContextMenuEvent event(reason, receiver->rect().center());
        QApplication::sendEvent(receiver, &event);
    }
};

QTEST_MAIN(TestListMenu)
#include "test_listmenu.moc"
