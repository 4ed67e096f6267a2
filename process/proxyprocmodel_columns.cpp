// SPDX-License-Identifier: GPL-3.0-or-later
// How the columns of the process list are shown.
#include "process/fittedcolumns.h"
#include "process/gtop_wrappers/filler.h"
#include "process/processdelegate.h"
#include "process/proxyprocmodel.h"

#include <QHeaderView>

using gtop_wrappers::ProcessFiller;

namespace {

/// How many rows decide on the width of a column. Measuring a value that is read on demand reads it.
int rowsToFit(int processColumn)
{
    constexpr int expensiveRows = 100;
    constexpr int rows = 1000;
    const bool isExpensive =
        ProcessFiller::instance()->isExpensive(static_cast<unsigned long>(processColumn));
    return isExpensive ? expensiveRows : rows;
}

bool isNumeric(int processColumn)
{
    return ProcessFiller::instance()->isNumeric(static_cast<unsigned long>(processColumn));
}

/// See ProcessDelegate::Column. Amounts of memory are not: 1023.99 KB lies between 1.00 KB and 1.00 MB.
bool isOrdered(int processColumn)
{
    using namespace gtop_wrappers;
    return isNumeric(processColumn) && processColumn != MemoryColumn &&
           processColumn != VirtualMemoryColumn && processColumn != SharedMemoryColumn;
}

} // namespace

std::vector<bool> ProxyProcModel::columnsForAllRows() const
{
    using namespace gtop_wrappers;
    std::vector<bool> columns(ColumnCount, false);
    const int sortedBy = sortedProcessColumn();
    if (sortedBy >= 0) {
        columns[static_cast<std::size_t>(sortedBy)] = true;
    }
    columns[ParentPidColumn] = !isFlat() || isColumnVisible(ParentPidColumn);
    return columns;
}

Qt::Alignment ProxyProcModel::alignment(int column) const
{
    static const auto *filler = ProcessFiller::instance();
    const int processColumn = source->processColumn(column);
    return processColumn >= 0 && filler->isNumeric(static_cast<unsigned long>(processColumn))
               ? Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter
               : Qt::AlignLeft | Qt::AlignVCenter;
}

QString ProxyProcModel::rowText(const gtop_wrappers::Process &process) const
{
    QStringList texts;
    for (int place = 0; place < columnCount(); ++place) {
        const int column = view ? view->header()->logicalIndex(place) : place;
        const auto param = process.getParam(static_cast<unsigned long>(source->processColumn(column)));
        texts.append(param ? param->displayValue().toString() : QString());
    }
    return texts.join(QLatin1Char('\t')); // the texts are single lines without tabs
}

QVariant ProxyProcModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal) {
        return static_cast<int>(alignment(section));
    }
    return QSortFilterProxyModel::headerData(section, orientation, role);
}

void ProxyProcModel::fitColumns()
{
    const QAbstractItemView *measuring = view; // where sizeHintForColumn() is public
    fittedColumns->fit([&](int column, int widest) {
        const int processColumn = source->processColumn(column);
        view->header()->setResizeContentsPrecision(rowsToFit(processColumn));
        // The cells of the first one are indented differently.
        const bool isIndented = !isFlat() && column == view->header()->logicalIndex(0);
        delegate->beginColumn({widest, isNumeric(processColumn), isOrdered(processColumn) && !isIndented});
        const int width = measuring->sizeHintForColumn(column);
        delegate->endColumn();
        return width;
    });
}
