// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_NETCHOOSER_H
#define APP_NETCHOOSER_H

#include "resources/netdevices.h"

#include <vector>

class QComboBox;

/// Replaces the chooser's items by the names of the interfaces. If the user has its list open, the
/// highlighted row and the scroll position are kept; the current item is left to the caller.
void fillNetChooser(QComboBox *chooser, const std::vector<NetRec> &devices);

#endif
