// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/proxyprocmodel.h"
#include "tests/app/fixture.h"
#include "tests/process/support/child.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

#include <signal.h>

#include <functional>

// For each way in which the selected process can change while the user makes up his mind: who gets the
// signal. The list shows real children of this test and nobody else.
class TestWrongProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whileTheBoxIsOpenNothingChangesWhoIsMeant_data() { changes(); }
    void whileTheBoxIsOpenNothingChangesWhoIsMeant();
    void beforeTheActionIsChosenNobodyElseIsHit_data() { changes(); }
    void beforeTheActionIsChosenNobodyElseIsHit();
    void whatTheUserSelectsMeanwhileBeforeTheActionIsMeant();

private:
    using Change = void (TestWrongProcess::*)();

    void changes();
    void reusedPid();
    void exec();
    void reparented();
    void leftTheList();
    void rowTaken();
    void columnToggled() { list()->setColumnVisible(2, !list()->isColumnVisible(2)); }
    void typesSwitched() { list()->setProcessTypes(1 - list()->processTypes()); }
    void treeToggled() { list()->setFlat(!list()->isFlat()); }
    void treeToggledTwice();
    void sortedTheOtherWay() { view()->sortByColumn(0, Qt::DescendingOrder); }
    void sortedByAnotherColumn() { view()->sortByColumn(1, Qt::AscendingOrder); }
    void tabChangedAndBack();
    void selectionMovedByKey() { QTest::keyClick(view(), Qt::Key_Down); }
    void otherSelected() { select("other"); }

    static QTreeView *view() { return Fixture::find<QTreeView>("treeView"); }
    static ProxyProcModel *list() { return qobject_cast<ProxyProcModel *>(view()->model()); }
    standin::Process &askedProcess() { return (*standin::machine().processes)[asked->pid()]; }
    void refresh() { QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true)); }
    static void select(const char *name);
    QAction *killAction();
    static void addProcess(const Child &child, const char *name);

    std::unique_ptr<Fixture> fixture;
    std::unique_ptr<Child> asked;
    std::unique_ptr<Child> other;
};

Q_DECLARE_METATYPE(std::function<void()>)

void TestWrongProcess::init()
{
    fixture = std::make_unique<Fixture>();
    asked = std::make_unique<Child>();
    other = std::make_unique<Child>();
    standin::machine().processes->clear();
    addProcess(*asked, "asked");
    addProcess(*other, "other");
    fixture->start(1);
    QCOMPARE(list()->rowCount(), 2);
    select("asked");
}

void TestWrongProcess::cleanup()
{
    fixture.reset();
    asked.reset();
    other.reset();
}

void TestWrongProcess::addProcess(const Child &child, const char *name)
{
    standin::Process process;
    process.name = name;
    process.uid = static_cast<int>(getuid());
    process.startTime = 1700000000;
    (*standin::machine().processes)[child.pid()] = process;
}

void TestWrongProcess::select(const char *name)
{
    const QModelIndexList found = list()->match(list()->index(0, 0), Qt::DisplayRole, QLatin1String(name), 1,
                                                Qt::MatchStartsWith | Qt::MatchRecursive);
    QCOMPARE(found.size(), 1);
    view()->setCurrentIndex(found.first());
}

QAction *TestWrongProcess::killAction()
{
    const auto actions = fixture->updater().findChildren<QAction *>();
    const auto found = std::find_if(actions.begin(), actions.end(), [](const QAction *action) {
        return action->text() == QStringLiteral("Kill process");
    });
    return found == actions.end() ? nullptr : *found;
}

void TestWrongProcess::reusedPid()
{
    askedProcess().name = "newcomer";
    askedProcess().startTime += 100;
    askedProcess().arguments = std::string("newcomer\0", 9);
    refresh();
}

void TestWrongProcess::exec()
{
    askedProcess().name = "execed";
    askedProcess().arguments = std::string("execed\0", 7);
    refresh();
}

void TestWrongProcess::reparented()
{
    askedProcess().parent = other->pid();
    refresh();
}

void TestWrongProcess::leftTheList()
{
    standin::machine().processes->erase(asked->pid());
    refresh();
}

void TestWrongProcess::rowTaken()
{
    const standin::Process kept = askedProcess();
    leftTheList();
    refresh();
    (*standin::machine().processes)[asked->pid()] = kept;
    refresh();
}

void TestWrongProcess::treeToggledTwice()
{
    treeToggled();
    treeToggled();
}

void TestWrongProcess::tabChangedAndBack()
{
    Fixture::choosePage(0);
    Fixture::choosePage(1);
}

void TestWrongProcess::changes()
{
    QTest::addColumn<std::function<void()>>("change");
    const struct
    {
        const char *name;
        Change change;
    } rows[] = {{"pid reused by another program", &TestWrongProcess::reusedPid},
                {"exec", &TestWrongProcess::exec},
                {"reparented", &TestWrongProcess::reparented},
                {"left the list", &TestWrongProcess::leftTheList},
                {"left the list and came back", &TestWrongProcess::rowTaken},
                {"column toggled", &TestWrongProcess::columnToggled},
                {"own and all switched", &TestWrongProcess::typesSwitched},
                {"tree toggled", &TestWrongProcess::treeToggled},
                {"tree toggled twice", &TestWrongProcess::treeToggledTwice},
                {"sorted the other way", &TestWrongProcess::sortedTheOtherWay},
                {"sorted by another column", &TestWrongProcess::sortedByAnotherColumn},
                {"tab changed and back", &TestWrongProcess::tabChangedAndBack}};
    for (const auto &row : rows) {
        QTest::newRow(row.name) << std::function<void()>([this, row] { (this->*row.change)(); });
    }
    const bool boxIsOpen = QByteArray(QTest::currentTestFunction()).startsWith("while");
    if (boxIsOpen) {
        QTest::newRow("selection moved by key") << std::function<void()>([this] { selectionMovedByKey(); });
        QTest::newRow("another selected") << std::function<void()>([this] { otherSelected(); });
    }
}

// The process that was selected when the action was chosen is the one that was asked about.
void TestWrongProcess::whileTheBoxIsOpenNothingChangesWhoIsMeant()
{
    QFETCH(std::function<void()>, change);
    QVERIFY(killAction()->isVisible());
    const ModalDriver driver([&](QWidget *dialog) {
        change();
        pressing(QMessageBox::Ok)(dialog);
    });
    killAction()->trigger();
    QCOMPARE(asked->waitForSignal(), SIGKILL);
    QCOMPARE(other->endAndTell(), SIGVTALRM);
}

// The selected pid is acted on as long as its row is selected; once the row is lost the action is hidden, and
// it never moves to the neighbour that takes the row.
void TestWrongProcess::beforeTheActionIsChosenNobodyElseIsHit()
{
    QFETCH(std::function<void()>, change);
    change();
    const bool offered = killAction()->isVisible() && killAction()->isEnabled();
    if (offered) {
        const ModalDriver driver(pressing(QMessageBox::Ok));
        killAction()->trigger();
        QCOMPARE(asked->waitForSignal(), SIGKILL);
    }
    QCOMPARE(other->endAndTell(), SIGVTALRM);
}

void TestWrongProcess::whatTheUserSelectsMeanwhileBeforeTheActionIsMeant()
{
    otherSelected();
    const ModalDriver driver(pressing(QMessageBox::Ok));
    killAction()->trigger();
    QCOMPARE(other->waitForSignal(), SIGKILL);
    QCOMPARE(asked->endAndTell(), SIGVTALRM);
}

QTEST_MAIN(TestWrongProcess)
#include "test_wrongprocess.moc"
