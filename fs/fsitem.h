// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_FSITEM_H
#define FS_FSITEM_H

#include "fs/mountlist.h"

#include <QList>
#include <QVariant>

/// One row of the file system model.
class FSItem
{
public:
    explicit FSItem(const FSInfo &info);

    /// Makes the row show `info` from now on.
    void setItem(const FSInfo &info);

    /// The values by column: mount point, type, device, then total, free and available space as size
    /// texts, then the number of file nodes as an integer.
    QList<QVariant> cells;
    /// What the cells were made from.
    FSInfo item;
};

#endif
