// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/fsdetails.h"

#include "fs/sizetostr.h"
#include "text/oneline.h"

#include <QCoreApplication>

#include <limits>

namespace {

double percentAvailable(const FSInfo &info)
{
    if (info.blocks == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return info.availBlocks * 100.0 / info.blocks;
}

/// Wraps at 32 bits, as the counts do. Intentional: the free blocks play no part.
qint32 usedBlocks(const FSInfo &info)
{
    return static_cast<qint32>(static_cast<quint32>(info.blocks) - static_cast<quint32>(info.availBlocks));
}

QString sizeText(qint32 blocks, qint32 blockSize)
{
    return sizeToStr(static_cast<double>(blocks) * static_cast<double>(blockSize));
}

/// As short as a size, so that it moves nothing.
QString noAnswer()
{
    return QCoreApplication::translate("FsDetails", "No answer");
}

} // namespace

FsDetails fsDetails(const FSInfo &info)
{
    const QString device = oneLine(info.device.toUtf8());
    const QString type = oneLine(info.type.toUtf8());
    if (!info.answers) {
        return {percentAvailable(info), device, type, noAnswer(), {}, {}};
    }
    return {percentAvailable(info),
            device,
            type,
            sizeText(info.blocks, info.blockSize),
            sizeText(usedBlocks(info), info.blockSize),
            sizeText(info.availBlocks, info.blockSize)};
}
