// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/gaugeaccess.h"

#include "resources/qprog.h"

namespace {

QAccessibleInterface *makeGaugeAccess(const QString & /*className*/, QObject *object)
{
    auto *gauge = qobject_cast<QProg *>(object);
    return gauge ? new GaugeAccess(gauge) : nullptr;
}

} // namespace

GaugeAccess::GaugeAccess(QProg *prog) : QAccessibleWidget(prog, QAccessible::ProgressBar)
{}

void GaugeAccess::install()
{
    QAccessible::installFactory(makeGaugeAccess);
}

void *GaugeAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QVariant GaugeAccess::currentValue() const
{
    return gauge().value();
}

void GaugeAccess::setCurrentValue(const QVariant & /*value*/)
{}

QVariant GaugeAccess::maximumValue() const
{
    return gauge().maximum();
}

QVariant GaugeAccess::minimumValue() const
{
    return gauge().minimum();
}

QVariant GaugeAccess::minimumStepSize() const
{
    return 0.0;
}

const QProg &GaugeAccess::gauge() const
{
    return *static_cast<const QProg *>(object());
}
