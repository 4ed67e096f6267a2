// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/usageasker.h"

#include "fs/mountkinds.h"

#include <algorithm>
#include <utility>

UsageAsker::UsageAsker(Tools systemTools) : tools(std::move(systemTools))
{}

void UsageAsker::ask(const std::vector<MountEntry *> &mounts)
{
    due.clear();
    for (const MountEntry *mount : mounts) {
        due.insert(keyOf(*mount));
    }
    forgetAllBut(due);
    takeAnswers();
    buryTheDead();
    endSurplus();
    sendRequests();
    waitForAnswers();
    for (MountEntry *mount : mounts) {
        const std::optional<Usage> &last = known[keyOf(*mount)].last;
        mount->answers = last.has_value();
        setUsage(*mount, last.value_or(Usage{}));
    }
}

UsageAsker::Key UsageAsker::keyOf(const MountEntry &mount)
{
    return {mount.devname, mount.mountdir, mount.type};
}

void UsageAsker::forgetAllBut(const std::set<Key> &mounts)
{
    for (auto each = known.begin(); each != known.end();) {
        each = mounts.count(each->first) != 0 ? std::next(each) : known.erase(each);
    }
    for (const Key &mount : mounts) {
        known[mount];
    }
    for (Child &child : children) {
        if (isHeldUp(child) && mounts.count(child.requests.front().mount) == 0) {
            child.worker->kill();
        }
    }
}

void UsageAsker::buryTheDead()
{
    for (Child &child : children) {
        if (child.worker->state() != UsageWorker::State::Running) {
            child.requests.clear();
        }
    }
    children.erase(
        std::remove_if(children.begin(), children.end(),
                       [](const Child &child) { return child.worker->state() == UsageWorker::State::Ended; }),
        children.end());
}

/// One child is enough as long as nothing is slow, none if nothing is to be asked.
void UsageAsker::endSurplus()
{
    const bool someAreSlow = std::any_of(known.begin(), known.end(),
                                         [](const auto &mount) { return mount.second.speed == Speed::Slow; });
    const bool someAreBusy = std::any_of(children.begin(), children.end(),
                                         [](const Child &child) { return !child.requests.empty(); });
    int keep = known.empty() ? 0 : 1;
    const auto isSurplus = [&](const Child &child) {
        return child.worker->state() == UsageWorker::State::Running && keep-- <= 0;
    };
    if (!someAreSlow && !someAreBusy) {
        children.erase(std::remove_if(children.begin(), children.end(), isSurplus), children.end());
    }
    if (known.empty() && children.empty()) {
        hasStarted = false;
    }
}

void UsageAsker::takeAnswers()
{
    for (Child &child : children) {
        while (const std::optional<UsageAnswer> answer = child.worker->answer()) {
            takeAnswer(child, *answer);
        }
    }
}

void UsageAsker::takeAnswer(Child &child, const UsageAnswer &answer)
{
    while (!child.requests.empty() && child.requests.front().number < answer.request) {
        child.requests.pop_front();
    }
    if (child.requests.empty()) {
        return;
    }
    const std::chrono::nanoseconds took(answer.nanoseconds);
    const auto mount = known.find(child.requests.front().mount);
    if (mount != known.end()) {
        mount->second.last = answer.usage;
        mount->second.speed = took <= quickAnswer ? Speed::Quick : Speed::Slow;
    }
    child.requests.pop_front();
    child.busySince = tools.now();
    if (took > heldUpAfter) {
        child.requests.clear(); // dropped by the worker, as another may have been asked meanwhile
    }
}

void UsageAsker::sendRequests()
{
    for (auto mount = due.begin(); mount != due.end();) {
        mount = isBeingAsked(*mount) ? due.erase(mount) : std::next(mount);
    }
    const std::vector<Key> next = nextToAsk();
    Child *child = next.empty() ? nullptr : idleChild();
    if (!child) {
        return;
    }
    child->busySince = tools.now();
    for (const Key &mount : next) {
        if (!child->worker->ask(lastNumber + 1, std::get<1>(mount))) {
            return;
        }
        child->requests.push_back({++lastNumber, mount});
        known[mount].lastRequest = lastNumber;
        due.erase(mount);
    }
}

