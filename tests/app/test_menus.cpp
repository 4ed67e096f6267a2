// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "../support/rows.h"
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

class TestMenus : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void menuBarHasItsMenusAndEntries()
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

    void exitQuitsTheApplication()
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

    void processEntryShowsOnlyOnTheProcessesPage_data() { addNumberRows("page", {0, 1, 2, 3}); }

    void processEntryShowsOnlyOnTheProcessesPage()
    {
        QFETCH(int, page);
        fixture->start(page == 1 ? 0 : 1);
        Fixture::choosePage(page);
        QCOMPARE(processEntry()->menuAction()->isVisible(), page == 1);
        QCOMPARE(processEntry()->isEnabled(), page == 1);
        QVERIFY(menuAt(1)->actions().first()->isVisible());
    }

    void processActionsAreDisabledOnOtherPagesEvenByARefresh()
    {
        startOnProcesses(100);
        QVERIFY(processAction("Kill process")->isEnabled());
        QVERIFY(processAction("Tree view")->isEnabled());
        Fixture::choosePage(0);
        for (const bool isRefreshed : {false, true}) {
            if (isRefreshed) {
                fixture->updater().update(true);
            }
            for (const char *text : {"Tree view", "My processes", "All processes", "Stop process",
                                     "Terminate process", "Kill process"}) {
                QVERIFY2(!processAction(text)->isEnabled(), text);
            }
        }
        Fixture::choosePage(1);
        QVERIFY(processAction("Kill process")->isEnabled());
        QVERIFY(processAction("Tree view")->isEnabled());
    }

    void aboutToShowUpdatesTheMenus()
    {
        startOnProcesses(100);
        QAction *kill = processAction("Kill process");
        kill->setVisible(false);
        QMetaObject::invokeMethod(menuAt(1), "aboutToShow");
        QVERIFY(kill->isVisible());
        kill->setVisible(false);
        QMetaObject::invokeMethod(processEntry(), "aboutToShow");
        QVERIFY(kill->isVisible());
    }

    void selectionAndResetReachTheActionsAtOnce()
    {
        made(300).state = 16;
        startOnProcesses();
        QVERIFY(!processAction("Kill process")->isVisible());
        select(200);
        QVERIFY(processAction("Kill process")->isVisible());
        QVERIFY(processAction("Stop process")->isEnabled());
        QVERIFY(!processAction("Continue process")->isEnabled());
        select(300);
        QVERIFY(!processAction("Stop process")->isEnabled());
        QVERIFY(processAction("Continue process")->isEnabled());
        view()->selectionModel()->clearSelection();
        QVERIFY(!processAction("Kill process")->isVisible());
        QVERIFY(!processAction("Stop process")->isEnabled());
        QVERIFY(!processAction("Continue process")->isEnabled());
        select(200);
        QVERIFY(processAction("Kill process")->isVisible());
        list()->setColumnVisible(3, false); // resets the model
        QVERIFY(processAction("Kill process")->isVisible());
        standin::machine().processes->erase(200); // the selected one
        list()->setColumnVisible(3, true);
        QVERIFY(!processAction("Kill process")->isVisible());
    }

    void changedProcessStateReachesTheActionsOnRefresh()
    {
        startOnProcesses(300);
        QVERIFY(processAction("Stop process")->isEnabled());
        made(300).state = 16;
        for (int i = 0; i < 3; ++i) {
            fixture->updater().update();
        }
        QVERIFY(!processAction("Stop process")->isEnabled());
        QVERIFY(processAction("Continue process")->isEnabled());
    }

    void contextMenuHasTheActionsAndTheColumns_data()
    {
        const Rows<bool> row("selected");
        row("with a selection", true);
        row("without a selection", false);
    }

    void contextMenuHasTheActionsAndTheColumns()
    {
        QFETCH(bool, selected);
        startOnProcesses(selected ? 100 : -1);
        withContextMenu([selected](QMenu *menu) {
            QCOMPARE(menu->parent(), Fixture::find<QWidget>("centralwidget"));
            QCOMPARE(texts(menu), texts(processEntry()) << QStringLiteral("Visible columns"));
            QCOMPARE(processAction("Kill process")->isVisible(), selected);
            QVERIFY(processAction("Tree view")->isVisible());
        });
    }

    void theContextMenuIsATickWhateverWasChosen()
    {
        startOnProcesses();
        // Two closed menus lead from tick 1 to tick 3, so a third one refreshes.
        withContextMenu([](QMenu *) {});
        withContextMenu([](QMenu *) {});
        standin::resetCalls();
        withContextMenu([](QMenu *) {});
        QVERIFY(standin::calls().processList >= 1);
    }

    void aColumnIsToggledFromTheContextMenu()
    {
        fixture->start(1);
        auto *proxy = list();
        QVERIFY(proxy->isColumnVisible(3));
        withContextMenu([](QMenu *menu) { menu->actions().last()->menu()->actions().at(3)->trigger(); });
        QVERIFY(!proxy->isColumnVisible(3));
        withContextMenu([](QMenu *menu) {
            QAction *column = menu->actions().last()->menu()->actions().at(3);
            QVERIFY(!column->isChecked());
            column->trigger();
        });
        QVERIFY(proxy->isColumnVisible(3));
    }

    void aRightClickOnTheHeaderOpensTheColumns()
    {
        fixture->start(1);
        const ModalDriver driver([](QWidget *widget) {
            auto *menu = qobject_cast<QMenu *>(widget);
            QCOMPARE(menu->title(), QStringLiteral("Visible columns"));
            menu->actions().at(3)->trigger();
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5));
        QCoreApplication::sendEvent(view()->header()->viewport(), &event);
        QVERIFY(!Fixture::processes()->isColumnVisible(3));
    }

    void theColumnMenuListsEveryColumn()
    {
        fixture->start(1);
        const QScopedPointer<QMenu> menu(fixture->updater().menuVisibleColumns());
        QCOMPARE(menu->title(), QStringLiteral("Visible columns"));
        QVERIFY(!menu->parent());
        const auto *filler = gtop_wrappers::ProcessFiller::instance();
        QCOMPARE(static_cast<unsigned long>(menu->actions().size()), filler->size());
        for (int i = 0; i < menu->actions().size(); ++i) {
            const QAction *action = menu->actions().at(i);
            QCOMPARE(action->text(), filler->name(static_cast<unsigned long>(i)));
            QCOMPARE(action->data(), QVariant(i));
            QCOMPARE(action->parent(), static_cast<QObject *>(menu.data()));
            QVERIFY(action->isCheckable());
            QCOMPARE(action->isChecked(), i < 6 || i > 9);
        }
    }

    void togglingAColumnWithoutASenderOnlyLogsALine()
    {
        static QStringList logged;
        fixture->start(1);
        QSignalSpy resets(list(), SIGNAL(modelReset()));
        const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
                if (type == QtCriticalMsg) {
                    logged << QLatin1String(context.category) + QLatin1Char(' ') + text;
                }
            });
        fixture->updater().slotToggleColumn();
        qInstallMessageHandler(before);
        QCOMPARE(logged.size(), 1);
        QVERIFY(logged.first().startsWith(QStringLiteral("default ")));
        QVERIFY(logged.first().contains(QStringLiteral("call not by signal")));
        QCOMPARE(resets.count(), 0);
    }

    void aThousandContextMenusLeaveNothingBehind()
    {
        fixture->start(1);
        const auto open = [this] { withContextMenu([](QMenu *) {}); };
        open();
        const auto objects = [this] {
            return fixture->updater().findChildren<QObject *>().size() +
                   Fixture::window()->findChildren<QObject *>().size();
        };
        const int objectsBefore = objects();
        const int widgetsBefore = QApplication::allWidgets().size();
        const int entriesBefore = processEntry()->actions().size();
        for (int i = 0; i < 1000; ++i) {
            open();
        }
        // At most as many as before: the toolkit deletes objects of its own now and then.
        QVERIFY(QApplication::allWidgets().size() <= widgetsBefore);
        QVERIFY(objects() <= objectsBefore);
        QCOMPARE(processEntry()->actions().size(), entriesBefore);
    }

    void eachIntervalEntryOpensItsDialog_data()
    {
        const Rows<QString, QString> row("page", "key");
        row("General interval", "General page", "interval/general");
        row("Process interval", "Processes page", "interval/procs");
        row("Filesystem interval", "Filesystems page", "interval/fs");
        row("Network interval", "Network page", "interval/nwt");
    }

    void eachIntervalEntryOpensItsDialog()
    {
        QFETCH(QString, page);
        QFETCH(QString, key);
        fixture->start(0);
        const ModalDriver driver([&](QWidget *dialog) {
            bool named = false;
            for (const QLabel *label : dialog->findChildren<QLabel *>()) {
                named = named || label->text().endsWith(QStringLiteral(" ") + page);
            }
            QVERIFY(named);
            dialog->findChild<QSlider *>()->setSliderPosition(5);
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        });
        Fixture::entry(menuAt(1)->actions().first()->menu(), QTest::currentDataTag())->trigger();
        fixture->stop();
        QCOMPARE(QSettings().value(key).toInt(), 5);
    }

    void networkIntervalReachesTheGraphEvenIfCancelled()
    {
        fixture->start(3);
        QCoreApplication::processEvents();
        // Enough samples for a line to be drawn; the dialog clears them.
        for (int i = 0; i < 5; ++i) {
            standin::machine().interfaces->at(1).bytesIn += 1000;
            standin::machine().interfaces->at(1).bytesOut += 5000;
            fixture->refresh(3);
        }
        QVERIFY(Fixture::drawnSamples() > 0);
        const ModalDriver driver([](QWidget *dialog) { qobject_cast<QDialog *>(dialog)->reject(); });
        fixture->updater().slotIntervalNet();
        QCOMPARE(Fixture::drawnSamples(), 0);
    }

private:
    static QMenu *menuAt(int position)
    {
        return Fixture::window()->menuBar()->actions().at(position)->menu();
    }
    static QMenu *processEntry() { return menuAt(1)->actions().at(1)->menu(); }
    static QAction *processAction(const char *text) { return Fixture::processAction(text); }
    static QStringList texts(const QMenu *menu)
    {
        QStringList result;
        for (const QAction *action : menu->actions()) {
            result << (action->isSeparator() ? QStringLiteral("-") : action->text());
        }
        return result;
    }
    /// The tick is 1 afterwards.
    void startOnProcesses(int selectedPid = -1)
    {
        fixture->start(1);
        fixture->refresh(1);
        select(selectedPid);
    }
    /// Opens the context menu, calls `act` and closes the menu.
    void withContextMenu(const std::function<void(QMenu *)> &act)
    {
        const ModalDriver driver([&](QWidget *widget) {
            auto *menu = qobject_cast<QMenu *>(widget);
            act(menu);
            menu->close();
        });
        fixture->updater().popup();
    }
};

QTEST_MAIN(TestMenus)
#include "test_menus.moc"
