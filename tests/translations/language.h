// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_TRANSLATIONS_LANGUAGE_H
#define TESTS_TRANSLATIONS_LANGUAGE_H

#include <QString>

/// Makes the application's texts come in a language for as long as it lives; "C" stands for the source texts.
class InLanguage
{
public:
    explicit InLanguage(const QString &language);
    ~InLanguage();
    InLanguage(const InLanguage &) = delete;
    InLanguage &operator=(const InLanguage &) = delete;
};

/// One row per language, "C" among them, in a column "language".
void everyLanguage();

#endif
