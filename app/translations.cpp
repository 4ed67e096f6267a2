// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

/// At global scope, because the macro declares a function there.
static void initTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

/// Adds the standard buttons to our catalogues, for systems without the toolkit's own catalogues. Only
/// lupdate reads it.
[[maybe_unused]] constexpr const char *standardButtons[] = {QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
                                                            QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")};

const QLatin1String folder(":/translations");
const QLatin1String prefix("zarn-system-monitor_");
const QLatin1String suffix(".qm");

bool isSourceLanguage(const QString &language)
{
    const QString name = language.section(QLatin1Char('_'), 0, 0);
    return name == QLatin1String("en") || name == QLatin1String("C") || name == QLatin1String("POSIX");
}

/// Catalogue names to try in order: "de_AT", then "de", then the language and script with their most populous
/// country. So "pt_PT" falls back to "pt_BR", but "zh_TW", in another script, not to "zh_CN".
QStringList candidates(const QString &language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::C) {
        return {};
    }
    const QString name = locale.name();
    return {name, name.section(QLatin1Char('_'), 0, 0),
            QLocale(locale.language(), locale.script(), QLocale::AnyCountry).name()};
}

/// Installs the catalogue in `file` if there is one.
void load(QCoreApplication *application, const QString &file)
{
    auto *translator = new QTranslator(application);
    if (translator->load(file)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace

QStringList availableTranslations()
{
    initTranslations();
    QStringList languages;
    const QStringList files = QDir(folder).entryList({prefix + QLatin1Char('*') + suffix}, QDir::Files);
    for (const QString &file : files) {
        languages << file.mid(prefix.size(), file.size() - prefix.size() - suffix.size());
    }
    return languages;
}

QString translationFor(const QStringList &languages, const QStringList &available)
{
    for (const QString &wanted : languages) {
        // Strip the encoding and the modifier of a locale name.
        QString language = wanted.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (isSourceLanguage(language)) {
            return QString();
        }
        for (const QString &candidate : candidates(language)) {
            if (available.contains(candidate)) {
                return candidate;
            }
        }
    }
    return QString();
}

void installTranslations(QCoreApplication *application)
{
    const QLocale locale;
    // As for the C library's messages, the C locale takes precedence over the languages in LANGUAGE.
    if (locale.language() == QLocale::C) {
        return;
    }
    const QString language = translationFor(locale.uiLanguages(), availableTranslations());
    if (language.isEmpty()) {
        return;
    }
    load(application, QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QLatin1String("/qtbase_") +
                          language + suffix);
    // Installed last, so that it takes precedence over the toolkit's catalogue.
    load(application, folder + QLatin1Char('/') + prefix + language + suffix);
}
