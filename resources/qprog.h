// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_QPROG_H
#define RESOURCES_QPROG_H

#include <QColor>
#include <QLabel>
#include <QLineF>
#include <QRectF>
#include <QVector>

// A horizontal bar gauge: an edge frame, a dark trough, a bar as long as the value, tick lines over it.
// It draws no text; towards assistive technology its description is the filled share ("42 %").
class QProg : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(double min READ minimum WRITE setMinValue)
    Q_PROPERTY(double max READ maximum WRITE setMaxValue)
    // A number under the name of the widget's own font: it hides that property, and is meant to.
    Q_PROPERTY(int font READ fontDim WRITE setFontDim)
    Q_PROPERTY(int numPrec READ numPrec WRITE setPrecision)
    Q_PROPERTY(QColor color READ barColor WRITE setBarColor)

public:
    // 0 in a range of 0 to 100, green.
    explicit QProg(QWidget *parent);

    double value() const { return m_value; }
    double minimum() const { return m_min; }
    double maximum() const { return m_max; }
    int fontDim() const { return m_fontDim; } // kept for its property; nothing is drawn with it
    int numPrec() const { return m_numPrec; } // kept for its property; nothing is drawn with it
    QColor barColor() const { return m_barColor; }

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    // Sent by every repaint with a value inside a range that isn't empty, not by setValue(); meant so.
    void valueChanged(double value);

public Q_SLOTS:
    // Stores the value, clamped to the range. What is not a number is stored as it is and draws no bar.
    void setValue(double v);
    // Sets one end of the range. If the ends are then the wrong way round, they change places and the
    // value becomes the new minimum; otherwise the value stays, even if it now lies outside the range.
    void setMaxValue(double v);
    void setMinValue(double v);
    void setFontDim(int dim);
    void setPrecision(int digits);
    void setBarColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void rangeOrValueChanged();
    void paintFrame();
    void paintBar();
    void paintTicks();

    int m_fontDim = 20;
    int m_numPrec = 0;
    double m_barLength = 0.0;
    double m_min = 0.0;
    double m_max = 100.0;
    double m_value = 0.0;
    QColor m_barColor = Qt::green;
};

// Where a gauge draws: in units of one pixel across and an 80th of the height down. `width` is the
// widget's in pixels; a rectangle may come out with a negative width on a gauge narrower than its frame.
namespace qprog {
constexpr int windowHeight = 80;

QRectF frameRect(int width);
QRectF troughRect(int width);
QRectF barRect(double length);
// The four blocks that stand for a range without extent, the same for every width.
QVector<QRectF> emptyRangeBlocks();
QVector<QLineF> tickLines(int width);
// Length of the bar for a value inside a range that isn't empty; 0 if the range is too wide to be computed.
double barLength(int width, double min, double max, double value);
// The filled share of the range in whole percent, rounded down; empty if there is none to name.
QString shareText(double min, double max, double value);
} // namespace qprog

#endif
