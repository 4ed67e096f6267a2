// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_ONELINE_H
#define GTOP_WRAPPERS_ONELINE_H

#include <QByteArray>
#include <QString>

namespace gtop_wrappers {

/// The longest text of a cell in UTF-16 units, wider than any screen; a longer one ends in an ellipsis.
constexpr int longestText = 1024;

/// Bytes that a process chose itself (its name, its arguments) as one harmless line for the eye: blanks at
/// the end fall away, line breaks and the like become blanks, and what is no visible text (broken UTF-8,
/// control characters, marks that turn the direction of what follows) becomes U+FFFD.
QString oneLine(const QByteArray &bytes);

} // namespace gtop_wrappers

#endif
