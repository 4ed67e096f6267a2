// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_XCLIENT_H
#define TESTS_DESKTOP_XCLIENT_H

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

struct _XDisplay;

/// A client of an X server that stands in for the user: it sends key and mouse events through the XTEST
/// extension, which programs can't tell from those of real devices, and takes pictures of the screen. Each
/// call returns once the server has processed the events.
class XClient
{
public:
    XClient() = default;
    ~XClient() { close(); }
    XClient(const XClient &) = delete;
    XClient &operator=(const XClient &) = delete;

    /// Connects; false if the server can't be reached or lacks XTEST.
    bool open(const QString &display);
    void close();

    /// Sets the resolution of text, as desktops do; toolkits may ignore that of the screen.
    void setTextDpi(int dpi);

    /// Whether a window manager is running. A window manager that is starting may announce itself and still
    /// miss a window that appears at that moment, so this maps a window and checks whether it gets managed.
    /// Call it until it returns true; the window is then destroyed.
    bool hasWindowManager();

    void moveTo(const QPoint &point);
    /// Mouse buttons: 1 left, 2 middle, 3 right, 4 wheel up, 5 wheel down.
    void press(int button) { sendButton(button, true); }
    void release(int button) { sendButton(button, false); }
    void click(int button = 1);

    /// Presses and releases a key, by its X name, with modifiers: "ctrl+q", "Return", "shift+F10". False if
    /// the keyboard has no such key.
    bool key(const QString &combination);
    /// Types characters of a US keyboard. False at the first other one.
    bool type(const QString &text);

    /// Requests to the window manager, as from a pager or task bar. Window ids are those of X and
    /// QWidget::winId().
    void resizeWindow(unsigned long id, const QSize &size);
    void moveWindow(unsigned long id, const QPoint &topLeft); ///< of its frame
    void closeWindow(unsigned long id);
    void toggleMaximized(unsigned long id);

    /// The position of a window on the screen, without its frame; empty if there is no such window.
    QRect windowRect(unsigned long id) const;

    /// The window that it is a dialog of, by its WM_TRANSIENT_FOR hint; 0 if there is none.
    unsigned long transientFor(unsigned long id) const;

    /// The first picture of a window's _NET_WM_ICON; a null image if there is none.
    QImage icon(unsigned long id) const;

    /// Sends a window one of the probe's marks (tests/support/probe/inputmarks.h).
    void mark(unsigned long id, int number);

    /// The whole screen; a null image if it can't be read.
    QImage screenshot() const;

private:
    bool hasRootProperty(const char *name) const;
    bool typeKeysym(unsigned long keysym);
    void sendKey(unsigned long keysym, bool down);
    void sendButton(int button, bool down);
    void sendMessage(unsigned long id, const char *type, const long (&data)[5], bool toWindowManager = true);

    _XDisplay *display = nullptr;
    unsigned long mapped = 0; ///< the window that hasWindowManager() has mapped, or 0
};

#endif
