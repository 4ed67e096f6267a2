// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_ONELINE_H
#define GTOP_WRAPPERS_ONELINE_H

#include <QByteArray>
#include <QString>

namespace gtop_wrappers {

/// Longest text of a cell in UTF-16 units, wider than any screen; longer ones are truncated with an ellipsis.
constexpr int longestText = 1024;

/// Bytes that a process chose itself (its name, its arguments) as one line that is safe to show: trailing
/// blanks are dropped, line breaks and other white space become blanks, and invalid UTF-8, control characters
/// and invisible formatting characters (such as direction marks) become U+FFFD.
QString oneLine(const QByteArray &bytes);

} // namespace gtop_wrappers

#endif
