// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/historing.h"

#include <algorithm>

void HistoRing::append(quint32 value)
{
    if (!hasData) {
        tail = 0;
        values[0] = value;
        hasData = true;
        return;
    }
    tail = (tail + 1) % capacity;
    values[tail] = value;
    if (tail == head) {
        head = (tail + 1) % capacity;
    }
}

void HistoRing::clear()
{
    head = 0;
    tail = 0;
    hasData = false;
}

quint64 HistoRing::count() const
{
    return tail >= head ? tail + 1 - head : tail + capacity + 1 - head;
}

quint32 HistoRing::at(quint64 age) const
{
    return values[(tail + capacity - age) % capacity];
}

qint32 HistoRing::largest() const
{
    qint32 result = static_cast<qint32>(at(0));
    for (quint64 age = 1; age < count(); ++age) {
        result = std::max(result, static_cast<qint32>(at(age)));
    }
    return result;
}
