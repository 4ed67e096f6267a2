// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QJsonArray>
#include <QtTest>

#include <arpa/inet.h>

class TestNetworkPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theFirstInterfaceIsChosenAtTheStart();
    void growingCountersDrawTheirLines();
    void countersThatFallBackLeaveTheTopOfTheGraph();
    void anInterfaceThatComesBeforeTheChosenOneTakesItsPlace();
    void whenTheChosenOneGoesItsFiguresStayUntilItIsBack();
    void withoutInterfacesThePageIsEmptyAndOneThatComesCanBeChosen();
    void choosingAnotherInterfaceClearsTheGraphAndTheSameOneDoesNot();
    void theChooserIsWorkedByKeys();
    void namesOfFifteenCharactersAndBeyondAsciiAreListed();
    void anOpenListKeepsItsPlaceWhileItIsRebuilt();
    void theNetworkIsSampledWhileAnotherPageIsShown();

private:
    void start(const std::vector<standin::Interface> &interfaces, const char *page = "network");
    void setInterfaces(const std::vector<standin::Interface> &interfaces);
    bool waitForIn(const char *text) { return m_session->waitForTexts({{"netIn", QLatin1String(text)}}); }
    QStringList listed();
    QString chosen();
    Table openList() { return m_session->table(QStringLiteral("QComboBoxListView")); }
    bool openChooser();
    bool chooseByMouse(const QString &name);
    int top(char color);
    int countOf(char color);
    standin::Machine m_machine;
    std::unique_ptr<PageSession> m_session;
};

namespace {

standin::Interface interface(const std::string &name, std::uint64_t in = 0, std::uint64_t out = 0)
{
    standin::Interface made;
    made.name = name;
    made.address = inet_addr("192.168.1.2");
    made.mask = inet_addr("255.255.255.0");
    made.bytesIn = in;
    made.bytesOut = out;
    return made;
}

QStringList texts(std::initializer_list<const char *> words)
{
    QStringList result;
    for (const char *word : words)
        result.append(QString::fromUtf8(word));
    return result;
}

const int margin = 15; ///< of the graph above, below and to the right of its lines
const QString noSample;

} // namespace

void TestNetworkPage::start(const std::vector<standin::Interface> &interfaces, const char *page)
{
    m_machine = {};
    m_machine.interfaces = interfaces;
    m_session = std::make_unique<PageSession>(m_machine);
    QVERIFY2(m_session->start({QLatin1String(page)}), qPrintable(m_session->error()));
}

void TestNetworkPage::setInterfaces(const std::vector<standin::Interface> &interfaces)
{
    m_machine.interfaces = interfaces;
    m_session->setMachine(m_machine);
}

void TestNetworkPage::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning("%s", qPrintable(m_session->error()));
    m_session->key(QStringLiteral("Escape")); // closes a list that a failed test left open
    QVERIFY2(m_session->endsCleanly(), qPrintable(m_session->error()));
}

QStringList TestNetworkPage::listed()
{
    QStringList names;
    const QJsonArray items =
        m_session->widget(QStringLiteral("comboNet")).value(QLatin1String("items")).toArray();
    for (const QJsonValue &item : items)
        names.append(item.toString());
    return names;
}

QString TestNetworkPage::chosen()
{
    return m_session->widget(QStringLiteral("comboNet")).value(QLatin1String("currentText")).toString();
}

bool TestNetworkPage::openChooser()
{
    return m_session->clickWidget(QStringLiteral("comboNet")) &&
           m_session->waitFor([&] { return !openList().rows.isEmpty(); });
}

bool TestNetworkPage::chooseByMouse(const QString &name)
{
    return openChooser() && m_session->click([&] {
        const Table list = openList();
        for (const Table::Row &row : list.rows) {
            if (row.texts.value(0) == name)
                return row.rects.value(0);
        }
        return QRect();
    }) && m_session->waitFor([&] { return openList().rows.isEmpty(); });
}

// The highest point of a line in the graph, right of the legend and the labels; -1 if there is no line.
int TestNetworkPage::top(char color)
{
    const QImage graph = m_session->picture(m_session->widgets(QStringLiteral("TimeHisto")).value(0));
    for (int y = 0; y < graph.height(); ++y) {
        for (int x = 110; x < graph.width(); ++x) {
            if (shade(graph, {x, y}) == QLatin1Char(color))
                return y;
        }
    }
    return -1;
}

int TestNetworkPage::countOf(char color)
{
    const QImage graph = m_session->picture(m_session->widgets(QStringLiteral("TimeHisto")).value(0));
    int count = 0;
    for (int y = 0; y < graph.height(); ++y) {
        for (int x = 110; x < graph.width(); ++x)
            count += shade(graph, {x, y}) == QLatin1Char(color);
    }
    return count;
}

