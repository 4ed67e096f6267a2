// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/startpage.h"

#include <QtTest>

#include <sstream>

class TestStartPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstArgumentChoosesThePage_data()
    {
        const Rows<QByteArrayList, int> row("arguments", "page");
        row("none", QByteArrayList(), -1);
        const char *const known[] = {"general",     "-tab=1", "processes", "-tab=2",
                                     "filesystems", "-tab=3", "network",   "-tab=4"};
        int position = 0;
        for (const char *argument : known) {
            row(argument, {argument}, position++ / 2);
        }
        for (const char *argument : {"Network", "-tab=5", "-tab=0", "--help", "", " general", "general ",
                                     "-tab=1 ", "-TAB=1", "tab=1", "\xff\xfe", "generalx"}) {
            row(QByteArray(argument).toPercentEncoding().constData(), {argument}, -1);
        }
        row("known, then unknown", {"general", "foo"}, 0);
        row("unknown, then known", {"foo", "network"}, -1);
    }

    void firstArgumentChoosesThePage()
    {
        QFETCH(QByteArrayList, arguments);
        QFETCH(int, page);
        std::vector<const char *> argv = {"zarn-system-monitor"};
        for (const QByteArray &argument : arguments) {
            argv.push_back(argument.constData());
        }
        const auto argc = static_cast<int>(argv.size());
        argv.push_back(nullptr);
        std::ostringstream out;
        QCOMPARE(startPageFromArguments(argc, argv.data(), out), page);
        const bool unknown = page == -1 && !arguments.isEmpty();
        QCOMPARE(QByteArray::fromStdString(out.str()).startsWith("Usage: "), unknown);
        QCOMPARE(out.str().empty(), !unknown);
        if (!arguments.isEmpty()) {
            QCOMPARE(startPageOf(QString::fromLocal8Bit(arguments.first())), page);
        }
    }

    void missingProgramNameChoosesNoPage()
    {
        const char *const nothing[] = {nullptr};
        std::ostringstream out;
        QCOMPARE(startPageFromArguments(0, nothing, out), -1);
        QVERIFY(out.str().empty());
    }

    void usageTextHasSixExactLines()
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
};

QTEST_GUILESS_MAIN(TestStartPage)
#include "test_startpage.moc"
