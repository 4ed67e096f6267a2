// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/translations.h"
#include "catalogue.h"

#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

class TestLanguageChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theFirstLanguageWithACatalogueWins_data();
    void theFirstLanguageWithACatalogueWins();
    void everyCatalogueIsChosenByItsOwnName();
    void theCLocaleLeavesEverySourceTextAsItIs();
    void aLocaleWithoutATranslationLeavesEverySourceTextAsItIs();
    void everyTextComesInTheLocalesLanguage();
    void theToolkitsOwnTextsComeInTheLocalesLanguage();
    void theProgramFollowsTheEnvironment_data();
    void theProgramFollowsTheEnvironment();

private:
    static QList<QTranslator *> translators()
    {
        return QCoreApplication::instance()->findChildren<QTranslator *>();
    }
    static void everyTextIsTheSourceText()
    {
        const std::vector<Message> texts = sourceTexts();
        QVERIFY(texts.size() > 100);
        for (const Message &text : texts) {
            QCOMPARE(QCoreApplication::translate(text.context.toUtf8().constData(),
                                                 text.source.toUtf8().constData()),
                     text.source);
        }
    }
};

void TestLanguageChoice::cleanup()
{
    qDeleteAll(translators());
    QLocale::setDefault(QLocale::c());
}

void TestLanguageChoice::theFirstLanguageWithACatalogueWins_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("chosen");
    const auto row = [](const QStringList &wanted, const char *chosen) {
        QTest::newRow(qPrintable(wanted.join(QLatin1Char(' ')))) << wanted << QString::fromLatin1(chosen);
    };
    row({"de"}, "de");
    row({"de-DE"}, "de");
    row({"de_AT"}, "de");
    row({"de_CH.UTF-8@euro"}, "de");
    row({"de-euro", "de"}, "de");
    row({"fr", "de"}, "fr");
    row({"eo", "de"}, "de");
    row({"tlh", "eo_XX", "sv"}, "sv");
    row({"pt-BR"}, "pt_BR");
    row({"pt"}, "pt_BR");
    row({"pt_PT"}, "pt_BR");
    row({"zh_CN"}, "zh_CN");
    row({"zh-Hans-CN"}, "zh_CN");
    row({"zh_SG"}, "zh_CN");
    row({"zh"}, "zh_CN");
    row({"zh_TW"}, "");
    row({"zh-Hant-TW", "ja"}, "ja");
    row({"en"}, "");
    row({"en-US", "en", "en-Latn-US", "de"}, "");
    row({"en_GB.UTF-8", "de"}, "");
    row({"fi", "en", "de"}, "");
    row({"de", "en"}, "de");
    row({"C"}, "");
    row({"C.UTF-8", "de"}, "");
    row({"POSIX", "de"}, "");
    row({"", "de"}, "de");
    row({"!", "../de", "de/../fr"}, "");
    QTest::newRow("no language") << QStringList() << QString();
}

void TestLanguageChoice::theFirstLanguageWithACatalogueWins()
{
    QFETCH(QStringList, wanted);
    QFETCH(QString, chosen);
    QCOMPARE(translationFor(wanted, {"de", "fr", "ja", "pt_BR", "sv", "zh_CN"}), chosen);
    QCOMPARE(translationFor(wanted, {}), QString());
}

void TestLanguageChoice::everyCatalogueIsChosenByItsOwnName()
{
    for (const QString &language : availableTranslations()) {
        QCOMPARE(translationFor({language}, availableTranslations()), language);
    }
}

void TestLanguageChoice::theCLocaleLeavesEverySourceTextAsItIs()
{
    QLocale::setDefault(QLocale::c());
    installTranslations(QCoreApplication::instance());
    QVERIFY(translators().isEmpty());
    everyTextIsTheSourceText();
}

void TestLanguageChoice::aLocaleWithoutATranslationLeavesEverySourceTextAsItIs()
{
    for (const char *name : {"fi_FI", "en_US", "ar_EG", "zh_TW"}) {
        QLocale::setDefault(QLocale(QLatin1String(name)));
        installTranslations(QCoreApplication::instance());
        QVERIFY2(translators().isEmpty(), name);
    }
    everyTextIsTheSourceText();
}

void TestLanguageChoice::everyTextComesInTheLocalesLanguage()
{
    QLocale::setDefault(QLocale(QStringLiteral("ru_RU")));
    installTranslations(QCoreApplication::instance());
    for (const Message &message : catalogue(QStringLiteral("ru"))) {
        QCOMPARE(QCoreApplication::translate(message.context.toUtf8().constData(),
                                             message.source.toUtf8().constData()),
                 message.translation);
    }
}

void TestLanguageChoice::theToolkitsOwnTextsComeInTheLocalesLanguage()
{
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    if (!QFile::exists(folder + QLatin1String("/qtbase_de.qm"))) {
        QSKIP("the toolkit's own catalogues are not installed");
    }
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    installTranslations(QCoreApplication::instance());
    QVERIFY(QCoreApplication::translate("QPlatformTheme", "Close") != QLatin1String("Close"));
    QCOMPARE(translators().size(), 2);
}

void TestLanguageChoice::theProgramFollowsTheEnvironment_data()
{
    QTest::addColumn<QString>("variables");
    QTest::addColumn<QString>("firstWord");
    const auto row = [](const char *variables, const char *firstWord) {
        QTest::newRow(variables) << QString::fromLatin1(variables) << QString::fromLatin1(firstWord);
    };
    row("", "Usage");
    row("LC_ALL=C", "Usage");
    row("LANG=de_DE.UTF-8", "Aufruf");
    row("LANG=nl_NL.UTF-8 LC_ALL=de_DE.UTF-8", "Aufruf");
    row("LANG=nl_NL.UTF-8 LC_NUMERIC=C", "Gebruik");
    row("LANG=C LC_MESSAGES=de_DE.UTF-8", "Aufruf");
    row("LANG=nl_NL.UTF-8 LANGUAGE=fi:de:nl", "Aufruf");
    row("LANG=nl_NL.UTF-8 LANGUAGE=en:de", "Usage");
    row("LC_ALL=C LANGUAGE=de", "Usage");
    row("LANG=fi_FI.UTF-8", "Usage");
}

// Told by the usage text, the only one that the program writes to its output.
void TestLanguageChoice::theProgramFollowsTheEnvironment()
{
    QFETCH(QString, variables);
    QFETCH(QString, firstWord);
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LANG", "LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LANGUAGE"}) {
        environment.remove(QLatin1String(name));
    }
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
    for (const QString &variable : variables.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        environment.insert(variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
    }
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(ZSM_PROGRAM), {QStringLiteral("--help")});
    QTRY_VERIFY_WITH_TIMEOUT(program.canReadLine() || program.state() == QProcess::NotRunning, 60000);
    const QString line = QString::fromLocal8Bit(program.readLine());
    program.kill();
    program.waitForFinished();
    QCOMPARE(line.section(QLatin1Char(':'), 0, 0), firstWord);
}

QTEST_GUILESS_MAIN(TestLanguageChoice)
#include "test_languagechoice.moc"
