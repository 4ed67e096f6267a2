// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/chart.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double noValue = -1.0;
constexpr double fullCircle = 5760.0;

/// Truncates toward zero and clamps to int, as an out-of-range conversion would be undefined.
int truncated(double angle)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::max(lowest, std::min(angle, highest)));
}

} // namespace

ChartGeometry chartGeometry(const QSize &size)
{
    const int w1 = size.width() - 1;
    const int h1 = size.height() - 1;
    const int diameter = std::min(h1 - 39, w1 - 39);
    return {(w1 - 19 - diameter) / 2, diameter};
}

ChartAngles chartAngles(double percentAvailable)
{
    const double used = fullCircle * (100.0 - percentAvailable) / 100.0;
    // Intentional: each angle is truncated separately, so the spans may add up to one less than the full
    // circle.
    return {truncated(used), truncated(used), truncated(fullCircle - used)};
}

Chart::Chart(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Disk usage"));
    describe();
}

Chart::~Chart() = default;

QColor Chart::usedColor()
{
    return Qt::red;
}

QColor Chart::availColor()
{
    return Qt::blue;
}

void Chart::setValue(double percentAvailable, const QString &reasonForNone)
{
    value = percentAvailable;
    noValueReason = reasonForNone;
    describe();
    update();
}

void Chart::paintEvent(QPaintEvent * /*event*/)
{
    const ChartGeometry geometry = chartGeometry(size());
    draw(geometry.x, geometry.diameter);
}

bool Chart::hasValue() const
{
    return value != noValue && std::isfinite(value);
}

/// Sets the accessible description to the share that the pie shows.
void Chart::describe()
{
    const QString reason = noValueReason.isEmpty() ? tr("No file system selected") : noValueReason;
    const QString text = hasValue() ? tr("%1% available").arg(QString::number(value, 'f', 0)) : reason;
    if (text != accessibleDescription()) {
        setAccessibleDescription(text);
    }
}

void Chart::draw(int x, int diameter)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF square(x, 10.0, diameter, diameter);
    if (!hasValue()) {
        painter.drawEllipse(square);
        return;
    }
    const ChartAngles angles = chartAngles(value);
    painter.setBrush(availColor());
    painter.drawPie(square, angles.availStart, angles.availSpan);
    painter.setBrush(usedColor());
    painter.drawPie(square, 0, angles.usedSpan);
}
