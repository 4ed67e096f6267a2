// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STOREDSETTINGS_H
#define APP_STOREDSETTINGS_H

#include <QByteArray>

/// Whether the content of a settings file holds a serialized object, in any escaping. This program writes
/// none, and reading a damaged one makes the toolkit throw std::bad_alloc or crash.
bool holdsSerializedObject(const QByteArray &content);

/// Whether the bytes are a complete QSplitter::saveState() of a horizontal splitter with a plausible handle
/// width. Restoring a truncated state allocates as many sizes as it announces, with zeros for the missing
/// ones; another width or orientation would spoil the page and be saved again.
bool isSplitterState(const QByteArray &state);

/// Appends ".damaged" to the name of the user's settings file if it is unsafe to read, that is, if it holds a
/// serialized object or is far too large to be ours. The program then starts with its defaults and can save
/// again. Must be called before the file is first read.
void setAsideUnsafeSettings();

#endif
