// SPDX-License-Identifier: GPL-3.0-or-later
#include "stallingmount.h"
#include "tests/desktop/pagesession.h"

#include <QtTest>

#include <algorithm>
#include <csignal>

namespace {

constexpr int never = StallingMount::never;
const char *const device = "/dev/stalling";

bool ownMounts = false; ///< whether this program may mount something that nobody else sees

/// A file system of 4 MiB that can hang, and the session of a program that sees it.
class StallingSession
{
public:
    virtual ~StallingSession() = default;
    /// Empty if it can be used here.
    virtual QString whyNot() const { return {}; }
    virtual QString mountPoint() const = 0;
    virtual void answerAfter(int milliseconds) = 0;
    virtual void crash() = 0;

    std::unique_ptr<PageSession> session;
};

/// A real file system on the real machine, besides the file systems that are mounted there.
class FuseSession : public StallingSession
{
public:
    explicit FuseSession(int answerAfterMs) : mount(device, answerAfterMs)
    {
        session = std::make_unique<PageSession>(std::nullopt);
    }
    QString whyNot() const override { return mount.isMounted() ? QString() : mount.error(); }
    QString mountPoint() const override { return mount.mountPoint(); }
    void answerAfter(int milliseconds) override { QVERIFY(mount.answerAfter(milliseconds)); }
    void crash() override { mount.killServer(); }

private:
    StallingMount mount;
};

/// Where no file system may be mounted: libgtop's query sleeps.
class StandinSession : public StallingSession
{
public:
    explicit StandinSession(int answerAfterMs)
    {
        machine.mounts = {{"/dev/sda1", "/", "ext4", 262144, 131072, 65536},
                          {device, "/mnt/stalling", "fuse.stall", 1024, 512, 256}};
        setAnswerTime(answerAfterMs);
        session = std::make_unique<PageSession>(machine);
    }
    QString mountPoint() const override { return "/mnt/stalling"; }
    void answerAfter(int milliseconds) override
    {
        setAnswerTime(milliseconds);
        session->setMachine(machine);
    }
    void crash() override
    {
        machine.mounts->back().fails = true;
        answerAfter(0);
    }

private:
    void setAnswerTime(int milliseconds)
    {
        const int hours = 10 * 60 * 60 * 1000;
        machine.mounts->back().blocksForMs =
            static_cast<std::uint32_t>(milliseconds == never ? hours : milliseconds);
    }

    standin::Machine machine;
};

/// Of a process; empty if it doesn't exist.
QByteArray stateOf(const QByteArray &pid)
{
    QFile file("/proc/" + pid + "/stat");
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray stat = file.readAll();
    return stat.mid(stat.lastIndexOf(')') + 2, 1);
}

} // namespace

