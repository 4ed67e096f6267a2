// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_CELLTEXTS_H
#define PROCESS_CELLTEXTS_H

#include <QHash>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTextLayout>

#include <memory>

class QPainter;

/// Draws cells that hold nothing but text, as QCommonStyle does, and keeps the texts laid out and measured:
/// few of those in view change from one refresh to the next.
class CellTexts
{
public:
    /// Whether draw() gives the same picture as the style. A style that is new is asked for a sample.
    bool canDraw(const QStyleOptionViewItem &option);
    /// `option` has a text and nothing else to show.
    void draw(QPainter *painter, const QStyleOptionViewItem &option);
    /// The style's size hint.
    QSize size(const QStyleOptionViewItem &option);
    /// Drops what was not drawn since the last call.
    void startRefresh();

private:
    struct Key
    {
        QString text;
        int width;
        Qt::Alignment alignment;

        bool operator==(const Key &other) const
        {
            return width == other.width && alignment == other.alignment && text == other.text;
        }
        friend uint qHash(const Key &key, uint seed)
        {
            return ::qHash(key.text, seed) ^ static_cast<uint>(key.width);
        }
    };
    struct Text
    {
        QTextLayout layout; ///< elided
        QSize size;         ///< before that
    };
    using Texts = QHash<Key, std::shared_ptr<Text>>;

    bool isText(const QStyleOptionViewItem &option);
    void meet(const QStyleOptionViewItem &option);
    const Text &laidOut(const QStyleOptionViewItem &option, int width);

    Texts drawn; ///< since startRefresh()
    Texts drawnBefore;
    QHash<QString, QSize> sizes; ///< by text
    // What the texts are laid out and measured for.
    QPointer<QStyle> style;
    QFont font;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    Qt::TextElideMode elideMode = Qt::ElideRight;
    bool isOrdinaryStyle = false; ///< it draws as QCommonStyle does
};

#endif
