// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/generalpagefit.h"

#include "app/page.h"

#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabWidget>

namespace {

constexpr int frameHeight = 40;      ///< allowance for the window manager's frame, in pixels
constexpr int minimumTextLines = 20; ///< height of the scrolling page

/// Frameless scroll area around the page, vertical only and as wide as the page needs.
QScrollArea *scrollAreaAround(QWidget *page, int screenHeight)
{
    auto *area = new QScrollArea;
    area->setObjectName(QStringLiteral("generalScroll"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(page->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    // Without this minimum the window could become too flat for the chart and the graph of the other pages.
    area->setMinimumHeight(qMin(area->fontMetrics().lineSpacing() * minimumTextLines, screenHeight / 2));
    area->setWidget(page);
    // Shows the tab's background, as on the pages without a scroll area.
    page->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    return area;
}

/// Recomputes the size hints from the page up to the window: while the window is hidden, changes inside a tab
/// do not propagate.
void invalidateSizeHints(QMainWindow *window, QTabWidget *tabs, QWidget *page)
{
    page->layout()->activate();
    tabs->updateGeometry();
    window->centralWidget()->updateGeometry();
    window->layout()->activate();
}

} // namespace

void scrollGeneralPageIfTooHigh(QMainWindow *window, QTabWidget *tabs)
{
    QWidget *page = tabs->widget(GeneralPage);
    invalidateSizeHints(window, tabs, page);
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return;
    }
    const int screenHeight = screen->availableGeometry().height();
    if (window->minimumSizeHint().height() + frameHeight <= screenHeight) {
        return;
    }
    const QSignalBlocker blocker(tabs);
    const QString title = tabs->tabText(GeneralPage);
    tabs->removeTab(GeneralPage);
    tabs->insertTab(GeneralPage, scrollAreaAround(page, screenHeight), title);
    tabs->setCurrentIndex(GeneralPage);
    invalidateSizeHints(window, tabs, page);
}
