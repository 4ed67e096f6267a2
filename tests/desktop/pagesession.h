// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_PAGESESSION_H
#define TESTS_DESKTOP_PAGESESSION_H

#include "tests/desktop/session.h"

#include <QColor>

/// The program on one page of a machine, all pages refreshed each second.
class PageSession : public DesktopSession
{
public:
    /// Without a machine: on the real one.
    explicit PageSession(std::optional<standin::Machine> machine, SessionOptions options = {});

    /// All visible widgets of a class, in the order in which they were made.
    QVector<QJsonObject> widgets(const QString &className);
    /// The widget of a class that assistive technology knows by this name; empty if there is none.
    QJsonObject named(const QString &className, const QString &accessibleName);
    QString described(const QString &className); ///< what the first one tells assistive technology
    /// What a user sees of a widget that is wholly on the screen.
    QImage picture(const QJsonObject &widget);
    bool waitForTexts(const QMap<QString, QString> &expected); ///< by the names of the widgets
    /// The first text on the page that reads like an undefined number; empty if there is none.
    QString undefinedNumber();
    /// Closes the window; whether the program then ended well and said nothing.
    bool endsCleanly();

private:
    static SessionOptions complete(SessionOptions options, std::optional<standin::Machine> machine);
};

/// What a picture has at a point in the shade nearest to it: red, green, blue, or neither (black, grey,
/// white).
QChar shade(const QImage &picture, const QPoint &point);

#endif
