// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "histopicture.h"

#include <QtTest>

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
};

int main(int argc, char *argv[])
{
    return runAt96Dpi<TestTimeHisto>(argc, argv);
}

#include "test_timehisto.moc"
