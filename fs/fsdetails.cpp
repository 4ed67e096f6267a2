// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/fsdetails.h"

#include "fs/sizetostr.h"

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

} // namespace

FsDetails fsDetails(const FSInfo &info)
{
    return {percentAvailable(info),
            info.device,
            info.type,
            sizeText(info.blocks, info.blockSize),
            sizeText(usedBlocks(info), info.blockSize),
            sizeText(info.availBlocks, info.blockSize)};
}
