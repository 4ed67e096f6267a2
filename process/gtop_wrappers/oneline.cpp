// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/oneline.h"

namespace gtop_wrappers {

namespace {

/// Characters without a shape that act on their neighbours or turn the direction of the text; the two joiners
/// are not among them, scripts and pictures need these.
bool actsUnseen(QChar c)
{
    return c.category() == QChar::Other_Format && c != QChar(0x200c) && c != QChar(0x200d);
}

QChar harmless(QChar c)
{
    if (c.isNull() || c.isSpace()) {
        return QLatin1Char(' '); // arguments come with a null behind each
    }
    if (c.category() == QChar::Other_Control || actsUnseen(c)) {
        return QChar::ReplacementCharacter;
    }
    return c;
}

void shorten(QString &text)
{
    if (text.size() <= longestText) {
        return;
    }
    text.truncate(longestText - 1);
    if (text.at(text.size() - 1).isHighSurrogate()) {
        text.chop(1);
    }
    text += QChar(0x2026);
}

} // namespace

QString oneLine(const QByteArray &bytes)
{
    // Titles that a process writes over its arguments are padded to the room these had.
    int end = bytes.size();
    while (end > 0 && (bytes[end - 1] == '\0' || bytes[end - 1] == ' ')) {
        --end;
    }
    QString text = QString::fromUtf8(bytes.constData(), end);
    shorten(text);
    for (QChar &c : text) {
        c = harmless(c);
    }
    return text;
}

} // namespace gtop_wrappers
