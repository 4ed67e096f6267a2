// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processfilter.h"
#include "process/shownrows.h"
#include "tests/process/support/synthetic.h"

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
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        QTest::newRow("nothing, all") << "" << true;
        QTest::newRow("blanks, all") << " \t\u00a0 " << true;
        QTest::newRow("name") << "fire" << true;
        QTest::newRow("name in capitals") << "FIREFOX" << true;
        QTest::newRow("middle of the command line") << "profile" << true;
        QTest::newRow("user") << "alice" << true;
        QTest::newRow("other user") << "bob" << false;
        QTest::newRow("words in different fields") << "alice  fox --new" << true;
        QTest::newRow("words in any order") << "window firefox" << true;
        QTest::newRow("one word missing") << "firefox bob" << false;
        QTest::newRow("part of a word given twice") << "fire firefox" << true;
        QTest::newRow("the pid") << "1234" << true;
        QTest::newRow("the pid with leading zeros") << "001234" << true;
        QTest::newRow("digits of the pid") << "23" << true;
        QTest::newRow("digits of the command line") << "77" << true;
        QTest::newRow("another number") << "1235" << false;
        QTest::newRow("a number beyond 32 bits") << "99999999999" << false;
        QTest::newRow("pid and word") << "1234 firefox" << true;
        QTest::newRow("leading zeros and a word") << "001234 firefox" << false;
        QTest::newRow("no pattern") << "fire.*" << false;
        QTest::newRow("name and user in one word") << "firefoxalice" << false;
        QTest::newRow("accents in capitals") << "\u00c4R\u00c9" << true;
        QTest::newRow("Greek final sigma") << "\u039f\u0394\u039f\u03a3" << true;
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
        QTest::addColumn<Parents>("parents");
        QTest::addColumn<QList<int>>("matching");
        QTest::addColumn<QString>("flat");
        QTest::addColumn<QString>("tree");
        const Parents line{{1, 0}, {2, 1}, {3, 2}, {4, 2}, {5, 0}};
        QTest::newRow("none") << line << QList<int>{} << ""
                              << "";
        QTest::newRow("a root") << line << QList<int>{5} << "5!"
                                << "5!";
        QTest::newRow("a grandchild") << line << QList<int>{3} << "3!"
                                      << "1 2 3!";
        QTest::newRow("siblings") << line << QList<int>{3, 4} << "3! 4!"
                                  << "1 2 3! 4!";
        QTest::newRow("an ancestor too") << line << QList<int>{1, 4} << "1! 4!"
                                         << "1! 2 4!";
        QTest::newRow("ring") << Parents{{1, 2}, {2, 1}, {3, 1}} << QList<int>{3} << "3!"
                              << "1 2 3!";
        QTest::newRow("own parent") << Parents{{1, 1}, {2, 1}} << QList<int>{2} << "2!"
                                    << "1 2!";
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
