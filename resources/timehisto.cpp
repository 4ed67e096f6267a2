// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/timehisto.h"

#include "fs/sizetostr.h"
#include "resources/histogeometry.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {

QPen linePen(const QColor &color, Qt::PenStyle style)
{
    return {color, 1.0, style, Qt::RoundCap, Qt::RoundJoin};
}

QFont labelFont()
{
    return {QStringLiteral("Arial"), 8, QFont::Normal};
}

/// Whether all texts, centred in `room`, stay clear of the lines at its edges. What is drawn counts: how much
/// of the ascent digits use differs between versions of a font.
bool fits(const QFontMetrics &metrics, const QStringList &texts, const QSizeF &room)
{
    const double baseline = (room.height() + metrics.ascent() - metrics.descent()) / 2;
    return std::all_of(texts.begin(), texts.end(), [&](const QString &text) {
        const QRect ink = metrics.tightBoundingRect(text).translated(0, qCeil(baseline));
        return metrics.horizontalAdvance(text) <= room.width() - 2 && ink.top() > 1 &&
               ink.bottom() < room.height() - 2;
    });
}

/// The rectangles of an axis's labels have a fixed size in pixels, but the font is in points. If the dpi
/// makes one label too large for its rectangle, all labels of the axis get a smaller font.
void setLabelFont(QPainter &painter, const QStringList &labels, const QSizeF &room)
{
    const qreal smallest = 2.0;
    QFont font = labelFont();
    painter.setFont(font);
    while (!fits(painter.fontMetrics(), labels, room) && font.pointSizeF() > smallest) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
        painter.setFont(font);
    }
}

void drawGridLine(QPainter &painter, const QLine &line, const QRectF &labelRect, const QString &label)
{
    painter.setPen(linePen(Qt::black, Qt::DotLine));
    painter.drawLine(line);
    painter.setPen(Qt::black);
    painter.drawText(labelRect, Qt::AlignCenter | Qt::TextDontClip, label);
}

void drawBackground(QPainter &painter, const QSize &size)
{
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    painter.setPen(QPen()); // black, unlike the painter's initial pen, which has the palette's colour
    painter.drawLine(0, 0, right, 0);
    painter.drawLine(right, 0, right, bottom);
    painter.drawLine(right, bottom, 0, bottom);
    painter.drawLine(0, bottom, 0, 0);
}

void drawLegend(QPainter &painter, int height)
{
    const histogeometry::Legend legend = histogeometry::legend(height, histogeometry::legendSizes());
    painter.setPen(linePen(Qt::black, Qt::SolidLine));
    painter.setBrush(Qt::white);
    painter.drawRect(legend.box);
    painter.fillRect(legend.inSwatch, Qt::blue);
    painter.fillRect(legend.outSwatch, Qt::red);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(labelFont());
    painter.setPen(Qt::black);
    const int left = Qt::AlignLeft | Qt::AlignAbsolute; // next to the swatch in right-to-left layouts too
    painter.drawText(legend.inText, left, TimeHisto::tr("In"));
    painter.drawText(legend.outText, left, TimeHisto::tr("Out"));
}

} // namespace

TimeHisto::TimeHisto(QWidget *parent, int _interval) : QWidget(parent), interval(_interval)
{
    setAccessibleName(tr("Network traffic"));
}

void TimeHisto::addValueIn(uint _value)
{
    incoming.append(_value);
    describe();
    update();
}

void TimeHisto::addValueOut(uint _value)
{
    outgoing.append(_value);
    describe();
    update();
}

void TimeHisto::clear()
{
    clearRings();
    update();
}

void TimeHisto::setInterval(int _interval)
{
    clearRings();
    interval = _interval;
}

void TimeHisto::clearRings()
{
    incoming.clear();
    outgoing.clear();
    describe();
}

/// Sets the accessible description to the newest samples, which sighted users read at the right edge.
void TimeHisto::describe()
{
    QString newest;
    if (incoming.hasData && outgoing.hasData) {
        newest = tr("In: %1, Out: %2").arg(sizeToStr(incoming.at(0)), sizeToStr(outgoing.at(0)));
    }
    setAccessibleDescription(newest);
}

void TimeHisto::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    drawBackground(painter, size());
    horizontalScale = histogeometry::horizontalScale(width());
    drawGrid(painter);
    if (incoming.hasData && outgoing.hasData) {
        drawSeries(painter);
    }
    drawLegend(painter, height());
}

/// Intentional: runs before drawSeries() sets the new maximum, so the amounts lag one paint behind the lines.
void TimeHisto::drawGrid(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    drawTimes(painter);
    drawAmounts(painter);
}

void TimeHisto::drawTimes(QPainter &painter) const
{
    QStringList labels;
    for (int k = 0; k <= 100; k += 10) {
        labels << histogeometry::timeLabel(k, interval);
    }
    const auto rect = [this](int k) { return histogeometry::timeLabelRect(k, size(), horizontalScale); };
    setLabelFont(painter, labels, rect(0).size());
    for (int k = 0; k <= 100; k += 10) {
        drawGridLine(painter, histogeometry::timeLine(k, size(), horizontalScale), rect(k), labels[k / 10]);
    }
}

void TimeHisto::drawAmounts(QPainter &painter) const
{
    QStringList labels;
    for (int i = 0; i <= 4; ++i) {
        labels << histogeometry::amountLabel(i, maxValue);
    }
    const auto rect = [this](int i) { return histogeometry::amountLabelRect(i, size()); };
    setLabelFont(painter, labels, rect(0).size());
    for (int i = 0; i <= 4; ++i) {
        drawGridLine(painter, histogeometry::amountLine(i, size()), rect(i), labels[i]);
    }
}

void TimeHisto::drawSeries(QPainter &painter)
{
    maxValue = std::max(incoming.largest(), outgoing.largest());
    verticalScale = histogeometry::verticalScale(height(), maxValue);
    painter.setPen(linePen(Qt::blue, Qt::SolidLine));
    painter.drawLines(histogeometry::seriesLines(incoming, size(), horizontalScale, verticalScale));
    painter.setPen(linePen(Qt::red, Qt::SolidLine));
    painter.drawLines(histogeometry::seriesLines(outgoing, size(), horizontalScale, verticalScale));
}
