// SPDX-License-Identifier: GPL-3.0-or-later
#include "histopicture.h"

#include <QApplication>
#include <QTranslator>
#include <QtTest>

#include <limits>

using namespace histopicture;

namespace {

/// Shouts what is asked for in the graph's context.
class Shouting : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "TimeHisto") == 0 ? QString::fromLatin1(source).toUpper() : QString();
    }
};

} // namespace

class TestTimeHistoPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWidgetIsWhiteWithABlackBorder();
    void elevenAndFiveGridLinesAreDrawn();
    void theTimesCountBackFromTheRight_data();
    void theTimesCountBackFromTheRight();
    void theSeriesAreDrawnBlueAndRedOverOneScale();
    void outgoingLiesOverIncoming();
    void aSingleSampleIsADot();
    void zerosAreDrawnOnTheBaseLine();
    void aWrappedSampleRisesOutOfTheTop();
    void theLegendNamesBothSeries();
    void thePlotIsTheSameInEveryPalette();
    void theLegendStandsBesideItsSwatchesInRightToLeftLayoutsToo();
    void everySizeIsDrawn_data();
    void everySizeIsDrawn();
};

void TestTimeHistoPicture::theWidgetIsWhiteWithABlackBorder()
{
    TimeHisto histo(nullptr, 3);
    const QImage image = paint(histo);
    for (int x = 0; x < usual.width(); ++x) {
        QCOMPARE(image.pixelColor(x, 0), QColor(Qt::black));
        QCOMPARE(image.pixelColor(x, usual.height() - 1), QColor(Qt::black));
    }
    for (int y = 0; y < usual.height(); ++y) {
        QCOMPARE(image.pixelColor(0, y), QColor(Qt::black));
        QCOMPARE(image.pixelColor(usual.width() - 1, y), QColor(Qt::black));
    }
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    QCOMPARE(image.pixelColor(637, 397), QColor(Qt::white));
}

void TestTimeHistoPicture::elevenAndFiveGridLinesAreDrawn()
{
    TimeHisto histo(nullptr, 3);
    const QImage image = paint(histo);
    QCOMPARE(rowsOf(image, QRect(110, 2, 510, 396), isInk), QVector<int>({15, 107, 200, 292, 385}));
    const QRect turned(17, 68, 300, 570); // above the legend
    QCOMPARE(rowsOf(image.transformed(QTransform(0, 1, 1, 0, 0, 0)), turned, isInk),
             QVector<int>({70, 125, 181, 236, 292, 347, 403, 458, 514, 569, 625}));
}

void TestTimeHistoPicture::theTimesCountBackFromTheRight_data()
{
    QTest::addColumn<int>("interval");
    for (int interval : {1, 2, 3, 5}) {
        QTest::newRow(qPrintable(QString::number(interval))) << interval;
    }
}

void TestTimeHistoPicture::theTimesCountBackFromTheRight()
{
    QFETCH(int, interval);
    TimeHisto histo(nullptr, interval);
    QCOMPARE(paint(histo).copy(usualTimes), timesFor(interval));
}

void TestTimeHistoPicture::theSeriesAreDrawnBlueAndRedOverOneScale()
{
    TimeHisto histo(nullptr, 3);
    for (int i = 0; i < 100; ++i) {
        add(histo, 100, 200);
    }
    const QImage image = paint(histo);
    QCOMPARE(rowsOf(image, usualPlot, isRed), QVector<int>({15}));
    QCOMPARE(rowsOf(image, usualPlot, isBlue), QVector<int>({200}));
    QVERIFY(isRed(image.pixel(623, 15)));
    QVERIFY(!isRed(image.pixel(628, 15)));
    QVERIFY(isRed(image.pixel(77, 15))); // the oldest sample lies at 75
    QVERIFY(!isRed(image.pixel(72, 15)));
}

void TestTimeHistoPicture::outgoingLiesOverIncoming()
{
    TimeHisto histo(nullptr, 3);
    for (int i = 0; i < 100; ++i) {
        add(histo, 200, 200);
    }
    const QImage image = paint(histo);
    QCOMPARE(rowsOf(image, usualPlot, isRed), QVector<int>({15}));
    QVERIFY(rowsOf(image, usualPlot, isBlue).isEmpty());
}

void TestTimeHistoPicture::aSingleSampleIsADot()
{
    TimeHisto histo(nullptr, 3);
    add(histo, 100, 200);
    const QImage image = paint(histo);
    QVERIFY(countPixels(image, QRect(624, 14, 3, 3), isRed) > 0);
    QVERIFY(countPixels(image, QRect(624, 199, 3, 3), isBlue) > 0);
    QVERIFY(countPixels(image, usualPlot, isAnyColour) <= 8);
}

