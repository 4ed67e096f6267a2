// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startpage.h"
#include "app/storedsettings.h"
#include "process/gtop_wrappers/oneline.h"
#include "resources/systeminfo.h"

#include <QTextStream>
#include <QtTest>

#include <random>

namespace {

// Pieces that the parsers look for, between bytes of any value.
QByteArray randomText(std::mt19937 &random)
{
    static const QByteArray pieces[] = {
        "DISTRIB_DESCRIPTION=", "\"",           "=",    "model name", ":",  "\t",        "\n",    "\r\n",
        QByteArray(1, '\0'),    "\xe2\x80\xae", "\xff", "\\x",        "\\", "@Variant(", "-tab=", "general",
        "Debian GNU/Linux"};
    QByteArray text;
    for (auto parts = random() % 30; parts > 0; --parts) {
        text += random() % 3 == 0
                    ? QByteArray(static_cast<int>(random() % 4), static_cast<char>(random() % 256))
                    : pieces[random() % std::size(pieces)];
    }
    return text;
}

} // namespace

// Every parser of our own on texts of any kind. ZSM_SOAK_TEXTS sets how many.
class TestParsers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyTextGivesAnAnswer();
};

void TestParsers::anyTextGivesAnAnswer()
{
    const int texts =
        qEnvironmentVariableIsSet("ZSM_SOAK_TEXTS") ? qEnvironmentVariableIntValue("ZSM_SOAK_TEXTS") : 20000;
    std::mt19937 random(1);
    for (int i = 0; i < texts; ++i) {
        const QByteArray text = randomText(random);
        QTextStream distribution(text);
        osDescriptionFromText(distribution);
        QTextStream cpu(text);
        cpuModelFromText(cpu);
        holdsSerializedObject(text);
        const int page = startPageOf(QString::fromUtf8(text));
        QVERIFY(page >= -1 && page <= 3);
        const QString line = gtop_wrappers::oneLine(text);
        QVERIFY(line.size() <= gtop_wrappers::longestText);
        for (const QChar character : line) {
            QVERIFY(character.category() != QChar::Other_Control);
        }
    }
    qInfo("%d texts", texts);
}

QTEST_GUILESS_MAIN(TestParsers)
#include "test_parsers.moc"
