// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/listmenutrigger.h"

#include "process/listplace.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTreeView>

namespace {

bool isRightPressOnEmptySpace(const QTreeView *list, const QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress) {
        return false;
    }
    const auto *press = static_cast<const QMouseEvent *>(event);
    return press->button() == Qt::RightButton && !list->indexAt(press->pos()).isValid();
}

} // namespace

ListMenuTrigger::ListMenuTrigger(QTreeView *view) : QObject(view), list(view)
{
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
}

QPoint ListMenuTrigger::position() const
{
    const QModelIndex row = selectedRow(*list);
    if (!byKeyboard || !row.isValid()) {
        return QCursor::pos();
    }
    list->scrollTo(row);
    const QRect cell = list->visualRect(row) & list->viewport()->rect();
    return list->viewport()->mapToGlobal(cell.bottomLeft());
}

bool ListMenuTrigger::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ContextMenu) {
        byKeyboard = static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard;
    } else if (watched != list && isRightPressOnEmptySpace(list, event)) {
        list->selectionModel()->clear();
    }
    return false;
}
