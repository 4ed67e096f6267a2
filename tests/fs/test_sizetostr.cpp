// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/sizetostr.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <QtTest>

#include <limits>

namespace {

/// Translates whatever is asked in the context QObject without disambiguation or plural form.
class UnitTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        if (qstrcmp(context, "QObject") != 0 || disambiguation || n != -1) {
            return QString();
        }
        return QLatin1Char('<') + QString::fromLatin1(source) + QLatin1Char('>');
    }
};

/// Sets the default locale to one with a decimal comma, and puts it back.
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
    void unsignedCountsAreShownInTheLargestUnitUpToGigabytes_data();
    void unsignedCountsAreShownInTheLargestUnitUpToGigabytes();
    void doublesAreShownByTheSameCascade_data();
    void doublesAreShownByTheSameCascade();
    void onlyTheUnitIsTranslated_data();
    void onlyTheUnitIsTranslated();
};

void TestSizeToStr::unsignedCountsAreShownInTheLargestUnitUpToGigabytes_data()
{
    QTest::addColumn<qulonglong>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](qulonglong bytes, const char *text) {
        QTest::newRow(text) << bytes << QString::fromLatin1(text);
    };
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

void TestSizeToStr::unsignedCountsAreShownInTheLargestUnitUpToGigabytes()
{
    QFETCH(qulonglong, bytes);
    QFETCH(QString, text);
    QCOMPARE(sizeToStr<unsigned long>(bytes), text);
    QCOMPARE(sizeToStr<quint64>(bytes), text);
}

void TestSizeToStr::doublesAreShownByTheSameCascade_data()
{
    QTest::addColumn<double>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](double bytes, const char *text) {
        QTest::newRow(text) << bytes << QString::fromLatin1(text);
    };
    row(0.0, "0.00 B");
    row(0.5, "0.50 B");
    row(1023.999, "1024.00 B");
    row(1024.0, "1.00 KB");
    row(1048575.0, "1024.00 KB");
    row(1048576.0, "1.00 MB");
    row(1073741824.0, "1.00 GB");
    row(1099511627776.0, "1024.00 GB");
    row(-5.0, "-5.00 B");
    row(-1073741824.0, "-1073741824.00 B");
}

void TestSizeToStr::doublesAreShownByTheSameCascade()
{
    QFETCH(double, bytes);
    QFETCH(QString, text);
    QCOMPARE(sizeToStr(bytes), text);
}

void TestSizeToStr::onlyTheUnitIsTranslated_data()
{
    QTest::addColumn<double>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("bytes") << 1.25 << "1.25< B>";
    QTest::newRow("kilobytes") << 1536.0 << "1.50< KB>";
    QTest::newRow("megabytes") << 1572864.0 << "1.50< MB>";
    QTest::newRow("gigabytes") << 1099511627776.0 << "1024.00< GB>";
}

void TestSizeToStr::onlyTheUnitIsTranslated()
{
    QFETCH(double, bytes);
    QFETCH(QString, text);
    const CommaLocale locale;
    UnitTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(sizeToStr(bytes), text);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

QTEST_GUILESS_MAIN(TestSizeToStr)
#include "test_sizetostr.moc"
