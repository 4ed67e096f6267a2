// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_TRANSLATIONS_H
#define APP_TRANSLATIONS_H

#include <QStringList>

class QCoreApplication;

/// Languages of the built-in catalogues, in the form "de" or "pt_BR".
QStringList availableTranslations();

/// The catalogue in `available` that fits the user's `languages` best. These are in order of preference, each
/// in the form "pt_BR", "pt-BR", "zh-Hans-CN" or "de_DE.UTF-8@euro". Empty if the source texts are to be
/// shown: they serve English and the C locale, so languages after these are ignored.
QString translationFor(const QStringList &languages, const QStringList &available);

/// Installs the catalogue for the first of the user's UI languages that has one, and the toolkit's catalogue
/// of that language if the system has it. Must be called before any text is translated. Without such a
/// language, and in the C locale, nothing is loaded and the source texts are shown.
void installTranslations(QCoreApplication *application);

#endif
