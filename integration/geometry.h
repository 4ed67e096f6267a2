// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_GEOMETRY_H
#define ZARN_INTEGRATION_GEOMETRY_H

#include <QRect>
#include <QVector>

class QSettings;
class QWidget;

/// Saves the position and the normal size of the top-level `window` and whether it is maximized, under the
/// key "geometry" as six integers: left, top, width and height of the client area (inside the frame), height
/// of the title bar, 1 if maximized. With `withToolBars`, which only tests use, QMainWindow::saveState() is
/// saved under "toolBars" as well.
void zarnSaveGeometry(const QWidget *window, QSettings *settings, bool withToolBars);

/// Restores what zarnSaveGeometry() saved, if the title bar is still reachable on one of the screens.
/// Otherwise, and for missing or invalid values, `defaultRect` gives the position of the frame and the size
/// of the client area.
void zarnRestoreGeometry(QWidget *window, QSettings *settings, const QRect &defaultRect, bool withToolBars);

/// The client area `client`, shrunk to the screen that shows most of the window's title bar. An empty
/// rectangle if no screen shows enough of the title bar to drag the window by, or if `client` is too small to
/// be usable. `screens` are the available geometries. All in pixels, with coordinates of at most a million.
QRect zarnFitToScreens(const QRect &client, int titleBarHeight, const QVector<QRect> &screens);

#endif
