// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/histogeometry.h"

#include <QtTest>

#include <limits>

using namespace histogeometry;

namespace {

const QSize usual(640, 200);
const int farAway = 1 << 24;

HistoRing ringOf(std::initializer_list<quint32> oldestFirst)
{
    HistoRing ring;
    for (quint32 value : oldestFirst) {
        ring.append(value);
    }
    return ring;
}

QVector<QLine> linesOf(const HistoRing &ring, const QSize &size, qint32 maxValue)
{
    return seriesLines(ring, size, horizontalScale(size.width()), verticalScale(size.height(), maxValue));
}

} // namespace

class TestHistoGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coordinatesAreCutToTheirIntegerPart();
    void coordinatesOutOfRangeAreHeld();
    void theHorizontalScaleSpreadsAHundredSamples();
    void theVerticalScaleSpreadsTheLargestValue();
    void elevenTimeLinesLieAtTruncatedPixels();
    void timeLabelsAreCentredOnTheirLines();
    void timeLabelsCountBackInSeconds_data();
    void timeLabelsCountBackInSeconds();
    void fiveAmountLinesLieAtTruncatedPixels();
    void amountLabelsStandLeftOfTheirLines();
    void amountLabelsAreSizeTexts_data();
    void amountLabelsAreSizeTexts();
    void linesRunFromTheNewestSampleToTheOldest();
    void aSingleSampleIsJoinedToItself();
    void aFullRingDrawsItsLastHundredSamples();
    void zerosLieOnTheBaseLine();
    void aWrappedSampleLeavesTheTop();
    void anAllNegativeMaximumLeavesTheBottom();
    void noSizeOrValueLeavesTheRange();
    void theLegendStandsAtTheBottomLeft();
    void theLegendGrowsWithTheResolution();
};

void TestHistoGeometry::coordinatesAreCutToTheirIntegerPart()
{
    QCOMPARE(wholePixel(57.99), 57);
    QCOMPARE(wholePixel(57.0), 57);
    QCOMPARE(wholePixel(-0.9), 0);
    QCOMPARE(wholePixel(-1.9), -1);
}

void TestHistoGeometry::coordinatesOutOfRangeAreHeld()
{
    QCOMPARE(wholePixel(1e300), farAway);
    QCOMPARE(wholePixel(-1e300), -farAway);
    QCOMPARE(wholePixel(std::numeric_limits<double>::infinity()), farAway);
    QCOMPARE(wholePixel(-std::numeric_limits<double>::infinity()), -farAway);
    QCOMPARE(qAbs(wholePixel(std::numeric_limits<double>::quiet_NaN())), farAway);
}

void TestHistoGeometry::theHorizontalScaleSpreadsAHundredSamples()
{
    QCOMPARE(horizontalScale(640), 5.55);
    QCOMPARE(horizontalScale(185), 1.0);
    QCOMPARE(horizontalScale(85), 0.0);
    QCOMPARE(horizontalScale(0), -0.85);
}

void TestHistoGeometry::theVerticalScaleSpreadsTheLargestValue()
{
    QCOMPARE(verticalScale(200, 340), 0.5);
    QCOMPARE(verticalScale(200, std::numeric_limits<qint32>::max()), 170.0 / 2147483647.0);
    QCOMPARE(verticalScale(200, -17), -10.0);
    QCOMPARE(verticalScale(200, 0), 0.0);
    QCOMPARE(verticalScale(0, 10), -3.0);
}

void TestHistoGeometry::elevenTimeLinesLieAtTruncatedPixels()
{
    QVector<int> positions;
    for (int k = 0; k <= 100; k += 10) {
        const QLine line = timeLine(k, QSize(333, 200), horizontalScale(333));
        QCOMPARE(line.x2(), line.x1());
        QCOMPARE(line.y1(), 15);
        QCOMPARE(line.y2(), 185);
        positions << line.x1();
    }
    QCOMPARE(positions, QVector<int>({70, 94, 119, 144, 169, 194, 218, 243, 268, 293, 318}));
}

