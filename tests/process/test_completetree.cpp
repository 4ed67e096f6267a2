// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/completetree.h"
#include "tests/process/support/plaintree.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <random>

namespace {

TreePlaces listed(const Parents &parents)
{
    TreePlaces places;
    for (auto place = parents.begin(); place != parents.end(); ++place) {
        places.push_back({place.key(), place.value()});
    }
    return places;
}

Parents asMap(const TreePlaces &places)
{
    Parents parents;
    for (const TreePlace &place : places) {
        parents.insert(place.pid, place.parent);
    }
    return parents;
}

/// "2<1 3<2" for 2 below 1 and 3 below 2, "1" for 1 at the root.
QString textOf(const TreePlaces &places)
{
    QStringList texts;
    for (const TreePlace &place : places) {
        const QString parent =
            place.parent == TreePlace::AtRoot ? QString() : QStringLiteral("<%1").arg(place.parent);
        texts.append(QString::number(place.pid) + parent);
    }
    return texts.join(QLatin1Char(' '));
}

QString textOf(const TreeChanges &changes)
{
    QStringList removed;
    for (const int pid : changes.removed) {
        removed.append(QString::number(pid));
    }
    return QStringLiteral("+ %1 | > %2 | - %3")
        .arg(textOf(changes.inserted), textOf(changes.moved), removed.join(QLatin1Char(' ')));
}

} // namespace

Q_DECLARE_METATYPE(Parents)

class TestCompleteTree : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachProcessHasOnePlace_data()
    {
        const Rows<Parents, QString> row("asRead", "places");
        row("none", {}, "");
        row("a family", {{1, 0}, {2, 1}, {3, 1}, {4, 3}}, "1 2<1 3<1 4<3");
        row("no parent in the snapshot", {{1, 0}, {2, 9}, {5, 3}}, "1 2 5");
        row("parents with greater pids", {{1, 2}, {2, 3}, {3, 0}}, "1<2 2<3 3");
        row("its own parent", {{2, 2}, {3, 2}}, "2 3<2");
        row("a ring", {{3, 5}, {4, 3}, {5, 4}}, "3 4<3 5<4");
        row("a ring with a branch of smaller pids", {{1, 2}, {2, 5}, {4, 5}, {5, 6}, {6, 4}},
            "1<2 2<5 4 5<6 6<4");
        row("two rings", {{1, 2}, {2, 1}, {3, 4}, {4, 3}}, "1 2<1 3 4<3");
    }

    void eachProcessHasOnePlace()
    {
        QFETCH(Parents, asRead);
        QTEST(textOf(placesOf(listed(asRead))), "places");
    }

    void onlyWhatDiffersChanges_data()
    {
        const Rows<Parents, Parents, QString> row("current", "wanted", "changes");
        const int root = TreePlace::AtRoot;
        const Parents family{{1, root}, {2, 1}, {3, 2}};
        row("nothing", family, family, "+  | >  | - ");
        row("from nothing", {}, family, "+ 1 2<1 3<2 | >  | - ");
        row("parents come before their children", {}, {{1, 3}, {2, 1}, {3, root}}, "+ 3 1<3 2<1 | >  | - ");
        row("all exit", family, {}, "+  | >  | - 1 2 3");
        row("the parent exits", family, {{1, root}, {3, 1}}, "+  | > 3<1 | - 2");
        row("a new parent", family, {{1, root}, {2, 1}, {3, 4}, {4, 1}}, "+ 4<1 | > 3<4 | - ");
        row("turned over", family, {{1, 2}, {2, 3}, {3, root}}, "+  | > 1<2 2<3 3 | - ");
    }

    void onlyWhatDiffersChanges()
    {
        QFETCH(Parents, current);
        QFETCH(Parents, wanted);
        QTEST(textOf(changesBetween(listed(current), listed(wanted))), "changes");
    }

    void theChangesMakeTheWantedTree()
    {
        std::mt19937 random(15);
        const auto pick = [&](unsigned end) { return static_cast<int>(random() % end); };
        Parents current;
        for (int round = 0; round < 3000; ++round) {
            Parents asRead;
            for (int i = pick(12); i > 0; --i) {
                asRead.insert(1 + pick(12), pick(14));
            }
            const TreePlaces wanted = placesOf(listed(asRead));
            QCOMPARE(asMap(wanted), plainParents(asRead));
            const TreeChanges changes = changesBetween(listed(current), wanted);
            for (const TreePlace &place : changes.inserted) {
                QVERIFY(!current.contains(place.pid));
                QVERIFY(place.parent == TreePlace::AtRoot || current.contains(place.parent));
                current.insert(place.pid, place.parent);
            }
            for (const TreePlace &place : changes.moved) {
                QVERIFY(current.contains(place.pid));
                current.insert(place.pid, place.parent);
            }
            for (const int pid : changes.removed) {
                QCOMPARE(current.remove(pid), 1);
            }
            QCOMPARE(current, asMap(wanted));
        }
    }

    /// A chain whose pids fall is the worst order for parents before children.
    void chainsOfHundredsOfThousandsTakeNoTime()
    {
        const int length = 300000;
        Parents rising{{1, 0}};
        Parents falling{{length, 0}};
        for (int pid = 2; pid <= length; ++pid) {
            rising.insert(pid, pid - 1);
            falling.insert(pid - 1, pid);
        }
        const TreePlaces before = placesOf(listed(rising));
        const TreePlaces after = placesOf(listed(falling));
        QCOMPARE(changesBetween({}, after).inserted.front().pid, length);
        QCOMPARE(changesBetween(before, after).moved.size(), before.size());
        QCOMPARE(changesBetween(before, {}).removed.size(), before.size());
    }
};

QTEST_GUILESS_MAIN(TestCompleteTree)
#include "test_completetree.moc"
