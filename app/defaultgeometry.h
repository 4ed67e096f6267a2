// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DEFAULTGEOMETRY_H
#define APP_DEFAULTGEOMETRY_H

#include <QRect>

/// Where the window opens without a stored geometry: at the origin, 640 x 480 or what a smaller screen's
/// available area leaves.
inline QRect defaultGeometry(const QRect &available)
{
    return {0, 0, qMin(available.width() - 20, 640), qMin(available.height() - 40, 480)};
}

#endif
