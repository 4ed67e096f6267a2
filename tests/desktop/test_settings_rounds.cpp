// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/programtest.h"

#include <sys/stat.h>
#include <unistd.h>

/// Settings from one run of the program to the next, and settings files that can't be used.
class TestSettingsRounds : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(!session || session->endsCleanly()); }
    // Intentional: the network interval is the exception. It is written as "nwt" and read as "net", so every
    // run starts with its default.
    void changesSurviveARestart()
    {
        createSession({});
        QVERIFY(session->start({"processes"}));
        changeNetworkInterval();
        QVERIFY(session->waitFor([&] { return !page->list().rows.isEmpty(); }));
        QVERIFY(session->clickHeader("treeView", "CPU"));
        QVERIFY(session->waitFor([&] { return page->list().sortSection == 1; }));
        const bool descending = page->list().sortDescending;
        QVERIFY(page->openContextMenuOnEmptySpace());
        QVERIFY(session->clickMenu("Visible columns") && session->clickMenu("User"));
        QVERIFY(session->waitFor([&] { return !page->list().visibleHeaders().contains("User"); }));

        QVERIFY(page->showPage("File systems"));
        const QSize size(900, 640);
        QVERIFY(session->resizeMainWindow(size));
        const QRect table = session->widgetRect("tableFS");
        const QPoint handle(table.right() + 3, table.center().y());
        session->drag(handle, handle - QPoint(60, 0));
        QVERIFY(session->waitFor([&] { return session->widgetRect("tableFS").width() < table.width(); }));
        const int width = session->widgetRect("tableFS").width();

        QVERIFY(quitsCleanly());
        const QByteArray written = fileContents();
        for (const char *line : {"nwt=5", "general=3", "procs=3", "fs=3", "User=false", "Name=true",
                                 "proc_sort_column=1", "fsSplitter=@ByteArray("}) {
            QVERIFY2(written.contains(line), line);
        }
        QVERIFY(written.contains(descending ? "proc_sort_order=1" : "proc_sort_order=0"));
        QVERIFY(!written.contains("net="));

        QVERIFY(session->start({"filesystems"}));
        QCOMPARE(session->windowRect().size(), size);
        QVERIFY(session->waitFor([&] { return session->widgetRect("tableFS").width() == width; }));
        QVERIFY(page->showPage("Processes"));
        QVERIFY(!page->list().visibleHeaders().contains("User"));
        QCOMPARE(page->list().sortSection, 1);
        QCOMPARE(page->list().sortDescending, descending);
        QVERIFY(quitsCleanly());
        QVERIFY(fileContents().contains("nwt=3"));
    }

    void aBadFileSilentlyGivesTheDefaults_data()
    {
        const Rows<QByteArray> row("settings");
        row("missing", {});
        row("empty", "\n");
        row("wrong types", "geometry=7\nproc_sort_column=@Rect(1 2 3 4)\n"
                           "proc_sort_order=many\nfsSplitter=true\n"
                           "[interval]\ngeneral=@Invalid()\nprocs=often\nfs=@Size(1 1)\n"
                           "[column]\nPID=@ByteArray(\\0)\n");
        row("truncated", "[General]\nfsSplitter=@ByteArray(\\0\\0\\0\\xff\\0\\0");
        row("not text", QByteArray("\0\xff\xfe[\x01=", 6));
    }

    void aBadFileSilentlyGivesTheDefaults()
    {
        QFETCH(QByteArray, settings);
        createSession(settings);
        QVERIFY(session->start({"processes"}));
        QVERIFY(session->dialog().isEmpty());
        const Table list = page->list();
        QCOMPARE(list.sortSection, 0);
        QVERIFY(!list.sortDescending);
        QVERIFY(list.visibleHeaders().contains("Command line"));
        QVERIFY(quitsCleanly());
        QVERIFY2(fileContents().contains("nwt=3"), "the file has been replaced by a valid one");
    }

    void anUnwritableFileIsLeftAlone_data()
    {
        const Rows<bool> row("isFolder");
        row("read-only file in a read-only directory", false);
        row("directory in its place", true);
    }

    void anUnwritableFileIsLeftAlone()
    {
        QFETCH(bool, isFolder);
        if (getuid() == 0 && testUser() < 0) {
            QSKIP("file modes don't stop root from writing");
        }
        const QByteArray before = "[interval]\ngeneral=4\n";
        createSession(isFolder ? QByteArray() : before);
        QVERIFY(session->start()); // creates the home
        QVERIFY(page->quit());
        QFile file(session->settingsFile());
        QVERIFY(file.remove());
        if (isFolder) {
            QVERIFY(QDir().mkpath(file.fileName()));
        } else {
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(before) == before.size());
            file.close();
        }
        const QByteArray path = file.fileName().toLocal8Bit();
        const QByteArray folder = QFileInfo(file).path().toLocal8Bit();
        QVERIFY(chmod(path.constData(), 0555) == 0 && chmod(folder.constData(), 0555) == 0);

        QVERIFY(session->start());
        QVERIFY(session->dialog().isEmpty());
        QVERIFY(quitsCleanly());
        QCOMPARE(fileContents(), isFolder ? QByteArray() : before);
        QCOMPARE(QFileInfo(file.fileName()).isDir(), isFolder);
        chmod(folder.constData(), 0755);
    }

private:
    void createSession(const QByteArray &settings)
    {
        SessionOptions options;
        options.settings = settings;
        ProgramTest::createSession(asTestUser(options));
    }

    bool quitsCleanly() { return page->quit() && session->exitsCleanly(); }
    QByteArray fileContents()
    {
        QFile file(session->settingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void changeNetworkInterval()
    {
        for (const char *entry : {"Edit", "Update interval", "Network interval"}) {
            QVERIFY2(session->clickMenu(entry), entry);
        }
        QVERIFY(page->waitForDialog("Interval changing"));
        const QRect slider = session->widgetRect("QSlider");
        session->drag(slider.center(), QPoint(slider.right(), slider.center().y()));
        QVERIFY(session->waitFor([&] { return session->widget("QSlider").value("value").toInt() == 5; }));
        QVERIFY(session->clickButton("OK"));
        QVERIFY(page->waitForNoDialog());
    }
};

QTEST_GUILESS_MAIN(TestSettingsRounds)
#include "test_settings_rounds.moc"
