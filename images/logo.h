// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef IMAGES_LOGO_H
#define IMAGES_LOGO_H

#include <QPixmap>

/// The picture ":/images/diobin_logo.png", decoded when the program was built: decoding it, and looking for
/// the plugins of other image formats first, would take a millisecond of each start.
QPixmap logo();

#endif
