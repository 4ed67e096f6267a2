// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/probe/describe.h"

#include <QtWidgets>

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
                                   {"icon", !action->icon().isNull()},
                                   {"rect", globalRect(menu, menu->actionGeometry(action))}});
    }
    return actions;
}

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

} // namespace probe
