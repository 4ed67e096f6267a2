// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DEFERREDREFRESHES_H
#define APP_DEFERREDREFRESHES_H

#include "app/settingskeys.h"

#include <bitset>

/// A set of pages by number.
using Pages = std::bitset<settings::pageCount>;

/// Collects the pages that fall due while changes that belong together are made, so that each is refreshed
/// once afterwards. Spans may be nested; the outermost counts.
class DeferredRefreshes
{
public:
    void begin() { ++depth; }
    bool areDeferred() const { return depth > 0; }
    /// Notes pages to be refreshed at the end.
    void add(const Pages &pages) { due |= pages; }
    /// The pages to be refreshed now; none while an outer span goes on.
    Pages end();

private:
    int depth = 0;
    Pages due;
};

#endif
