// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helpmenu.h"

#include "integration/dpi.h"
#include "integration/zarninit.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

class TestHelpMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_window.reset(); }

    void titleAndEntries();
    void entriesTakeNoShortcut();
    void aboutShowsWhatZarnInitWasGiven();
    void aboutEscapesMarkup();
    void aboutWithoutVersionHasNoVersionLine();
    void aboutIsModalAndBelongsToTheWindow();
    void aboutShowsTheWindowsIcon();
    void aboutFallsBackToTheLogo();
    void aboutClosesOnKey_data();
    void aboutClosesOnKey();
    void aboutLeavesNothingBehind();
    void quittingClosesAbout();
    void aboutQtShowsTheToolkit();
    void aboutWorksWithoutAParent();

private:
    QAction *entry(int index) const { return m_menu->actions().at(index); }
    /// Triggers an entry, and hands its box, as it runs, to `look`; what then is still open is closed.
    void openBox(QAction *action, const std::function<void(QMessageBox *)> &look);

    std::unique_ptr<QMainWindow> m_window;
    ZarnHelpMenu *m_menu = nullptr;
};

void TestHelpMenu::initTestCase()
{
    Q_INIT_RESOURCE(images);
    QCoreApplication::setApplicationName(QStringLiteral("watcher"));
}

void TestHelpMenu::init()
{
    zarnInit("1.2.2", "Watches the system.");
    QApplication::setWindowIcon(QIcon());
    m_window = std::make_unique<QMainWindow>();
    m_menu = new ZarnHelpMenu(m_window.get());
    m_window->menuBar()->addMenu(m_menu);
    m_window->show();
}

void TestHelpMenu::openBox(QAction *action, const std::function<void(QMessageBox *)> &look)
{
    int boxes = 0;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        ++boxes;
        look(box);
        box->close();
    });
    action->trigger();
    QCOMPARE(boxes, 1);
    QVERIFY(!QApplication::activeModalWidget());
}

void TestHelpMenu::titleAndEntries()
{
    QCOMPARE(m_menu->title(), QStringLiteral("&Help"));
    QCOMPARE(m_menu->parentWidget(), m_window.get());
    QCOMPARE(m_menu->actions().size(), 2);
    QCOMPARE(entry(0)->text(), QStringLiteral("About"));
    QCOMPARE(entry(1)->text(), QStringLiteral("About Qt"));
    QVERIFY(entry(0)->isEnabled() && entry(1)->isEnabled());
}

void TestHelpMenu::entriesTakeNoShortcut()
{
    QVERIFY(entry(0)->shortcut().isEmpty());
    QVERIFY(entry(1)->shortcut().isEmpty());
}

void TestHelpMenu::aboutShowsWhatZarnInitWasGiven()
{
    openBox(entry(0), [](QMessageBox *box) {
        QCOMPARE(box->windowTitle(), QStringLiteral("About watcher"));
        for (const char *text : {"watcher", "Version 1.2.2", "Watches the system.", "GPL-3.0-or-later"}) {
            QVERIFY2(box->text().contains(QLatin1String(text)), text);
        }
    });
}

void TestHelpMenu::aboutEscapesMarkup()
{
    zarnInit("1 %2", "<b>a & b</b> %1");
    openBox(entry(0), [](QMessageBox *box) {
        QVERIFY(box->text().contains(QStringLiteral("Version 1 %2")));
        QVERIFY(box->text().contains(QStringLiteral("&lt;b&gt;a &amp; b&lt;/b&gt; %1")));
    });
}

void TestHelpMenu::aboutWithoutVersionHasNoVersionLine()
{
    zarnInit(nullptr, nullptr);
    openBox(entry(0), [](QMessageBox *box) {
        QVERIFY(!box->text().contains(QStringLiteral("Version")));
        QVERIFY(box->text().contains(QStringLiteral("GPL-3.0-or-later")));
    });
}

void TestHelpMenu::aboutIsModalAndBelongsToTheWindow()
{
    openBox(entry(0), [this](QMessageBox *box) {
        QVERIFY(box->isModal());
        QCOMPARE(box->parentWidget(), m_window.get());
    });
}

void TestHelpMenu::aboutShowsTheWindowsIcon()
{
    QPixmap red(64, 64);
    red.fill(Qt::red);
    m_window->setWindowIcon(red);
    openBox(entry(0), [](QMessageBox *box) {
        QCOMPARE(box->iconPixmap().toImage().pixelColor(32, 32), QColor(Qt::red));
    });
}

void TestHelpMenu::aboutFallsBackToTheLogo()
{
    openBox(entry(0), [](QMessageBox *box) {
        const int side = int(zarnDpiScaled(64));
        const QImage logo = QIcon(QStringLiteral(":/images/diobin_logo.png")).pixmap(side, side).toImage();
        QVERIFY(!logo.isNull());
        QCOMPARE(box->iconPixmap().toImage(), logo);
    });
}

void TestHelpMenu::aboutClosesOnKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestHelpMenu::aboutClosesOnKey()
{
    QFETCH(int, key);
    openBox(entry(0), [key](QMessageBox *box) {
        QVERIFY(box->isVisible());
        QTest::keyClick(box, Qt::Key(key));
        QVERIFY(!box->isVisible());
    });
}

void TestHelpMenu::aboutLeavesNothingBehind()
{
    const int childrenBefore = m_window->findChildren<QObject *>().size();
    const int windowsBefore = QApplication::topLevelWidgets().size();
    for (int i = 0; i < 3; ++i) {
        openBox(entry(0), [](QMessageBox *) {});
    }
    QCOMPARE(m_window->findChildren<QObject *>().size(), childrenBefore);
    QCOMPARE(QApplication::topLevelWidgets().size(), windowsBefore);
}

void TestHelpMenu::quittingClosesAbout()
{
    bool opened = false;
    QTimer::singleShot(0, m_menu, SLOT(showAbout()));
    QTimer::singleShot(0, this, [&opened] {
        opened = QApplication::activeModalWidget() != nullptr;
        QCoreApplication::quit();
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(opened);
    QVERIFY(!QApplication::activeModalWidget());
}

void TestHelpMenu::aboutQtShowsTheToolkit()
{
    openBox(entry(1), [](QMessageBox *box) {
        QVERIFY(box->text().contains(QStringLiteral("Qt")));
        QVERIFY(box->text().contains(QLatin1String(qVersion())));
    });
}

void TestHelpMenu::aboutWorksWithoutAParent()
{
    ZarnHelpMenu menu(nullptr);
    openBox(menu.actions().at(0), [](QMessageBox *box) { QVERIFY(!box->parentWidget()); });
}

QTEST_MAIN(TestHelpMenu)
#include "test_helpmenu.moc"
