// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/oneline.h"

#include <QtTest>

using namespace gtop_wrappers;

class TestOneLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isHarmless_data();
    void isHarmless();
    void everyCharacterBelow256GivesOneLine();
    void isBounded_data();
    void isBounded();
};

void TestOneLine::isHarmless_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString broken(QChar::ReplacementCharacter);
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("plain") << QByteArray("bash") << "bash";
    QTest::newRow("UTF-8") << QByteArray("gr\xc3\xbc\xc3\x9f") << QString::fromUtf8("gr\xc3\xbc\xc3\x9f");
    QTest::newRow("beyond 16 bits") << QByteArray("\xf0\x9f\x90\xa7")
                                    << QString::fromUtf8("\xf0\x9f\x90\xa7");
    QTest::newRow("Latin-1") << QByteArray("gr\xfc") << "gr" + broken;
    QTest::newRow("cut in a character") << QByteArray("gr\xc3") << "gr" + broken;
    QTest::newRow("line break") << QByteArray("a\nb\r\nc") << "a b  c";
    QTest::newRow("tabs") << QByteArray("a\tb\vc\fd") << "a b c d";
    QTest::newRow("line separator") << QByteArray("a\xe2\x80\xa8"
                                                  "b\xe2\x80\xa9"
                                                  "c")
                                    << "a b c";
    QTest::newRow("next line") << QByteArray("a\xc2\x85"
                                             "b")
                               << "a b";
    QTest::newRow("null characters between") << QByteArray("a\0b", 3) << "a b";
    QTest::newRow("null characters and blanks behind") << QByteArray("a b \0 \0", 7) << "a b";
    QTest::newRow("escape sequence") << QByteArray("\x1b[31m") << broken + "[31m";
    QTest::newRow("delete") << QByteArray("a\x7f") << "a" + broken;
    QTest::newRow("C1 control") << QByteArray("a\xc2\x9b"
                                              "b")
                                << "a" + broken + "b";
    QTest::newRow("right-to-left override") << QByteArray("\xe2\x80\xae"
                                                          "gpj.exe")
                                            << broken + "gpj.exe";
    QTest::newRow("left-to-right embedding") << QByteArray("\xe2\x80\xaa"
                                                           "a")
                                             << broken + "a";
    QTest::newRow("isolate") << QByteArray("\xe2\x81\xa6"
                                           "a\xe2\x81\xa9")
                             << broken + "a" + broken;
    QTest::newRow("direction mark") << QByteArray("a\xe2\x80\x8f") << "a" + broken;
    QTest::newRow("invisible blank") << QByteArray("a\xe2\x80\x8b"
                                                   "b")
                                     << "a" + broken + "b";
    QTest::newRow("joined picture") << QByteArray("\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x92\xbb")
                                    << QString::fromUtf8("\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x92\xbb");
    QTest::newRow("invisible letters beyond 16 bits") << QByteArray("a\xf3\xa0\x81\xa1\xf3\xa0\x81\xa2"
                                                                    "b")
                                                      << "a" + broken + broken + "b";
    QTest::newRow("Arabic letter mark") << QByteArray("a\xd8\x9c") << "a" + broken;
}

void TestOneLine::isHarmless()
{
    QFETCH(QByteArray, bytes);
    QTEST(oneLine(bytes), "text");
}

void TestOneLine::everyCharacterBelow256GivesOneLine()
{
    for (ushort code = 0; code < 256; ++code) {
        const QString text = oneLine(QString(QChar(code)).toUtf8() + '.');
        QCOMPARE(text.size(), 2);
        QVERIFY2(text.at(0) == QLatin1Char(' ') || text.at(0).isPrint(), qPrintable(QString::number(code)));
    }
}

void TestOneLine::isBounded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("shortened");
    QTest::newRow("at the limit") << QByteArray(longestText, 'x') << longestText << false;
    QTest::newRow("one more") << QByteArray(longestText + 1, 'x') << longestText << true;
    QTest::newRow("100 KB") << QByteArray(100 * 1024, 'x') << longestText << true;
    QTest::newRow("100 KB of nothing") << QByteArray(100 * 1024, '\0') << 0 << false;
    QTest::newRow("not in the middle of a pair")
        << QByteArray("\xf0\x9f\x90\xa7").repeated(longestText) << longestText - 1 << true;
}

void TestOneLine::isBounded()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, shortened);
    const QString text = oneLine(bytes);
    QTEST(text.size(), "length");
    QCOMPARE(text.endsWith(QChar(0x2026)), shortened);
    QCOMPARE(text.toUcs4().count(QChar::ReplacementCharacter), 0);
    QCOMPARE(QString::fromUtf8(text.toUtf8()), text); // no half of a pair is left
}

QTEST_GUILESS_MAIN(TestOneLine)
#include "test_oneline.moc"
