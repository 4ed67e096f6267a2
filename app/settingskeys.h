// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_SETTINGSKEYS_H
#define APP_SETTINGSKEYS_H

#include <QString>

#include <iterator>

/// Keys and defaults of the settings file. The window's geometry is kept by the desktop integration library.
namespace settings {

struct IntervalKey
{
    const char *readFrom;
    const char *writtenTo;
};

/// In page order. Meant: the network interval is written under another key than it is read from, so it starts
/// at its default in every run.
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
constexpr char splitter[] = "fsSplitter";

/// Key of the visibility of a process column.
inline QString columnKey(const QString &columnName)
{
    return QStringLiteral("column/") + columnName;
}

} // namespace settings

#endif
