// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/procmodel.h"

std::vector<ProcModel::Row> ProcModel::rows() const
{
    std::vector<const ProcItem *> found;
    std::vector<Row> all;
    found.reserve(items.size());
    all.reserve(items.size());
    const auto addChildren = [&](const ProcItem *above, int position) {
        for (int row = 0; row < above->childCount(); ++row) {
            found.push_back(above->child(row));
            all.push_back({&found.back()->process(), position});
        }
    };
    addChildren(root.get(), -1);
    for (std::size_t i = 0; i < found.size(); ++i) {
        addChildren(found[i], static_cast<int>(i));
    }
    return all;
}