void TestNetworkPage::theFirstInterfaceIsChosenAtTheStart()
{
    standin::Interface net = interface("eth0", 1536, 1048576);
    net.errors = 7;
    start({interface("lo"), interface("eth1"), net});
    QVERIFY(m_session->waitForTexts({{"netAdress", "192.168.1.2"},
                                     {"netMask", "255.255.255.0"},
                                     {"netIn", "1.50 KB"},
                                     {"netOut", "1.00 MB"},
                                     {"netErrors", "7"}}));
    QCOMPARE(listed(), texts({"eth0", "eth1", "lo"}));
    QCOMPARE(chosen(), QStringLiteral("eth0"));
}

void TestNetworkPage::growingCountersDrawTheirLines()
{
    start({interface("eth0", 1000, 1000)});
    QVERIFY(m_session->waitFor([&] { return countOf('r') > 0; }));
    const int height = m_session->picture(m_session->widgets(QStringLiteral("TimeHisto")).value(0)).height();
    // While nothing comes in, the samples lie on the base line.
    QVERIFY(top('r') >= height - margin - 2);
    setInterfaces({interface("eth0", 1000 + 4096, 1000 + 1024)});
    QVERIFY(waitForIn("4.98 KB"));
    QVERIFY(m_session->waitForTexts({{"netOut", "1.98 KB"}}));
    const int least = margin + (height - 2 * margin) * 3 / 4;
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2 && qAbs(top('r') - least) <= 3; }));
    // The counters stand still: the peak moves on to the left and keeps its height.
    QVERIFY(m_session->waitFor([&] {
        return m_session->described(QStringLiteral("TimeHisto")) == QLatin1String("In: 0.00 B, Out: 0.00 B");
    }));
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2; }));
    // A larger one sets the scale anew.
    setInterfaces({interface("eth0", 1000 + 4096, 1000 + 1024 + 8192)});
    QVERIFY(
        m_session->waitFor([&] { return qAbs(top('r') - margin) <= 2 && qAbs(top('b') - height / 2) <= 3; }));
}

void TestNetworkPage::countersThatFallBackLeaveTheTopOfTheGraph()
{
    start({interface("eth0", 50000, 50000)});
    setInterfaces({interface("eth0", 51000, 50500)});
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2; }));
    setInterfaces(
        {interface("eth0", 1024, 50500)}); // a sample of nearly 2^32 bytes, less than nothing as signed
    QVERIFY(waitForIn("1.00 KB"));
    QVERIFY(m_session->waitFor([&] { return top('b') >= 0 && top('b') <= 2; }));
    QVERIFY(m_session->waitFor([&] {
        return m_session->described(QStringLiteral("TimeHisto")) == QLatin1String("In: 0.00 B, Out: 0.00 B");
    }));
    QCOMPARE(m_session->undefinedNumber(), QString());
}

void TestNetworkPage::anInterfaceThatComesBeforeTheChosenOneTakesItsPlace()
{
    start({interface("eth0", 2048), interface("lo")});
    setInterfaces({interface("eth0", 4096), interface("lo")});
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2; }));
    setInterfaces({interface("br0", 4096 + 1024), interface("eth0", 4096), interface("lo")});
    QVERIFY(m_session->waitFor([&] { return listed() == texts({"br0", "eth0", "lo"}); }));
    QCOMPARE(chosen(), QStringLiteral("br0"));
    QVERIFY(waitForIn("5.00 KB"));
    QVERIFY2(qAbs(top('b') - margin) <= 2, "the graph goes on with what it had");
}

void TestNetworkPage::whenTheChosenOneGoesItsFiguresStayUntilItIsBack()
{
    start({interface("eth0", 1024), interface("lo", 2048)});
    QVERIFY2(chooseByMouse(QStringLiteral("lo")), qPrintable(m_session->error()));
    QVERIFY(waitForIn("2.00 KB"));
    setInterfaces({interface("eth0", 1024)});
    QVERIFY(m_session->waitFor([&] { return listed() == texts({"eth0"}); }));
    QCOMPARE(chosen(), QString());
    QCOMPARE(m_session->text(QStringLiteral("netIn")), QStringLiteral("2.00 KB"));
    setInterfaces({interface("eth0", 1024), interface("lo", 3072)});
    QVERIFY(waitForIn("3.00 KB"));
    QCOMPARE(chosen(), QStringLiteral("lo"));
}

void TestNetworkPage::withoutInterfacesThePageIsEmptyAndOneThatComesCanBeChosen()
{
    start({});
    QCOMPARE(listed(), QStringList());
    QVERIFY(m_session->waitForTexts(
        {{"netAdress", ""}, {"netMask", ""}, {"netIn", ""}, {"netOut", ""}, {"netErrors", ""}}));
    QCOMPARE(m_session->described(QStringLiteral("TimeHisto")), noSample);
    setInterfaces({interface("eth0", 1024), interface("lo")});
    QVERIFY(m_session->waitFor([&] { return listed().size() == 2; }));
    QVERIFY2(chooseByMouse(QStringLiteral("eth0")), qPrintable(m_session->error()));
    QVERIFY(waitForIn("1.00 KB"));
}

