// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/oneline.h"

namespace {

/// Invisible characters that affect their neighbours or the direction of the text; not the two joiners, which
/// scripts and emoji need.
bool isInvisibleFormat(QChar c)
{
    return c.category() == QChar::Other_Format && c != QChar(0x200c) && c != QChar(0x200d);
}

QChar harmless(QChar c)
{
    if (c.isNull() || c.isSpace()) {
        return QLatin1Char(' '); // a null character ends each argument
    }
    if (c.category() == QChar::Other_Control || isInvisibleFormat(c)) {
        return QChar::ReplacementCharacter;
    }
    return c;
}

/// The same for characters beyond the BMP, which are surrogate pairs.
void replaceInvisiblePairs(QString &text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        const bool isPair = text.at(i).isHighSurrogate() && text.at(i + 1).isLowSurrogate();
        if (isPair &&
            QChar::category(QChar::surrogateToUcs4(text.at(i), text.at(i + 1))) == QChar::Other_Format) {
            text.replace(i, 2, QChar::ReplacementCharacter);
        }
    }
}

void truncate(QString &text)
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
    // A title that a process writes over its arguments is padded to their size.
    int end = bytes.size();
    while (end > 0 && (bytes[end - 1] == '\0' || bytes[end - 1] == ' ')) {
        --end;
    }
    QString text = QString::fromUtf8(bytes.constData(), end);
    truncate(text);
    for (QChar &c : text) {
        c = harmless(c);
    }
    replaceInvisiblePairs(text);
    return text;
}
