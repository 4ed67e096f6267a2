// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/probe/inputmarks.h"

#include <QByteArray>

#include <xcb/xcb.h>

namespace {

int latestMark = 0;

} // namespace

int InputMarks::latest()
{
    return latestMark;
}

bool InputMarks::nativeEventFilter(const QByteArray &eventType, void *message, long *)
{
    const unsigned char sentByClient = 0x80;
    const auto *event = static_cast<const xcb_client_message_event_t *>(message);
    if (eventType != "xcb_generic_event_t" || event->response_type != (XCB_CLIENT_MESSAGE | sentByClient) ||
        event->format != 32 || event->data.data32[1] != tag) {
        return false;
    }
    latestMark = int(event->data.data32[0]);
    return true;
}
