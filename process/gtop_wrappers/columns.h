// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_COLUMNS_H
#define GTOP_WRAPPERS_COLUMNS_H

#include "process/gtop_wrappers/ondemand.h"
#include "process/gtop_wrappers/param.h"
#include "process/gtop_wrappers/process.h"
#include "process/gtop_wrappers/record.h"
#include "process/gtop_wrappers/sharedparams.h"

#include <array>

namespace gtop_wrappers {

/// Whether a column is shown until the user chooses otherwise.
enum DefaultVisibility { ShownByDefault, HiddenByDefault };

/// Numbers are aligned at their last digit, texts at their first letter.
enum Content { Text, Number };

/// One process column.
struct Column
{
    const char *name; ///< untranslated; the translation context is ProcessFiller
    DefaultVisibility visibility;
    Content content;
    unsigned reads; ///< Reads, or-ed, that the value is made from
    ParamPtr (*make)(const ProcessRecord &record, SharedParams &shared);
    /// Whether both records give the same value, so that the one made from the first can be kept.
    bool (*same)(const ProcessRecord &before, const ProcessRecord &now);
    /// Makes a value that is read when a cell first asks for it; null for columns that are always read.
    ParamPtr (*makeOnDemand)(const OnDemandPtr &values);
};

/// The columns by number (ProcessColumn). A new column is a row here and a number there.
const std::array<Column, ColumnCount> &columns();

} // namespace gtop_wrappers

#endif
