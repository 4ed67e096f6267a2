// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue.h"

#include "app/translations.h"

#include <QtTest>

namespace {

const QString prefix = QStringLiteral("zarn-system-monitor_");

std::vector<Message> readFile(const QString &path)
{
    std::vector<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            messages.push_back({context, xml.readElementText(), QString(), false});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.back().finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            messages.back().translation = xml.readElementText();
        }
    }
    return xml.hasError() ? std::vector<Message>() : messages;
}

} // namespace

QStringList catalogueLanguages()
{
    QStringList languages;
    const QDir folder(QStringLiteral(ZSM_TRANSLATIONS));
    for (const QString &file : folder.entryList({prefix + QLatin1String("*.ts")}, QDir::Files)) {
        languages << file.mid(prefix.size()).section(QLatin1Char('.'), 0, 0);
    }
    return languages;
}

std::vector<Message> catalogue(const QString &language)
{
    return readFile(QStringLiteral(ZSM_TRANSLATIONS "/") + prefix + language + QLatin1String(".ts"));
}

std::vector<Message> sourceTexts()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("texts.ts"));
    qputenv("LUPDATE", ZSM_LUPDATE);
    QProcess update;
    update.setStandardErrorFile(QProcess::nullDevice());
    update.start(QStringLiteral(ZSM_TRANSLATIONS "/update.sh"), {file});
    update.waitForFinished();
    return readFile(file);
}

void useLanguage(const QString &locale)
{
    QCoreApplication *application = QCoreApplication::instance();
    qDeleteAll(application->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale(locale));
    installTranslations(application);
}

void everyLanguage()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : QStringList{"C"} + availableTranslations()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}
