// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/zarninit.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace {

/// The untranslated description, the source text that zarnDescription() looks up in the catalogues.
QByteArray &sourceDescription()
{
    static QByteArray text;
    return text;
}

} // namespace

void zarnInit(const char *version, const char *description)
{
    QCoreApplication::setApplicationVersion(QString::fromUtf8(version));
    sourceDescription() = description;
}

QString zarnVersion()
{
    return QCoreApplication::applicationVersion();
}

QString zarnDescription()
{
    return QCoreApplication::translate("ZarnHelpMenu", sourceDescription().constData());
}
