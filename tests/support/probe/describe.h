// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_DESCRIBE_H
#define TESTS_SUPPORT_PROBE_DESCRIBE_H

#include <QJsonArray>
#include <QJsonObject>

class QAbstractItemView;
class QMenu;
class QMenuBar;
class QRect;
class QWidget;

/// What the probe tells of a widget, a menu and an item view. All rectangles are on the screen, in pixels,
/// as [x, y, width, height]. Nothing here changes what it looks at.
namespace probe {

QJsonArray rectJson(const QRect &rect);
QJsonArray globalRect(const QWidget *widget, const QRect &rect);

/// Class, name, texts, value, state, place and what assistive technology is told.
QJsonObject describeWidget(const QWidget *widget);

/// Of a window, besides: its id, and whether it is active, modal and exposed (drawn on the screen).
QJsonObject describeWindow(const QWidget *window);

QJsonObject describeMenu(const QMenu *menu);
QJsonArray describeMenuBar(const QMenuBar *bar);

/// Headers in their shown order and all rows, opened or not, in the shown order: children follow their
/// parent with a greater depth. Cells on the screen have their rectangles.
QJsonObject describeView(QAbstractItemView *view);

/// {"id": the internal id of the selected row in the innermost model}; empty if there is no selection.
QJsonObject describeSelected(const QAbstractItemView *view);

} // namespace probe

#endif
