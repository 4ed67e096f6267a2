// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/probe/answers.h"

#include "tests/support/probe/describe.h"
#include "tests/support/probe/inputmarks.h"

#include <QtWidgets>

#include <fcntl.h>

namespace probe {
namespace {

/// All widgets that meet the condition, each after its parent and siblings in their order, which
/// QApplication::allWidgets() does not keep.
template <typename Condition>
QWidgetList widgetsThat(Condition isMet)
{
    QWidgetList found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        for (QWidget *each : QWidgetList{window} + window->findChildren<QWidget *>()) {
            if (each->window() == window && isMet(each)) {
                found.append(each);
            }
        }
    }
    return found;
}

QWidgetList visibleWidgets(const QByteArray &className)
{
    return widgetsThat(
        [&](const QWidget *each) { return each->isVisible() && each->inherits(className.constData()); });
}

QWidget *findWidget(const QString &name)
{
    const QWidgetList named =
        widgetsThat([&](const QWidget *each) { return !name.isEmpty() && each->objectName() == name; });
    return named.isEmpty() ? visibleWidgets(name.toLatin1()).value(0) : named.first();
}

QJsonObject error(const QString &text)
{
    return {{"error", text}};
}

QJsonObject list(const QString &key, const QWidgetList &widgets, QJsonObject (*describe)(const QWidget *))
{
    QJsonArray array;
    for (const QWidget *widget : widgets) {
        array.append(describe(widget));
    }
    return {{key, array}};
}

QJsonObject windows(const QString &)
{
    const QWidgetList visible =
        widgetsThat([](const QWidget *each) { return each->isWindow() && each->isVisible(); });
    return list("windows", visible, describeWindow);
}

QJsonObject widget(const QString &name)
{
    const QWidget *found = findWidget(name);
    return found ? describeWidget(found) : error("no widget " + name);
}

QJsonObject widgetsOfClass(const QString &className)
{
    return list("widgets", visibleWidgets(className.toLatin1()), describeWidget);
}

QJsonObject table(const QString &name)
{
    auto *view = qobject_cast<QAbstractItemView *>(findWidget(name));
    return view ? describeView(view) : error("no item view " + name);
}

QJsonObject selected(const QString &name)
{
    const auto *view = qobject_cast<QAbstractItemView *>(findWidget(name));
    return view ? describeSelected(view) : error("no item view " + name);
}

QJsonObject state(const QString &)
{
    const QWidget *popup = QApplication::activePopupWidget();
    const QWidget *modal = QApplication::activeModalWidget();
    const auto *tabs = qobject_cast<QTabWidget *>(visibleWidgets("QTabWidget").value(0));
    QJsonArray menus;
    for (const QWidget *each : visibleWidgets("QMenu")) {
        menus.append(qobject_cast<const QMenu *>(each)->title());
    }
    QJsonObject json{{"mark", InputMarks::latest()},
                     {"popup", popup ? popup->metaObject()->className() : QString()},
                     {"menus", menus},
                     {"modal", modal != nullptr},
                     {"title", modal ? modal->windowTitle() : QString()}};
    if (tabs) {
        json["tab"] = tabs->currentIndex();
        json["window"] = globalRect(tabs->window(), tabs->window()->rect());
        json["id"] = double(tabs->window()->winId());
    }
    return json;
}

QJsonObject palette(const QString &color)
{
    if (!QColor::isValidColor(color)) {
        return error("no color " + color);
    }
    QApplication::setPalette(QPalette(QColor(color)));
    return {};
}

QJsonObject font(const QString &size)
{
    QFont changed = QApplication::font();
    if (size.toInt() <= 0) {
        return error("no size " + size);
    }
    changed.setPointSize(size.toInt());
    QApplication::setFont(changed);
    return {};
}

QJsonObject hoard(const QString &)
{
    while (open("/dev/null", O_RDONLY | O_CLOEXEC) >= 0) {
    }
    return {};
}

QJsonObject menu(const QString &)
{
    const auto *bar = qobject_cast<QMenuBar *>(visibleWidgets("QMenuBar").value(0));
    QJsonArray open;
    QWidgetList menus = visibleWidgets("QMenu");
    QWidget *innermost = QApplication::activePopupWidget();
    if (menus.removeOne(innermost)) {
        menus.append(innermost);
    }
    for (const QWidget *each : menus) {
        open.append(describeMenu(qobject_cast<const QMenu *>(each)));
    }
    return {{"bar", bar ? describeMenuBar(bar) : QJsonArray()}, {"menus", open}};
}

QJsonObject dialog(const QString &)
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal) {
        return {};
    }
    QJsonObject json = describeWindow(modal);
    QJsonArray buttons;
    for (const QAbstractButton *button : modal->findChildren<QAbstractButton *>()) {
        if (button->isVisible()) {
            buttons.append(describeWidget(button));
        }
    }
    json["buttons"] = buttons;
    if (const auto *box = qobject_cast<QMessageBox *>(modal)) {
        json["icon"] = int(box->icon());
    }
    return json;
}

struct Command
{
    const char *name;
    QJsonObject (*run)(const QString &argument);
};

const Command commands[] = {{"windows", windows}, {"widget", widget}, {"widgets", widgetsOfClass},
                            {"table", table},     {"menu", menu},     {"selected", selected},
                            {"state", state},     {"dialog", dialog}, {"palette", palette},
                            {"font", font},       {"hoard", hoard}};

} // namespace

QJsonObject answer(const QString &line)
{
    const QString name = line.section(' ', 0, 0);
    const QString argument = line.section(' ', 1);
    for (const Command &command : commands) {
        if (name == command.name) {
            return command.run(argument);
        }
    }
    return error("no such command: " + name);
}

} // namespace probe
