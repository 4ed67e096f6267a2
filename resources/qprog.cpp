// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/qprog.h"

#include "resources/gaugeaccess.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPen>
#include <QPixmapCache>

#include <cmath>
#include <utility>

namespace {

void setUpPainter(QPainter &painter, int width)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setWindow(0, 0, width, qprog::windowHeight);
}

void fillRoundRect(QPainter &painter, const QRectF &rect, const QBrush &brush)
{
    if (rect.isEmpty()) { // a negative width would be drawn mirrored
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rect, 3, 25, Qt::RelativeSize);
}

/// False for NaN, which is therefore never drawn.
bool inRange(double min, double max, double value)
{
    return min <= value && value <= max;
}

void drawTicks(QPainter &painter, const QVector<QLineF> &lines)
{
    painter.setPen(QPen(QBrush(Qt::black), 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLines(lines);
}

constexpr int tickDistance = 10;
constexpr int tileLeft = 15; ///< the first tick is in the middle of its tile

/// One tick with the space around it, for gauges of this height: stroking all ticks anew would take four
/// fifths of painting a gauge. Null if a tile has no whole number of device pixels.
QPixmap tickTile(int height, qreal ratio)
{
    const QSizeF size = QSizeF(tickDistance, height) * ratio;
    if (size != size.toSize() || size.isEmpty()) {
        return {};
    }
    const QString key = QStringLiteral("gauge tick %1 %2").arg(height).arg(ratio);
    QPixmap tile;
    if (!QPixmapCache::find(key, &tile)) {
        tile = QPixmap(size.toSize());
        tile.setDevicePixelRatio(ratio);
        tile.fill(Qt::transparent);
        QPainter painter(&tile);
        setUpPainter(painter, tickDistance);
        painter.translate(-tileLeft, 0);
        drawTicks(painter, qprog::tickLines(0));
        painter.end();
        QPixmapCache::insert(key, tile);
    }
    return tile;
}

} // namespace

QRectF qprog::frameRect(int width)
{
    return {5, 5, width - 5.0, 70};
}

QRectF qprog::troughRect(int width)
{
    return {10, 10, width - 17.0, 60};
}

QRectF qprog::barRect(double length)
{
    return {10, 10, length, 60};
}

QVector<QRectF> qprog::emptyRangeBlocks()
{
    return {{40, 10, 40, 60}, {130, 10, 40, 60}, {220, 10, 40, 60}, {310, 10, 40, 60}};
}

QVector<QLineF> qprog::tickLines(int width)
{
    QVector<QLineF> lines;
    for (int k = 0; k <= width; k += 10) {
        lines.append(QLineF(k + 20, 10, k + 20, 70));
    }
    return lines;
}

double qprog::barLength(int width, double min, double max, double value)
{
    const double full = width - 10.0;
    const double length =
        max >= 0 ? full - (max - value) * full / (max - min) : full * (min - value) / (min - max);
    return std::isfinite(length) ? length : 0.0;
}

QString qprog::shareText(double min, double max, double value)
{
    const double percent = (value - min) * 100.0 / (max - min);
    if (!inRange(min, max, value) || !std::isfinite(percent)) {
        return QString();
    }
    return QProg::tr("%1 %").arg(static_cast<int>(percent));
}

QProg::QProg(QWidget *parent) : QLabel(parent)
{
    GaugeAccess::install();
    updateGeometry();
    rangeOrValueChanged();
}

QSize QProg::minimumSizeHint() const
{
    return {250, 20};
}

QSize QProg::sizeHint() const
{
    return {250, 25};
}

void QProg::setValue(double v)
{
    if (v > highest) {
        currentValue = highest;
    } else if (v < lowest) {
        currentValue = lowest;
    } else {
        currentValue = v;
    }
    QAccessibleValueChangeEvent event(this, currentValue);
    QAccessible::updateAccessibility(&event);
    rangeOrValueChanged();
}

void QProg::setMaxValue(double v)
{
    setRange(lowest, v);
}

void QProg::setMinValue(double v)
{
    setRange(v, highest);
}

/// Swaps ends that are in the wrong order; the value then becomes the new minimum. Intentional: otherwise the
/// value is not clamped again.
void QProg::setRange(double min, double max)
{
    lowest = min;
    highest = max;
    if (lowest > highest) {
        std::swap(lowest, highest);
        currentValue = lowest;
    }
    rangeOrValueChanged();
}

void QProg::setFontDim(int dim)
{
    fontSize = dim;
    update();
}

void QProg::setPrecision(int digits)
{
    precision = digits;
    update();
}

void QProg::setBarColor(const QColor &color)
{
    fillColor = color;
    update();
}

void QProg::rangeOrValueChanged()
{
    updateThroughParent();
    const QString share = qprog::shareText(lowest, highest, currentValue);
    if (share != accessibleDescription()) { // setting even the same text sends an event
        setAccessibleDescription(share);
    }
}

/// Has the parent repaint the gauge's place, which it must paint anyway, as it shines through. For each
/// widget that is updated by itself Qt searches all its siblings for those above it, and there are three per
/// core.
void QProg::updateThroughParent()
{
    if (isVisible() && parentWidget()) {
        parentWidget()->update(geometry());
    } else {
        update();
    }
}

void QProg::paintEvent(QPaintEvent * /*event*/)
{
    paintFrame();
    paintBar();
    paintTicks();
}

void QProg::paintFrame()
{
    QPainter painter(this);
    setUpPainter(painter, width());
    QLinearGradient edge(5, 40, 15, 40);
    edge.setColorAt(0.0, Qt::white);
    edge.setColorAt(1.0, Qt::black);
    fillRoundRect(painter, qprog::frameRect(width()), edge);
}

void QProg::paintBar()
{
    QPainter painter(this);
    setUpPainter(painter, width());
    fillRoundRect(painter, qprog::troughRect(width()), QColor(70, 70, 70));
    if (!inRange(lowest, highest, currentValue)) {
        return;
    }
    if (!(lowest < highest)) {
        for (const QRectF &block : qprog::emptyRangeBlocks()) {
            fillRoundRect(painter, block, fillColor);
        }
        return;
    }
    barLength = qprog::barLength(width(), lowest, highest, currentValue);
    fillRoundRect(painter, qprog::barRect(barLength), fillColor);
    painter.end(); // a receiver of the signal may paint
    Q_EMIT valueChanged(currentValue);
}

void QProg::paintTicks()
{
    QPainter painter(this);
    const QPixmap tile = tickTile(height(), devicePixelRatioF());
    if (tile.isNull()) {
        setUpPainter(painter, width());
        drawTicks(painter, qprog::tickLines(width()));
    } else {
        painter.drawTiledPixmap(tileLeft, 0, width() - tileLeft, height(), tile);
    }
}
