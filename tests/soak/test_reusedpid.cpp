// SPDX-License-Identifier: GPL-3.0-or-later
#include "pidnamespace.h"
#include "process/gtop_wrappers/starttime.h"
#include "support.h"
#include "tests/process/support/control.h"
#include "tests/support/rows.h"

#include <QtTest>
#include <QtWidgets>

#include <signal.h>
#include <sys/syscall.h>

#include <ctime>

namespace {

struct Command
{
    const char *action;
    int signal; ///< 0: the priority
};

const Command commands[] = {{"Stop process", SIGSTOP},
                            {"Continue process", SIGCONT},
                            {"Terminate process", SIGTERM},
                            {"Kill process", SIGKILL},
                            {"Change priority...", 0}};

constexpr int chosenNice = 7;

/// How the pid goes to another process.
struct Reuse
{
    const char *name;
    bool whileAsked; ///< after the question has been opened; otherwise before
    bool isRefreshed;
    bool hasSameName; ///< the parent is the same in any case
};

const Reuse reuses[] = {{"question open, at once", true, false, false},
                        {"question open, refreshed", true, true, false},
                        {"question open, refreshed, same name", true, true, true},
                        {"selected, at once", false, false, false},
                        {"selected, refreshed, same name", false, true, true},
                        {"selected, refreshed", false, true, false}};

/// Seconds since boot, the clock of process starts.
long secondsSinceBoot()
{
    timespec now = {};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return now.tv_sec;
}

bool hasPidfds()
{
#ifdef SYS_pidfd_open
    const int pidfd = static_cast<int>(syscall(SYS_pidfd_open, getpid(), 0));
    close(pidfd);
    return pidfd != -1;
#else
    return false;
#endif
}

} // namespace

Q_DECLARE_METATYPE(Command)
Q_DECLARE_METATYPE(Reuse)

/// Nothing reaches a process that has got the pid of the one that the user chose. The real controller, with
/// real processes: run in a pid namespace, where a pid can be given away at will.
class TestReusedPid : public QObject
{
    Q_OBJECT

public:
    explicit TestReusedPid(bool isAlone) : choosesPids(isAlone) {}

private Q_SLOTS:
    void initTestCase()
    {
        if (!choosesPids) {
            QSKIP("needs a pid namespace with a /proc of its own, and to choose pids there");
        }
        QVERIFY(folder.isValid());
        QVERIFY(QFile::link(QStringLiteral("/bin/sleep"), QString::fromLocal8Bit(newcomerProgram())));
        // One for each row, so that only one second has to pass until their starts differ from those of
        // newcomers.
        for (std::size_t i = 0; i < std::size(commands) * (std::size(reuses) + 1); ++i) {
            older.push_back(std::make_unique<Child>());
        }
        const long second = secondsSinceBoot();
        QTRY_VERIFY(secondsSinceBoot() > second);
    }

    void cleanup()
    {
        fixture.reset();
        chosen.reset();
        newcomer.reset();
    }

    void theChosenProcessGetsIt_data() { addCommands(); }

    void theChosenProcessGetsIt()
    {
        QFETCH(Command, command);
        chooseOlder(command);
        {
            const ModalDriver driver(answerTo(command));
            action(command)->trigger();
        }
        if (command.signal != 0) {
            QCOMPARE(chosen->waitForSignal(), command.signal);
        } else {
            QCOMPARE(niceOf(chosen->pid()), chosenNice);
        }
    }

    void aNewcomerGetsNothing_data()
    {
        const Rows<Command, Reuse> row("command", "reuse");
        for (const Command &command : commands) {
            for (const Reuse &reuse : reuses) {
                QTest::addRow("%s, %s", command.action, reuse.name) << command << reuse;
            }
        }
    }

    void aNewcomerGetsNothing()
    {
        QFETCH(Command, command);
        QFETCH(Reuse, reuse);
        chooseOlder(command);
        const int descriptors = openDescriptors();
        const auto giveAway = [&] {
            giveAwayPid(command, reuse.hasSameName);
            QVERIFY(startOf(*newcomer) > chosenStart);
            for (int i = 0; reuse.isRefreshed && i < 2; ++i) { // of another name it has a row in the second
                refresh(*fixture);
                QVERIFY(!view()->selectionModel()->hasSelection());
                QVERIFY(!action(command)->isVisible());
            }
        };
        if (reuse.whileAsked) {
            askMeanwhile(command, giveAway);
        } else {
            giveAway();
            if (!reuse.isRefreshed) { // otherwise nothing is selected and the action hidden
                askMeanwhile(command, [] {});
            }
        }
        verifyNewcomerIsUntouched(command);
        QCOMPARE(openDescriptors(), descriptors);
    }

    void aNewcomerOfTheSameSecondGetsNothing_data()
    {
        const Rows<Command, bool> row("command", "livesAtTheQuestion");
        for (const Command &command : commands) {
            QTest::addRow("%s, while the question is open", command.action) << command << true;
            QTest::addRow("%s, free at the question", command.action) << command << false;
        }
    }

    /// Repeated until both starts are in the same second, which the test mostly is fast enough for.
    void aNewcomerOfTheSameSecondGetsNothing()
    {
        QFETCH(Command, command);
        QFETCH(bool, livesAtTheQuestion);
        if (livesAtTheQuestion && !hasPidfds()) {
            QSKIP("only a pidfd tells processes of one second apart");
        }
        bool isSameSecond = false;
        for (const QDeadlineTimer end(60000); !isSameSecond && !end.hasExpired();) {
            choose(std::make_unique<Child>(), command);
            if (!livesAtTheQuestion) {
                endChosen();
            }
            askMeanwhile(command, [&] { giveAwayPid(command, true); });
            isSameSecond = startOf(*newcomer) == chosenStart;
            verifyNewcomerIsUntouched(command);
        }
        QVERIFY(isSameSecond);
    }

