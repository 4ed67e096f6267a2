// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_SORTKEYS_H
#define PROCESS_SORTKEYS_H

#include <QCollator>
#include <QHash>
#include <QString>
#include <QVariant>

#include <vector>

/// A sort value in a form that is compared fast.
struct SortKey
{
    quint64 number = 0;
    const QCollatorSortKey *text = nullptr; ///< of a text, whose number is 0

    bool operator<(const SortKey &other) const
    {
        if (text && other.text) {
            return text != other.text && text->compare(*other.text) < 0; // most names are not unique
        }
        return number < other.number;
    }
};

/// Makes sort keys: numbers by their value, texts without regard to case by the rules of the user's language,
/// missing values last. The key of a text is made once.
class SortKeys
{
public:
    SortKeys();

    /// Valid until forget().
    SortKey of(const QVariant &value);
    /// Drops the keys of texts if there are more than these.
    void forget(int moreThan);

private:
    const QCollatorSortKey *keyOf(const QString &text);

    QCollator collator;
    QHash<QString, QCollatorSortKey> texts;
};

/// The places of rows in the order of their keys; equal keys have the same place.
class SortRanks
{
public:
    /// `keys` by row. Rows that are still in the order of the last call take one pass.
    void rank(const std::vector<SortKey> &keys);
    void clear() { ranks.clear(); }
    bool isEmpty() const { return ranks.empty(); }
    int of(int row) const { return ranks[static_cast<std::size_t>(row)]; }

private:
    std::vector<int> order; ///< rows, as ranked last
    std::vector<int> ranks; ///< by row
};

#endif
