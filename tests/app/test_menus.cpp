// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QStringList messages;

void keepMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtCriticalMsg) {
        messages << QLatin1String(context.category) + QLatin1Char(' ') + text;
    }
}

} // namespace

class TestMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theMenuBarHasItsMenusAndEntries();
    void exitQuitsTheApplication();
    void theProcessEntryShowsOnlyOnTheProcessesPage_data();
    void theProcessEntryShowsOnlyOnTheProcessesPage();
    void offTheProcessesPageItsShortcutsAreDead();
    void aboutToShowBringsTheMenusUpToDate();
    void aChangedSelectionReachesTheActionsAtOnce();
    void aStateThatChangesReachesTheActionsWithTheRefresh();
    void aRefreshOnAnotherPageEnablesNothing();
    void aResetLeavesNoProcessSelected();
    void theContextMenuHasTheActionsAndTheColumns();
    void theContextMenuIsATickWhateverWasChosen();
    void theContextMenuOpensWithoutASelection();
    void aColumnIsToggledFromTheContextMenu();
    void theColumnMenuListsEveryColumn();
    void togglingAColumnWithoutASenderOnlyWritesALine();
    void aThousandContextMenusLeaveNothingBehind();
    void eachIntervalEntryOpensItsDialog_data();
    void eachIntervalEntryOpensItsDialog();
    void aNetworkIntervalReachesTheGraphEvenIfCancelled();

private:
    static QMenu *menuAt(int position)
    {
        return Fixture::window()->menuBar()->actions().at(position)->menu();
    }
    static QMenu *processEntry() { return menuAt(1)->actions().at(1)->menu(); }
    static QAction *processAction(const char *text)
    {
        for (QAction *action : processEntry()->actions()) {
            if (action->text() == QLatin1String(text)) {
                return action;
            }
        }
        return nullptr;
    }
    static QStringList texts(const QMenu *menu)
    {
        QStringList result;
        for (const QAction *action : menu->actions()) {
            result << (action->isSeparator() ? QStringLiteral("-") : action->text());
        }
        return result;
    }
    static QTreeView *tree() { return Fixture::find<QTreeView>("treeView"); }
    // The list as after a refresh: the settings that were read at start may have emptied it.
    void startOnProcesses()
    {
        fixture->start(1);
        QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    }
    static void select(int row) { tree()->setCurrentIndex(tree()->model()->index(row, 0)); }
    // Opens the context menu, lets the test act on it, and closes it.
    void withContextMenu(const std::function<void(QMenu *)> &act)
    {
        bool seen = false;
        const ModalDriver driver([&](QWidget *widget) {
            seen = true;
            auto *menu = qobject_cast<QMenu *>(widget);
            act(menu);
            menu->close();
        });
        QMetaObject::invokeMethod(&fixture->updater(), "popup");
        QVERIFY(seen);
    }

    std::unique_ptr<Fixture> fixture;
};

void TestMenus::init()
{
    fixture = std::make_unique<Fixture>();
    messages.clear();
}

void TestMenus::cleanup()
{
    fixture.reset();
}

void TestMenus::theMenuBarHasItsMenusAndEntries()
{
    fixture->start(1);
    const QList<QAction *> menus = Fixture::window()->menuBar()->actions();
    QCOMPARE(menus.size(), 3);
    QCOMPARE(menus.at(0)->text(), QStringLiteral("&File"));
    QCOMPARE(menus.at(1)->text(), QStringLiteral("&Edit"));
    QCOMPARE(menus.at(2)->menu()->metaObject()->className(), "ZarnHelpMenu");
    QCOMPARE(texts(menuAt(0)), QStringList({"Exit"}));
    QCOMPARE(menuAt(0)->actions().first()->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    QVERIFY(!menuAt(0)->actions().first()->icon().isNull());
    QCOMPARE(texts(menuAt(1)), QStringList({"Update interval", "Process"}));
    QCOMPARE(
        texts(menuAt(1)->actions().first()->menu()),
        QStringList({"General interval", "Process interval", "Filesystem interval", "Network interval"}));
    QCOMPARE(texts(processEntry()).mid(0, 3), QStringList({"Tree view", "Expand all", "Collapse all"}));
}

void TestMenus::exitQuitsTheApplication()
{
    fixture->start(2);
    QTimer::singleShot(0, menuAt(0)->actions().first(), SLOT(trigger()));
    QTimer guard;
    guard.setSingleShot(true);
    guard.start(20000);
    connect(&guard, SIGNAL(timeout()), qApp, SLOT(quit()));
    QApplication::exec();
    QVERIFY(guard.isActive());
}

void TestMenus::theProcessEntryShowsOnlyOnTheProcessesPage_data()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < 4; ++page) {
        QTest::newRow(QByteArray::number(page).constData()) << page;
    }
}

void TestMenus::theProcessEntryShowsOnlyOnTheProcessesPage()
{
    QFETCH(int, page);
    fixture->start(page == 1 ? 0 : 1);
    Fixture::choosePage(page);
    QCOMPARE(processEntry()->menuAction()->isVisible(), page == 1);
    QCOMPARE(processEntry()->isEnabled(), page == 1);
    QVERIFY(menuAt(1)->actions().first()->isVisible());
}

