// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_INPUTMARKS_H
#define TESTS_SUPPORT_PROBE_INPUTMARKS_H

#include <QAbstractNativeEventFilter>

/// Receives the marks that the driver of a desktop test sends between its input events: numbered messages to
/// a window. When a mark arrives, the toolkit has received everything sent before it.
class InputMarks : public QAbstractNativeEventFilter
{
public:
    static constexpr unsigned tag = 0x7a736d31; ///< the second item of the message, after the number

    static int latest(); ///< number of the latest mark; 0 before the first

    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;
};

#endif
