// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/fsitem.h"

#include "fs/sizetostr.h"

FSItem::FSItem(const FSInfo &info)
{
    setItem(info);
}

void FSItem::setItem(const FSInfo &info)
{
    cells.clear();
    cells << info.mountDir << info.type << info.device
          << sizeToStr(blocksToBytes(info.blocks, info.blockSize))
          << sizeToStr(blocksToBytes(info.freeBlocks, info.blockSize))
          << sizeToStr(blocksToBytes(info.availBlocks, info.blockSize)) << info.files;
    item = info;
}
