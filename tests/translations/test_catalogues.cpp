// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/translations.h"
#include "catalogue.h"

#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

#include <map>
#include <set>

namespace {

// What has to be the same in a text and in its translation.
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

// The blanks around each line, hence also how many lines there are.
QStringList blanks(const QString &text)
{
    static const QRegularExpression leading(QStringLiteral("^ *"));
    static const QRegularExpression trailing(QStringLiteral(" *$"));
    QStringList found;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        found << leading.match(line).captured() + QLatin1Char('|') + trailing.match(line).captured();
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

class TestCatalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPromisedLanguageHasItsCatalogue();
    void everyCatalogueIsBuiltIn();
    void aCatalogueHasTheTextsOfTheSourcesAndNoOthers_data() { languages(); }
    void aCatalogueHasTheTextsOfTheSourcesAndNoOthers();
    void nothingIsUnfinishedOrEmpty_data() { languages(); }
    void nothingIsUnfinishedOrEmpty();
    void aTranslationKeepsPlaceholdersLinesBlanksAndMnemonics_data() { languages(); }
    void aTranslationKeepsPlaceholdersLinesBlanksAndMnemonics();
    void differentTextsOfAListStayDifferent_data() { languages(); }
    void differentTextsOfAListStayDifferent();
    void noPhraseIsLeftUntranslated_data() { languages(); }
    void noPhraseIsLeftUntranslated();
    void theBuiltInCatalogueSaysWhatItsFileSays_data() { languages(); }
    void theBuiltInCatalogueSaysWhatItsFileSays();

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : catalogueLanguages()) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }
};

void TestCatalogues::everyPromisedLanguageHasItsCatalogue()
{
    QCOMPARE(catalogueLanguages(), QStringList({"cs", "de", "es", "fr", "it", "ja", "ko", "nl", "pl", "pt_BR",
                                                "ru", "sv", "tr", "uk", "zh_CN"}));
}

void TestCatalogues::everyCatalogueIsBuiltIn()
{
    QStringList builtIn = availableTranslations();
    builtIn.sort();
    QCOMPARE(builtIn, catalogueLanguages());
}

void TestCatalogues::aCatalogueHasTheTextsOfTheSourcesAndNoOthers()
{
    QFETCH(QString, language);
    static const std::set<QString> expected = keys(sourceTexts());
    QVERIFY(expected.size() > 100);
    const std::set<QString> found = keys(catalogue(language));
    for (const QString &key : expected) {
        QVERIFY2(found.count(key) == 1, qPrintable(QLatin1String("run translations/update.sh: ") + key));
    }
    QCOMPARE(found.size(), expected.size());
}

void TestCatalogues::nothingIsUnfinishedOrEmpty()
{
    QFETCH(QString, language);
    for (const Message &message : catalogue(language)) {
        QVERIFY2(message.finished, qPrintable(message.key()));
        QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.key()));
    }
}

void TestCatalogues::aTranslationKeepsPlaceholdersLinesBlanksAndMnemonics()
{
    QFETCH(QString, language);
    for (const Message &message : catalogue(language)) {
        for (const Trait &trait : traits) {
            const QString text = QLatin1String(trait.name) + QLatin1String(" of ") + message.key();
            QVERIFY2(trait.of(message.translation) == trait.of(message.source), qPrintable(text));
        }
    }
}

void TestCatalogues::differentTextsOfAListStayDifferent()
{
    QFETCH(QString, language);
    const QStringList lists{QStringLiteral("DlgNice"),       QStringLiteral("FSModel"),
                            QStringLiteral("ProcessFiller"), QStringLiteral("QObject"),
                            QStringLiteral("Updater"),       QStringLiteral("TimeHisto")};
    std::map<QString, QString> sourceOf;
    for (const Message &message : catalogue(language)) {
        if (lists.contains(message.context)) {
            const QString key = message.context + QLatin1String(": ") + message.translation;
            QVERIFY2(sourceOf.count(key) == 0, qPrintable(key + QLatin1Char('/') + sourceOf[key]));
            sourceOf[key] = message.source;
        }
    }
}

void TestCatalogues::noPhraseIsLeftUntranslated()
{
    QFETCH(QString, language);
    for (const Message &message : catalogue(language)) {
        // Shorter texts may well be the same: names, units, terms such as "Version %1".
        const bool isPhrase = message.source.trimmed().count(QLatin1Char(' ')) >= 2;
        QVERIFY2(!isPhrase || message.translation != message.source, qPrintable(message.key()));
    }
}

void TestCatalogues::theBuiltInCatalogueSaysWhatItsFileSays()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QLatin1String(":/translations/zarn-system-monitor_") + language +
                            QLatin1String(".qm")));
    for (const Message &message : catalogue(language)) {
        QCOMPARE(
            translator.translate(message.context.toUtf8().constData(), message.source.toUtf8().constData()),
            message.translation);
    }
}

QTEST_GUILESS_MAIN(TestCatalogues)
#include "test_catalogues.moc"
