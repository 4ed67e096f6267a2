// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pagescroll.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScrollBar>

namespace {

constexpr int leastTextLines = 4;

/// Recomputes the size hints from the page up to the window: while the window is hidden, changes inside a tab
/// do not propagate.
void invalidateSizeHints(QMainWindow *window, QWidget *page)
{
    for (QWidget *widget = page; widget && widget != window; widget = widget->parentWidget()) {
        if (widget->layout()) {
            widget->layout()->activate();
        }
        widget->updateGeometry();
    }
    window->layout()->activate();
}

} // namespace

PageScroll::PageScroll(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PageScroll::makeTransparent()
{
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize PageScroll::minimumSizeHint() const
{
    const int contentsWidth = widget() ? widget()->minimumSizeHint().width() : 0;
    return {contentsWidth + verticalScrollBar()->sizeHint().width(),
            fontMetrics().lineSpacing() * leastTextLines};
}

bool PageScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

int heightForWholePage(QMainWindow *window, PageScroll *page)
{
    invalidateSizeHints(window, page->widget()); // the hints so far are those without the rows of the CPUs
    page->setMinimumHeight(page->widget()->minimumSizeHint().height());
    invalidateSizeHints(window, page->widget());
    const int height = window->minimumSizeHint().height();
    page->setMinimumHeight(0);
    invalidateSizeHints(window, page->widget());
    return height;
}
