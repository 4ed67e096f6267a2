// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue.h"
#include "clipping.h"
#include "resources/histogeometry.h"
#include "tests/app/fixture.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

/// Each page and each menu is legible in each language, in a window of the default size.
class TestTranslatedPages : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { everyLanguage(); }

    void initTestCase()
    {
        QFont font = QApplication::font();
        font.setPointSize(10); // as desktops have it; the offscreen platform's own is larger
        QApplication::setFont(font);
    }

    void init()
    {
        QFETCH_GLOBAL(QString, language);
        useLanguage(language);
        ControllerTest::init();
        fixture->start(1);
    }

    void thePagesAreLegible()
    {
        const QSize defaultSize(640, 480);
        QMainWindow *window = Fixture::window();
        window->resize(defaultSize.expandedTo(window->minimumSizeHint()));
        QCOMPARE(window->width(), defaultSize.width()); // no text pushes it wider
        for (int page = 0; page < 4; ++page) {
            Fixture::choosePage(page);
            QCoreApplication::processEvents();
            QCOMPARE(unreadableTexts(window).join(QLatin1Char('\n')), QString());
        }
    }

    void theMenusAndTheContextMenuAreLegible()
    {
        QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
        auto *tree = Fixture::find<QTreeView>("treeView");
        tree->setCurrentIndex(tree->model()->index(0, 0)); // adds the actions on a process
        for (const QAction *title : Fixture::window()->menuBar()->actions()) {
            checkMenu(title->menu());
        }
        const ModalDriver driver([](QWidget *widget) {
            auto *menu = qobject_cast<QMenu *>(widget);
            checkMenu(menu); // with the choice of columns, its last entry
            menu->close();
        });
        QMetaObject::invokeMethod(&fixture->updater(), "popup");
    }

    void theLegendFitsIntoItsBox()
    {
        const histogeometry::Legend legend = histogeometry::legend(200, histogeometry::legendSizes());
        const QFontMetrics metrics(QFont(QStringLiteral("Arial"), 8));
        for (const char *text : {"In", "Out"}) {
            const QString label = QCoreApplication::translate("TimeHisto", text);
            const int end = legend.inText.left() + metrics.horizontalAdvance(label);
            QVERIFY2(end < legend.box.right(), qPrintable(label));
            QVERIFY2(metrics.height() <= legend.inText.height(), qPrintable(label));
        }
    }

private:
    /// Checks a menu and then each of its submenus.
    static void checkMenu(QMenu *menu)
    {
        menu->popup(QPoint());
        const QStringList unreadable = unreadableEntries(menu);
        menu->close();
        QCOMPARE(unreadable.join(QLatin1Char('\n')), QString());
        for (const QAction *entry : menu->actions()) {
            if (entry->menu() && entry->isVisible()) {
                checkMenu(entry->menu());
            }
        }
    }
};

QTEST_MAIN(TestTranslatedPages)
#include "test_translatedpages.moc"
