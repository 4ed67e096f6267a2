// SPDX-License-Identifier: GPL-3.0-or-later
// What the gauge draws, and the signal that painting emits.
#include "resources/qprog.h"

#include <QImage>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double huge = std::numeric_limits<double>::max();

const QColor trough(70, 70, 70);
const QColor bar(0, 255, 0);

/// The gauge as it paints itself on white; at a height of 80 its units are pixels.
QImage painted(QProg &gauge, int width = 250, int height = 80)
{
    gauge.resize(width, height);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    gauge.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The colour halfway between two tick lines, at mid height: `number` counts the gaps from 0, right of x
/// = 20.
QColor gapColor(const QImage &image, int number)
{
    return image.pixelColor(25 + 10 * number, image.height() / 2);
}

/// The colour of the gauge's first gap, which is the bar's unless it is empty or absent.
QColor firstGap(QProg &gauge)
{
    return gapColor(painted(gauge), 0);
}

} // namespace

class TestQProgPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshGaugeShowsTroughAndTicks_data();
    void freshGaugeShowsTroughAndTicks();
    void frameRunsFromLightToDark();
    void barEndsAtItsLength_data();
    void barEndsAtItsLength();
    void barHasItsColour();
    void emptyRangeShowsFourBlocks_data();
    void emptyRangeShowsFourBlocks();
    void valueOutsideTheRangeShowsNoBarUntilSetAgain();
    void notANumberShowsNoBar();
    void infiniteRangesAreHandled();
    void tinySizesAreHandled();
    void heightIsStretched();
    void signalComesFromPaintingOnly();
    void noSignalOutsideTheRangeOrWithAnEmptyRange();
    void everySettingSchedulesARepaint();
};

void TestQProgPainting::freshGaugeShowsTroughAndTicks_data()
{
    QTest::addColumn<int>("width");
    for (int width : {100, 250, 251, 600, 3000}) {
        QTest::addRow("%d", width) << width;
    }
}

void TestQProgPainting::freshGaugeShowsTroughAndTicks()
{
    QFETCH(int, width);
    QProg gauge(nullptr);
    const QImage image = painted(gauge, width);
    QCOMPARE(image.pixelColor(2, 40), QColor(Qt::white)); // nothing outside the frame
    QCOMPARE(image.pixelColor(width / 2, 2), QColor(Qt::white));
    QCOMPARE(image.pixelColor(width / 2, 77), QColor(Qt::white));
    QCOMPARE(image.pixelColor(width / 2, 7), QColor(Qt::black)); // the frame's edges above and below
    QCOMPARE(image.pixelColor(width / 2, 72), QColor(Qt::black));
    QCOMPARE(image.pixelColor(width - 4, 40), QColor(Qt::black)); // and its right edge
    for (int x = 20; x < width - 10; x += 10) { // a line 2 wide covers the pixels on both sides of x
        QCOMPARE(image.pixelColor(x - 1, 40), QColor(Qt::black));
        QCOMPARE(image.pixelColor(x, 40), QColor(Qt::black));
        if (x + 5 < width - 8) {
            QCOMPARE(image.pixelColor(x + 5, 40), trough);
        }
    }
    QCOMPARE(image.pixelColor(15, 40), trough); // no line left of 20
}

void TestQProgPainting::frameRunsFromLightToDark()
{
    QProg gauge(nullptr);
    const QImage image = painted(gauge);
    int last = 256;
    for (int x = 5; x < 10; ++x) {
        const QColor color = image.pixelColor(x, 40);
        QCOMPARE(color.red(), color.green());
        QCOMPARE(color.red(), color.blue());
        QVERIFY(color.red() < last);
        QVERIFY(qAbs(color.red() - 255.0 * (14.5 - x) / 10.0) < 4.0); // white at 5, black at 15
        last = color.red();
    }
    QCOMPARE(image.pixelColor(20, 7), QColor(Qt::black));
}

void TestQProgPainting::barEndsAtItsLength_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<double>("value");
    for (int width : {250, 333, 1000}) {
        for (double value : {1.0, 10.0, 50.0, 99.0, 100.0}) {
            QTest::addRow("%d wide at %g", width, value) << width << value;
        }
    }
}

void TestQProgPainting::barEndsAtItsLength()
{
    QFETCH(int, width);
    QFETCH(double, value);
    QProg gauge(nullptr);
    gauge.setValue(value);
    const QImage image = painted(gauge, width);
    const double end = 10 + (width - 10) * value / 100;
    for (int gap = 0; 25 + 10 * gap < width - 10; ++gap) {
        const double x = 25 + 10 * gap;
        if (x + 1 < end) {
            QCOMPARE(gapColor(image, gap), bar);
        } else if (x > end) {
            QCOMPARE(gapColor(image, gap), trough);
        }
    }
    QCOMPARE(image.pixelColor(20, 40), QColor(Qt::black)); // the ticks are drawn over the bar
    QCOMPARE(image.pixelColor(25, 7), QColor(Qt::black));  // the bar doesn't cover the frame
}

void TestQProgPainting::barHasItsColour()
{
    QProg gauge(nullptr);
    gauge.setValue(100);
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::blue), QColor(1, 2, 3)}) {
        gauge.setBarColor(color);
        QCOMPARE(gapColor(painted(gauge), 3), color);
    }
}

void TestQProgPainting::emptyRangeShowsFourBlocks_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("narrow") << 250;
    QTest::newRow("wide") << 800;
}

