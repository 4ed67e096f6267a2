// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/sampleprocess.h"
#include "tests/desktop/session.h"

#include <QtTest>

#include <algorithm>
#include <csignal>
#include <pwd.h>
#include <unistd.h>

class TestProcessesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theColumnsAreShownInTheirOrder();
    void aProcessIsShownWithWhatTheKernelTellsOfIt();
    void aBusyProcessShowsItsShareOfTheMachine();
    void aProcessThatStopsAndGoesOnIsFollowed();
    void aRenamedProcessComesBackUnderItsNewName();
    void aProcessThatEndsLeavesTheList();
    void processesOfOthersAreListedOnlyAmongAll();
    void aClickOnAHeaderSortsByTheColumn();
    void sortingByCpuGoesByTheShare();
    void theTreeHangsAChildUnderItsParent();
    void theContextMenuListsTheActionsAndTheColumns();
    void theColumnMenuHidesAndShowsAColumn();
    void theSelectionStaysOnItsProcess();

private:
    Table list() { return m_session->table(QStringLiteral("treeView")); }
    QString text(int pid, const char *header);
    bool waitForText(int pid, const char *header, const QString &text);
    bool waitForRow(int pid);
    bool waitForNoRow(int pid);
    bool select(int pid);
    bool openContextMenu(int pid);
    std::unique_ptr<DesktopSession> m_session;
};

namespace {

int rowOf(const Table &table, int pid)
{
    return table.find(QStringLiteral("PID"), QString::number(pid));
}

double share(const QString &cpuText)
{
    return cpuText.section(QLatin1Char(' '), 0, 0).toDouble();
}

QString userName(uid_t id)
{
    const passwd *const user = getpwuid(id);
    return user ? QString::fromLocal8Bit(user->pw_name) : QString::number(id);
}

} // namespace

void TestProcessesPage::init()
{
    SessionOptions options;
    options.settings = "[interval]\nprocs=1\n"; // a refresh every second
    m_session = std::make_unique<DesktopSession>(options);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    // The settings that were read have reset the list; it is there again at the next tick that is due.
    QVERIFY2(waitForRow(getpid()), qPrintable(m_session->error()));
}

