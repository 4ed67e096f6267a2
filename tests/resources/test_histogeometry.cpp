// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "resources/histogeometry.h"

#include <QtTest>

#include <limits>
#include <numeric>

using namespace histogeometry;

namespace {

const QSize usual(640, 200);
const int farAway = 1 << 24;
const qint32 most = std::numeric_limits<qint32>::max();

QVector<QLine> linesOf(const QVector<quint32> &oldestFirst, const QSize &size, qint32 maxValue)
{
    HistoRing ring;
    for (quint32 value : oldestFirst) {
        ring.append(value);
    }
    return seriesLines(ring, size, horizontalScale(size.width()), verticalScale(size.height(), maxValue));
}

QString timeLabels(int interval)
{
    QStringList labels;
    for (int k = 0; k <= 100; k += 10) {
        labels << timeLabel(k, interval);
    }
    return labels.join(", ");
}

QString amountLabels(qint32 maxValue)
{
    QStringList labels;
    for (int i = 0; i <= 4; ++i) {
        labels << amountLabel(i, maxValue);
    }
    return labels.join(", ");
}

} // namespace

class TestHistoGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coordinatesAreTruncatedAndClamped()
    {
        QCOMPARE(wholePixel(57.99), 57);
        QCOMPARE(wholePixel(57.0), 57);
        QCOMPARE(wholePixel(-0.9), 0);
        QCOMPARE(wholePixel(-1.9), -1);
        QCOMPARE(wholePixel(1e300), farAway);
        QCOMPARE(wholePixel(-1e300), -farAway);
        QCOMPARE(wholePixel(std::numeric_limits<double>::infinity()), farAway);
        QCOMPARE(wholePixel(-std::numeric_limits<double>::infinity()), -farAway);
        QCOMPARE(qAbs(wholePixel(std::numeric_limits<double>::quiet_NaN())), farAway);
    }

    void scalesSpreadAHundredSamplesAndTheLargestValue()
    {
        QCOMPARE(horizontalScale(640), 5.55);
        QCOMPARE(horizontalScale(185), 1.0);
        QCOMPARE(horizontalScale(85), 0.0);
        QCOMPARE(horizontalScale(0), -0.85);
        QCOMPARE(verticalScale(200, 340), 0.5);
        QCOMPARE(verticalScale(200, most), 170.0 / 2147483647.0);
        QCOMPARE(verticalScale(200, -17), -10.0);
        QCOMPARE(verticalScale(200, 0), 0.0);
        QCOMPARE(verticalScale(0, 10), -3.0);
    }

    void gridLinesAreAtTruncatedPixels()
    {
        int k = 0;
        for (int x : {70, 94, 119, 144, 169, 194, 218, 243, 268, 293, 318}) {
            QCOMPARE(timeLine(k, QSize(333, 200), horizontalScale(333)), QLine(x, 15, x, 185));
            k += 10;
        }
        int i = 0;
        for (int y : {15, 57, 100, 142, 185}) {
            QCOMPARE(amountLine(i, usual), QLine(70, y, 625, y));
            ++i;
        }
    }

    void labelsAreCentredOnTheirLines()
    {
        // The centre is not truncated.
        QCOMPARE(timeLabelRect(0, usual, 5.55), QRectF(0, 185, 140, 15));
        QCOMPARE(timeLabelRect(30, usual, 5.55), QRectF(166.5, 185, 140, 15));
        QCOMPARE(timeLabelRect(100, usual, 5.55), QRectF(555, 185, 140, 15));
        QCOMPARE(amountLabelRect(0, usual), QRectF(0, 0, 70, 30));
        QCOMPARE(amountLabelRect(1, usual), QRectF(0, 42.5, 70, 30));
        QCOMPARE(amountLabelRect(4, usual), QRectF(0, 170, 70, 30));
    }

    void timeLabelsAreSecondsAndAmountLabelsAreSizes_data()
    {
        const Rows<QString, QString> row("labels", "expected");
        const auto times = [&](int interval, const char *expected) {
            row("interval " + QByteArray::number(interval), timeLabels(interval), expected);
        };
        times(1, "100, 90, 80, 70, 60, 50, 40, 30, 20, 10, 0");
        times(2, "200, 180, 160, 140, 120, 100, 80, 60, 40, 20, 0");
        times(5, "500, 450, 400, 350, 300, 250, 200, 150, 100, 50, 0");
        times(0, "0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0");
        times(1000000000, "100000000000, 90000000000, 80000000000, 70000000000, 60000000000, 50000000000, "
                          "40000000000, 30000000000, 20000000000, 10000000000, 0");
        const auto amounts = [&](qint32 maxValue, const char *expected) {
            row("maximum " + QByteArray::number(maxValue), amountLabels(maxValue), expected);
        };
        amounts(0, "0.00 B, 0.00 B, 0.00 B, 0.00 B, 0.00 B");
        amounts(1, "1.00 B, 0.75 B, 0.50 B, 0.25 B, 0.00 B");
        amounts(1023, "1023.00 B, 767.25 B, 511.50 B, 255.75 B, 0.00 B");
        amounts(1536, "1.50 KB, 1.13 KB, 768.00 B, 384.00 B, 0.00 B");
        // The intermediate product, four times the maximum, overflows 32 bits.
        amounts(most, "2.00 GB, 1.50 GB, 1024.00 MB, 512.00 MB, 0.00 B");
        amounts(-8, "-8.00 B, -6.00 B, -4.00 B, -2.00 B, 0.00 B");
    }

    void timeLabelsAreSecondsAndAmountLabelsAreSizes()
    {
        QFETCH(QString, labels);
        QTEST(labels, "expected");
    }

    void linesRunFromTheNewestSampleToTheOldest_data()
    {
        const Rows<QVector<quint32>, qint32, QVector<QPoint>> row("oldestFirst", "maxValue", "newestFirst");
        row("half a pixel per byte", {340, 100, 0, 171}, 340, {{625, 99}, {619, 185}, {613, 135}, {608, 15}});
        row("a single sample is joined to itself", {5}, 5, {{625, 15}});
        row("zeros are on the base line", {0, 0, 0}, 0, {{625, 185}, {619, 185}, {613, 185}});
        row("a wrapped sample leaves the top", {0, 0xffffffffU, 1}, 1,
            {{625, 15}, {619, -farAway}, {613, 185}});
        row("a wrapped sample among zeros is on the base line", {0, 0xffffffffU, 0}, 0,
            {{625, 185}, {619, 185}, {613, 185}});
        row("a negative maximum leaves the bottom", {0xffffffffU}, -1, {{625, farAway}});
    }

    void linesRunFromTheNewestSampleToTheOldest()
    {
        QFETCH(QVector<quint32>, oldestFirst);
        QFETCH(qint32, maxValue);
        QFETCH(QVector<QPoint>, newestFirst);
        QVector<QLine> expected;
        QPoint previous = newestFirst.first();
        for (const QPoint &point : qAsConst(newestFirst)) {
            expected << QLine(previous, point);
            previous = point;
        }
        QCOMPARE(linesOf(oldestFirst, usual, maxValue), expected);
    }

    void aFullRingDrawsItsLastHundredSamples()
    {
        QVector<quint32> samples(101); // the first one is dropped
        std::iota(samples.begin(), samples.end(), 0U);
        const QVector<QLine> lines =
            linesOf(samples, QSize(185, 130), 100); // one pixel per sample and per byte
        QCOMPARE(lines.size(), 100);
        for (int age = 0; age < 100; ++age) {
            QCOMPARE(lines[age].p2(), QPoint(170 - age, 15 + age));
        }
    }

    void noSizeOrValueLeavesTheRange()
    {
        const qint32 least = std::numeric_limits<qint32>::min();
        const QVector<quint32> samples = {0, 1, 0x7fffffffU, 0x80000000U, 0xffffffffU};
        for (int width : {0, 1, 84, 85, 86, 4000, 16777215}) {
            for (int height : {0, 1, 29, 30, 31, 4000, 16777215}) {
                for (qint32 maxValue : {least, -1, 0, 1, most}) {
                    for (const QLine &line : linesOf(samples, QSize(width, height), maxValue)) {
                        QVERIFY(qAbs(line.x2()) <= farAway);
                        QVERIFY(qAbs(line.y2()) <= farAway);
                    }
                }
            }
        }
    }

    void theLegendScalesWithItsSizes()
    {
        const Legend parts = legend(200, {5, 5, 95, 60});
        QCOMPARE(parts.box, QRect(QPoint(5, 135), QPoint(99, 194)));
        QCOMPARE(parts.inSwatch, QRect(10, 140, 20, 20));
        QCOMPARE(parts.outSwatch, QRect(10, 170, 20, 20));
        QCOMPARE(parts.inText, QRect(QPoint(35, 145), QPoint(124, 164)));
        QCOMPARE(parts.outText, QRect(QPoint(35, 175), QPoint(124, 194)));

        const Legend doubled = legend(200, {10, 10, 190, 120});
        QCOMPARE(doubled.box, QRect(10, 70, 190, 120));
        QCOMPARE(doubled.outSwatch, QRect(20, 140, 40, 40));

        const Legend odd = legend(200, {7, 7, 138, 87}); // half the box height is truncated to 43
        QCOMPARE(odd.box.top(), 106);
        QCOMPARE(odd.inSwatch, QRect(14, 113, 29, 29));
        QCOMPARE(odd.outSwatch, QRect(14, 156, 29, 29));
    }
};

QTEST_APPLESS_MAIN(TestHistoGeometry)
#include "test_histogeometry.moc"
