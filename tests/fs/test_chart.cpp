// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
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

const QSize usual(240, 200);

/// What a chart paints on white paper.
QImage pictureOf(Chart &chart, const QSize &size = usual)
{
    QPalette palette;
    palette.setColor(QPalette::Window, paper);
    palette.setColor(QPalette::WindowText, Qt::black);
    chart.setPalette(palette);
    chart.resize(size);
    QImage image(size, QImage::Format_RGB32);
    chart.render(&image);
    return image;
}

QImage picture(double value, const QSize &size = usual)
{
    Chart chart;
    chart.setValue(value);
    return pictureOf(chart, size);
}

/// The colour in the pie of a 240 x 200 chart, half a radius from its centre, `degrees` counter-clockwise
/// from three o'clock.
QColor colorAt(const QImage &image, double degrees)
{
    const double angle = degrees * std::acos(-1.0) / 180.0;
    return image.pixelColor(static_cast<int>(std::lround(110 + 40 * std::cos(angle))),
                            static_cast<int>(std::lround(90 - 40 * std::sin(angle))));
}

/// Whether the antialiased outline covers the two adjacent pixels.
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

/// Name and description as assistive technology reads them: "Disk usage: 25% available".
QString accessibleTextOf(Chart &chart)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&chart);
    return interface->text(QAccessible::Name) + ": " + interface->text(QAccessible::Description);
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
    void thePieKeepsAMarginAndIsLeftOfTheCentre_data()
    {
        const Rows<QSize, int, int> row("size", "x", "diameter");
        row("240 x 200", QSize(240, 200), 30, 160);
        row("200 x 240", QSize(200, 240), 10, 160);
        row("241 x 200, truncated", QSize(241, 200), 30, 160);
        row("40 x 40", QSize(40, 40), 10, 0);
        row("39 x 200", QSize(39, 200), 10, -1);
        row("200 x 39", QSize(200, 39), 90, -1);
        row("20 x 20", QSize(20, 20), 10, -20);
        row("nothing", QSize(0, 0), 10, -40);
    }

    void thePieKeepsAMarginAndIsLeftOfTheCentre()
    {
        QFETCH(QSize, size);
        QTEST(chartGeometry(size).x, "x");
        QTEST(chartGeometry(size).diameter, "diameter");
    }

    void anglesAreTruncatedSeparately_data()
    {
        const Rows<double, int, int> row("value", "usedSpan", "availSpan");
        row("all available", 100.0, 0, 5760);
        row("full disk", 0.0, 5760, 0);
        row("a quarter", 25.0, 4320, 1440);
        row("one short of the circle", 33.3, 3841, 1918);
        row("toward zero below zero", 100.01, 0, 5760);
        row("more than all", 150.0, -2880, 8640);
        row("less than none", -50.0, 8640, -2880);
        row("more than an int holds", 1e300, lowestInt, highestInt);
        row("less than an int holds", -1e300, highestInt, lowestInt);
        row("the largest number", largest, lowestInt, highestInt);
    }

    void anglesAreTruncatedSeparately()
    {
        QFETCH(double, value);
        const ChartAngles angles = chartAngles(value);
        QTEST(angles.usedSpan, "usedSpan");
        QTEST(angles.availSpan, "availSpan");
        QCOMPARE(angles.availStart, angles.usedSpan);
    }

    void noValueShowsTheEmptyCircle_data()
    {
        const Rows<double> row("value");
        row("-1", -1.0);
        row("not a number", notANumber);
        row("negative not a number", -notANumber);
        row("infinite", infinite);
        row("negative infinite", -infinite);
    }

    void noValueShowsTheEmptyCircle()
    {
        QFETCH(double, value);
        Chart chart;
        const QImage image = pictureOf(chart);
        for (int degrees = 0; degrees < 360; degrees += 45) {
            QCOMPARE(colorAt(image, degrees), paper);
        }
        QVERIFY(outlineFillsTheSquare(image));
        QCOMPARE(image.pixelColor(110, 20), paper);
        chart.setValue(value);
        QCOMPARE(pictureOf(chart), image);
        QCOMPARE(accessibleTextOf(chart), QString("Disk usage: No file system selected"));
        chart.setValue(std::numeric_limits<double>::quiet_NaN(), "No answer");
        QCOMPARE(accessibleTextOf(chart), QString("Disk usage: No answer"));
    }

    void sharesAreDrawnFromThreeOClock_data()
    {
        const Rows<double, int, QString> row("value", "usedUpToDegrees", "accessibleText");
        row("full disk", 0.0, 360, "Disk usage: 0% available");
        row("a quarter available", 25.0, 270, "Disk usage: 25% available");
        row("half available", 50.0, 180, "Disk usage: 50% available");
        row("rounded", 66.6, 120, "Disk usage: 67% available");
        row("all available", 100.0, 0, "Disk usage: 100% available");
        row("less than none", -1.5, 360, "Disk usage: -2% available");
        row("nearly no value", std::nextafter(-1.0, 0.0), 360, "Disk usage: -1% available");
    }

    void sharesAreDrawnFromThreeOClock()
    {
        QFETCH(double, value);
        QFETCH(int, usedUpToDegrees);
        Chart chart;
        QCOMPARE(accessibleTextOf(chart), QString("Disk usage: No file system selected"));
        chart.setValue(value);
        const QImage image = pictureOf(chart);
        for (int degrees = 15; degrees < 360; degrees += 20) {
            QCOMPARE(colorAt(image, degrees), degrees < usedUpToDegrees ? red : blue);
        }
        QVERIFY(outlineFillsTheSquare(image));
        QTEST(accessibleTextOf(chart), "accessibleText");
    }

    void nothingIsDrawnOutsideThePieWhoseColorsHaveAKey()
    {
        QCOMPARE(Chart::usedColor(), red);
        QCOMPARE(Chart::availColor(), blue);
        const QImage image = picture(25.0);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (std::hypot(x + 0.5 - 110, y + 0.5 - 90) > 82) {
                    QCOMPARE(image.pixelColor(x, y), paper);
                }
            }
        }
    }

    void everySizeAndValueIsDrawnSmallOnesWithANegativeDiameter()
    {
        // The square (10, 10, -20, -20) extends from (-10, -10) to (10, 10).
        const QImage full = picture(0.0, QSize(20, 20));
        QCOMPARE(full.pixelColor(3, 3), red);
        QCOMPARE(full.pixelColor(15, 15), paper);
        QCOMPARE(picture(100.0, QSize(20, 20)).pixelColor(3, 3), blue);
        QCOMPARE(picture(notANumber, QSize(20, 20)).pixelColor(3, 3), paper);
        for (const QSize size : {QSize(1, 1), QSize(39, 39), QSize(40, 40), QSize(41, 41), QSize(1, 500)}) {
            for (const double value :
                 {-1.0, 0.0, 25.0, 100.0, 150.0, -50.0, 1e300, -1e300, largest, notANumber}) {
                QCOMPARE(picture(value, size).size(), size);
            }
        }
    }

    void aNewValueIsPaintedAndStays()
    {
        CountingChart chart;
        chart.resize(usual);
        chart.show();
        QVERIFY(QTest::qWaitForWindowExposed(&chart));
        QTRY_VERIFY(chart.paints > 0);
        const int before = chart.paints;
        chart.setValue(0.0);
        QTRY_VERIFY(chart.paints > before);
        for (int repaint = 0; repaint < 3; ++repaint) {
            QCOMPARE(colorAt(chart.grab().toImage(), 45), red);
        }
        chart.setValue(100.0);
        QCOMPARE(colorAt(chart.grab().toImage(), 45), blue);
    }

    void noSignalsSlotsOrPropertiesOfItsOwn()
    {
        const QMetaObject &meta = Chart::staticMetaObject;
        QCOMPARE(meta.className(), "Chart");
        QCOMPARE(meta.methodCount(), QWidget::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QWidget::staticMetaObject.propertyCount());
    }
};

QTEST_MAIN(TestChart)
#include "test_chart.moc"
