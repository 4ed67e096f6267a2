// SPDX-License-Identifier: GPL-3.0-or-later
#include "support.h"
#include "tests/support/rows.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <ctime>
#include <numeric>
#include <random>
#include <utility>

namespace {

const int firstPid = 1000;
const double longest = 500.0; ///< milliseconds of CPU time that a user may have to wait

/// Verifies that `action` does not take too long. The CPU time is judged, since the machine may be busy.
template <typename Action>
void verifyTime(const char *what, Action action)
{
    QElapsedTimer elapsed;
    elapsed.start();
    const std::clock_t before = std::clock();
    action();
    const double spent = 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    qInfo("%s: %lld ms, %.0f ms of CPU", what, elapsed.elapsed(), spent);
    QVERIFY2(spent <= longest, what);
}

/// Number of rows in the tree, from the first one downward.
int shownDepth()
{
    int depth = 0;
    QModelIndex row = processList()->index(0, 0);
    for (; row.isValid(); row = processList()->index(0, 0, row)) {
        ++depth;
    }
    return depth;
}

} // namespace

/// Processes each of which is the child of the one before. ZSM_SOAK_DEPTH sets their number.
class TestDeepTree : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void noRefreshOfADeepTreeTakesLong_data()
    {
        const Rows<bool, bool> row("shuffled", "complete");
        row("pids in their order", false, false);
        row("pids in any order", true, false);
        row("complete, pids in their order", false, true);
        row("complete, pids in any order", true, true);
    }

    void noRefreshOfADeepTreeTakesLong()
    {
        QFETCH(bool, shuffled);
        QFETCH(bool, complete);
        const int depth = runSize("ZSM_SOAK_DEPTH", 1000);
        const std::vector<int> pids = pidsOf(depth, shuffled);
        Fixture fixture;
        auto &processes = *standin::machine().processes;
        const standin::Process any = processes.begin()->second;
        makeChain(pids);
        const auto refreshed = [&](const char *what) { verifyTime(what, [&] { refresh(fixture); }); };

        fixture.start(1);
        processList()->setComplete(complete);
        verifyTime("to the tree", [&] { Fixture::processAction("Tree view")->trigger(); });
        QCOMPARE(shownDepth(), depth);
        refreshed("nothing changes");
        for (int i = 0; i < 20; ++i) {
            processes[firstPid - 1 - i] = any;
        }
        refreshed("others start");
        for (int i = 0; i < 20; ++i) {
            processes.erase(firstPid - 1 - i);
        }
        refreshed("others exit");
        QCOMPARE(shownDepth(), depth);

        processes.erase(pids.front());
        processes.at(pids[1]).parent = 1;
        refreshed("the first process exits");
        for (int i = 0; i < 2; ++i) {
            refreshed("the refresh after it");
        }
        QCOMPARE(shownDepth(), depth - 1);
        verifyTime("all are expanded", [&] { Fixture::processAction("Expand all")->trigger(); });
        for (auto &process : processes) {
            process.second.name = "another";
        }
        refreshed("all run another program");
        refreshed("the refresh after it");
        processes = {{1, any}};
        refreshed("all exit");
        QCOMPARE(shownDepth(), 1);
    }

    void noRefreshOfAFilteredDeepTreeTakesLong_data() { noRefreshOfADeepTreeTakesLong_data(); }

    void noRefreshOfAFilteredDeepTreeTakesLong()
    {
        QFETCH(bool, shuffled);
        QFETCH(bool, complete);
        const int depth = runSize("ZSM_SOAK_DEPTH", 1000);
        const std::vector<int> pids = pidsOf(depth, shuffled);
        Fixture fixture;
        auto &processes = *standin::machine().processes;
        makeChain(pids);
        fixture.start(1);
        processList()->setComplete(complete);
        processList()->setFlat(false);
        const auto typed = [&](const QString &text, int rows) {
            verifyTime(qPrintable(text), [&] {
                processList()->setFilter(text);
                QCoreApplication::processEvents();
            });
            QCOMPARE(shownDepth(), rows);
        };
        const auto refreshed = [&](const char *what, int rows) {
            verifyTime(what, [&] { refresh(fixture); });
            QCOMPARE(shownDepth(), rows);
        };
        const int half = depth / 2;
        typed(QString::number(pids.back()), depth);
        refreshed("the last one is found", depth);
        typed(QStringLiteral("none"), 0);
        refreshed("nothing is found", 0);
        typed(QStringLiteral("made"), depth);
        refreshed("all are found", depth);
        const int exited = pids[static_cast<std::size_t>(half)];
        processes.at(pids[static_cast<std::size_t>(half + 1)]).parent = processes.at(exited).parent;
        processes.erase(exited);
        refreshed("one in the middle exits", complete ? depth - 1 : half);
        refreshed("the refresh after it", depth - 1);
        refreshed("another one", depth - 1);
        verifyTime("the line closes", [] { processList()->closeFilter(); });
        QCOMPARE(shownDepth(), depth - 1);
        processes = {{1, processes.begin()->second}};
        refreshed("all exit", 1); // the next test has the same pids
    }

private:
    static void makeChain(const std::vector<int> &pids)
    {
        auto &processes = *standin::machine().processes;
        const standin::Process any = processes.begin()->second;
        processes.clear();
        int parent = 1;
        for (const int pid : pids) {
            processes[pid] = any;
            processes[pid].parent = std::exchange(parent, pid);
        }
    }

    /// From the first process downward. The last one, which brings the whole line, has the greatest pid.
    static std::vector<int> pidsOf(int depth, bool shuffled)
    {
        std::vector<int> pids(static_cast<std::size_t>(depth));
        std::iota(pids.begin(), pids.end(), firstPid);
        if (shuffled) {
            std::shuffle(pids.begin(), pids.end() - 1, std::mt19937(2));
        }
        return pids;
    }
};

QTEST_MAIN(TestDeepTree)
#include "test_deeptree.moc"
