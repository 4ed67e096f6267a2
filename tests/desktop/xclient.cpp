// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/xclient.h"

#include "tests/support/probe/inputmarks.h"

#include <QMap>
#include <QStringList>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <algorithm>

bool XClient::open(const QString &name)
{
    close();
    // By default the library exits on an error, such as a message for a window that has been destroyed.
    XSetErrorHandler([](Display *, XErrorEvent *) { return 0; });
    display = XOpenDisplay(name.toLocal8Bit().constData());
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    return display && XTestQueryExtension(display, &event, &error, &major, &minor);
}

void XClient::close()
{
    if (display) {
        XCloseDisplay(display);
    }
    display = nullptr;
    mapped = 0;
}

void XClient::setTextDpi(int dpi)
{
    const QByteArray resources = "Xft.dpi:\t" + QByteArray::number(dpi) + '\n';
    XChangeProperty(display, DefaultRootWindow(display), XA_RESOURCE_MANAGER, XA_STRING, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char *>(resources.constData()), resources.size());
    XSync(display, False);
}

bool XClient::hasWindowManager()
{
    if (!hasRootProperty("_NET_SUPPORTING_WM_CHECK")) {
        return false;
    }
    if (mapped == 0) {
        mapped = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 64, 64, 0, 0, 0);
    }
    XMapWindow(display, mapped);
    XSync(display, False);
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, mapped, &attributes) == 0 || attributes.map_state != IsViewable) {
        return false;
    }
    XDestroyWindow(display, mapped);
    XSync(display, False);
    mapped = 0;
    return true;
}

bool XClient::hasRootProperty(const char *name) const
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), XInternAtom(display, name, False), 0, 1, False,
                       AnyPropertyType, &type, &format, &count, &left, &data);
    if (data) {
        XFree(data);
    }
    return count > 0;
}

void XClient::moveTo(const QPoint &point)
{
    XTestFakeMotionEvent(display, -1, point.x(), point.y(), CurrentTime);
    XSync(display, False);
}

void XClient::sendButton(int button, bool down)
{
    XTestFakeButtonEvent(display, static_cast<unsigned>(button), down ? True : False, CurrentTime);
    XSync(display, False);
}

void XClient::click(int button)
{
    press(button);
    release(button);
}

bool XClient::key(const QString &combination)
{
    static const QMap<QString, KeySym> modifiers = {
        {"ctrl", XK_Control_L}, {"alt", XK_Alt_L}, {"shift", XK_Shift_L}};
    QStringList parts = combination.split('+');
    const KeySym last = XStringToKeysym(parts.takeLast().toLatin1().constData());
    QList<KeySym> held;
    for (const QString &part : qAsConst(parts)) {
        if (!modifiers.contains(part)) {
            return false;
        }
        held.append(modifiers.value(part));
    }
    for (const KeySym modifier : qAsConst(held)) {
        sendKey(modifier, true);
    }
    const bool known = typeKeysym(last);
    while (!held.isEmpty()) {
        sendKey(held.takeLast(), false);
    }
    return known;
}

bool XClient::type(const QString &text)
{
    // The keysyms of Latin-1 characters are their codes.
    return std::all_of(text.begin(), text.end(), [this](QChar c) { return typeKeysym(c.unicode()); });
}

bool XClient::typeKeysym(unsigned long keysym)
{
    const KeyCode code = XKeysymToKeycode(display, keysym);
    if (keysym == NoSymbol || code == 0) {
        return false;
    }
    const bool shifted = XkbKeycodeToKeysym(display, code, 0, 0) != keysym &&
                         XkbKeycodeToKeysym(display, code, 0, 1) == keysym;
    if (shifted) {
        sendKey(XK_Shift_L, true);
    }
    sendKey(keysym, true);
    sendKey(keysym, false);
    if (shifted) {
        sendKey(XK_Shift_L, false);
    }
    return true;
}

void XClient::sendKey(unsigned long keysym, bool down)
{
    XTestFakeKeyEvent(display, XKeysymToKeycode(display, keysym), down ? True : False, CurrentTime);
    XSync(display, False);
}

