// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "tests/process/support/listview.h"
#include "tests/process/support/world.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace {

enum Mode { FlatList, RequiredTree, CompleteTree };

/// Gives each state of a row, a cell and a branch a color of its own.
class TelltaleStyle : public QProxyStyle
{
public:
    TelltaleStyle() : QProxyStyle("fusion") {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_PanelItemViewRow || element == PE_PanelItemViewItem ||
            element == PE_IndicatorBranch) {
            painter->fillRect(option->rect,
                              QColor::fromRgb(qHash(static_cast<int>(option->state)) | 0x808080U));
        }
    }
};

QStyle *styleNamed(const QString &name)
{
    return name == "telltale" ? new TelltaleStyle : QStyleFactory::create(name);
}

/// What has been painted on the screen so far, with the updates that painting asks for.
QImage screenOf(const QWidget &window)
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
    }
    return static_cast<const QImage *>(window.backingStore()->paintDevice())->copy();
}

/// Counts what is painted in and around a view.
class PaintEvents : public QObject
{
public:
    explicit PaintEvents(QWidget *window)
    {
        QCoreApplication::processEvents();
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            widget->installEventFilter(this);
        }
    }

    QMap<QWidget *, QRegion> regions;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            regions[qobject_cast<QWidget *>(watched)] += static_cast<QPaintEvent *>(event)->region();
        }
        return false;
    }
};

/// The list in a window, whose processes and looks change at random.
struct ShownList : List
{
    explicit ShownList(const QString &styleName, Mode mode = FlatList)
        : style(styleNamed(styleName)), world(19U, 40)
    {
        view.setStyle(style.data());
        for (QWidget *part : view.findChildren<QWidget *>()) {
            part->setStyle(style.data());
        }
        setMode(mode);
        view.resize(420, 330);
        view.show();
        refresh();
        screenOf(view);
    }

    void setMode(int mode)
    {
        proxy->setFlat(mode == FlatList);
        proxy->setComplete(mode == CompleteTree);
    }
    void refresh()
    {
        proxy->setTotalCpuTime(total += 100000);
        proxy->refresh(makeSnapshot(world.facts()));
    }
    QModelIndex anyCell() { return view.indexAt(anyPoint()); }
    QPoint anyPoint()
    {
        return {world.pick(view.viewport()->width()), world.pick(view.viewport()->height())};
    }
    /// As Qt does when it lays out, and more.
    void repaintAll()
    {
        for (QWidget *part : view.findChildren<QWidget *>()) {
            part->update();
        }
    }
    /// Does what users, desktops and Qt do between two refreshes.
    void use()
    {
        const std::vector<std::function<void()>> uses{
            [&] { QTest::mouseMove(view.viewport(), anyPoint()); },
            [&] { view.setCurrentIndex(anyCell()); },
            [&] { view.selectionModel()->select(anyCell(), QItemSelectionModel::ClearAndSelect); },
            [&] { view.selectionModel()->clear(); },
            [&] { view.setExpanded(anyCell().siblingAtColumn(0), world.pick(2) == 0); },
            [&] { world.pick(2) == 0 ? proxy->expandAll() : proxy->collapseAll(); },
            [&] {
                view.sortByColumn(world.pick(5),
                                  world.pick(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            },
            [&] { view.verticalScrollBar()->setValue(world.pick(view.verticalScrollBar()->maximum() + 1)); },
            [&] {
                view.horizontalScrollBar()->setValue(world.pick(view.horizontalScrollBar()->maximum() + 1));
            },
            [&] { view.header()->resizeSection(world.pick(9), 20 + world.pick(100)); },
            [&] { view.header()->moveSection(world.pick(9), world.pick(9)); },
            [&] { proxy->setFilter(world.pick(3) == 0 ? QString() : QString::number(world.pick(10))); },
            [&] { view.resize(300 + world.pick(200), 200 + world.pick(200)); },
            [&] { world.pick(2) == 0 ? view.setFocus() : view.clearFocus(); },
            [&] { view.setPalette(QPalette(QColor::fromHsv(world.pick(360), 60, 60 + world.pick(190)))); },
            [&] { view.setFont(QFont(view.font().family(), 8 + world.pick(4))); },
            [&] { view.setAlternatingRowColors(world.pick(2) == 0); },
            [&] { view.setLayoutDirection(world.pick(2) == 0 ? Qt::LeftToRight : Qt::RightToLeft); },
            [&] { view.setEnabled(world.pick(3) != 0); },
            [&] { view.viewport()->update(QRect(anyPoint(), anyPoint()).normalized()); },
            [&] { view.grab(); },
            [&] {
                proxy->setColumnVisible(static_cast<unsigned long>(6 + world.pick(3)), world.pick(2) == 0);
            },
        };
        uses[static_cast<std::size_t>(world.pick(static_cast<int>(uses.size())))]();
    }
    void anything()
    {
        while (world.pick(3) != 0) {
            use();
            if (world.pick(2) == 0) {
                QCoreApplication::processEvents();
            }
        }
    }

    QScopedPointer<QStyle> style;
    World world;
    unsigned long total = 0;
};

} // namespace

class TestPaintedRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void afterEachRefreshTheScreenLooksAsIfAllWerePainted_data()
    {
        const Rows<QString, int> row("style", "mode");
        for (const char *style : {"fusion", "windows", "telltale"}) {
            row(QByteArray(style) + ", list", style, FlatList);
            row(QByteArray(style) + ", tree", style, RequiredTree);
            row(QByteArray(style) + ", complete tree", style, CompleteTree);
        }
    }

