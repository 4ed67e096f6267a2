// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_ZARNINIT_H
#define ZARN_INTEGRATION_ZARNINIT_H

class QString;

/// Tells the desktop who is running: `version` becomes QCoreApplication::applicationVersion(),
/// `description` is kept for the About box. Both are UTF-8; null counts as empty.
void zarnInit(const char *version, const char *description);

/// The version given to zarnInit(); empty before that.
QString zarnVersion();

/// The description given to zarnInit(), in the user's language: it is looked up at each call in the
/// translation context "ZarnHelpMenu", so translators may be installed before or after zarnInit().
QString zarnDescription();

#endif
