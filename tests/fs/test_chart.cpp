// SPDX-License-Identifier: GPL-3.0-or-later
#include "fs/chart.h"

#include <QAccessible>
#include <QImage>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();
const double largest = std::numeric_limits<double>::max();
constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr int highestInt = std::numeric_limits<int>::max();

const QColor paper(255, 255, 255);
const QColor red(Qt::red);
const QColor blue(Qt::blue);

/// What a chart of that size paints on white paper. `value` is left alone if it is null.
QImage picture(const QSize &size, const double *value)
{
    Chart chart;
    QPalette palette;
    palette.setColor(QPalette::Window, paper);
    palette.setColor(QPalette::WindowText, Qt::black);
    chart.setPalette(palette);
    chart.resize(size);
    if (value) {
        chart.setValue(*value);
    }
    QImage image(size, QImage::Format_RGB32);
    chart.render(&image);
    return image;
}

QImage picture(const QSize &size, double value)
{
    return picture(size, &value);
}

/// The colour in the pie of a 240 x 200 chart, half a radius from its middle, at that many degrees
/// counter-clockwise from three o'clock.
QColor colorAt(const QImage &image, double degrees)
{
    const double angle = degrees * std::acos(-1.0) / 180.0;
    return image.pixelColor(static_cast<int>(std::lround(110 + 40 * std::cos(angle))),
                            static_cast<int>(std::lround(90 - 40 * std::sin(angle))));
}

/// Whether the outline lies between the two pixels, which then share its smoothed line.
bool outlineBetween(const QImage &image, const QPoint &one, const QPoint &other)
{
    return qMax(image.pixelColor(one).green(), image.pixelColor(other).green()) < 190;
}

/// Whether the outline touches the four sides of the square (30, 10, 160, 160).
bool outlineFillsTheSquare(const QImage &image)
{
    return outlineBetween(image, {110, 9}, {110, 10}) && outlineBetween(image, {110, 169}, {110, 170}) &&
           outlineBetween(image, {29, 90}, {30, 90}) && outlineBetween(image, {189, 90}, {190, 90});
}

class CountingChart : public Chart
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        Chart::paintEvent(event);
    }
};

} // namespace

class TestChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePieKeepsAMarginAndLiesLeftOfTheMiddle_data();
    void thePieKeepsAMarginAndLiesLeftOfTheMiddle();
    void anglesAreTruncatedEachByItself_data();
    void anglesAreTruncatedEachByItself();
    void theColorsAreRedForUsedAndBlueForAvailable();
    void aNewChartShowsTheEmptyCircle();
    void whatIsNoValueShowsTheEmptyCircle_data();
    void whatIsNoValueShowsTheEmptyCircle();
    void sharesAreDrawnFromThreeOClock_data();
    void sharesAreDrawnFromThreeOClock();
    void nothingIsDrawnOutsideThePie();
    void onlyMinusOneItselfIsNoValue();
    void smallWidgetsAreDrawnWithANegativeDiameter();
    void everySizeAndValueIsDrawn();
    void aNewValueIsPainted();
    void theLastValueStays();
    void assistiveTechnologyIsToldTheShare_data();
    void assistiveTechnologyIsToldTheShare();
    void noSignalsSlotsOrPropertiesOfItsOwn();
};

void TestChart::thePieKeepsAMarginAndLiesLeftOfTheMiddle_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("diameter");
    QTest::newRow("240 x 200") << QSize(240, 200) << 30 << 160;
    QTest::newRow("200 x 240") << QSize(200, 240) << 10 << 160;
    QTest::newRow("241 x 200, truncated") << QSize(241, 200) << 30 << 160;
    QTest::newRow("40 x 40") << QSize(40, 40) << 10 << 0;
    QTest::newRow("39 x 200") << QSize(39, 200) << 10 << -1;
    QTest::newRow("200 x 39") << QSize(200, 39) << 90 << -1;
    QTest::newRow("20 x 20") << QSize(20, 20) << 10 << -20;
    QTest::newRow("nothing") << QSize(0, 0) << 10 << -40;
}

void TestChart::thePieKeepsAMarginAndLiesLeftOfTheMiddle()
{
    QFETCH(QSize, size);
    QTEST(chartGeometry(size).x, "x");
    QTEST(chartGeometry(size).diameter, "diameter");
}

void TestChart::anglesAreTruncatedEachByItself_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("usedSpan");
    QTest::addColumn<int>("availSpan");
    QTest::newRow("all available") << 100.0 << 0 << 5760;
    QTest::newRow("full disk") << 0.0 << 5760 << 0;
    QTest::newRow("a quarter") << 25.0 << 4320 << 1440;
    QTest::newRow("one short of the circle") << 33.3 << 3841 << 1918;
    QTest::newRow("toward zero below zero") << 100.01 << 0 << 5760;
    QTest::newRow("more than all") << 150.0 << -2880 << 8640;
    QTest::newRow("less than none") << -50.0 << 8640 << -2880;
    QTest::newRow("more than an int holds") << 1e300 << lowestInt << highestInt;
    QTest::newRow("less than an int holds") << -1e300 << highestInt << lowestInt;
    QTest::newRow("the largest number") << largest << lowestInt << highestInt;
}

void TestChart::anglesAreTruncatedEachByItself()
{
    QFETCH(double, value);
    const ChartAngles angles = chartAngles(value);
    QTEST(angles.usedSpan, "usedSpan");
    QTEST(angles.availSpan, "availSpan");
    QCOMPARE(angles.availStart, angles.usedSpan);
}

