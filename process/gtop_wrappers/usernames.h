// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_USERNAMES_H
#define GTOP_WRAPPERS_USERNAMES_H

#include "process/gtop_wrappers/param.h"

#include <chrono>
#include <map>

namespace gtop_wrappers {

/// The names of users as column values, shared by all processes of a user.
class UserNames
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Looks users up again, since user directories change and can be unreachable for a while: unknown users
    /// on every call, known ones once a minute. Their values change in place. A known user keeps the name
    /// while the directory is unreachable.
    void update(Time now);
    /// Name of the user (getpwuid(3)), or the uid if there is none.
    ParamPtr name(int uid);
    /// Forgets the users that no process uses any more.
    void dropUnused();

private:
    struct User
    {
        ParamPtr name;
        bool isKnown = false;
        Time lookedUp;
    };

    void lookUp(int uid, User &user) const;

    std::map<int, User> users;
    Time lastUpdate;
};

} // namespace gtop_wrappers

#endif
