// SPDX-License-Identifier: GPL-3.0-or-later
// The static facts of the machine. No probe reports an error: what can't be read has a fallback text.
#ifndef RESOURCES_SYSTEMINFO_H
#define RESOURCES_SYSTEMINFO_H

#include <QByteArray>
#include <QString>

class QTextStream;

// Name and domain of this host as gethostname(2) and getdomainname(2) give them, joined.
QString hostName();

// Host and domain, both UTF-8 up to their first zero byte, as "host.domain". Only a domain of exactly
// "(none)" leaves the host alone.
QString joinHostAndDomain(const QByteArray &host, const QByteArray &domain);

// The distribution's description in a file of the form of /etc/lsb-release; the translated "Unknown OS"
// without such a regular file or without such a line.
QString osDescription(const QString &path = QStringLiteral("/etc/lsb-release"));

// The same for text at hand. Reads to the end: the last matching line wins.
QString osDescriptionFromText(QTextStream &text);

// The model of the first CPU in a file of the form of /proc/cpuinfo; "Unknown CPU", never translated,
// without such a regular file or without such a line.
QString cpuModel(const QString &path = QStringLiteral("/proc/cpuinfo"));

// The same for text at hand. Reads no further than the first matching line.
QString cpuModelFromText(QTextStream &text);

// What uname(2) says of the running kernel; both empty if it fails.
struct KernelFacts
{
    QString release; // "6.1.0-13-amd64"
    QString machine; // the architecture: "x86_64"
};
KernelFacts kernelFacts();

#endif
