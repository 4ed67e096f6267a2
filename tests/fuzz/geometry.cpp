// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "integration/geometry.h"
#include "integration/placement.h"

#include <algorithm>

namespace {

bool isNear(int coordinate)
{
    return coordinate >= -1000000 && coordinate <= 1000000;
}

/// Whether enough of the title bar, or of the strip used without one, lies on a screen.
bool canBeCaught(const QRect &client, int titleBarHeight, const QVector<QRect> &screens)
{
    const int height = std::max(titleBarHeight, 16);
    const QRect titleBar(client.left(), client.top() - titleBarHeight, client.width(), height);
    return std::any_of(screens.begin(), screens.end(), [&](const QRect &screen) {
        const QRect seen = titleBar & screen;
        return seen.width() >= 64 && seen.height() >= 8;
    });
}

bool fitsOnOne(const QRect &client, int titleBarHeight, const QVector<QRect> &screens)
{
    return std::any_of(screens.begin(), screens.end(), [&](const QRect &screen) {
        return client.width() <= screen.width() && client.height() + titleBarHeight <= screen.height();
    });
}

void tryOn(const Placement &placement, const QVector<QRect> &screens)
{
    const int titleBarHeight = placement.titleBarHeight;
    const QRect fitted = zarnFitToScreens(placement.client, titleBarHeight, screens);
    if (fitted.isEmpty()) {
        return;
    }
    HOLDS(canBeCaught(fitted, titleBarHeight, screens));
    HOLDS(fitsOnOne(fitted, titleBarHeight, screens));
    HOLDS(zarnFitToScreens(fitted, titleBarHeight, screens) == fitted);
}

} // namespace

/// Input: the fields of the settings file, separated by commas.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList fields = QString::fromUtf8(bytesOf(data, size)).split(QLatin1Char(','));
    const Placement placement = placementFromFields(fields);
    const QRect &client = placement.client;

    HOLDS(fields.size() == 6 || client.isNull());
    HOLDS(isNear(client.x()) && isNear(client.y()) && isNear(client.width()) && isNear(client.height()));
    HOLDS(placement.titleBarHeight >= 0 && placement.titleBarHeight <= 500);
    if (!client.isNull()) {
        const QStringList again = placementFields(placement);
        HOLDS(placementFromFields(again).client == client);
        HOLDS(placementFields(placementFromFields(again)) == again);
    }
    tryOn(placement, {QRect(0, 30, 1920, 1050)});
    tryOn(placement, {QRect(-1280, 0, 1280, 1024), QRect(0, 0, 3840, 2160)});
    tryOn(placement, {});
    return 0;
}
