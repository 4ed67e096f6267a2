// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TEXT_ONELINE_H
#define TEXT_ONELINE_H

#include <QByteArray>
#include <QString>

/// Longest text of a cell in UTF-16 units, wider than any screen; longer ones are truncated with an ellipsis.
constexpr int longestText = 1024;

/// Bytes that others chose (the name of a process, a mount point) as one line that is safe to show: trailing
/// blanks are dropped, line breaks and other white space become blanks, and invalid UTF-8, control characters
/// and invisible formatting characters (such as direction marks) become U+FFFD.
QString oneLine(const QByteArray &bytes);

#endif
