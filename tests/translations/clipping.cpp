// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipping.h"

#include <QtWidgets>

namespace {

QString complaint(const QString &what, const QSize &has, const QSize &needs)
{
    QString text;
    QDebug(&text).noquote() << what << "has" << has << "and needs" << needs;
    return text;
}

bool isSmaller(const QSize &has, const QSize &needs)
{
    return has.width() < needs.width() || has.height() < needs.height();
}

/// A wrapped text needs the height of its lines at the current width of the label.
QSize neededSize(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap()) {
        return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
    }
    return widget->sizeHint();
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->text();
    }
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button ? button->text() : QString();
}

QList<const QWidget *> widgetsWithText(const QWidget *window)
{
    QList<const QWidget *> result;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->isVisible() && !textOf(widget).isEmpty()) {
            result << widget;
        }
    }
    return result;
}

QStringList cutTexts(const QWidget *window)
{
    QStringList result;
    for (const QWidget *widget : widgetsWithText(window)) {
        const QSize needs = neededSize(widget);
        // excludes what a parent cuts off
        const QSize has = widget->visibleRegion().boundingRect().size();
        if (isSmaller(has, needs)) {
            result << complaint(textOf(widget), has, needs);
        }
    }
    return result;
}

QStringList overlaps(const QWidget *window)
{
    QStringList result;
    const QList<const QWidget *> widgets = widgetsWithText(window);
    for (const QWidget *one : widgets) {
        for (const QWidget *other : widgets) {
            if (one < other && one->parent() == other->parent() &&
                one->geometry().intersects(other->geometry())) {
                result << textOf(one) + QLatin1String(" overlaps ") + textOf(other);
            }
        }
    }
    return result;
}

QStringList cutTabs(const QTabBar *bar)
{
    QStringList result;
    for (int i = 0; i < bar->count(); ++i) {
        const int needs = bar->fontMetrics().size(Qt::TextShowMnemonic, bar->tabText(i)).width();
        const QRect tab = bar->tabRect(i);
        if (tab.width() < needs || !bar->rect().contains(tab)) {
            result << QLatin1String("tab ") + bar->tabText(i);
        }
    }
    for (const QToolButton *scroller : bar->findChildren<QToolButton *>()) {
        if (scroller->isVisible()) {
            result << QStringLiteral("the tabs have to be scrolled");
        }
    }
    return result;
}

QStringList cutTitles(const QHeaderView *header)
{
    QStringList result;
    for (int i = 0; i < header->count(); ++i) {
        const int needs = header->sectionSizeHint(i);
        if (!header->isSectionHidden(i) && header->sectionSize(i) < needs) {
            result << complaint(header->model()->headerData(i, header->orientation()).toString(),
                                {header->sectionSize(i), 0}, {needs, 0});
        }
    }
    return result;
}

QStringList cutMenuTitles(const QMenuBar *bar)
{
    QStringList result;
    QStringList titles;
    for (QAction *menu : bar->actions()) {
        titles << menu->text();
        if (!bar->rect().contains(bar->actionGeometry(menu))) {
            result << QLatin1String("menu ") + menu->text();
        }
    }
    return result + sharedMnemonics(titles);
}

template <class T, class Check>
void addEach(QStringList &result, const QWidget *window, Check check)
{
    for (const T *widget : window->findChildren<T *>()) {
        if (widget->isVisible()) {
            result += check(widget);
        }
    }
}

} // namespace

QStringList unreadableTexts(const QWidget *window)
{
    QStringList result = cutTexts(window) + overlaps(window);
    addEach<QTabBar>(result, window, cutTabs);
    addEach<QHeaderView>(result, window, cutTitles);
    addEach<QMenuBar>(result, window, cutMenuTitles);
    return result;
}

QStringList unreadableEntries(const QMenu *menu)
{
    QStringList result;
    QStringList texts;
    if (isSmaller(menu->size(), menu->sizeHint())) {
        result << complaint(menu->title(), menu->size(), menu->sizeHint());
    }
    for (QAction *entry : menu->actions()) {
        const int text = menu->fontMetrics().size(Qt::TextShowMnemonic, entry->text()).width();
        const QRect place = menu->actionGeometry(entry);
        const bool isRead = entry->isVisible() && !entry->isSeparator();
        if (isRead && (!menu->rect().contains(place) || place.width() < text)) {
            result << QLatin1String("entry ") + entry->text();
        }
        texts << entry->text();
    }
    return result + sharedMnemonics(texts);
}

QStringList sharedMnemonics(const QStringList &texts)
{
    QStringList result;
    QStringList taken;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty() && taken.contains(key)) {
            result << key;
        }
        taken << key;
    }
    return result;
}
