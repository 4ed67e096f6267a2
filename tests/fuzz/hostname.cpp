// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "resources/systeminfo.h"

#include <cstring>

/// Input: the host in the first line, then the domain.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const int end = bytes.indexOf('\n');
    const QByteArray host = bytes.left(end);
    const QByteArray domain = end < 0 ? QByteArray() : bytes.mid(end + 1);
    const QString name = joinHostAndDomain(host, domain);

    const QString left = QString::fromUtf8(host.constData());
    const QString right = QString::fromUtf8(domain.constData());
    const bool noDomain = std::strcmp(domain.constData(), "(none)") == 0;
    HOLDS(name.startsWith(left));
    HOLDS(name.size() == left.size() + (noDomain ? 0 : 1 + right.size()));
    HOLDS(noDomain || (name.endsWith(right) && name.at(left.size()) == QLatin1Char('.')));
    HOLDS(!name.contains(QChar(QChar::Null)));
    return 0;
}
