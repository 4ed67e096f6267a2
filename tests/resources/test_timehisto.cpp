// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/brackettranslator.h"
#include "../support/rows.h"
#include "histopicture.h"

#include <QtTest>

#include <limits>
#include <utility>

using namespace histopicture;

namespace {

/// Counts the paint events of a shown widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget)
    {
        widget.resize(usual);
        widget.show();
        ready = QTest::qWaitForWindowExposed(&widget);
        settle();
        widget.installEventFilter(this);
    }
    /// Paint events since the last call.
    int take()
    {
        settle();
        return std::exchange(paints, 0);
    }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    bool ready = false;

private:
    static void settle()
    {
        for (int i = 0; i < 10; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    int paints = 0;
};

} // namespace

class TestTimeHisto : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slotsAreInOrder()
    {
        const QMetaObject &meta = TimeHisto::staticMetaObject;
        QList<QByteArray> slots;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            slots << meta.method(i).methodSignature();
        }
        QCOMPARE(slots, (QList<QByteArray>{"addValueIn(uint)", "addValueOut(uint)", "clear()"}));
    }

    void theAmountsLagOnePaintBehind()
    {
        TimeHisto histo(nullptr, 3);
        const auto amounts = [&histo] { return paint(histo).copy(usualAmounts); };
        QCOMPARE(amounts(), amountsFor(0));
        add(histo, 1536, 100);
        QCOMPARE(amounts(), amountsFor(0));
        QCOMPARE(amounts(), amountsFor(1536));
        add(histo, 5, 5000);
        QCOMPARE(amounts(), amountsFor(1536));
        QCOMPARE(amounts(), amountsFor(5000));
    }

    void withOneSeriesOnlyGridAndLegendAreDrawn_data()
    {
        const Rows<bool> row("incomingOnly");
        row("incoming", true);
        row("outgoing", false);
    }

    void withOneSeriesOnlyGridAndLegendAreDrawn()
    {
        QFETCH(bool, incomingOnly);
        TimeHisto histo(nullptr, 3);
        add(histo, 1536, 1000);
        paint(histo);
        histo.clear();
        const QImage empty = paint(histo);
        QCOMPARE(empty.copy(usualAmounts), amountsFor(1536));

        for (uint value : {7U, 2000000U, 9U}) {
            incomingOnly ? histo.addValueIn(value) : histo.addValueOut(value);
        }
        QCOMPARE(paint(histo), empty);
        QCOMPARE(paint(histo), empty); // the old maximum is kept
    }

    void theLargestOfTheLastHundredSamplesSetsTheScale()
    {
        TimeHisto histo(nullptr, 3);
        add(histo, 5000, 0);
        add(histo, 40, 10, 99);
        paint(histo);
        QCOMPARE(paint(histo).copy(usualAmounts), amountsFor(5000));
        add(histo, 40, 10);
        const QImage image = paint(histo);
        QCOMPARE(rowsOf(image, usualPlot, isBlue), QVector<int>({15}));
        QCOMPARE(paint(histo).copy(usualAmounts), amountsFor(40));
    }

    void paintingChangesNoSample()
    {
        TimeHisto histo(nullptr, 3);
        for (uint i = 0; i < 150; ++i) {
            add(histo, i * 7919 % 1000, i * 104729 % 1000);
        }
        paint(histo);
        const QImage second = paint(histo);
        QCOMPARE(paint(histo), second);
        paint(histo, QSize(90, 31));
        QCOMPARE(paint(histo), second);
    }

    void everyNewSampleSchedulesAPaint()
    {
        TimeHisto histo(nullptr, 3);
        PaintCounter paints(histo);
        QVERIFY(paints.ready);
        QCOMPARE(paints.take(), 0);
        histo.addValueIn(1);
        QCOMPARE(paints.take(), 1);
        histo.addValueOut(1);
        QCOMPARE(paints.take(), 1); // the labels of the new maximum wait for the next one
    }

    void aNewIntervalDiscardsTheSamplesWithoutAPaint()
    {
        TimeHisto histo(nullptr, 3);
        PaintCounter paints(histo);
        QVERIFY(paints.ready);
        add(histo, 10, 20, 2);
        QCOMPARE(paints.take(), 1);
        QVERIFY(countPixels(paint(histo), usualPlot, isAnyColour) > 0);
        paints.take();

        histo.setInterval(5);
        QCOMPARE(paints.take(), 0);
        const QImage image = paint(histo);
        QCOMPARE(countPixels(image, usualPlot, isAnyColour), 0);
        QCOMPARE(image.copy(usualTimes), timesFor(5));
        QCOMPARE(image.copy(usualAmounts), amountsFor(20)); // the maximum is kept
    }

    void clearingDiscardsTheSamplesWithAPaint()
    {
        TimeHisto histo(nullptr, 3);
        PaintCounter paints(histo);
        QVERIFY(paints.ready);
        add(histo, 10, 20, 101);
        paints.take();
        histo.clear();
        QCOMPARE(paints.take(), 1);
        QCOMPARE(countPixels(paint(histo), usualPlot, isAnyColour), 0);

        add(histo, 30, 30, 2);
        const QImage image = paint(histo);
        QVERIFY(isRed(image.pixel(622, 15)));
        QVERIFY(!isRed(image.pixel(612, 15))); // the earlier samples are discarded
    }

    void theAccessibleDescriptionGivesTheNewestSamples()
    {
        TimeHisto histo(nullptr, 3);
        QCOMPARE(histo.accessibleName(), QString("Network traffic"));
        QCOMPARE(histo.accessibleDescription(), QString());
        histo.addValueIn(1536);
        QCOMPARE(histo.accessibleDescription(), QString());
        histo.addValueOut(100);
        QCOMPARE(histo.accessibleDescription(), QString("In: 1.50 KB, Out: 100.00 B"));
        add(histo, 0, 0xffffffffU);
        QCOMPARE(histo.accessibleDescription(), QString("In: 0.00 B, Out: 4.00 GB"));
        histo.setInterval(1);
        QCOMPARE(histo.accessibleDescription(), QString());
        add(histo, 1, 1);
        histo.clear();
        QCOMPARE(histo.accessibleDescription(), QString());
    }

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
    return runAt96Dpi<TestTimeHisto>(argc, argv);
}

#include "test_timehisto.moc"
