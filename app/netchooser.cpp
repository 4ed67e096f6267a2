// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/netchooser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QScrollBar>

namespace {

/// The open list of a chooser; null while it is closed.
QAbstractItemView *openList(const QComboBox *chooser)
{
    const QWidget *popup = QApplication::activePopupWidget();
    return popup && popup->parent() == chooser ? chooser->view() : nullptr;
}

/// The user's place in the open list, by position like the current interface.
struct ChooserPlace
{
    int highlighted; ///< row; -1 if none
    int scrolled;    ///< value of the vertical scroll bar
};

ChooserPlace placeIn(const QAbstractItemView *list)
{
    return {list->currentIndex().row(), list->verticalScrollBar()->value()};
}

/// Refilling a list clears its highlight and scrolls it to the top. Without this, no entry could be searched
/// for or chosen by keyboard for longer than one update interval.
void restorePlace(const ChooserPlace &place, QAbstractItemView *list)
{
    list->setCurrentIndex(list->model()->index(place.highlighted, 0));
    list->doItemsLayout();
    list->verticalScrollBar()->setValue(place.scrolled);
}

} // namespace

void fillNetChooser(QComboBox *chooser, const std::vector<NetRec> &devices)
{
    QAbstractItemView *open = openList(chooser);
    const ChooserPlace place = open ? placeIn(open) : ChooserPlace();
    chooser->clear();
    for (const NetRec &device : devices) {
        chooser->addItem(device.name);
    }
    if (open) {
        restorePlace(place, open);
    }
}