    void aZombieTakesItsSignal()
    {
        const Command command{"Kill process", SIGKILL};
        choose(std::make_unique<Child>(), command);
        const ModalDriver driver([&](QWidget *dialog) { // and no error box
            kill(chosen->pid(), SIGTERM);
            QTRY_VERIFY(chosen->hasChanged());
            answerTo(command)(dialog);
        });
        action(command)->trigger();
        QCOMPARE(chosen->waitForSignal(), SIGTERM);
    }

private:
    static QTreeView *view() { return Fixture::find<QTreeView>("treeView"); }
    QAction *action(const Command &command) { return Fixture::processAction(command.action); }
    QByteArray newcomerProgram() const
    {
        return QFile::encodeName(folder.filePath(QStringLiteral("newcomer")));
    }
    static quint64 startOf(const Child &child)
    {
        return gtop_wrappers::readStartTime(child.pid()).value_or(0);
    }
    static void stop(Child &child)
    {
        kill(child.pid(), SIGSTOP);
        QCOMPARE(child.waitForSignal(), SIGSTOP);
    }

    static void addCommands()
    {
        const Rows<Command> row("command");
        for (const Command &command : commands) {
            row(command.action, command);
        }
    }

    static ModalDriver::Handler answerTo(const Command &command)
    {
        return command.signal != 0 ? pressing(QMessageBox::Ok) : choosing(chosenNice);
    }

    void chooseOlder(const Command &command)
    {
        std::unique_ptr<Child> child = std::move(older.back());
        older.pop_back();
        choose(std::move(child), command);
    }

    /// Selects the child in the list of a new controller, which shows the real processes.
    void choose(std::unique_ptr<Child> child, const Command &command)
    {
        chosen = std::move(child);
        chosenStart = startOf(*chosen);
        QVERIFY(chosenStart > 0);
        if (command.signal == SIGCONT) {
            stop(*chosen);
        }
        fixture = std::make_unique<Fixture>();
        standin::machine().processes.reset();
        fixture->start(1);
        view()->setCurrentIndex(processList()->rowOfPid(chosen->pid()));
        QCOMPARE(processList()->processAt(view()->currentIndex()).pid(), chosen->pid());
        QVERIFY(action(command)->isVisible() && action(command)->isEnabled());
    }

    void endChosen()
    {
        kill(chosen->pid(), SIGKILL);
        QCOMPARE(chosen->waitForSignal(), SIGKILL);
    }

    /// Ends the chosen process, unless it has ended, and starts one with its pid; for SIGCONT a stopped one,
    /// as one that runs would not show the signal.
    void giveAwayPid(const Command &command, bool hasSameName)
    {
        if (kill(chosen->pid(), 0) == 0) {
            endChosen();
        }
        const QByteArray program = hasSameName ? QByteArray("/bin/sleep") : newcomerProgram();
        const QDeadlineTimer end(10000);
        do {
            QVERIFY(choosePid(chosen->pid()));
            newcomer = std::make_unique<Child>(0, program.constData());
        } while (newcomer->pid() != chosen->pid() && !end.hasExpired());
        QCOMPARE(newcomer->pid(), chosen->pid());
        if (command.signal == SIGCONT) {
            stop(*newcomer);
        }
    }

    /// Opens the question, calls `change` and confirms: the error box has to name the chosen process.
    void askMeanwhile(const Command &command, const std::function<void()> &change)
    {
        const QString label = QStringLiteral("sleep (%1)").arg(chosen->pid());
        SeenBox seen;
        const auto confirm = [&](QWidget *dialog) {
            change();
            answerTo(command)(dialog);
        };
        const ModalDriver driver({confirm, pressing(QMessageBox::Ok, &seen)});
        action(command)->trigger();
        verifyErrorBox(seen, command.signal != 0 ? "Unable send signal to process. Reason - No such process"
                                                 : "Unable change priority. Reason - No such process");
        QCOMPARE(seen.informativeText, label);
    }

    void verifyNewcomerIsUntouched(const Command &command)
    {
        QVERIFY(!newcomer->hasChanged());
        QCOMPARE(niceOf(newcomer->pid()), niceOf(getpid()));
        if (command.signal == SIGCONT) {
            kill(newcomer->pid(), SIGCONT);
            QCOMPARE(newcomer->waitForSignal(), SIGCONT);
        }
        QCOMPARE(newcomer->endAndTell(), SIGVTALRM);
    }

    const bool choosesPids;
    QTemporaryDir folder;
    std::vector<std::unique_ptr<Child>> older;
    std::unique_ptr<Fixture> fixture;
    std::unique_ptr<Child> chosen;
    quint64 chosenStart = 0;
    std::unique_ptr<Child> newcomer;
};

/// ZSM_NO_PIDFDS runs it as on a kernel without pidfds.
int main(int argc, char *argv[])
{
    return runInPidNamespace([&](bool isAlone) {
        if (qEnvironmentVariableIsSet("ZSM_NO_PIDFDS") && !forbidPidfds()) {
            isAlone = false;
        }
        QApplication app(argc, argv);
        TestReusedPid test(isAlone);
        return QTest::qExec(&test, argc, argv);
    });
}

#include "test_reusedpid.moc"
