// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procitem.h"

#include <algorithm>

namespace {

/// Most values are the same objects as before; assigning those would write to their reference counters.
void copyChanged(const std::vector<gtop_wrappers::ParamPtr> &fresh,
                 std::vector<gtop_wrappers::ParamPtr> &params)
{
    params.resize(fresh.size());
    for (std::size_t i = 0; i < fresh.size(); ++i) {
        if (params[i] != fresh[i]) {
            params[i] = fresh[i];
        }
    }
}

} // namespace

ProcItem::ProcItem(const QList<QVariant> &data, ProcItem *parent)
    : itemData(data), parentItem(parent), itemProcess(-1), previousCpu(0), cpuPercent(0.0), updated(false)
{}

ProcItem::~ProcItem()
{
    leaveParent();
    for (ProcItem *child : children) {
        child->parentItem = nullptr;
    }
}

ProcItem *ProcItem::child(int row) const
{
    return row >= 0 && row < childCount() ? children[static_cast<std::size_t>(row)] : nullptr;
}

int ProcItem::row() const
{
    if (!parentItem) {
        return 0;
    }
    const std::vector<ProcItem *> &siblings = parentItem->children;
    return static_cast<int>(std::find(siblings.begin(), siblings.end(), this) - siblings.begin());
}

bool ProcItem::isDescendantOf(const ProcItem *ancestor) const
{
    const ProcItem *item = parentItem;
    while (item && item != ancestor) {
        item = item->parentItem;
    }
    return item != nullptr;
}

void ProcItem::leaveParent()
{
    if (!parentItem) {
        return;
    }
    std::vector<ProcItem *> &siblings = parentItem->children;
    const auto self = std::find(siblings.begin(), siblings.end(), this);
    if (self != siblings.end()) {
        siblings.erase(self);
    }
    parentItem = nullptr;
}

void ProcItem::moveTo(ProcItem *parent)
{
    parentItem = parent;
    if (parent) {
        parent->append(this);
    }
}

void ProcItem::forgetMovedChildren()
{
    children.erase(std::remove_if(children.begin(), children.end(),
                                  [this](const ProcItem *child) { return child->parentItem != this; }),
                   children.end());
}

void ProcItem::forgetRelatives()
{
    children.clear();
    parentItem = nullptr;
}

bool ProcItem::update(const gtop_wrappers::Process &fresh, quint64 totalDelta)
{
    if (updated) {
        return false;
    }
    cpuPercent = nextCpuShare(fresh.getCpuLoad(), totalDelta);
    const gtop_wrappers::ParamPtr load = fresh.getParam(gtop_wrappers::CpuColumn);
    if (auto *cpu = dynamic_cast<gtop_wrappers::CpuProcessParam *>(load.get())) {
        cpu->showPercent(cpuPercent);
    }
    itemProcess.id = fresh.id;
    copyChanged(fresh.params, itemProcess.params);
    updated = true;
    return true;
}

/// Growth of `counter` since the last call, in percent of `totalDelta`. Intentional: a total of 0 gives
/// infinity or NaN, which is shown as such, and a counter that fell wraps to a huge share.
double ProcItem::nextCpuShare(int counter, quint64 totalDelta)
{
    if (previousCpu == 0) {
        // Intentional: the first share is one unit, not 0. Since 0 means "none yet", a process whose counter
        // stays 0 gets here on every refresh and never shows a share of exactly 0.
        previousCpu = static_cast<int>(static_cast<unsigned int>(counter) - 1U);
    }
    const qint64 current = counter;
    const quint64 delta = static_cast<quint64>(current) - static_cast<quint64>(previousCpu);
    previousCpu = current;
    return 100.0 * static_cast<double>(delta) / static_cast<double>(totalDelta);
}