void TestHistoGeometry::timeLabelsAreCentredOnTheirLines()
{
    QCOMPARE(timeLabelRect(0, usual, 5.55), QRectF(0, 185, 140, 15));
    QCOMPARE(timeLabelRect(30, usual, 5.55), QRectF(166.5, 185, 140, 15)); // the centre is not truncated
    QCOMPARE(timeLabelRect(100, usual, 5.55), QRectF(555, 185, 140, 15));
}

void TestHistoGeometry::timeLabelsCountBackInSeconds_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<QStringList>("labels");
    const auto row = [](int interval, const char *labels) {
        QTest::newRow(qPrintable(QString::number(interval)))
            << interval << QString::fromLatin1(labels).split(QLatin1Char(' '));
    };
    row(1, "100 90 80 70 60 50 40 30 20 10 0");
    row(2, "200 180 160 140 120 100 80 60 40 20 0");
    row(5, "500 450 400 350 300 250 200 150 100 50 0");
    row(0, "0 0 0 0 0 0 0 0 0 0 0");
    row(1000000000, "100000000000 90000000000 80000000000 70000000000 60000000000 50000000000 "
                    "40000000000 30000000000 20000000000 10000000000 0");
}

void TestHistoGeometry::timeLabelsCountBackInSeconds()
{
    QFETCH(int, interval);
    QStringList labels;
    for (int k = 0; k <= 100; k += 10) {
        labels << timeLabel(k, interval);
    }
    QTEST(labels, "labels");
}

void TestHistoGeometry::fiveAmountLinesLieAtTruncatedPixels()
{
    QVector<int> positions;
    for (int i = 0; i <= 4; ++i) {
        const QLine line = amountLine(i, usual);
        QCOMPARE(line.y2(), line.y1());
        QCOMPARE(line.x1(), 70);
        QCOMPARE(line.x2(), 625);
        positions << line.y1();
    }
    QCOMPARE(positions, QVector<int>({15, 57, 100, 142, 185}));
}

void TestHistoGeometry::amountLabelsStandLeftOfTheirLines()
{
    QCOMPARE(amountLabelRect(0, usual), QRectF(0, 0, 70, 30));
    QCOMPARE(amountLabelRect(1, usual), QRectF(0, 42.5, 70, 30)); // the centre is not truncated
    QCOMPARE(amountLabelRect(4, usual), QRectF(0, 170, 70, 30));
}

void TestHistoGeometry::amountLabelsAreSizeTexts_data()
{
    QTest::addColumn<int>("maxValue");
    QTest::addColumn<QStringList>("labels");
    const auto row = [](int maxValue, const QStringList &labels) {
        QTest::newRow(qPrintable(QString::number(maxValue))) << maxValue << labels;
    };
    row(0, {"0.00 B", "0.00 B", "0.00 B", "0.00 B", "0.00 B"});
    row(1, {"1.00 B", "0.75 B", "0.50 B", "0.25 B", "0.00 B"});
    row(1023, {"1023.00 B", "767.25 B", "511.50 B", "255.75 B", "0.00 B"});
    row(1536, {"1.50 KB", "1.13 KB", "768.00 B", "384.00 B", "0.00 B"});
    // Four times the largest value, on the way to the first label, is more than 32 bits hold.
    row(std::numeric_limits<int>::max(), {"2.00 GB", "1.50 GB", "1024.00 MB", "512.00 MB", "0.00 B"});
    row(-8, {"-8.00 B", "-6.00 B", "-4.00 B", "-2.00 B", "0.00 B"});
}

void TestHistoGeometry::amountLabelsAreSizeTexts()
{
    QFETCH(int, maxValue);
    QStringList labels;
    for (int i = 0; i <= 4; ++i) {
        labels << amountLabel(i, maxValue);
    }
    QTEST(labels, "labels");
}

void TestHistoGeometry::linesRunFromTheNewestSampleToTheOldest()
{
    const QVector<QLine> lines = linesOf(ringOf({340, 100, 0, 171}), usual, 340); // half a pixel per byte
    const QPoint newest(625, 99), second(619, 185), third(613, 135), oldest(608, 15);
    QCOMPARE(lines, QVector<QLine>({QLine(newest, newest), QLine(newest, second), QLine(second, third),
                                    QLine(third, oldest)}));
}

