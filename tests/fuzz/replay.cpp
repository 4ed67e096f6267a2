// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include <QtTest>

#include <random>

namespace {

QByteArrayList corpus()
{
    QByteArrayList texts;
    const QFileInfoList entries = QDir(QStringLiteral(ZSM_CORPUS)).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries) {
        QFile file(entry.filePath());
        texts << (file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return texts;
}

/// Concatenates pieces of the seeds and bytes of any value.
QByteArray randomText(const QByteArrayList &seeds, std::mt19937 &random)
{
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    QByteArray text;
    for (int parts = below(8); parts > 0; --parts) {
        const QByteArray &seed = seeds[below(seeds.size())];
        const int start = below(seed.size() + 1);
        text += below(3) == 0 ? QByteArray(below(4), static_cast<char>(below(256)))
                              : seed.mid(below(2) == 0 ? 0 : start, below(seed.size() + 1));
    }
    return text;
}

void tryOut(const QByteArray &text)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(text.constData()),
                           static_cast<std::size_t>(text.size()));
}

} // namespace

/// Runs a fuzz target without the fuzzer. A condition that does not hold aborts the program.
class TestFuzzTarget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsOnTheCorpus()
    {
        const QByteArrayList texts = corpus();
        QVERIFY(!texts.isEmpty());
        tryOut(QByteArray());
        for (const QByteArray &text : texts) {
            tryOut(text);
        }
    }

    /// ZSM_SOAK_TEXTS sets the number of texts.
    void holdsOnAnyText()
    {
        const QByteArray wanted = qgetenv("ZSM_SOAK_TEXTS");
        const int count = wanted.isEmpty() ? 2000 : wanted.toInt();
        const QByteArrayList seeds = corpus();
        std::mt19937 random(1);
        for (int i = 0; i < count; ++i) {
            tryOut(randomText(seeds, random));
        }
        qInfo("%d texts", count);
    }
};

QTEST_APPLESS_MAIN(TestFuzzTarget)
#include "replay.moc"
