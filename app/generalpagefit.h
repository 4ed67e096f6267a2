// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_GENERALPAGEFIT_H
#define APP_GENERALPAGEFIT_H

class QMainWindow;
class QTabWidget;

/// Moves the General page into a scroll area if its rows, several per CPU, make the window higher than the
/// primary screen. To be called before the window is shown; `tabs` emits no signal.
void scrollGeneralPageIfTooHigh(QMainWindow *window, QTabWidget *tabs);

#endif
