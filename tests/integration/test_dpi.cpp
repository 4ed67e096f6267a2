// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "integration/dpi.h"

#include <QGuiApplication>
#include <QTest>

#include <limits>

class TestDpi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFactorIsRelativeTo96Dpi_data()
    {
        const Rows<double, double> row("dpi", "factor");
        row("96", 96.0, 1.0);
        row("144", 144.0, 1.5);
        row("192", 192.0, 2.0);
        row("72", 72.0, 0.75);
        row("zero", 0.0, 1.0);
        row("negative", -96.0, 1.0);
        row("not a number", std::numeric_limits<double>::quiet_NaN(), 1.0);
        row("infinite", std::numeric_limits<double>::infinity(), 1.0);
    }

    void theFactorIsRelativeTo96Dpi()
    {
        QFETCH(double, dpi);
        QTEST(zarnDpiFactor(dpi), "factor");
    }

    void sizesAreUnchangedWithoutAnApplicationOrAScreen()
    {
        QVERIFY(!QCoreApplication::instance());
        QCOMPARE(zarnDpiScaled(95.5), 95.5);
        int argc = 0;
        const QCoreApplication withoutScreen(argc, nullptr);
        QCOMPARE(zarnDpiScaled(95.5), 95.5);
    }

    void sizesFollowThePrimaryScreen()
    {
        qputenv("QT_FONT_DPI", "144"); // read once per process, when the first screen is created
        int argc = 0;
        const QGuiApplication application(argc, nullptr);
        QCOMPARE(zarnDpiScaled(60), 90.0);
        QCOMPARE(zarnDpiScaled(0), 0.0);
        QCOMPARE(zarnDpiScaled(-5), -7.5);
    }
};

QTEST_APPLESS_MAIN(TestDpi)
#include "test_dpi.moc"
