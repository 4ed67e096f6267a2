// SPDX-License-Identifier: GPL-3.0-or-later
// The Network page of the whole controller on made-up interfaces.
#include "../support/rows.h"
#include "fixture.h"

#include <QtTest>
#include <QtWidgets>

#include <arpa/inet.h>

#include <limits>

class TestNetworkPage : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void interfacesAreListedByNameAndTheFirstIsShown()
    {
        fixture->start(3);
        QCOMPARE(names(), QStringList({"eth0", "lo", "wlan0"}));
        QCOMPARE(chooser()->currentIndex(), 0);
        QCOMPARE(texts(), QStringList({"10.0.0.7", "255.0.0.0", "4.00 KB", "512.00 B", "0"}));
        // Totals, not rates.
        interface(1).bytesIn += 1024;
        interface(1).errors = 7;
        fixture->refresh(3);
        QCOMPARE(texts(), QStringList({"10.0.0.7", "255.0.0.0", "5.00 KB", "512.00 B", "7"}));
    }

    void anotherChoiceClearsTheGraphAndAddsOneSampleOfZero()
    {
        fixture->start(3);
        Fixture::window()->resize(1200, 600);
        for (int i = 0; i < 20; ++i) {
            fixture->refresh(3);
        }
        QVERIFY(Fixture::drawnSamples() > 15);
        interface(0).bytesIn += 5000;
        choose(2);
        QCOMPARE(newestSample(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
        QVERIFY(Fixture::drawnSamples() <= 1);
    }

    void sameChoiceAddsTwoSamples()
    {
        fixture->start(3);
        Fixture::window()->resize(1200, 600);
        choose(2);
        fixture->refresh(3);
        const int before = Fixture::drawnSamples();
        choose(2);
        QCOMPARE(Fixture::drawnSamples(), before + 2);
        QCOMPARE(newestSample(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
    }

    void eachRefreshAddsTheBytesSinceTheLast_data()
    {
        const Rows<quint64, quint64, QString> row("bytesIn", "bytesOut", "sample");
        row("rising", 6144, 612, "In: 2.00 KB, Out: 100.00 B");
        row("falling wraps", 3072, 0, "In: 4.00 GB, Out: 4.00 GB");
    }

    void eachRefreshAddsTheBytesSinceTheLast()
    {
        QFETCH(quint64, bytesIn);
        QFETCH(quint64, bytesOut);
        fixture->start(3);
        interface(1).bytesIn = bytesIn;
        interface(1).bytesOut = bytesOut;
        fixture->refresh(3);
        QTEST(newestSample(), "sample");
        Fixture::drawnSamples(); // even a huge sample can be painted
        fixture->refresh(3);
        QCOMPARE(newestSample(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
    }

    void choiceIsShownAndKeptByPosition()
    {
        fixture->start(3);
        choose(2);
        QCOMPARE(texts(), QStringList({"192.168.1.2", "255.255.255.0", "2.00 KB", "1.00 KB", "3"}));
        fixture->refresh(3);
        QCOMPARE(chooser()->currentText(), QStringLiteral("wlan0"));
        choose(1);
        QCOMPARE(texts().first(), QStringLiteral("127.0.0.1"));
        standin::machine().interfaces->push_back({"aaa", inet_addr("10.9.9.9"), 0, 0, 0, 0, false});
        fixture->refresh(3);
        QCOMPARE(names(), QStringList({"aaa", "eth0", "lo", "wlan0"}));
        QCOMPARE(chooser()->currentText(), QStringLiteral("eth0"));
        QCOMPARE(texts().first(), QStringLiteral("10.0.0.7"));
    }

    void missingPositionChangesNothing_data()
    {
        addNumberRows("index",
                      {-1, -7, 3, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
    }

    void missingPositionChangesNothing()
    {
        QFETCH(int, index);
        fixture->start(3);
        choose(2);
        const QStringList before = texts();
        fixture->updater().setNetDevice(index);
        QCOMPARE(texts(), before);
        fixture->refresh(3);
        QCOMPARE(chooser()->currentIndex(), 2);
    }

    void withoutInterfacesNothingIsShownUntilSomeCome()
    {
        const auto interfaces = standin::machine().interfaces;
        standin::machine().interfaces->clear();
        fixture->start(3);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(names(), QStringList());
            QCOMPARE(texts(), QStringList({"", "", "", "", ""}));
            fixture->refresh(3);
        }
        standin::machine().interfaces = interfaces;
        fixture->refresh(3);
        QCOMPARE(names(), QStringList({"eth0", "lo", "wlan0"}));
        choose(0);
        QCOMPARE(texts().first(), QStringLiteral("10.0.0.7"));
    }

    void vanishedInterfaceLeavesTheLastTexts()
    {
        fixture->start(3);
        choose(2);
        standin::machine().interfaces->erase(standin::machine().interfaces->begin());
        fixture->refresh(3);
        QCOMPARE(names(), QStringList({"eth0", "lo"}));
        QCOMPARE(texts().first(), QStringLiteral("192.168.1.2"));
    }

    void manyInterfacesWithLongAndForeignNamesAreListed()
    {
        standin::machine().interfaces->clear();
        for (int i = 0; i < 498; ++i) {
            const QByteArray name = QByteArray("veth") + QByteArray::number(i).rightJustified(11, '0');
            standin::machine().interfaces->push_back({name.toStdString(), 0, 0, 0, 0, 0, false});
        }
        for (const char *name : {"\xd1\x81\xd0\xb5\xd1\x82\xd1\x8c", "bad\xff\xfe"}) {
            standin::machine().interfaces->push_back({name, 0, 0, 0, 0, 0, false});
        }
        fixture->start(3);
        QCOMPARE(names().size(), 500);
        QVERIFY(names().contains(QString::fromUtf8("\xd1\x81\xd0\xb5\xd1\x82\xd1\x8c")));
        QVERIFY(names().contains(QString::fromUtf8("bad\xff\xfe")));
        QCOMPARE(texts().first(), QStringLiteral("0.0.0.0"));
    }

private:
    static QComboBox *chooser() { return Fixture::find<QComboBox>("comboNet"); }
    static void choose(int index)
    {
        chooser()->setCurrentIndex(index);
        QMetaObject::invokeMethod(chooser(), "activated", Q_ARG(int, index));
    }
    static QStringList names()
    {
        QStringList result;
        for (int i = 0; i < chooser()->count(); ++i) {
            result << chooser()->itemText(i);
        }
        return result;
    }
    /// What the page shows of the current interface; the first is the address.
    static QStringList texts()
    {
        QStringList result;
        for (const char *label : {"netAdress", "netMask", "netIn", "netOut", "netErrors"}) {
            result << Fixture::text(label);
        }
        return result;
    }
    /// As the graph tells assistive technology.
    static QString newestSample() { return Fixture::graph()->accessibleDescription(); }
    static standin::Interface &interface(std::size_t index)
    {
        return standin::machine().interfaces->at(index);
    }
};

QTEST_MAIN(TestNetworkPage)
#include "test_networkpage.moc"
