// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/translations.h"
#include "catalogue.h"

#include <QtTest>

#include <map>

namespace {

/// What a translation must have in common with its source text.
QStringList traits(const QString &text)
{
    static const QRegularExpression line(QStringLiteral("[^ \n]([^\n]*[^ \n])?"));
    static const QRegularExpression mnemonic(QStringLiteral("&\\w"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    QStringList found{QStringLiteral("lines and blanks '%1'").arg(QString(text).replace(line, "|")),
                      QStringLiteral("%1 mnemonics").arg(text.count(mnemonic)),
                      QLatin1String(text.endsWith(QLatin1String("...")) ? "ellipsis" : "no ellipsis")};
    for (const char *sign :
         {"&", "<", "\t", "%0", "%1", "%2", "%3", "%4", "%5", "%6", "%7", "%8", "%9", "%n"}) {
        found << QString::number(text.count(QLatin1String(sign))) + QLatin1String(" of ") +
                     QLatin1String(sign);
    }
    return found;
}

QStringList sortedKeys(const std::vector<Message> &messages)
{
    QStringList keys;
    for (const Message &message : messages) {
        keys << message.key();
    }
    keys.sort();
    return keys;
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
        static const QStringList expected = sortedKeys(sourceTexts());
        QVERIFY(expected.size() > 100);
        const QStringList found = sortedKeys(messages);
        for (const QString &key : expected) {
            QVERIFY2(found.contains(key), qPrintable(QLatin1String("run translations/update.sh: ") + key));
        }
        QCOMPARE(found, expected);
    }

    void nothingIsUnfinishedEmptyOrLeftInEnglish()
    {
        for (const Message &message : messages) {
            QVERIFY2(message.finished, qPrintable(message.key()));
            QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.key()));
            // Shorter texts may well be the same: names, units, terms such as "Version %1".
            const bool isPhrase = message.source.trimmed().count(QLatin1Char(' ')) >= 2;
            QVERIFY2(!isPhrase || message.translation != message.source, qPrintable(message.key()));
        }
    }

    void aTranslationKeepsPlaceholdersLinesBlanksAndMnemonics()
    {
        for (const Message &message : messages) {
            const QStringList found = traits(message.translation);
            const QStringList expected = traits(message.source);
            for (int i = 0; i < expected.size(); ++i) {
                QVERIFY2(found.at(i) == expected.at(i),
                         qPrintable(message.key() + QLatin1String(" has ") + found.at(i)));
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