void TestMenus::offTheProcessesPageItsShortcutsAreDead()
{
    startOnProcesses();
    select(0);
    QVERIFY(processAction("Kill process")->isEnabled());
    QVERIFY(processAction("Tree view")->isEnabled());
    Fixture::choosePage(0);
    for (const char *text : {"Tree view", "My processes", "All processes", "Stop process",
                             "Terminate process", "Kill process"}) {
        QVERIFY2(!processAction(text)->isEnabled(), text);
    }
    Fixture::choosePage(1);
    QVERIFY(processAction("Kill process")->isEnabled());
    QVERIFY(processAction("Tree view")->isEnabled());
}

void TestMenus::aboutToShowBringsTheMenusUpToDate()
{
    startOnProcesses();
    select(0);
    QAction *kill = processAction("Kill process");
    kill->setVisible(false);
    QMetaObject::invokeMethod(menuAt(1), "aboutToShow");
    QVERIFY(kill->isVisible());
    kill->setVisible(false);
    QMetaObject::invokeMethod(processEntry(), "aboutToShow");
    QVERIFY(kill->isVisible());
}

void TestMenus::aChangedSelectionReachesTheActionsAtOnce()
{
    (*standin::machine().processes)[300].state = 16;
    startOnProcesses();
    QVERIFY(!processAction("Kill process")->isVisible());
    select(1);
    QVERIFY(processAction("Kill process")->isVisible());
    QVERIFY(processAction("Stop process")->isEnabled());
    QVERIFY(!processAction("Continue process")->isEnabled());
    select(2);
    QVERIFY(!processAction("Stop process")->isEnabled());
    QVERIFY(processAction("Continue process")->isEnabled());
    tree()->selectionModel()->clearSelection();
    QVERIFY(!processAction("Kill process")->isVisible());
    QVERIFY(!processAction("Stop process")->isEnabled());
    QVERIFY(!processAction("Continue process")->isEnabled());
}

void TestMenus::aStateThatChangesReachesTheActionsWithTheRefresh()
{
    startOnProcesses();
    select(2);
    QVERIFY(processAction("Stop process")->isEnabled());
    (*standin::machine().processes)[300].state = 16;
    for (int i = 0; i < 3; ++i) {
        QMetaObject::invokeMethod(&fixture->updater(), "update");
    }
    QVERIFY(!processAction("Stop process")->isEnabled());
    QVERIFY(processAction("Continue process")->isEnabled());
}

void TestMenus::aRefreshOnAnotherPageEnablesNothing()
{
    startOnProcesses();
    select(2);
    Fixture::choosePage(0);
    QMetaObject::invokeMethod(&fixture->updater(), "update", Q_ARG(bool, true));
    QVERIFY(!processAction("Stop process")->isEnabled());
    QVERIFY(!processAction("Kill process")->isEnabled());
}

void TestMenus::aResetLeavesNoProcessSelected()
{
    startOnProcesses();
    select(1);
    QVERIFY(processAction("Kill process")->isVisible());
    qobject_cast<ProxyProcModel *>(tree()->model())->setColumnVisible(3, false);
    QVERIFY(!processAction("Kill process")->isVisible());
}

void TestMenus::theContextMenuHasTheActionsAndTheColumns()
{
    startOnProcesses();
    select(0);
    withContextMenu([](QMenu *menu) {
        QCOMPARE(menu->parent(), Fixture::find<QWidget>("centralwidget"));
        QStringList expected = texts(processEntry());
        expected << QStringLiteral("Visible columns");
        QCOMPARE(texts(menu), expected);
        QVERIFY(processAction("Kill process")->isVisible());
    });
}

void TestMenus::theContextMenuIsATickWhateverWasChosen()
{
    fixture->start(1);
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    // From tick 1 two closed menus lead to tick 3, so a third one refreshes.
    withContextMenu([](QMenu *) {});
    withContextMenu([](QMenu *) {});
    standin::resetCalls();
    withContextMenu([](QMenu *) {});
    QVERIFY(standin::calls().processList >= 1);
}

void TestMenus::theContextMenuOpensWithoutASelection()
{
    fixture->start(1);
    withContextMenu([](QMenu *menu) {
        QVERIFY(!processAction("Kill process")->isVisible());
        QVERIFY(processAction("Tree view")->isVisible());
        QCOMPARE(menu->actions().last()->text(), QStringLiteral("Visible columns"));
    });
}

void TestMenus::aColumnIsToggledFromTheContextMenu()
{
    fixture->start(1);
    auto *proxy = qobject_cast<ProxyProcModel *>(tree()->model());
    QVERIFY(proxy->isColumnVisible(3));
    withContextMenu([](QMenu *menu) { menu->actions().last()->menu()->actions().at(3)->trigger(); });
    QVERIFY(!proxy->isColumnVisible(3));
    withContextMenu([](QMenu *menu) {
        QAction *user = menu->actions().last()->menu()->actions().at(3);
        QVERIFY(!user->isChecked());
        user->trigger();
    });
    QVERIFY(proxy->isColumnVisible(3));
}

