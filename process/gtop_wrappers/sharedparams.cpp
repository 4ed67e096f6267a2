// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/sharedparams.h"

#include "text/oneline.h"

#include <QCoreApplication>

#include <glibtop/procstate.h>

#include <algorithm>
#include <iterator>

namespace gtop_wrappers {

namespace {

struct StateText
{
    int code;
    const char *text;
};

const StateText stateTexts[] = {
    {GLIBTOP_PROCESS_RUNNING, QT_TRANSLATE_NOOP("ProcessFiller", "Running")},
    {GLIBTOP_PROCESS_INTERRUPTIBLE, QT_TRANSLATE_NOOP("ProcessFiller", "Sleeping")},
    {GLIBTOP_PROCESS_UNINTERRUPTIBLE, QT_TRANSLATE_NOOP("ProcessFiller", "Uninterruptible")},
    {GLIBTOP_PROCESS_ZOMBIE, QT_TRANSLATE_NOOP("ProcessFiller", "Zombie")},
    {GLIBTOP_PROCESS_STOPPED, QT_TRANSLATE_NOOP("ProcessFiller", "Stopped")},
    {GLIBTOP_PROCESS_SWAPPING, QT_TRANSLATE_NOOP("ProcessFiller", "Swapping")},
    {GLIBTOP_PROCESS_DEAD, QT_TRANSLATE_NOOP("ProcessFiller", "Dead")},
};

QString stateText(int code)
{
    const auto found = std::find_if(std::begin(stateTexts), std::end(stateTexts),
                                    [code](const StateText &row) { return row.code == code; });
    // 0: libgtop has no code for idle kernel threads and traced processes.
    return QCoreApplication::translate("ProcessFiller", found != std::end(stateTexts)
                                                            ? found->text
                                                            : QT_TRANSLATE_NOOP("ProcessFiller", "Other"));
}

template <typename Key>
void dropUnusedOf(std::map<Key, ParamPtr> &params)
{
    for (auto it = params.begin(); it != params.end();) {
        it = it->second.unique() ? params.erase(it) : std::next(it);
    }
}

} // namespace

ParamPtr SharedParams::name(const QByteArray &bytes)
{
    ParamPtr &param = names[bytes];
    if (!param) {
        param.reset(new SimpleProcessParam(oneLine(bytes)));
    }
    return param;
}

ParamPtr SharedParams::state(int code)
{
    ParamPtr &param = states[code];
    if (!param) {
        param.reset(new IntProcessParam(code, stateText(code)));
    }
    return param;
}

ParamPtr SharedParams::number(int value)
{
    ParamPtr &param = numbers[value];
    if (!param) {
        param.reset(new IntProcessParam(value));
    }
    return param;
}

void SharedParams::dropUnused()
{
    users.dropUnused();
    dropUnusedOf(names);
    dropUnusedOf(states);
    dropUnusedOf(numbers);
}

} // namespace gtop_wrappers
