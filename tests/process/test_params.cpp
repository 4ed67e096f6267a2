// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/param.h"
#include "process/gtop_wrappers/textondemand.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

using namespace gtop_wrappers;

namespace {

constexpr quint64 highest = std::numeric_limits<quint64>::max();

/// Counts how often its text is made.
class CountingParam : public TextOnDemandParam
{
public:
    mutable int made = 0;

protected:
    QString text() const override
    {
        ++made;
        return QStringLiteral("text");
    }
};

QString shown(const IProcessParam &param)
{
    return param.displayValue().toString();
}

} // namespace

class TestParams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void baseShowsAndSortsByItsDisplayValue();
    void baseIsDestroyedThroughAPointerToIt();
    void simpleIsTextOnly();
    void intSortsByItsNumber();
    void intWithoutTextShowsItsNumber();
    void cpuIsWrittenFromOutside();
    void cpuThatIsNotANumberSortsBelowAllOthers();
    void lazyTextIsMadeOnceAndNotForSortingNumbers();
    void sizesSortByBytesAndShowTheSizeText_data();
    void sizesSortByBytesAndShowTheSizeText();
    void cpuTimeIsShownInHoursMinutesSeconds_data();
    void cpuTimeIsShownInHoursMinutesSeconds();
    void startIsShownWithItsDateAlways_data();
    void startIsShownWithItsDateAlways();
    void commandLineShowsArgumentsOrTheNameInBrackets_data();
    void commandLineShowsArgumentsOrTheNameInBrackets();
};

void TestParams::initTestCase()
{
    qputenv("TZ", "UTC");
    tzset();
}

void TestParams::baseShowsAndSortsByItsDisplayValue()
{
    IProcessParam param(QStringLiteral("a"));
    QCOMPARE(param.displayValue(), QVariant(QStringLiteral("a")));
    QCOMPARE(param.sortValue(), QVariant(QStringLiteral("a")));
    param.setDisplayValue(7);
    QCOMPARE(param.displayValue(), QVariant(7));
    QCOMPARE(param.sortValue(), QVariant(7));
    QVERIFY(!IProcessParam().displayValue().isValid());
}

void TestParams::baseIsDestroyedThroughAPointerToIt()
{
    QVERIFY(std::has_virtual_destructor_v<IProcessParam>);
    QVERIFY((std::is_base_of_v<IProcessParam, SimpleProcessParam>));
    QVERIFY((std::is_base_of_v<IProcessParam, IntProcessParam>));
    QVERIFY((std::is_base_of_v<IProcessParam, CpuProcessParam>));
}

void TestParams::simpleIsTextOnly()
{
    const SimpleProcessParam param(QStringLiteral("init"));
    QCOMPARE(param.displayValue(), QVariant(QStringLiteral("init")));
    QCOMPARE(param.sortValue(), QVariant(QStringLiteral("init")));
}

void TestParams::intSortsByItsNumber()
{
    const IntProcessParam param(16, QStringLiteral("Stopped"));
    QCOMPARE(param.value(), 16);
    QCOMPARE(param.sortValue(), QVariant(16));
    QCOMPARE(param.displayValue(), QVariant(QStringLiteral("Stopped")));
}

void TestParams::intWithoutTextShowsItsNumber()
{
    for (const int number : {std::numeric_limits<int>::min(), -20, 0, std::numeric_limits<int>::max()}) {
        const IntProcessParam param(number);
        QCOMPARE(param.sortValue(), QVariant(number));
        QCOMPARE(shown(param), QString::number(number));
    }
}

void TestParams::cpuIsWrittenFromOutside()
{
    CpuProcessParam param;
    QCOMPARE(param.percent(), 0.0);
    QVERIFY(!param.displayValue().isValid());
    param.setPercent(12.5);
    param.setDisplayValue(QStringLiteral("12.5 %"));
    QCOMPARE(param.percent(), 12.5);
    QCOMPARE(param.sortValue(), QVariant(12.5));
    QCOMPARE(param.displayValue(), QVariant(QStringLiteral("12.5 %")));
}

void TestParams::cpuThatIsNotANumberSortsBelowAllOthers()
{
    std::vector<double> sorted;
    for (const double percent :
         {1.0, std::nan(""), std::numeric_limits<double>::infinity(), std::nan(""), 0.0}) {
        CpuProcessParam param;
        param.setPercent(percent);
        QCOMPARE(param.sortValue().type(), QVariant::Double);
        sorted.push_back(param.sortValue().toDouble());
    }
    std::sort(sorted.begin(), sorted.end());
    const double infinity = std::numeric_limits<double>::infinity();
    QCOMPARE(sorted, (std::vector<double>{-infinity, -infinity, 0.0, 1.0, infinity}));
}

