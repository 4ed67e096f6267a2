// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_PLACEMENT_H
#define ZARN_INTEGRATION_PLACEMENT_H

#include <QRect>
#include <QStringList>

/// The persistent part of a window's geometry.
struct Placement
{
    QRect client; ///< inside the frame; null if unknown
    int titleBarHeight = 0;
    bool maximized = false;
};

/// The setting: left, top, width and height of the client area, height of the title bar, 1 if maximized.
QStringList placementFields(const Placement &placement);

/// The inverse of placementFields(). A null client rectangle unless the fields are six plausible integers.
Placement placementFromFields(const QStringList &fields);

#endif
