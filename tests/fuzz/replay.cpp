// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include <QtTest>

#include <random>

namespace {

QList<QByteArray> corpus()
{
    QList<QByteArray> texts;
    const QFileInfoList entries = QDir(QStringLiteral(ZSM_CORPUS)).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries) {
        QFile file(entry.filePath());
        texts << (file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return texts;
}

class Texts
{
public:
    explicit Texts(const QList<QByteArray> &seeds) : pieces(seeds) {}

    /// Pieces of the corpus between bytes of any value.
    QByteArray next()
    {
        QByteArray text;
        for (int parts = below(8); parts > 0; --parts) {
            const QByteArray &piece = pieces[below(pieces.size())];
            const int start = below(piece.size() + 1);
            text += below(3) == 0 ? QByteArray(below(4), static_cast<char>(below(256)))
                                  : piece.mid(below(2) == 0 ? 0 : start, below(piece.size() + 1));
        }
        return text;
    }

private:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    const QList<QByteArray> pieces;
    std::mt19937 random{1};
};

void tryOut(const QByteArray &text)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(text.constData()),
                           static_cast<std::size_t>(text.size()));
}

} // namespace

// A fuzz target without the fuzzer. What doesn't hold ends the program.
class TestFuzzTarget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsOnTheCorpus();
    void holdsOnAnyText();
};

void TestFuzzTarget::holdsOnTheCorpus()
{
    const QList<QByteArray> texts = corpus();
    QVERIFY(!texts.isEmpty());
    tryOut(QByteArray());
    for (const QByteArray &text : texts) {
        tryOut(text);
    }
}

// ZSM_SOAK_TEXTS sets how many.
void TestFuzzTarget::holdsOnAnyText()
{
    const int count =
        qEnvironmentVariableIsSet("ZSM_SOAK_TEXTS") ? qEnvironmentVariableIntValue("ZSM_SOAK_TEXTS") : 2000;
    Texts texts(corpus());
    for (int i = 0; i < count; ++i) {
        tryOut(texts.next());
    }
    qInfo("%d texts", count);
}

QTEST_APPLESS_MAIN(TestFuzzTarget)
#include "replay.moc"
