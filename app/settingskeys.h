// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_SETTINGSKEYS_H
#define APP_SETTINGSKEYS_H

#include <QString>

#include <iterator>

/// Keys and defaults of the settings file, except for the window geometry, which the desktop integration
/// library stores under a key of its own.
namespace settings {

struct IntervalKey
{
    const char *readFrom;
    const char *writtenTo;
};

/// In page order. Intentional: the network interval is read from another key than it is written to, so it
/// starts at its default in every run.
constexpr IntervalKey intervalKeys[] = {
    {"interval/general", "interval/general"},
    {"interval/procs", "interval/procs"},
    {"interval/fs", "interval/fs"},
    {"interval/net", "interval/nwt"},
};
constexpr int pageCount = static_cast<int>(std::size(intervalKeys));
constexpr int defaultInterval = 3;

constexpr char sortColumn[] = "proc_sort_column";
constexpr char sortOrder[] = "proc_sort_order";
constexpr char completeTree[] = "complete_tree"; ///< only stored while it is on
constexpr char splitter[] = "fsSplitter";

/// Key for the visibility of a process column.
inline QString columnKey(const QString &columnName)
{
    return QStringLiteral("column/") + columnName;
}

} // namespace settings

#endif
