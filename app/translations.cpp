// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// Outside any namespace, as the macro declares a function of the global one.
static void initTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

// The standard buttons, so that they are translated where the toolkit's own catalogues are not installed.
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

// "de_AT" as it stands, then "de", then the language in the country where most of those who write it in the
// same script live: "pt_PT" is served by "pt_BR", but "zh_TW" not by "zh_CN".
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
        // The encoding and the modifier of a locale's name don't tell the language.
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
    // The C locale outranks the list of languages in LANGUAGE, as it does for the C library's messages.
    if (locale.language() == QLocale::C) {
        return;
    }
    const QString language = translationFor(locale.uiLanguages(), availableTranslations());
    if (language.isEmpty()) {
        return;
    }
    load(application, QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QLatin1String("/qtbase_") +
                          language + suffix);
    // Installed last, so that it is asked first.
    load(application, folder + QLatin1Char('/') + prefix + language + suffix);
}
