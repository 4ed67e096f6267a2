// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_PAGESESSION_H
#define TESTS_DESKTOP_PAGESESSION_H

#include "tests/desktop/session.h"

#include <QColor>

/// A session whose pages refresh every second.
class PageSession : public DesktopSession
{
public:
    /// On the real machine if `machine` is empty.
    explicit PageSession(std::optional<standin::Machine> machine, SessionOptions options = {});

    /// All visible widgets of a class, in the order of their creation.
    QVector<QJsonObject> widgets(const QString &className);
    /// The widget of a class with this accessible name; empty if there is none.
    QJsonObject named(const QString &className, const QString &accessibleName);
    /// The accessible description of the first one.
    QString described(const QString &className)
    {
        return widgets(className).value(0).value("accessibleDescription").toString();
    }
    /// What a user sees of a widget that is entirely on the screen.
    QImage picture(const QJsonObject &widget) { return screenshot().copy(rectOf(widget.value("rect"))); }
    QImage picture(const QString &className)
    {
        return picture(widgets(className).value(0));
    }                                                          ///< the first one
    bool waitForTexts(const QMap<QString, QString> &expected); ///< by widget name
    /// The first text on the page that contains an undefined number; empty if there is none.
    QString undefinedNumber();
};

/// The dominant color of a pixel: 'r', 'g', 'b', or '-' for black, grey and white.
QChar shade(const QImage &picture, const QPoint &point);

#endif
