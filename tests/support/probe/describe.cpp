// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/probe/describe.h"

#include <QtWidgets>

#include <vector>

namespace probe {
namespace {

/// The properties of a widget that are described if the widget has them.
const char *const describedProperties[] = {
    "enabled", "visible",      "focus",   "text",    "informativeText", "title",   "currentText",
    "value",   "currentIndex", "minimum", "maximum", "checked",         "default", "toolTip"};

void addAccessible(const QWidget *widget, QJsonObject &json)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
    if (!accessible) {
        return;
    }
    json["accessibleName"] = accessible->text(QAccessible::Name);
    json["accessibleDescription"] = accessible->text(QAccessible::Description);
    QAccessibleValueInterface *value = accessible->valueInterface();
    json["accessibleValue"] = value ? value->currentValue().toString() : accessible->text(QAccessible::Value);
}

QJsonArray describeTabs(const QTabWidget *tabs)
{
    const QTabBar *bar = tabs->tabBar();
    QJsonArray result;
    for (int i = 0; i < bar->count(); ++i) {
        result.append(QJsonObject{{"text", bar->tabText(i)},
                                  {"enabled", bar->isTabEnabled(i)},
                                  {"current", i == bar->currentIndex()},
                                  {"rect", globalRect(bar, bar->tabRect(i))}});
    }
    return result;
}

QJsonArray comboItems(const QComboBox *combo)
{
    QJsonArray items;
    for (int i = 0; i < combo->count(); ++i) {
        items.append(combo->itemText(i));
    }
    return items;
}

/// The entries of a menu or menu bar.
template <typename Menu>
QJsonArray describeActions(const Menu *menu)
{
    QJsonArray actions;
    for (QAction *action : menu->actions()) {
        actions.append(QJsonObject{{"text", action->text()},
                                   {"shortcut", action->shortcut().toString()},
                                   {"enabled", action->isEnabled()},
                                   {"visible", action->isVisible()},
                                   {"separator", action->isSeparator()},
                                   {"checkable", action->isCheckable()},
                                   {"checked", action->isChecked()},
                                   {"active", menu->activeAction() == action},
                                   {"icon", !action->icon().isNull()},
                                   {"rect", globalRect(menu, menu->actionGeometry(action))}});
    }
    return actions;
}

QHeaderView *headerOf(QAbstractItemView *view)
{
    if (const auto *tree = qobject_cast<QTreeView *>(view)) {
        return tree->header();
    }
    if (const auto *table = qobject_cast<QTableView *>(view)) {
        return table->horizontalHeader();
    }
    return nullptr;
}

/// Width of a section that is fitted to its contents, in pixels.
int contentWidth(const QAbstractItemView *view, const QHeaderView *header, int section)
{
    return qMax(view->sizeHintForColumn(section), header->sectionSizeHint(section));
}

QJsonArray describeSections(const QAbstractItemView *view, const QHeaderView *header)
{
    QJsonArray sections;
    for (int place = 0; place < header->count(); ++place) {
        const int section = header->logicalIndex(place);
        const QRect rect(header->sectionViewportPosition(section), 0, header->sectionSize(section),
                         header->height());
        sections.append(QJsonObject{{"section", section},
                                    {"text", header->model()->headerData(section, Qt::Horizontal).toString()},
                                    {"visible", header->isVisible() && !header->isSectionHidden(section)},
                                    {"contentWidth", contentWidth(view, header, section)},
                                    {"rect", globalRect(header->viewport(), rect)}});
    }
    return sections;
}

/// Describes the rows of a view, depth first, each before its children.
class RowDescriber
{
public:
    explicit RowDescriber(QAbstractItemView *itemView)
        : view(itemView), tree(qobject_cast<QTreeView *>(itemView)), selection(itemView->selectionModel())
    {
        collectShownRows();
    }

    QJsonArray rows() const
    {
        QJsonArray result;
        std::vector<QModelIndex> left; // instead of recursion: the tree can be deeper than the call stack
        pushChildren(view->rootIndex(), left);
        while (!left.empty()) {
            const QModelIndex index = left.back();
            left.pop_back();
            result.append(rowJson(index));
            pushChildren(index, left);
        }
        return result;
    }

private:
    /// Rectangles are looked up only for rows on the screen: each lookup walks through all rows.
    void collectShownRows()
    {
        const int step = 4;
        for (int y = 0; y < view->viewport()->height(); y += step) {
            const QModelIndex index = view->indexAt(QPoint(view->viewport()->width() / 2, y));
            const QModelIndex first = index.isValid() ? index : view->indexAt(QPoint(1, y));
            if (first.isValid()) {
                shownRows.insert(first.sibling(first.row(), 0));
            }
        }
    }

