// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_SIZETOSTR_H
#define FS_SIZETOSTR_H

#include <QObject>
#include <QString>

/// Formats a byte count with two decimals, in the smallest unit up to gigabytes in which it is below 1024, as
/// in "512.00 B" or "1.50 KB". The value is converted to double first: an unsigned count never becomes
/// negative; a negative double is shown in bytes with its sign. The unit is chosen before rounding, so one
/// byte less than a megabyte reads "1024.00 KB". Only the unit is translated (context QObject); the number
/// has a decimal point in every locale.
template <class T>
QString sizeToStr(const T &value)
{
    constexpr double perUnit = 0.0009765625; // 1/1024, exact in binary
    double number = static_cast<double>(value);
    QString unit;
    if (number < 1024.0) {
        unit = QObject::tr(" B");
    } else if ((number *= perUnit) < 1024.0) {
        unit = QObject::tr(" KB");
    } else if ((number *= perUnit) < 1024.0) {
        unit = QObject::tr(" MB");
    } else {
        // Intentional: there is no larger unit, so a tebibyte reads "1024.00 GB".
        number *= perUnit;
        unit = QObject::tr(" GB");
    }
    return QString::number(number, 'f', 2) + unit;
}

#endif
