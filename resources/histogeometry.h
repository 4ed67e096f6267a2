// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_HISTOGEOMETRY_H
#define RESOURCES_HISTOGEOMETRY_H

#include "resources/historing.h"

#include <QLine>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

/// Geometry of the traffic graph, in pixels from the widget's top left corner. The margins, 70 pixels on the
/// left and 15 on the other sides, don't scale with the dpi. A widget smaller than its margins yields lines
/// that run backwards, never an error.
namespace histogeometry {

/// The integer part of a coordinate, clamped to +-2^24, which is out of sight on any display.
int wholePixel(double coordinate);

/// Pixels per sample; negative below a width of 85.
double horizontalScale(int width);

/// Pixels per byte; 0 if `maxValue` is 0, which puts all samples on the base line.
double verticalScale(int height, qint32 maxValue);

/// The vertical grid line at `k` percent of the graph's width from its left edge; k = 0, 10 ... 100.
QLine timeLine(int k, const QSize &size, double scale);
/// The rectangle in which that line's label is centred.
QRectF timeLabelRect(int k, const QSize &size, double scale);
/// That line's label: its age in seconds, with one sample every `interval` seconds.
QString timeLabel(int k, int interval);

/// The horizontal grid line `i`, from the top (0) to the base line (4).
QLine amountLine(int i, const QSize &size);
/// The rectangle in which that line's label is centred.
QRectF amountLabelRect(int i, const QSize &size);
/// That line's label: the size text of its share of `maxValue`, which is the top line's.
QString amountLabel(int i, qint32 maxValue);

/// The lines that draw `ring`, which must have data, from the newest sample at the right to the oldest.
/// Intentional: the first line joins the newest sample to itself, which shows a single sample as a dot.
QVector<QLine> seriesLines(const HistoRing &ring, const QSize &size, double xScale, double yScale);

/// Sizes of the legend's parts, in pixels.
struct LegendSizes
{
    int margin;
    int spacing;
    int boxWidth;
    int boxHeight;
};

/// The legend's sizes, scaled to the primary screen's dpi.
LegendSizes legendSizes();

/// The parts of the legend, which is at the bottom left.
struct Legend
{
    QRect box;
    QRect inSwatch;
    QRect outSwatch;
    QRect inText; ///< Intentional: extends past the box, as translations may be longer.
    QRect outText;
};

/// The legend of a graph that is `height` pixels high.
Legend legend(int height, const LegendSizes &sizes);

} // namespace histogeometry

#endif
