// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/translations.h"
#include "catalogue.h"

#include <QtTest>

class TestLanguageChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstLanguageWithACatalogueWins_data()
    {
        const Rows<QStringList, QString> row("wanted", "chosen");
        const auto rows = [&](const char *chosen, std::initializer_list<const char *> lists) {
            for (const QString wanted : lists) {
                row(qPrintable(wanted), wanted.split(QLatin1Char(' ')), QString(chosen));
            }
        };
        rows("de", {"de", "de-DE", "de_AT", "de_CH.UTF-8@euro", "de-euro de", "eo de", "de en", " de"});
        rows("fr", {"fr de"});
        rows("ja", {"zh-Hant-TW ja"});
        rows("pt_BR", {"pt-BR", "pt", "pt_PT"});
        rows("sv", {"tlh eo_XX sv"});
        rows("zh_CN", {"zh_CN", "zh-Hans-CN", "zh_SG", "zh"});
        rows("", {"zh_TW", "en", "en-US en en-Latn-US de", "en_GB.UTF-8 de", "fi en de", "C", "C.UTF-8 de",
                  "POSIX de", "! ../de de/../fr"});
        row("no language", QStringList(), QString());
    }

    void theFirstLanguageWithACatalogueWins()
    {
        QFETCH(QStringList, wanted);
        QTEST(translationFor(wanted, {"de", "fr", "ja", "pt_BR", "sv", "zh_CN"}), "chosen");
        QCOMPARE(translationFor(wanted, {}), QString());
    }

    void everyCatalogueIsChosenByItsOwnName()
    {
        for (const QString &language : availableTranslations()) {
            QCOMPARE(translationFor({language}, availableTranslations()), language);
        }
    }

    void aLocaleWithoutATranslationShowsTheSourceTexts_data()
    {
        addTextRows("locale", {"C", "fi_FI", "en_US", "ar_EG", "zh_TW"});
    }

    void aLocaleWithoutATranslationShowsTheSourceTexts()
    {
        QFETCH(QString, locale);
        useLanguage(locale);
        QVERIFY(translators().isEmpty());
        static const std::vector<Message> texts = sourceTexts();
        QVERIFY(texts.size() > 100);
        for (const Message &text : texts) {
            QCOMPARE(shown(text), text.source);
        }
    }

    void everyTextIsTranslatedToTheLocalesLanguage()
    {
        useLanguage(QStringLiteral("ru_RU"));
        for (const Message &text : catalogue(QStringLiteral("ru"))) {
            QCOMPARE(shown(text), text.translation);
        }
    }

    void theToolkitsTextsAreTranslatedToTheLocalesLanguage()
    {
        const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
        if (!QFile::exists(folder + QLatin1String("/qtbase_de.qm"))) {
            QSKIP("the toolkit's own catalogues are not installed");
        }
        useLanguage(QStringLiteral("de_DE"));
        QVERIFY(QCoreApplication::translate("QPlatformTheme", "Close") != QLatin1String("Close"));
        QCOMPARE(translators().size(), 2);
    }

    void theProgramFollowsTheEnvironment_data()
    {
        const Rows<QString> row("firstWord");
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

    /// Observed through the usage text, the only text that the program prints.
    void theProgramFollowsTheEnvironment()
    {
        QFETCH(QString, firstWord);
        const QTemporaryDir home;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"LANG", "LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LANGUAGE"}) {
            environment.remove(QLatin1String(name));
        }
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
        const QString variables = QString::fromLatin1(QTest::currentDataTag());
        for (const QString &variable : variables.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            environment.insert(variable.section(QLatin1Char('='), 0, 0),
                               variable.section(QLatin1Char('='), 1));
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

private:
    static QList<QTranslator *> translators()
    {
        return QCoreApplication::instance()->findChildren<QTranslator *>();
    }

    static QString shown(const Message &text)
    {
        return QCoreApplication::translate(text.context.toUtf8().constData(),
                                           text.source.toUtf8().constData());
    }
};

QTEST_GUILESS_MAIN(TestLanguageChoice)
#include "test_languagechoice.moc"