    void afterEachRefreshTheScreenLooksAsIfAllWerePainted()
    {
        QFETCH(QString, style);
        QFETCH(int, mode);
        ShownList list(style, static_cast<Mode>(mode));
        for (int i = 0; i < 50; ++i) {
            list.anything();
            if (list.world.pick(3) != 0) {
                list.world.step();
            }
            list.refresh();
            const QImage screen = screenOf(list.view);
            list.repaintAll();
            const QImage wanted = screenOf(list.view);
            QVERIFY2(screen == wanted, qPrintable(QString::number(i)));
        }
    }

    void whatDoesNotChangeIsNotPainted()
    {
        ShownList list("fusion");
        list.refresh(); // the first CPU loads differ
        PaintEvents events(&list.view);
        list.refresh();
        QCoreApplication::processEvents();
        QVERIFY(events.regions.isEmpty());
    }

    void largeNumbersAreNotPaintedAgainEither()
    {
        List list;
        list.view.setLocale(QLocale(QLocale::German)); // which groups digits elsewhere
        list.view.show();
        const auto refresh = [&list] { list.proxy->refresh(makeSnapshot({{1, 0}, {12345, 0}})); };
        refresh();
        refresh(); // the first CPU loads differ
        PaintEvents events(&list.view);
        refresh();
        QCoreApplication::processEvents();
        QVERIFY(events.regions.isEmpty());
    }

    void rowsOutOfViewChangeOnlyTheScrollBar_data()
    {
        const Rows<int, int, int> row("before", "after", "scrolled");
        row("the slider gets longer", 100, 12, 0);
        row("the slider moves", 2000, 1000, 500);
    }

