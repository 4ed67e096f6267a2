// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/textondemand.h"

#include "fs/sizetostr.h"
#include "text/oneline.h"

#include <QCoreApplication>
#include <QDateTime>

namespace gtop_wrappers {

QVariant TextOnDemandParam::displayValue() const
{
    if (!display.isValid()) {
        display = text();
    }
    return display;
}

NumberProcessParam::NumberProcessParam(quint64 value) : number(value)
{}

QVariant NumberProcessParam::sortValue() const
{
    return number;
}

QString SizeProcessParam::text() const
{
    return sizeToStr(number);
}

CpuTimeProcessParam::CpuTimeProcessParam(quint64 jiffies, quint64 frequency)
    : NumberProcessParam(jiffies), perSecond(frequency)
{}

QString CpuTimeProcessParam::text() const
{
    if (perSecond == 0) {
        return QString();
    }
    const quint64 seconds = number / perSecond;
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString StartedProcessParam::text() const
{
    constexpr quint64 endOfYear9999 = 253402300799;
    if (number == 0 || number > endOfYear9999) {
        return QCoreApplication::translate("ProcessFiller", "Unknown");
    }
    // Always with the date: leaving it out for today would be wrong after midnight.
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(number))
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

CommandLineProcessParam::CommandLineProcessParam(const QByteArray &arguments, const QByteArray &name)
    : bytes(arguments), processName(name)
{}

QString CommandLineProcessParam::text() const
{
    const QString line = oneLine(bytes);
    return line.isEmpty() ? QLatin1Char('[') + oneLine(processName) + QLatin1Char(']') : line;
}

} // namespace gtop_wrappers
