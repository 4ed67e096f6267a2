// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_NETDEVICES_H
#define RESOURCES_NETDEVICES_H

#include <QByteArray>
#include <QString>

#include <vector>

/// One network interface, with its totals since it came up.
struct NetRec
{
    QString name;
    quint32 address = 0; ///< IPv4, network byte order; 0 without one
    quint32 subnet = 0;  ///< net mask, network byte order; 0 without one
    quint64 bytesIn = 0;
    quint64 bytesOut = 0;
    quint32 errors = 0; ///< of both directions, truncated to 32 bits
};

/// One interface as reported by libgtop (a name of glibtop_netlist and fields of glibtop_netload).
struct NetReading
{
    QByteArray name; ///< raw bytes; the kernel permits anything but '/', ':', white space and NUL
    quint32 address = 0;
    quint32 subnet = 0;
    quint64 bytesIn = 0;
    quint64 bytesOut = 0;
    quint64 errorsTotal = 0;
};

/// The interfaces in the system's order. One that disappears while being read is listed with zeros.
std::vector<NetReading> readNetDevices();

/// Converts `readings` to records, stably sorted by name in code-unit order, case-sensitive. Invalid UTF-8 in
/// a name is decoded to replacement characters.
std::vector<NetRec> netRecords(const std::vector<NetReading> &readings);

/// The current interfaces of this machine, sorted by name.
std::vector<NetRec> collectNetDevices();

/// The increase of a byte counter since `last`, truncated to 32 bits. Intentional: a counter that decreased
/// wraps to a huge difference, so the reset of an interface shows as a peak.
quint32 counterDelta(quint64 now, quint64 last);

/// Formats `address` (IPv4, network byte order) with inet_ntoa(3); "0.0.0.0" for 0.
QString dottedAddress(quint32 address);

/// Texts of the Network page's labels.
struct NetTexts
{
    QString address; ///< dotted
    QString mask;    ///< dotted
    QString in;      ///< size text of the total, not a rate
    QString out;     ///< size text of the total, not a rate
    QString errors;  ///< decimal
};

/// The label texts for `record`.
NetTexts netTexts(const NetRec &record);

#endif
