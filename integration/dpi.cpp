// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/dpi.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

double zarnDpiFactor(double logicalDpi)
{
    return std::isfinite(logicalDpi) && logicalDpi > 0 ? logicalDpi / 96.0 : 1.0;
}

double zarnDpiScaled(double size)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? size * zarnDpiFactor(screen->logicalDotsPerInch()) : size;
}
