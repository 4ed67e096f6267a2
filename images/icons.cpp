// SPDX-License-Identifier: GPL-3.0-or-later
#include "images/icons.h"

#include <QPixmap>

QIcon embeddedIcon(const QString &path)
{
    return {QPixmap(path, "PNG")};
}
