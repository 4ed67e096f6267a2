// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/qprog.h"

#include "../support/rows.h"

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

} // namespace

class TestQProgPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshGaugeShowsTroughAndTicks_data() { addNumberRows("width", {100, 250, 251, 600, 3000}); }

    void freshGaugeShowsTroughAndTicks()
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

    void frameRunsFromLightToDark()
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

    void barEndsAtItsLength_data()
    {
        const Rows<int, double, QColor> row("width", "value", "color");
        for (int width : {250, 333, 1000}) {
            for (double value : {1.0, 10.0, 50.0, 99.0, 100.0}) {
                row(QByteArray::number(width) + " wide at " + QByteArray::number(value), width, value, bar);
            }
        }
        for (const QColor &color : {QColor(Qt::red), QColor(Qt::blue), QColor(1, 2, 3)}) {
            row(color.name().toLatin1(), 250, 100.0, color);
        }
    }

    void barEndsAtItsLength()
    {
        QFETCH(int, width);
        QFETCH(double, value);
        QFETCH(QColor, color);
        QProg gauge(nullptr);
        gauge.setBarColor(color);
        gauge.setValue(value);
        const QImage image = painted(gauge, width);
        const double end = 10 + (width - 10) * value / 100;
        for (int gap = 0; 25 + 10 * gap < width - 10; ++gap) {
            const double x = 25 + 10 * gap;
            if (x + 1 < end || x > end) { // not where the edge is antialiased
                QCOMPARE(gapColor(image, gap), x < end ? color : trough);
            }
        }
        QCOMPARE(image.pixelColor(20, 40), QColor(Qt::black)); // the ticks are drawn over the bar
        QCOMPARE(image.pixelColor(25, 7), QColor(Qt::black));  // the bar doesn't cover the frame
    }

    void emptyRangeShowsFourBlocks_data() { addNumberRows("width", {250, 800}); }

    void emptyRangeShowsFourBlocks()
    {
        QFETCH(int, width);
        QProg gauge(nullptr);
        gauge.setMaxValue(0);
        const QImage image = painted(gauge, width);
        for (int gap = 0; 25 + 10 * gap < width - 10; ++gap) {
            const int x = 25 + 10 * gap;
            const bool inBlock = (x >= 40 && x < 80) || (x >= 130 && x < 170) || (x >= 220 && x < 260) ||
                                 (x >= 310 && x < 350);
            QCOMPARE(gapColor(image, gap), inBlock ? bar : trough);
        }
    }

    void barAndSignalNeedAValueInsideTheRange_data()
    {
        // The numbers in the order in which they are set.
        const Rows<QVector<double>, QColor, int> row("valueMaxMinValue", "color", "signalCount");
        row("value inside the range", {50, 100, 0}, bar, 1);
        row("value below a raised minimum", {40, 100, 50}, trough, 0);
        row("value below a raised minimum, set again", {40, 100, 50, 75}, bar, 1);
        row("value above a lowered maximum", {80, 50, 0}, trough, 0);
        row("value below an empty range", {0, 100, 100}, trough, 0);
        row("value below an empty range, set again and thereby clamped", {0, 100, 100, 7}, bar, 0);
        row("value inside an empty range", {0, 0, 0}, bar, 0);
        row("value that is not a number", {notANumber, 100, 0}, trough, 0);
        row("maximum that is not a number", {50, notANumber, 0}, trough, 0);
        row("minimum that is not a number", {50, 100, notANumber}, trough, 0);
        row("range that is not a number", {50, notANumber, notANumber}, trough, 0);
        row("infinite range", {0, infinity, -infinity}, trough, 1);
        row("range that overflows", {0, huge, -huge}, trough, 1);
    }

    void barAndSignalNeedAValueInsideTheRange()
    {
        QFETCH(QVector<double>, valueMaxMinValue);
        QProg gauge(nullptr);
        for (double former : {0.0, notANumber}) { // a gauge also recovers from what is not a number
            gauge.setValue(former);
            gauge.setMaxValue(former);
            gauge.setMinValue(former);
            gauge.setMinValue(0);
            gauge.setMaxValue(100);
            QSignalSpy changes(&gauge, SIGNAL(valueChanged(double)));
            gauge.setValue(valueMaxMinValue.at(0));
            gauge.setMaxValue(valueMaxMinValue.at(1));
            gauge.setMinValue(valueMaxMinValue.at(2));
            if (valueMaxMinValue.size() == 4) {
                gauge.setValue(valueMaxMinValue.at(3));
            }
            const QImage image = painted(gauge);
            QTEST(gapColor(image, 3), "color");
            QCOMPARE(image.pixelColor(20, 40), QColor(Qt::black)); // the ticks need no bar
            QTEST(changes.size(), "signalCount");
        }
    }

    void tinySizesAreHandled()
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

    void heightIsStretched()
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

    void signalComesFromPaintingOnly()
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

    void everySettingSchedulesARepaint()
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
};

QTEST_MAIN(TestQProgPainting)
#include "test_qprogpainting.moc"
