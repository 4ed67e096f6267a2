// SPDX-License-Identifier: GPL-3.0-or-later
#include "histopicture.h"

#include "integration/dpi.h"

namespace {

/// Bounding rectangle of the dark pixels in `part`.
QRect inkIn(const QImage &image, const QRect &part)
{
    QRect ink;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// The graph at 640x400 after 100 samples with a maximum of "1023.00 MB".
QImage busyGraph()
{
    TimeHisto histo(nullptr, 5);
    histopicture::add(histo, 1023U << 20, 0, 100);
    histopicture::paint(histo);
    return histopicture::paint(histo); // the amounts lag one paint behind
}

} // namespace

class TestTimeHisto192Dpi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLegendHasTwiceItsSize()
    {
        QCOMPARE(zarnDpiScaled(1.0), 2.0);
        const histogeometry::LegendSizes sizes = histogeometry::legendSizes();
        QCOMPARE(sizes.margin, 10);
        QCOMPARE(sizes.spacing, 10);
        QCOMPARE(sizes.boxWidth, 190);
        QCOMPARE(sizes.boxHeight, 120);

        const QImage image = busyGraph();
        for (const QPoint &corner : {QPoint(20, 280), QPoint(59, 319)}) {
            QCOMPARE(image.pixelColor(corner), QColor(Qt::blue));
            QCOMPARE(image.pixelColor(corner + QPoint(0, 60)), QColor(Qt::red));
        }
    }

    void noLabelIsCut()
    {
        const QImage image = busyGraph();
        const QRect amount = inkIn(image, QRect(1, 1, 68, 60)); // up to where the grid begins
        QVERIFY(amount.width() > 40);                           // there is a label
        QVERIFY(amount.left() >= 2);
        QVERIFY(amount.right() <= 67);
        const QRect time = inkIn(image, QRect(210, 386, 428, 13)); // between the base line and the border
        QVERIFY(time.width() > 300);
        QVERIFY(time.top() >= 387);
        QVERIFY(time.bottom() <= 397);
    }
};

int main(int argc, char *argv[])
{
    qputenv("QT_FONT_DPI", "192");
    QApplication application(argc, argv);
    TestTimeHisto192Dpi test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_timehisto_192dpi.moc"
