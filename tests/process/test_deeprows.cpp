// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/listview.h"

#include <QtTest>

namespace {

const int depth = 100;
const int other = 200; ///< a process beside the chain

/// A chain of processes 1 to `depth`, each the parent of the next, expanded by the first refresh.
struct Chain : List
{
    Chain() : facts(factsUpTo(depth))
    {
        for (auto &entry : facts) {
            entry.second.ppid = entry.first - 1;
        }
        facts[other].pid = other;
        proxy->setFlat(false);
        refresh();
    }
    void refresh() { proxy->refresh(makeSnapshot(facts)); }
    QList<int> collapsed() const
    {
        QList<int> pids;
        for (int pid = 1; pid <= depth; ++pid) {
            if (proxy->rowOfPid(pid).isValid() && !view.isExpanded(proxy->rowOfPid(pid))) {
                pids << pid;
            }
        }
        return pids;
    }

    FactsByPid facts;
};

} // namespace

class TestDeepRows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsStayExpandedOrCollapsedWhenOthersLeave()
    {
        Chain chain;
        QCOMPARE(chain.collapsed(), QList<int>());
        for (const int pid : {3, 50, 90}) {
            chain.view.collapse(chain.proxy->rowOfPid(pid));
        }
        chain.facts.erase(other);
        chain.refresh();
        QCOMPARE(chain.proxy->rowCount(), 1);
        QCOMPARE(chain.collapsed(), (QList<int>{3, 50, 90}));
        chain.facts.erase(depth);
        chain.refresh();
        QCOMPARE(chain.collapsed(), (QList<int>{3, 50, 90}));
    }

    void newCopiesAreCollapsed()
    {
        Chain chain;
        chain.facts[depth + 1] = Facts{depth + 1, depth, QString()};
        chain.refresh();
        QCOMPARE(chain.collapsed().size(), depth);
    }
};

QTEST_MAIN(TestDeepRows)
#include "test_deeprows.moc"
