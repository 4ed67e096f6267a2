// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STARTMEMORY_H
#define APP_STARTMEMORY_H

#include <QObject>

#include <cstddef>
#include <iosfwd>
#include <memory>
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

/// While it lives, a page fault in the ranges given to it maps one page. Otherwise the kernel also maps up to
/// fifteen around it, most of which nothing uses; it does not where userfaultfd(2) tracks writes, of which
/// there are none. Without effect before Linux 6.7 and where that call is not permitted.
class SinglePageFaults
{
public:
    SinglePageFaults();
    ~SinglePageFaults();

    bool isPossible() const { return descriptor >= 0; }
    void add(const PageRange &range) const;

private:
    Q_DISABLE_COPY(SinglePageFaults)

    int descriptor;
};

/// Takes the pages of read-only files out of this process's memory. They stay in the system's cache, and
/// those that are used again come back by page faults. Mappings with pages that would not come back, copies
/// with the breakpoints and probes of a debugger, are left alone, and all of them while one is attached.
void releaseReadOnlyPages(const SinglePageFaults &faults);

/// Does so once, when the start is over: it used symbol tables, relocations and set-up code that nothing
/// needs afterwards, and with each page the kernel maps up to fifteen around it.
class StartMemory : public QObject
{
    Q_OBJECT

public:
    StartMemory();

private Q_SLOTS:
    void release();
    void finish() { faults.reset(); }

private:
    std::unique_ptr<SinglePageFaults> faults;
};

#endif
