// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/usernames.h"

#include "text/oneline.h"

#include <pwd.h>

#include <cerrno>
#include <iterator>

namespace gtop_wrappers {

namespace {

constexpr std::chrono::minutes knownFor(1);

/// Whether the directory answered that there is no such user, by the errno of a getpwuid(3) without a result.
/// Anything else means that the directory could not be asked.
bool isNoSuchUser(int error)
{
    return error == 0 || error == ENOENT || error == ESRCH || error == EBADF || error == EPERM;
}

} // namespace

void UserNames::update(Time now)
{
    lastUpdate = now;
    for (auto &[uid, user] : users) {
        if (!user.isKnown || now - user.lookedUp >= knownFor) {
            lookUp(uid, user);
        }
    }
}

ParamPtr UserNames::name(int uid)
{
    User &user = users[uid];
    if (!user.name) {
        user.name.reset(new SimpleProcessParam(QString()));
        lookUp(uid, user);
    }
    return user.name;
}

void UserNames::lookUp(int uid, User &user) const
{
    errno = 0;
    const passwd *entry = getpwuid(static_cast<uid_t>(uid));
    user.lookedUp = lastUpdate;
    if (!entry && user.isKnown && !isNoSuchUser(errno)) {
        return; // keeps the name
    }
    user.isKnown = entry != nullptr;
    user.name->setDisplayValue(entry ? oneLine(entry->pw_name) : QString::number(static_cast<uid_t>(uid)));
}

void UserNames::dropUnused()
{
    for (auto user = users.begin(); user != users.end();) {
        user = user->second.name.unique() ? users.erase(user) : std::next(user);
    }
}

} // namespace gtop_wrappers
