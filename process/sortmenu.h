// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_SORTMENU_H
#define PROCESS_SORTMENU_H

#include <QMenu>

class ProxyProcModel;
class QActionGroup;

/// Sorts the process list by keyboard: the visible columns, the present one checked, and the two orders.
class SortMenu : public QMenu
{
    Q_OBJECT

public:
    /// `proxy` is not owned and must outlive this menu.
    explicit SortMenu(ProxyProcModel *proxy, QWidget *parent = nullptr);

private Q_SLOTS:
    void showState();
    void sortByChecked();

private:
    ProxyProcModel *list;
    QActionGroup *columns;
    QActionGroup *orders;
};

#endif
