// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_SHAREDPARAMS_H
#define GTOP_WRAPPERS_SHAREDPARAMS_H

#include "process/gtop_wrappers/param.h"
#include "process/gtop_wrappers/usernames.h"

#include <map>

namespace gtop_wrappers {

/// Values that many processes have in common, made once: names, users, states, small numbers.
class SharedParams
{
public:
    /// The name of a process.
    ParamPtr name(const QByteArray &bytes);
    /// See UserNames.
    void updateUsers(UserNames::Time now) { users.update(now); }
    ParamPtr user(int uid) { return users.name(uid); }
    /// State by libgtop's code.
    ParamPtr state(int code);
    ParamPtr number(int value);
    /// Forgets the values that no process uses any more.
    void dropUnused();

private:
    UserNames users;
    std::map<QByteArray, ParamPtr> names;
    std::map<int, ParamPtr> states;
    std::map<int, ParamPtr> numbers;
};

} // namespace gtop_wrappers

#endif