void TestMenus::theColumnMenuListsEveryColumn()
{
    fixture->start(1);
    QMenu *menu = nullptr;
    QMetaObject::invokeMethod(&fixture->updater(), "menuVisibleColumns", Q_RETURN_ARG(QMenu *, menu));
    const QScopedPointer<QMenu> owner(menu);
    QCOMPARE(menu->title(), QStringLiteral("Visible columns"));
    QVERIFY(menu->parent() == nullptr);
    const auto *filler = gtop_wrappers::ProcessFiller::instance();
    QCOMPARE(static_cast<unsigned long>(menu->actions().size()), filler->size());
    for (int i = 0; i < menu->actions().size(); ++i) {
        const QAction *action = menu->actions().at(i);
        QCOMPARE(action->text(), filler->name(static_cast<unsigned long>(i)));
        QCOMPARE(action->data(), QVariant(i));
        QCOMPARE(action->parent(), static_cast<QObject *>(menu));
        QVERIFY(action->isCheckable());
        QCOMPARE(action->isChecked(), i < 6 || i > 9);
    }
}

void TestMenus::togglingAColumnWithoutASenderOnlyWritesALine()
{
    fixture->start(1);
    auto *proxy = qobject_cast<ProxyProcModel *>(tree()->model());
    QSignalSpy resets(proxy, SIGNAL(modelReset()));
    const QtMessageHandler before = qInstallMessageHandler(keepMessage);
    QMetaObject::invokeMethod(&fixture->updater(), "slotToggleColumn");
    qInstallMessageHandler(before);
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages.first().startsWith(QStringLiteral("default ")));
    QVERIFY(messages.first().contains(QStringLiteral("call not by signal")));
    QCOMPARE(resets.count(), 0);
}

void TestMenus::aThousandContextMenusLeaveNothingBehind()
{
    fixture->start(1);
    const auto open = [this] { withContextMenu([](QMenu *) {}); };
    open();
    const int objects = fixture->updater().findChildren<QObject *>().size() +
                        Fixture::window()->findChildren<QObject *>().size();
    const int widgets = QApplication::allWidgets().size();
    const int entries = processEntry()->actions().size();
    for (int i = 0; i < 1000; ++i) {
        open();
    }
    // Not more than before; the toolkit drops things of its own now and then.
    QVERIFY(QApplication::allWidgets().size() <= widgets);
    QVERIFY(fixture->updater().findChildren<QObject *>().size()
                + Fixture::window()->findChildren<QObject *>().size()
            <= objects);
    QCOMPARE(processEntry()->actions().size(), entries);
}

void TestMenus::eachIntervalEntryOpensItsDialog_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("key");
    QTest::newRow("General interval") << "General page"
                                      << "interval/general";
    QTest::newRow("Process interval") << "Processes page"
                                      << "interval/procs";
    QTest::newRow("Filesystem interval") << "Filesystems page"
                                         << "interval/fs";
    QTest::newRow("Network interval") << "Network page"
                                      << "interval/nwt";
}

void TestMenus::eachIntervalEntryOpensItsDialog()
{
    QFETCH(QString, page);
    QFETCH(QString, key);
    fixture->start(0);
    bool seen = false;
    const ModalDriver driver([&](QWidget *dialog) {
        seen = true;
        bool named = false;
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            named = named || label->text().endsWith(QStringLiteral(" ") + page);
        }
        QVERIFY(named);
        dialog->findChild<QSlider *>()->setSliderPosition(5);
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
    });
    for (QAction *action : menuAt(1)->actions().first()->menu()->actions()) {
        if (action->text() == QLatin1String(QTest::currentDataTag())) {
            action->trigger();
        }
    }
    QVERIFY(seen);
    fixture->stop();
    QCOMPARE(QSettings().value(key).toInt(), 5);
}

void TestMenus::aNetworkIntervalReachesTheGraphEvenIfCancelled()
{
    fixture->start(3);
    QWidget *graph = Fixture::find<QVBoxLayout>("ltTimeHisto")->itemAt(0)->widget();
    QCoreApplication::processEvents();
    // Two samples, so that a line is drawn; then the dialog empties the rings and the line is gone.
    const auto colored = [graph] {
        const QImage image = graph->grab().toImage();
        int pixels = 0;
        for (int x = 110; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor color = image.pixelColor(x, y);
                pixels += color.red() > 150 && color.green() < 100 && color.blue() < 100 ? 1 : 0;
            }
        }
        return pixels;
    };
    for (int i = 0; i < 5; ++i) {
        standin::machine().interfaces->at(1).bytesIn += 1000;
        standin::machine().interfaces->at(1).bytesOut += 5000;
        QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 3));
    }
    QVERIFY(colored() > 0);
    const ModalDriver driver([](QWidget *dialog) { qobject_cast<QDialog *>(dialog)->reject(); });
    QMetaObject::invokeMethod(&fixture->updater(), "slotIntervalNet");
    QCOMPARE(colored(), 0);
}

QTEST_MAIN(TestMenus)
#include "test_menus.moc"
