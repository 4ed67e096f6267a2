// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "app/translations.h"

#include <QStringList>

/// Input: one line per language wanted.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList wanted = QString::fromUtf8(bytesOf(data, size)).split(QLatin1Char('\n'));
    const QStringList available{QStringLiteral("de"), QStringLiteral("pt_BR"), QStringLiteral("ru"),
                                QStringLiteral("zh_CN")};
    const QString chosen = translationFor(wanted, available);

    HOLDS(chosen.isEmpty() || available.contains(chosen));
    HOLDS(chosen.isEmpty() || translationFor({chosen}, available) == chosen);
    HOLDS(translationFor(QStringList(QStringLiteral("en_GB.UTF-8")) + wanted, available).isEmpty());
    HOLDS(translationFor(QStringList(QStringLiteral("ru-RU")) + wanted, available) == QLatin1String("ru"));
    HOLDS(translationFor(wanted, {}).isEmpty());
    return 0;
}
