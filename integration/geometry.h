// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_GEOMETRY_H
#define ZARN_INTEGRATION_GEOMETRY_H

#include <QRect>
#include <QVector>

class QSettings;
class QWidget;

/// Keeps where the top-level `window` stands, how large it is when it is neither maximized nor
/// minimized, and whether it is maximized. All under the one key "geometry", as six whole numbers:
/// left, top, width and height of the area inside the frame, height of the title bar, 1 if maximized.
/// With `withToolBars`, the arrangement of a QMainWindow's tool bars and docks is kept beside it.
void zarnSaveGeometry(const QWidget *window, QSettings *settings, bool withToolBars);

/// Puts `window` where zarnSaveGeometry() found it, provided that its title bar can still be reached
/// on one of the screens. Nothing stored, an unreachable place or unusable values give `defaultRect`:
/// the place of the window's frame and the size of the area inside it.
void zarnRestoreGeometry(QWidget *window, QSettings *settings, const QRect &defaultRect, bool withToolBars);

/// `client`, the area inside a window's frame, made no larger than the screen that shows most of its
/// title bar. An empty rectangle if no screen shows enough of the title bar to catch it with the mouse,
/// or if `client` is too small to be a window that someone left behind. `screens` are the areas that
/// windows may use. All in pixels, with coordinates of at most a million.
QRect zarnFitToScreens(const QRect &client, int titleBarHeight, const QVector<QRect> &screens);

#endif
