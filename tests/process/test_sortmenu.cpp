// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/sortmenu.h"
#include "tests/process/support/listview.h"

#include <QActionGroup>
#include <QHeaderView>
#include <QtTest>

using namespace gtop_wrappers;

class TestSortMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsWhatTheListIsSortedBy()
    {
        List list;
        list.view.sortByColumn(NameColumn, Qt::AscendingOrder);
        SortMenu menu(list.proxy);
        QCOMPARE(checkedIn(menu), QStringList({"Name", "Ascending"}));
        click(list, PidColumn); // on its header
        QCOMPARE(checkedIn(menu), QStringList({"PID", "Ascending"}));
        click(list, PidColumn);
        QCOMPARE(checkedIn(menu), QStringList({"PID", "Descending"}));
        list.proxy->setColumnVisible(CpuColumn, false);
        QCOMPARE(checkedIn(menu), QStringList({"PID", "Descending"}));
        QVERIFY(!entry(menu, "CPU")->isVisible());
    }

    void itSortsTheListAndItsHeader()
    {
        List list;
        list.proxy->setColumnVisible(CpuColumn, false);
        SortMenu menu(list.proxy);
        choose(menu, "PID");
        choose(menu, "Descending");
        list.proxy->refresh(makeSnapshot(factsUpTo(3)));
        QCOMPARE(list.pids(), QList<int>({3, 2, 1}));
        QCOMPARE(list.view.header()->sortIndicatorSection(), 1);
        choose(menu, "Ascending");
        QCOMPARE(list.pids(), QList<int>({1, 2, 3}));
        choose(menu, "Name");
        QCOMPARE(list.proxy->sortColumn(), 0);
        QCOMPARE(checkedIn(menu), QStringList({"Name", "Ascending"}));
    }

    void everyEntryHasAMnemonicOfItsOwn()
    {
        List list;
        SortMenu menu(list.proxy);
        QStringList mnemonics;
        for (const QAction *action : menu.actions()) {
            if (!action->isSeparator()) {
                mnemonics.append(action->text().section('&', 1).left(1).toLower());
            }
        }
        QCOMPARE(mnemonics.size(), static_cast<int>(ColumnCount) + 2);
        QVERIFY(!mnemonics.contains(QString()));
        QCOMPARE(mnemonics.removeDuplicates(), 0);
        QVERIFY(menu.title().contains('&'));
    }

private:
    static QAction *entry(const SortMenu &menu, const QString &text)
    {
        for (QAction *action : menu.actions()) {
            if (QString(action->text()).remove('&') == text) {
                return action;
            }
        }
        return nullptr;
    }

    static void choose(SortMenu &menu, const QString &text)
    {
        QMetaObject::invokeMethod(&menu, "aboutToShow");
        entry(menu, text)->trigger();
    }

    static QStringList checkedIn(SortMenu &menu)
    {
        QMetaObject::invokeMethod(&menu, "aboutToShow");
        QStringList texts;
        for (const QAction *action : menu.actions()) {
            if (action->isChecked()) {
                texts.append(QString(action->text()).remove('&'));
            }
        }
        return texts;
    }

    static void click(List &list, int column)
    {
        list.view.resize(1500, 200);
        list.view.show();
        const QHeaderView *header = list.view.header();
        const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, 5);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
};

QTEST_MAIN(TestSortMenu)
#include "test_sortmenu.moc"
