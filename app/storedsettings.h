// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STOREDSETTINGS_H
#define APP_STOREDSETTINGS_H

#include <QByteArray>
#include <QString>

/// Whether the content of a settings file holds a serialized object, in any escaping. This program writes
/// none, and reading a damaged one makes the toolkit throw std::bad_alloc or crash.
bool holdsSerializedObject(const QByteArray &content);

/// Whether the bytes are a complete QSplitter::saveState() of a horizontal splitter with a plausible handle
/// width. Restoring a truncated state allocates as many sizes as it announces, with zeros for the missing
/// ones; another width or orientation would spoil the page and be saved again.
bool isSplitterState(const QByteArray &state);

/// Path of the user's settings file: that of a default-constructed QSettings. One of those would parse the
/// files of the organization and of the system as well, before it can be told not to.
QString settingsFile();

/// The path for the QSettings (in the native format) that is used next: settingsFile() if it is a regular
/// file, or a link to one, that is safe to read, or if there is none.
///
/// A file that holds a serialized object or is far too large to be ours is renamed to end in ".damaged", so
/// that the program starts with its defaults and can save again. What can be neither read nor renamed is left
/// alone: the path is then one that holds nothing and that nothing can be written to.
QString usableSettingsFile();

#endif
