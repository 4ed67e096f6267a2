// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "resources/timehisto.h"

#include <QtTest>
#include <QtWidgets>

#include <arpa/inet.h>

// The network page of the whole controller on made-up interfaces.
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
    void anotherChoiceClearsTheGraphAndAddsOneSampleOfZero();
    void theSameChoiceAddsTwoSamples();
    void eachRefreshAddsTheBytesSinceTheLast();
    void aCounterThatFallsGivesAHugeSample();
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
    static QWidget *graph() { return Fixture::find<QVBoxLayout>("ltTimeHisto")->itemAt(0)->widget(); }
    // The newest sample, as the graph tells it to assistive technology.
    static QString newest() { return graph()->accessibleDescription(); }
    // How far back the drawn line of outgoing bytes reaches, in samples; 0 without a line.
    static int drawnSamples()
    {
        const QImage image = graph()->grab().toImage();
        for (int x = 110; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor color = image.pixelColor(x, y);
                if (color.red() > 150 && color.green() < 100 && color.blue() < 100) {
                    return qRound((image.width() - 15 - x) * 100.0 / (image.width() - 85)) + 1;
                }
            }
        }
        return 0;
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

void TestNetworkPage::anotherChoiceClearsTheGraphAndAddsOneSampleOfZero()
{
    fixture->start(3);
    Fixture::window()->resize(1200, 600);
    for (int i = 0; i < 20; ++i) {
        tick();
    }
    QVERIFY(drawnSamples() > 15);
    interface(0).bytesIn += 5000;
    choose(2);
    QCOMPARE(newest(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
    QVERIFY(drawnSamples() <= 1);
}

void TestNetworkPage::theSameChoiceAddsTwoSamples()
{
    fixture->start(3);
    Fixture::window()->resize(1200, 600);
    choose(2);
    tick();
    const int before = drawnSamples();
    choose(2);
    QCOMPARE(drawnSamples(), before + 2);
    QCOMPARE(newest(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
}

void TestNetworkPage::eachRefreshAddsTheBytesSinceTheLast()
{
    fixture->start(3);
    interface(1).bytesIn += 2048;
    interface(1).bytesOut += 100;
    tick();
    QCOMPARE(newest(), QStringLiteral("In: 2.00 KB, Out: 100.00 B"));
    tick();
    QCOMPARE(newest(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
}

void TestNetworkPage::aCounterThatFallsGivesAHugeSample()
{
    fixture->start(3);
    interface(1).bytesIn -= 1024;
    interface(1).bytesOut = 0;
    tick();
    QCOMPARE(newest(), QStringLiteral("In: 4.00 GB, Out: 4.00 GB"));
    drawnSamples();
    tick();
    QCOMPARE(newest(), QStringLiteral("In: 0.00 B, Out: 0.00 B"));
}

QTEST_MAIN(TestNetworkPage)
#include "test_networkpage.moc"
