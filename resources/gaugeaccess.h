// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_GAUGEACCESS_H
#define RESOURCES_GAUGEACCESS_H

#include <QAccessibleWidget>

class QProg;

/// What assistive technology is told about a gauge: a progress bar with a read-only value and its range.
class GaugeAccess : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit GaugeAccess(QProg *prog);

    /// Has the toolkit create these for all gauges. May be called repeatedly.
    static void install();

    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    /// No effect: a gauge only shows.
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    /// 0: any value is possible.
    QVariant minimumStepSize() const override;

private:
    const QProg &gauge() const;
};

#endif
