// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZSM_APP_TRANSLATIONS_H
#define ZSM_APP_TRANSLATIONS_H

#include <QStringList>

class QCoreApplication;

/// The languages of the built-in catalogues, in the form "de" or "pt_BR".
QStringList availableTranslations();

/// The catalogue out of `available` for a user whose languages are `languages`, the most wanted one first,
/// each in the form "pt_BR", "pt-BR", "zh-Hans-CN" or "de_DE.UTF-8@euro". English and the C locale are served
/// by the source texts: what comes behind them is not wanted. Empty when the source texts are to be shown.
QString translationFor(const QStringList &languages, const QStringList &available);

/// Translates the program, and the toolkit's own dialogs where the toolkit has the language installed, into
/// the first of the user's UI languages that there is a catalogue for. Call it before texts are made.
/// With no such language, and in the C locale, nothing is loaded and every text stays the source text.
void installTranslations(QCoreApplication *application);

#endif
