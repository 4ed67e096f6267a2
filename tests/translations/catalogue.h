// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_TRANSLATIONS_CATALOGUE_H
#define TESTS_TRANSLATIONS_CATALOGUE_H

#include <QString>
#include <QStringList>

#include <vector>

/// One text of a catalogue, identified by context and source text.
struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished;

    QString key() const { return context + QLatin1String(": ") + source; }
};

/// The languages of the catalogue files in the source tree, in the form "pt_BR".
QStringList catalogueLanguages();
/// The texts of a language's catalogue file; empty if it cannot be read.
std::vector<Message> catalogue(const QString &language);
/// The texts in the sources as they are now, untranslated; empty if they cannot be collected.
std::vector<Message> sourceTexts();

/// Translates the application's texts to the language of a locale; "C" stands for the source texts.
void useLanguage(const QString &locale);
/// One row per language of the program, "C" included, in the column "language".
void everyLanguage();

#endif