    void pushChildren(const QModelIndex &parent, std::vector<QModelIndex> &left) const
    {
        const QAbstractItemModel *model = view->model();
        for (int row = model->rowCount(parent) - 1; row >= 0; --row) {
            left.push_back(model->index(row, 0, parent));
        }
    }

    static int depth(QModelIndex index)
    {
        int result = 0;
        while ((index = index.parent()).isValid()) {
            ++result;
        }
        return result;
    }

    QJsonObject rowJson(const QModelIndex &index) const
    {
        const bool shown = shownRows.contains(index);
        QJsonArray texts;
        QJsonArray rects;
        for (int column = 0; column < view->model()->columnCount(index.parent()); ++column) {
            const QModelIndex cell = index.sibling(index.row(), column);
            texts.append(cell.data().toString());
            const QRect rect = shown ? view->visualRect(cell) & view->viewport()->rect() : QRect();
            rects.append(rect.isEmpty() ? QJsonValue() : QJsonValue(globalRect(view->viewport(), rect)));
        }
        QJsonObject row{{"depth", depth(index)},
                        {"texts", texts},
                        {"expanded", tree && tree->isExpanded(index)},
                        {"selected", selection->isSelected(index)},
                        {"current", isCurrentRow(index)}};
        if (shown) {
            row["rects"] = rects;
        }
        return row;
    }

    bool isCurrentRow(const QModelIndex &index) const
    {
        const QModelIndex current = selection->currentIndex();
        return current.isValid() && current.sibling(current.row(), 0) == index;
    }

    QAbstractItemView *view;
    QTreeView *tree;
    QItemSelectionModel *selection;
    QSet<QModelIndex> shownRows;
};

} // namespace

QJsonArray rectJson(const QRect &rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonArray globalRect(const QWidget *widget, const QRect &rect)
{
    return rectJson(QRect(widget->mapToGlobal(rect.topLeft()), rect.size()));
}

QJsonObject describeWidget(const QWidget *widget)
{
    QJsonObject json{{"class", widget->metaObject()->className()},
                     {"name", widget->objectName()},
                     {"rect", globalRect(widget, widget->rect())},
                     {"sizeHint", rectJson(QRect(QPoint(), widget->sizeHint()))}};
    for (const char *property : describedProperties) {
        const QVariant value = widget->property(property);
        if (value.isValid()) {
            json[property] = QJsonValue::fromVariant(value);
        }
    }
    if (widget->hasHeightForWidth()) {
        json["heightForWidth"] = widget->heightForWidth(widget->width());
    }
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget)) {
        json["tabs"] = describeTabs(tabs);
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        json["items"] = comboItems(combo);
    }
    addAccessible(widget, json);
    return json;
}

QJsonObject describeWindow(const QWidget *window)
{
    QJsonObject json = describeWidget(window);
    const QWindow *handle = window->windowHandle();
    json["title"] = window->windowTitle();
    json["id"] = double(window->winId());
    json["frame"] = rectJson(window->frameGeometry());
    json["minimumSize"] = rectJson(QRect(QPoint(), window->minimumSizeHint()));
    json["active"] = window->isActiveWindow();
    json["modal"] = window->isModal();
    json["exposed"] = handle && handle->isExposed();
    json["isMainWindow"] = qobject_cast<const QMainWindow *>(window) != nullptr;
    return json;
}

QJsonObject describeMenu(const QMenu *menu)
{
    QJsonObject json = describeWindow(menu);
    json["title"] = menu->title();
    json["actions"] = describeActions(menu);
    return json;
}

QJsonArray describeMenuBar(const QMenuBar *bar)
{
    return describeActions(bar);
}

QJsonObject describeView(QAbstractItemView *view)
{
    QJsonObject json = describeWidget(view);
    if (const QHeaderView *header = headerOf(view)) {
        json["headers"] = describeSections(view, header);
        json["sortSection"] = header->sortIndicatorSection();
        json["sortDescending"] = header->sortIndicatorOrder() == Qt::DescendingOrder;
    }
    json["viewport"] = globalRect(view->viewport(), view->viewport()->rect());
    json["rows"] = view->model() ? RowDescriber(view).rows() : QJsonArray();
    return json;
}

QJsonObject describeSelected(const QAbstractItemView *view)
{
    const QItemSelectionModel *selection = view->selectionModel();
    if (!selection || !selection->hasSelection()) {
        return {};
    }
    QModelIndex index = selection->currentIndex();
    while (const auto *proxy = qobject_cast<const QAbstractProxyModel *>(index.model())) {
        index = proxy->mapToSource(index);
    }
    return index.isValid() ? QJsonObject{{"id", double(index.internalId())}} : QJsonObject();
}

} // namespace probe
