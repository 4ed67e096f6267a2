// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "resources/systeminfo.h"

#include <QTextStream>

namespace {

const QString unknown = QStringLiteral("Unknown OS");

QString described(QString text)
{
    QTextStream stream(&text);
    return osDescriptionFromText(stream);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QTextStream file(bytesOf(data, size));
    file.setCodec("UTF-8");
    const QString description = osDescriptionFromText(file);
    file.seek(0);
    const QString text = file.readAll();

    HOLDS(description == described(text));
    HOLDS(description == unknown || text.contains(QLatin1String("DISTRIB_DESCRIPTION")));
    HOLDS(description == unknown || text.contains(description));
    HOLDS(!description.contains(QLatin1Char('\n')) && !description.contains(QLatin1Char('=')));
    const QString line = QStringLiteral("\n \tDISTRIB_DESCRIPTION=\"It is\"\n");
    HOLDS(described(text + line) == QLatin1String("It is"));
    HOLDS(description == unknown || described(line + text) == description);
    HOLDS(text.contains(unknown) || described(line + text) != unknown);
    return 0;
}
