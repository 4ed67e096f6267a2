// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_HISTOGEOMETRY_H
#define RESOURCES_HISTOGEOMETRY_H

#include "resources/historing.h"

#include <QLine>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

/// Where the traffic graph draws what, in pixels from the widget's top left corner. The margins of 70 (left)
/// and 15 pixels don't grow with the display's resolution. Widgets too small for them get lines that run
/// backwards, never an error.
namespace histogeometry {

/// The integer part of a coordinate, held within +-2^24: what lies beyond is out of sight on any display.
int wholePixel(double coordinate);

/// Pixels per sample; negative below a width of 85.
double horizontalScale(int width);

/// Pixels per byte; 0 for a largest value of 0, which puts all samples on the base line.
double verticalScale(int height, qint32 maxValue);

/// The vertical grid line `k` hundredths of the graph's width from its left edge; k = 0, 10 ... 100.
QLine timeLine(int k, const QSize &size, double scale);
/// The rectangle in whose middle the label of that line stands.
QRectF timeLabelRect(int k, const QSize &size, double scale);
/// The label of that line: its age in seconds with a sample every `interval` seconds.
QString timeLabel(int k, int interval);

/// The horizontal grid line `i`, from the top (0) to the base line (4).
QLine amountLine(int i, const QSize &size);
/// The rectangle in whose middle the label of that line stands.
QRectF amountLabelRect(int i, const QSize &size);
/// The label of that line: the size text of its share of `maxValue`, which itself stands at the top line.
QString amountLabel(int i, qint32 maxValue);

/// The lines that draw `ring`, which has data, from the newest sample at the right to the oldest. The first
/// one is meant to join the newest sample to itself: it makes a single sample a dot.
QVector<QLine> seriesLines(const HistoRing &ring, const QSize &size, double xScale, double yScale);

/// Sizes in the legend, in pixels.
struct LegendSizes
{
    int margin;
    int spacing;
    int boxWidth;
    int boxHeight;
};

/// The sizes scaled to the primary screen's dpi.
LegendSizes legendSizes();

/// The parts of the legend at the bottom left.
struct Legend
{
    QRect box;
    QRect inSwatch;
    QRect outSwatch;
    QRect inText; ///< meant to reach past the box: translations may be longer
    QRect outText;
};

Legend legend(int height, const LegendSizes &sizes);

} // namespace histogeometry

#endif
