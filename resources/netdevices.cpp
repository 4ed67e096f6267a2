// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/netdevices.h"

#include "fs/sizetostr.h"

#include <arpa/inet.h>
#include <glib.h>
#include <glibtop/netlist.h>
#include <glibtop/netload.h>

#include <algorithm>

namespace {

NetReading readNetDevice(const char *name)
{
    glibtop_netload load{};
    glibtop_get_netload(&load, name);
    return {name, load.address, load.subnet, load.bytes_in, load.bytes_out, load.errors_total};
}

NetRec netRecord(const NetReading &reading)
{
    return {QString::fromUtf8(reading.name),
            reading.address,
            reading.subnet,
            reading.bytesIn,
            reading.bytesOut,
            static_cast<quint32>(reading.errorsTotal)};
}

} // namespace

std::vector<NetReading> readNetDevices()
{
    glibtop_netlist list{};
    char **names = glibtop_get_netlist(&list);
    std::vector<NetReading> readings;
    // Stops at the terminating null instead of list.number, since that also covers a missing list.
    for (char **name = names; name && *name; ++name) {
        readings.push_back(readNetDevice(*name));
    }
    g_strfreev(names);
    return readings;
}

std::vector<NetRec> netRecords(const std::vector<NetReading> &readings)
{
    std::vector<NetRec> records(readings.size());
    std::transform(readings.begin(), readings.end(), records.begin(), netRecord);
    std::stable_sort(records.begin(), records.end(),
                     [](const NetRec &left, const NetRec &right) { return left.name < right.name; });
    return records;
}

std::vector<NetRec> collectNetDevices()
{
    return netRecords(readNetDevices());
}

quint32 counterDelta(quint64 now, quint64 last)
{
    return static_cast<quint32>(now - last);
}

QString dottedAddress(quint32 address)
{
    const in_addr wrapped = {address};
    return QString::fromLatin1(inet_ntoa(wrapped)); // null yields an empty text
}

NetTexts netTexts(const NetRec &record)
{
    return {dottedAddress(record.address), dottedAddress(record.subnet), sizeToStr(record.bytesIn),
            sizeToStr(record.bytesOut), QString::number(record.errors)};
}
