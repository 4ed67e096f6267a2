// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/fittedcolumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

namespace {

constexpr int widestColumn = 40; ///< average characters

} // namespace

FittedColumns::FittedColumns(QTreeView *view) : QObject(view), list(view)
{
    list->header()->viewport()->installEventFilter(this);
}

void FittedColumns::fit(const std::function<int(int, int)> &contents)
{
    QHeaderView *header = list->header();
    const int widest = list->fontMetrics().averageCharWidth() * widestColumn;
    header->setStretchLastSection(false); // it is stretched from the width that it has at the end
    widths.clear();
    for (int column = 0; column < header->count(); ++column) {
        widths.push_back(qMin(qMax(contents(column, widest), header->sectionSizeHint(column)), widest));
        header->resizeSection(column, widths.back());
    }
    header->setStretchLastSection(true);
}

/// Each change of the layout makes Qt take the stretched width of the last column for its own, which the view
/// would keep when it becomes narrower.
bool FittedColumns::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::Resize) {
        return false; // others also come while the view is being destroyed
    }
    QHeaderView *header = list->header();
    const int last = header->logicalIndex(header->count() - 1);
    if (last >= 0 && static_cast<std::size_t>(last) < widths.size()) {
        header->resizeSection(last, widths[static_cast<std::size_t>(last)]);
    }
    return false;
}
