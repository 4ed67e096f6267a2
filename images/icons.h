// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef IMAGES_ICONS_H
#define IMAGES_ICONS_H

#include <QIcon>

/// Icon from an embedded picture, which must be a PNG file; null if there is no such picture. Unlike a QIcon
/// made from the path, it does not load the system's MIME database to detect the format.
QIcon embeddedIcon(const QString &path);

/// Icon of the desktop's theme or, if that has none of this name, from an embedded picture. The theme is
/// asked and the picture decoded when the icon is first shown: for the icons of menus both take a sixth of a
/// start.
QIcon themedIcon(const QString &name, const QString &embedded);

#endif
