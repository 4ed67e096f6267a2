// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_FSDETAILS_H
#define FS_FSDETAILS_H

#include "fs/mountlist.h"

/// What the details panel says of one file system.
struct FsDetails
{
    double percentAvailable; ///< share that ordinary users may fill, in percent; NaN without blocks
    QString device;
    QString type;
    QString total; ///< size text
    QString used;  ///< size text of all that ordinary users may not fill, the superuser's reserve included
    QString avail; ///< size text
};

/// The details of `info`. An empty record gives empty names, sizes of "0.00 B" and no share.
FsDetails fsDetails(const FSInfo &info);

#endif
