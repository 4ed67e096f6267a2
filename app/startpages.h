// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STARTPAGES_H
#define APP_STARTPAGES_H

#include <QObject>

#include <cstddef>
#include <iosfwd>
#include <vector>

/// Pages of memory that follow one another.
struct PageRange
{
    char *begin;
    std::size_t size; ///< bytes
};

/// The mappings of files that are not mapped for writing, by the text of /proc/PID/maps.
std::vector<PageRange> readOnlyFiles(std::istream &maps);

/// Whether a debugger may be attached, by the text of /proc/PID/status.
bool mayBeTraced(std::istream &status);

/// Takes the pages of read-only files out of this process's memory. They stay in the system's cache, and
/// those that are used again come back by page faults. Mappings with pages that would not come back, copies
/// with the breakpoints and probes of a debugger, are left alone, and all of them while one is attached.
void releaseReadOnlyPages();

/// Does so once, when the start is over: it used symbol tables, relocations and set-up code that nothing
/// needs afterwards, and with each page the kernel maps up to fifteen around it.
class StartPages : public QObject
{
    Q_OBJECT

public:
    StartPages();

private Q_SLOTS:
    void release() { releaseReadOnlyPages(); }
};

#endif
