// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_TIMEHISTO_H
#define RESOURCES_TIMEHISTO_H

#include "resources/historing.h"

#include <QWidget>

/// Traffic graph of the Network page: incoming and outgoing bytes per update interval, as lines over a dotted
/// grid, for the last 100 samples. Black on white in every palette.
class TimeHisto : public QWidget
{
    Q_OBJECT

public:
    /// `_interval` is the Network page's update interval in seconds.
    TimeHisto(QWidget *parent, int _interval);

    /// Sets the interval and discards the samples, which the new time axis would misplace.
    /// Intentional: schedules no repaint; the next sample does.
    void setInterval(int _interval);

public Q_SLOTS:
    /// Adds the newest sample of incoming bytes. Lines are drawn once both series have a sample.
    void addValueIn(uint _value);
    /// Adds the newest sample of outgoing bytes.
    void addValueOut(uint _value);
    /// Discards all samples, for instance when another interface is selected.
    void clear();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void clearRings();
    void describe();
    void drawGrid(QPainter &painter) const;
    void drawTimes(QPainter &painter) const;
    void drawAmounts(QPainter &painter) const;
    void drawSeries(QPainter &painter);

    HistoRing incoming;
    HistoRing outgoing;
    qint32 maxValue = 0;          ///< largest sample at the last paint, in bytes
    double horizontalScale = 1.0; ///< pixels per sample
    double verticalScale = 1.0;   ///< pixels per byte
    qint32 interval;              ///< seconds per sample
};

#endif
