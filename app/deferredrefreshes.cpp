// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/deferredrefreshes.h"

#include <utility>

Pages DeferredRefreshes::end()
{
    --depth;
    return areDeferred() ? Pages() : std::exchange(due, Pages());
}
