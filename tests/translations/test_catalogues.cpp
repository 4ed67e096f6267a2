// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/translations.h"
#include "catalogue.h"

#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

#include <map>
#include <set>

namespace {

/// What a text and its translation have in common.
struct Trait
{
    const char *name;
    QStringList (*of)(const QString &text);
};

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%[0-9n]"));
    QStringList found;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        found << matches.next().captured();
    }
    found.sort(); // a language may need them in another order
    return found;
}

/// The blanks around each line, and thereby the number of lines.
QStringList blanks(const QString &text)
{
    static const QRegularExpression withoutBlanks(QStringLiteral("[^ ](.*[^ ])?"));
    QStringList found;
    for (QString line : text.split(QLatin1Char('\n'))) {
        found << line.replace(withoutBlanks, QStringLiteral("|"));
    }
    return found;
}

QStringList mnemonics(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("&\\w"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return {QString::number(text.count(QLatin1Char('&'))), QString::number(text.count(pattern))};
}

QStringList ellipsis(const QString &text)
{
    return {text.endsWith(QLatin1String("...")) ? QStringLiteral("...") : QString()};
}

QStringList otherSigns(const QString &text)
{
    return {QString::number(text.count(QLatin1Char('<'))), QString::number(text.count(QLatin1Char('\t')))};
}

constexpr Trait traits[] = {{"placeholders", placeholders},
                            {"lines and blanks", blanks},
                            {"mnemonics", mnemonics},
                            {"ellipsis", ellipsis},
                            {"markup and tabs", otherSigns}};

std::set<QString> keys(const std::vector<Message> &messages)
{
    std::set<QString> result;
    for (const Message &message : messages) {
        result.insert(message.key());
    }
    return result;
}

} // namespace

/// Each function runs once per language.
class TestCatalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : catalogueLanguages()) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }

    void initTestCase()
    {
        const QStringList supported{"cs", "de",    "es", "fr", "it", "ja", "ko",   "nl",
                                    "pl", "pt_BR", "ru", "sv", "tr", "uk", "zh_CN"};
        QCOMPARE(catalogueLanguages(), supported);
        QStringList builtIn = availableTranslations();
        builtIn.sort();
        QCOMPARE(builtIn, supported);
    }

    void init()
    {
        QFETCH_GLOBAL(QString, language);
        messages = catalogue(language);
    }

    void theCatalogueHasTheTextsOfTheSourcesAndNoOthers()
    {
        static const std::set<QString> expected = keys(sourceTexts());
        QVERIFY(expected.size() > 100);
        const std::set<QString> found = keys(messages);
        for (const QString &key : expected) {
            QVERIFY2(found.count(key) == 1, qPrintable(QLatin1String("run translations/update.sh: ") + key));
        }
        QCOMPARE(found.size(), expected.size());
    }

    void nothingIsUnfinishedOrEmpty()
    {
        for (const Message &message : messages) {
            QVERIFY2(message.finished, qPrintable(message.key()));
            QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.key()));
        }
    }

    void aTranslationKeepsPlaceholdersLinesBlanksAndMnemonics()
    {
        for (const Message &message : messages) {
            for (const Trait &trait : traits) {
                const QString text = QLatin1String(trait.name) + QLatin1String(" of ") + message.key();
                QVERIFY2(trait.of(message.translation) == trait.of(message.source), qPrintable(text));
            }
        }
    }

    void differentTextsOfAListStayDifferent()
    {
        const QStringList lists{"DlgNice", "FSModel", "ProcessFiller", "QObject", "Updater", "TimeHisto"};
        std::map<QString, QString> sourceOf;
        for (const Message &message : messages) {
            if (lists.contains(message.context)) {
                const QString key = message.context + QLatin1String(": ") + message.translation;
                QVERIFY2(sourceOf.count(key) == 0, qPrintable(key + QLatin1Char('/') + sourceOf[key]));
                sourceOf[key] = message.source;
            }
        }
    }

    void noPhraseIsLeftUntranslated()
    {
        for (const Message &message : messages) {
            // Shorter texts may well be the same: names, units, terms such as "Version %1".
            const bool isPhrase = message.source.trimmed().count(QLatin1Char(' ')) >= 2;
            QVERIFY2(!isPhrase || message.translation != message.source, qPrintable(message.key()));
        }
    }

    void theBuiltInCatalogueMatchesItsFile()
    {
        QFETCH_GLOBAL(QString, language);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/translations/zarn-system-monitor_%1.qm").arg(language)));
        for (const Message &message : messages) {
            const QString found = translator.translate(message.context.toUtf8().constData(),
                                                       message.source.toUtf8().constData());
            QCOMPARE(found, message.translation);
        }
    }

private:
    std::vector<Message> messages;
};

QTEST_GUILESS_MAIN(TestCatalogues)
#include "test_catalogues.moc"
