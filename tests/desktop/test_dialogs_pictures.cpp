// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"
#include "tests/desktop/sampleprocess.h"

#include <QJsonArray>
#include <QtTest>

#include <csignal>

namespace {

// The toolkit's only platform theme that reads the colors of widgets from a file.
void takeDesktopColors(SessionOptions &options)
{
    options.environment[QStringLiteral("QT_QPA_PLATFORMTHEME")] = QStringLiteral("kde");
    options.environment[QStringLiteral("XDG_CURRENT_DESKTOP")] = QStringLiteral("KDE");
    options.environment[QStringLiteral("KDE_SESSION_VERSION")] = QStringLiteral("5");
    options.environment[QStringLiteral("QT_STYLE_OVERRIDE")] = QStringLiteral("fusion");
}

void writeDarkColors(const QString &home)
{
    const QByteArray background = "BackgroundNormal=40,44,52\nBackgroundAlternate=48,52,60\n";
    const QByteArray foreground = "ForegroundNormal=235,235,235\nForegroundInactive=150,150,150\n"
                                  "ForegroundLink=100,160,255\nForegroundVisited=180,140,255\n";
    QByteArray text;
    for (const char *group : {"Window", "View", "Button", "Tooltip"})
        text += "[Colors:" + QByteArray(group) + "]\n" + background + foreground;
    text += "[Colors:Selection]\nBackgroundNormal=60,110,180\n" + foreground;
    QFile file(home + QStringLiteral("/.config/kdeglobals"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

// Text that may be wrapped asks for a height that goes with its width.
bool hasRoom(const QJsonValue &widget)
{
    const QSize given = rectOf(widget[QLatin1String("rect")]).size();
    const QSize wanted = rectOf(widget[QLatin1String("sizeHint")]).size();
    const int wrapped = widget[QLatin1String("heightForWidth")].toInt(-1);
    return wrapped >= 0 ? given.height() >= wrapped
                        : given.width() >= wanted.width() && given.height() >= wanted.height();
}

} // namespace

// Every menu and dialog, drawn for a look at them; nothing in a dialog is cut off.
class TestDialogsPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMenuAndDialogIsDrawn_data();
    void everyMenuAndDialogIsDrawn();

private:
    bool save(const char *name);
    QString cutOff();
    void drawMenus(int pid);
    void ask(const SampleProcess &sample, const char *key, const char *title);
    void drawBox(const char *name);
    void drawQuestions(const SampleProcess &sample);
    void drawErrors();
    void drawOtherDialogs(int pid);
    QString m_suffix;
    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

void TestDialogsPictures::everyMenuAndDialogIsDrawn_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<bool>("dark");
    QTest::newRow("96 dpi") << 96 << QSize(1024, 768) << false;
    QTest::newRow("192 dpi") << 192 << QSize(2048, 1536) << false;
    QTest::newRow("dark") << 96 << QSize(1024, 768) << true;
}

void TestDialogsPictures::everyMenuAndDialogIsDrawn()
{
    QFETCH(int, dpi);
    QFETCH(QSize, screen);
    QFETCH(bool, dark);
    SessionOptions options;
    options.dpi = dpi;
    options.screen = screen;
    m_suffix = dark ? QStringLiteral("-dark") : QStringLiteral("-%1dpi").arg(dpi);
    if (dark)
        takeDesktopColors(options);
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    if (dark) { // the home is there now
        QVERIFY(m_page->quit());
        writeDarkColors(m_session->home());
        QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    }
    const SampleProcess sample(QStringLiteral("pic"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample.isReady());
    QVERIFY(m_page->waitForRow(sample.pid()));
    drawMenus(sample.pid());
    drawQuestions(sample);
    drawErrors();
    drawOtherDialogs(sample.pid());
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
}

bool TestDialogsPictures::save(const char *name)
{
    return m_session->savePicture(QLatin1String(name) + m_suffix);
}

// What has less room than it asks for in the open dialog; empty if nothing has.
QString TestDialogsPictures::cutOff()
{
    const QRect dialog = rectOf(m_session->dialog().value(QLatin1String("rect")));
    for (const char *kind : {"QLabel", "QPushButton"}) {
        const QJsonArray widgets = m_session->probe(QStringLiteral("widgets ") + QLatin1String(kind))
                                       .value(QLatin1String("widgets"))
                                       .toArray();
        for (const QJsonValue &widget : widgets) {
            if (dialog.contains(rectOf(widget[QLatin1String("rect")])) && !hasRoom(widget))
                return widget[QLatin1String("text")].toString();
        }
    }
    return {};
}

void TestDialogsPictures::drawMenus(int pid)
{
    for (const char *menu : {"File", "Edit", "Help"}) {
        QVERIFY(m_session->clickMenu(QLatin1String(menu)));
        QVERIFY(m_session->waitFor([&] { return !m_session->menuTexts().isEmpty(); }));
        if (QLatin1String(menu) == QLatin1String("Edit"))
            QVERIFY(m_session->clickMenu(QStringLiteral("Update interval")));
        QVERIFY(save(qPrintable(QStringLiteral("menu-") + QString::fromLatin1(menu).toLower())));
        QVERIFY(m_page->closeMenus());
    }
    QVERIFY(m_page->select(pid));
    QVERIFY(m_page->openProcessMenu());
    QVERIFY(save("menu-process"));
    QVERIFY(m_page->closeMenus());
    QVERIFY(m_page->openContextMenu(pid));
    QVERIFY(m_session->clickMenu(QStringLiteral("Visible columns")));
    QVERIFY(m_session->waitFor([&] { return m_session->menuTexts().value(0) == QLatin1String("Name"); }));
    QVERIFY(save("menu-context"));
    QVERIFY(m_page->closeMenus());
}

void TestDialogsPictures::ask(const SampleProcess &sample, const char *key, const char *title)
{
    QVERIFY(m_page->select(sample.pid()));
    QVERIFY(m_session->key(QLatin1String(key)));
    QVERIFY(m_page->waitForDialog(QLatin1String(title)));
}

void TestDialogsPictures::drawBox(const char *name)
{
    QVERIFY(save(name));
    QCOMPARE(cutOff(), QString());
    QVERIFY(m_page->dismissAll());
}

void TestDialogsPictures::drawQuestions(const SampleProcess &sample)
{
    ask(sample, "ctrl+s", "Process stopping");
    drawBox("dialog-stop");
    ask(sample, "ctrl+t", "Process terminating");
    drawBox("dialog-terminate");
    ask(sample, "ctrl+k", "Process killing");
    drawBox("dialog-kill");
    QVERIFY(sample.sendSignal(SIGSTOP));
    QVERIFY(m_page->waitForText(sample.pid(), "State", QStringLiteral("Stopped")));
    ask(sample, "ctrl+c", "Process resuming");
    drawBox("dialog-continue");
    QVERIFY(sample.sendSignal(SIGCONT));
}

void TestDialogsPictures::drawErrors()
{
    auto sample = std::make_unique<SampleProcess>(QStringLiteral("err"), SampleProcess::Sleeping, testUser());
    QVERIFY(sample->isReady());
    const int pid = sample->pid();
    QVERIFY(m_page->waitForRow(pid));

    QVERIFY(m_page->openContextMenu(pid));
    QVERIFY(m_session->clickMenu(QStringLiteral("Change priority...")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Change priority")));
    QVERIFY(m_session->key(QStringLiteral("Left"))); // a higher priority, which the kernel refuses
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Error")));
    drawBox("dialog-error-priority");

    ask(*sample, "ctrl+t", "Process terminating");
    sample.reset();
    QVERIFY(m_page->waitForNoRow(pid));
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_page->waitForDialog(QStringLiteral("Error")));
    drawBox("dialog-error-signal");
}

void TestDialogsPictures::drawOtherDialogs(int pid)
{
    const struct
    {
        const char *name;
        QStringList way;
    } dialogs[] = {
        {"dialog-interval",
         {QStringLiteral("Edit"), QStringLiteral("Update interval"), QStringLiteral("Filesystem interval")}},
        {"dialog-priority",
         {QStringLiteral("Edit"), QStringLiteral("Process"), QStringLiteral("Change priority...")}},
        {"dialog-about", {QStringLiteral("Help"), QStringLiteral("About")}}};
    for (const auto &dialog : dialogs) {
        QVERIFY(m_page->select(pid));
        for (const QString &entry : dialog.way)
            QVERIFY2(m_session->clickMenu(entry), qPrintable(entry));
        QVERIFY(m_session->waitFor([&] { return !m_session->dialog().isEmpty(); }));
        drawBox(dialog.name);
    }
}

QTEST_GUILESS_MAIN(TestDialogsPictures)
#include "test_dialogs_pictures.moc"
