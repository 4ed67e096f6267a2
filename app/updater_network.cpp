// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"
#include "resources/netdevices.h"
#include "resources/timehisto.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollBar>

namespace {

/// The open list of a chooser; null while it is closed.
QAbstractItemView *openList(const QComboBox *chooser)
{
    const QWidget *popup = QApplication::activePopupWidget();
    return popup != nullptr && popup->parent() == chooser ? chooser->view() : nullptr;
}

/// Where the user is in the open list, by position as the choice itself.
struct ListPlace
{
    int highlighted; ///< -1 if no row is
    int scrolled;
};

ListPlace placeIn(const QAbstractItemView *list)
{
    return {list->currentIndex().row(), list->verticalScrollBar()->value()};
}

// A list that is filled anew has no row highlighted and begins at its top: without this, nobody could look
// for an entry, nor choose one by key, for longer than an update interval.
void restore(const ListPlace &place, QAbstractItemView *list)
{
    list->setCurrentIndex(list->model()->index(place.highlighted, 0));
    list->doItemsLayout();
    list->verticalScrollBar()->setValue(place.scrolled);
}

} // namespace

void Updater::refreshNetwork()
{
    netDevices = collectNetDevices();
    QAbstractItemView *const open = openList(ui.comboNet);
    const ListPlace place = open != nullptr ? placeIn(open) : ListPlace();
    ui.comboNet->clear();
    for (const NetRec &device : netDevices) {
        ui.comboNet->addItem(device.name);
    }
    if (open != nullptr) {
        restore(place, open);
    }
    // Meant: the choice is kept by its position in the list and not by its name.
    if (currentNetDevice != -1) {
        ui.comboNet->setCurrentIndex(currentNetDevice);
        setNetDevice(currentNetDevice);
    }
}

void Updater::setNetDevice(int index)
{
    if (index < 0 || index >= static_cast<int>(netDevices.size())) {
        return;
    }
    const NetRec device = netDevices[static_cast<std::size_t>(index)];
    if (index == currentNetDevice) {
        timeHisto->addValueIn(counterDelta(device.bytesIn, lastBytesIn));
        timeHisto->addValueOut(counterDelta(device.bytesOut, lastBytesOut));
    }
    lastBytesIn = device.bytesIn;
    lastBytesOut = device.bytesOut;
    if (index != currentNetDevice) {
        currentNetDevice = index;
        timeHisto->clear();
    }
    showNetDevice(device);
}

void Updater::showNetDevice(const NetRec &device)
{
    const NetTexts texts = netTexts(device);
    ui.netAdress->setText(texts.address);
    ui.netMask->setText(texts.mask);
    ui.netIn->setText(texts.in);
    ui.netOut->setText(texts.out);
    ui.netErrors->setText(texts.errors);
}
