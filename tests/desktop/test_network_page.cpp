// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QtTest>

#include <arpa/inet.h>

namespace {

standin::Interface interface(const std::string &name, std::uint64_t in = 0, std::uint64_t out = 0)
{
    return {name, inet_addr("192.168.1.2"), inet_addr("255.255.255.0"), in, out};
}

standin::Machine machineWith(const std::vector<standin::Interface> &interfaces)
{
    standin::Machine machine;
    machine.interfaces = interfaces;
    return machine;
}

const int margin = 15; ///< of the graph above, below and to the right of its lines

/// The highest point of a line in the graph, right of the legend and the labels; -1 if there is no line.
int top(const QImage &graph, char color)
{
    for (int y = 0; y < graph.height(); ++y) {
        for (int x = 110; x < graph.width(); ++x) {
            if (shade(graph, {x, y}) == color) {
                return y;
            }
        }
    }
    return -1;
}

/// Number of the samples on the base line, which are the newest ones.
int flatSamples(const QImage &graph)
{
    const int newest = graph.width() - 1 - margin;
    const int withoutTimes = 85; // left and right of the samples
    const double perSample = (graph.width() - withoutTimes) / 100.0;
    int length = 0;
    while (shade(graph, {newest - length - 1, graph.height() - 1 - margin}) != '-') {
        ++length;
    }
    return 1 + qRound(length / perSample);
}

/// Whether the line has no point above the base line.
bool isFlat(const QImage &graph, char color)
{
    return top(graph, color) >= graph.height() - margin - 2;
}

} // namespace

class TestNetworkPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(session->endsCleanly()); }
    void theFirstInterfaceIsChosenAtTheStart()
    {
        standin::Interface first = interface("eth0", 1536, 1048576);
        first.errors = 7;
        start({interface("lo"), interface("eth1"), first});
        QVERIFY(session->waitForTexts({{"netAdress", "192.168.1.2"},
                                       {"netMask", "255.255.255.0"},
                                       {"netIn", "1.50 KB"},
                                       {"netOut", "1.00 MB"},
                                       {"netErrors", "7"}}));
        QCOMPARE(listed(), QStringList({"eth0", "eth1", "lo"}));
        QCOMPARE(chosen(), QString("eth0"));
    }

    void theGraphOfAFreshStartHasOneSample_data()
    {
        QTest::addColumn<QString>("startPage");
        QTest::addColumn<int>("interval");
        for (const QString startPage : {"general", "network"}) {
            for (const int interval : {1, 3, 5}) {
                const QString row = QStringLiteral("%1, interval %2").arg(startPage).arg(interval);
                QTest::newRow(qPrintable(row)) << startPage << interval;
            }
        }
    }

    void theGraphOfAFreshStartHasOneSample()
    {
        QFETCH(QString, startPage);
        QFETCH(int, interval);
        SessionOptions options;
        options.settings = "net=" + QByteArray::number(interval) + '\n';
        session = std::make_unique<PageSession>(machineWith({interface("eth0", 1000, 1000)}), options);
        QElapsedTimer sinceStart;
        sinceStart.start();
        QVERIFY(session->start({startPage}));
        if (startPage != "network") {
            QVERIFY(session->clickTab("Network"));
        }
        QVERIFY(waitForNoTraffic());
        const int samples = flatSamples(graph());
        const int expected = startPage == "network" ? 1 : 3; // a change of the tab may refresh twice
        const int byTheTimer = int(sinceStart.elapsed() / 1000);
        QVERIFY2(samples >= 1 && samples <= expected + byTheTimer, qPrintable(QString::number(samples)));
    }

    void growingCountersDrawTheirLines()
    {
        start({interface("eth0", 1000, 1000)});
        QVERIFY(session->waitFor([&] { return top(graph(), 'r') >= 0; }));
        QVERIFY2(isFlat(graph(), 'r'), "without traffic the samples are on the base line");
        setInterfaces({interface("eth0", 1000 + 4096, 1000 + 1024)});
        QVERIFY(waitForIn("4.98 KB"));
        QVERIFY(session->waitForTexts({{"netOut", "1.98 KB"}}));
        const int height = graph().height();
        const int quarter = margin + (height - 2 * margin) * 3 / 4;
        const auto isNear = [](int value, int expected, int tolerance) {
            return qAbs(value - expected) <= tolerance;
        };
        const auto peaksAre = [&](int in, int inTolerance, int out, int outTolerance) {
            return isNear(top(graph(), 'b'), in, inTolerance) && isNear(top(graph(), 'r'), out, outTolerance);
        };
        QVERIFY(session->waitFor([&] { return peaksAre(margin, 2, quarter, 3); }));
        QVERIFY(waitForNoTraffic());
        QVERIFY2(waitForPeak(), "the peak moves to the left and keeps its height");
        setInterfaces({interface("eth0", 1000 + 4096, 1000 + 1024 + 8192)}); // rescales the graph
        QVERIFY(session->waitFor([&] { return peaksAre(height / 2, 3, margin, 2); }));
    }

    void fallingCountersLeaveTheTopOfTheGraph()
    {
        start({interface("eth0", 50000, 50000)});
        setInterfaces({interface("eth0", 51000, 50500)});
        QVERIFY(waitForPeak());
        setInterfaces({interface("eth0", 1024, 50500)}); // a sample of almost 2^32 bytes, negative if signed
        QVERIFY(waitForIn("1.00 KB"));
        QVERIFY(session->waitFor([&] {
            const int highest = top(graph(), 'b');
            return highest >= 0 && highest <= 2;
        }));
        QVERIFY(waitForNoTraffic());
        QCOMPARE(session->undefinedNumber(), QString());
    }

    void anInterfaceThatSortsBeforeTheChosenOneReplacesIt()
    {
        start({interface("eth0", 2048), interface("lo")});
        setInterfaces({interface("eth0", 4096), interface("lo")});
        QVERIFY(waitForPeak());
        setInterfaces({interface("br0", 4096 + 1024), interface("eth0", 4096), interface("lo")});
        QVERIFY(session->waitFor([&] { return listed() == QStringList({"br0", "eth0", "lo"}); }));
        QCOMPARE(chosen(), QString("br0"));
        QVERIFY(waitForIn("5.00 KB"));
        QVERIFY2(hasPeak(), "the graph keeps its samples");
    }

    void figuresOfAnInterfaceThatVanishesStayUntilItIsBack()
    {
        start({interface("eth0", 1024), interface("lo", 2048)});
        QVERIFY(choose("lo"));
        QVERIFY(waitForIn("2.00 KB"));
        setInterfaces({interface("eth0", 1024)});
        QVERIFY(session->waitFor([&] { return listed() == QStringList("eth0"); }));
        QCOMPARE(chosen(), QString());
        QCOMPARE(session->text("netIn"), QString("2.00 KB"));
        setInterfaces({interface("eth0", 1024), interface("lo", 3072)});
        QVERIFY(waitForIn("3.00 KB"));
        QCOMPARE(chosen(), QString("lo"));
    }

    void withoutInterfacesThePageIsEmptyAndANewOneCanBeChosen()
    {
        start({});
        QCOMPARE(listed(), QStringList());
        QVERIFY(session->waitForTexts(
            {{"netAdress", ""}, {"netMask", ""}, {"netIn", ""}, {"netOut", ""}, {"netErrors", ""}}));
        QCOMPARE(session->described("TimeHisto"), QString());
        setInterfaces({interface("eth0", 1024), interface("lo")});
        QVERIFY(session->waitFor([&] { return listed().size() == 2; }));
        QVERIFY(choose("eth0"));
        QVERIFY(waitForIn("1.00 KB"));
    }

    void onlyChoosingAnotherInterfaceClearsTheGraph()
    {
        start({interface("eth0", 1024), interface("lo", 2048)});
        setInterfaces({interface("eth0", 4096), interface("lo", 2048)});
        QVERIFY(waitForPeak());
        QVERIFY(choose("eth0"));
        QCOMPARE(chosen(), QString("eth0"));
        QVERIFY(waitForPeak());
        QVERIFY(choose("lo"));
        QVERIFY(waitForIn("2.00 KB"));
        QVERIFY(session->waitFor([&] { return isFlat(graph(), 'r'); }));
        QVERIFY2(top(graph(), 'b') < 0 || isFlat(graph(), 'b'), "the peak is gone");
    }

    void theChooserIsOperatedByKeys()
    {
        start({interface("eth0", 1024), interface("eth1", 2048), interface("lo", 3072)});
        QVERIFY(openChooser());
        QVERIFY(session->key("Escape"));
        QVERIFY(waitForChooser(false));
        QVERIFY(session->key("Down"));
        QVERIFY(waitForIn("2.00 KB"));
        QVERIFY(session->key("End"));
        QVERIFY(waitForIn("3.00 KB"));
        QVERIFY(session->type("e"));
        QVERIFY(waitForIn("1.00 KB"));
    }

    void namesOfFifteenCharactersAndBeyondAsciiAreListed()
    {
        start({interface("a23456789012345", 1024), interface("\xc3\xa9th", 2048), interface("z\xff", 3072)});
        QCOMPARE(listed(), QStringList({"a23456789012345", "z\uFFFD", "\u00E9th"}));
        QVERIFY(choose("\u00E9th"));
        QVERIFY(waitForIn("2.00 KB"));
        QVERIFY(choose("z\uFFFD"));
        QVERIFY(waitForIn("3.00 KB"));
    }

    void anOpenListKeepsItsPositionWhileItIsRebuilt()
    {
        std::vector<standin::Interface> many;
        for (unsigned i = 0; i < 500; ++i) {
            many.push_back(interface("eth" + std::to_string(1000 + i), 1024 * i));
        }
        start(many);
        QVERIFY(openChooser());
        QVERIFY(session->key("End"));
        const auto current = [&]() -> QString {
            const Table list = openList();
            for (const Table::Row &row : list.rows) {
                if (row.current) {
                    return row.rects.value(0).isEmpty() ? "out of sight" : row.texts.value(0);
                }
            }
            return QString("none of %1").arg(list.rows.size());
        };
        QVERIFY(session->waitFor([&] { return current() == "eth1499"; }));
        for (const char *total : {"1.00 KB", "2.00 KB"}) {
            many.front().bytesIn += 1024;
            setInterfaces(many);
            QVERIFY2(waitForIn(total), "the list has been rebuilt");
            QCOMPARE(current(), QString("eth1499"));
        }
        QVERIFY(session->key("Up"));
        QVERIFY(session->waitFor([&] { return current() == "eth1498"; }));
        QVERIFY(session->key("Return"));
        QVERIFY(waitForIn("498.00 KB"));
        QCOMPARE(chosen(), QString("eth1498"));
    }

    void theNetworkIsSampledWhileAnotherPageIsShown()
    {
        start({interface("eth0", 1024)}, "general");
        setInterfaces({interface("eth0", 4096, 512)});
        QVERIFY(waitForIn("4.00 KB"));
        QVERIFY(session->clickTab("Network"));
        QVERIFY(waitForPeak());
    }

