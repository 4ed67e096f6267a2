// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_LISTMENUTRIGGER_H
#define APP_LISTMENUTRIGGER_H

#include <QObject>
#include <QPoint>

class QTreeView;

/// Watches how the context menu of a list is asked for. A right press on empty space clears the selection, so
/// that the menu offers nothing for a row that the user did not point at.
class ListMenuTrigger : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the view.
    explicit ListMenuTrigger(QTreeView *view);

    /// Where the menu opens, in global coordinates: at the mouse, or, if a key asked for it, at the selected
    /// row, which is scrolled into view.
    QPoint position() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTreeView *list;
    bool byKeyboard = false;
};

#endif
