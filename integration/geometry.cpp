// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/geometry.h"

#include "integration/placement.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

#include <algorithm>

namespace {

const char geometryKey[] = "geometry";
const char toolBarsKey[] = "toolBars";

constexpr QSize smallestWindow(64, 32);       ///< smaller ones can be neither read nor dragged
constexpr QSize smallestGrip(64, 8);          ///< visible part of the title bar, to drag the window by
constexpr int titleBarOfFramelessWindow = 16; ///< the strip checked instead if no title bar is drawn

Placement placementOf(const QWidget *window)
{
    const QRect normal = window->normalGeometry();
    const int titleBarHeight = window->geometry().top() - window->frameGeometry().top();
    return {normal.isValid() ? normal : window->geometry(), titleBarHeight, window->isMaximized()};
}

QVector<QRect> availableScreens()
{
    QVector<QRect> areas;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        areas << screen->availableGeometry();
    }
    return areas;
}

QRect boundTo(const QRect &screen, QRect client, int titleBarHeight)
{
    if (client.width() > screen.width()) {
        client.setLeft(screen.left());
        client.setRight(screen.right());
    }
    if (client.height() + titleBarHeight > screen.height()) {
        client.setTop(screen.top() + titleBarHeight);
        client.setBottom(screen.bottom());
    }
    return client;
}

bool isUsable(const QSize &client)
{
    return client.width() >= smallestWindow.width() && client.height() >= smallestWindow.height();
}

/// The stored client area as this platform can restore it; empty if it cannot.
QRect restorableClient(const Placement &stored)
{
    if (zarnClientsPlaceWindows(QGuiApplication::platformName())) {
        return zarnFitToScreens(stored.client, stored.titleBarHeight, availableScreens());
    }
    const QSize size = zarnFitSizeToScreens(stored.client.size(), stored.titleBarHeight, availableScreens());
    return {QPoint(), size};
}

void place(QWidget *window, const Placement &placement, const QRect &defaultRect)
{
    window->setWindowState(window->windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    if (placement.client.isEmpty()) {
        // setGeometry() would put the title bar above the top edge of the rectangle, off the screen; move()
        // positions the frame.
        window->move(defaultRect.topLeft());
        window->resize(defaultRect.size());
        return;
    }
    if (zarnClientsPlaceWindows(QGuiApplication::platformName())) {
        window->setGeometry(placement.client);
    } else {
        window->resize(placement.client.size());
    }
    if (placement.maximized) {
        window->setWindowState(window->windowState() | Qt::WindowMaximized);
    }
}

} // namespace

void zarnSaveGeometry(const QWidget *window, QSettings *settings, bool withToolBars)
{
    settings->setValue(QLatin1String(geometryKey), placementFields(placementOf(window)));
    const auto *mainWindow = qobject_cast<const QMainWindow *>(window);
    if (withToolBars && mainWindow) {
        settings->setValue(QLatin1String(toolBarsKey), mainWindow->saveState());
    }
}

void zarnRestoreGeometry(QWidget *window, QSettings *settings, const QRect &defaultRect, bool withToolBars)
{
    Placement stored = placementFromFields(settings->value(QLatin1String(geometryKey)).toStringList());
    stored.client = restorableClient(stored);
    place(window, stored, defaultRect);
    auto *mainWindow = qobject_cast<QMainWindow *>(window);
    if (withToolBars && mainWindow) {
        mainWindow->restoreState(settings->value(QLatin1String(toolBarsKey)).toByteArray());
    }
}

bool zarnClientsPlaceWindows(const QString &platformName)
{
    return !platformName.startsWith(QLatin1String("wayland"));
}

QSize zarnFitSizeToScreens(const QSize &client, int titleBarHeight, const QVector<QRect> &screens)
{
    const auto area = [](const QSize &size) { return qint64(size.width()) * size.height(); };
    QSize best;
    for (const QRect &screen : screens) {
        const QSize fitted = client.boundedTo(screen.size() - QSize(0, titleBarHeight));
        if (isUsable(fitted) && (!best.isValid() || area(fitted) > area(best))) {
            best = fitted;
        }
    }
    return best;
}

QRect zarnFitToScreens(const QRect &client, int titleBarHeight, const QVector<QRect> &screens)
{
    if (!isUsable(client.size())) {
        return QRect();
    }
    const QRect titleBar(client.left(), client.top() - titleBarHeight, client.width(),
                         std::max(titleBarHeight, titleBarOfFramelessWindow));
    QRect bestScreen;
    QRect bestSeen;
    for (const QRect &screen : screens) {
        const QRect seen = titleBar & screen;
        const bool enough = seen.width() >= smallestGrip.width() && seen.height() >= smallestGrip.height();
        if (enough && seen.width() > bestSeen.width()) {
            bestScreen = screen;
            bestSeen = seen;
        }
    }
    return bestSeen.isEmpty() ? QRect() : boundTo(bestScreen, client, titleBarHeight);
}
