// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_PROBE_INPUTMARKS_H
#define TESTS_SUPPORT_PROBE_INPUTMARKS_H

#include <QAbstractNativeEventFilter>

/// What the driver of a desktop test puts between its events: a message to a window, with a number. When it
/// comes, the toolkit has taken everything that was sent before.
class InputMarks : public QAbstractNativeEventFilter
{
public:
    static constexpr unsigned tag = 0x7a736d31; ///< the second item of the message, after the number

    static int latest(); ///< the number of the mark that came last; 0 before the first

    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;
};

#endif
