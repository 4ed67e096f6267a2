// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/filtertexts.h"

#include <QElapsedTimer>

#include <utility>

using gtop_wrappers::Process;

namespace {

QString textOf(const Process &process, gtop_wrappers::ProcessColumn column)
{
    return column < process.params.size() && process.params[column]
               ? process.params[column]->displayValue().toString()
               : QString();
}

} // namespace

void FilterTexts::update(const Processes &processes)
{
    std::unordered_map<int, Entry> now;
    now.reserve(processes.size());
    missing.clear();
    for (const Process *process : processes) {
        const int pid = process->pid();
        const Entry &entry = now.emplace(pid, updated(entries[pid], *process)).first->second;
        if (entry.commandLine.isEmpty() && entry.commandLineParam) {
            missing.push_back(pid);
        }
    }
    entries = std::move(now);
}

/// The entry for the process as it is now. `before` is what was known by its pid.
FilterTexts::Entry FilterTexts::updated(const Entry &before, const Process &process)
{
    Entry entry;
    entry.started = process.startTime();
    entry.name = textOf(process, gtop_wrappers::NameColumn);
    entry.user = textOf(process, gtop_wrappers::UserColumn);
    entry.commandLineParam = process.getParam(gtop_wrappers::CommandLineColumn);
    const bool isSameProgram = before.started == entry.started && before.name == entry.name;
    if (isSameProgram) {
        entry.commandLine = before.commandLine;
    }
    if (entry.commandLineParam && entry.commandLineParam->isRead()) {
        takeCommandLine(entry);
    }
    const bool isSame = isSameProgram && before.user == entry.user && before.commandLine == entry.commandLine;
    entry.fields = isSame && !before.fields.isEmpty() ? before.fields : fieldsOf(entry, process.pid());
    return entry;
}

/// Keeps what is known if the process has exited or could not be read.
void FilterTexts::takeCommandLine(Entry &entry)
{
    const QString text = entry.commandLineParam->displayValue().toString();
    if (!text.isEmpty()) {
        entry.commandLine = text;
    }
}

QString FilterTexts::fieldsOf(const Entry &entry, int pid)
{
    return ProcessFilter::toField(entry.name) + ProcessFilter::toField(entry.user) +
           ProcessFilter::toField(QString::number(pid)) + ProcessFilter::toField(entry.commandLine);
}

std::vector<int> FilterTexts::readMissing(int milliseconds)
{
    std::vector<int> read;
    QElapsedTimer time;
    time.start();
    while (!missing.empty()) {
        const int pid = missing.back();
        missing.pop_back();
        Entry &entry = entries.at(pid);
        takeCommandLine(entry);
        entry.fields = fieldsOf(entry, pid);
        read.push_back(pid);
        if (time.elapsed() >= milliseconds) {
            break;
        }
    }
    return read;
}

void FilterTexts::clear()
{
    entries.clear();
    missing.clear();
}

bool FilterTexts::matches(const ProcessFilter &filter, int pid) const
{
    const auto found = entries.find(pid);
    return found != entries.end() && filter.matches(pid, found->second.fields);
}
