// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_TRANSLATIONS_LANGUAGE_H
#define TESTS_TRANSLATIONS_LANGUAGE_H

#include <QString>

/// Translates the application's texts to the language of a locale; "C" stands for the source texts.
void useLanguage(const QString &locale);

/// One row per language, "C" included, in the column "language".
void everyLanguage();

#endif
