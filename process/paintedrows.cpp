// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/paintedrows.h"

#include "process/proxyprocmodel.h"

#include <QBackingStore>
#include <QHeaderView>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTreeView>
#include <QVector>

#include <utility>

namespace {

using Widgets = QVector<QPointer<QWidget>>;

/// The view and what is in it: viewport, header, scroll bars.
Widgets partsOf(QTreeView *view)
{
    Widgets parts{view};
    for (QWidget *part : view->findChildren<QWidget *>()) {
        if (!part->isWindow()) { // not a tool tip
            parts.append(part);
        }
    }
    return parts;
}

/// Drops the updates of widgets. After setUpdatesEnabled() Qt would repaint all of them.
class DroppedUpdates
{
public:
    explicit DroppedUpdates(const Widgets &widgets)
    {
        for (QWidget *widget : widgets) {
            if (widget->updatesEnabled()) {
                widget->setAttribute(Qt::WA_UpdatesDisabled);
                dropping.append(widget);
            }
        }
    }
    ~DroppedUpdates()
    {
        for (const QPointer<QWidget> &widget : dropping) {
            if (widget) {
                widget->setAttribute(Qt::WA_UpdatesDisabled, false);
            }
        }
    }

private:
    Q_DISABLE_COPY(DroppedUpdates)

    Widgets dropping;
};

/// Where the style draws the slider of a vertical scroll bar.
QRect sliderOf(const QScrollBar *bar)
{
    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = Qt::Vertical;
    option.minimum = bar->minimum();
    option.maximum = bar->maximum();
    option.pageStep = bar->pageStep();
    option.sliderPosition = option.sliderValue = bar->value();
    return bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar);
}

/// And not on a picture of the window.
bool isOnScreen(const QPainter &painter, const QWidget &widget)
{
    const QBackingStore *store = widget.backingStore();
    return store && painter.paintEngine()->paintDevice() == const_cast<QBackingStore *>(store)->paintDevice();
}

} // namespace

PaintedRows::PaintedRows(const ProxyProcModel *model, QTreeView *view, TextOf textOfCell)
    : QObject(view), proxy(model), list(view), textOf(std::move(textOfCell))
{
    list->viewport()->installEventFilter(this);
    list->header()->viewport()->installEventFilter(this);
}

void PaintedRows::repaintChanges(const std::function<void()> &change)
{
    const Numbers before = frameLook();
    QScrollBar *bar = list->verticalScrollBar();
    const QRect sliderBefore = sliderOf(bar);
    Numbers after;
    {
        const DroppedUpdates dropped(partsOf(list));
        change();
        after = frameLook(); // also lets the header do what it would put off, and update itself
    }
    if (after != before) {
        for (QWidget *part : partsOf(list)) {
            part->update();
        }
    } else if (list->viewport()->isVisible()) {
        if (sliderOf(bar) != sliderBefore) { // a row more or less mostly moves it by less than a pixel
            bar->update();
        }
        list->viewport()->update(changedRegion());
    }
}

bool PaintedRows::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint) {
        return false;
    }
    const QRegion &region = static_cast<const QPaintEvent *>(event)->region();
    if (watched == list->viewport()) {
        painted = region;
        isNoted = false;
        notedRow = nullptr;
        isKnown = isKnown && !isBeingPainted(list->viewport()->rect());
    } else {
        repairHeader(region);
    }
    return false;
}

/// When Qt paints a section of the header by itself, it can miss the line beside it.
void PaintedRows::repairHeader(const QRegion &region)
{
    QWidget *header = list->header()->viewport();
    const bool isWhole = header->visibleRegion().subtracted(region).isEmpty();
    const bool isRepair = std::exchange(isRepairingHeader, !isWhole);
    if (!isWhole && !isRepair) {
        header->update();
    }
}

bool PaintedRows::isBeingPainted(const QRect &rect) const
{
    const QRect visible = rect & list->viewport()->rect();
    return QRegion(visible).subtracted(painted).isEmpty();
}

bool PaintedRows::isWanted(const QPainter &painter, const QStyleOptionViewItem &cell) const
{
    return painter.device() != list->viewport() || painted.intersects(cell.rect);
}

