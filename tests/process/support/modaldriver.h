// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_MODALDRIVER_H
#define TESTS_PROCESS_MODALDRIVER_H

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimerEvent>
#include <QtTest>

#include <functional>
#include <vector>

/// Works on modal dialogs while they run: each handler gets one dialog, in the order of their coming. A
/// dialog that nobody expects fails the test; handlers that got none go with this object.
class ModalDriver : public QObject
{
public:
    using Handler = std::function<void(QWidget *)>;

    explicit ModalDriver(std::vector<Handler> dialogHandlers) : handlers(std::move(dialogHandlers))
    {
        startTimer(1);
    }
    explicit ModalDriver(Handler handler) : ModalDriver(std::vector<Handler>{std::move(handler)}) {}

    /// How many dialogs have come.
    std::size_t count() const { return next; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        QWidget *const dialog = QApplication::activeModalWidget();
        if (!dialog) {
            return;
        }
        if (next == handlers.size()) {
            dialog->close();
            QFAIL("a dialog more than expected");
        }
        handlers[next++](dialog);
    }

private:
    std::vector<Handler> handlers;
    std::size_t next = 0;
};

/// What a message box showed.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    bool hasParent = false;
};

inline SeenBox readBox(QWidget *dialog)
{
    SeenBox seen;
    if (const auto *const box = qobject_cast<QMessageBox *>(dialog)) {
        seen.title = box->windowTitle();
        seen.text = box->text();
        seen.icon = box->icon();
        seen.buttons = box->standardButtons();
        seen.defaultButton = box->standardButton(box->defaultButton());
        seen.hasParent = box->parentWidget() != nullptr;
    }
    return seen;
}

/// Reads a message box into `seen` and presses one of its buttons.
inline ModalDriver::Handler pressing(QMessageBox::StandardButton button, SeenBox *seen = nullptr)
{
    return [button, seen](QWidget *dialog) {
        if (seen) {
            *seen = readBox(dialog);
        }
        auto *const box = qobject_cast<QMessageBox *>(dialog);
        QAbstractButton *const found = box ? box->button(button) : nullptr;
        if (found) {
            found->click();
        } else {
            dialog->close();
            QFAIL("the dialog has no such button");
        }
    };
}

/// Presses a key where a user's key would go.
inline ModalDriver::Handler typing(Qt::Key key)
{
    return [key](QWidget *dialog) {
        QWidget *const focused = dialog->focusWidget();
        QTest::keyClick(focused ? focused : dialog, key);
    };
}

/// Closes the dialog as the window manager does.
inline ModalDriver::Handler closing()
{
    return [](QWidget *dialog) { dialog->close(); };
}

#endif
