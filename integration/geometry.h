// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_GEOMETRY_H
#define ZARN_INTEGRATION_GEOMETRY_H

#include <QRect>
#include <QSize>
#include <QVector>

class QSettings;
class QString;
class QWidget;

/// Saves the position and the normal size of the top-level `window` and whether it is maximized, under the
/// key "geometry" as six integers: left, top, width and height of the client area (inside the frame), height
/// of the title bar, 1 if maximized. With `withToolBars`, which only tests use, QMainWindow::saveState() is
/// saved under "toolBars" as well.
void zarnSaveGeometry(const QWidget *window, QSettings *settings, bool withToolBars);

/// Restores what zarnSaveGeometry() saved, if the title bar is still reachable on one of the screens.
/// Otherwise, and for missing or invalid values, `defaultRect` gives the position of the frame and the size
/// of the client area. Where the compositor alone places windows, as under Wayland, the size and the
/// maximized state are restored, on whatever screen.
void zarnRestoreGeometry(QWidget *window, QSettings *settings, const QRect &defaultRect, bool withToolBars);

/// False for the Qt platforms whose clients neither know nor choose where their windows are. The names are
/// those of QGuiApplication::platformName().
bool zarnClientsPlaceWindows(const QString &platformName);

/// The client size `client`, shrunk to the screen that has the most room for it, with its title bar. Invalid
/// if it is too small to be usable, or without a screen. For windows that the compositor places.
QSize zarnFitSizeToScreens(const QSize &client, int titleBarHeight, const QVector<QRect> &screens);

/// The client area `client`, shrunk to the screen that shows most of the window's title bar. An empty
/// rectangle if no screen shows enough of the title bar to drag the window by, or if `client` is too small to
/// be usable. `screens` are the available geometries. All in pixels, with coordinates of at most a million.
QRect zarnFitToScreens(const QRect &client, int titleBarHeight, const QVector<QRect> &screens);

#endif
