// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/historing.h"

#include <QtTest>

#include <algorithm>
#include <deque>
#include <limits>

namespace {

/// A spread of 32-bit values, the same in every run.
quint32 sample(int i)
{
    return static_cast<quint32>(i) * 2654435761U;
}

std::deque<quint32> newestFirst(const HistoRing &ring)
{
    std::deque<quint32> result;
    for (quint64 age = 0; ring.hasData && age < ring.count(); ++age) {
        result.push_back(ring.at(age));
    }
    return result;
}

void appendSamples(HistoRing &ring, int count)
{
    for (int i = 0; i < count; ++i) {
        ring.append(sample(i));
    }
}

} // namespace

class TestHistoRing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewRingIsEmptyWithAHundredZeros();
    void theFirstSampleLiesAtTheFirstEntry();
    void headAndTailFollowTheSamples_data();
    void headAndTailFollowTheSamples();
    void holdsWhatAPlainQueueOfAHundredHolds();
    void aClearedRingStartsAgain_data();
    void aClearedRingStartsAgain();
    void theLargestSampleIsComparedAsSigned();
};

void TestHistoRing::aNewRingIsEmptyWithAHundredZeros()
{
    const HistoRing ring;
    QVERIFY(!ring.hasData);
    QCOMPARE(ring.capacity, quint64(100));
    QCOMPARE(ring.values, std::vector<quint32>(100, 0));
    QCOMPARE(ring.head, quint64(0));
    QCOMPARE(ring.tail, quint64(0));
    QCOMPARE(ring.count(), quint64(1)); // meant: emptiness is told by hasData alone
}

void TestHistoRing::theFirstSampleLiesAtTheFirstEntry()
{
    HistoRing ring;
    ring.append(std::numeric_limits<quint32>::max());
    QVERIFY(ring.hasData);
    QCOMPARE(ring.values[0], std::numeric_limits<quint32>::max());
    QCOMPARE(ring.head, quint64(0));
    QCOMPARE(ring.tail, quint64(0));
    QCOMPARE(ring.count(), quint64(1));
}

void TestHistoRing::headAndTailFollowTheSamples_data()
{
    QTest::addColumn<int>("appends");
    QTest::addColumn<quint64>("head");
    QTest::addColumn<quint64>("tail");
    QTest::addColumn<quint64>("count");
    const auto row = [](int appends, quint64 head, quint64 tail, quint64 count) {
        QTest::newRow(qPrintable(QString::number(appends))) << appends << head << tail << count;
    };
    row(1, 0, 0, 1);
    row(2, 0, 1, 2);
    row(99, 0, 98, 99);
    row(100, 0, 99, 100);
    row(101, 1, 0, 100);
    row(102, 2, 1, 100);
    row(199, 99, 98, 100);
    row(200, 0, 99, 100);
    row(201, 1, 0, 100);
    row(1000, 0, 99, 100);
}

void TestHistoRing::headAndTailFollowTheSamples()
{
    QFETCH(int, appends);
    HistoRing ring;
    appendSamples(ring, appends);
    QTEST(ring.head, "head");
    QTEST(ring.tail, "tail");
    QTEST(ring.count(), "count");
}

void TestHistoRing::holdsWhatAPlainQueueOfAHundredHolds()
{
    HistoRing ring;
    std::deque<quint32> queue;
    for (int i = 0; i < 1000; ++i) {
        ring.append(sample(i));
        queue.push_front(sample(i));
        if (queue.size() > 100) {
            queue.pop_back();
        }
        QCOMPARE(newestFirst(ring), queue);
        QCOMPARE(ring.values[ring.head], queue.back());
        QCOMPARE(ring.values[ring.tail], queue.front());
    }
}

void TestHistoRing::aClearedRingStartsAgain_data()
{
    QTest::addColumn<int>("before");
    for (int before : {0, 1, 50, 100, 101, 150, 250}) {
        QTest::newRow(qPrintable(QString::number(before))) << before;
    }
}

void TestHistoRing::aClearedRingStartsAgain()
{
    QFETCH(int, before);
    HistoRing ring;
    appendSamples(ring, before);
    ring.clear();
    QVERIFY(!ring.hasData);
    QCOMPARE(ring.head, quint64(0));
    QCOMPARE(ring.tail, quint64(0));

    ring.append(7);
    ring.append(8);
    QCOMPARE(newestFirst(ring), (std::deque<quint32>{8, 7}));
    appendSamples(ring, 101);
    QCOMPARE(ring.count(), quint64(100));
    QCOMPARE(ring.at(99), sample(1));
}

void TestHistoRing::theLargestSampleIsComparedAsSigned()
{
    HistoRing ring;
    ring.append(0xffffffffU);
    QCOMPARE(ring.largest(), -1);
    ring.append(0x80000000U);
    QCOMPARE(ring.largest(), -1);
    ring.append(0);
    QCOMPARE(ring.largest(), 0);
    ring.append(0x7fffffffU);
    QCOMPARE(ring.largest(), std::numeric_limits<qint32>::max());
    for (quint32 i = 0; i < 100; ++i) {
        ring.append(i % 40);
    }
    QCOMPARE(ring.largest(), 39); // what has left the ring counts no longer
}

QTEST_APPLESS_MAIN(TestHistoRing)

#include "test_historing.moc"
