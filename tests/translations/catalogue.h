// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_TRANSLATIONS_CATALOGUE_H
#define TESTS_TRANSLATIONS_CATALOGUE_H

#include <QString>
#include <QStringList>

#include <vector>

/// One text of a catalogue.
struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished = false;

    /// What tells it from every other text.
    QString key() const { return context + QLatin1String(": ") + source; }
};

/// The languages of the catalogue files in the source tree, in the form "pt_BR".
QStringList catalogueLanguages();
/// The texts of a language's catalogue file; empty when it can't be read.
std::vector<Message> catalogue(const QString &language);
/// The texts that are in the sources now, untranslated; empty when they can't be collected.
std::vector<Message> sourceTexts();

#endif
