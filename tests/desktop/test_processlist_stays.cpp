// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/madeupprocess.h"
#include "tests/desktop/programtest.h"

namespace {

constexpr int families = 40;
constexpr int foreignProcesses = 6;

constexpr int parentPid(int family)
{
    return madeUpPid(10 * family);
}

constexpr int childPid(int family)
{
    return parentPid(family) + 1;
}

/// One child each: of several that appear in the same refresh, the tree shows only the last.
standin::Machine machineWithFamilies()
{
    standin::Machine machine;
    machine.cpus = {{0, 0, 0}, {0, 0, 0}};
    machine.processes.emplace();
    for (int family = 0; family < families; ++family) {
        const std::string number = std::to_string(100 + family);
        standin::Process parent = madeUpProcess("parent" + number);
        standin::Process child = madeUpProcess("child" + number, parentPid(family));
        parent.resident = std::uint64_t(1 + family * 7 % 41) << 20;
        child.resident = std::uint64_t(1 + family * 11 % 43) << 20;
        (*machine.processes)[parentPid(family)] = parent;
        (*machine.processes)[childPid(family)] = child;
    }
    for (int i = 0; i < foreignProcesses; ++i) {
        standin::Process process = madeUpProcess("foreign");
        process.uid += 1;
        (*machine.processes)[madeUpPid(5000 + i)] = process;
    }
    return machine;
}

} // namespace

/// The list is filled, expanded and fitted whenever the user sees it, and the selection is the user's.
class TestProcessListStays : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { machine = machineWithFamilies(); }
    void cleanup() { closeAllAndQuit(); }

    void tenChangesNeverLeaveAnEmptyOrCollapsedList_data()
    {
        addNumberRows("interval", {1, 2, 3, 4, 5}, "interval %1");
    }

    void tenChangesNeverLeaveAnEmptyOrCollapsedList()
    {
        QFETCH(int, interval);
        start(interval);
        QCOMPARE(fault(false, false), QString());
        bool all = false;
        bool tree = false;
        for (const QString what : {"ctrl+f", "ctrl+a", "Memory", "ctrl+f", "ctrl+m", "Memory", "ctrl+f",
                                   "ctrl+a", "User", "ctrl+m"}) {
            QVERIFY(what.startsWith("ctrl+") ? session->key(what) : toggleColumn(what));
            QVERIFY(!session->stateAfterInput().isEmpty());
            all = what == "ctrl+a" || (all && what != "ctrl+m");
            tree ^= what == "ctrl+f";
            const QString seen = fault(all, tree);
            QVERIFY2(seen.isEmpty(), qPrintable(what + ": " + seen));
        }
    }

    void aFreshStartShowsTheListWhateverTheInterval()
    {
        start(100000);
        QCOMPARE(fault(false, false), QString());
    }

    void theSelectionSurvivesAForkInTheTree()
    {
        start(1);
        QVERIFY(session->key("ctrl+f"));
        const int chosen = childPid(1);
        QVERIFY(page->select(chosen));
        for (int born = 1; born <= 3; ++born) {
            const int child = madeUpPid(6000 + born);
            (*machine.processes)[child] = madeUpProcess("born", chosen);
            session->setMachine(machine);
            QVERIFY(page->waitForRow(child));
            QCOMPARE(selectedPids(), QStringList(QString::number(chosen)));
            const Table now = page->list();
            QCOMPARE(now.text(now.parentOf(rowOf(now, child)), "PID"), QString::number(chosen));
        }
        machine.processes->erase(chosen);
        session->setMachine(machine);
        QVERIFY(page->waitForNoRow(chosen));
        QCOMPARE(selectedPids(), QStringList());
    }

    void theSelectionSurvivesChangesOfTypesModeAndColumns()
    {
        start(5);
        const int chosen = childPid(9);
        QVERIFY(page->select(chosen));
        for (const QString what : {"ctrl+a", "ctrl+f", "ctrl+m", "Memory", "ctrl+f", "Memory"}) {
            QVERIFY(what.startsWith("ctrl+") ? session->key(what) : toggleColumnByKeys(what));
            QVERIFY(!session->stateAfterInput().isEmpty());
            const Table now = page->list();
            QVERIFY2(selectedPids() == QStringList(QString::number(chosen)), qPrintable(what));
            QVERIFY2(!now.rowRect(rowOf(now, chosen)).isEmpty(), qPrintable(what));
        }
    }

    /// A foreign process isn't one of "My processes"; nothing takes its place.
    void theSelectionOfAProcessThatIsNoLongerListedIsCleared()
    {
        start(5);
        QVERIFY(session->key("ctrl+a"));
        QVERIFY(page->select(madeUpPid(5003)));
        QVERIFY(session->key("ctrl+m"));
        QVERIFY(!session->stateAfterInput().isEmpty());
        QCOMPARE(selectedPids(), QStringList());
    }

    void aRightClickOnEmptySpaceOffersNoSignal()
    {
        machine.processes->erase(machine.processes->upper_bound(parentPid(0)), machine.processes->end());
        start(5);
        QVERIFY(page->select(parentPid(0)));
        QVERIFY(page->openContextMenuOnEmptySpace());
        QCOMPARE(session->menuTexts(), QStringList({"Tree view", "My processes", "All processes", "Sort by",
                                                    "Find process...", "Visible columns"}));
        QVERIFY(page->closeMenus());
        QCOMPARE(selectedPids(), QStringList());
    }

    void theMenuKeyOpensTheMenuAtTheSelectedRow_data()
    {
        const Rows<bool> row("isInView");
        row("in view", true);
        row("scrolled away", false);
    }

    void theMenuKeyOpensTheMenuAtTheSelectedRow()
    {
        QFETCH(bool, isInView);
        start(5);
        const int chosen = parentPid(1);
        QVERIFY(page->select(chosen));
        session->x().moveTo(page->list().viewport.bottomRight() - QPoint(5, 5));
        if (!isInView) {
            QVERIFY(session->waitFor([&] {
                session->x().click(5);
                return page->list().rowRect(rowOf(page->list(), chosen)).isEmpty();
            }));
        }
        QVERIFY(session->key("Menu"));
        QVERIFY(session->waitFor([&] { return session->menuTexts().contains("Kill process"); }));
        const QJsonArray menus = session->probe("menu").value("menus").toArray();
        const QRect menu = rectOf(menus.last()["rect"]);
        const QRect row = page->list().rowRect(rowOf(page->list(), chosen));
        QVERIFY2(!row.isEmpty(), "the row is in view");
        QVERIFY2(qAbs(menu.top() - row.bottom()) <= 2 || qAbs(menu.bottom() - row.bottom()) <= 2,
                 "the menu begins or ends at the row");
        QVERIFY(qAbs(menu.left() - row.left()) <= 2);
        QCOMPARE(selectedPids(), QStringList(QString::number(chosen)));
        QVERIFY(session->savePicture(QString("processes-menu-key-") + QTest::currentDataTag()));
    }

    void hidingAnotherColumnKeepsTheSorting()
    {
        start(5);
        QVERIFY(session->clickHeader("treeView", "Memory"));
        QVERIFY(session->waitFor([&] { return isSortedBy("Memory"); }));
        const QStringList order = page->list().column("Memory");
        const bool descending = page->list().sortDescending;
        for (const char *column : {"CPU", "Name", "CPU", "Name"}) {
            QVERIFY(toggleColumn(column));
            QVERIFY2(isSortedBy("Memory"), column);
            QCOMPARE(page->list().sortDescending, descending);
            QCOMPARE(page->list().column("Memory"), order);
        }
        QVERIFY(toggleColumn("Memory"));
        QVERIFY(isSortedBy("Name"));
        QVERIFY(!page->list().sortDescending);
        QStringList names = page->list().column("Name");
        names.sort();
        QCOMPARE(page->list().column("Name"), names);
    }

