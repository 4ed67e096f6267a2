// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/timehisto.h"

#include "fs/sizetostr.h"
#include "resources/histogeometry.h"

#include <QPainter>

#include <algorithm>

static QPen linePen(const QColor &color, Qt::PenStyle style)
{
    return {color, 1.0, style, Qt::RoundCap, Qt::RoundJoin};
}

static QFont labelFont()
{
    return {QStringLiteral("Arial"), 8, QFont::Normal};
}

// The rectangles of the grid's labels have a fixed size in pixels, the font has one in points: on a display
// whose resolution makes a label larger than its rectangle it is drawn smaller, rather than cut.
static void drawLabel(QPainter &painter, const QRectF &rect, const QString &text)
{
    const QSizeF needed = painter.fontMetrics().size(Qt::TextSingleLine, text);
    const double fit = std::min({1.0, rect.width() / needed.width(), rect.height() / needed.height()});
    QFont font = labelFont();
    font.setPointSizeF(font.pointSizeF() * fit);
    painter.setFont(font);
    painter.drawText(rect, Qt::AlignCenter | Qt::TextDontClip, text);
    painter.setFont(labelFont());
}

static void drawBackground(QPainter &painter, const QSize &size)
{
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    painter.setPen(QPen()); // black: the painter's own pen has the palette's colour, on a dark one white
    painter.drawLine(0, 0, right, 0);
    painter.drawLine(right, 0, right, bottom);
    painter.drawLine(right, bottom, 0, bottom);
    painter.drawLine(0, bottom, 0, 0);
}

static void drawLegend(QPainter &painter, int height)
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
    const int left = Qt::AlignLeft | Qt::AlignAbsolute; // beside the swatch in right-to-left layouts too
    painter.drawText(legend.inText, left, TimeHisto::tr("In"));
    painter.drawText(legend.outText, left, TimeHisto::tr("Out"));
}

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

// Tells assistive technology what a sighted user reads from the right end of the lines.
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

// Runs before drawSeries() finds the new maximum: the amounts are meant to lag one paint behind the lines.
void TimeHisto::drawGrid(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(labelFont());
    const QPen dotted = linePen(Qt::black, Qt::DotLine);
    for (int k = 0; k <= 100; k += 10) {
        painter.setPen(dotted);
        painter.drawLine(histogeometry::timeLine(k, size(), horizontalScale));
        painter.setPen(Qt::black);
        drawLabel(painter, histogeometry::timeLabelRect(k, size(), horizontalScale),
                  histogeometry::timeLabel(k, interval));
    }
    for (int i = 0; i <= 4; ++i) {
        painter.setPen(dotted);
        painter.drawLine(histogeometry::amountLine(i, size()));
        painter.setPen(Qt::black);
        drawLabel(painter, histogeometry::amountLabelRect(i, size()),
                  histogeometry::amountLabel(i, maxValue));
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
