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

    /// Replaces the row's contents by those of `info`.
    void setItem(const FSInfo &info);

    /// Values by column: mount point, type, device, each as one harmless line; size texts of total, free and
    /// available space; the number of file nodes as an integer.
    QList<QVariant> cells;
    /// The record that the cells were made from.
    FSInfo item;
};

#endif
