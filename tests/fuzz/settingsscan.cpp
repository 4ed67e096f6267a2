// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "app/storedsettings.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

namespace {

/// Whether the toolkit creates the value without deserializing anything.
bool isPlain(const QVariant &value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::UnknownType:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QRect:
    case QMetaType::QSize:
    case QMetaType::QPoint:
        return true;
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), isPlain);
    }
    default:
        return false;
    }
}

} // namespace

/// Lets the toolkit read every file that passes as safe.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    static int files = 0;
    const QByteArray content = bytesOf(data, size);
    if (holdsSerializedObject(content)) {
        return 0;
    }
    // A new name each time: the toolkit caches files by name, size and time.
    const QString path = folder.filePath(QString::number(++files));
    QFile file(path);
    HOLDS(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    {
        const QSettings settings(path, QSettings::IniFormat);
        const QStringList keys = settings.allKeys();
        HOLDS(std::all_of(keys.begin(), keys.end(),
                          [&](const QString &key) { return isPlain(settings.value(key)); }));
    }
    QFile::remove(path);
    return 0;
}
