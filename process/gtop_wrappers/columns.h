// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_COLUMNS_H
#define GTOP_WRAPPERS_COLUMNS_H

#include "process/gtop_wrappers/latevalues.h"
#include "process/gtop_wrappers/param.h"
#include "process/gtop_wrappers/process.h"
#include "process/gtop_wrappers/record.h"

#include <array>
#include <map>

namespace gtop_wrappers {

/// Values that many processes have in common, made once: the users, the states, small numbers.
class SharedParams
{
public:
    /// Name of a user, or the number of an unknown one. Looked up when the first process of the user shows
    /// up.
    ParamPtr user(int uid);
    ParamPtr state(int code);
    ParamPtr number(int value);
    /// Forgets the values that no process has any more.
    void dropUnused();

private:
    std::map<int, ParamPtr> users;
    std::map<int, ParamPtr> states;
    std::map<int, ParamPtr> numbers;
};

/// One process column.
struct Column
{
    const char *name; ///< untranslated; its translation is in the context ProcessFiller
    unsigned reads;   ///< what must be read for it (Reads, or-ed)
    ParamPtr (*make)(const ProcessRecord &record, SharedParams &shared);
    /// Whether both records give the same value, so that the first one's can stand for the second.
    bool (*same)(const ProcessRecord &before, const ProcessRecord &now);
    /// A value that is read when it is first asked for; null if the column can't be read late.
    ParamPtr (*makeLate)(const LatePtr &values);
};

/// The columns by number (ProcessColumn). A new column is a row here and a number there.
const std::array<Column, ColumnCount> &columns();

} // namespace gtop_wrappers

#endif
