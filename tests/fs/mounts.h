// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_FS_MOUNTS_H
#define TESTS_FS_MOUNTS_H

#include "fs/fsmodel.h"

#include <QStringList>

#include <list>
#include <random>

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

/// Device, mount point and type: "/dev/a, /a, ext4".
inline QString namesOf(const FSInfo &info)
{
    return QStringList{info.device, info.mountDir, info.type}.join(QStringLiteral(", "));
}

/// Blocks, free blocks, available blocks, files and block size.
inline QVector<qint32> countsOf(const FSInfo &info)
{
    return {info.blocks, info.freeBlocks, info.availBlocks, info.files, info.blockSize};
}

/// Mounts by letters: "ab" is device /dev/a on /a and /dev/b on /b, "a>x" is /dev/a on /x.
inline std::list<FSInfo> mounts(const char *letters)
{
    std::list<FSInfo> list;
    for (const char *device = letters; *device != '\0'; ++device) {
        const bool elsewhere = device[1] == '>';
        const char *dir = elsewhere ? device + 2 : device;
        list.push_back(mount(QString("/dev/%1").arg(*device), QString("/%1").arg(*dir)));
        device = dir;
    }
    return list;
}

/// At most `most` mounts, with the first `names` letters for devices and mount points.
inline std::list<FSInfo> randomMounts(std::mt19937 &random, int names, int most)
{
    std::uniform_int_distribution<int> name('a', 'a' + names - 1);
    std::uniform_int_distribution<int> length(0, most);
    std::list<FSInfo> list;
    for (int left = length(random); left > 0; --left) {
        const char mounted[] = {static_cast<char>(name(random)), '>', static_cast<char>(name(random)), '\0'};
        list.splice(list.end(), mounts(mounted));
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

/// The texts of the first column from top to bottom: "/a /b".
inline QString shownDirs(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts << model.index(row, 0).data().toString();
    }
    return texts.join(QLatin1Char(' '));
}

#endif
