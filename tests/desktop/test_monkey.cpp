// SPDX-License-Identifier: GPL-3.0-or-later
// ZSM_MONKEY_SEED and ZSM_MONKEY_ACTIONS choose another run of the monkey.
#include "tests/desktop/monkey.h"
#include "tests/desktop/processespage.h"

#include <QDir>
#include <QSettings>
#include <QtTest>

namespace {

int numberFrom(const char *variable, int standard)
{
    bool given = false;
    const int number = qEnvironmentVariableIntValue(variable, &given);
    return given ? number : standard;
}

QString processFile(qint64 pid, const char *name)
{
    return QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(name));
}

int descriptorsOf(qint64 pid)
{
    const QDir folder(processFile(pid, "fd"));
    return folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

// The most memory that the process has had; in KiB.
int peakMemoryOf(qint64 pid)
{
    QFile file(processFile(pid, "status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QString text = QString::fromLatin1(file.readAll());
    return text.section(QStringLiteral("VmHWM:"), 1).section(QStringLiteral("kB"), 0, 0).trimmed().toInt();
}

// Without the network interval, which is read under another key than it is written.
QMap<QString, QStringList> contentsOf(const QString &settingsFile)
{
    const QSettings settings(settingsFile, QSettings::IniFormat);
    QMap<QString, QStringList> contents;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        contents[key] = settings.value(key).toStringList();
    contents.remove(QStringLiteral("interval/nwt"));
    return contents;
}

// Of the geometry without what another run may have otherwise: the title bar of a maximised window need not
// be as high as it was before, and with the usual font the window may need more room than it had with the
// last one.
QStringList comparable(const QString &key, QStringList fields)
{
    if (key == QLatin1String("geometry")) {
        for (const int field : {4, 3, 2}) // height of the title bar, height, width
            fields.removeAt(field);
    }
    return fields;
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

} // namespace

class TestMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void theProgramCanNotEndItself();
    void theProgramOutlivesAUserWhoDoesEverything();
    void itKeepsWhatTheUserSet();

private:
    bool everythingIsWell(Monkey &monkey, bool answered);
    bool windowIsWhereItIsSaid();
    void reportFigures(const Monkey &monkey, quint32 seed, int actions, int descriptors);

    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

void TestMonkey::initTestCase()
{
    QRandomGenerator random(1);
    SessionOptions options;
    options.settings = "[interval]\ngeneral=1\nprocs=1\nfs=1\nnet=1\n";
    options.machine = Churn::machine(random);
    options.preload.append(QStringLiteral(ZSM_GUARD_OBJECT));
    if (testUser() < 0)
        options.environment[QStringLiteral("ZSM_GUARD")] = QStringLiteral("all");
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
}

void TestMonkey::cleanup()
{
    if (QTest::currentTestFailed())
        m_session->savePicture(QLatin1String("failed-") + QLatin1String(QTest::currentTestFunction()));
}

void TestMonkey::theProgramCanNotEndItself()
{
    QVERIFY(m_page->select(int(m_session->pid())));
    QCOMPARE(m_session->probe(QStringLiteral("selected treeView")).value(QLatin1String("id")).toInt(),
             int(m_session->pid()));
    QVERIFY(m_session->key(QStringLiteral("ctrl+k")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Process killing")));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Error")));
    QVERIFY(m_page->dismissAll());
}

void TestMonkey::theProgramOutlivesAUserWhoDoesEverything()
{
    const auto seed = static_cast<quint32>(numberFrom("ZSM_MONKEY_SEED", 1));
    const int actions = numberFrom("ZSM_MONKEY_ACTIONS", 800);
    qInfo("seed %u, %d actions", seed, actions);
    Churn churn(testUser());
    Monkey monkey(*m_session, churn, seed);
    int descriptorsAtFirst = 0;
    for (int action = 0; action < actions; ++action) {
        QVERIFY(everythingIsWell(monkey, monkey.act()));
        if (action == actions / 4) {
            QVERIFY(everythingIsWell(monkey, monkey.comeToRest()));
            descriptorsAtFirst = descriptorsOf(m_session->pid());
        }
    }
    QVERIFY(everythingIsWell(monkey, monkey.comeToRest()));
    reportFigures(monkey, seed, actions, descriptorsAtFirst);
    const int enoughForEveryKind = 5000;
    QVERIFY(actions < enoughForEveryKind || !monkey.counts().values().contains(0));
    QVERIFY(descriptorsOf(m_session->pid()) <= descriptorsAtFirst);
}

// Says what was done before if it isn't.
bool TestMonkey::everythingIsWell(Monkey &monkey, bool answered)
{
    const QByteArray said = m_session->standardError();
    if (answered && said.isEmpty())
        return true;
    qWarning("the last actions:\n   %s\n   %s; standard error:\n   %s",
             qPrintable(monkey.lastActions().join(QLatin1String("\n   "))),
             m_session->isRunning() ? "the program runs" : "the program has ended", said.constData());
    return false;
}

void TestMonkey::reportFigures(const Monkey &monkey, quint32 seed, int actions, int descriptors)
{
    const QMap<QString, int> counts = monkey.counts();
    for (auto each = counts.begin(); each != counts.end(); ++each)
        qInfo("%5d %s", each.value(), qPrintable(each.key()));
    const QMap<QString, int> dialogs = monkey.dialogs();
    for (auto each = dialogs.begin(); each != dialogs.end(); ++each)
        qInfo("%5d dialogs \"%s\"", each.value(), qPrintable(each.key()));
    qInfo("seed %u: %d actions, peak memory %d KiB, descriptors %d then %d", seed, actions,
          peakMemoryOf(m_session->pid()), descriptors, descriptorsOf(m_session->pid()));
}

// The program learns of a move or a new size a little later than the screen.
bool TestMonkey::windowIsWhereItIsSaid()
{
    const QJsonObject window = m_session->mainWindow();
    const auto id = static_cast<unsigned long>(window.value(QLatin1String("id")).toDouble());
    return m_session->x().windowRect(id) == rectOf(window.value(QLatin1String("rect")));
}

void TestMonkey::itKeepsWhatTheUserSet()
{
    QVERIFY(m_page->showPage(QStringLiteral("Processes")));
    QVERIFY2(m_session->waitFor([&] { return windowIsWhereItIsSaid(); }), qPrintable(m_session->error()));
    const Table before = m_page->list();
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
    const QMap<QString, QStringList> kept = contentsOf(m_session->settingsFile());
    QVERIFY(kept.contains(QStringLiteral("column/Name")));

    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    const Table after = m_page->list();
    QCOMPARE(sorted(after.visibleHeaders()), sorted(before.visibleHeaders())); // their order isn't kept
    QCOMPARE(after.sortSection, before.sortSection);
    QCOMPARE(after.sortDescending, before.sortDescending);
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
    const QMap<QString, QStringList> keptAgain = contentsOf(m_session->settingsFile());
    QCOMPARE(keptAgain.keys(), kept.keys());
    for (const QString &key : kept.keys())
        QVERIFY2(comparable(key, keptAgain[key]) == comparable(key, kept[key]),
                 qPrintable(key + QStringLiteral(": ") + kept[key].join(QLatin1Char(' ')) +
                            QStringLiteral(", then ") + keptAgain[key].join(QLatin1Char(' '))));
}

QTEST_GUILESS_MAIN(TestMonkey)
#include "test_monkey.moc"
