// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_QUITSIGNALS_H
#define APP_QUITSIGNALS_H

#include <QObject>

/// Makes SIGTERM, SIGINT and SIGHUP quit the event loop of `application` and all nested ones. The program
/// then exits as after its window is closed, and with the same status. Signals that are ignored stay so, as
/// under nohup(1).
///
/// A second signal has its default effect, so that a program that hangs can be ended. Those within half a
/// second belong to the first: a terminal that is closed sends several.
///
/// To be called once, when there is something to save; until then each signal has its default effect.
void quitOnSignals(QObject *application);

#endif