void XClient::sendMessage(unsigned long id, const char *type, const long (&data)[5], bool toWindowManager)
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = id;
    event.xclient.message_type = XInternAtom(display, type, False);
    event.xclient.format = 32;
    std::copy(std::begin(data), std::end(data), event.xclient.data.l);
    XSendEvent(display, toWindowManager ? DefaultRootWindow(display) : id, False,
               toWindowManager ? SubstructureRedirectMask | SubstructureNotifyMask : NoEventMask, &event);
    XSync(display, False);
}

void XClient::resizeWindow(unsigned long id, const QSize &size)
{
    const long widthAndHeightGiven = (1 << 10) | (1 << 11);
    const long fromPager = 2 << 12;
    sendMessage(id, "_NET_MOVERESIZE_WINDOW",
                {widthAndHeightGiven | fromPager, 0, 0, size.width(), size.height()});
}

void XClient::moveWindow(unsigned long id, const QPoint &topLeft)
{
    const long northWest = 1;
    const long xAndYGiven = (1 << 8) | (1 << 9);
    const long fromPager = 2 << 12;
    sendMessage(id, "_NET_MOVERESIZE_WINDOW",
                {northWest | xAndYGiven | fromPager, topLeft.x(), topLeft.y(), 0, 0});
}

void XClient::closeWindow(unsigned long id)
{
    const long fromPager = 2;
    sendMessage(id, "_NET_CLOSE_WINDOW", {CurrentTime, fromPager, 0, 0, 0});
}

void XClient::toggleMaximized(unsigned long id)
{
    const long toggle = 2;
    const long fromPager = 2;
    sendMessage(id, "_NET_WM_STATE",
                {toggle, long(XInternAtom(display, "_NET_WM_STATE_MAXIMIZED_VERT", False)),
                 long(XInternAtom(display, "_NET_WM_STATE_MAXIMIZED_HORZ", False)), fromPager, 0});
}

QRect XClient::windowRect(unsigned long id) const
{
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, id, &attributes) == 0) {
        return {};
    }
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(display, id, attributes.root, 0, 0, &x, &y, &child);
    return {x, y, attributes.width, attributes.height};
}

unsigned long XClient::transientFor(unsigned long id) const
{
    Window window = 0;
    return XGetTransientForHint(display, id, &window) != 0 ? window : 0;
}

QImage XClient::icon(unsigned long id) const
{
    constexpr long longest = 1 << 20;
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(display, id, XInternAtom(display, "_NET_WM_ICON", False), 0, longest, False,
                       XA_CARDINAL, &type, &format, &count, &left, &data);
    if (!data) {
        return {};
    }
    // Width, height and pixels. Items of 32 bits are handed out as long.
    const auto *items = reinterpret_cast<const unsigned long *>(data);
    QImage result;
    if (count > 2 && count >= 2 + items[0] * items[1]) {
        result = QImage(int(items[0]), int(items[1]), QImage::Format_ARGB32);
        for (int i = 0; i < result.width() * result.height(); ++i) {
            result.setPixel(i % result.width(), i / result.width(), QRgb(items[2 + i]));
        }
    }
    XFree(data);
    return result;
}

void XClient::mark(unsigned long id, int number)
{
    sendMessage(id, "_ZSM_MARK", {number, InputMarks::tag, 0, 0, 0}, false);
}

QImage XClient::screenshot() const
{
    const int screen = DefaultScreen(display);
    const int width = DisplayWidth(display, screen);
    const int height = DisplayHeight(display, screen);
    XImage *image = XGetImage(display, DefaultRootWindow(display), 0, 0, static_cast<unsigned>(width),
                              static_cast<unsigned>(height), AllPlanes, ZPixmap);
    if (!image) {
        return {};
    }
    QImage result;
    if (image->bits_per_pixel == 32) {
        const auto *pixels = reinterpret_cast<const uchar *>(image->data);
        result = QImage(pixels, width, height, image->bytes_per_line, QImage::Format_RGB32).copy();
    }
    XDestroyImage(image);
    return result;
}
