// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_QPROG_H
#define RESOURCES_QPROG_H

#include <QColor>
#include <QLabel>
#include <QLineF>
#include <QRectF>
#include <QVector>

/// Horizontal bar gauge: an edge frame, a dark trough, a bar whose length shows the value, tick lines over
/// it. Draws no text; its accessible description is the filled share ("42 %"). The properties are required,
/// although the program doesn't use them. Of the setters it calls setValue(), setMaxValue() and
/// setBarColor(); only tests call the others.
class QProg : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(double min READ minimum WRITE setMinValue)
    Q_PROPERTY(double max READ maximum WRITE setMaxValue)
    // Intentional: a number that hides QWidget's property `font`; the widget's font is not affected.
    Q_PROPERTY(int font READ fontDim WRITE setFontDim)
    Q_PROPERTY(int numPrec READ numPrec WRITE setPrecision)
    Q_PROPERTY(QColor color READ barColor WRITE setBarColor)

public:
    /// Starts at 0 in a range of 0 to 100, with a green bar.
    explicit QProg(QWidget *parent);

    double value() const { return currentValue; }
    double minimum() const { return lowest; }
    double maximum() const { return highest; }
    int fontDim() const { return fontSize; }  ///< no effect on drawing
    int numPrec() const { return precision; } ///< no effect on drawing
    QColor barColor() const { return fillColor; }

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Intentional: emitted by every repaint with a value inside a non-empty range, not by setValue().
    void valueChanged(double value);

public Q_SLOTS:
    /// Stores the value, clamped to the range. NaN is stored as it is and draws no bar.
    void setValue(double v);
    /// Sets the maximum. One below the minimum swaps with it, and the value becomes the new minimum;
    /// otherwise the value is kept (intentional: also if it is now out of range).
    void setMaxValue(double v);
    /// Sets the minimum; swaps with the maximum and keeps the value under the same rules.
    void setMinValue(double v);
    void setFontDim(int dim);
    void setPrecision(int digits);
    void setBarColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setRange(double min, double max);
    void rangeOrValueChanged();
    void updateThroughParent();
    void paintFrame();
    void paintBar();
    void paintTicks();

    int fontSize = 20;      ///< required, but nothing is drawn with it
    int precision = 0;      ///< required, but nothing is drawn with it
    double barLength = 0.0; ///< at the last paint; required, but only paintBar() reads it
    double lowest = 0.0;
    double highest = 100.0;
    double currentValue = 0.0;
    QColor fillColor = Qt::green;
};

/// Geometry of the gauge, in units of one pixel horizontally and 1/80 of the height vertically. `width` is
/// the widget's in pixels; on a gauge narrower than its frame a rectangle may have a negative width.
namespace qprog {

constexpr int windowHeight = 80;

QRectF frameRect(int width);
QRectF troughRect(int width);
QRectF barRect(double length);
/// The four fixed blocks that represent an empty range, the same for every width.
QVector<QRectF> emptyRangeBlocks();
QVector<QLineF> tickLines(int width);
/// Length of the bar for a value inside a non-empty range; 0 if the computation overflows.
double barLength(int width, double min, double max, double value);
/// The filled share of the range in whole percent, rounded down ("42 %"); empty if it is undefined.
QString shareText(double min, double max, double value);

} // namespace qprog

#endif
