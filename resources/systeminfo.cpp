// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/systeminfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <sys/utsname.h>
#include <unistd.h>

#include <array>

namespace {

QString unquoted(QString value)
{
    if (value.startsWith(QLatin1Char('"'))) {
        value.remove(0, 1);
    }
    if (value.endsWith(QLatin1Char('"'))) {
        value.chop(1);
    }
    return value;
}

/// Parses a file with `probe`. A file that can't be opened reads as empty, and so does anything but a regular
/// file, since opening a pipe would block until it has a writer.
QString probeFile(const QString &path, QString (*probe)(QTextStream &))
{
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        QTextStream nothing{QByteArray()};
        return probe(nothing);
    }
    QTextStream text(&file);
    text.setCodec("UTF-8");
    return probe(text);
}

} // namespace

QString hostName()
{
    std::array<char, 4000> buffer{};
    // Intentional: failures are ignored and the buffer is read as it is. Its last byte always stays zero.
    (void)!gethostname(buffer.data(), buffer.size() - 1);
    const QByteArray host(buffer.data());
    (void)!getdomainname(buffer.data(), buffer.size() - 1);
    return joinHostAndDomain(host, QByteArray(buffer.data()));
}

QString joinHostAndDomain(const QByteArray &host, const QByteArray &domain)
{
    QString name = QString::fromUtf8(host.constData());
    if (qstrcmp(domain.constData(), "(none)") == 0) {
        return name;
    }
    // Intentional: an empty domain leaves a trailing ".".
    return name + QLatin1Char('.') + QString::fromUtf8(domain.constData());
}

QString osDescription(const QString &path)
{
    return probeFile(path, osDescriptionFromText);
}

QString osDescriptionFromText(QTextStream &text)
{
    QString description = QCoreApplication::translate("Updater", "Unknown OS");
    for (QString line = text.readLine(); !line.isNull(); line = text.readLine()) {
        line = line.trimmed();
        if (line.startsWith(QLatin1String("DISTRIB_DESCRIPTION"))) {
            description = unquoted(line.section(QLatin1Char('='), 1, 1));
        }
    }
    return description;
}

QString cpuModel(const QString &path)
{
    return probeFile(path, cpuModelFromText);
}

QString cpuModelFromText(QTextStream &text)
{
    // Intentional: unlike the lines of lsb-release these are not trimmed, so an indented one doesn't match.
    for (QString line = text.readLine(); !line.isNull(); line = text.readLine()) {
        if (line.startsWith(QLatin1String("model name"))) {
            return line.section(QLatin1Char(':'), 1, 1).simplified();
        }
    }
    return QStringLiteral("Unknown CPU");
}

KernelFacts kernelFacts()
{
    utsname facts{};
    uname(&facts);
    return {QString::fromLatin1(facts.release), QString::fromLatin1(facts.machine)};
}
