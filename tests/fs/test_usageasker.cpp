// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/usageasker.h"

#include <QStringList>
#include <QtTest>

#include <deque>

using namespace std::chrono_literals;

namespace {

using Time = UsageAsker::Clock::time_point;
constexpr std::chrono::milliseconds never = 1000h;

class MadeUpWorker;

/// File systems that take a while to answer, workers that ask them, and a clock that only waiting moves.
struct World
{
    Time now = Time() + 1000h;
    std::map<std::string, std::chrono::milliseconds> takes; ///< by mount point
    quint64 blocks = 10;
    bool canStart = true;
    int started = 0;
    std::vector<MadeUpWorker *> workers;
    QStringList asked; ///< mount points in the order in which queries began
};

class MadeUpWorker : public UsageWorker
{
public:
    explicit MadeUpWorker(World &itsWorld) : world(itsWorld) { world.workers.push_back(this); }
    ~MadeUpWorker() override
    {
        world.workers.erase(std::find(world.workers.begin(), world.workers.end(), this));
    }

    bool ask(quint64 request, const std::string &mountDir) override
    {
        queue.emplace_back(request, mountDir);
        if (queue.size() == 1) {
            begin(world.now);
        }
        return true;
    }

    std::optional<UsageAnswer> answer() override
    {
        if (queue.empty() || !hasAnswer()) {
            return std::nullopt;
        }
        const std::chrono::nanoseconds took = timeTaken();
        const UsageAnswer made{queue.front().first, took.count(), {world.blocks, 9, 8, 7, 512}};
        queue.pop_front();
        if (took > heldUpAfter) {
            queue.clear();
        }
        begin(since + took);
        return made;
    }

    State state() override { return now; }
    void kill() override { now = isBusy() ? State::Ending : State::Ended; }
    int descriptor() const override { return -1; }

    bool isBusy() const { return !queue.empty(); }
    bool hasAnswer() const { return isBusy() && world.now - since >= timeTaken(); }
    State now = State::Running;

private:
    void begin(Time time)
    {
        since = time;
        if (isBusy()) {
            world.asked << QString::fromStdString(queue.front().second);
        }
    }
    std::chrono::milliseconds timeTaken() const
    {
        const auto found = world.takes.find(queue.front().second);
        return found == world.takes.end() ? 1ms : found->second;
    }

    World &world;
    std::deque<std::pair<quint64, std::string>> queue;
    Time since{};
};

} // namespace

