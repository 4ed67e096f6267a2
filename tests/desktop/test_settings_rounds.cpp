// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"

#include <QJsonArray>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

// From one run of the program to the next, and with settings files that are of no use.
class TestSettingsRounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsChangedIsThereAtTheNextStart();
    void aBadFileGivesTheDefaultsWithoutAWord_data();
    void aBadFileGivesTheDefaultsWithoutAWord();
    void aFileThatCanNotBeWrittenIsLeftAlone_data();
    void aFileThatCanNotBeWrittenIsLeftAlone();

private:
    QByteArray fileContents();
    void changeNetworkInterval();
    void startAnew(const QByteArray &settings);
    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

void TestSettingsRounds::startAnew(const QByteArray &settings)
{
    SessionOptions options;
    options.settings = settings;
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
}

QByteArray TestSettingsRounds::fileContents()
{
    QFile file(m_session->settingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestSettingsRounds::changeNetworkInterval()
{
    QVERIFY(m_session->clickMenu(QStringLiteral("Edit")));
    QVERIFY(m_session->clickMenu(QStringLiteral("Update interval")));
    QVERIFY(m_session->clickMenu(QStringLiteral("Network interval")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Interval changing")));
    const QRect slider = rectOf(m_session->widget(QStringLiteral("QSlider")).value(QLatin1String("rect")));
    m_session->drag(slider.center(), QPoint(slider.right(), slider.center().y()));
    QVERIFY(m_session->waitFor([&] {
        return m_session->widget(QStringLiteral("QSlider")).value(QLatin1String("value")).toInt() == 5;
    }));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForNoDialog());
}

void TestSettingsRounds::whatIsChangedIsThereAtTheNextStart()
{
    startAnew({});
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    changeNetworkInterval();
    QVERIFY(m_session->waitFor([&] { return !m_page->list().rows.isEmpty(); }));
    QVERIFY(m_session->clickHeader(QStringLiteral("treeView"), QStringLiteral("CPU")));
    QVERIFY(m_session->waitFor([&] { return m_page->list().sortSection == 1; }));
    const bool descending = m_page->list().sortDescending;
    QVERIFY(m_page->openContextMenuOnEmptySpace());
    QVERIFY(m_session->clickMenu(QStringLiteral("Visible columns")));
    QVERIFY(m_session->clickMenu(QStringLiteral("User")));
    QVERIFY(m_session->waitFor(
        [&] { return !m_page->list().visibleHeaders().contains(QStringLiteral("User")); }));

    QVERIFY(m_page->showPage(QStringLiteral("File systems")));
    const auto tableWidth = [&] {
        return rectOf(m_session->widget(QStringLiteral("tableFS")).value(QLatin1String("rect"))).width();
    };
    const QSize size(900, 640);
    QVERIFY(m_session->resizeMainWindow(size));
    const QRect table = rectOf(m_session->widget(QStringLiteral("tableFS")).value(QLatin1String("rect")));
    const QPoint handle(table.right() + 3, table.center().y());
    m_session->drag(handle, handle - QPoint(60, 0));
    QVERIFY(m_session->waitFor([&] { return tableWidth() < table.width(); }));
    const int width = tableWidth();

    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->exitCode(), 0);
    const QByteArray written = fileContents();
    for (const char *line : {"nwt=5", "general=3", "procs=3", "fs=3", "User=false", "Name=true",
                             "proc_sort_column=1", "fsSplitter=@ByteArray("})
        QVERIFY2(written.contains(line), line);
    QVERIFY(written.contains(descending ? "proc_sort_order=1" : "proc_sort_order=0"));
    QVERIFY2(!written.contains("net="), "the network interval is written under another key than it is read");

    QVERIFY2(m_session->start({QStringLiteral("filesystems")}), qPrintable(m_session->error()));
    QCOMPARE(rectOf(m_session->mainWindow().value(QLatin1String("rect"))).size(), size);
    QVERIFY(m_session->waitFor([&] { return tableWidth() == width; }));
    QVERIFY(m_page->showPage(QStringLiteral("Processes")));
    QVERIFY(!m_page->list().visibleHeaders().contains(QStringLiteral("User")));
    QCOMPARE(m_page->list().sortSection, 1);
    QCOMPARE(m_page->list().sortDescending, descending);
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QVERIFY2(fileContents().contains("nwt=3"), "the network interval starts at its default in every run");
    QCOMPARE(m_session->standardError(), QByteArray());
}

void TestSettingsRounds::aBadFileGivesTheDefaultsWithoutAWord_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("\n");
    QTest::newRow("wrong types") << QByteArray("geometry=7\nproc_sort_column=@Rect(1 2 3 4)\n"
                                               "proc_sort_order=many\nfsSplitter=true\n"
                                               "[interval]\ngeneral=@Invalid()\nprocs=often\nfs=@Size(1 1)\n"
                                               "[column]\nPID=@ByteArray(\\0)\n");
    QTest::newRow("cut in the middle") << QByteArray("[General]\nfsSplitter=@ByteArray(\\0\\0\\0\\xff\\0\\0");
    QTest::newRow("no text") << QByteArray("\0\xff\xfe[\x01=", 6);
}

void TestSettingsRounds::aBadFileGivesTheDefaultsWithoutAWord()
{
    QFETCH(QByteArray, settings);
    startAnew(settings);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    QVERIFY(m_session->dialog().isEmpty());
    const Table list = m_page->list();
    QCOMPARE(list.sortSection, 0);
    QVERIFY(!list.sortDescending);
    QVERIFY(list.visibleHeaders().contains(QStringLiteral("Command line")));
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->exitCode(), 0);
    QCOMPARE(m_session->standardError(), QByteArray());
    QVERIFY2(fileContents().contains("nwt=3"), "a usable file is there now");
}

void TestSettingsRounds::aFileThatCanNotBeWrittenIsLeftAlone_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("read only in a read-only folder") << false;
    QTest::newRow("a folder in its place") << true;
}

void TestSettingsRounds::aFileThatCanNotBeWrittenIsLeftAlone()
{
    QFETCH(bool, isFolder);
    if (getuid() == 0 && testUser() < 0)
        QSKIP("modes don't keep root from writing");
    const QByteArray before = "[interval]\ngeneral=4\n";
    startAnew(isFolder ? QByteArray() : before);
    QVERIFY2(m_session->start({}), qPrintable(m_session->error())); // makes the home
    const QString file = m_session->settingsFile();
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QVERIFY(QFile::remove(file));
    if (isFolder) {
        QVERIFY(QDir().mkpath(file));
    } else {
        QFile writing(file);
        QVERIFY(writing.open(QIODevice::WriteOnly) && writing.write(before) == before.size());
    }
    const QByteArray folder = QFileInfo(file).path().toLocal8Bit();
    QVERIFY(chmod(file.toLocal8Bit().constData(), 0555) == 0 && chmod(folder.constData(), 0555) == 0);

    QVERIFY2(m_session->start({}), qPrintable(m_session->error()));
    QVERIFY(m_session->dialog().isEmpty());
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->exitCode(), 0);
    QCOMPARE(m_session->standardError(), QByteArray());
    if (!isFolder)
        QCOMPARE(fileContents(), before);
    QCOMPARE(QFileInfo(file).isDir(), isFolder);
    chmod(folder.constData(), 0755);
}

QTEST_GUILESS_MAIN(TestSettingsRounds)
#include "test_settings_rounds.moc"