void PaintedRows::note(const QPainter &painter, const QStyleOptionViewItem &cell, const QModelIndex &index)
{
    if (painter.device() != list->viewport() || !isOnScreen(painter, *list)) {
        return;
    }
    const bool isFirst = !std::exchange(isNoted, true);
    if (isFirst && isBeingPainted(list->viewport()->rect())) {
        rows.clear();
        frame = frameLook();
        isKnown = true;
    } else if (isFirst) {
        isKnown = isKnown && frame == frameLook();
    }
    if (!isKnown) {
        return;
    }
    Row &row = noteRow(cell, index);
    Cell &known = row.cells.at(static_cast<std::size_t>(index.column()));
    if (isBeingPainted(cell.rect)) {
        known = {cell.rect, cell.text};
    } else {
        isKnown = isKnown && known.text == cell.text;
    }
    if (cell.state & QStyle::State_MouseOver) {
        row.look.clear(); // where the mouse is then, only the view knows
    }
}

PaintedRows::Row &PaintedRows::noteRow(const QStyleOptionViewItem &cell, const QModelIndex &index)
{
    Row &row = rows[cell.rect.top()];
    if (&row == notedRow) {
        return row;
    }
    notedRow = &row;
    row.cells.resize(static_cast<std::size_t>(proxy->columnCount()));
    Numbers look = rowLook(index, cell.rect.height());
    if (isBeingPainted(rowRect(cell.rect))) {
        row.look = std::move(look);
    } else {
        isKnown = row.look == look;
    }
    return row;
}

/// Of the row of a cell.
QRect PaintedRows::rowRect(const QRect &cell) const
{
    return QRect(0, cell.top(), list->viewport()->width(), cell.height());
}

/// All that a refresh can change around the rows; texts and colors of the header are not part of it.
PaintedRows::Numbers PaintedRows::frameLook() const
{
    const QHeaderView *header = list->header();
    Numbers look{list->indentation(), list->rootIsDecorated(), list->layoutDirection(),
                 header->sortIndicatorSection(), header->sortIndicatorOrder()};
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        look.insert(look.end(),
                    {column, header->sectionViewportPosition(column), header->sectionSize(column)});
    }
    for (const QWidget *part : partsOf(list)) {
        look.insert(look.end(), {part->isVisible(), part->x(), part->y(), part->width(), part->height()});
        if (const auto *bar = qobject_cast<const QScrollBar *>(part)) {
            look.push_back(bar->value());
        }
    }
    return look;
}

PaintedRows::Numbers PaintedRows::rowLook(const QModelIndex &cell, int height) const
{
    const QModelIndex row = cell.siblingAtColumn(0);
    const QModelIndex current = list->currentIndex();
    Numbers look{proxy->pidAt(row), height, row.data(ProxyProcModel::AncestorOnlyRole).toBool(),
                 current.siblingAtColumn(0) == row ? current.column() : -1};
    if (list->selectionModel()->hasSelection()) {
        for (int column = 0; column < proxy->columnCount(); ++column) {
            look.push_back(list->selectionModel()->isSelected(row.siblingAtColumn(column)));
        }
    }
    if (!proxy->isFlat()) {
        look.insert(look.end(), {list->isExpanded(row), proxy->hasChildren(row)});
    }
    // The lines of the branches: whether there are more rows below, on each level.
    for (QModelIndex above = row; above.isValid(); above = above.parent()) {
        look.push_back(above.row() + 1 < proxy->rowCount(above.parent()));
    }
    return look;
}

/// Of the viewport, after the view was laid out.
QRegion PaintedRows::changedRegion()
{
    const QRect viewport = list->viewport()->rect();
    QModelIndex index = list->indexAt(QPoint(0, 0)); // also lays out what has changed since
    if (!isKnown || frame != frameLook()) {
        return viewport;
    }
    QRegion changed;
    std::map<int, Row> remaining;
    int end = viewport.top();
    for (; index.isValid() && end < viewport.bottom(); index = list->indexBelow(index)) {
        const QRect rect = rowRect(list->visualRect(index));
        const auto known = rows.find(rect.top());
        if (known == rows.end()) {
            changed += rect;
        } else {
            changed += changedCells(known->second, index, rect);
            remaining.insert(rows.extract(known));
        }
        end = rect.bottom() + 1;
    }
    if (!rows.empty()) {
        changed += QRect(QPoint(viewport.left(), end), viewport.bottomRight());
    }
    rows = std::move(remaining);
    return changed;
}

QRegion PaintedRows::changedCells(const Row &row, const QModelIndex &index, const QRect &rect) const
{
    if (row.look != rowLook(index, rect.height())) {
        return rect;
    }
    QRegion changed;
    for (int column = 0; column < static_cast<int>(row.cells.size()); ++column) {
        const Cell &cell = row.cells[static_cast<std::size_t>(column)];
        if (!cell.rect.isNull() && cell.text != textOf(index.siblingAtColumn(column))) {
            changed += cell.rect;
        }
    }
    return changed;
}
