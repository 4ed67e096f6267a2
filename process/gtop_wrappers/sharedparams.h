// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_SHAREDPARAMS_H
#define GTOP_WRAPPERS_SHAREDPARAMS_H

#include "process/gtop_wrappers/param.h"

#include <map>

namespace gtop_wrappers {

/// Values that many processes have in common, made once: users, states, small numbers.
class SharedParams
{
public:
    /// Name of a user (getpwuid(3)), or the number of an unknown one. Looked up once for as long as a process
    /// of this user exists.
    ParamPtr user(int uid);
    /// State by libgtop's code.
    ParamPtr state(int code);
    ParamPtr number(int value);
    /// Forgets the values that no process uses any more.
    void dropUnused();

private:
    std::map<int, ParamPtr> users;
    std::map<int, ParamPtr> states;
    std::map<int, ParamPtr> numbers;
};

} // namespace gtop_wrappers

#endif