void TestProcessesPage::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning("%s", qPrintable(m_session->error()));
    m_session->key(QStringLiteral("Escape"));
    m_session->closeMainWindow();
    QVERIFY2(m_session->waitForExit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

QString TestProcessesPage::text(int pid, const char *header)
{
    const Table now = list();
    return now.text(rowOf(now, pid), QLatin1String(header));
}

bool TestProcessesPage::waitForText(int pid, const char *header, const QString &expected)
{
    return m_session->waitFor([&] { return text(pid, header) == expected; });
}

bool TestProcessesPage::waitForRow(int pid)
{
    return m_session->waitFor([&] { return rowOf(list(), pid) >= 0; });
}

bool TestProcessesPage::waitForNoRow(int pid)
{
    return m_session->waitFor([&] {
        const Table now = list();
        return !now.rows.isEmpty() && rowOf(now, pid) < 0;
    });
}

// Clicks again when a refresh has moved the row away from under the mouse.
bool TestProcessesPage::select(int pid)
{
    return m_session->waitFor([&] {
        const Table now = list();
        return now.rows.value(rowOf(now, pid)).selected ||
               (m_session->clickRow(QStringLiteral("treeView"), QStringLiteral("PID"),
                                    QString::number(pid)) &&
                false);
    });
}

// The right button selects the row under the mouse, which a refresh may have made another one.
bool TestProcessesPage::openContextMenu(int pid)
{
    return m_session->waitFor([&] {
        m_session->clickRow(QStringLiteral("treeView"), QStringLiteral("PID"), QString::number(pid), 3);
        const bool open = m_session->waitFor([&] { return !m_session->menuTexts().isEmpty(); });
        const Table now = list();
        if (open && now.rows.value(rowOf(now, pid)).selected)
            return true;
        m_session->key(QStringLiteral("Escape"));
        m_session->waitFor([&] { return m_session->menuTexts().isEmpty(); });
        return false;
    });
}

void TestProcessesPage::theColumnsAreShownInTheirOrder()
{
    const QStringList expected{
        QStringLiteral("Name"),     QStringLiteral("CPU"),     QStringLiteral("PID"),
        QStringLiteral("User"),     QStringLiteral("Memory"),  QStringLiteral("State"),
        QStringLiteral("CPU time"), QStringLiteral("Started"), QStringLiteral("Command line")};
    QCOMPARE(list().visibleHeaders().mid(0, expected.size()), expected);
}

void TestProcessesPage::aProcessIsShownWithWhatTheKernelTellsOfIt()
{
    const SampleProcess sample(QStringLiteral("slp"));
    QVERIFY(sample.isReady());
    QVERIFY2(waitForRow(sample.pid()), qPrintable(m_session->error()));
    QCOMPARE(text(sample.pid(), "Name"), sample.name());
    QCOMPARE(text(sample.pid(), "State"), QStringLiteral("Sleeping"));
    QCOMPARE(text(sample.pid(), "User"), userName(getuid()));
    QVERIFY(text(sample.pid(), "Command line")
                .endsWith(QStringLiteral("sample_process %1 sleep").arg(sample.name())));
    const QRegularExpression size(QStringLiteral("^\\d+\\.\\d\\d [KMG]?B$"));
    QVERIFY2(size.match(text(sample.pid(), "Memory")).hasMatch(), qPrintable(text(sample.pid(), "Memory")));
}

// The one that does nothing shows a little too: with a counter of 0 its difference is taken as 1.
void TestProcessesPage::aBusyProcessShowsItsShareOfTheMachine()
{
    const SampleProcess idle(QStringLiteral("idl"));
    const SampleProcess busy(QStringLiteral("bsy"), SampleProcess::Busy);
    QVERIFY(idle.isReady() && busy.isReady());
    double most = 0;
    QVERIFY2(m_session->waitFor([&] {
        const Table now = list();
        const auto shown = [&](const SampleProcess &process) {
            return share(now.text(rowOf(now, process.pid()), QStringLiteral("CPU")));
        };
        most = shown(busy);
        return most >= 5.0 && shown(idle) < most / 2 && rowOf(now, idle.pid()) >= 0;
    }),
             qPrintable(m_session->error()));
    // The two clocks are not read at the same moment, so one CPU's share may be passed by a little.
    const double oneCpu = 100.0 / double(sysconf(_SC_NPROCESSORS_ONLN));
    QVERIFY2(most <= oneCpu * 1.5, qPrintable(QString::number(most)));
    QCOMPARE(text(busy.pid(), "State"), QStringLiteral("Running"));
}

void TestProcessesPage::aProcessThatStopsAndGoesOnIsFollowed()
{
    const SampleProcess sample(QStringLiteral("stp"));
    QVERIFY(sample.isReady());
    QVERIFY(waitForText(sample.pid(), "State", QStringLiteral("Sleeping")));
    QVERIFY(sample.sendSignal(SIGSTOP));
    QVERIFY(waitForText(sample.pid(), "State", QStringLiteral("Stopped")));
    QVERIFY(sample.sendSignal(SIGCONT));
    QVERIFY(waitForText(sample.pid(), "State", QStringLiteral("Sleeping")));
}

void TestProcessesPage::aRenamedProcessComesBackUnderItsNewName()
{
    const SampleProcess sample(QStringLiteral("ren"));
    QVERIFY(sample.isReady());
    QVERIFY(waitForText(sample.pid(), "Name", sample.name()));
    QVERIFY(sample.sendSignal(SIGUSR1));
    QVERIFY(waitForText(sample.pid(), "Name", sample.renamed()));
}

void TestProcessesPage::aProcessThatEndsLeavesTheList()
{
    int pid = 0;
    {
        const SampleProcess sample(QStringLiteral("end"));
        QVERIFY(sample.isReady());
        pid = sample.pid();
        QVERIFY(waitForRow(pid));
    }
    QVERIFY(waitForNoRow(pid));
}

void TestProcessesPage::processesOfOthersAreListedOnlyAmongAll()
{
    if (getuid() != 0)
        QSKIP("only root can start a process of another user");
    const uid_t other = 65534;
    const SampleProcess foreign(QStringLiteral("oth"), SampleProcess::Sleeping, int(other));
    const SampleProcess own(QStringLiteral("own"));
    QVERIFY(foreign.isReady() && own.isReady());
    QVERIFY(waitForRow(own.pid()));
    QCOMPARE(rowOf(list(), foreign.pid()), -1);
    QVERIFY(m_session->key(QStringLiteral("ctrl+a")));
    QVERIFY(waitForText(foreign.pid(), "User", userName(other)));
    QVERIFY(waitForRow(own.pid()));
    QVERIFY(m_session->key(QStringLiteral("ctrl+m")));
    QVERIFY(waitForNoRow(foreign.pid()));
    QVERIFY(waitForRow(own.pid()));
}

void TestProcessesPage::aClickOnAHeaderSortsByTheColumn()
{
    QList<bool> orders;
    for (int clicks = 0; clicks < 2; ++clicks) {
        QVERIFY(m_session->clickHeader(QStringLiteral("treeView"), QStringLiteral("PID")));
        QVERIFY(m_session->waitFor([&] {
            const Table now = list();
            return now.sortSection == now.section(QStringLiteral("PID")) &&
                   !orders.contains(now.sortDescending);
        }));
        const Table now = list();
        orders.append(now.sortDescending);
        QList<int> pids;
        for (const QString &pid : now.column(QStringLiteral("PID")))
            pids.append(now.sortDescending ? -pid.toInt() : pid.toInt());
        QVERIFY(pids.size() > 1);
        QVERIFY2(std::is_sorted(pids.begin(), pids.end()), "numbers sort as numbers");
    }
    QVERIFY(orders.first() != orders.last());
}

void TestProcessesPage::sortingByCpuGoesByTheShare()
{
    const SampleProcess busy(QStringLiteral("top"), SampleProcess::Busy);
    QVERIFY(busy.isReady());
    QVERIFY(waitForRow(busy.pid()));
    QVERIFY(m_session->waitFor([&] {
        const Table now = list();
        const bool sorted = now.sortSection == now.section(QStringLiteral("CPU")) && now.sortDescending;
        return sorted || (m_session->clickHeader(QStringLiteral("treeView"), QStringLiteral("CPU")) && false);
    }));
    QVERIFY(m_session->waitFor([&] { return share(text(busy.pid(), "CPU")) >= 1.0; }));
    QList<double> shares;
    for (const QString &cpu : list().column(QStringLiteral("CPU")))
        shares.append(-share(cpu));
    QVERIFY(std::is_sorted(shares.begin(), shares.end()));
}

// A process that appears takes copies of all its ancestors with it, and one that comes later in the same
// refresh takes them over. So the child to look for is always one of the latest.
void TestProcessesPage::theTreeHangsAChildUnderItsParent()
{
    const SampleProcess sample(QStringLiteral("par"), SampleProcess::Parent);
    QVERIFY(sample.isReady());
    QVERIFY(m_session->key(QStringLiteral("ctrl+f")));
    QVERIFY2(m_session->waitFor([&] {
        const Table now = list();
        const int parent = now.parentOf(now.find(QStringLiteral("Name"), sample.childName()));
        return parent >= 0 && now.text(parent, QStringLiteral("PID")) == QString::number(sample.pid()) &&
               now.text(now.parentOf(parent), QStringLiteral("PID")) == QString::number(getpid());
    }),
             qPrintable(m_session->error()));
    QVERIFY(m_session->savePicture(QStringLiteral("processes-tree")));
    QVERIFY(m_session->key(QStringLiteral("ctrl+f")));
    QVERIFY(m_session->waitFor([&] {
        const Table now = list();
        return !now.rows.isEmpty() && std::all_of(now.rows.begin(), now.rows.end(),
                                                  [](const Table::Row &row) { return row.depth == 0; });
    }));
}

void TestProcessesPage::theContextMenuListsTheActionsAndTheColumns()
{
    const SampleProcess sample(QStringLiteral("ctx"));
    QVERIFY(sample.isReady());
    QVERIFY(waitForRow(sample.pid()));
    QVERIFY2(openContextMenu(sample.pid()), qPrintable(m_session->error()));
    const QStringList texts = m_session->menuTexts();
    const QStringList first{QStringLiteral("Tree view"),        QStringLiteral("My processes"),
                            QStringLiteral("All processes"),    QStringLiteral("Stop process"),
                            QStringLiteral("Continue process"), QStringLiteral("Terminate process"),
                            QStringLiteral("Kill process")};
    QCOMPARE(texts.mid(0, first.size()), first);
    QCOMPARE(texts.last(), QStringLiteral("Visible columns"));
    QVERIFY(m_session->menuEntry(QStringLiteral("Stop process")).value(QLatin1String("enabled")).toBool());
    QVERIFY(
        !m_session->menuEntry(QStringLiteral("Continue process")).value(QLatin1String("enabled")).toBool());
    QVERIFY(m_session->savePicture(QStringLiteral("processes-context-menu")));
}

void TestProcessesPage::theColumnMenuHidesAndShowsAColumn()
{
    const int hiddenByDefault = 4;
    const QStringList before = list().visibleHeaders();
    QStringList without = before;
    QVERIFY(without.removeOne(QStringLiteral("Memory")));
    for (const QStringList &expected : {without, before}) {
        QVERIFY2(openContextMenu(getpid()), qPrintable(m_session->error()));
        QVERIFY2(m_session->clickMenu(QStringLiteral("Visible columns")), qPrintable(m_session->error()));
        QVERIFY(m_session->waitFor([&] { return m_session->menuTexts().value(0) == QLatin1String("Name"); }));
        QCOMPARE(m_session->menuTexts().size(), before.size() + hiddenByDefault);
        QCOMPARE(m_session->menuEntry(QStringLiteral("Memory")).value(QLatin1String("checked")).toBool(),
                 expected == without);
        QVERIFY2(m_session->clickMenu(QStringLiteral("Memory")), qPrintable(m_session->error()));
        QVERIFY(m_session->waitFor([&] { return list().visibleHeaders() == expected; }));
        QVERIFY(waitForRow(getpid()));
    }
}

void TestProcessesPage::theSelectionStaysOnItsProcess()
{
    const SampleProcess chosen(QStringLiteral("sel"));
    QVERIFY(chosen.isReady());
    QVERIFY(waitForRow(chosen.pid()));
    QVERIFY2(select(chosen.pid()), qPrintable(m_session->error()));
    int passing = 0;
    {
        const SampleProcess other(QStringLiteral("go"));
        QVERIFY(other.isReady());
        passing = other.pid();
        QVERIFY(waitForRow(passing));
    }
    QVERIFY(waitForNoRow(passing));
    const Table now = list();
    for (int row = 0; row < now.rows.size(); ++row)
        QCOMPARE(now.rows.at(row).selected, row == rowOf(now, chosen.pid()));
}

QTEST_GUILESS_MAIN(TestProcessesPage)
#include "test_processes_page.moc"
