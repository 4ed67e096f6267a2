// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/referencetree.h"

#include <algorithm>

namespace {

QString node(int pid, double load, const QString &below)
{
    const QString self = QString::number(pid) + QLatin1Char(':') + QString::number(load, 'g', 12);
    return below.isEmpty() ? self : self + QLatin1Char('(') + below + QLatin1Char(')');
}

} // namespace

ReferenceTree::Item::~Item()
{
    if (parent) {
        auto &siblings = parent->children;
        siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
    }
    for (Item *child : children) {
        child->parent = nullptr;
    }
}

void ReferenceTree::refresh(const FactsByPid &snapshot, quint64 totalDelta)
{
    stale.clear();
    for (const auto &entry : items) {
        stale.insert(entry.first);
    }
    std::vector<Facts> fresh;
    for (const auto &entry : snapshot) {
        if (!match(entry.second, totalDelta)) {
            fresh.push_back(entry.second);
        }
    }
    for (const Facts &facts : fresh) {
        insert(facts, snapshot, totalDelta, {});
    }
    for (const int pid : stale) {
        if (items.count(pid)) {
            remove(items[pid].get());
        }
    }
}

bool ReferenceTree::match(const Facts &facts, quint64 totalDelta)
{
    const auto found = items.find(facts.pid);
    if (found == items.end()) {
        return false;
    }
    Item *item = found->second.get();
    if (item->facts.ppid != facts.ppid || item->facts.name != facts.name) {
        remove(item);
        return false;
    }
    stale.erase(facts.pid);
    update(*item, facts, totalDelta);
    return true;
}

void ReferenceTree::update(Item &item, const Facts &facts, quint64 totalDelta)
{
    if (item.previous == 0) {
        item.previous = static_cast<qint64>(facts.cpuCounter) - 1;
    }
    const quint64 delta = static_cast<quint64>(facts.cpuCounter - item.previous);
    item.percent = 100.0 * static_cast<double>(delta) / static_cast<double>(totalDelta);
    item.previous = facts.cpuCounter;
    item.facts = facts;
}

ReferenceTree::Item *ReferenceTree::insert(const Facts &facts, const FactsByPid &snapshot, quint64 totalDelta,
                                           std::set<int> path)
{
    path.insert(facts.pid);
    Item *parent = &root;
    if (!flat && snapshot.count(facts.ppid) && !path.count(facts.ppid)) {
        parent = insert(snapshot.at(facts.ppid), snapshot, totalDelta, path);
    }
    const auto item = std::make_shared<Item>();
    item->parent = parent;
    update(*item, facts, totalDelta);
    items[facts.pid] = item;
    parent->children.push_back(item.get());
    return item.get();
}

void ReferenceTree::remove(Item *item)
{
    while (!item->children.empty()) {
        remove(item->children.back());
    }
    items.erase(item->facts.pid);
}

QString ReferenceTree::shapeUnder(const Item &item)
{
    QString shape;
    for (const Item *child : item.children) {
        shape += QLatin1Char(' ') + node(child->facts.pid, child->percent, shapeUnder(*child));
    }
    return shape.mid(1);
}

QString ReferenceTree::shape() const
{
    return shapeUnder(root);
}

std::set<int> ReferenceTree::pids() const
{
    std::set<int> all;
    for (const auto &entry : items) {
        all.insert(entry.first);
    }
    return all;
}

QString shapeWithLoad(const ProcModel &model, const QModelIndex &parent)
{
    QString shape;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const int pid = static_cast<int>(index.internalId());
        const double load = index.sibling(row, 1).data(Qt::UserRole).toDouble();
        shape += QLatin1Char(' ') + node(pid, load, shapeWithLoad(model, index));
    }
    return shape.mid(1);
}
