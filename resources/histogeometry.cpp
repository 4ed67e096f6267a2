// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/histogeometry.h"

#include "fs/sizetostr.h"
#include "integration/dpi.h"

#include <algorithm>

namespace histogeometry {

namespace {

constexpr int leftMargin = 70; ///< holds the amount labels
constexpr int margin = 15;     ///< of the other three sides; the bottom one holds the time labels

double amountStep(const QSize &size)
{
    return (size.height() - 2 * margin) * 0.25;
}

} // namespace

int wholePixel(double coordinate)
{
    const double limit = 1 << 24;
    return static_cast<int>(
        std::max(-limit, std::min(limit, coordinate))); // this argument order also clamps NaN
}

double horizontalScale(int width)
{
    return (width - (leftMargin + margin)) / 100.0;
}

double verticalScale(int height, qint32 maxValue)
{
    return maxValue == 0 ? 0.0 : static_cast<double>(height - 2 * margin) / maxValue;
}

QLine timeLine(int k, const QSize &size, double scale)
{
    const int x = wholePixel(k * scale + leftMargin);
    return {x, margin, x, size.height() - margin};
}

QRectF timeLabelRect(int k, const QSize &size, double scale)
{
    return {k * scale, static_cast<double>(size.height() - margin), 2.0 * leftMargin, margin};
}

QString timeLabel(int k, int interval)
{
    return QString::number(qint64(100 - k) *
                           interval); // 64-bit: the interval, read from the settings, may be any int
}

QLine amountLine(int i, const QSize &size)
{
    const int y = wholePixel(margin + i * amountStep(size));
    return {leftMargin, y, size.width() - margin, y};
}

QRectF amountLabelRect(int i, const QSize &size)
{
    return {0.0, i * amountStep(size), leftMargin, 2.0 * margin};
}

QString amountLabel(int i, qint32 maxValue)
{
    // In double, as 4 * maxValue overflows 32 bits; + 0.0 turns the -0 of a negative maximum into 0.
    return sizeToStr(static_cast<double>(maxValue) * (4 - i) * 0.25 + 0.0);
}

QVector<QLine> seriesLines(const HistoRing &ring, const QSize &size, double xScale, double yScale)
{
    const int right = size.width() - margin;
    const int base = size.height() - margin;
    const int count = static_cast<int>(ring.count());
    QVector<QLine> lines;
    lines.reserve(count);
    for (int age = 0; age < count; ++age) {
        const QPoint point(wholePixel(right - age * xScale),
                           wholePixel(base - ring.at(static_cast<quint64>(age)) * yScale));
        lines.append(QLine(lines.isEmpty() ? point : lines.last().p2(), point));
    }
    return lines;
}

LegendSizes legendSizes()
{
    const auto scaled = [](double size) { return wholePixel(zarnDpiScaled(size)); };
    return {scaled(5), scaled(5), scaled(95), scaled(60)};
}

Legend legend(int height, const LegendSizes &sizes)
{
    const int half = sizes.boxHeight / 2;
    const int side = half - 2 * sizes.spacing;
    const int top = height - sizes.margin - sizes.boxHeight;
    const QRect swatch(sizes.margin + sizes.spacing, top + sizes.spacing, side, side);
    const QRect text(sizes.margin + 2 * sizes.spacing + side, top + 2 * sizes.spacing,
                     sizes.boxWidth - sizes.spacing, side);
    return {{sizes.margin, top, sizes.boxWidth, sizes.boxHeight},
            swatch,
            swatch.translated(0, half),
            text,
            text.translated(0, half)};
}

} // namespace histogeometry
