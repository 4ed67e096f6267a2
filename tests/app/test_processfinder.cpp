// SPDX-License-Identifier: GPL-3.0-or-later
// The line that filters the process list: what opens it, where keys go, and what happens to the selection.
#include "fixture.h"

#include "process/proxyprocmodel.h"
#include "tests/support/modal.h"
#include "tests/support/rows.h"

#include <QtTest>
#include <QtWidgets>

#include <utility>

class TestProcessFinder : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void theClosedLineTakesNoRoom()
    {
        startList();
        QVERIFY(!line()->isVisible());
        QCOMPARE(view()->parentWidget()->layout()->contentsRect(), view()->geometry());
        QTest::keyClick(view(), Qt::Key_Escape);
        QTest::keyClick(view(), Qt::Key_Backspace);
        QVERIFY(!line()->isVisible());
    }

    void typingFilters()
    {
        startList();
        type("M");
        QVERIFY(line()->isVisible() && field()->hasFocus());
        type("ADE-UP3");
        QCOMPARE(field()->text(), QStringLiteral("MADE-UP3"));
        QCOMPARE(shown(), QList<int>{300});
        QTRY_COMPARE(count(), QStringLiteral("1 of 4"));
        QCOMPARE(field()->accessibleDescription(), count());
        QTest::keyClick(field(), Qt::Key_Backspace);
        QCOMPARE(shown().size(), 4);
    }

    void theSlashOpensAnEmptyLine()
    {
        startList();
        type("/");
        QVERIFY(line()->isVisible() && field()->hasFocus());
        QCOMPARE(field()->text(), QString());
        QCOMPARE(count(), QStringLiteral("4 of 4"));
        type("/");
        QCOMPARE(field()->text(), QStringLiteral("/"));
    }

    void theMenuOpensTheLine()
    {
        startList();
        Fixture::processAction("Find process...")->trigger();
        QVERIFY(line()->isVisible() && field()->hasFocus());
    }

    void theSearchForATypedNameOfTheViewIsGone()
    {
        startList();
        select(100);
        view()->setCurrentIndex(list()->rowOfPid(100).siblingAtColumn(2)); // a click outside the Name column
        type("made-up4");
        QCOMPARE(shown(), QList<int>{400});
    }

    void keysThatGoToTheList_data()
    {
        const Rows<int, int, int> row("key", "from", "to");
        row("Down", Qt::Key_Down, 200, 300);
        row("Up", Qt::Key_Up, 200, 100);
        row("Page down", Qt::Key_PageDown, 100, 400);
        row("Page up", Qt::Key_PageUp, 400, 100);
        row("Return", Qt::Key_Return, 200, 200);
        row("Enter", Qt::Key_Enter, 200, 200);
        row("Return without a selection", Qt::Key_Return, -1, 100);
        row("Down without a selection", Qt::Key_Down, -1, 100);
    }

    void keysThatGoToTheList()
    {
        QFETCH(int, key);
        QFETCH(int, from);
        QFETCH(int, to);
        startList();
        if (from != -1) {
            select(from);
        }
        type("made");
        QTest::keyClick(field(), static_cast<Qt::Key>(key));
        QVERIFY(view()->hasFocus());
        verifySelected(to);
    }

    void inTheTreeEnterSelectsTheFirstMatch()
    {
        startList();
        list()->setFlat(false);
        type("made-up400");
        QCOMPARE(shown(), QList<int>({100, 400}));
        QTest::keyClick(field(), Qt::Key_Return);
        verifySelected(400);
    }

    void typingInTheListGoesOnInTheLine()
    {
        startList();
        type("made-up");
        QTest::keyClick(field(), Qt::Key_Return);
        type("3");
        QCOMPARE(field()->text(), QStringLiteral("made-up3"));
        QVERIFY(field()->hasFocus());
        QTest::keyClick(field(), Qt::Key_Down);
        QTest::keyClick(view(), Qt::Key_Backspace);
        QCOMPARE(field()->text(), QStringLiteral("made-up"));
        QTest::keyClick(field(), Qt::Key_Down);
        type("/");
        QCOMPARE(field()->selectedText(), QStringLiteral("made-up")); // the next key begins anew
    }

    void escapeEmptiesAndCloses_data()
    {
        const Rows<bool> row("inList");
        row("in the line", false);
        row("in the list", true);
    }

    void escapeEmptiesAndCloses()
    {
        QFETCH(bool, inList);
        startList();
        addMany();
        type("many1150");
        QTest::keyClick(field(), Qt::Key_Return);
        QCOMPARE(shown(), QList<int>{1150});
        QTest::keyClick(inList ? static_cast<QWidget *>(view()) : field(), Qt::Key_Escape);
        QVERIFY(!line()->isVisible() && view()->hasFocus());
        QCOMPARE(field()->text(), QString());
        QCOMPARE(shown().size(), 204);
        verifySelected(1150);
        QVERIFY(view()->viewport()->rect().intersects(view()->visualRect(view()->currentIndex())));
    }

    void withoutASelectionTheListIsWhereItWas()
    {
        startList();
        addMany();
        view()->verticalScrollBar()->setValue(70);
        const int top = list()->pidAt(view()->indexAt({}));
        type("made-up3");
        QTest::keyClick(field(), Qt::Key_Escape);
        QCOMPARE(list()->pidAt(view()->indexAt({})), top);
    }

    void aHiddenProcessGetsNoSignal_data()
    {
        const Rows<bool> row("byRefresh");
        row("by a key", false);
        row("by a refresh", true);
    }

    void aHiddenProcessGetsNoSignal()
    {
        QFETCH(bool, byRefresh);
        startList();
        select(300);
        QVERIFY(Fixture::processAction("Kill process")->isVisible());
        int questions = 0;
        const ModalDriver driver([&](QWidget *box) {
            ++questions;
            box->close();
        });
        QTest::keyClick(view(), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(std::exchange(questions, 0), 1);
        focusList();
        if (byRefresh) {
            type("made-up3");
            QVERIFY(Fixture::processAction("Kill process")->isVisible());
            made(300).name = "other";
            fixture->refresh(1);
            fixture->refresh(1); // a process with a new name has no row for one refresh
        } else {
            type("made-up4");
        }
        verifySelected(-1);
        QVERIFY(!Fixture::processAction("Kill process")->isVisible());
        if (byRefresh) { // nor is it selected when it matches again
            made(300).name = "made-up300";
            fixture->refresh(1);
            fixture->refresh(1);
            QCOMPARE(shown(), QList<int>{300});
            verifySelected(-1);
        }
        QTest::keyClick(view(), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(questions, 0);
        QTest::keyClick(field(), Qt::Key_Escape);
        fixture->refresh(1);
        verifySelected(-1);
    }

    void anOpenQuestionKeepsItsProcess()
    {
        startList();
        select(300);
        type("made-up3");
        QString question;
        const ModalDriver driver([&](QWidget *box) {
            field()->setText(QStringLiteral("made-up4"));
            question = qobject_cast<QMessageBox *>(box)->informativeText();
            box->close();
        });
        Fixture::processAction("Kill process")->trigger();
        QVERIFY2(question.contains(QStringLiteral("made-up300")), qPrintable(question));
    }

    void keysThatEditTheLineAreNoShortcuts_data()
    {
        const Rows<int, bool> row("key", "edits");
        row("Ctrl+A", Qt::Key_A, true);
        row("Ctrl+C", Qt::Key_C, true);
        row("Ctrl+K", Qt::Key_K, true);
        row("Ctrl+V", Qt::Key_V, true);
        row("Ctrl+X", Qt::Key_X, true);
        row("Ctrl+Z", Qt::Key_Z, true);
        row("Ctrl+S", Qt::Key_S, false);
        row("Ctrl+T", Qt::Key_T, false);
        row("Ctrl+M", Qt::Key_M, false);
        row("Ctrl+F", Qt::Key_F, false);
    }

    void keysThatEditTheLineAreNoShortcuts()
    {
        QFETCH(int, key);
        QFETCH(bool, edits);
        startList();
        type("made");
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        event.ignore();
        QCoreApplication::sendEvent(field(), &event);
        QCOMPARE(event.isAccepted(), edits);
    }

    void nothingFoundIsSaid()
    {
        startList();
        auto *note = view()->findChild<QLabel *>(QStringLiteral("listNote"));
        type("made-up3");
        QVERIFY(!note->isVisible());
        standin::machine().processes->erase(300);
        fixture->refresh(1);
        QTRY_VERIFY(note->isVisible());
        QCOMPARE(note->text(), QStringLiteral("No process found"));
        QCOMPARE(note->geometry(), view()->viewport()->geometry());
        QCOMPARE(count(), QStringLiteral("0 of 3"));
        QTest::keyClick(field(), Qt::Key_Down);
        QVERIFY(field()->hasFocus());
        Fixture::window()->resize(800, 600);
        QTRY_COMPARE(note->geometry(), view()->viewport()->geometry());
        QTest::keyClick(field(), Qt::Key_Backspace);
        QTRY_VERIFY(!note->isVisible());
    }

    void commandLinesAreFoundWithoutAnotherKey()
    {
        made(200).arguments = std::string("needle\0", 7);
        startList();
        Fixture::processAction("Find process...")->trigger();
        field()->setText(QStringLiteral("needle"));
        QTRY_COMPARE(shown(), QList<int>{200});
        QTRY_COMPARE(count(), QStringLiteral("1 of 4"));
    }

    void aResetKeepsTheFilterAndTheSelection()
    {
        startList();
        type("made-up4");
        QTest::keyClick(field(), Qt::Key_Return);
        list()->setFlat(false);
        QCOMPARE(shown(), QList<int>({100, 400}));
        verifySelected(400);
        list()->setColumnVisible(4, false);
        QCOMPARE(shown(), QList<int>({100, 400}));
        list()->setFlat(true);
        QCOMPARE(shown(), QList<int>{400});
        verifySelected(400);
    }

    void theLineIsEmptyAtEveryStart()
    {
        startList();
        type("made-up3");
        startList();
        QVERIFY(!line()->isVisible());
        QCOMPARE(shown().size(), 4);
    }

    void composedTextGoesIntoTheLine()
    {
        startList();
        QInputMethodQueryEvent query(Qt::ImEnabled);
        QCoreApplication::sendEvent(view(), &query);
        QVERIFY(query.value(Qt::ImEnabled).toBool());
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("\u00e9"));
        QCoreApplication::sendEvent(view(), &composed);
        QVERIFY(field()->hasFocus());
        QCOMPARE(field()->text(), QStringLiteral("\u00e9"));
        QInputMethodEvent composing(QStringLiteral("x"), {});
        QCoreApplication::sendEvent(field(), &composing);
        QCOMPARE(shown().size(), 0); // for "é" alone: what is being composed does not count yet
    }

    void tabLeadsFromTheListToTheLine()
    {
        startList();
        type("/");
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_Tab);
        QVERIFY(field()->hasFocus());
        QVERIFY(!field()->accessibleName().isEmpty());
        QTest::keyClick(field(), Qt::Key_Tab);
        auto *close = Fixture::find<QToolButton>("filterClose");
        QVERIFY(close->hasFocus());
        QCOMPARE(close->accessibleName(), QStringLiteral("Close"));
        QTest::keyClick(close, Qt::Key_Space);
        QVERIFY(!line()->isVisible() && view()->hasFocus());
    }