private:
    void start(const std::vector<standin::Interface> &interfaces, const char *page = "network")
    {
        session = std::make_unique<PageSession>(machineWith(interfaces));
        QVERIFY(session->start({page}));
    }

    void setInterfaces(const std::vector<standin::Interface> &interfaces)
    {
        session->setMachine(machineWith(interfaces));
    }

    bool waitForIn(const QString &text) { return session->waitForTexts({{"netIn", text}}); }
    bool waitForNoTraffic()
    {
        return session->waitFor([&] { return session->described("TimeHisto") == "In: 0.00 B, Out: 0.00 B"; });
    }
    QStringList listed() { return session->widget("comboNet").value("items").toVariant().toStringList(); }
    QString chosen() { return session->widget("comboNet").value("currentText").toString(); }
    Table openList() { return session->table("QComboBoxListView"); }
    bool waitForChooser(bool open)
    {
        return session->waitFor([&] { return openList().rows.isEmpty() != open; });
    }
    bool openChooser() { return session->clickWidget("comboNet") && waitForChooser(true); }
    bool choose(const QString &name)
    {
        const auto findEntry = [&] {
            const Table list = openList();
            for (const Table::Row &row : list.rows) {
                if (row.texts.value(0) == name) {
                    return row.rects.value(0);
                }
            }
            return QRect();
        };
        return openChooser() && session->click(findEntry) && waitForChooser(false);
    }

    QImage graph() { return session->picture("TimeHisto"); }
    /// Of the incoming bytes, at the top.
    bool hasPeak() { return qAbs(top(graph(), 'b') - margin) <= 2; }
    bool waitForPeak()
    {
        return session->waitFor([&] { return hasPeak(); });
    }
    std::unique_ptr<PageSession> session;
};

QTEST_GUILESS_MAIN(TestNetworkPage)
#include "test_network_page.moc"
