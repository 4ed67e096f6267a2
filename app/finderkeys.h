// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_FINDERKEYS_H
#define APP_FINDERKEYS_H

#include <QString>

class QKeyEvent;

/// What a key in the process list means for the line that filters it.
enum class ListKey {
    None,  ///< it belongs to the list
    Open,  ///< "/" opens the line
    Type,  ///< its text goes into the line
    Erase, ///< it deletes the last character, if the line is open
    Close  ///< it closes the line, if it is open
};

/// Space, "+", "-" and "*" belong to the list, which selects, expands and collapses rows by them.
ListKey listKey(const QKeyEvent &key);

/// Whether a key in the line belongs to the list: Up, Down, the page keys and Enter.
bool goesToList(const QKeyEvent &key);
bool isEnter(const QKeyEvent &key);

/// Whether text consists of characters that can be typed into a line, and not of blanks alone.
bool isTypable(const QString &text);

#endif