private:
    static QWidget *line() { return Fixture::find<QWidget>("filterLine"); }
    static QLineEdit *field() { return Fixture::find<QLineEdit>("filterText"); }
    static QString count() { return Fixture::find<QLabel>("filterCount")->text(); }

    /// Only the test refreshes.
    void startList()
    {
        for (const int pid : {200, 300, 400}) {
            made(pid).parent = 100;
        }
        fixture->start(1);
        Fixture::window()->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly)->stop();
        Fixture::window()->resize(700, 500);
        view()->sortByColumn(2, Qt::AscendingOrder);
        focusList();
    }

    static void focusList()
    {
        Fixture::window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Fixture::window()));
        view()->setFocus();
    }

    void addMany()
    {
        for (int pid = 1000; pid < 1200; ++pid) {
            standin::Process process = made(100);
            process.name = "many" + std::to_string(pid);
            standin::machine().processes->emplace(pid, process);
        }
        fixture->refresh(1);
    }

    /// Sends the keys to the widget that has the focus by then.
    static void type(const char *text)
    {
        for (; *text; ++text) {
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }

    /// Pids of the rows, from the first to the last.
    static QList<int> shown()
    {
        QList<int> pids;
        for (QModelIndex row = list()->index(0, 0); row.isValid(); row = view()->indexBelow(row)) {
            pids.append(list()->pidAt(row));
        }
        return pids;
    }
};

QTEST_MAIN(TestProcessFinder)
#include "test_processfinder.moc"
