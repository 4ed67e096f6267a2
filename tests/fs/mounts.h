// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_FS_MOUNTS_H
#define TESTS_FS_MOUNTS_H

#include "fs/fsmodel.h"

#include <QStringList>

#include <list>

/// A made-up mount of 1000 blocks of 4096 bytes, 400 of them free and 300 available.
inline FSInfo mount(const QString &device, const QString &mountDir,
                    const QString &type = QStringLiteral("ext4"))
{
    FSInfo info;
    info.device = device;
    info.mountDir = mountDir;
    info.type = type;
    info.blocks = 1000;
    info.freeBlocks = 400;
    info.availBlocks = 300;
    info.files = 50;
    info.blockSize = 4096;
    return info;
}

/// One mount per letter: device "/dev/a" on "/a" for 'a'.
inline std::list<FSInfo> mounts(const char *letters)
{
    std::list<FSInfo> list;
    for (const char *letter = letters; *letter != '\0'; ++letter) {
        const QLatin1String name(letter, 1);
        list.push_back(mount(QLatin1String("/dev/") + name, QLatin1String("/") + name));
    }
    return list;
}

/// `count` mounts with numbered names.
inline std::list<FSInfo> manyMounts(int count)
{
    std::list<FSInfo> list;
    for (int i = 0; i < count; ++i) {
        list.push_back(mount(QStringLiteral("/dev/disk%1").arg(i), QStringLiteral("/mnt/%1").arg(i)));
    }
    return list;
}

/// The texts of one column from top to bottom.
inline QStringList columnTexts(const QAbstractItemModel &model, int column = 0)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts << model.index(row, column).data().toString();
    }
    return texts;
}

#endif
