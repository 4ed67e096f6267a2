// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systemfiles.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace {

constexpr const char *filesForRefresh[] = {"/proc/stat", "/proc/meminfo"};
constexpr char processors[] = "/proc/cpuinfo";

bool isReadable(const char *file)
{
    return access(file, R_OK) == 0;
}

/// Whether standard error leads to a terminal, a pipe or a file, and not to the log of a desktop or nowhere.
bool isStandardErrorSeen()
{
    struct stat output = {};
    return isatty(STDERR_FILENO) ||
           (fstat(STDERR_FILENO, &output) == 0 && (S_ISFIFO(output.st_mode) || S_ISREG(output.st_mode)));
}

} // namespace

const char *fileMissingForRefresh()
{
    for (const char *file : filesForRefresh) {
        if (!isReadable(file)) {
            return file;
        }
    }
    return nullptr;
}

const char *fileMissingForStart()
{
    const char *missing = fileMissingForRefresh();
    return missing || isReadable(processors) ? missing : processors;
}

void reportMissingFile(const char *file)
{
    const QString text =
        QCoreApplication::translate("SystemFiles", "The system monitor can't start: %1 can't be read. "
                                                   "It needs the whole proc file system, mounted at /proc.")
            .arg(QString::fromUtf8(file));
    std::fprintf(stderr, "zarn-system-monitor: %s\n", text.toLocal8Bit().constData());
    if (!isStandardErrorSeen()) {
        QMessageBox::critical(nullptr, QCoreApplication::translate("MainWindow", "System monitor"), text);
    }
}
