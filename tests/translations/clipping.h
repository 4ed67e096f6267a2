// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_TRANSLATIONS_CLIPPING_H
#define TESTS_TRANSLATIONS_CLIPPING_H

#include <QStringList>

class QMenu;
class QWidget;

/// What of the texts that `window` shows is cut off or overlapped, one line each; empty when all can be read.
/// Looked at are labels, buttons, tabs, menu bars and the columns' titles.
QStringList unreadableTexts(const QWidget *window);

/// The same of the entries of an open menu, and the letters that more than one of them takes as its mnemonic.
QStringList unreadableEntries(const QMenu *menu);

/// The letters that more than one of the texts takes as its mnemonic.
QStringList sharedMnemonics(const QStringList &texts);

#endif
