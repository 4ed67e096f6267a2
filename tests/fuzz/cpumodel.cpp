// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "resources/systeminfo.h"

#include <QTextStream>

namespace {

const QString unknown = QStringLiteral("Unknown CPU");

QString modelOf(QString text)
{
    QTextStream stream(&text);
    return cpuModelFromText(stream);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QTextStream file(bytesOf(data, size));
    file.setCodec("UTF-8");
    const QString model = cpuModelFromText(file);
    file.seek(0);
    const QString text = file.readAll();

    HOLDS(model == modelOf(text));
    HOLDS(model == unknown || text.contains(QLatin1String("model name")));
    HOLDS(model == model.simplified() && !model.contains(QLatin1Char(':')));
    const QString line = QStringLiteral("\nmodel name\t: It  is\n");
    HOLDS(modelOf(line + text) == QLatin1String("It is"));
    HOLDS(model == unknown || modelOf(text + line) == model);
    return 0;
}