class TestUsageAsker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        world = World();
        asker = std::make_unique<UsageAsker>(UsageAsker::Tools{
            [this]() -> std::unique_ptr<UsageWorker> {
                ++world.started;
                return world.canStart ? std::make_unique<MadeUpWorker>(world) : nullptr;
            },
            [this] { return world.now; },
            [this](const UsageAsker::Workers & /*workers*/, std::chrono::milliseconds atMost) {
                const auto speaks = [](const MadeUpWorker *worker) { return worker->hasAnswer(); };
                for (; atMost > 0ms && std::none_of(world.workers.begin(), world.workers.end(), speaks);
                     atMost -= 1ms) {
                    world.now += 1ms;
                }
            }});
    }

    void cleanup() { asker.reset(); }

    void noWorkerIsStartedForNothing()
    {
        QCOMPARE(refresh({}), QString());
        QCOMPARE(world.started, 0);
    }

    void quickMountsAnswerInTheSameRefreshThroughOneWorker()
    {
        QCOMPARE(refresh({"a", "b", "c"}), QString("a10 b10 c10"));
        world.blocks = 20;
        QCOMPARE(refresh({"a", "b", "c"}), QString("a20 b20 c20"));
        QCOMPARE(world.started, 1);
    }

    void aHungMountIsWaitedForOnce()
    {
        world.takes["a"] = never;
        QCOMPARE(refresh({"a"}), QString("a-"));
        QCOMPARE(waited, 100ms);
        for (int i = 0; i < 200; ++i) {
            QCOMPARE(refresh({"a"}), QString("a-"));
            QCOMPARE(waited, 0ms);
        }
        QCOMPARE(world.asked, QStringList("a"));
        QCOMPARE(world.started, 1); // another worker would have nobody to ask
    }

    void itIsNotWaitedForAgainBeforeItIsGivenUp()
    {
        world.takes["a"] = never;
        refresh({"a"}, 600ms);
        refresh({"a"});
        QCOMPARE(waited, 0ms);
    }

    void refreshesInARowShareTheTimeToWait()
    {
        for (const char *mount : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
            world.takes[mount] = 18ms;
        }
        refresh({"a", "b", "c", "d", "e", "f", "g", "h"}, 0s);
        QCOMPARE(waited, 100ms);
        refresh({"a", "b", "c", "d", "e", "f", "g", "h"}, 0s);
        QCOMPARE(waited, 0ms);
    }

    void aHungMountKeepsItsLastFigures()
    {
        refresh({"a"});
        world.takes["a"] = never;
        world.blocks = 20;
        QCOMPARE(refresh({"a"}), QString("a10"));
        QCOMPARE(refresh({"a"}), QString("a10"));
    }

    void lateAnswersAreUsedAndNotWaitedFor()
    {
        world.takes["a"] = 2500ms;
        QCOMPARE(refresh({"a"}, 3s), QString("a-"));
        QCOMPARE(refresh({"a"}, 3s), QString("a10"));
        QCOMPARE(waited, 0ms);
        world.blocks = 20;
        QCOMPARE(refresh({"a"}, 3s), QString("a10").replace("10", "20"));
        QCOMPARE(world.started, 1);
    }

    void aMountThatAnswersQuicklyAgainIsWaitedForAgain()
    {
        world.takes["a"] = 2500ms;
        refresh({"a"}, 3s);
        world.takes["a"] = 5ms;
        refresh({"a"}, 3s);
        world.blocks = 20;
        refresh({"a"}, 3s);
        world.blocks = 30;
        QCOMPARE(refresh({"a"}), QString("a30"));
        QCOMPARE(waited, 5ms);
    }

    void aHungMountHidesNoOther()
    {
        world.takes["a"] = never;
        QCOMPARE(refresh({"a", "b", "c"}, 3s), QString("a- b- c-"));
        QCOMPARE(refresh({"a", "b", "c"}, 3s), QString("a- b10 c10"));
        world.blocks = 20;
        QCOMPARE(refresh({"a", "b", "c"}, 3s), QString("a- b20 c20"));
        QCOMPARE(world.started, 2);
        QCOMPARE(world.asked.count("a"), 1);
    }

    void oneMoreWorkerIsStartedPerMinuteAndNeverMoreThanFour()
    {
        hang(8);
        std::vector<std::pair<int, std::chrono::seconds>> starts;
        const Time begin = world.now;
        for (int second = 0; second < 600; ++second) {
            const int before = world.started;
            refresh(names(8));
            if (world.started != before) {
                starts.emplace_back(world.started,
                                    std::chrono::duration_cast<std::chrono::seconds>(world.now - begin));
            }
        }
        QCOMPARE(world.started, 4);
        QVERIFY(starts.at(1).second <= 3s); // the first replacement doesn't have to wait
        QVERIFY(starts.at(2).second - starts.at(1).second >= 60s);
        QVERIFY(starts.at(3).second - starts.at(2).second >= 60s);
        QVERIFY(starts.at(3).second <= 180s);
    }

    void otherServersAreAskedBeforeMoreOfAHungOne()
    {
        for (const char *mount : {"dead:/a", "dead:/b", "dead:/c", "dead:/d", "dead:/e"}) {
            world.takes[mount] = never;
        }
        const QStringList all{"dead:/a", "dead:/b", "dead:/c", "alive:/x", "dead:/d", "dead:/e"};
        refresh(all, 3s);
        QVERIFY(refresh(all, 3s).contains("alive:/x10"));
        world.blocks = 20;
        refreshUntil([&] { return refresh(all).contains("alive:/x20"); });
        for (int second = 0; second < 300; ++second) {
            refresh(all);
        }
        world.blocks = 30;
        QVERIFY(refresh(all).contains("alive:/x30"));
    }

    void allAnswerAgainOnceTheirServerDoes()
    {
        hang(5);
        for (int second = 0; second < 300; ++second) {
            refresh(names(5));
        }
        world.takes.clear();
        refreshUntil([this] { return refresh(names(5)) == "a10 b10 c10 d10 e10"; });
        world.blocks = 20;
        refreshUntil([this] { return refresh(names(5)) == "a20 b20 c20 d20 e20"; });
        refresh(names(5));
        refresh(names(5));
        QCOMPARE(world.workers.size(), std::size_t{1}); // the others are not needed any more
    }

    void withoutMountsThereIsNoWorkerAndTheNextOneStartsAtOnce()
    {
        refresh({"a"});
        for (int i = 0; i < 5; ++i) {
            refresh({});
            QVERIFY(world.workers.empty());
            QCOMPARE(refresh({"a"}), QString("a10"));
        }
    }

    void aWorkerThatDiedIsReplacedOncePerMinute()
    {
        for (int second = 0; second < 62; ++second) {
            refresh({"a"});
            for (MadeUpWorker *worker : world.workers) {
                worker->now = UsageWorker::State::Ended;
            }
        }
        QCOMPARE(world.started, 3);
    }

    void whatADeadWorkerWasAskedIsAskedAgain()
    {
        world.takes["a"] = never;
        refresh({"a"});
        world.workers.front()->now = UsageWorker::State::Ended;
        world.takes.clear();
        refresh({"a"});
        QCOMPARE(refresh({"a"}), QString("a10"));
    }

    void withoutAWorkerTheLastFiguresStay()
    {
        world.canStart = false;
        QCOMPARE(refresh({"a"}), QString("a-"));
        world.canStart = true;
        QCOMPARE(refresh({"a"}), QString("a10"));
    }

    void theAnswerOfAVanishedMountIsDropped()
    {
        world.takes["a"] = 2500ms;
        refresh({"a", "b"}, 3s);
        QCOMPARE(refresh({"b"}, 0s), QString("b10"));
        QCOMPARE(refresh({"a", "b"}, 0s), QString("a- b10"));
    }

    void aWorkerStuckInAVanishedMountIsKilled()
    {
        world.takes["a"] = never;
        refresh({"a"}, 3s);
        refresh({});
        QCOMPARE(world.workers.size(), std::size_t{1}); // in vain
        QVERIFY(world.workers.front()->now == UsageWorker::State::Ending);
        world.workers.front()->now = UsageWorker::State::Ended;
        refresh({});
        QVERIFY(world.workers.empty());
    }

    void figuresBelongToDeviceMountPointAndType()
    {
        MountEntry entry = mountOf("a");
        refresh(entry);
        QVERIFY(entry.answers);
        world.takes["a"] = never;
        for (std::string MountEntry::*name : {&MountEntry::devname, &MountEntry::type}) {
            MountEntry other = mountOf("a");
            other.*name += "2";
            refresh(other);
            QVERIFY(!other.answers);
            QCOMPARE(other.blocks, quint64{0});
        }
    }

