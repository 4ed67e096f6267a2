// SPDX-License-Identifier: GPL-3.0-or-later
// What the filter reads of the processes, and how often.
#include "process/filtertexts.h"
#include "process/gtop_wrappers/filler.h"

#include "madeupprocesses.h"
#include "tests/support/rows.h"

#include <QtTest>

using namespace gtop_wrappers;
using madeup::at;

class TestFilterTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ProcessFiller::instance()->setEagerColumns(std::vector<bool>(ColumnCount, false));
        standin::machine().processes.emplace();
        takeSnapshot(); // forgets the processes of the test before
        madeup::setUp();
        for (const int pid : {1, 10, 11}) {
            setArguments(pid, "tool" + std::to_string(pid));
        }
        texts.clear();
    }

    void whatIsCheapIsFoundAtOnce_data()
    {
        const Rows<QString, bool> row("text", "found");
        row("name", "SOME", true);
        row("pid", "11", true);
        row("user", "root", true);
        row("command line", "tool11", false);
    }

    void whatIsCheapIsFoundAtOnce()
    {
        QFETCH(QString, text);
        QFETCH(bool, found);
        update();
        QCOMPARE(finds(text, 11), found);
        QVERIFY(!texts.isComplete());
    }

    void commandLinesAreFoundOnceTheyAreRead()
    {
        update();
        readAll();
        QVERIFY(texts.isComplete());
        QVERIFY(finds("tool11", 11));
        QVERIFY(!finds("tool11", 10));
    }

    void aSliceEndsInTime()
    {
        update();
        QCOMPARE(texts.readMissing(0).size(), std::size_t(1));
        QVERIFY(!texts.isComplete());
    }

    void aCommandLineIsReadOnce()
    {
        update();
        readAll();
        setArguments(11, "changed");
        for (int refreshes = 0; refreshes < 3; ++refreshes) {
            update();
            standin::resetCalls();
            readAll();
            QCOMPARE(standin::calls().processData, 0U);
        }
        QVERIFY(finds("tool11", 11));
    }

    void isReadAgain_data()
    {
        const Rows<bool, bool> row("newName", "newStart");
        row("after an exec", true, false);
        row("of a process that reuses the pid", false, true);
    }

    void isReadAgain()
    {
        QFETCH(bool, newName);
        QFETCH(bool, newStart);
        update();
        readAll();
        setArguments(11, "changed");
        at(11).name = newName ? "other" : "some";
        at(11).startTime += newStart ? 5 : 0;
        update();
        QVERIFY(!finds("tool11", 11));
        readAll();
        QVERIFY(finds("changed", 11));
    }

    void whatTheListReadsIsUsed()
    {
        update();
        readAll();
        setArguments(11, "changed");
        takeSnapshot();
        processes.at(11).getParam(CommandLineColumn)->displayValue(); // as a cell in view does
        updateTexts();
        QVERIFY(finds("changed", 11));
    }

    void aProcessThatExitsIsForgotten()
    {
        update();
        readAll();
        madeup::remove(11);
        update();
        QVERIFY(!finds("some", 11));
    }

    void whatCannotBeReadIsTriedAgainInTheNextRefresh()
    {
        update();
        const standin::Process before = at(11);
        madeup::remove(11); // exits after the snapshot
        readAll();
        QVERIFY(texts.isComplete());
        standin::machine().processes->emplace(11, before);
        update();
        QVERIFY(!texts.isComplete());
        readAll();
        QVERIFY(finds("tool11", 11));
    }

private:
    void takeSnapshot() { processes = ProcessFiller::instance()->getProcesses(AllProcesses); }
    void updateTexts()
    {
        FilterTexts::Processes pointers;
        for (const auto &entry : processes) {
            pointers.push_back(&entry.second);
        }
        texts.update(pointers);
    }
    void update()
    {
        takeSnapshot();
        updateTexts();
    }
    void readAll()
    {
        while (!texts.isComplete()) {
            texts.readMissing(1000);
        }
    }
    bool finds(const QString &text, int pid) const { return texts.matches(ProcessFilter(text), pid); }
    static void setArguments(int pid, const std::string &arguments) { at(pid).arguments = arguments + '\0'; }

    std::map<int, Process> processes;
    FilterTexts texts;
};

QTEST_GUILESS_MAIN(TestFilterTexts)
#include "test_filtertexts.moc"
