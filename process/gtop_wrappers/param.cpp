// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/param.h"

#include <cmath>
#include <limits>

namespace gtop_wrappers {

IProcessParam::IProcessParam(const QVariant &value) : display(value)
{}

QVariant IProcessParam::displayValue() const
{
    return display;
}

QVariant IProcessParam::sortValue() const
{
    return displayValue();
}

bool IProcessParam::isRead() const
{
    return true;
}

IProcessParam::~IProcessParam() = default;

void IProcessParam::setDisplayValue(const QVariant &value)
{
    display = value;
}

SimpleProcessParam::SimpleProcessParam(const QString &text) : IProcessParam(text)
{}

IntProcessParam::IntProcessParam(int value, const QVariant &text) : IProcessParam(text), number(value)
{}

IntProcessParam::IntProcessParam(int value) : IntProcessParam(value, value)
{}

int IntProcessParam::value() const
{
    return number;
}

QVariant IntProcessParam::sortValue() const
{
    return number;
}

CpuProcessParam::CpuProcessParam() : load(0.0), textIsMissing(false)
{}

double CpuProcessParam::percent() const
{
    return load;
}

void CpuProcessParam::setPercent(double percent)
{
    load = percent;
}

void CpuProcessParam::showPercent(double percent)
{
    load = percent;
    display = QVariant();
    textIsMissing = true;
}

QVariant CpuProcessParam::displayValue() const
{
    if (textIsMissing && !display.isValid()) {
        display = QString::number(load, 'f', 1) + QStringLiteral(" %");
    }
    return display;
}

QVariant CpuProcessParam::sortValue() const
{
    return std::isnan(load) ? -std::numeric_limits<double>::infinity() : load;
}

} // namespace gtop_wrappers