void TestNetworkPage::choosingAnotherInterfaceClearsTheGraphAndTheSameOneDoesNot()
{
    start({interface("eth0", 1024), interface("lo", 2048)});
    setInterfaces({interface("eth0", 4096), interface("lo", 2048)});
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2; }));
    QVERIFY2(chooseByMouse(QStringLiteral("eth0")), qPrintable(m_session->error()));
    QCOMPARE(chosen(), QStringLiteral("eth0"));
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2; }));
    QVERIFY2(chooseByMouse(QStringLiteral("lo")), qPrintable(m_session->error()));
    QVERIFY(waitForIn("2.00 KB"));
    const int height = m_session->picture(m_session->widgets(QStringLiteral("TimeHisto")).value(0)).height();
    QVERIFY(m_session->waitFor([&] { return top('r') >= height - margin - 2; }));
    QVERIFY2(top('b') < 0 || top('b') >= height - margin - 2, "the peak is gone");
}

void TestNetworkPage::theChooserIsWorkedByKeys()
{
    start({interface("eth0", 1024), interface("eth1", 2048), interface("lo", 3072)});
    QVERIFY2(openChooser(), qPrintable(m_session->error()));
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(m_session->waitFor([&] { return openList().rows.isEmpty(); }));
    QVERIFY(m_session->key(QStringLiteral("Down")));
    QVERIFY(waitForIn("2.00 KB"));
    QVERIFY(m_session->key(QStringLiteral("End")));
    QVERIFY(waitForIn("3.00 KB"));
    QVERIFY(m_session->type(QStringLiteral("e")));
    QVERIFY(waitForIn("1.00 KB"));
}

void TestNetworkPage::namesOfFifteenCharactersAndBeyondAsciiAreListed()
{
    start({interface("a23456789012345", 1024), interface("\xc3\xa9th", 2048), interface("z\xff", 3072)});
    QCOMPARE(listed(), QStringList({QStringLiteral("a23456789012345"), QStringLiteral("z\uFFFD"),
                                    QStringLiteral("\u00E9th")}));
    QVERIFY2(chooseByMouse(QStringLiteral("\u00E9th")), qPrintable(m_session->error()));
    QVERIFY(waitForIn("2.00 KB"));
    QVERIFY2(chooseByMouse(QStringLiteral("z\uFFFD")), qPrintable(m_session->error()));
    QVERIFY(waitForIn("3.00 KB"));
}

void TestNetworkPage::anOpenListKeepsItsPlaceWhileItIsRebuilt()
{
    std::vector<standin::Interface> many;
    for (unsigned i = 0; i < 500; ++i)
        many.push_back(interface("eth" + std::to_string(1000 + i), 1024 * i));
    start(many);
    QVERIFY2(openChooser(), qPrintable(m_session->error()));
    QVERIFY(m_session->key(QStringLiteral("End")));
    const auto current = [&] {
        const Table list = openList();
        for (const Table::Row &row : list.rows) {
            if (row.current)
                return row.rects.value(0).isEmpty() ? QStringLiteral("out of sight") : row.texts.value(0);
        }
        return QStringLiteral("none of %1").arg(list.rows.size());
    };
    QVERIFY(m_session->waitFor([&] { return current() == QLatin1String("eth1499"); }));
    // The counter in the label tells that the list has been rebuilt since.
    for (const char *total : {"1.00 KB", "2.00 KB"}) {
        many.front().bytesIn += 1024;
        setInterfaces(many);
        QVERIFY(waitForIn(total));
        QCOMPARE(current(), QStringLiteral("eth1499"));
    }
    QVERIFY(m_session->key(QStringLiteral("Up")));
    QVERIFY(m_session->waitFor([&] { return current() == QLatin1String("eth1498"); }));
    QVERIFY(m_session->key(QStringLiteral("Return")));
    QVERIFY(waitForIn("498.00 KB"));
    QCOMPARE(chosen(), QStringLiteral("eth1498"));
}

void TestNetworkPage::theNetworkIsSampledWhileAnotherPageIsShown()
{
    start({interface("eth0", 1024)}, "general");
    setInterfaces({interface("eth0", 4096, 512)});
    QVERIFY(waitForIn("4.00 KB"));
    QVERIFY2(m_session->clickTab(QStringLiteral("Network")), qPrintable(m_session->error()));
    QVERIFY(m_session->waitFor([&] { return qAbs(top('b') - margin) <= 2; }));
}

QTEST_GUILESS_MAIN(TestNetworkPage)
#include "test_network_page.moc"
