// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_NETDEVICES_H
#define RESOURCES_NETDEVICES_H

#include <QByteArray>
#include <QString>

#include <vector>

/// One network interface with its totals since it came up.
struct NetRec
{
    QString name;
    quint32 address = 0; ///< IPv4, network byte order; 0 without one
    quint32 subnet = 0;  ///< net mask, network byte order; 0 without one
    quint64 bytesIn = 0;
    quint64 bytesOut = 0;
    quint32 errors = 0; ///< of both directions, cut to 32 bits
};

/// One interface as libgtop reports it (glibtop_netlist and the fields of glibtop_netload).
struct NetReading
{
    QByteArray name; ///< raw bytes; the kernel allows all but '/', ':', white space and NUL
    quint32 address = 0;
    quint32 subnet = 0;
    quint64 bytesIn = 0;
    quint64 bytesOut = 0;
    quint64 errorsTotal = 0;
};

/// The interfaces in the order the system lists them; empty when it lists none. One that vanishes
/// meanwhile is listed with zeros.
std::vector<NetReading> readNetDevices();

/// The records of `readings`, sorted by name in code-unit order, case-sensitive; equal names keep their
/// order. Bytes of a name that are not UTF-8 become replacement characters.
std::vector<NetRec> netRecords(const std::vector<NetReading> &readings);

/// The machine's interfaces now, sorted by name.
std::vector<NetRec> collectNetDevices();

/// What a byte counter has gained since `last`, cut to 32 bits. A counter that fell back is meant to give
/// the huge difference of unsigned arithmetic: an interface reset shows as a peak.
quint32 counterDelta(quint64 now, quint64 last);

/// `address` (IPv4, network byte order) as inet_ntoa(3) writes it, "0.0.0.0" for 0.
QString dottedAddress(quint32 address);

/// The texts of the Network page's labels.
struct NetTexts
{
    QString address; ///< dotted
    QString mask;    ///< dotted
    QString in;      ///< size text of the total, not a rate
    QString out;     ///< size text of the total, not a rate
    QString errors;  ///< decimal
};

NetTexts netTexts(const NetRec &record);

#endif
