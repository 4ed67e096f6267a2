// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_SYSTEMFILES_H
#define APP_SYSTEMFILES_H

/// libgtop aborts the process if it cannot open one of these files in /proc: it may be missing, covered by
/// another mount, or mounted with subset=pid. A file that vanishes between the check and the reading still
/// ends the program.
///
/// Both give the first of the files that cannot be read; null if all can.
const char *fileMissingForStart();
const char *fileMissingForRefresh();

/// Says on standard error that a file is missing, and in a message box if nobody sees standard error: unless
/// it is a terminal, a pipe or a file.
void reportMissingFile(const char *file);

#endif
