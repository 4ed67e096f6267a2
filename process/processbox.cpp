// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processbox.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QWindow>

namespace {

QWidget *visibleMainWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (qobject_cast<QMainWindow *>(window) && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// A message box without a parent widget that is a dialog of `window` for the window manager and opens
/// centred on it. Null: centred on the screen.
class BoxOverWindow : public QMessageBox
{
public:
    BoxOverWindow(QWidget *window, Icon icon, const QString &title, const QString &text,
                  StandardButtons buttons)
        : QMessageBox(icon, title, text, buttons), owner(window)
    {
        if (owner) {
            winId(); // creates the native window, which carries the relation
            windowHandle()->setTransientParent(owner->windowHandle());
        }
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event); // gives the box its final size
        if (owner) {
            adjustPosition(owner); // also keeps the box on the screen
        }
    }

private:
    QPointer<QWidget> owner;
};

/// A process may choose a name that looks like HTML; only the main text has a format of its own.
void showAsPlainText(const QMessageBox &box)
{
    if (auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"))) {
        label->setTextFormat(Qt::PlainText);
    }
}

} // namespace

QString processLabel(const gtop_wrappers::Process &process)
{
    const QString pid = QString::number(process.pid());
    const QString name = process.getName();
    return name.isEmpty() ? pid : QStringLiteral("%1 (%2)").arg(name, pid);
}

QMessageBox::StandardButton showProcessBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                                           const gtop_wrappers::Process &process,
                                           QMessageBox::StandardButtons buttons,
                                           QMessageBox::StandardButton defaultButton)
{
    BoxOverWindow box(visibleMainWindow(), icon, title, text, buttons);
    box.setDefaultButton(defaultButton);
    box.setInformativeText(processLabel(process));
    showAsPlainText(box);
    box.exec();
    return box.standardButton(box.clickedButton());
}
