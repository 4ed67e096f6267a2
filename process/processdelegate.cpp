// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processdelegate.h"

#include "process/paintedrows.h"
#include "process/proxyprocmodel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QSet>
#include <QToolTip>

#include <algorithm>

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

/// Those of the language, and 0 to 9, which most columns show in any language.
bool areDigitsEquallyWide(const QStyleOptionViewItem &option)
{
    const QFontMetricsF metrics(option.font);
    for (const QChar zero : QSet<QChar>{QLatin1Char('0'), option.locale.zeroDigit()}) {
        const qreal width = metrics.horizontalAdvance(zero);
        for (ushort digit = 1; digit < 10; ++digit) {
            if (metrics.horizontalAdvance(QChar(zero.unicode() + digit)) != width) {
                return false;
            }
        }
    }
    return true;
}

/// The same for all numbers that differ only in their digits.
QString shapeOf(QString number)
{
    for (QChar &character : number) {
        character = character.isDigit() ? QLatin1Char('0') : character;
    }
    return number;
}

} // namespace

/// Whether the cell's number lies between two that were measured. Otherwise it is such a one from now on.
bool ProcessDelegate::Fit::isBetween(const QModelIndex &index)
{
    bool isNumber = false;
    const double number = index.data(Qt::UserRole).toDouble(&isNumber);
    if (!isNumber || (number >= least && number <= greatest)) {
        return isNumber;
    }
    least = std::min(least, number);
    greatest = std::max(greatest, number);
    return false;
}

QSize ProcessDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (fit) {
        return sizeToFit(option, index);
    }
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    return texts.size(cell);
}

/// As QStyledItemDelegate does it, but without laying out all of a text whose beginning is wide enough. A
/// command line can have thousands of characters.
QSize ProcessDelegate::measured(const QStyleOptionViewItem &option, const QModelIndex &index,
                                int enough) const
{
    constexpr int longestBeginning = 160;
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    const auto size = [&] {
        return style->sizeFromContents(QStyle::CT_ItemViewItem, &cell, {}, cell.widget);
    };
    const QString text = cell.text;
    cell.text = text.left(longestBeginning);
    const QSize ofTheBeginning = size();
    if (text.size() <= longestBeginning || ofTheBeginning.width() >= enough) {
        return ofTheBeginning;
    }
    cell.text = text;
    return size();
}

QSize ProcessDelegate::sizeToFit(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Column &column = fit->column;
    if (fit->isWidest) {
        return QSize(column.widest, 0);
    }
    if (column.isNumeric && fit->sizes.isEmpty() && !areDigitsEquallyWide(option)) {
        column.isNumeric = column.isOrdered = false;
    }
    if (column.isOrdered && fit->isBetween(index)) {
        return QSize(0, 0); // which one of those two exceeds
    }
    const QString text = index.data().toString();
    QSize &size = fit->sizes[column.isNumeric ? shapeOf(text) : text];
    if (!size.isValid()) {
        size = measured(option, index, column.widest);
        fit->isWidest = size.width() >= column.widest;
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
