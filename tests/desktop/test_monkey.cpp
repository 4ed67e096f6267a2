// SPDX-License-Identifier: GPL-3.0-or-later
// ZSM_MONKEY_SEED and ZSM_MONKEY_ACTIONS select another run of the monkey.
#include "tests/desktop/monkey.h"
#include "tests/desktop/programtest.h"

#include <QDir>
#include <QSettings>

namespace {

using Contents = QMap<QString, QStringList>;

int numberFrom(const char *variable, int standard)
{
    bool given = false;
    const int number = qEnvironmentVariableIntValue(variable, &given);
    return given ? number : standard;
}

QString processFile(qint64 pid, const QString &name)
{
    return QString("/proc/%1/%2").arg(pid).arg(name);
}

int descriptorsOf(qint64 pid)
{
    const QDir folder(processFile(pid, "fd"));
    return folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// The largest resident set that the process has had, in KiB.
int peakMemoryOf(qint64 pid)
{
    QFile file(processFile(pid, "status"));
    const QString text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return text.section("VmHWM:", 1).section("kB", 0, 0).trimmed().toInt();
}

/// Without the network interval, which is read under another key than it is written. Of the geometry, only
/// what another run keeps: the title bar of a maximised window can have another height, and with the default
/// font the window can need more room than with the font of the last run.
Contents comparableContents(const QString &settingsFile)
{
    const QSettings settings(settingsFile, QSettings::IniFormat);
    Contents contents;
    for (const QString &key : settings.allKeys()) {
        contents[key] = settings.value(key).toStringList();
    }
    contents.remove("interval/nwt");
    for (const int field : {4, 3, 2}) { // height of the title bar, height, width
        contents["geometry"].removeAt(field);
    }
    return contents;
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

} // namespace

class TestMonkey : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QRandomGenerator random(1);
        SessionOptions options;
        options.settings = "[interval]\ngeneral=1\nprocs=1\nfs=1\nnet=1\n";
        options.machine = Churn::machine(random);
        options.preload.append(ZSM_GUARD_OBJECT);
        if (testUser() < 0) {
            options.environment["ZSM_GUARD"] = "all";
        }
        startProgram(options);
    }

    void cleanup() { reportFailure(); }

    void programCannotKillItself()
    {
        const int pid = int(session->pid());
        QVERIFY(page->select(pid));
        QCOMPARE(session->probe("selected treeView").value("id").toInt(), pid);
        QVERIFY(session->key("ctrl+k"));
        QVERIFY(page->waitForDialog("Process killing"));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(page->waitForDialog("Error"));
        QVERIFY(page->dismissAll());
    }

    void programSurvivesAUserWhoDoesEverything()
    {
        const auto seed = static_cast<quint32>(numberFrom("ZSM_MONKEY_SEED", 1));
        const int actions = numberFrom("ZSM_MONKEY_ACTIONS", 800);
        qInfo("seed %u, %d actions", seed, actions);
        Churn churn(testUser());
        Monkey monkey(*session, churn, seed);
        int descriptorsAtFirst = 0;
        for (int action = 0; action < actions; ++action) {
            QVERIFY(everythingIsWell(monkey, monkey.act()));
            if (action == actions / 4) {
                QVERIFY(everythingIsWell(monkey, monkey.comeToRest()));
                descriptorsAtFirst = descriptorsOf(session->pid());
            }
        }
        QVERIFY(everythingIsWell(monkey, monkey.comeToRest()));
        reportFigures(monkey, seed, actions, descriptorsAtFirst);
        const int enoughForEveryKind = 5000;
        QVERIFY(actions < enoughForEveryKind || !monkey.counts().values().contains(0));
        // One more for the child process that asks network file systems, if any are mounted now.
        QVERIFY(descriptorsOf(session->pid()) <= descriptorsAtFirst + 1);
    }

    void settingsOfTheUserAreKept()
    {
        QVERIFY(page->showPage("Processes"));
        QVERIFY2(session->waitFor([&] { return windowIsWhereItSays(); }), qPrintable(session->error()));
        const Table before = page->list();
        verifyQuitsCleanly();
        const Contents kept = comparableContents(session->settingsFile());
        QVERIFY(kept.contains("column/Name"));

        QVERIFY2(session->start({"processes"}), qPrintable(session->error()));
        const Table after = page->list();
        QCOMPARE(sorted(after.visibleHeaders()), sorted(before.visibleHeaders())); // their order isn't kept
        QCOMPARE(after.sortSection, before.sortSection);
        QCOMPARE(after.sortDescending, before.sortDescending);
        verifyQuitsCleanly();
        const Contents keptAgain = comparableContents(session->settingsFile());
        QCOMPARE(keptAgain.keys(), kept.keys());
        for (const QString &key : kept.keys()) {
            QVERIFY2(keptAgain[key] == kept[key],
                     qPrintable(key + ": " + kept[key].join(' ') + ", then " + keptAgain[key].join(' ')));
        }
    }

private:
    /// Prints what was done before if it isn't.
    bool everythingIsWell(const Monkey &monkey, bool answered)
    {
        const QByteArray errors = session->standardError();
        if (answered && errors.isEmpty()) {
            return true;
        }
        qWarning("the last actions:\n   %s\n   %s; standard error:\n   %s",
                 qPrintable(monkey.lastActions().join("\n   ")),
                 session->isRunning() ? "the program runs" : "the program has exited", errors.constData());
        return false;
    }

    void reportFigures(const Monkey &monkey, quint32 seed, int actions, int descriptors)
    {
        const QMap<QString, int> counts = monkey.counts();
        for (auto each = counts.begin(); each != counts.end(); ++each) {
            qInfo("%5d %s", each.value(), qPrintable(each.key()));
        }
        const QMap<QString, int> dialogs = monkey.dialogs();
        for (auto each = dialogs.begin(); each != dialogs.end(); ++each) {
            qInfo("%5d dialogs \"%s\"", each.value(), qPrintable(each.key()));
        }
        qInfo("seed %u: %d actions, peak memory %d KiB, descriptors %d then %d", seed, actions,
              peakMemoryOf(session->pid()), descriptors, descriptorsOf(session->pid()));
    }

    /// The program learns of a move or a new size a little later than the screen shows it.
    bool windowIsWhereItSays()
    {
        const QJsonObject window = session->mainWindow();
        const auto id = static_cast<unsigned long>(window.value("id").toDouble());
        return session->x().windowRect(id) == rectOf(window.value("rect"));
    }
};

QTEST_GUILESS_MAIN(TestMonkey)
#include "test_monkey.moc"