private:
    void start(int interval)
    {
        SessionOptions options;
        options.settings = "[interval]\nprocs=" + QByteArray::number(interval) + '\n';
        options.machine = machine;
        startProgram(options);
    }

    /// What the list lacks; empty if it has everything.
    QString fault(bool all, bool tree)
    {
        const Table now = page->list();
        const int expected = 2 * families + (all ? foreignProcesses : 0);
        if (now.rows.size() != expected) {
            return QString("%1 rows, not %2").arg(now.rows.size()).arg(expected);
        }
        int deep = 0;
        for (const Table::Row &row : now.rows) {
            deep += row.depth > 0 ? 1 : 0;
        }
        if (deep != (tree ? families : 0)) {
            return QString("%1 rows are below others").arg(deep);
        }
        for (int family = 0; tree && family < families; ++family) {
            if (!now.rows.value(rowOf(now, parentPid(family))).expanded) {
                return QString("family %1 is collapsed").arg(family);
            }
        }
        return unfittedColumn(now);
    }

    /// The last column takes the room that is left.
    static QString unfittedColumn(const Table &list)
    {
        for (const Table::Header &header : list.headers) {
            if (header.visible && header.text != list.visibleHeaders().last() &&
                header.rect.width() != header.contentWidth) {
                return QString("%1 is %2 wide, not %3")
                    .arg(header.text)
                    .arg(header.rect.width())
                    .arg(header.contentWidth);
            }
        }
        return {};
    }

    QStringList selectedPids()
    {
        const Table now = page->list();
        QStringList pids;
        for (int row = 0; row < now.rows.size(); ++row) {
            if (now.rows.at(row).selected) {
                pids.append(now.text(row, "PID"));
            }
        }
        return pids;
    }

    bool isSortedBy(const char *header)
    {
        const Table now = page->list();
        return now.sortSection == now.section(header);
    }

    /// With the mouse, in the context menu of the first row in view.
    bool toggleColumn(const QString &column)
    {
        const auto row = [&] {
            const Table now = page->list();
            int first = 0;
            while (first < now.rows.size() && now.rowRect(first).isEmpty()) {
                ++first;
            }
            return now.rowRect(first);
        };
        return session->click(row, 3) && session->clickMenu("Visible columns") &&
               session->waitFor([&] { return session->menuTexts().value(0) == "Name"; }) &&
               session->clickMenu(column) && !session->stateAfterInput().isEmpty();
    }

    /// With the menu key; the submenu is the last entry.
    bool toggleColumnByKeys(const QString &column)
    {
        const auto innermost = [&](const QString &first) {
            return session->waitFor([&] { return session->menuTexts().value(0) == first; });
        };
        if (!session->key("Menu") || !innermost("Tree view") || !session->key("Up") ||
            !session->key("Right") || !innermost("Name")) {
            return false;
        }
        for (int i = session->menuTexts().indexOf(column); i > 0; --i) {
            session->key("Down");
        }
        return session->key("Return");
    }

    standin::Machine machine;
};

QTEST_GUILESS_MAIN(TestProcessListStays)
#include "test_processlist_stays.moc"
