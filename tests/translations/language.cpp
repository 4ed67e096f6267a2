// SPDX-License-Identifier: GPL-3.0-or-later
#include "language.h"

#include "app/translations.h"

#include <QLocale>
#include <QTranslator>
#include <QtTest>

void useLanguage(const QString &locale)
{
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale(locale));
    installTranslations(qApp);
}

void everyLanguage()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : QStringList{"C"} + availableTranslations()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}
