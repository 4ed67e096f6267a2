// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_DPI_H
#define ZARN_INTEGRATION_DPI_H

/// How much larger than at 96 dots per inch things are drawn at `logicalDpi`: 1.0 at 96, 2.0 at 192.
/// A density that is no positive finite number gives 1.0.
double zarnDpiFactor(double logicalDpi);

/// `size`, in pixels at 96 dpi, scaled to the logical dpi of the primary screen.
/// Unchanged while there is no application or no screen.
double zarnDpiScaled(double size);

#endif
