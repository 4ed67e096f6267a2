// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_CHART_H
#define FS_CHART_H

#include <QColor>
#include <QWidget>

/// Position of the pie in its widget, in pixels; its top is always at 10.
struct ChartGeometry
{
    int x;        ///< left edge
    int diameter; ///< negative in a widget below 40 pixels
};

/// The pie's position in a widget of `size`.
ChartGeometry chartGeometry(const QSize &size);

/// The two shares of the pie in 1/16 degrees, counter-clockwise from three o'clock, used space first.
struct ChartAngles
{
    int usedSpan;
    int availStart;
    int availSpan;
};

/// The shares for `percentAvailable`, which must be finite. Angles are clamped to the range of int.
ChartAngles chartAngles(double percentAvailable);

/// Pie chart of the used and the available share of a file system.
class Chart : public QWidget
{
    Q_OBJECT

public:
    explicit Chart(QWidget *parent = nullptr);
    ~Chart() override;

    static QColor usedColor();
    static QColor availColor();

    /// Sets the percentage that is available to ordinary users, without a range check. -1 and anything that
    /// is not finite mean no value, which shows as an empty circle; assistive technology reads the reason.
    void setValue(double percentAvailable, const QString &reasonForNone = {});

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool hasValue() const;
    void describe();
    void draw(int x, int diameter);

    double value = -1.0;
    QString noValueReason; ///< none is selected, if empty
};

#endif
