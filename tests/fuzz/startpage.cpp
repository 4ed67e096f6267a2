// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "app/startpage.h"

#include <sstream>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray argument(bytesOf(data, size).constData());
    const char *const arguments[] = {"zarn-system-monitor", argument.constData()};
    std::ostringstream out;
    const int page = startPageFromArguments(2, arguments, out);

    HOLDS(page >= -1 && page <= 3);
    HOLDS((page == -1) == !out.str().empty());
    HOLDS(page == startPageOf(QString::fromLocal8Bit(argument)));
    if (page >= 0) {
        HOLDS(usageText().value(2 + page).contains(QString::fromLocal8Bit(argument)));
        HOLDS(startPageOf(QString::fromLocal8Bit(argument + ' ')) == -1);
    }
    return 0;
}
