// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/xclient.h"

#include "tests/support/probe/inputmarks.h"

#include <QStringList>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <algorithm>

XClient::~XClient()
{
    close();
}

bool XClient::open(const QString &display)
{
    close();
    // A window may have gone before a message for it comes: the library would end the test.
    XSetErrorHandler([](Display *, XErrorEvent *) { return 0; });
    m_display = XOpenDisplay(display.toLocal8Bit().constData());
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    return m_display && XTestQueryExtension(m_display, &event, &error, &major, &minor);
}

void XClient::close()
{
    if (m_display)
        XCloseDisplay(m_display);
    m_display = nullptr;
    m_shown = 0;
}

bool XClient::hasWindowManager()
{
    if (!hasRootProperty("_NET_SUPPORTING_WM_CHECK"))
        return false;
    if (m_shown == 0)
        m_shown = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 64, 64, 0, 0, 0);
    XMapWindow(m_display, m_shown);
    XSync(m_display, False);
    XWindowAttributes attributes;
    if (XGetWindowAttributes(m_display, m_shown, &attributes) == 0 || attributes.map_state != IsViewable)
        return false;
    XDestroyWindow(m_display, m_shown);
    XSync(m_display, False);
    m_shown = 0;
    return true;
}

bool XClient::hasRootProperty(const char *name) const
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(m_display, DefaultRootWindow(m_display), XInternAtom(m_display, name, False), 0, 1,
                       False, AnyPropertyType, &type, &format, &count, &left, &data);
    if (data)
        XFree(data);
    return count > 0;
}

void XClient::moveTo(const QPoint &point)
{
    XTestFakeMotionEvent(m_display, -1, point.x(), point.y(), CurrentTime);
    XSync(m_display, False);
}

void XClient::press(int button)
{
    XTestFakeButtonEvent(m_display, static_cast<unsigned>(button), True, CurrentTime);
    XSync(m_display, False);
}

void XClient::release(int button)
{
    XTestFakeButtonEvent(m_display, static_cast<unsigned>(button), False, CurrentTime);
    XSync(m_display, False);
}

void XClient::click(int button)
{
    press(button);
    release(button);
}

bool XClient::key(const QString &combination)
{
    static const struct
    {
        const char *name;
        KeySym keysym;
    } modifiers[] = {{"ctrl", XK_Control_L}, {"alt", XK_Alt_L}, {"shift", XK_Shift_L}};

    QStringList parts = combination.split(QLatin1Char('+'));
    const KeySym last = XStringToKeysym(parts.takeLast().toLatin1().constData());
    QList<KeySym> held;
    for (const QString &part : qAsConst(parts)) {
        const auto *const found =
            std::find_if(std::begin(modifiers), std::end(modifiers),
                         [&](const auto &each) { return part == QLatin1String(each.name); });
        if (found == std::end(modifiers))
            return false;
        held.append(found->keysym);
    }
    for (const KeySym modifier : qAsConst(held))
        sendKey(modifier, true);
    const bool known = typeKeysym(last);
    while (!held.isEmpty())
        sendKey(held.takeLast(), false);
    return known;
}

bool XClient::type(const QString &text)
{
    // Latin-1 characters are their own key symbols.
    return std::all_of(text.begin(), text.end(), [this](QChar c) { return typeKeysym(c.unicode()); });
}

bool XClient::typeKeysym(unsigned long keysym)
{
    const KeyCode code = XKeysymToKeycode(m_display, keysym);
    if (keysym == NoSymbol || code == 0)
        return false;
    const bool shifted = XkbKeycodeToKeysym(m_display, code, 0, 0) != keysym &&
                         XkbKeycodeToKeysym(m_display, code, 0, 1) == keysym;
    if (shifted)
        sendKey(XK_Shift_L, true);
    sendKey(keysym, true);
    sendKey(keysym, false);
    if (shifted)
        sendKey(XK_Shift_L, false);
    return true;
}

void XClient::sendKey(unsigned long keysym, bool down)
{
    XTestFakeKeyEvent(m_display, XKeysymToKeycode(m_display, keysym), down ? True : False, CurrentTime);
    XSync(m_display, False);
}

void XClient::sendToWindowManager(unsigned long id, const char *message, const long (&data)[5])
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = id;
    event.xclient.message_type = XInternAtom(m_display, message, False);
    event.xclient.format = 32;
    std::copy(std::begin(data), std::end(data), event.xclient.data.l);
    XSendEvent(m_display, DefaultRootWindow(m_display), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XSync(m_display, False);
}

void XClient::resizeWindow(unsigned long id, const QSize &size)
{
    const long widthAndHeightGiven = (1 << 10) | (1 << 11);
    const long fromPager = 2 << 12;
    sendToWindowManager(id, "_NET_MOVERESIZE_WINDOW",
                        {widthAndHeightGiven | fromPager, 0, 0, size.width(), size.height()});
}

void XClient::closeWindow(unsigned long id)
{
    const long fromPager = 2;
    sendToWindowManager(id, "_NET_CLOSE_WINDOW", {CurrentTime, fromPager, 0, 0, 0});
}

void XClient::toggleMaximized(unsigned long id)
{
    const long toggle = 2;
    const long fromPager = 2;
    sendToWindowManager(id, "_NET_WM_STATE",
                        {toggle, long(XInternAtom(m_display, "_NET_WM_STATE_MAXIMIZED_VERT", False)),
                         long(XInternAtom(m_display, "_NET_WM_STATE_MAXIMIZED_HORZ", False)), fromPager, 0});
}

QRect XClient::windowRect(unsigned long id) const
{
    XWindowAttributes attributes;
    if (XGetWindowAttributes(m_display, id, &attributes) == 0)
        return {};
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(m_display, id, attributes.root, 0, 0, &x, &y, &child);
    return {x, y, attributes.width, attributes.height};
}

void XClient::mark(unsigned long id, int number)
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = id;
    event.xclient.message_type = XInternAtom(m_display, "_ZSM_MARK", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = number;
    event.xclient.data.l[1] = InputMarks::tag;
    XSendEvent(m_display, id, False, NoEventMask, &event);
    XSync(m_display, False);
}

QImage XClient::screenshot() const
{
    const int screen = DefaultScreen(m_display);
    const int width = DisplayWidth(m_display, screen);
    const int height = DisplayHeight(m_display, screen);
    XImage *const image =
        XGetImage(m_display, DefaultRootWindow(m_display), 0, 0, static_cast<unsigned>(width),
                  static_cast<unsigned>(height), AllPlanes, ZPixmap);
    if (!image)
        return {};
    QImage result;
    if (image->bits_per_pixel == 32) {
        const auto *const pixels = reinterpret_cast<const uchar *>(image->data);
        result = QImage(pixels, width, height, image->bytes_per_line, QImage::Format_RGB32).copy();
    }
    XDestroyImage(image);
    return result;
}