void TestChart::theColorsAreRedForUsedAndBlueForAvailable()
{
    QCOMPARE(Chart::usedColor(), red);
    QCOMPARE(Chart::availColor(), blue);
}

void TestChart::aNewChartShowsTheEmptyCircle()
{
    const QImage image = picture(QSize(240, 200), nullptr);
    for (int degrees = 0; degrees < 360; degrees += 45) {
        QCOMPARE(colorAt(image, degrees), paper);
    }
    QVERIFY(outlineFillsTheSquare(image));
    QCOMPARE(image.pixelColor(110, 20), paper);
}

void TestChart::whatIsNoValueShowsTheEmptyCircle_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("-1") << -1.0;
    QTest::newRow("not a number") << notANumber;
    QTest::newRow("negative not a number") << -notANumber;
    QTest::newRow("infinite") << infinite;
    QTest::newRow("negative infinite") << -infinite;
}

void TestChart::whatIsNoValueShowsTheEmptyCircle()
{
    QFETCH(double, value);
    QCOMPARE(picture(QSize(240, 200), value), picture(QSize(240, 200), nullptr));
}

void TestChart::sharesAreDrawnFromThreeOClock_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("usedUpTo"); // degrees
    QTest::newRow("full disk") << 0.0 << 360;
    QTest::newRow("a quarter available") << 25.0 << 270;
    QTest::newRow("half available") << 50.0 << 180;
    QTest::newRow("all available") << 100.0 << 0;
}

void TestChart::sharesAreDrawnFromThreeOClock()
{
    QFETCH(double, value);
    QFETCH(int, usedUpTo);
    const QImage image = picture(QSize(240, 200), value);
    for (int degrees = 15; degrees < 360; degrees += 20) {
        QCOMPARE(colorAt(image, degrees), degrees < usedUpTo ? red : blue);
    }
    QVERIFY(outlineFillsTheSquare(image));
}

void TestChart::nothingIsDrawnOutsideThePie()
{
    const QImage image = picture(QSize(240, 200), 25.0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (std::hypot(x + 0.5 - 110, y + 0.5 - 90) > 82) {
                QCOMPARE(image.pixelColor(x, y), paper);
            }
        }
    }
}

void TestChart::onlyMinusOneItselfIsNoValue()
{
    QCOMPARE(colorAt(picture(QSize(240, 200), -1.0), 45), paper);
    QCOMPARE(colorAt(picture(QSize(240, 200), -1.5), 45), red);
    QCOMPARE(colorAt(picture(QSize(240, 200), std::nextafter(-1.0, 0.0)), 45), red);
}

void TestChart::smallWidgetsAreDrawnWithANegativeDiameter()
{
    // The square (10, 10, -20, -20) is that from (-10, -10) to (10, 10).
    const QImage full = picture(QSize(20, 20), 0.0);
    QCOMPARE(full.pixelColor(3, 3), red);
    QCOMPARE(full.pixelColor(15, 15), paper);
    QCOMPARE(picture(QSize(20, 20), 100.0).pixelColor(3, 3), blue);
    QCOMPARE(picture(QSize(20, 20), notANumber).pixelColor(3, 3), paper);
}

void TestChart::everySizeAndValueIsDrawn()
{
    for (const QSize size : {QSize(1, 1), QSize(39, 39), QSize(40, 40), QSize(41, 41), QSize(1, 500)}) {
        for (const double value :
             {-1.0, 0.0, 25.0, 100.0, 150.0, -50.0, 1e300, -1e300, largest, notANumber}) {
            QCOMPARE(picture(size, value).size(), size);
        }
    }
}

void TestChart::aNewValueIsPainted()
{
    CountingChart chart;
    chart.resize(240, 200);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    QTRY_VERIFY(chart.paints > 0);
    const int before = chart.paints;
    chart.setValue(25.0);
    QTRY_VERIFY(chart.paints > before);
}

void TestChart::theLastValueStays()
{
    Chart chart;
    chart.resize(240, 200);
    chart.setValue(0.0);
    for (int repaint = 0; repaint < 3; ++repaint) {
        QCOMPARE(colorAt(chart.grab().toImage(), 45), red);
    }
    chart.setValue(100.0);
    QCOMPARE(colorAt(chart.grab().toImage(), 45), blue);
}

void TestChart::assistiveTechnologyIsToldTheShare_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("description");
    QTest::newRow("a quarter") << 25.0 << "25% available";
    QTest::newRow("rounded") << 66.6 << "67% available";
    QTest::newRow("full disk") << 0.0 << "0% available";
    QTest::newRow("no value") << -1.0 << "No file system selected";
    QTest::newRow("not a number") << notANumber << "No file system selected";
}

void TestChart::assistiveTechnologyIsToldTheShare()
{
    QFETCH(double, value);
    Chart chart;
    QCOMPARE(chart.accessibleDescription(), QStringLiteral("No file system selected"));
    chart.setValue(value);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&chart);
    QVERIFY(interface);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Disk usage"));
    QTEST(interface->text(QAccessible::Description), "description");
}

void TestChart::noSignalsSlotsOrPropertiesOfItsOwn()
{
    const QMetaObject &meta = Chart::staticMetaObject;
    QCOMPARE(meta.className(), "Chart");
    QCOMPARE(meta.methodCount(), QWidget::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QWidget::staticMetaObject.propertyCount());
}

QTEST_MAIN(TestChart)
#include "test_chart.moc"