/// A child that can be asked at once; started if all are held up. Null if there is none.
UsageAsker::Child *UsageAsker::idleChild()
{
    for (Child &child : children) {
        if (child.requests.empty() && child.worker->state() == UsageWorker::State::Running) {
            return &child;
        }
    }
    const bool allAreLost =
        std::all_of(children.begin(), children.end(), [this](const Child &child) { return isLost(child); });
    return allAreLost ? startChild() : nullptr;
}

UsageAsker::Child *UsageAsker::startChild()
{
    const auto now = tools.now();
    const bool tooSoon = hasStarted && startedMore && now - *startedMore < startInterval;
    if (tooSoon || children.size() >= mostWorkers) {
        return nullptr;
    }
    std::unique_ptr<UsageWorker> worker = tools.start();
    if (!worker) {
        return nullptr;
    }
    if (std::exchange(hasStarted, true)) {
        startedMore = now;
    }
    children.push_back({std::move(worker), {}, now});
    return &children.back();
}

/// Suspects last, each group in the order in which they were last asked.
std::vector<UsageAsker::Key> UsageAsker::nextToAsk() const
{
    const auto lost =
        std::count_if(children.begin(), children.end(), [this](const Child &child) { return isLost(child); });
    const bool suspectsToo = static_cast<std::size_t>(lost) + 1 < mostWorkers;
    std::vector<std::tuple<bool, bool, quint64, Key>> order;
    for (const Key &mount : due) {
        const Mount &state = known.at(mount);
        const bool suspect = isSuspect(mount);
        if (!suspect || suspectsToo) {
            order.emplace_back(suspect, state.speed != Speed::Quick, state.lastRequest, mount);
        }
    }
    std::sort(order.begin(), order.end());
    std::vector<Key> keys;
    keys.reserve(order.size());
    for (auto &each : order) {
        keys.push_back(std::move(std::get<3>(each)));
    }
    return keys;
}

void UsageAsker::waitForAnswers()
{
    const auto begin = tools.now();
    if (begin >= windowEnd) {
        windowEnd = begin + waitWindow;
        waited = {};
    }
    for (auto now = begin; waited + (now - begin) < longestWait; now = tools.now()) {
        Workers busy;
        for (const Child &child : children) {
            if (isWorthWaitingFor(child)) {
                busy.push_back(child.worker.get());
            }
        }
        if (busy.empty()) {
            break;
        }
        const auto left = longestWait - waited - (now - begin);
        tools.wait(busy, std::chrono::ceil<std::chrono::milliseconds>(left));
        takeAnswers();
        buryTheDead();
        sendRequests();
    }
    waited += tools.now() - begin;
    markSlow();
}

bool UsageAsker::isWorthWaitingFor(const Child &child) const
{
    return !child.requests.empty() && !isHeldUp(child) && !isSuspect(child.requests.front().mount);
}

/// What was waited for in vain isn't waited for again.
void UsageAsker::markSlow()
{
    for (const Child &child : children) {
        if (!child.requests.empty() && tools.now() - child.busySince >= quickAnswer) {
            const auto mount = known.find(child.requests.front().mount);
            if (mount != known.end()) {
                mount->second.speed = Speed::Slow;
            }
        }
    }
}

bool UsageAsker::isHeldUp(const Child &child) const
{
    return !child.requests.empty() && tools.now() - child.busySince > heldUpAfter;
}

/// What is queued behind a request that is held up may be asked by another child.
bool UsageAsker::isBeingAsked(const Key &mount) const
{
    return std::any_of(children.begin(), children.end(), [&](const Child &child) {
        const auto end = isHeldUp(child) ? std::next(child.requests.begin()) : child.requests.end();
        return std::any_of(child.requests.begin(), end,
                           [&](const Request &request) { return request.mount == mount; });
    });
}

/// Suspected of hanging: it did lately, or its server does.
bool UsageAsker::isSuspect(const Key &mount) const
{
    const auto found = known.find(mount);
    if (found == known.end() || found->second.speed == Speed::Slow) {
        return true;
    }
    return std::any_of(children.begin(), children.end(), [&](const Child &child) {
        return isHeldUp(child) &&
               serverOf(std::get<0>(child.requests.front().mount)) == serverOf(std::get<0>(mount));
    });
}

bool UsageAsker::isLost(const Child &child) const
{
    return isHeldUp(child) || child.worker->state() != UsageWorker::State::Running;
}
