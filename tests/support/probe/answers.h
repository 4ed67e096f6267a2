// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_ANSWERS_H
#define TESTS_SUPPORT_PROBE_ANSWERS_H

#include <QJsonObject>
#include <QString>

namespace probe {

/// Answers one command line. All commands but the last three are read-only:
///   windows        all visible top-level windows, including popups
///   widget NAME    the widget of that object name or, if there is none, the first visible one of that class
///   widgets CLASS  all visible widgets of that class or a subclass
///   table NAME     an item view, found like `widget`, with headers and rows
///   menu           the entries of the menu bar, and the open menus, the innermost last
///   selected NAME  {"id": the internal id of the selected row of an item view in its model}; {} if none
///   state          a summary: what is open, the current page and the latest mark (inputmarks.h)
///   dialog         the active modal dialog with its buttons; {} if there is none
/// These two act like the settings of a desktop:
///   palette COLOR  derives the program's palette from that button color, "#rrggbb"
///   font SIZE      sets the size of the program's font, in points
/// This one acts like a leak:
///   hoard          opens every file descriptor that the program has left
/// A line that can't be answered gives an object with the single key "error".
QJsonObject answer(const QString &line);

} // namespace probe

#endif
