// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "text/oneline.h"

#include <QVector>

#include <algorithm>

namespace {

bool isHarmless(uint character)
{
    const bool joiner = character == 0x200c || character == 0x200d;
    const QChar::Category category = QChar::category(character);
    return category != QChar::Other_Control && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph && (category != QChar::Other_Format || joiner);
}

QString withoutBlanksAtTheEnd(QString text)
{
    while (text.endsWith(QLatin1Char(' '))) {
        text.chop(1);
    }
    return text;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const QString line = oneLine(bytes);

    HOLDS(line.size() <= longestText);
    const QVector<uint> characters = line.toUcs4();
    HOLDS(std::all_of(characters.begin(), characters.end(), isHarmless));
    HOLDS(QString::fromUtf8(line.toUtf8()) == line); // no character is split
    HOLDS(oneLine(line.toUtf8()) == withoutBlanksAtTheEnd(line));
    HOLDS(oneLine(bytes + QByteArray(3, '\0') + "  ") == line);
    return 0;
}
