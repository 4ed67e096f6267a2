// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "text/oneline.h"

#include <QtTest>

class TestOneLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isHarmless_data()
    {
        const Rows<QByteArray, QString> row("bytes", "text");
        row("empty", QByteArray(), QString());
        row("plain", "bash", "bash");
        row("UTF-8", "gr\u00fc\u00df", "gr\u00fc\u00df");
        row("beyond 16 bits", "\U0001f427", "\U0001f427");
        row("Latin-1", "gr\xfc", "gr\ufffd");
        row("truncated within a character", "gr\xc3", "gr\ufffd");
        row("line break", "a\nb\r\nc", "a b  c");
        row("tabs", "a\tb\vc\fd", "a b c d");
        row("line separator", "a\u2028b\u2029c", "a b c");
        row("next line", "a\u0085b", "a b");
        row("null characters between", QByteArray("a\0b", 3), "a b");
        row("null characters and blanks at the end", QByteArray("a b \0 \0", 7), "a b");
        row("escape sequence", "\x1b[31m", "\ufffd[31m");
        row("delete", "a\x7f", "a\ufffd");
        row("C1 control", "a\u009bb", "a\ufffdb");
        row("right-to-left override", "\u202egpj.exe", "\ufffdgpj.exe");
        row("left-to-right embedding", "\u202aa", "\ufffda");
        row("isolate", "\u2066a\u2069", "\ufffda\ufffd");
        row("direction mark", "a\u200f", "a\ufffd");
        row("invisible blank", "a\u200bb", "a\ufffdb");
        row("joined picture", "\U0001f469\u200d\U0001f4bb", "\U0001f469\u200d\U0001f4bb");
        row("invisible letters beyond 16 bits", "a\U000e0061\U000e0062b", "a\ufffd\ufffdb");
        row("Arabic letter mark", "a\u061c", "a\ufffd");
    }

    void isHarmless()
    {
        QFETCH(QByteArray, bytes);
        QTEST(oneLine(bytes), "text");
    }

    void everyCharacterBelow256GivesOneLine()
    {
        for (ushort code = 0; code < 256; ++code) {
            const QString text = oneLine(QString(QChar(code)).toUtf8() + '.');
            QCOMPARE(text.size(), 2);
            QVERIFY2(text.at(0) == QLatin1Char(' ') || text.at(0).isPrint(),
                     qPrintable(QString::number(code)));
        }
    }

    void isBounded_data()
    {
        const Rows<QByteArray, int, bool> row("bytes", "length", "truncated");
        row("at the limit", QByteArray(longestText, 'x'), longestText, false);
        row("one more", QByteArray(longestText + 1, 'x'), longestText, true);
        row("100 KB", QByteArray(100 * 1024, 'x'), longestText, true);
        row("100 KB of nothing", QByteArray(100 * 1024, '\0'), 0, false);
        row("never within a pair", QByteArray("\xf0\x9f\x90\xa7").repeated(longestText), longestText - 1,
            true);
    }

    void isBounded()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, truncated);
        const QString text = oneLine(bytes);
        QTEST(text.size(), "length");
        QCOMPARE(text.endsWith(QChar(0x2026)), truncated);
        QCOMPARE(text.toUcs4().count(QChar::ReplacementCharacter), 0);
        QCOMPARE(QString::fromUtf8(text.toUtf8()), text); // no lone surrogate
    }
};

QTEST_GUILESS_MAIN(TestOneLine)
#include "test_oneline.moc"
