// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCESSBOX_H
#define PROCESS_PROCESSBOX_H

#include "process/gtop_wrappers/process.h"

#include <QMessageBox>

/// A process as messages name it: "sleep (412)", or "412" if its name is not known.
QString processLabel(const gtop_wrappers::Process &process);

/// Runs a message box about a process and returns the button that was pressed; NoButton if the program quits
/// meanwhile. The box names the process below its text. It has no parent widget, but opens over the program's
/// main window.
QMessageBox::StandardButton showProcessBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                                           const gtop_wrappers::Process &process,
                                           QMessageBox::StandardButtons buttons,
                                           QMessageBox::StandardButton defaultButton);

#endif
