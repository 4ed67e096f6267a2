// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/fsitem.h"

#include "fs/sizetostr.h"
#include "text/oneline.h"

FSItem::FSItem(const FSInfo &info)
{
    setItem(info);
}

void FSItem::setItem(const FSInfo &info)
{
    cells.clear();
    cells << oneLine(info.mountDir.toUtf8()) << oneLine(info.type.toUtf8()) << oneLine(info.device.toUtf8())
          << sizeToStr(blocksToBytes(info.blocks, info.blockSize))
          << sizeToStr(blocksToBytes(info.freeBlocks, info.blockSize))
          << sizeToStr(blocksToBytes(info.availBlocks, info.blockSize)) << info.files;
    item = info;
}
