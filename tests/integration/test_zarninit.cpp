// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/zarninit.h"

#include "../support/brackettranslator.h"

#include <QTest>

class TestZarnInit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { zarnInit("", ""); }
    void textsAreReadAsUtf8AndReachTheApplication()
    {
        zarnInit("1.0 \xce\xb2", "caf\xc3\xa9");
        QCOMPARE(zarnVersion(), QString(QStringLiteral("1.0 ") + QChar(0x3b2)));
        QCOMPARE(QCoreApplication::applicationVersion(), zarnVersion());
        QCOMPARE(zarnDescription(), QString(QStringLiteral("caf") + QChar(0xe9)));
    }

    void textsOutliveTheCallersBuffers()
    {
        char version[] = "1.0";
        char description[] = "before";
        zarnInit(version, description);
        version[0] = description[0] = 'X';
        QCOMPARE(zarnVersion(), QStringLiteral("1.0"));
        QCOMPARE(zarnDescription(), QStringLiteral("before"));
    }

    void descriptionIsTranslatedWhenAskedFor()
    {
        zarnInit("1.0", "Shows things.");
        {
            const BracketTranslator translator("ZarnHelpMenu");
            QCOMPARE(zarnDescription(), QStringLiteral("<Shows things.>"));
        }
        QCOMPARE(zarnDescription(), QStringLiteral("Shows things."));
    }

    void nullPointersCountAsEmpty()
    {
        zarnInit("1.0", "Shows things.");
        zarnInit(nullptr, nullptr);
        QCOMPARE(zarnVersion(), QString());
        QCOMPARE(zarnDescription(), QString());
    }
};

QTEST_GUILESS_MAIN(TestZarnInit)
#include "test_zarninit.moc"
