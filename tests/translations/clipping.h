// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_TRANSLATIONS_CLIPPING_H
#define TESTS_TRANSLATIONS_CLIPPING_H

#include <QStringList>

class QMenu;
class QWidget;

/// The texts shown by `window` that are truncated or overlapped, one line each. Checks labels, buttons, tabs,
/// menu bars and column titles.
QStringList unreadableTexts(const QWidget *window);

/// The same for the entries of an open menu, and its shared mnemonics.
QStringList unreadableEntries(const QMenu *menu);

/// The mnemonics that more than one of the texts has.
QStringList sharedMnemonics(const QStringList &texts);

#endif
