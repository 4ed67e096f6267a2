// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_XCLIENT_H
#define TESTS_DESKTOP_XCLIENT_H

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

struct _XDisplay;

/// A client of an X server that acts as the user's hands and eyes: key and mouse events through the XTEST
/// extension, which reach programs as those of real devices do, and pictures of the screen. Each call
/// returns once the server has taken the events.
class XClient
{
public:
    XClient() = default;
    ~XClient();
    XClient(const XClient &) = delete;
    XClient &operator=(const XClient &) = delete;

    /// Connects; false if the server can't be reached or has no XTEST.
    bool open(const QString &display);
    void close();

    /// Whether a window manager is at work: one that starts may announce itself and still miss a window
    /// that appears at that moment, so this shows it a window and looks whether it is taken up. Ask again
    /// until it is true; then the window is gone again.
    bool hasWindowManager();

    void moveTo(const QPoint &point);
    /// Mouse buttons: 1 left, 2 middle, 3 right, 4 wheel up, 5 wheel down.
    void press(int button);
    void release(int button);
    void click(int button = 1);

    /// Presses and releases a key, by its X name, under modifiers: "ctrl+q", "Return", "shift+F10".
    /// False if the keyboard has no such key.
    bool key(const QString &combination);
    /// Types characters that a US keyboard has. False at the first other one.
    bool type(const QString &text);

    /// Asks the window manager, as a pager or task bar does. Ids as X and QWidget::winId() have them.
    void resizeWindow(unsigned long id, const QSize &size);
    void closeWindow(unsigned long id);
    void toggleMaximized(unsigned long id);

    /// Where a window lies on the screen, without its frame; an empty one if there is no such window.
    QRect windowRect(unsigned long id) const;

    /// Sends a window one of the probe's marks (tests/support/probe/inputmarks.h).
    void mark(unsigned long id, int number);

    /// The whole screen; a null image if it couldn't be read.
    QImage screenshot() const;

private:
    bool hasRootProperty(const char *name) const;
    bool typeKeysym(unsigned long keysym);
    void sendKey(unsigned long keysym, bool down);
    void sendToWindowManager(unsigned long id, const char *message, const long (&data)[5]);

    _XDisplay *m_display = nullptr;
    unsigned long m_shown = 0; ///< the window shown to the window manager, 0 if there is none
};

#endif
