// SPDX-License-Identifier: GPL-3.0-or-later
#include "support.h"
#include "tests/process/support/child.h"
#include "tests/support/modal.h"
#include "tests/support/rows.h"

#include <QtTest>
#include <QtWidgets>

#include <signal.h>

#include <functional>

using Change = std::function<void()>;
Q_DECLARE_METATYPE(Change)

/// Who gets the signal if the list changes while the user makes up their mind. The list shows two real
/// children of this test and nothing else.
class TestWrongProcess : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ControllerTest::init();
        asked = std::make_unique<Child>();
        other = std::make_unique<Child>();
        standin::machine().processes->clear();
        addProcess(*asked, "asked");
        addProcess(*other, "other");
        fixture->start(1);
        QCOMPARE(processList()->rowCount(), 2);
        select("asked");
    }

    void cleanup()
    {
        fixture.reset();
        asked.reset();
        other.reset();
    }

    void aChangeWhileTheBoxIsOpenDoesNotRedirectTheSignal_data()
    {
        changesOfTheList();
        addChange("selection moved by key", [] { QTest::keyClick(view(), Qt::Key_Down); });
        addChange("another selected", [] { select("other"); });
    }

    void aChangeWhileTheBoxIsOpenDoesNotRedirectTheSignal()
    {
        QFETCH(Change, change);
        QFETCH(bool, lives);
        QVERIFY(killAction()->isVisible());
        const auto confirm = [&](QWidget *dialog) {
            change();
            pressing(QMessageBox::Ok)(dialog);
        };
        SeenBox error;
        std::vector<ModalDriver::Handler> answers{confirm};
        if (!lives) {
            answers.push_back(pressing(QMessageBox::Ok, &error));
        }
        const ModalDriver driver(answers);
        killAction()->trigger();
        QCOMPARE(asked->endAndTell(), lives ? SIGKILL : SIGVTALRM);
        QCOMPARE(other->endAndTell(), SIGVTALRM);
        QCOMPARE(error.text, lives
                                 ? QString()
                                 : QStringLiteral("Unable send signal to process. Reason - No such process"));
    }

    void aChangeBeforeTheActionDoesNotRedirectTheSignal_data() { changesOfTheList(); }

    /// While the process has no row the action is hidden; it never applies to the neighbour that moves up.
    void aChangeBeforeTheActionDoesNotRedirectTheSignal()
    {
        QFETCH(Change, change);
        change();
        const bool offered = killAction()->isVisible() && killAction()->isEnabled();
        QTEST(offered, "keepsItsRow");
        if (offered) {
            const ModalDriver driver(pressing(QMessageBox::Ok));
            killAction()->trigger();
            QCOMPARE(asked->waitForSignal(), SIGKILL);
        }
        QCOMPARE(other->endAndTell(), SIGVTALRM);
    }

    void aNewSelectionBeforeTheActionGetsTheSignal()
    {
        select("other");
        const ModalDriver driver(pressing(QMessageBox::Ok));
        killAction()->trigger();
        QCOMPARE(other->waitForSignal(), SIGKILL);
        QCOMPARE(asked->endAndTell(), SIGVTALRM);
    }

private:
    QAction *killAction() { return Fixture::processAction("Kill process"); }
    static std::map<int, standin::Process> &processes() { return *standin::machine().processes; }

    static void addProcess(const Child &child, const char *name)
    {
        standin::Process process;
        process.name = name;
        process.uid = static_cast<int>(getuid());
        process.startTime = 1700000000;
        processes()[child.pid()] = process;
    }

    static void select(const char *name)
    {
        const QModelIndexList found =
            processList()->match(processList()->index(0, 0), Qt::DisplayRole, QLatin1String(name), 1,
                                 Qt::MatchStartsWith | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        view()->setCurrentIndex(found.first());
    }

    void changesOfTheList()
    {
        const Rows<Change, bool, bool> row("change", "keepsItsRow", "lives");
        addEnd("pid reused by another program", [this] {
            processes()[asked->pid()].startTime += 100;
            runProgram("newcomer");
        });
        addEnd("pid reused by the same program", [this] {
            processes()[asked->pid()].startTime += 100;
            refresh(*fixture);
        });
        addEnd("exited", [this] {
            processes().erase(asked->pid());
            refresh(*fixture);
        });
        addLoss("exec", [this] { runProgram("execed"); });
        addChange("exec a while ago", [this] {
            runProgram("execed");
            refresh(*fixture);
        });
        addLoss("reparented", [this] {
            processes()[asked->pid()].parent = other->pid();
            refresh(*fixture);
        });
        addLoss("left the list", [this] { leaveList(); });
        addLoss("left the list and came back", [this] {
            leaveList();
            refresh(*fixture);
            processes()[asked->pid()].uid = static_cast<int>(getuid());
            refresh(*fixture);
        });
        addChange("column toggled",
                  [] { processList()->setColumnVisible(2, !processList()->isColumnVisible(2)); });
        addChange("own and all switched",
                  [] { processList()->setProcessTypes(1 - processList()->processTypes()); });
        addChange("tree toggled", [] { toggleTree(); });
        addChange("tree toggled twice", [] {
            toggleTree();
            toggleTree();
        });
        addChange("sorted the other way", [] { view()->sortByColumn(0, Qt::DescendingOrder); });
        addChange("sorted by another column", [] { view()->sortByColumn(1, Qt::AscendingOrder); });
        addChange("tab changed and back", [] {
            Fixture::choosePage(0);
            Fixture::choosePage(1);
        });
    }

    static void addChange(const char *name, const Change &change, bool keepsItsRow = true, bool lives = true)
    {
        QTest::newRow(name) << change << keepsItsRow << lives;
    }
    /// For changes that end the selection, or interrupt it until the next refresh.
    static void addLoss(const char *name, const Change &change) { addChange(name, change, false); }
    /// For changes that end the process.
    static void addEnd(const char *name, const Change &change) { addChange(name, change, false, false); }
    static void toggleTree() { processList()->setFlat(!processList()->isFlat()); }

    void runProgram(const std::string &name)
    {
        processes()[asked->pid()].name = name;
        processes()[asked->pid()].arguments = name + '\0';
        refresh(*fixture);
    }

    /// It runs on as another user.
    void leaveList()
    {
        processes()[asked->pid()].uid = 65534;
        refresh(*fixture);
    }

    std::unique_ptr<Child> asked;
    std::unique_ptr<Child> other;
};

QTEST_MAIN(TestWrongProcess)
#include "test_wrongprocess.moc"
