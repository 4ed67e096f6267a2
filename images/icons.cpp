// SPDX-License-Identifier: GPL-3.0-or-later
#include "images/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <utility>

namespace {

class ThemedIconEngine : public QIconEngine
{
public:
    ThemedIconEngine(QString themeName, QString embeddedPath)
        : name(std::move(themeName)), embedded(std::move(embeddedPath))
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }

    /// The size of the pictures in lists and menus, which no theme falls short of. Lists ask for it before
    /// they are shown, and the theme's answer would have to be loaded.
    QSize actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return size;
    }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return icon().availableSizes(mode, state);
    }

    QString iconName() const override { return icon().name(); }
    QIconEngine *clone() const override { return new ThemedIconEngine(*this); }

private:
    /// As QIcon::fromTheme() at this moment, since the desktop's theme can change.
    QIcon icon() const
    {
        QIcon themed = QIcon::fromTheme(name);
        if (!themed.availableSizes().isEmpty()) {
            return themed;
        }
        if (fallback.isNull()) {
            fallback = embeddedIcon(embedded);
        }
        return fallback;
    }

    QString name;
    QString embedded;
    mutable QIcon fallback; ///< made when it is first needed, since decoding takes a while
};

} // namespace

QIcon embeddedIcon(const QString &path)
{
    return {QPixmap(path, "PNG")};
}

QIcon themedIcon(const QString &name, const QString &embedded)
{
    return QIcon(new ThemedIconEngine(name, embedded));
}
