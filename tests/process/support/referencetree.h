// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_REFERENCETREE_H
#define TESTS_PROCESS_REFERENCETREE_H

#include "tests/process/support/synthetic.h"

#include <map>
#include <memory>
#include <set>
#include <vector>

/// A literal implementation of the rules of the process list, without a toolkit: what the model has to hold
/// after each refresh.
class ReferenceTree
{
public:
    explicit ReferenceTree(bool isFlat) : flat(isFlat) {}

    void clear() { items.clear(); }
    void setFlat(bool on) { flat = on; }
    void refresh(const FactsByPid &snapshot, quint64 totalDelta);

    /// Like shapeOf(), with the CPU load after each pid: "1:0.5(2:0.1)".
    QString shape() const;
    /// The pids of all items, orphans included.
    std::set<int> pids() const;

private:
    struct Item
    {
        ~Item();
        Facts facts;
        qint64 previous = 0;
        double percent = 0.0;
        Item *parent = nullptr;
        std::vector<Item *> children;
    };

    static void update(Item &item, const Facts &facts, quint64 totalDelta);
    static QString shapeUnder(const Item &item);
    bool match(const Facts &facts, quint64 totalDelta);
    Item *insert(const Facts &facts, const FactsByPid &snapshot, quint64 totalDelta, std::set<int> path);
    void remove(Item *item);

    bool flat;
    Item root;
    std::map<int, std::shared_ptr<Item>> items;
    std::set<int> stale;
};

/// The shape of the model in the same form; the first two columns must be visible.
QString shapeWithLoad(const ProcModel &model, const QModelIndex &parent = QModelIndex());

#endif