    void rowsOutOfViewChangeOnlyTheScrollBar()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(int, scrolled);
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // no row is under it
        List list;
        FactsByPid facts = factsUpTo(before);
        list.view.show();
        list.view.sortByColumn(gtop_wrappers::PidColumn, Qt::AscendingOrder);
        list.proxy->refresh(makeSnapshot(facts));
        list.proxy->refresh(makeSnapshot(facts)); // the first CPU loads differ
        list.view.verticalScrollBar()->setValue(scrolled);
        QCoreApplication::processEvents();
        list.proxy->refresh(makeSnapshot(facts)); // paints all rows that were scrolled in
        PaintEvents events(&list.view);
        facts.erase(facts.upper_bound(after), facts.end());
        list.proxy->refresh(makeSnapshot(facts));
        QCoreApplication::processEvents();
        QVERIFY(events.regions.contains(list.view.verticalScrollBar()));
        QVERIFY(!events.regions.contains(list.view.viewport()));
        QVERIFY(!events.regions.contains(list.view.header()->viewport()));
    }

    void aRowOutOfViewThatDoesNotMoveTheSliderChangesNothing()
    {
        List list;
        FactsByPid facts = factsUpTo(2000);
        list.view.show();
        list.view.sortByColumn(gtop_wrappers::PidColumn, Qt::AscendingOrder);
        list.proxy->refresh(makeSnapshot(facts));
        list.proxy->refresh(makeSnapshot(facts)); // the first CPU loads differ
        PaintEvents events(&list.view);
        facts.erase(2000);
        list.proxy->refresh(makeSnapshot(facts));
        QCoreApplication::processEvents();
        QVERIFY(events.regions.isEmpty());
        QCOMPARE(list.proxy->rowCount(), 1999);
    }

    void whatWasNotPaintedOnTheScreenDoesNotCount_data()
    {
        addTextRows("painted", {"a picture of the list", "a picture of the viewport", "a part of the cell"});
    }

    /// The text of a cell changes without a word to the view; a refresh then shows the same text or the old
    /// one.
    void whatWasNotPaintedOnTheScreenDoesNotCount()
    {
        QFETCH(QString, painted);
        List list;
        list.view.resize(900, 400);
        list.view.show();
        const FactsByPid facts = factsUpTo(10);
        list.proxy->refresh(makeSnapshot(facts));
        screenOf(list.view);
        const QRect cell = list.view.visualRect(list.find(3).siblingAtColumn(gtop_wrappers::StateColumn));
        list.proxy->processByPid(3).params[gtop_wrappers::StateColumn]->setDisplayValue("other");
        if (painted == "a picture of the list") {
            list.view.grab();
        } else if (painted == "a picture of the viewport") {
            list.view.viewport()->grab();
        } else {
            list.view.viewport()->update(cell.adjusted(0, 0, -cell.width() / 2, 0));
            screenOf(list.view);
        }
        ProcModel::Snapshot snapshot = makeSnapshot(facts);
        if (painted != "a part of the cell") {
            snapshot.at(3).params[gtop_wrappers::StateColumn]->setDisplayValue("other");
        }
        list.proxy->refresh(snapshot);
        QVERIFY(isPainted(list));
    }

    void theRowThatTakesOverTheSelectionIsPainted()
    {
        List list;
        list.view.show();
        list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}, {3, 0}}));
        list.view.setCurrentIndex(list.proxy->index(2, 0));
        screenOf(list.view);
        list.proxy->refresh(makeSnapshot({{1, 0}, {2, 0}}));
        QCOMPARE(list.view.currentIndex(), list.proxy->index(1, 0));
        QVERIFY(isPainted(list));
    }

    void aChangedCellIsPaintedAlone()
    {
        List list;
        FactsByPid facts = factsUpTo(10);
        list.view.show();
        list.proxy->refresh(makeSnapshot(facts));
        list.proxy->setTotalCpuTime(1000);
        list.proxy->refresh(makeSnapshot(facts)); // the first CPU loads differ
        PaintEvents events(&list.view);
        facts[3].cpuCounter += 100;
        list.proxy->setTotalCpuTime(2000);
        list.proxy->refresh(makeSnapshot(facts));
        QCoreApplication::processEvents();
        const QModelIndex row = list.find(3);
        const QRegion changed = list.view.visualRect(row.siblingAtColumn(gtop_wrappers::CpuColumn)) &
                                list.view.viewport()->rect();
        QCOMPARE(events.regions.keys(), QList<QWidget *>{list.view.viewport()});
        QCOMPARE(events.regions.first(), changed);
    }

private:
    /// Whether the rows look as if all of them were painted now.
    static bool isPainted(List &list)
    {
        const QImage screen = screenOf(list.view);
        list.view.viewport()->update();
        return screen == screenOf(list.view);
    }
};

QTEST_MAIN(TestPaintedRows)
#include "test_paintedrows.moc"
