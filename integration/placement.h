// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_PLACEMENT_H
#define ZARN_INTEGRATION_PLACEMENT_H

#include <QRect>
#include <QStringList>

/// What is kept of a window's geometry.
struct Placement
{
    QRect client; ///< the area inside the frame
    int titleBarHeight = 0;
    bool maximized = false;
};

/// As they stand in the settings: left, top, width and height of the client area, height of the title bar,
/// 1 if maximized.
QStringList fieldsOf(const Placement &placement);

/// And back. A null client rectangle if the fields aren't six whole numbers that a window can have.
Placement placementFromFields(const QStringList &fields);

#endif
