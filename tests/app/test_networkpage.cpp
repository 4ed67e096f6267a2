// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "resources/timehisto.h"

#include <QtTest>

#include <arpa/inet.h>

// The network page of the whole controller on made-up interfaces. What the graph was given is read from its
// accessible description and its picture elsewhere; here its slots are watched through a derived ring count.
class TestNetworkPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void interfacesAreListedByName();
    void theFirstInterfaceIsShownAtStart();
    void totalsAndNotRatesAreShown();
    void anotherInterfaceIsShownWhenChosen();
    void aChoiceRunsTheSlotTwice();
    void theChoiceIsKeptByPosition();
    void aPositionThatIsNotThereChangesNothing_data();
    void aPositionThatIsNotThereChangesNothing();
    void aMachineWithoutInterfacesHasAnEmptyChooser();
    void interfacesThatComeLaterAreListedWithoutAChoice();
    void aVanishedInterfaceLeavesTheLastTexts();
    void fiveHundredInterfacesWithLongAndForeignNames();

private:
    void tick() { QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 3)); }
    void choose(int index)
    {
        auto *chooser = Fixture::find<QComboBox>("comboNet");
        chooser->setCurrentIndex(index);
        QMetaObject::invokeMethod(chooser, "activated", Q_ARG(int, index));
    }
    static QStringList names()
    {
        const auto *chooser = Fixture::find<QComboBox>("comboNet");
        QStringList result;
        for (int i = 0; i < chooser->count(); ++i) {
            result << chooser->itemText(i);
        }
        return result;
    }
    static standin::Interface &interface(std::size_t index)
    {
        return standin::machine().interfaces->at(index);
    }

    std::unique_ptr<Fixture> fixture;
};

void TestNetworkPage::init()
{
    fixture = std::make_unique<Fixture>();
}

void TestNetworkPage::cleanup()
{
    fixture.reset();
}

void TestNetworkPage::interfacesAreListedByName()
{
    fixture->start(3);
    QCOMPARE(names(), QStringList({"eth0", "lo", "wlan0"}));
}

void TestNetworkPage::theFirstInterfaceIsShownAtStart()
{
    fixture->start(3);
    QCOMPARE(Fixture::find<QComboBox>("comboNet")->currentIndex(), 0);
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("10.0.0.7"));
    QCOMPARE(Fixture::text("netMask"), QStringLiteral("255.0.0.0"));
    QCOMPARE(Fixture::text("netErrors"), QStringLiteral("0"));
}

void TestNetworkPage::totalsAndNotRatesAreShown()
{
    fixture->start(3);
    QCOMPARE(Fixture::text("netIn"), QStringLiteral("4.00 KB"));
    QCOMPARE(Fixture::text("netOut"), QStringLiteral("512.00 B"));
    interface(1).bytesIn += 1024;
    interface(1).errors = 7;
    tick();
    QCOMPARE(Fixture::text("netIn"), QStringLiteral("5.00 KB"));
    QCOMPARE(Fixture::text("netErrors"), QStringLiteral("7"));
}

void TestNetworkPage::anotherInterfaceIsShownWhenChosen()
{
    fixture->start(3);
    choose(2);
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("192.168.1.2"));
    QCOMPARE(Fixture::text("netMask"), QStringLiteral("255.255.255.0"));
    QCOMPARE(Fixture::text("netErrors"), QStringLiteral("3"));
    tick();
    QCOMPARE(Fixture::find<QComboBox>("comboNet")->currentText(), QStringLiteral("wlan0"));
}

void TestNetworkPage::theChoiceIsKeptByPosition()
{
    fixture->start(3);
    choose(1);
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("127.0.0.1"));
    standin::machine().interfaces->push_back({"aaa", inet_addr("10.9.9.9"), 0, 0, 0, 0, false});
    tick();
    QCOMPARE(names(), QStringList({"aaa", "eth0", "lo", "wlan0"}));
    QCOMPARE(Fixture::find<QComboBox>("comboNet")->currentText(), QStringLiteral("eth0"));
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("10.0.0.7"));
}

void TestNetworkPage::aPositionThatIsNotThereChangesNothing_data()
{
    QTest::addColumn<int>("index");
    for (int index : {-1, -7, 3, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QTest::newRow(QByteArray::number(index).constData()) << index;
    }
}

void TestNetworkPage::aPositionThatIsNotThereChangesNothing()
{
    QFETCH(int, index);
    fixture->start(3);
    choose(2);
    const QString address = Fixture::text("netAdress");
    QMetaObject::invokeMethod(&fixture->updater(), "setNetDevice", Q_ARG(int, index));
    QCOMPARE(Fixture::text("netAdress"), address);
    tick();
    QCOMPARE(Fixture::find<QComboBox>("comboNet")->currentIndex(), 2);
}

void TestNetworkPage::aMachineWithoutInterfacesHasAnEmptyChooser()
{
    standin::machine().interfaces->clear();
    fixture->start(3);
    QCOMPARE(names(), QStringList());
    QCOMPARE(Fixture::text("netAdress"), QString());
    tick();
    QCOMPARE(names(), QStringList());
}

void TestNetworkPage::interfacesThatComeLaterAreListedWithoutAChoice()
{
    const auto interfaces = standin::machine().interfaces;
    standin::machine().interfaces->clear();
    fixture->start(3);
    standin::machine().interfaces = interfaces;
    tick();
    QCOMPARE(names(), QStringList({"eth0", "lo", "wlan0"}));
    choose(0);
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("10.0.0.7"));
}

void TestNetworkPage::aVanishedInterfaceLeavesTheLastTexts()
{
    fixture->start(3);
    choose(2);
    standin::machine().interfaces->erase(standin::machine().interfaces->begin());
    tick();
    QCOMPARE(names(), QStringList({"eth0", "lo"}));
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("192.168.1.2"));
}

void TestNetworkPage::fiveHundredInterfacesWithLongAndForeignNames()
{
    standin::machine().interfaces->clear();
    for (int i = 0; i < 498; ++i) {
        const QByteArray name = QByteArray("veth") + QByteArray::number(i).rightJustified(11, '0');
        standin::machine().interfaces->push_back({name.toStdString(), 0, 0, 0, 0, 0, false});
    }
    standin::machine().interfaces->push_back({"\xd1\x81\xd0\xb5\xd1\x82\xd1\x8c", 0, 0, 0, 0, 0, false});
    standin::machine().interfaces->push_back({"bad\xff\xfe", 0, 0, 0, 0, 0, false});
    fixture->start(3);
    QCOMPARE(names().size(), 500);
    QVERIFY(names().contains(QString::fromUtf8("\xd1\x81\xd0\xb5\xd1\x82\xd1\x8c")));
    QVERIFY(names().contains(QString::fromUtf8("bad\xff\xfe")));
    QCOMPARE(Fixture::text("netAdress"), QStringLiteral("0.0.0.0"));
}
