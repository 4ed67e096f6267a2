// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/placement.h"

#include <QVector>

namespace {

constexpr int farthest = 1000000;    ///< larger than any desktop, and sums of such numbers don't overflow
constexpr int highestTitleBar = 500; ///< generous even for high-density screens

} // namespace

QStringList placementFields(const Placement &placement)
{
    QStringList fields;
    for (int number : {placement.client.x(), placement.client.y(), placement.client.width(),
                       placement.client.height(), placement.titleBarHeight, int(placement.maximized)}) {
        fields << QString::number(number);
    }
    return fields;
}

Placement placementFromFields(const QStringList &fields)
{
    if (fields.size() != 6) {
        return {};
    }
    QVector<int> numbers;
    for (const QString &field : fields) {
        bool isNumber = false;
        numbers << field.toInt(&isNumber);
        if (!isNumber || numbers.last() < -farthest || numbers.last() > farthest) {
            return {};
        }
    }
    if (numbers[4] < 0 || numbers[4] > highestTitleBar) {
        return {};
    }
    return {QRect(numbers[0], numbers[1], numbers[2], numbers[3]), numbers[4], numbers[5] != 0};
}
