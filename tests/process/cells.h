// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_CELLS_H
#define TESTS_PROCESS_CELLS_H

#include "process/gtop_wrappers/process.h"

/// What the cell of a process shows, as text.
inline QString shown(const gtop_wrappers::Process &process, gtop_wrappers::ProcessColumn column)
{
    return process.getParam(column)->displayValue().toString();
}

/// What the cell of a process is sorted by.
inline QVariant sorted(const gtop_wrappers::Process &process, gtop_wrappers::ProcessColumn column)
{
    return process.getParam(column)->sortValue();
}

#endif
