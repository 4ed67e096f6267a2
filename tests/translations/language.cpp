// SPDX-License-Identifier: GPL-3.0-or-later
#include "language.h"

#include "app/translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <QtTest>

InLanguage::InLanguage(const QString &language)
{
    QLocale::setDefault(QLocale(language));
    installTranslations(qApp);
}

InLanguage::~InLanguage()
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale::c());
}

void everyLanguage()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = QStringList{QStringLiteral("C")} + availableTranslations();
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}
