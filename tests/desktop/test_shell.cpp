// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"
#include "tests/support/rows.h"

#include <QtTest>

namespace {

const QStringList pages{"general", "processes", "filesystems", "network"};
const QStringList tabTexts{"System", "Processes", "File systems", "Network"};
const QStringList shownWidgets{"lblHost", "treeView", "tableFS", "comboNet"};

const QByteArray usage = "Usage: zarn-system-monitor [tab]\n"
                         "tab can be specified as:\n"
                         "  general or -tab=1 - first page with general system info\n"
                         "  processes or -tab=2 - second page with process list\n"
                         "  filesystems or -tab=3 - third page with filesystem list\n"
                         "  network or -tab=4 - fourth page with network info\n";

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { session = std::make_unique<DesktopSession>(); }
    void cleanup() { QVERIFY(session->endsCleanly()); }
    void theFirstArgumentChoosesThePage_data()
    {
        const Rows<QStringList, int, QByteArray> row("arguments", "page", "output");
        row("none", QStringList(), 0, QByteArray());
        for (int page = 0; page < pages.size(); ++page) {
            for (const QString &argument : {pages[page], QString("-tab=%1").arg(page + 1)}) {
                row(qPrintable(argument), QStringList{argument}, page, QByteArray());
            }
        }
        for (const char *unknown : {"Network", "-tab=5", "-tab=0", "--help", "general ", ""}) {
            QTest::addRow("unknown: \"%s\"", unknown) << QStringList{unknown} << 0 << usage;
        }
        row("second unknown", QStringList{"general", "foo"}, 0, QByteArray());
        row("first unknown", QStringList{"foo", "network"}, 0, usage);
    }

    void theFirstArgumentChoosesThePage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, output);
        QVERIFY(session->start(arguments));
        QTEST(currentTab(), "page");
        QCOMPARE(session->standardOutput(), output);
        QCOMPARE(session->standardError(), QByteArray());
        QVERIFY(session->isRunning());
    }

    void windowTabsAndHostNameHaveTheirTexts()
    {
        QVERIFY(session->start());
        QCOMPARE(session->mainWindow().value("title").toString(), QString("System monitor"));
        QStringList texts;
        const QJsonArray tabs = session->widget("tabWidget").value("tabs").toArray();
        for (const QJsonValue &tab : tabs) {
            texts.append(tab["text"].toString());
        }
        QCOMPARE(texts, tabTexts);
        const QString host = session->text("lblHost");
        QVERIFY2(host.startsWith(QSysInfo::machineHostName()), qPrintable(host));
    }

    void theWindowGetsTheIconOfTheTheme()
    {
        QImage icon(32, 32, QImage::Format_ARGB32);
        icon.fill(QColor(12, 34, 56));
        QVERIFY(writeIcon(icon));
        QVERIFY(session->start());
        QVERIFY(session->waitFor([&] { return session->x().icon(session->windowId()) == icon; }));
    }

    void ctrlQQuitsFromEveryPage_data()
    {
        const Rows<QString> row("page");
        for (const QString &page : pages) {
            row(qPrintable(page), page);
        }
    }

    void ctrlQQuitsFromEveryPage()
    {
        QFETCH(QString, page);
        QVERIFY(session->start({page}));
        QVERIFY(session->key("ctrl+q"));
        QVERIFY(session->exitsCleanly());
    }

    void exitInTheFileMenuAndClosingTheWindowQuit()
    {
        QVERIFY(session->start());
        QVERIFY(session->clickMenu("File"));
        QVERIFY(session->clickMenu("Exit"));
        QVERIFY(session->exitsCleanly());
        QVERIFY(session->start());
        session->closeMainWindow();
        QVERIFY(session->exitsCleanly());
    }

    void aClickOnATabShowsItsPage_data()
    {
        const Rows<int, QSize> row("dpi", "screen");
        row("96 dpi", 96, QSize(1280, 1024));
        row("192 dpi", 192, QSize(2560, 2048));
    }

    void aClickOnATabShowsItsPage()
    {
        QFETCH(int, dpi);
        QFETCH(QSize, screen);
        SessionOptions options;
        options.dpi = dpi;
        options.screen = screen;
        session = std::make_unique<DesktopSession>(options);
        QVERIFY(session->start());
        for (const int page : {3, 1, 2, 0}) {
            QVERIFY(session->clickTab(tabTexts[page]));
            QVERIFY(session->waitFor([&] {
                return currentTab() == page && session->widget(shownWidgets[page]).value("visible").toBool();
            }));
            QVERIFY(session->savePicture(QString("page%1-%2dpi").arg(page + 1).arg(dpi)));
        }
    }

    /// Otherwise a message of a library would go to the display.
    void closedStandardStreamsAreOpened()
    {
        startInShell("exec '%1' filesystems <&- >&- 2>&-");
        for (int stream = 0; stream <= 2; ++stream) {
            const QString link = QString("/proc/%1/fd/%2").arg(session->pid()).arg(stream);
            QCOMPARE(QFile::symLinkTarget(link), QString("/dev/null"));
        }
    }

    void outputThatNobodyReadsIsDropped()
    {
        startInShell("mkfifo \"$HOME/pipe\"; : <\"$HOME/pipe\" & exec 4>\"$HOME/pipe\"; wait; "
                     "exec '%1' unknown >&4");
        QCOMPARE(currentTab(), 0);
    }

private:
    /// Into an icon theme in the home directory, which takes precedence over those of the system.
    bool writeIcon(const QImage &icon)
    {
        const QDir theme(session->home() + "/.icons/hicolor");
        QFile index(theme.filePath("index.theme"));
        return theme.mkpath("32x32/apps") && index.open(QIODevice::WriteOnly) &&
               index.write("[Icon Theme]\nDirectories=32x32/apps\n[32x32/apps]\nSize=32\n") > 0 &&
               icon.save(theme.filePath("32x32/apps/utilities-system-monitor.png"));
    }

    /// Starts the program, which the command names as %1.
    void startInShell(const QString &command)
    {
        SessionOptions options;
        options.program = "/bin/sh";
        session = std::make_unique<DesktopSession>(options);
        QVERIFY2(session->start({"-c", command.arg(ZSM_PROGRAM)}), qPrintable(session->error()));
    }

    int currentTab() { return session->widget("tabWidget").value("currentIndex").toInt(-1); }
    std::unique_ptr<DesktopSession> session;
};

QTEST_GUILESS_MAIN(TestShell)
#include "test_shell.moc"
