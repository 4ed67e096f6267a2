// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipping.h"
#include "language.h"
#include "resources/histogeometry.h"
#include "tests/app/fixture.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QSize defaultSize(640, 480);

} // namespace

// Each page and each menu, in each language, can be read in a window of the default size.
class TestTranslatedPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void thePagesCanBeRead_data() { everyLanguage(); }
    void thePagesCanBeRead();
    void theMenusCanBeRead_data() { everyLanguage(); }
    void theMenusCanBeRead();
    void theContextMenuCanBeRead_data() { everyLanguage(); }
    void theContextMenuCanBeRead();
    void theGraphsLegendStaysInItsBox_data() { everyLanguage(); }
    void theGraphsLegendStaysInItsBox();

    void aCutTextIsNoticed();
    void anOverlapIsNoticed();
    void aCutColumnTitleIsNoticed();
    void aSharedMnemonicIsNoticed();

private:
    /// Looks at a menu and, one after the other, at the menus that open from it.
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

void TestTranslatedPages::initTestCase()
{
    QFont font = QApplication::font();
    font.setPointSize(10); // as desktops have it; the offscreen platform's own is larger
    QApplication::setFont(font);
}

void TestTranslatedPages::thePagesCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    fixture.start();
    QMainWindow *window = Fixture::window();
    window->resize(defaultSize.expandedTo(window->minimumSizeHint()));
    QCOMPARE(window->width(), defaultSize.width()); // no text pushes it wider
    for (int page = 0; page < 4; ++page) {
        Fixture::choosePage(page);
        QCoreApplication::processEvents();
        QCOMPARE(unreadableTexts(window).join(QLatin1Char('\n')), QString());
    }
}

void TestTranslatedPages::theMenusCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    fixture.start(1);
    QMetaObject::invokeMethod(&fixture.updater(), "slotTabChanged", Q_ARG(int, 1));
    auto *tree = Fixture::find<QTreeView>("treeView");
    tree->setCurrentIndex(tree->model()->index(0, 0)); // brings the actions on a process
    for (const QAction *title : Fixture::window()->menuBar()->actions()) {
        checkMenu(title->menu());
    }
}

void TestTranslatedPages::theContextMenuCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    fixture.start(1);
    const ModalDriver driver([](QWidget *widget) {
        auto *menu = qobject_cast<QMenu *>(widget);
        checkMenu(menu); // with the choice of columns, which is its last entry
        menu->close();
    });
    QMetaObject::invokeMethod(&fixture.updater(), "popup");
}

void TestTranslatedPages::theGraphsLegendStaysInItsBox()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    const histogeometry::Legend legend = histogeometry::legend(200, histogeometry::legendSizes());
    const QFontMetrics metrics(QFont(QStringLiteral("Arial"), 8));
    for (const char *text : {"In", "Out"}) {
        const QString label = QCoreApplication::translate("TimeHisto", text);
        QVERIFY2(legend.inText.left() + metrics.horizontalAdvance(label) < legend.box.right(),
                 qPrintable(label));
        QVERIFY2(metrics.height() <= legend.inText.height(), qPrintable(label));
    }
}

// The checks above say nothing unless they see what is wrong.
void TestTranslatedPages::aCutTextIsNoticed()
{
    QWidget window;
    QLabel label(QStringLiteral("a caption"), &window);
    label.resize(label.sizeHint());
    window.resize(300, 100);
    window.show();
    QCOMPARE(unreadableTexts(&window).join(QLatin1Char('\n')), QString());
    label.resize(label.width() - 1, label.height());
    QCOMPARE(unreadableTexts(&window).size(), 1);
    label.resize(label.sizeHint());
    label.move(window.width() - label.width() + 1, 0);
    QCOMPARE(unreadableTexts(&window).size(), 1);
}

void TestTranslatedPages::anOverlapIsNoticed()
{
    QWidget window;
    QLabel one(QStringLiteral("one"), &window);
    QLabel other(QStringLiteral("other"), &window);
    one.resize(one.sizeHint());
    other.resize(other.sizeHint());
    other.move(one.width(), 0);
    window.resize(300, 100);
    window.show();
    QCOMPARE(unreadableTexts(&window).join(QLatin1Char('\n')), QString());
    other.move(one.width() - 1, 0);
    QCOMPARE(unreadableTexts(&window).size(), 1);
}

void TestTranslatedPages::aCutColumnTitleIsNoticed()
{
    QTreeWidget table;
    table.setHeaderLabels({QStringLiteral("a rather long title"), QStringLiteral("b")});
    table.show();
    table.header()->resizeSection(0, table.header()->sectionSizeHint(0));
    QCOMPARE(unreadableTexts(&table).join(QLatin1Char('\n')), QString());
    table.header()->resizeSection(0, table.header()->sectionSizeHint(0) - 1);
    QCOMPARE(unreadableTexts(&table).size(), 1);
}

void TestTranslatedPages::aSharedMnemonicIsNoticed()
{
    QCOMPARE(sharedMnemonics({QStringLiteral("&Datei"), QStringLiteral("&Info"), QStringLiteral("Info")}),
             QStringList());
    QCOMPARE(sharedMnemonics({QStringLiteral("&Archivo"), QStringLiteral("&Ayuda")}).size(), 1);
}

QTEST_MAIN(TestTranslatedPages)
#include "test_translatedpages.moc"
