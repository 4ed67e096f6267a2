// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_FILTERTEXTS_H
#define PROCESS_FILTERTEXTS_H

#include "process/gtop_wrappers/process.h"
#include "process/processfilter.h"

#include <unordered_map>
#include <vector>

/// The texts of the processes that are searched, kept from one refresh to the next.
///
/// The command line, the only one that is expensive, is read once per process, and again when the process
/// runs another program, which shows in its name. If the list reads it for a cell, that is used too.
class FilterTexts
{
public:
    using Processes = std::vector<const gtop_wrappers::Process *>;

    /// The processes that there are now. Reads nothing from the machine.
    void update(const Processes &processes);
    /// Reads command lines that are still missing, for about this time but at least one, and returns the pids
    /// of their processes.
    std::vector<int> readMissing(int milliseconds);
    /// Whether all command lines are known, apart from those that could not be read in this refresh.
    bool isComplete() const { return missing.empty(); }
    /// Forgets everything.
    void clear();

    /// By all that is known of the process; false for an unknown pid.
    bool matches(const ProcessFilter &filter, int pid) const;

private:
    struct Entry
    {
        quint64 started = 0;
        QString name; ///< this and the next two as shown
        QString user;
        QString commandLine; ///< empty: not read yet
        gtop_wrappers::ParamPtr commandLineParam;
        QString fields; ///< of all of them and the pid, as they are searched
    };

    static Entry updated(const Entry &before, const gtop_wrappers::Process &process);
    static void takeCommandLine(Entry &entry);
    static QString fieldsOf(const Entry &entry, int pid);

    std::unordered_map<int, Entry> entries; ///< by pid
    std::vector<int> missing;               ///< pids whose command line is to be read
};

#endif