/// The real program and a file system that doesn't answer.
class TestHungMounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Of the program without such a file system.
        PageSession plain{standin::Machine()};
        QElapsedTimer timer;
        QVERIFY2(plain.start(), qPrintable(plain.error()));
        QVERIFY(plain.endsCleanly());
        timer.start();
        QVERIFY2(plain.start(), qPrintable(plain.error()));
        usualStart = timer.elapsed();
        QVERIFY(plain.endsCleanly());
    }

    void cleanup()
    {
        if (QTest::currentTestFailed() && stalling) {
            qWarning("%s", qPrintable(stalling->session->error()));
        }
        stalling.reset();
    }

    void theWindowComesAndEveryPageResponds_data()
    {
        QTest::addColumn<bool>("fuse");
        QTest::addColumn<int>("answerAfter");
        for (const bool fuse : {true, false}) {
            const char *kind = fuse ? "FUSE" : "stand-in";
            QTest::addRow("%s, never answering", kind) << fuse << never;
            QTest::addRow("%s, answering after 2 s", kind) << fuse << 2000;
        }
    }

    void theWindowComesAndEveryPageResponds()
    {
        QFETCH(bool, fuse);
        QFETCH(int, answerAfter);
        if (!prepare(fuse, 0)) {
            return;
        }
        start("general");
        QVERIFY(session().endsCleanly());
        stalling->answerAfter(answerAfter);
        QElapsedTimer timer;
        timer.start();
        start("general"); // now the desktop is there already
        const qint64 took = timer.elapsed() - usualStart;
        qInfo("the window comes %lld ms later than usual, which is after %lld ms", took, usualStart);
        QVERIFY(took < 1500);
        qint64 slowest = 0;
        for (const char *page : {"System", "Processes", "File systems", "Network"}) {
            QVERIFY(page == QByteArray("System") || session().clickTab(page));
            slowest = std::max(slowest, slowestAnswer(3000));
        }
        qInfo("slowest answer: %lld ms", slowest);
        QVERIFY(slowest < 1000);
        QVERIFY(session().endsCleanly());
    }

    void figuresComeBackByThemselves_data() { eachKind(); }
    void figuresComeBackByThemselves()
    {
        QFETCH(bool, fuse);
        if (!prepare(fuse, never)) {
            return;
        }
        start("filesystems");
        QVERIFY(session().clickRow("tableFS", "Mountpoint", stalling->mountPoint()));
        QVERIFY(session().waitForTexts({{"lblMountPoint", device},
                                        {"lblFsType", "fuse.stall"},
                                        {"lblTotal", "No answer"},
                                        {"lblUsed", ""},
                                        {"lblAvail", ""}}));
        QCOMPARE(session().described("Chart"), QString("No answer"));
        const int descriptors = openDescriptors();
        const QList<QByteArray> children = childrenOfProgram();
        QCOMPARE(children.size(), 1);

        stalling->answerAfter(0);
        QVERIFY(waitForFigures());
        QCOMPARE(session().described("Chart"), QString("25% available"));

        stalling->answerAfter(never);
        QVERIFY(session().waitForTicks(5));
        QVERIFY(waitForFigures());

        stalling->answerAfter(1200);
        QVERIFY(session().waitForTicks(5));
        QVERIFY(waitForFigures());

        // The program has asked another child as well, if at all.
        stalling->answerAfter(0);
        QVERIFY(session().waitFor([&] { return childrenOfProgram() == children; }));
        QVERIFY(session().waitFor([&] { return openDescriptors() == descriptors; }));
        QVERIFY(session().endsCleanly());
        QVERIFY(QTest::qWaitFor([&] { return isGone(children.first()); }, desktopDeadline));
    }

    void aCrashedServerTakesItsMountOffTheList_data() { eachKind(); }
    void aCrashedServerTakesItsMountOffTheList()
    {
        QFETCH(bool, fuse);
        if (!prepare(fuse, never)) {
            return;
        }
        startListed();
        stalling->crash();
        QVERIFY(session().waitFor([&] { return !isListed(); }));
        QVERIFY(session().endsCleanly());
    }

    void aStuckChildDoesNotOutliveTheProgram_data() { eachKind(); }
    void aStuckChildDoesNotOutliveTheProgram()
    {
        QFETCH(bool, fuse);
        if (!prepare(fuse, never)) {
            return;
        }
        startListed();
        const QList<QByteArray> children = childrenOfProgram();
        QCOMPARE(children.size(), 1);
        ::kill(static_cast<pid_t>(session().pid()), SIGKILL);
        QVERIFY(session().waitForExit());
        if (fuse) {
            stalling->crash(); // until then, the kernel doesn't let go of it
        }
        QVERIFY(QTest::qWaitFor([&] { return isGone(children.first()); }, desktopDeadline));
    }

    void aKilledChildIsReplaced_data() { eachKind(); }
    void aKilledChildIsReplaced()
    {
        QFETCH(bool, fuse);
        if (!prepare(fuse, 0)) {
            return;
        }
        start("filesystems");
        QVERIFY(session().clickRow("tableFS", "Mountpoint", stalling->mountPoint()));
        QVERIFY(waitForFigures());
        const int descriptors = openDescriptors();
        const QList<QByteArray> before = childrenOfProgram();
        QCOMPARE(before.size(), 1);
        ::kill(before.first().toInt(), SIGKILL);
        // A zombie would be listed as a child.
        QVERIFY(session().waitFor([&] {
            const QList<QByteArray> now = childrenOfProgram();
            return now.size() == 1 && now != before;
        }));
        QVERIFY(waitForFigures());
        QCOMPARE(openDescriptors(), descriptors);
        QVERIFY(session().endsCleanly());
    }

    void withoutSuchAMountThereIsNoChild()
    {
        QVERIFY(prepare(false, 0));
        startListed();
        const int descriptors = openDescriptors();
        QCOMPARE(childrenOfProgram().size(), 1);
        standin::Machine machine;
        machine.mounts = {{"/dev/sda1", "/", "ext4", 262144, 131072, 65536}};
        session().setMachine(machine);
        QVERIFY(session().waitFor(
            [&] { return childrenOfProgram().isEmpty() && openDescriptors() == descriptors - 1; }));
        QVERIFY(session().endsCleanly());
    }