private:
    static MountEntry mountOf(const QString &name)
    {
        MountEntry entry;
        entry.devname = name.toStdString();
        entry.mountdir = entry.devname;
        entry.type = "nfs";
        entry.blocks = 99;
        return entry;
    }

    static QStringList names(int count) { return QString("a b c d e f g h").split(' ').mid(0, count); }

    void hang(int count)
    {
        for (const QString &name : names(count)) {
            world.takes[name.toStdString()] = never;
        }
    }

    void refresh(MountEntry &entry)
    {
        asker->ask({&entry});
        world.now += 1s;
    }

    /// One refresh and the time until the next: "a10 b-" for 10 blocks of a and no answer ever of b.
    QString refresh(const QStringList &mounts, std::chrono::milliseconds pause = 1s)
    {
        std::vector<MountEntry> entries;
        for (const QString &name : mounts) {
            entries.push_back(mountOf(name));
        }
        std::vector<MountEntry *> pointers;
        for (MountEntry &entry : entries) {
            pointers.push_back(&entry);
        }
        const Time begin = world.now;
        asker->ask(pointers);
        waited = std::chrono::duration_cast<std::chrono::milliseconds>(world.now - begin);
        QStringList shown;
        for (const MountEntry &entry : entries) {
            const QString figure = entry.answers ? QString::number(entry.blocks) : QString("-");
            shown << QString::fromStdString(entry.mountdir) + figure;
        }
        world.now += pause;
        return shown.join(' ');
    }

    static void refreshUntil(const std::function<bool()> &refreshed)
    {
        for (int attempt = 0; attempt < 300; ++attempt) {
            if (refreshed()) {
                return;
            }
        }
        QFAIL("not within 300 refreshes");
    }

    World world;
    std::unique_ptr<UsageAsker> asker;
    std::chrono::milliseconds waited{};
};

QTEST_APPLESS_MAIN(TestUsageAsker)
#include "test_usageasker.moc"
