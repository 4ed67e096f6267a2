// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STARTPAGE_H
#define APP_STARTPAGE_H

#include <QString>
#include <QStringList>

#include <ostream>

/// Page named by a command-line argument: 0 General, 1 Processes, 2 File systems, 3 Network; -1 for anything
/// else. Case-sensitive.
int startPageOf(const QString &argument);

/// Lines of the usage text in the language of the user interface.
QStringList usageText();

/// Writes the usage text in the encoding of the locale.
void printUsage(std::ostream &out);

/// Start page for the arguments of main(): -1 without an argument; -1 for an unknown one as well, after the
/// usage text is printed to `out`. Arguments after the first are ignored.
int startPageFromArguments(int argc, const char *const *argv, std::ostream &out);

#endif