void TestParams::lazyTextIsMadeOnceAndNotForSortingNumbers()
{
    const CountingParam param;
    QCOMPARE(param.made, 0);
    QCOMPARE(shown(param), QStringLiteral("text"));
    QCOMPARE(shown(param), QStringLiteral("text"));
    QCOMPARE(param.sortValue(), QVariant(QStringLiteral("text")));
    QCOMPARE(param.made, 1);
}

void TestParams::sizesSortByBytesAndShowTheSizeText_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("kernel thread") << quint64(0) << "0.00 B";
    QTest::newRow("page") << quint64(4096) << "4.00 KB";
    QTest::newRow("beyond 32 bits") << quint64(6442450944) << "6.00 GB";
    QTest::newRow("highest") << highest << "17179869184.00 GB";
}

void TestParams::sizesSortByBytesAndShowTheSizeText()
{
    QFETCH(quint64, bytes);
    const SizeProcessParam param(bytes);
    QTEST(shown(param), "text");
    QCOMPARE(param.sortValue(), QVariant(bytes));
}

void TestParams::cpuTimeIsShownInHoursMinutesSeconds_data()
{
    QTest::addColumn<quint64>("jiffies");
    QTest::addColumn<quint64>("frequency");
    QTest::addColumn<QString>("text");
    const quint64 hz = 100;
    QTest::newRow("none") << quint64(0) << hz << "0:00:00";
    QTest::newRow("under a second") << quint64(99) << hz << "0:00:00";
    QTest::newRow("a minute") << quint64(6000) << hz << "0:01:00";
    QTest::newRow("all parts") << quint64(372500) << hz << "1:02:05";
    QTest::newRow("days") << quint64(36000000) << hz << "100:00:00";
    QTest::newRow("other frequency") << quint64(372500) << quint64(1000) << "0:06:12";
    QTest::newRow("highest") << highest << hz << "51240955760304:18:36";
    QTest::newRow("no frequency") << quint64(500) << quint64(0) << "";
}

void TestParams::cpuTimeIsShownInHoursMinutesSeconds()
{
    QFETCH(quint64, jiffies);
    QFETCH(quint64, frequency);
    const CpuTimeProcessParam param(jiffies, frequency);
    QTEST(shown(param), "text");
    QCOMPARE(param.sortValue(), QVariant(jiffies));
}

void TestParams::startIsShownWithItsDateAlways_data()
{
    QTest::addColumn<quint64>("seconds");
    QTest::addColumn<QString>("text");
    const auto now = static_cast<quint64>(QDateTime::currentSecsSinceEpoch());
    QTest::newRow("long ago") << quint64(86461) << "1970-01-02 00:01:01";
    QTest::newRow("today")
        << now << QDateTime::fromSecsSinceEpoch(qint64(now), Qt::UTC).toString("yyyy-MM-dd HH:mm:ss");
    QTest::newRow("last second of the calendar") << quint64(253402300799) << "9999-12-31 23:59:59";
    QTest::newRow("past the calendar") << quint64(253402300800) << "Unknown";
    QTest::newRow("highest") << highest << "Unknown";
    QTest::newRow("none") << quint64(0) << "Unknown";
}

void TestParams::startIsShownWithItsDateAlways()
{
    QFETCH(quint64, seconds);
    const StartedProcessParam param(seconds);
    QTEST(shown(param), "text");
    QCOMPARE(param.sortValue(), QVariant(seconds));
}

void TestParams::commandLineShowsArgumentsOrTheNameInBrackets_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QString>("text");
    QTest::newRow("arguments") << QByteArray("ls\0-l\0", 6) << "ls -l";
    QTest::newRow("empty argument in the middle") << QByteArray("ls\0\0-l\0", 7) << "ls  -l";
    QTest::newRow("rewritten title") << QByteArray("db: idle\0\0\0\0\0", 13) << "db: idle";
    QTest::newRow("none") << QByteArray() << "[kthreadd]";
    QTest::newRow("only null characters") << QByteArray("\0\0\0", 3) << "[kthreadd]";
}

void TestParams::commandLineShowsArgumentsOrTheNameInBrackets()
{
    QFETCH(QByteArray, arguments);
    const CommandLineProcessParam param(arguments, "kthreadd");
    QTEST(shown(param), "text");
    QCOMPARE(param.sortValue(), param.displayValue());
}

QTEST_GUILESS_MAIN(TestParams)
#include "test_params.moc"
