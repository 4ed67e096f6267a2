// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/sizetostr.h"

#include "../support/brackettranslator.h"
#include "../support/rows.h"

#include <QtTest>

#include <limits>

namespace {

/// Temporarily makes a locale with a decimal comma the default.
struct CommaLocale
{
    CommaLocale() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    ~CommaLocale() { QLocale::setDefault(old); }
    QLocale old;
};

} // namespace

class TestSizeToStr : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unsignedCountsAreShownInUnitsUpToGigabytes_data()
    {
        const Rows<qulonglong, QString> rows("bytes", "text");
        const auto row = [&](qulonglong bytes, const char *text) { rows(text, bytes, text); };
        row(0, "0.00 B");
        row(512, "512.00 B");
        row(1023, "1023.00 B");
        row(1024, "1.00 KB");
        row(1536, "1.50 KB");
        row(1048575, "1024.00 KB");
        row(1048576, "1.00 MB");
        row(1073741823, "1024.00 MB");
        row(1073741824, "1.00 GB");
        row(1099511627776, "1024.00 GB");
        row(Q_UINT64_C(1) << 63, "8589934592.00 GB");
        row(std::numeric_limits<qulonglong>::max(), "17179869184.00 GB");
    }

    void unsignedCountsAreShownInUnitsUpToGigabytes()
    {
        QFETCH(qulonglong, bytes);
        QFETCH(QString, text);
        QCOMPARE(sizeToStr<unsigned long>(bytes), text);
        QCOMPARE(sizeToStr<quint64>(bytes), text);
    }

    void doublesAreShownInTheSameUnitsAndOnlyTheUnitIsTranslated_data()
    {
        const Rows<double, QString> rows("bytes", "text");
        const auto row = [&](double bytes, const char *text) { rows(text, bytes, text); };
        row(0.0, "0.00 B");
        row(0.5, "0.50 B");
        row(1.25, "1.25 B");
        row(1023.999, "1024.00 B");
        row(1024.0, "1.00 KB");
        row(1536.0, "1.50 KB");
        row(1048575.0, "1024.00 KB");
        row(1048576.0, "1.00 MB");
        row(1572864.0, "1.50 MB");
        row(1073741824.0, "1.00 GB");
        row(1099511627776.0, "1024.00 GB");
        row(-5.0, "-5.00 B");
        row(-1073741824.0, "-1073741824.00 B");
    }

    void doublesAreShownInTheSameUnitsAndOnlyTheUnitIsTranslated()
    {
        QFETCH(double, bytes);
        QFETCH(QString, text);
        QCOMPARE(sizeToStr(bytes), text);
        const BracketTranslator translator("QObject");
        const CommaLocale locale;
        QCOMPARE(sizeToStr(bytes), text.replace(' ', "< ") + '>'); // still with a decimal point
    }
};

QTEST_GUILESS_MAIN(TestSizeToStr)
#include "test_sizetostr.moc"
