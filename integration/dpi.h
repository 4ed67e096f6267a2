// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_DPI_H
#define ZARN_INTEGRATION_DPI_H

/// The scale factor for `logicalDpi` relative to 96 dpi: 1.0 at 96, 2.0 at 192. A density that is not a
/// positive finite number gives 1.0.
double zarnDpiFactor(double logicalDpi);

/// `size`, in pixels at 96 dpi, scaled to the logical dpi of the primary screen. Unchanged without an
/// application or a screen.
double zarnDpiScaled(double size);

#endif