private:
    static void eachKind()
    {
        QTest::addColumn<bool>("fuse");
        QTest::newRow("FUSE") << true;
        QTest::newRow("stand-in") << false;
    }

    /// False if the test has to be skipped.
    bool prepare(bool fuse, int answerAfterMs)
    {
        if (fuse && !ownMounts) {
            [] { QSKIP("this user may not mount anything here"); }();
            return false;
        }
        if (fuse) {
            stalling = std::make_unique<FuseSession>(answerAfterMs);
        } else {
            stalling = std::make_unique<StandinSession>(answerAfterMs);
        }
        const QString whyNot = stalling->whyNot();
        if (!whyNot.isEmpty()) {
            stalling.reset();
            [&] { QSKIP(qPrintable("no FUSE file system here: " + whyNot)); }();
            return false;
        }
        return true;
    }

    void start(const char *page)
    {
        const bool started = session().start({page});
        QVERIFY2(started, qPrintable(session().error()));
    }

    void startListed()
    {
        start("filesystems");
        QVERIFY(session().waitFor([&] { return isListed(); }));
    }

    PageSession &session() { return *stalling->session; }

    bool isListed() { return session().table("tableFS").find("Mountpoint", stalling->mountPoint()) >= 0; }

    bool waitForFigures()
    {
        return session().waitForTexts(
            {{"lblTotal", "4.00 MB"}, {"lblUsed", "3.00 MB"}, {"lblAvail", "1.00 MB"}});
    }

    /// The longest that an answer takes, in milliseconds.
    qint64 slowestAnswer(int durationMs)
    {
        qint64 slowest = 0;
        QElapsedTimer all;
        for (all.start(); !all.hasExpired(durationMs); QTest::qWait(10)) {
            QElapsedTimer one;
            one.start();
            session().probe("state");
            slowest = std::max(slowest, one.elapsed());
        }
        return slowest;
    }

    QList<QByteArray> childrenOfProgram()
    {
        const QByteArray pid = QByteArray::number(session().pid());
        QFile file("/proc/" + pid + "/task/" + pid + "/children");
        QList<QByteArray> pids =
            file.open(QIODevice::ReadOnly) ? file.readAll().simplified().split(' ') : QList<QByteArray>();
        pids.removeAll({});
        return pids;
    }

    /// Without the one that StartMemory has for some seconds.
    int openDescriptors()
    {
        const QDir folder(QString("/proc/%1/fd").arg(session().pid()));
        const QFileInfoList all = folder.entryInfoList(QDir::Files | QDir::System);
        return static_cast<int>(std::count_if(all.begin(), all.end(), [](const QFileInfo &descriptor) {
            return !descriptor.symLinkTarget().endsWith(QStringLiteral("[userfaultfd]"));
        }));
    }

    static bool isGone(const QByteArray &pid)
    {
        const QByteArray state = stateOf(pid);
        return state.isEmpty() || state == "Z"; // whoever inherited it may not care
    }

    qint64 usualStart = 0;
    std::unique_ptr<StallingSession> stalling;
};

int main(int argc, char **argv)
{
    ownMounts = enterOwnMounts();
    QCoreApplication application(argc, argv);
    TestHungMounts test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_hungmounts.moc"
