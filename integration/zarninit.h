// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_ZARNINIT_H
#define ZARN_INTEGRATION_ZARNINIT_H

class QString;

/// Describes the program: `version` becomes QCoreApplication::applicationVersion(), `description` is shown by
/// the About box. Both are UTF-8; null counts as empty.
void zarnInit(const char *version, const char *description);

/// The version given to zarnInit(); empty before.
QString zarnVersion();

/// The description given to zarnInit(), translated in the context "ZarnHelpMenu" at each call, so translators
/// may be installed before or after zarnInit().
QString zarnDescription();

#endif
