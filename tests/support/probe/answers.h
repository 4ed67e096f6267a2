// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_ANSWERS_H
#define TESTS_SUPPORT_PROBE_ANSWERS_H

#include <QJsonObject>
#include <QString>

namespace probe {

/// The answer to one line. All but the last three only tell:
///   windows        all visible top-level windows, popups too
///   widget NAME    the widget of that object name or, if there is none, the first visible one of that class
///   widgets CLASS  all visible widgets of that class or derived from it
///   tree           all named widgets
///   table NAME     an item view, found as by `widget`, with headers and rows
///   menu           the entries of the menu bar, and the open menus, the innermost last
///   selected NAME  {"id": the number that the model knows the selected row of an item view by}; {} if none
///   state          in short: what is open, which page is shown, which mark came last (inputmarks.h)
///   dialog         the active modal dialog with its buttons; {} if there is none
///   focus          the widget that has the focus; {} if there is none
/// and these two do as the settings of the desktop do while programs run:
///   palette COLOR  derives the program's palette from that colour of buttons, "#rrggbb"
///   font SIZE      gives the program's font that size in points
/// and this one as a leak would:
///   hoard          takes every file descriptor that the program could still open
/// A line that can't be answered gives an object with the one key "error".
QJsonObject answer(const QString &line);

} // namespace probe

#endif
