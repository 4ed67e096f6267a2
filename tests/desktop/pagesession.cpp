// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace {

SessionOptions complete(SessionOptions options, std::optional<standin::Machine> machine)
{
    options.settings = "[interval]\ngeneral=1\nfs=1\nnet=1\n" + options.settings;
    options.machine = std::move(machine);
    return options;
}

} // namespace

PageSession::PageSession(std::optional<standin::Machine> machine, SessionOptions options)
    : DesktopSession(complete(std::move(options), std::move(machine)))
{}

QVector<QJsonObject> PageSession::widgets(const QString &className)
{
    QVector<QJsonObject> found;
    const QJsonArray array = probe("widgets " + className).value("widgets").toArray();
    for (const QJsonValue &each : array) {
        found.append(each.toObject());
    }
    return found;
}

QJsonObject PageSession::named(const QString &className, const QString &accessibleName)
{
    const QVector<QJsonObject> all = widgets(className);
    for (const QJsonObject &each : all) {
        if (each.value("accessibleName").toString() == accessibleName) {
            return each;
        }
    }
    return {};
}

bool PageSession::waitForTexts(const QMap<QString, QString> &expected)
{
    QString seen;
    const bool met = waitFor([&] {
        seen.clear();
        for (auto each = expected.begin(); each != expected.end(); ++each) {
            const QString now = text(each.key());
            if (now != each.value()) {
                seen += QString("%1 shows \"%2\", not \"%3\"; ").arg(each.key(), now, each.value());
            }
        }
        return seen.isEmpty();
    });
    if (!met) {
        qWarning("%s", qPrintable(seen));
    }
    return met;
}

QString PageSession::undefinedNumber()
{
    static const QRegularExpression undefined("\\b(nan|inf)\\b", QRegularExpression::CaseInsensitiveOption);
    const QVector<QJsonObject> all = widgets("QWidget");
    for (const QJsonObject &each : all) {
        for (const char *key : {"text", "accessibleDescription", "accessibleValue"}) {
            const QString text = each.value(key).toString();
            if (undefined.match(text).hasMatch()) {
                return text;
            }
        }
    }
    return {};
}

QChar shade(const QImage &picture, const QPoint &point)
{
    const QRgb pixel = picture.pixel(point);
    const int margin = 60; // lines are smoothed, and what is drawn near them blends in
    if (qRed(pixel) > qMax(qGreen(pixel), qBlue(pixel)) + margin) {
        return 'r';
    }
    if (qGreen(pixel) > qMax(qRed(pixel), qBlue(pixel)) + margin) {
        return 'g';
    }
    return qBlue(pixel) > qMax(qRed(pixel), qGreen(pixel)) + margin ? 'b' : '-';
}
