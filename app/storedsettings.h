// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STOREDSETTINGS_H
#define APP_STOREDSETTINGS_H

#include <QByteArray>

/// Whether the content of a settings file holds a serialized object, however it is escaped. This program
/// writes none, and reading one that is damaged makes the toolkit throw std::bad_alloc or crash.
bool holdsSerializedObject(const QByteArray &content);

/// Whether bytes are a whole state of a horizontal splitter whose handle is no wider than a handle is.
/// Restoring one that is cut takes the memory for as many sizes as it promises and zeroes for what is
/// missing; another handle or direction would spoil the page, and be saved again.
bool isSplitterState(const QByteArray &state);

/// Renames the user's settings file to end in ".damaged" if it isn't safe to read: with a serialized object
/// in it, or far too large to be ours. The program then starts with its defaults and can save again. To be
/// called before the file is first read.
void setAsideUnsafeSettings();

#endif
