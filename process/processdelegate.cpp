// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processdelegate.h"

#include "process/paintedrows.h"
#include "process/proxyprocmodel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace {

/// The text color, nearer to the background. The one for disabled text would be too faint to read.
QColor dimmed(const QPalette &palette)
{
    constexpr qreal share = 0.6;
    const QColor &text = palette.color(QPalette::Active, QPalette::Text);
    const QColor &base = palette.color(QPalette::Active, QPalette::Base);
    const auto mix = [&](qreal from, qreal to) { return from * share + to * (1 - share); };
    return QColor::fromRgbF(mix(text.redF(), base.redF()), mix(text.greenF(), base.greenF()),
                            mix(text.blueF(), base.blueF()));
}

/// Of rich text, which is wrapped, with a place to break in every long word. A command line can be wider than
/// the screen, and can look like HTML.
QString toolTipOf(QString text)
{
    constexpr int longestWord = 60;
    int length = 0;
    for (int i = 0; i < text.size(); ++i) {
        length = text.at(i).isSpace() ? 0 : length + 1;
        if (length > longestWord && !text.at(i).isLowSurrogate()) {
            text.insert(i++, QChar(0x200b)); // zero width space
            length = 1;
        }
    }
    return QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>");
}

} // namespace

void ProcessDelegate::endColumn()
{
    isFitting = false;
    sizes.clear();
}

QSize ProcessDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!isFitting) {
        return QStyledItemDelegate::sizeHint(option, index);
    }
    QSize &size = sizes[displayText(index.data(), option.locale)];
    if (!size.isValid()) {
        size = QStyledItemDelegate::sizeHint(option, index);
    }
    return size;
}

void ProcessDelegate::setPaintedRows(PaintedRows *rows)
{
    painted = rows;
}

QString ProcessDelegate::textOf(const QModelIndex &index, const QLocale &locale) const
{
    const QVariant value = index.data();
    const auto *list = qobject_cast<const ProxyProcModel *>(index.model());
    return list && value.isValid() ? textOf(value, list->alignment(index.column()), locale) : QString();
}

QString ProcessDelegate::textOf(const QVariant &value, Qt::Alignment alignment, const QLocale &locale) const
{
    QString text = displayText(value, locale);
    if (alignment & Qt::AlignRight) {
        text += QChar(QChar::Nbsp); // keeps numbers apart from a text in the next column
    }
    return text;
}

/// Does not ask the process list for what it never has (icons, fonts, colors), unlike QStyledItemDelegate.
void ProcessDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    const auto *list = qobject_cast<const ProxyProcModel *>(index.model());
    if (!list) {
        QStyledItemDelegate::initStyleOption(option, index);
        return;
    }
    option->index = index;
    option->displayAlignment = list->alignment(index.column());
    const QVariant value = index.data();
    if (value.isValid()) {
        option->features |= QStyleOptionViewItem::HasDisplay;
        option->text = textOf(value, option->displayAlignment, option->locale);
    }
    if (index.data(ProxyProcModel::AncestorOnlyRole).toBool()) {
        option->palette.setColor(QPalette::Text, dimmed(option->palette));
    }
}

void ProcessDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    if (painted && !painted->isWanted(*painter, option)) {
        return;
    }
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    if (painted) {
        painted->note(*painter, cell, index);
    }
    if (texts.canDraw(cell)) {
        texts.draw(painter, cell);
    } else {
        QStyledItemDelegate::paint(painter, option, index);
    }
}

bool ProcessDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QRect cell = view->visualRect(index);
    const bool isElided = sizeHint(option, index).width() > cell.width();
    QToolTip::showText(event->globalPos(),
                       isElided ? toolTipOf(displayText(index.data(), option.locale)) : QString(),
                       view->viewport(), cell);
    return true;
}
