// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/celltexts.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QWidget>

#include <functional>
#include <utility>

namespace {

/// Scrolling through a long list between two refreshes would fill the memory.
constexpr int mostTexts = 4000;

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled)) {
        return QPalette::Disabled;
    }
    return option.state & QStyle::State_Active ? QPalette::Normal : QPalette::Inactive;
}

void drawFocus(QPainter *painter, const QStyleOptionViewItem &option)
{
    const QStyle *style = option.widget->style();
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = style->subElementRect(QStyle::SE_ItemViewItemFocusRect, &option, option.widget);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    const bool isSelected = option.state & QStyle::State_Selected;
    focus.backgroundColor =
        option.palette.color(option.state & QStyle::State_Enabled ? QPalette::Normal : QPalette::Disabled,
                             isSelected ? QPalette::Highlight : QPalette::Window);
    style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
}

/// What the style draws for the sample, or draw() in its place.
QImage picture(const QStyleOptionViewItem &sample, const std::function<void(QPainter *)> &draw)
{
    QImage image(sample.rect.size(), QImage::Format_RGB32);
    image.fill(sample.palette.color(QPalette::Base));
    QPainter painter(&image);
    painter.setFont(sample.font);
    draw(&painter);
    return image;
}

/// Unlike those of any real palette, so that a style that has colors of its own is found out.
QPalette samplePalette()
{
    QPalette palette(QColor(96, 64, 32));
    palette.setColor(QPalette::Base, QColor(250, 230, 210));
    palette.setColor(QPalette::Text, QColor(10, 90, 30));
    palette.setColor(QPalette::Highlight, QColor(130, 10, 110));
    palette.setColor(QPalette::HighlightedText, QColor(240, 250, 120));
    return palette;
}

QTextLine layOut(QTextLayout *layout, const QString &text, int width)
{
    layout->setText(text);
    layout->beginLayout();
    QTextLine line = layout->createLine();
    line.setLineWidth(width);
    line.setPosition(QPointF());
    layout->endLayout();
    return line;
}

} // namespace

bool CellTexts::canDraw(const QStyleOptionViewItem &option)
{
    return option.showDecorationSelected && isText(option) && isOrdinaryStyle;
}

QSize CellTexts::size(const QStyleOptionViewItem &option)
{
    const auto measured = [&option] {
        const QStyle *by = option.widget ? option.widget->style() : QApplication::style();
        return by->sizeFromContents(QStyle::CT_ItemViewItem, &option, {}, option.widget);
    };
    if (option.text.isEmpty() || !isText(option) || !isOrdinaryStyle) {
        return measured();
    }
    if (sizes.size() > mostTexts) {
        sizes.clear();
    }
    QSize &size = sizes[option.text];
    if (!size.isValid()) {
        size = measured();
    }
    return size;
}

/// Whether the cell holds nothing but text. A style or font that is new makes all that is kept useless.
bool CellTexts::isText(const QStyleOptionViewItem &option)
{
    const bool isPlain = option.widget && !(option.features & ~QStyleOptionViewItem::HasDisplay) &&
                         !(option.state & QStyle::State_Editing) &&
                         !option.text.contains(QChar::LineSeparator);
    if (!isPlain) {
        return false;
    }
    if (style != option.widget->style() || font != option.font || direction != option.direction ||
        elideMode != option.textElideMode) {
        meet(option);
    }
    return true;
}

void CellTexts::meet(const QStyleOptionViewItem &option)
{
    drawn.clear();
    drawnBefore.clear();
    sizes.clear();
    style = option.widget->style();
    font = option.font;
    direction = option.direction;
    elideMode = option.textElideMode;
    QStyleOptionViewItem sample(option);
    sample.rect = QRect(0, 0, option.fontMetrics.height() * 4, option.fontMetrics.height() * 2);
    sample.showDecorationSelected = true;
    sample.text = QStringLiteral("Sample text, elided");
    sample.palette = samplePalette();
    isOrdinaryStyle = true;
    for (const QStyle::State state :
         {QStyle::State(QStyle::State_Enabled),
          QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected | QStyle::State_HasFocus}) {
        sample.state = state;
        const QImage wanted = picture(sample, [&](QPainter *painter) {
            style->drawControl(QStyle::CE_ItemViewItem, &sample, painter, sample.widget);
        });
        isOrdinaryStyle =
            isOrdinaryStyle && wanted == picture(sample, [&](QPainter *painter) { draw(painter, sample); });
    }
}

void CellTexts::startRefresh()
{
    drawnBefore = std::exchange(drawn, Texts());
}

/// The steps of QCommonStyle for CE_ItemViewItem.
void CellTexts::draw(QPainter *painter, const QStyleOptionViewItem &option)
{
    painter->save();
    painter->setClipRect(option.rect);
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    if (!option.text.isEmpty()) {
        const bool isSelected = option.state & QStyle::State_Selected;
        painter->setPen(option.palette.color(colorGroup(option),
                                             isSelected ? QPalette::HighlightedText : QPalette::Text));
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
        const QRect rect = option.rect.adjusted(margin, 0, -margin, 0);
        const Text &text = laidOut(option, rect.width());
        const int top =
            QStyle::alignedRect(Qt::LayoutDirectionAuto, option.displayAlignment, text.size, rect).top();
        text.layout.draw(painter, QPointF(rect.x(), top));
    }
    if (option.state & QStyle::State_HasFocus) {
        drawFocus(painter, option);
    }
    painter->restore();
}

const CellTexts::Text &CellTexts::laidOut(const QStyleOptionViewItem &option, int width)
{
    const Key key{option.text, width, option.displayAlignment};
    if (drawn.size() > mostTexts) {
        startRefresh();
    }
    std::shared_ptr<Text> &text = drawn[key];
    if (!text) {
        text = drawnBefore.take(key);
    }
    if (!text) {
        text = std::make_shared<Text>();
        QTextOption lines;
        lines.setWrapMode(QTextOption::ManualWrap);
        lines.setTextDirection(direction);
        lines.setAlignment(QStyle::visualAlignment(direction, option.displayAlignment));
        text->layout.setTextOption(lines);
        text->layout.setFont(font);
        text->layout.setCacheEnabled(true);
        const QTextLine line = layOut(&text->layout, option.text, width);
        text->size = text->layout.boundingRect().size().toSize();
        if (line.naturalTextWidth() > width) {
            layOut(&text->layout, QFontMetrics(font).elidedText(option.text, elideMode, width), width);
        }
    }
    return *text;
}