void TestTimeHistoPicture::zerosAreDrawnOnTheBaseLine()
{
    TimeHisto histo(nullptr, 3);
    for (int i = 0; i < 10; ++i) {
        add(histo, 0, 0);
    }
    const QImage image = paint(histo);
    QVERIFY(isRed(image.pixel(600, 385)) && isRed(image.pixel(577, 385)));
    QCOMPARE(countPixels(image, QRect(110, 1, 529, 382), isAnyColour), 0);
    QCOMPARE(paint(histo).copy(usualAmounts), amountsFor(0));
}

void TestTimeHistoPicture::aWrappedSampleRisesOutOfTheTop()
{
    TimeHisto histo(nullptr, 3);
    add(histo, 100, 100);
    add(histo, 0xfffffc18U, 100); // a counter that fell back by 1000
    add(histo, 100, 100);
    paint(histo);
    const QImage image = paint(histo);
    QCOMPARE(image.copy(usualAmounts), amountsFor(100)); // as a signed number it is no maximum
    QVERIFY(countPixels(image, QRect(612, 1, 15, 12), isBlue) >= 12);
    QCOMPARE(countPixels(image, QRect(110, 1, 500, 12), isBlue), 0);
}

void TestTimeHistoPicture::theLegendNamesBothSeries()
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
    QVERIFY(only(QRect(60, 337, 38, 55), Qt::white)); // no grid shines through the box
    QVERIFY(isInk(image.pixel(5, 360)) && isInk(image.pixel(99, 360)) && isInk(image.pixel(50, 335)) &&
            isInk(image.pixel(50, 394)));
    const QRect in(35, 345, 20, 20), out(35, 375, 20, 20);
    QVERIFY(countPixels(image, in, isInk) > 5 && countPixels(image, out, isInk) > 5);

    Shouting translator;
    QCoreApplication::installTranslator(&translator);
    const QImage shouted = paint(histo);
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(shouted.copy(in) != image.copy(in));
    QVERIFY(shouted.copy(out) != image.copy(out));
    QCOMPARE(shouted.copy(110, 0, 530, 400), image.copy(110, 0, 530, 400));
}

void TestTimeHistoPicture::thePlotIsTheSameInEveryPalette()
{
    TimeHisto histo(nullptr, 3);
    add(histo, 1536, 1000);
    add(histo, 200, 300);
    paint(histo);
    const QImage usualImage = paint(histo);
    histo.setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::darkGray, Qt::gray, Qt::white, Qt::white,
                              Qt::black, Qt::black));
    QCOMPARE(paint(histo), usualImage);
}

void TestTimeHistoPicture::theLegendStandsBesideItsSwatchesInRightToLeftLayoutsToo()
{
    const QRect legend(0, 330, 140, 70);
    TimeHisto histo(nullptr, 3);
    histo.resize(usual);
    const QImage leftToRight = histo.grab().toImage(); // render() to an image leaves the direction out
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QImage rightToLeft = histo.grab().toImage();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(rightToLeft.copy(legend), leftToRight.copy(legend));
}

void TestTimeHistoPicture::everySizeIsDrawn_data()
{
    QTest::addColumn<QSize>("size");
    for (QSize size : {QSize(1, 1), QSize(2, 2), QSize(84, 29), QSize(85, 30), QSize(86, 31), QSize(300, 50),
                       QSize(4000, 50), QSize(50, 4000), QSize(4000, 3000)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

void TestTimeHistoPicture::everySizeIsDrawn()
{
    QFETCH(QSize, size);
    TimeHisto histo(nullptr, std::numeric_limits<int>::max());
    for (uint value : {0U, 1U, 0x7fffffffU, 0x80000000U, 0xffffffffU, 3U}) {
        add(histo, value, 0xffffffffU - value);
        QCOMPARE(paint(histo, size).pixelColor(0, 0), QColor(Qt::black));
    }
    histo.clear();
    add(histo, 0xffffffffU, 0x80000000U); // nothing but negative values
    paint(histo, size);
    QCOMPARE(paint(histo, size).pixelColor(0, size.height() - 1), QColor(Qt::black));
}

// Positions and labels are those of 96 dpi, whatever the display has.
int main(int argc, char *argv[])
{
    qputenv("QT_FONT_DPI", "96");
    QApplication application(argc, argv);
    TestTimeHistoPicture test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_timehistopicture.moc"
