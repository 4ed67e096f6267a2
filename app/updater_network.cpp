// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/netchooser.h"
#include "app/pageintervals.h"
#include "app/updater.h"
#include "resources/netdevices.h"
#include "resources/timehisto.h"

void Updater::buildNetworkPage()
{
    // On a machine without interfaces nothing would replace the form's placeholder texts.
    for (QLabel *label : {ui.netAdress, ui.netMask, ui.netIn, ui.netOut, ui.netErrors}) {
        label->clear();
    }
    timeHisto = new TimeHisto(ui.frame, intervals->interval(NetworkPage));
    ui.ltTimeHisto->addWidget(timeHisto);
}

void Updater::refreshNetwork()
{
    netDevices = collectNetDevices();
    fillNetChooser(ui.comboNet, netDevices);
    // Intentional: the current interface is kept by its position in the list, not by name, so it may become
    // another one when interfaces come or go.
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
    } else {
        currentNetDevice = index;
        timeHisto->clear();
    }
    lastBytesIn = device.bytesIn;
    lastBytesOut = device.bytesOut;
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
