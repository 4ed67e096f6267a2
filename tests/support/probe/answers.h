// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_ANSWERS_H
#define TESTS_SUPPORT_PROBE_ANSWERS_H

#include <QJsonObject>
#include <QString>

namespace probe {

/// The answer to one line:
///   windows        all visible top-level windows, popups too
///   widget NAME    the widget of that object name or, if there is none, the first visible one of that class
///   widgets CLASS  all visible widgets of that class or derived from it
///   tree           all named widgets
///   table NAME     an item view, found as by `widget`, with headers and rows
///   menu           the entries of the menu bar, and the open menus, the innermost last
///   dialog         the active modal dialog with its buttons; {} if there is none
///   focus          the widget that has the focus; {} if there is none
/// A line that can't be answered gives an object with the one key "error".
QJsonObject answer(const QString &line);

} // namespace probe

#endif