void TestQProgPainting::emptyRangeShowsFourBlocks()
{
    QFETCH(int, width);
    QProg gauge(nullptr);
    gauge.setMaxValue(0);
    const QImage image = painted(gauge, width);
    for (int gap = 0; 25 + 10 * gap < width - 10; ++gap) {
        const int x = 25 + 10 * gap;
        const bool inBlock =
            (x >= 40 && x < 80) || (x >= 130 && x < 170) || (x >= 220 && x < 260) || (x >= 310 && x < 350);
        QCOMPARE(gapColor(image, gap), inBlock ? bar : trough);
    }
}

void TestQProgPainting::valueOutsideTheRangeShowsNoBarUntilSetAgain()
{
    QProg below(nullptr);
    below.setValue(40);
    below.setMinValue(50);
    QCOMPARE(firstGap(below), trough);
    QCOMPARE(painted(below).pixelColor(20, 40), QColor(Qt::black)); // the ticks are drawn without a bar too
    below.setValue(75);
    QCOMPARE(firstGap(below), bar);

    QProg above(nullptr);
    above.setValue(80);
    above.setMaxValue(50);
    QCOMPARE(firstGap(above), trough);

    QProg emptyRange(nullptr);
    emptyRange.setMinValue(100);
    QCOMPARE(gapColor(painted(emptyRange), 3), trough);
    emptyRange.setValue(7); // clamped into the range
    QCOMPARE(gapColor(painted(emptyRange), 3), bar);
}

void TestQProgPainting::notANumberShowsNoBar()
{
    QProg gauge(nullptr);
    QSignalSpy changes(&gauge, SIGNAL(valueChanged(double)));
    gauge.setValue(notANumber);
    QCOMPARE(firstGap(gauge), trough);
    gauge.setValue(50);
    gauge.setMaxValue(notANumber);
    QCOMPARE(firstGap(gauge), trough);
    gauge.setMinValue(notANumber);
    QCOMPARE(firstGap(gauge), trough);
    QCOMPARE(changes.size(), 0);
    gauge.setMinValue(0);
    gauge.setMaxValue(100);
    gauge.setValue(50);
    QCOMPARE(firstGap(gauge), bar);
}

void TestQProgPainting::infiniteRangesAreHandled()
{
    QProg gauge(nullptr);
    QSignalSpy changes(&gauge, SIGNAL(valueChanged(double)));
    for (double bound : {infinity, huge}) {
        gauge.setMaxValue(bound);
        gauge.setMinValue(-bound);
        QCOMPARE(firstGap(gauge), trough);
    }
    QCOMPARE(changes.size(), 2);
}

void TestQProgPainting::tinySizesAreHandled()
{
    QProg gauge(nullptr);
    gauge.setValue(100);
    for (int width = 1; width <= 30; ++width) {
        for (int height : {1, 2, 80}) {
            painted(gauge, width, height);
        }
    }
    // A negative width is not drawn mirrored.
    QCOMPARE(painted(gauge, 4).pixelColor(2, 40), QColor(Qt::white));
}

void TestQProgPainting::heightIsStretched()
{
    QProg gauge(nullptr);
    gauge.setValue(50);
    const QImage image = painted(gauge, 250, 160);
    QCOMPARE(image.pixelColor(25, 14), QColor(Qt::black));
    QCOMPARE(image.pixelColor(25, 80), bar);
    QCOMPARE(image.pixelColor(25, 137), bar);
    QCOMPARE(image.pixelColor(25, 144), QColor(Qt::black));
    QCOMPARE(image.pixelColor(25, 155), QColor(Qt::white));
}

void TestQProgPainting::signalComesFromPaintingOnly()
{
    QProg gauge(nullptr);
    QSignalSpy changes(&gauge, SIGNAL(valueChanged(double)));
    gauge.setValue(30);
    gauge.setValue(0);
    QCOMPARE(changes.size(), 0);
    painted(gauge);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.takeFirst().first().toDouble(), 0.0);
    gauge.setValue(42);
    painted(gauge);
    painted(gauge); // emitted again although nothing changed
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.last().first().toDouble(), 42.0);
}

void TestQProgPainting::noSignalOutsideTheRangeOrWithAnEmptyRange()
{
    QProg gauge(nullptr);
    QSignalSpy changes(&gauge, SIGNAL(valueChanged(double)));
    gauge.setMinValue(50);
    painted(gauge);
    gauge.setMinValue(0);
    gauge.setMaxValue(0);
    painted(gauge);
    QCOMPARE(changes.size(), 0);
}

void TestQProgPainting::everySettingSchedulesARepaint()
{
    QProg gauge(nullptr);
    gauge.show();
    QVERIFY(QTest::qWaitForWindowExposed(&gauge));
    QSignalSpy changes(&gauge, SIGNAL(valueChanged(double)));
    const QVector<std::function<void()>> settings = {
        [&] { gauge.setValue(10); },        [&] { gauge.setValue(10); },   [&] { gauge.setMinValue(1); },
        [&] { gauge.setMaxValue(90); },     [&] { gauge.setFontDim(12); }, [&] { gauge.setPrecision(1); },
        [&] { gauge.setBarColor(Qt::red); }};
    for (const auto &setting : settings) {
        QCoreApplication::processEvents();
        changes.clear();
        setting();
        QTRY_COMPARE(changes.size(), 1);
    }
}

QTEST_MAIN(TestQProgPainting)
#include "test_qprogpainting.moc"
