// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processfilter.h"
#include "process/shownrows.h"
#include "tests/process/support/synthetic.h"
#include "tests/support/rows.h"

#include <QtTest>

using Parents = QMap<int, int>; // by pid

namespace {

/// Pids of the processes that are shown, those that match with a "!".
QString shownPids(const ShownRows &shown)
{
    std::map<int, bool> byPid;
    for (const auto &entry : shown.reasons) {
        byPid[entry.first] = !shown.isAncestorOnly(entry.first);
    }
    QStringList pids;
    for (const auto &entry : byPid) {
        pids.append(QString::number(entry.first) + QLatin1String(entry.second ? "!" : ""));
    }
    return pids.join(QLatin1Char(' '));
}

} // namespace

/// Which processes a text finds, and which rows are shown for them.
class TestProcessFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextFinds_data()
    {
        const Rows<QString, bool> row("text", "found");
        row("nothing, all", "", true);
        row("blanks, all", " \t\u00a0 ", true);
        row("name", "fire", true);
        row("name in capitals", "FIREFOX", true);
        row("middle of the command line", "profile", true);
        row("user", "alice", true);
        row("other user", "bob", false);
        row("words in different fields", "alice  fox --new", true);
        row("words in any order", "window firefox", true);
        row("one word missing", "firefox bob", false);
        row("part of a word given twice", "fire firefox", true);
        row("the pid", "1234", true);
        row("the pid with leading zeros", "001234", true);
        row("digits of the pid", "23", true);
        row("digits of the command line", "77", true);
        row("another number", "1235", false);
        row("a number beyond 32 bits", "99999999999", false);
        row("pid and word", "1234 firefox", true);
        row("leading zeros and a word", "001234 firefox", false);
        row("no pattern", "fire.*", false);
        row("name and user in one word", "firefoxalice", false);
        row("accents in capitals", "\u00c4R\u00c9", true);
        row("Greek final sigma", "\u039f\u0394\u039f\u03a3", true);
    }

    void aTextFinds()
    {
        QFETCH(QString, text);
        QFETCH(bool, found);
        QString fields;
        for (const char *field : {"firefox-bin", "Alice", "1234",
                                  "/usr/bin/Firefox --new-window \u00e4r\u00e9 stra\u00dfe "
                                  "\u03bf\u03b4\u03bf\u03c2 --profile 77"}) {
            fields += ProcessFilter::toField(QString::fromUtf8(field));
        }
        const ProcessFilter filter(text);
        QCOMPARE(filter.matches(1234, fields), found);
        QCOMPARE(filter.isEmpty(), text.trimmed().isEmpty());
    }

    void ancestorsOfAMatchAreShown_data()
    {
        const Rows<Parents, QList<int>, QString, QString> row("parents", "matching", "flat", "tree");
        const Parents line{{1, 0}, {2, 1}, {3, 2}, {4, 2}, {5, 0}};
        row("none", line, {}, "", "");
        row("a root", line, {5}, "5!", "5!");
        row("a grandchild", line, {3}, "3!", "1 2 3!");
        row("siblings", line, {3, 4}, "3! 4!", "1 2 3! 4!");
        row("an ancestor too", line, {1, 4}, "1! 4!", "1! 2 4!");
        row("ring", {{1, 2}, {2, 1}, {3, 1}}, {3}, "3!", "1 2 3!");
        row("own parent", {{1, 1}, {2, 1}}, {2}, "2!", "1 2!");
    }

    void ancestorsOfAMatchAreShown()
    {
        QFETCH(Parents, parents);
        QFETCH(QList<int>, matching);
        QFETCH(QString, flat);
        QFETCH(QString, tree);
        FactsByPid facts;
        for (auto parent = parents.begin(); parent != parents.end(); ++parent) {
            facts[parent.key()].pid = parent.key();
            facts[parent.key()].ppid = parent.value();
        }
        const ProcModel::Snapshot snapshot = makeSnapshot(facts);
        const Matches matches = [&](int pid) { return matching.contains(pid); };
        QCOMPARE(shownPids(shownRows(snapshot, true, matches)), flat);
        QCOMPARE(shownPids(shownRows(snapshot, false, matches)), tree);
        QCOMPARE(shownRows(snapshot, false, matches).matches, matching.size());
    }

    void anAncestorOfAMatchThatHasNoRowIsNotShown()
    {
        ProcModel model;
        model.setFlat(false);
        model.update(makeSnapshot({{1, 0}, {2, 1}}), 1);
        // The new child brings a new copy of its parent; the older child has no row any more.
        model.update(makeSnapshot({{1, 0}, {2, 1}, {3, 1}, {4, 3}}), 1);
        QCOMPARE(shapeOf(model), QStringLiteral("1(3(4))"));
        const auto show = [&](int wanted) {
            return shownPids(shownRows(model.rows(), [=](int pid) { return pid == wanted; }));
        };
        QCOMPARE(show(2), QString());
        QCOMPARE(show(4), QStringLiteral("1 3 4!"));
        QCOMPARE(shownRows(model.rows(), [](int) { return true; }).rows, 3);
    }
};

QTEST_GUILESS_MAIN(TestProcessFilter)
#include "test_processfilter.moc"
