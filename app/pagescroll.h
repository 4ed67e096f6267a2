// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_PAGESCROLL_H
#define APP_PAGESCROLL_H

#include <QScrollArea>

class QMainWindow;

/// Lets a page of the window be lower than its contents: scrolls vertically when it is, and is otherwise not
/// to be seen. It is always as wide as the contents need.
class PageScroll : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageScroll(QWidget *parent = nullptr);

    /// Lets the background of the tab show through. To be called once the contents are set.
    void makeTransparent();

    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// Height that `window`, which may still be hidden, needs to show the whole page: its minimum if the page
/// could not scroll. QTabWidget asks for two pixels more than it uses.
int heightForWholePage(QMainWindow *window, PageScroll *page);

#endif
