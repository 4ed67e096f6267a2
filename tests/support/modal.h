// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_MODAL_H
#define TESTS_SUPPORT_MODAL_H

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <vector>

/// Drives the modal dialogs and popup menus that open during its lifetime, from within their exec(). Each
/// handler gets one dialog, in the order of appearance, and has to close it (press a button, trigger an
/// action).
///
/// The test fails if a dialog opens when no handler is left, if its handler leaves it open, or if handlers
/// are left over at the end of the lifetime. Dialogs are closed then, so that a failing test does not hang.
class ModalDriver : public QObject
{
public:
    using Handler = std::function<void(QWidget *)>;

    /// Expects no dialog.
    ModalDriver() : ModalDriver(std::vector<Handler>()) {}
    explicit ModalDriver(Handler handler) : ModalDriver(std::vector<Handler>{std::move(handler)}) {}
    /// `deadlineMs` is how long a dialog may stay open after its handler has been called.
    explicit ModalDriver(std::vector<Handler> dialogHandlers, int deadlineMs = 30000)
        : handlers(std::move(dialogHandlers)), deadline(deadlineMs)
    {
        restartTimer();
    }
    ~ModalDriver() override { QCOMPARE(dialogs, handlers.size()); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        forgetClosed();
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *shown = popup ? popup : QApplication::activeModalWidget();
        if (!shown || !shown->isVisible()) {
            return;
        }
        if (!handedOut.contains(shown)) {
            handOut(shown);
        } else if (sinceLast.hasExpired(deadline)) {
            shown->close();
            QVERIFY2(false, "a dialog was left open");
        }
    }

private:
    /// A timer does not fire again while its event is handled, but the handler may open the next dialog.
    void restartTimer()
    {
        killTimer(timer);
        timer = startTimer(1);
    }

    /// A dialog that is shown a second time is handed out a second time.
    void forgetClosed()
    {
        const auto closed = [](const QPointer<QWidget> &dialog) { return !dialog || !dialog->isVisible(); };
        handedOut.erase(std::remove_if(handedOut.begin(), handedOut.end(), closed), handedOut.end());
    }

    void handOut(QWidget *dialog)
    {
        const QPointer<QWidget> guard = dialog;
        handedOut.append(guard);
        sinceLast.start();
        if (dialogs == handlers.size()) {
            dialog->close();
            QVERIFY2(false, "more dialogs than expected");
            return; // even if the failure is expected
        }
        restartTimer();
        handlers[dialogs++](dialog);
        if (guard && QTest::currentTestFailed()) {
            guard->close();
        }
        forgetClosed();
    }

    std::vector<Handler> handlers;
    std::size_t dialogs = 0; ///< how many have been handed out
    QList<QPointer<QWidget>> handedOut;
    QElapsedTimer sinceLast;
    int deadline;
    int timer = 0;
};

/// What a message box showed.
struct SeenBox
{
    QString title;
    QString text;
    QString informativeText;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    bool hasParent = false;
};

/// Reads a message box into `seen` and presses one of its buttons.
inline ModalDriver::Handler pressing(QMessageBox::StandardButton button, SeenBox *seen = nullptr)
{
    return [button, seen](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY2(box && box->button(button), "the dialog has no such button");
        if (seen) {
            *seen = {box->windowTitle(),
                     box->text(),
                     box->informativeText(),
                     box->icon(),
                     box->standardButtons(),
                     box->standardButton(box->defaultButton()),
                     box->parentWidget() != nullptr};
        }
        box->button(button)->click();
    };
}

/// Presses a key in the focused widget.
inline ModalDriver::Handler typing(Qt::Key key)
{
    return [key](QWidget *dialog) {
        QWidget *focused = dialog->focusWidget();
        QTest::keyClick(focused ? focused : dialog, key);
    };
}

/// Closes the dialog as a window manager does.
inline ModalDriver::Handler closing()
{
    return [](QWidget *dialog) { dialog->close(); };
}

#endif
