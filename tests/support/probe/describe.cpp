// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/probe/describe.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <QWindow>

namespace probe {
namespace {

// Properties that are told when the widget has them.
const char *const toldProperties[] = {"text",    "title",   "currentText",  "informativeText", "value",
                                      "minimum", "maximum", "currentIndex", "checked",         "default"};

QString name(const QObject *object)
{
    return object ? object->objectName() : QString();
}

void addAccessible(const QWidget *widget, QJsonObject &json)
{
    QAccessibleInterface *const accessible =
        QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
    if (!accessible)
        return;
    json[QStringLiteral("accessibleName")] = accessible->text(QAccessible::Name);
    json[QStringLiteral("accessibleDescription")] = accessible->text(QAccessible::Description);
    QAccessibleValueInterface *const value = accessible->valueInterface();
    json[QStringLiteral("accessibleValue")] =
        value ? value->currentValue().toString() : accessible->text(QAccessible::Value);
}

QJsonArray describeTabs(const QTabWidget *tabs)
{
    const QTabBar *const bar = tabs->tabBar();
    QJsonArray result;
    for (int i = 0; i < bar->count(); ++i) {
        result.append(QJsonObject{{QStringLiteral("text"), bar->tabText(i)},
                                  {QStringLiteral("enabled"), bar->isTabEnabled(i)},
                                  {QStringLiteral("current"), i == bar->currentIndex()},
                                  {QStringLiteral("rect"), globalRect(bar, bar->tabRect(i))}});
    }
    return result;
}

QJsonArray comboItems(const QComboBox *combo)
{
    QJsonArray items;
    for (int i = 0; i < combo->count(); ++i)
        items.append(combo->itemText(i));
    return items;
}

QJsonObject describeAction(const QAction *action, const QJsonArray &rect)
{
    return {{QStringLiteral("text"), action->text()},
            {QStringLiteral("shortcut"), action->shortcut().toString()},
            {QStringLiteral("enabled"), action->isEnabled()},
            {QStringLiteral("visible"), action->isVisible()},
            {QStringLiteral("separator"), action->isSeparator()},
            {QStringLiteral("checkable"), action->isCheckable()},
            {QStringLiteral("checked"), action->isChecked()},
            {QStringLiteral("icon"), !action->icon().isNull()},
            {QStringLiteral("submenu"), action->menu() != nullptr},
            {QStringLiteral("rect"), rect}};
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
    QJsonObject json{{QStringLiteral("class"), QString::fromLatin1(widget->metaObject()->className())},
                     {QStringLiteral("name"), widget->objectName()},
                     {QStringLiteral("enabled"), widget->isEnabled()},
                     {QStringLiteral("visible"), widget->isVisible()},
                     {QStringLiteral("focus"), widget->hasFocus()},
                     {QStringLiteral("rect"), globalRect(widget, widget->rect())},
                     {QStringLiteral("sizeHint"), rectJson(QRect(QPoint(), widget->sizeHint()))},
                     {QStringLiteral("toolTip"), widget->toolTip()}};
    for (const char *property : toldProperties) {
        const QVariant value = widget->property(property);
        if (value.isValid())
            json[QLatin1String(property)] = QJsonValue::fromVariant(value);
    }
    if (widget->hasHeightForWidth())
        json[QStringLiteral("heightForWidth")] = widget->heightForWidth(widget->width());
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
        json[QStringLiteral("tabs")] = describeTabs(tabs);
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        json[QStringLiteral("items")] = comboItems(combo);
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        json[QStringLiteral("buddy")] = name(label->buddy());
    addAccessible(widget, json);
    return json;
}

QJsonObject describeWindow(const QWidget *window)
{
    QJsonObject json = describeWidget(window);
    const QWindow *const handle = window->windowHandle();
    json[QStringLiteral("title")] = window->windowTitle();
    json[QStringLiteral("id")] = double(window->winId());
    json[QStringLiteral("frame")] = rectJson(window->frameGeometry());
    json[QStringLiteral("minimumSize")] = rectJson(QRect(QPoint(), window->minimumSizeHint()));
    json[QStringLiteral("active")] = window->isActiveWindow();
    json[QStringLiteral("modal")] = window->isModal();
    json[QStringLiteral("exposed")] = handle && handle->isExposed();
    json[QStringLiteral("isMainWindow")] = qobject_cast<const QMainWindow *>(window) != nullptr;
    return json;
}

QJsonObject describeMenu(const QMenu *menu)
{
    QJsonObject json = describeWindow(menu);
    QJsonArray actions;
    for (QAction *action : menu->actions())
        actions.append(describeAction(action, globalRect(menu, menu->actionGeometry(action))));
    json[QStringLiteral("title")] = menu->title();
    json[QStringLiteral("actions")] = actions;
    return json;
}

QJsonArray describeMenuBar(const QMenuBar *bar)
{
    QJsonArray actions;
    for (QAction *action : bar->actions())
        actions.append(describeAction(action, globalRect(bar, bar->actionGeometry(action))));
    return actions;
}

} // namespace probe
