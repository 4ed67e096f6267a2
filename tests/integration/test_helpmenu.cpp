// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helpmenu.h"

#include "../support/rows.h"
#include "integration/dpi.h"
#include "integration/zarninit.h"
#include "tests/support/modal.h"

#include <QMainWindow>
#include <QMenuBar>

#include <memory>

class TestHelpMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Q_INIT_RESOURCE(images);
        QCoreApplication::setApplicationName(QStringLiteral("watcher"));
    }

    void init()
    {
        zarnInit("1.2.2", "Watches the system.");
        QApplication::setWindowIcon(QIcon());
        window = std::make_unique<QMainWindow>();
        menu = new ZarnHelpMenu(window.get());
        window->menuBar()->addMenu(menu);
        window->show();
    }

    void cleanup() { window.reset(); }

    void titleAndEntries()
    {
        QCOMPARE(menu->title(), QStringLiteral("&Help"));
        QCOMPARE(menu->parentWidget(), window.get());
        QCOMPARE(menu->actions().size(), 2);
        QCOMPARE(entry(0)->text(), QStringLiteral("About"));
        QCOMPARE(entry(1)->text(), QStringLiteral("About Qt"));
        for (const QAction *action : menu->actions()) {
            QVERIFY(action->isEnabled());
            QVERIFY(action->shortcut().isEmpty());
        }
    }

    void aboutIsModalAndShowsWhatZarnInitWasGiven_data()
    {
        // What is shown is separated by "|".
        const Rows<QByteArray, QByteArray, QString> row("version", "description", "shown");
        row("plain texts", "1.2.2", "Watches the system.", "Version 1.2.2|Watches the system.");
        row("markup and place holders are escaped", "1 %2", "<b>a & b</b> %1",
            "Version 1 %2|&lt;b&gt;a &amp; b&lt;/b&gt; %1");
        row("no version line without a version", {}, {}, {});
    }

    void aboutIsModalAndShowsWhatZarnInitWasGiven()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, description);
        QFETCH(QString, shown);
        zarnInit(version.isNull() ? nullptr : version.constData(),
                 description.isNull() ? nullptr : description.constData());
        openBox(entry(0), [&](QMessageBox *box) {
            QVERIFY(box->isModal());
            QCOMPARE(box->parentWidget(), window.get());
            QCOMPARE(box->windowTitle(), QStringLiteral("About watcher"));
            for (const QString &text : (shown + "|watcher|GPL-3.0-or-later").split(QLatin1Char('|'))) {
                QVERIFY2(box->text().contains(text), qPrintable(text));
            }
            QCOMPARE(box->text().contains(QStringLiteral("Version")), !version.isNull());
        });
    }

    void aboutShowsTheLogoOrElseTheWindowsIcon()
    {
        openBox(entry(0), [](QMessageBox *box) {
            const int side = int(zarnDpiScaled(64));
            const QImage logo =
                QIcon(QStringLiteral(":/images/diobin_logo.png")).pixmap(side, side).toImage();
            QVERIFY(!logo.isNull());
            QCOMPARE(box->iconPixmap().toImage(), logo);
        });
        QPixmap red(64, 64);
        red.fill(Qt::red);
        window->setWindowIcon(red);
        openBox(entry(0), [](QMessageBox *box) {
            QCOMPARE(box->iconPixmap().toImage().pixelColor(32, 32), QColor(Qt::red));
        });
    }

    void aboutClosesOnKey_data()
    {
        const Rows<int> row("key");
        row("Escape", Qt::Key_Escape);
        row("Return", Qt::Key_Return);
        row("Enter", Qt::Key_Enter);
    }

    void aboutClosesOnKey()
    {
        QFETCH(int, key);
        openBox(entry(0), [key](QMessageBox *box) {
            QVERIFY(box->isVisible());
            QTest::keyClick(box, Qt::Key(key));
            QVERIFY(!box->isVisible());
        });
    }

    void aboutLeavesNothingBehind()
    {
        const int childrenBefore = window->findChildren<QObject *>().size();
        const int windowsBefore = QApplication::topLevelWidgets().size();
        for (int i = 0; i < 3; ++i) {
            openBox(entry(0), [](QMessageBox *) {});
        }
        QCOMPARE(window->findChildren<QObject *>().size(), childrenBefore);
        QCOMPARE(QApplication::topLevelWidgets().size(), windowsBefore);
    }

    void quittingClosesAbout()
    {
        const ModalDriver driver([](QWidget *) { QCoreApplication::quit(); });
        QTimer::singleShot(0, menu, SLOT(showAbout()));
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void aboutQtShowsTheToolkit()
    {
        openBox(entry(1), [](QMessageBox *box) {
            QVERIFY(box->text().contains(QStringLiteral("Qt")));
            QVERIFY(box->text().contains(QLatin1String(qVersion())));
        });
    }

    void aboutWorksWithoutAParent()
    {
        ZarnHelpMenu orphan(nullptr);
        openBox(orphan.actions().at(0), [](QMessageBox *box) { QVERIFY(!box->parentWidget()); });
    }

private:
    QAction *entry(int index) const { return menu->actions().at(index); }
    /// Triggers an entry, hands its open box to `look`, and closes it.
    static void openBox(QAction *action, const std::function<void(QMessageBox *)> &look)
    {
        const ModalDriver driver([&](QWidget *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            QVERIFY(box);
            look(box);
            box->close();
        });
        action->trigger();
        QVERIFY(!QApplication::activeModalWidget());
    }

    std::unique_ptr<QMainWindow> window;
    ZarnHelpMenu *menu = nullptr;
};

QTEST_MAIN(TestHelpMenu)
#include "test_helpmenu.moc"
