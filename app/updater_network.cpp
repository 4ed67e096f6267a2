// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/updater.h"
#include "resources/netdevices.h"
#include "resources/timehisto.h"

void Updater::refreshNetwork()
{
    netDevices = collectNetDevices();
    ui.comboNet->clear();
    for (const NetRec &device : netDevices) {
        ui.comboNet->addItem(device.name);
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
