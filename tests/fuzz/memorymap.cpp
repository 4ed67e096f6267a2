// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "app/startmemory.h"

#include <sstream>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = bytesOf(data, size);
    std::istringstream maps(text.toStdString());
    const std::vector<PageRange> ranges = readOnlyFiles(maps);
    HOLDS(ranges.size() <= static_cast<std::size_t>(text.count('/')));
    for (const PageRange &range : ranges) {
        HOLDS(range.begin + range.size > range.begin);
    }
    std::istringstream written(QByteArray(text).replace('-', 'w').toStdString());
    HOLDS(readOnlyFiles(written).empty());
    return 0;
}
