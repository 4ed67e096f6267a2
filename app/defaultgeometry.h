// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DEFAULTGEOMETRY_H
#define APP_DEFAULTGEOMETRY_H

#include <QRect>

/// Geometry of the window without a stored one: at the origin, 640 x 480, higher if the first page needs it,
/// and less on a screen with a smaller available area.
inline QRect defaultGeometry(const QRect &available, int neededHeight)
{
    return {0, 0, qMin(available.width() - 20, 640), qMin(available.height() - 40, qMax(480, neededHeight))};
}

#endif
