// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STARTPAGE_H
#define APP_STARTPAGE_H

#include <QString>
#include <QStringList>

#include <ostream>

/// Page that a command-line argument names: 0 General, 1 Processes, 2 File systems, 3 Network, or -1 for
/// anything else. Compared exactly, case included.
int startPageOf(const QString &argument);

/// The usage text in the language of the user interface, line by line.
QStringList usageText();

/// Writes the usage text in the encoding of the locale.
void printUsage(std::ostream &out);

/// Start page for the arguments of main(): -1 without one; an unknown one prints the usage text to `out` and
/// starts normally. Arguments past the first are ignored.
int startPageFromArguments(int argc, const char *const *argv, std::ostream &out);

#endif
