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

/// Beyond 16 bits too, where one character is a pair.
void replaceUnseenPairs(QString &text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        const bool isPair = text.at(i).isHighSurrogate() && text.at(i + 1).isLowSurrogate();
        if (isPair &&
            QChar::category(QChar::surrogateToUcs4(text.at(i), text.at(i + 1))) == QChar::Other_Format) {
            text.replace(i, 2, QChar::ReplacementCharacter);
        }
    }
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
    replaceUnseenPairs(text);
    return text;
}

} // namespace gtop_wrappers
