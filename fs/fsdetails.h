// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FS_FSDETAILS_H
#define FS_FSDETAILS_H

#include "fs/mountlist.h"

/// What the details panel shows for one file system.
struct FsDetails
{
    double percentAvailable; ///< share available to ordinary users; NaN if there are no blocks
    QString device;          ///< as one harmless line, and so is the type
    QString type;
    QString total; ///< size text; that there is no answer, and no other sizes, if there never was one
    QString used;  ///< size text of what ordinary users can't fill, including the superuser's reserve
    QString avail; ///< size text
};

/// The details of `info`. An empty record yields empty names, sizes of "0.00 B" and NaN.
FsDetails fsDetails(const FSInfo &info);

#endif
