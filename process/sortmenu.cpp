// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/sortmenu.h"

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QActionGroup>

#include <algorithm>

namespace {

/// The first of the letters that no key types alone.
constexpr ushort firstHangul = 0x1100;

/// Gives each entry a letter of its own as mnemonic, the shortest titles first, as long as there are some.
void addMnemonics(QList<QAction *> actions)
{
    const auto isShorter = [](const QAction *a, const QAction *b) {
        return a->text().size() < b->text().size();
    };
    std::stable_sort(actions.begin(), actions.end(), isShorter);
    QString taken;
    for (QAction *action : actions) {
        QString title = action->text();
        const auto isFree = [&](QChar c) {
            return c.isLetter() && c.unicode() < firstHangul && !taken.contains(c, Qt::CaseInsensitive);
        };
        const auto letter = std::find_if(title.cbegin(), title.cend(), isFree);
        if (letter != title.cend()) {
            taken.append(*letter);
            title.insert(static_cast<int>(letter - title.cbegin()), QLatin1Char('&'));
            action->setText(title);
        }
    }
}

void checkWith(const QActionGroup *group, int data)
{
    for (QAction *action : group->actions()) {
        action->setChecked(action->data().toInt() == data);
    }
}

} // namespace

SortMenu::SortMenu(ProxyProcModel *proxy, QWidget *parent)
    : QMenu(tr("Sort &by"), parent), list(proxy), columns(new QActionGroup(this)),
      orders(new QActionGroup(this))
{
    const auto *filler = gtop_wrappers::ProcessFiller::instance();
    const auto add = [&](QActionGroup *group, const QString &title, int value) {
        QAction *action = addAction(title);
        action->setData(value);
        action->setCheckable(true);
        group->addAction(action);
        connect(action, SIGNAL(triggered(bool)), this, SLOT(sortByChecked()));
    };
    for (unsigned long i = 0; i < filler->size(); ++i) {
        add(columns, filler->title(i), static_cast<int>(i));
    }
    addSeparator();
    add(orders, tr("Ascending"), Qt::AscendingOrder);
    add(orders, tr("Descending"), Qt::DescendingOrder);
    addMnemonics(actions());
    connect(this, SIGNAL(aboutToShow()), this, SLOT(showState()));
}

/// What a click on a header or the menu of the columns has changed meanwhile.
void SortMenu::showState()
{
    for (QAction *column : columns->actions()) {
        column->setVisible(list->isColumnVisible(column->data().toULongLong()));
    }
    checkWith(columns, list->sortedProcessColumn());
    checkWith(orders, list->sortOrder());
}

void SortMenu::sortByChecked()
{
    const QAction *column = columns->checkedAction();
    const QAction *order = orders->checkedAction();
    if (column && order) {
        list->sortBy(column->data().toULongLong(), static_cast<Qt::SortOrder>(order->data().toInt()));
    }
}
