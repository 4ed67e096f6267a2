// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <algorithm>
#include <csignal>
#include <pwd.h>
#include <unistd.h>

namespace {

QString userName(uid_t id)
{
    const passwd *user = getpwuid(id);
    return user ? QString::fromLocal8Bit(user->pw_name) : QString::number(id);
}

} // namespace

class TestProcessesPage : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SessionOptions options;
        options.settings = "[interval]\nprocs=1\n"; // refreshes every second
        startAsOwnUser(options);
        QVERIFY2(rowOf(page->list(), getpid()) >= 0, "the list is filled when the window appears");
    }

    void cleanup()
    {
        page->closeMenus();
        QVERIFY(session->endsCleanly());
    }

    void theColumnsAreShownInTheirOrder()
    {
        QCOMPARE(page->list().visibleHeaders().mid(0, 9),
                 QStringList({"Name", "CPU", "PID", "User", "Memory", "State", "CPU time", "Started",
                              "Command line"}));
    }

    void aRowShowsWhatTheKernelReports()
    {
        const SampleProcess sample("slp");
        QVERIFY(sample.isReady() && page->waitForRow(sample.pid()));
        QCOMPARE(page->text(sample.pid(), "Name"), sample.name());
        QVERIFY(page->waitForText(sample.pid(), "State", "Sleeping")); // it may still be starting
        QCOMPARE(page->text(sample.pid(), "User"), userName(getuid()));
        QVERIFY(
            page->text(sample.pid(), "Command line").endsWith("sample_process " + sample.name() + " sleep"));
        const QString memory = page->text(sample.pid(), "Memory");
        QVERIFY2(QRegularExpression("^\\d+\\.\\d\\d [KMG]?B$").match(memory).hasMatch(), qPrintable(memory));
    }

    void aBusyProcessShowsItsShareOfTheMachine()
    {
        const SampleProcess idle("idl");
        const SampleProcess busy("bsy", SampleProcess::Busy);
        QVERIFY(idle.isReady() && busy.isReady());
        double most = 0;
        QVERIFY(session->waitFor([&] {
            const Table now = page->list();
            most = share(now.text(rowOf(now, busy.pid()), "CPU"));
            return most >= 5.0 && now.text(rowOf(now, idle.pid()), "CPU") == "0.0 %";
        }));
        // The two clocks are not read at the same moment, so one CPU's share may be exceeded slightly.
        const double oneCpu = 100.0 / double(sysconf(_SC_NPROCESSORS_ONLN));
        QVERIFY2(most <= oneCpu * 1.5, qPrintable(QString::number(most)));
        QCOMPARE(page->text(busy.pid(), "State"), QString("Running"));
    }

    void processesOfOthersAreListedOnlyWithAllProcesses()
    {
        if (getuid() != 0) {
            QSKIP("only root can start a process of another user");
        }
        const uid_t other = 65534;
        const SampleProcess foreign("oth", SampleProcess::Sleeping, int(other));
        const SampleProcess own("own");
        QVERIFY(foreign.isReady() && own.isReady() && page->waitForRow(own.pid()));
        QCOMPARE(rowOf(page->list(), foreign.pid()), -1);
        QVERIFY(session->key("ctrl+a"));
        QVERIFY(page->waitForText(foreign.pid(), "User", userName(other)));
        QVERIFY(page->waitForRow(own.pid()));
        QVERIFY(session->key("ctrl+m"));
        QVERIFY(page->waitForNoRow(foreign.pid()));
        QVERIFY(page->waitForRow(own.pid()));
    }

    void aClickOnAHeaderSortsByTheColumn()
    {
        QList<bool> orders;
        for (int clicks = 0; clicks < 2; ++clicks) {
            QVERIFY(session->clickHeader("treeView", "PID"));
            QVERIFY(session->waitFor([&] {
                const Table now = page->list();
                return now.sortSection == now.section("PID") && !orders.contains(now.sortDescending);
            }));
            const Table now = page->list();
            orders.append(now.sortDescending);
            QList<int> pids;
            for (const QString &pid : now.column("PID")) {
                pids.append(now.sortDescending ? -pid.toInt() : pid.toInt());
            }
            QVERIFY(pids.size() > 1);
            QVERIFY2(std::is_sorted(pids.begin(), pids.end()), "numeric order");
        }
        QVERIFY(orders.first() != orders.last());
    }

    void sortingByCpuIsNumeric()
    {
        const SampleProcess busy("top", SampleProcess::Busy);
        QVERIFY(busy.isReady() && page->waitForRow(busy.pid()));
        QVERIFY(session->waitFor([&] {
            const Table now = page->list();
            return (now.sortSection == now.section("CPU") && now.sortDescending) ||
                   (session->clickHeader("treeView", "CPU") && false);
        }));
        QVERIFY(session->waitFor([&] { return share(page->text(busy.pid(), "CPU")) >= 1.0; }));
        QList<double> shares;
        for (const QString &cpu : page->list().column("CPU")) {
            shares.append(-share(cpu));
        }
        QVERIFY(std::is_sorted(shares.begin(), shares.end()));
    }

    // A new process brings new copies of all its ancestors. If another one appears later in the same refresh,
    // its copies replace those, so the child to look for is always one of the newest.
    void theTreeShowsAChildBelowItsParent()
    {
        const SampleProcess sample("par", SampleProcess::Parent);
        QVERIFY(sample.isReady());
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(session->waitFor([&] {
            const Table now = page->list();
            const int parent = now.parentOf(now.find("Name", sample.childName()));
            return parent >= 0 && now.text(parent, "PID") == QString::number(sample.pid()) &&
                   now.text(now.parentOf(parent), "PID") == QString::number(getpid());
        }));
        QVERIFY(session->savePicture("processes-tree"));
        QVERIFY(session->key("ctrl+f"));
        QVERIFY(session->waitFor([&] {
            const Table now = page->list();
            return !now.rows.isEmpty() && std::all_of(now.rows.begin(), now.rows.end(),
                                                      [](const Table::Row &row) { return row.depth == 0; });
        }));
    }

    void theContextMenuListsTheActionsAndTheColumns()
    {
        const SampleProcess sample("ctx");
        QVERIFY(sample.isReady() && page->waitForRow(sample.pid()));
        QVERIFY(page->openContextMenu(sample.pid()));
        const QStringList texts = session->menuTexts();
        QCOMPARE(texts.mid(0, 7), QStringList({"Tree view", "My processes", "All processes", "Stop process",
                                               "Continue process", "Terminate process", "Kill process"}));
        QCOMPARE(texts.last(), QString("Visible columns"));
        QVERIFY(session->menuEntry("Stop process").value("enabled").toBool());
        QVERIFY(!session->menuEntry("Continue process").value("enabled").toBool());
        QVERIFY(session->savePicture("processes-context-menu"));
    }

    void theColumnMenuHidesAndShowsAColumn()
    {
        const int hiddenByDefault = 4;
        const QStringList before = page->list().visibleHeaders();
        QStringList without = before;
        QVERIFY(without.removeOne("Memory"));
        for (const QStringList &expected : {without, before}) {
            QVERIFY(page->openContextMenu(getpid()));
            QVERIFY(session->clickMenu("Visible columns"));
            QVERIFY(session->waitFor([&] { return session->menuTexts().value(0) == "Name"; }));
            QCOMPARE(session->menuTexts().size(), before.size() + hiddenByDefault);
            QCOMPARE(session->menuEntry("Memory").value("checked").toBool(), expected == without);
            QVERIFY(session->clickMenu("Memory"));
            QVERIFY(session->waitFor([&] { return page->list().visibleHeaders() == expected; }));
            QVERIFY(page->waitForRow(getpid()));
        }
    }

    void theSelectionStaysOnItsProcess()
    {
        const SampleProcess chosen("sel");
        QVERIFY(chosen.isReady() && page->waitForRow(chosen.pid()));
        QVERIFY(page->select(chosen.pid()));
        auto other = std::make_unique<SampleProcess>("go");
        const int passing = other->pid();
        QVERIFY(other->isReady() && page->waitForRow(passing));
        other.reset();
        QVERIFY(page->waitForNoRow(passing));
        const Table now = page->list();
        for (int row = 0; row < now.rows.size(); ++row) {
            QCOMPARE(now.rows.at(row).selected, row == rowOf(now, chosen.pid()));
        }
    }

private:
    static double share(const QString &cpuText) { return cpuText.section(' ', 0, 0).toDouble(); }
};

QTEST_GUILESS_MAIN(TestProcessesPage)
#include "test_processes_page.moc"
