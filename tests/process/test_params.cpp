// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
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

} // namespace

Q_DECLARE_METATYPE(ParamPtr)

class TestParams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        tzset();
    }

    void baseShowsAndSortsByItsDisplayValue()
    {
        IProcessParam param(QStringLiteral("a"));
        QCOMPARE(param.displayValue(), QVariant(QStringLiteral("a")));
        QCOMPARE(param.sortValue(), QVariant(QStringLiteral("a")));
        param.setDisplayValue(7);
        QCOMPARE(param.displayValue(), QVariant(7));
        QCOMPARE(param.sortValue(), QVariant(7));
        QVERIFY(!IProcessParam().displayValue().isValid());
    }

    void baseIsDestroyedThroughAPointerToIt()
    {
        QVERIFY(std::has_virtual_destructor_v<IProcessParam>);
        QVERIFY((std::is_base_of_v<IProcessParam, SimpleProcessParam>));
        QVERIFY((std::is_base_of_v<IProcessParam, IntProcessParam>));
        QVERIFY((std::is_base_of_v<IProcessParam, CpuProcessParam>));
    }

    void cpuIsWrittenFromOutside()
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

    void cpuThatIsNanSortsBelowAllOthers()
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

    void textOnDemandIsMadeOnce()
    {
        const CountingParam param;
        QCOMPARE(param.made, 0);
        QCOMPARE(param.displayValue(), QVariant(QStringLiteral("text")));
        QCOMPARE(param.displayValue(), QVariant(QStringLiteral("text")));
        QCOMPARE(param.sortValue(), QVariant(QStringLiteral("text")));
        QCOMPARE(param.made, 1);
    }

    void showsAndSorts_data()
    {
        const Rows<ParamPtr, QVariant, QVariant> row("param", "display", "sortValue");
        row("text", ParamPtr(new SimpleProcessParam("init")), "init", "init");
        row("integer with text", ParamPtr(new IntProcessParam(16, "Stopped")), "Stopped", 16);
        for (const int number : {std::numeric_limits<int>::min(), -20, 0, std::numeric_limits<int>::max()}) {
            QTest::addRow("integer %d", number)
                << ParamPtr(new IntProcessParam(number)) << QVariant(number) << QVariant(number);
        }
        const auto size = [&](const char *name, quint64 bytes, const char *text) {
            row(name, ParamPtr(new SizeProcessParam(bytes)), text, bytes);
        };
        size("size of a kernel thread", 0, "0.00 B");
        size("size of a page", 4096, "4.00 KB");
        size("size beyond 32 bits", 6442450944, "6.00 GB");
        size("highest size", highest, "17179869184.00 GB");
        const auto cpuTime = [&](const char *name, quint64 jiffies, quint64 frequency, const char *text) {
            row(name, ParamPtr(new CpuTimeProcessParam(jiffies, frequency)), text, jiffies);
        };
        cpuTime("no CPU time", 0, 100, "0:00:00");
        cpuTime("CPU time under a second", 99, 100, "0:00:00");
        cpuTime("CPU time of a minute", 6000, 100, "0:01:00");
        cpuTime("CPU time with all parts", 372500, 100, "1:02:05");
        cpuTime("CPU time of days", 36000000, 100, "100:00:00");
        cpuTime("CPU time at another frequency", 372500, 1000, "0:06:12");
        cpuTime("highest CPU time", highest, 100, "51240955760304:18:36");
        cpuTime("CPU time without a frequency", 500, 0, "");
        const auto started = [&](const char *name, quint64 seconds, const QString &text) {
            row(name, ParamPtr(new StartedProcessParam(seconds)), text, seconds);
        };
        const QDateTime now = QDateTime::currentDateTimeUtc();
        started("started long ago", 86461, "1970-01-02 00:01:01");
        started("started today, with the date", quint64(now.toSecsSinceEpoch()),
                now.toString("yyyy-MM-dd HH:mm:ss"));
        started("started in the last second of the calendar", 253402300799, "9999-12-31 23:59:59");
        started("started past the calendar", 253402300800, "Unknown");
        started("highest start", highest, "Unknown");
        started("no start", 0, "Unknown");
        const auto commandLine = [&](const char *name, const QByteArray &arguments, const char *text) {
            row(name, ParamPtr(new CommandLineProcessParam(arguments, "kthreadd")), text, text);
        };
        commandLine("arguments", QByteArray("ls\0-l\0", 6), "ls -l");
        commandLine("empty argument in the middle", QByteArray("ls\0\0-l\0", 7), "ls  -l");
        commandLine("rewritten title", QByteArray("db: idle\0\0\0\0\0", 13), "db: idle");
        commandLine("no arguments", QByteArray(), "[kthreadd]");
        commandLine("only null characters", QByteArray("\0\0\0", 3), "[kthreadd]");
    }

    void showsAndSorts()
    {
        QFETCH(ParamPtr, param);
        QTEST(param->displayValue(), "display");
        QTEST(param->sortValue(), "sortValue");
    }
};

QTEST_GUILESS_MAIN(TestParams)
#include "test_params.moc"
