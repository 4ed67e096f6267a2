// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startpage.h"

#include <QtTest>

#include <sstream>

class TestStartPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKnownArgumentNamesItsPage_data();
    void eachKnownArgumentNamesItsPage();
    void otherArgumentsNameNoPage_data();
    void otherArgumentsNameNoPage();
    void withoutArgumentNothingIsChosenAndNothingPrinted();
    void onlyTheFirstArgumentIsLookedAt();
    void anUnknownFirstArgumentPrintsTheUsageThoughTheSecondIsKnown();
    void theUsageTextHasSixExactLines();
};

void TestStartPage::eachKnownArgumentNamesItsPage_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<int>("page");
    const char *const arguments[] = {"general",     "-tab=1", "processes", "-tab=2",
                                     "filesystems", "-tab=3", "network",   "-tab=4"};
    int row = 0;
    for (const char *argument : arguments) {
        QTest::newRow(argument) << QString::fromLatin1(argument) << row++ / 2;
    }
}

void TestStartPage::eachKnownArgumentNamesItsPage()
{
    QFETCH(QString, argument);
    QFETCH(int, page);
    QCOMPARE(startPageOf(argument), page);
    const QByteArray bytes = argument.toLocal8Bit();
    const char *const argv[] = {"zarn-system-monitor", bytes.constData(), nullptr};
    std::ostringstream out;
    QCOMPARE(startPageFromArguments(2, argv, out), page);
    QVERIFY(out.str().empty());
}

void TestStartPage::otherArgumentsNameNoPage_data()
{
    QTest::addColumn<QByteArray>("argument");
    for (const char *argument : {"Network", "-tab=5", "-tab=0", "--help", "", " general", "general ",
                                 "-tab=1 ", "-TAB=1", "tab=1", "\xff\xfe", "generalx"}) {
        QTest::newRow(QByteArray(argument).toPercentEncoding().constData()) << QByteArray(argument);
    }
}

void TestStartPage::otherArgumentsNameNoPage()
{
    QFETCH(QByteArray, argument);
    const char *const argv[] = {"zarn-system-monitor", argument.constData(), nullptr};
    std::ostringstream out;
    QCOMPARE(startPageFromArguments(2, argv, out), -1);
    QVERIFY(QByteArray::fromStdString(out.str()).startsWith("Usage: "));
}

void TestStartPage::withoutArgumentNothingIsChosenAndNothingPrinted()
{
    const char *const argv[] = {"zarn-system-monitor", nullptr};
    std::ostringstream out;
    QCOMPARE(startPageFromArguments(1, argv, out), -1);
    const char *const nothing[] = {nullptr};
    QCOMPARE(startPageFromArguments(0, nothing, out), -1);
    QVERIFY(out.str().empty());
}

void TestStartPage::onlyTheFirstArgumentIsLookedAt()
{
    const char *const argv[] = {"zarn-system-monitor", "general", "foo", nullptr};
    std::ostringstream out;
    QCOMPARE(startPageFromArguments(3, argv, out), 0);
    QVERIFY(out.str().empty());
}

void TestStartPage::anUnknownFirstArgumentPrintsTheUsageThoughTheSecondIsKnown()
{
    const char *const argv[] = {"zarn-system-monitor", "foo", "network", nullptr};
    std::ostringstream out;
    QCOMPARE(startPageFromArguments(3, argv, out), -1);
    QVERIFY(!out.str().empty());
}

void TestStartPage::theUsageTextHasSixExactLines()
{
    std::ostringstream out;
    printUsage(out);
    QCOMPARE(QByteArray::fromStdString(out.str()),
             QByteArray("Usage: zarn-system-monitor [tab]\n"
                        "tab can be specified as:\n"
                        "  general or -tab=1 - first page with general system info\n"
                        "  processes or -tab=2 - second page with process list\n"
                        "  filesystems or -tab=3 - third page with filesystem list\n"
                        "  network or -tab=4 - fourth page with network info\n"));
}

QTEST_GUILESS_MAIN(TestStartPage)
#include "test_startpage.moc"
