// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/sortkeys.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>

namespace {

constexpr quint64 signBit = quint64(1) << 63;

/// Numbers that order as the integers do.
quint64 ordered(qint64 value)
{
    return static_cast<quint64>(value) ^ signBit;
}

quint64 ordered(double value)
{
    const double number = value + 0.0; // no negative zero
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits & signBit ? ~bits : bits | signBit;
}

} // namespace

SortKeys::SortKeys()
{
    collator.setCaseSensitivity(Qt::CaseInsensitive);
}

SortKey SortKeys::of(const QVariant &value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::UnknownType:
        return {std::numeric_limits<quint64>::max(), nullptr};
    case QMetaType::Int:
        return {ordered(static_cast<qint64>(value.toInt())), nullptr};
    case QMetaType::ULongLong: {
        constexpr auto largest = static_cast<quint64>(std::numeric_limits<qint64>::max());
        return {ordered(static_cast<qint64>(qMin(value.toULongLong(), largest))), nullptr};
    }
    case QMetaType::Double:
        return {ordered(value.toDouble()), nullptr};
    default:
        return {0, keyOf(value.toString())};
    }
}

void SortKeys::forget(int moreThan)
{
    if (texts.size() > moreThan) {
        texts.clear();
    }
}

const QCollatorSortKey *SortKeys::keyOf(const QString &text)
{
    auto key = texts.constFind(text);
    if (key == texts.constEnd()) {
        // The C locale has no rules, and its keys regard the case.
        const bool hasRules = collator.locale() != QLocale::c();
        key = texts.insert(text, collator.sortKey(hasRules ? text : text.toCaseFolded()));
    }
    return &key.value();
}

void SortRanks::rank(const std::vector<SortKey> &keys)
{
    const auto comesBefore = [&](int a, int b) {
        const SortKey &left = keys[static_cast<std::size_t>(a)];
        const SortKey &right = keys[static_cast<std::size_t>(b)];
        return left < right || (a < b && !(right < left));
    };
    if (order.size() != keys.size()) {
        order.resize(keys.size());
        std::iota(order.begin(), order.end(), 0);
    }
    if (!std::is_sorted(order.begin(), order.end(), comesBefore)) {
        std::sort(order.begin(), order.end(), comesBefore);
    }
    ranks.resize(keys.size());
    int place = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto row = static_cast<std::size_t>(order[i]);
        if (i > 0 && keys[static_cast<std::size_t>(order[i - 1])] < keys[row]) {
            ++place;
        }
        ranks[row] = place;
    }
}
