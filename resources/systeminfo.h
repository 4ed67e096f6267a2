// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_SYSTEMINFO_H
#define RESOURCES_SYSTEMINFO_H

#include <QByteArray>
#include <QString>

class QTextStream;

// Static facts about the machine. No probe reports an error: each has a fallback for what can't be read.

/// This host's name and domain, from gethostname(2) and getdomainname(2), as joined by joinHostAndDomain().
QString hostName();

/// Joins host and domain, both UTF-8 up to their first NUL, to "host.domain". Only a domain of exactly
/// "(none)" yields the bare host.
QString joinHostAndDomain(const QByteArray &host, const QByteArray &domain);

/// The distribution's description from a file in the format of /etc/lsb-release; the translated "Unknown OS"
/// if `path` is no readable regular file or has no such line.
QString osDescription(const QString &path = QStringLiteral("/etc/lsb-release"));

/// Parses the text of such a file, to its end: the last matching line wins.
QString osDescriptionFromText(QTextStream &text);

/// The first CPU's model from a file in the format of /proc/cpuinfo; "Unknown CPU", which is never
/// translated, if `path` is no readable regular file or has no such line.
QString cpuModel(const QString &path = QStringLiteral("/proc/cpuinfo"));

/// Parses the text of such a file, no further than the first matching line.
QString cpuModelFromText(QTextStream &text);

/// The running kernel, from uname(2).
struct KernelFacts
{
    QString release; ///< for example "6.1.0-13-amd64"
    QString machine; ///< architecture, for example "x86_64"
};

/// Both texts are empty if uname(2) fails.
KernelFacts kernelFacts();

#endif
