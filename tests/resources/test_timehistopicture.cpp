// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/brackettranslator.h"
#include "../support/rows.h"
#include "histopicture.h"

#include <limits>

using namespace histopicture;

class TestTimeHistoPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWidgetIsWhiteWithABlackBorder()
    {
        TimeHisto histo(nullptr, 3);
        const QImage image = paint(histo);
        const auto isBlack = [](QRgb pixel) { return pixel == qRgb(0, 0, 0); };
        QCOMPARE(countPixels(image, QRect(0, 0, 640, 1), isBlack), 640);
        QCOMPARE(countPixels(image, QRect(0, 399, 640, 1), isBlack), 640);
        QCOMPARE(countPixels(image, QRect(0, 0, 1, 400), isBlack), 400);
        QCOMPARE(countPixels(image, QRect(639, 0, 1, 400), isBlack), 400);
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
        QCOMPARE(image.pixelColor(637, 397), QColor(Qt::white));
    }

    void elevenAndFiveGridLinesAreDrawn()
    {
        TimeHisto histo(nullptr, 3);
        const QImage image = paint(histo);
        QCOMPARE(rowsOf(image, QRect(110, 2, 510, 396), isInk), QVector<int>({15, 107, 200, 292, 385}));
        const QRect turned(17, 68, 300, 570); // above the legend
        QCOMPARE(rowsOf(image.transformed(QTransform(0, 1, 1, 0, 0, 0)), turned, isInk),
                 QVector<int>({70, 125, 181, 236, 292, 347, 403, 458, 514, 569, 625}));
    }

    void timesCountBackFromTheRight_data() { addNumberRows("interval", {1, 2, 3, 5}); }

    void timesCountBackFromTheRight()
    {
        QFETCH(int, interval);
        TimeHisto histo(nullptr, interval);
        QCOMPARE(paint(histo).copy(usualTimes), timesFor(interval));
    }

    void theSeriesAreDrawnBlueAndRedOverOneScale()
    {
        TimeHisto histo(nullptr, 3);
        add(histo, 100, 200, 100);
        const QImage image = paint(histo);
        QCOMPARE(rowsOf(image, usualPlot, isRed), QVector<int>({15}));
        QCOMPARE(rowsOf(image, usualPlot, isBlue), QVector<int>({200}));
        QVERIFY(isRed(image.pixel(623, 15)));
        QVERIFY(!isRed(image.pixel(628, 15)));
        QVERIFY(isRed(image.pixel(77, 15))); // the oldest sample is at 75
        QVERIFY(!isRed(image.pixel(72, 15)));

        add(histo, 200, 200, 100); // outgoing is drawn over incoming
        const QImage same = paint(histo);
        QCOMPARE(rowsOf(same, usualPlot, isRed), QVector<int>({15}));
        QVERIFY(rowsOf(same, usualPlot, isBlue).isEmpty());
    }

    void aSingleSampleIsADot()
    {
        TimeHisto histo(nullptr, 3);
        add(histo, 100, 200);
        const QImage image = paint(histo);
        QVERIFY(countPixels(image, QRect(624, 14, 3, 3), isRed) > 0);
        QVERIFY(countPixels(image, QRect(624, 199, 3, 3), isBlue) > 0);
        QVERIFY(countPixels(image, usualPlot, isAnyColour) <= 8);
    }

    void zerosAreDrawnOnTheBaseLine()
    {
        TimeHisto histo(nullptr, 3);
        add(histo, 0, 0, 10);
        const QImage image = paint(histo);
        QVERIFY(isRed(image.pixel(600, 385)) && isRed(image.pixel(577, 385)));
        QCOMPARE(countPixels(image, QRect(110, 1, 529, 382), isAnyColour), 0);
        QCOMPARE(paint(histo).copy(usualAmounts), amountsFor(0));
    }

    void aWrappedSampleLeavesTheTop()
    {
        TimeHisto histo(nullptr, 3);
        add(histo, 100, 100);
        add(histo, 0xfffffc18U, 100); // a counter that decreased by 1000
        add(histo, 100, 100);
        paint(histo);
        const QImage image = paint(histo);
        QCOMPARE(image.copy(usualAmounts), amountsFor(100)); // as a signed number it is not the maximum
        QVERIFY(countPixels(image, QRect(612, 1, 15, 12), isBlue) >= 12);
        QCOMPARE(countPixels(image, QRect(110, 1, 500, 12), isBlue), 0);
    }

    void theLegendNamesBothSeries()
    {
        TimeHisto histo(nullptr, 3);
        const QImage image = paint(histo);
        const auto only = [&image](const QRect &part, Qt::GlobalColor colour) {
            QImage plain(part.size(), image.format());
            plain.fill(colour);
            return image.copy(part) == plain;
        };
        QVERIFY(only(QRect(10, 340, 20, 20), Qt::blue));
        QVERIFY(only(QRect(10, 370, 20, 20), Qt::red));
        QVERIFY(only(QRect(60, 337, 38, 55), Qt::white)); // the box hides the grid
        QVERIFY(isInk(image.pixel(5, 360)) && isInk(image.pixel(99, 360)) && isInk(image.pixel(50, 335)) &&
                isInk(image.pixel(50, 394)));
        const QRect in(35, 345, 20, 20), out(35, 375, 20, 20);
        QVERIFY(countPixels(image, in, isInk) > 5 && countPixels(image, out, isInk) > 5);

        const BracketTranslator translator("TimeHisto");
        const QImage translated = paint(histo);
        QVERIFY(translated.copy(in) != image.copy(in));
        QVERIFY(translated.copy(out) != image.copy(out));
        QCOMPARE(translated.copy(110, 0, 530, 400), image.copy(110, 0, 530, 400));
    }

    void thePlotIsTheSameInEveryPalette()
    {
        TimeHisto histo(nullptr, 3);
        add(histo, 1536, 1000);
        add(histo, 200, 300);
        paint(histo);
        const QImage usualImage = paint(histo);
        histo.setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::darkGray, Qt::gray, Qt::white,
                                  Qt::white, Qt::black, Qt::black));
        QCOMPARE(paint(histo), usualImage);
    }

    void theLegendIsTheSameInRightToLeftLayouts()
    {
        const QRect legend(0, 330, 140, 70);
        TimeHisto histo(nullptr, 3);
        histo.resize(usual);
        const QImage leftToRight = histo.grab().toImage(); // render() to an image ignores the direction
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const QImage rightToLeft = histo.grab().toImage();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(rightToLeft.copy(legend), leftToRight.copy(legend));
    }

    void everySizeIsDrawn_data()
    {
        QTest::addColumn<QSize>("size");
        for (QSize size : {QSize(1, 1), QSize(2, 2), QSize(84, 29), QSize(85, 30), QSize(86, 31),
                           QSize(300, 50), QSize(4000, 50), QSize(50, 4000), QSize(4000, 3000)}) {
            QTest::addRow("%dx%d", size.width(), size.height()) << size;
        }
    }

    void everySizeIsDrawn()
    {
        QFETCH(QSize, size);
        TimeHisto histo(nullptr, std::numeric_limits<int>::max());
        for (uint value : {0U, 1U, 0x7fffffffU, 0x80000000U, 0xffffffffU, 3U}) {
            add(histo, value, 0xffffffffU - value);
            QCOMPARE(paint(histo, size).pixelColor(0, 0), QColor(Qt::black));
        }
        histo.clear();
        add(histo, 0xffffffffU, 0x80000000U); // only negative values
        paint(histo, size);
        QCOMPARE(paint(histo, size).pixelColor(0, size.height() - 1), QColor(Qt::black));
    }
};

int main(int argc, char *argv[])
{
    return runAt96Dpi<TestTimeHistoPicture>(argc, argv);
}

#include "test_timehistopicture.moc"
