// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "resources/historing.h"

#include <QtTest>

#include <algorithm>
#include <deque>
#include <limits>

namespace {

std::deque<quint32> newestFirst(const HistoRing &ring)
{
    std::deque<quint32> result;
    for (quint64 age = 0; ring.hasData && age < ring.count(); ++age) {
        result.push_back(ring.at(age));
    }
    return result;
}

} // namespace

class TestHistoRing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewRingIsEmptyWithAHundredZeros()
    {
        HistoRing ring;
        QVERIFY(!ring.hasData);
        QCOMPARE(ring.capacity, quint64(100));
        QCOMPARE(ring.values, std::vector<quint32>(100, 0));
        QCOMPARE(ring.head, quint64(0));
        QCOMPARE(ring.tail, quint64(0));
        QCOMPARE(ring.count(), quint64(1)); // intentional: only hasData distinguishes an empty ring

        ring.append(std::numeric_limits<quint32>::max());
        QVERIFY(ring.hasData);
        QCOMPARE(ring.values[0], std::numeric_limits<quint32>::max());
    }

    void headAndTailFollowTheSamples_data()
    {
        const Rows<int, quint64, quint64, quint64> rows("appends", "head", "tail", "count");
        const auto row = [&](int appends, quint64 head, quint64 tail, quint64 count) {
            rows(QByteArray::number(appends), appends, head, tail, count);
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

    void headAndTailFollowTheSamples()
    {
        QFETCH(int, appends);
        HistoRing ring;
        appendSamples(ring, appends);
        QTEST(ring.head, "head");
        QTEST(ring.tail, "tail");
        QTEST(ring.count(), "count");
    }

    void holdsTheSameAsAQueueOfAHundred()
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

    void aClearedRingStartsOver_data() { addNumberRows("before", {0, 1, 50, 100, 101, 150, 250}); }

    void aClearedRingStartsOver()
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

    void theLargestSampleIsComparedAsSigned()
    {
        HistoRing ring;
        const std::vector<std::pair<quint32, qint32>> samples = {
            {0xffffffffU, -1}, {0x80000000U, -1}, {0, 0}, {0x7fffffffU, 0x7fffffff}};
        for (const auto &[value, largest] : samples) {
            ring.append(value);
            QCOMPARE(ring.largest(), largest);
        }
        for (quint32 i = 0; i < 100; ++i) {
            ring.append(i % 40);
        }
        QCOMPARE(ring.largest(), 39); // dropped samples no longer count
    }

private:
    static quint32 sample(int i) { return static_cast<quint32>(i) * 2654435761U; }
    static void appendSamples(HistoRing &ring, int count)
    {
        for (int i = 0; i < count; ++i) {
            ring.append(sample(i));
        }
    }
};

QTEST_APPLESS_MAIN(TestHistoRing)
#include "test_historing.moc"