void TestHistoGeometry::aSingleSampleIsJoinedToItself()
{
    QCOMPARE(linesOf(ringOf({5}), usual, 5), QVector<QLine>({QLine(625, 15, 625, 15)}));
}

void TestHistoGeometry::aFullRingDrawsItsLastHundredSamples()
{
    HistoRing ring;
    for (quint32 value = 0; value <= 100; ++value) { // 101 samples: the 0 is gone
        ring.append(value);
    }
    const QSize size(185, 130); // one pixel per sample and per byte
    const QVector<QLine> lines = linesOf(ring, size, 100);
    QCOMPARE(lines.size(), 100);
    for (int age = 0; age < 100; ++age) {
        QCOMPARE(lines[age].p2(), QPoint(170 - age, 15 + age));
    }
}

void TestHistoGeometry::zerosLieOnTheBaseLine()
{
    for (const QLine &line : linesOf(ringOf({0, 0, 0}), usual, 0)) {
        QCOMPARE(line.y1(), 185);
        QCOMPARE(line.y2(), 185);
    }
}

void TestHistoGeometry::aWrappedSampleLeavesTheTop()
{
    const QVector<QLine> lines = linesOf(ringOf({0, 0xffffffffU, 0}), usual, 0);
    QCOMPARE(lines[1].y2(), 185); // without any positive sample there is no scale to rise by
    QCOMPARE(linesOf(ringOf({0, 0xffffffffU, 1}), usual, 1)[1], QLine(625, 15, 619, -farAway));
}

void TestHistoGeometry::anAllNegativeMaximumLeavesTheBottom()
{
    QCOMPARE(linesOf(ringOf({0xffffffffU}), usual, -1), QVector<QLine>({QLine(625, farAway, 625, farAway)}));
}

void TestHistoGeometry::noSizeOrValueLeavesTheRange()
{
    const qint32 least = std::numeric_limits<qint32>::min();
    const qint32 most = std::numeric_limits<qint32>::max();
    const HistoRing ring = ringOf({0, 1, 0x7fffffffU, 0x80000000U, 0xffffffffU});
    for (int width : {0, 1, 84, 85, 86, 4000, 16777215}) {
        for (int height : {0, 1, 29, 30, 31, 4000, 16777215}) {
            for (qint32 maxValue : {least, -1, 0, 1, most}) {
                for (const QLine &line : linesOf(ring, QSize(width, height), maxValue)) {
                    QVERIFY(qAbs(line.x2()) <= farAway);
                    QVERIFY(qAbs(line.y2()) <= farAway);
                }
            }
        }
    }
}

void TestHistoGeometry::theLegendStandsAtTheBottomLeft()
{
    const Legend parts = legend(200, {5, 5, 95, 60});
    QCOMPARE(parts.box, QRect(QPoint(5, 135), QPoint(99, 194)));
    QCOMPARE(parts.inSwatch, QRect(10, 140, 20, 20));
    QCOMPARE(parts.outSwatch, QRect(10, 170, 20, 20));
    QCOMPARE(parts.inText, QRect(QPoint(35, 145), QPoint(124, 164)));
    QCOMPARE(parts.outText, QRect(QPoint(35, 175), QPoint(124, 194)));
}

void TestHistoGeometry::theLegendGrowsWithTheResolution()
{
    const Legend doubled = legend(200, {10, 10, 190, 120});
    QCOMPARE(doubled.box, QRect(10, 70, 190, 120));
    QCOMPARE(doubled.outSwatch, QRect(20, 140, 40, 40));

    const Legend odd = legend(200, {7, 7, 138, 87}); // half the height of the box is cut to 43
    QCOMPARE(odd.box.top(), 106);
    QCOMPARE(odd.inSwatch, QRect(14, 113, 29, 29));
    QCOMPARE(odd.outSwatch, QRect(14, 156, 29, 29));
}

QTEST_APPLESS_MAIN(TestHistoGeometry)

#include "test_histogeometry.moc"
