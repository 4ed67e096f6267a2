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

/// How the probe describes widgets, menus and item views. All rectangles are in screen pixels, as [x, y,
/// width, height]. No function changes what it describes.
namespace probe {

QJsonArray rectJson(const QRect &rect);
QJsonArray globalRect(const QWidget *widget, const QRect &rect);

/// Class, name, texts, value, state, rectangle and what assistive technology reads.
QJsonObject describeWidget(const QWidget *widget);

/// In addition the id, and whether the window is active, modal and exposed (drawn on the screen).
QJsonObject describeWindow(const QWidget *window);

QJsonObject describeMenu(const QMenu *menu);
QJsonArray describeMenuBar(const QMenuBar *bar);

/// Headers and all rows, also those of collapsed parents, in view order: children follow their parent with a
/// greater depth. Cells on the screen have their rectangles.
QJsonObject describeView(QAbstractItemView *view);

/// {"id": the internal id of the selected row in the innermost model}; empty if there is no selection.
QJsonObject describeSelected(const QAbstractItemView *view);

} // namespace probe

#endif
