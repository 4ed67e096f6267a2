// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/fixture.h"

#include "app/storedsettings.h"

#include <QtTest>
#include <QtWidgets>

#include <random>

namespace {

const char *const nastyValues[] = {
    "@Variant(\\0\\0\\0\\t\\x80\\0\\0\\0)",         // a list of 2^31 entries
    "@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)",   // and of as many as a field can say
    "@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)",   // texts
    "@Variant(\\0\\0\\0\\f\\x7f\\xff\\xff\\xf0)",   // bytes
    "@Variant(\\0\\0\\0\\b\\x10\\0\\0\\0)",         // a map
    "@Variant(\\0\\0\\0\\x45\\x7f\\xff\\xff\\xff)", // a bitmap
    "@Variant(\\0\\0\\0\\x47\\x7f\\xff\\xff\\xff)", // points
    "@Variant(\\x7f\\xff\\xff\\xff)",
    "\\x40Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
    "@Variant(",
    "@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\x7f\\xff\\xff\\xff)", // a splitter's state without an end
    "@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\0\\0\\0\\x2\\xff\\xff\\xff\\xff\\x7f\\xff\\xff\\xff)",
    "@ByteArray()",
    "@Invalid()",
    "@Rect(1 2 3 4)",
    "@Size(-1 -1)",
    "@Point(x y)",
    "@DateTime(\\0\\0\\0)",
    "0",
    "-1",
    "1",
    "2",
    "5",
    "6",
    "2147483647",
    "-2147483648",
    "4294967296",
    "99999999999999999999",
    "1e9",
    "nan",
    "true",
    "maybe",
    "",
    "\"",
    "\"a\", b, \"c",
    "1,2,3,4,5,6",
    "0,0,2147483647,2147483647,0,0",
    "-999999,-999999,100,100,20,1",
    "10,10,300,200,20,1",
    "\\xd800",
    "\\x",
    "\\",
    "%",
    "\xff\xfe\xfd"};

class Mutator
{
public:
    explicit Mutator(unsigned seed) : random(seed) {}

    QByteArray damaged(QByteArray file)
    {
        for (int steps = 1 + below(6); steps > 0; --steps) {
            file = damagedOnce(file);
        }
        return file;
    }

private:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    const char *nasty() { return nastyValues[below(static_cast<int>(std::size(nastyValues)))]; }

    QByteArray damagedOnce(QByteArray file)
    {
        const int at = file.isEmpty() ? 0 : below(file.size());
        switch (below(8)) {
        case 0:
            return file.left(at);
        case 1:
            return file.insert(at, QByteArray(1 + below(8), static_cast<char>(below(256))));
        case 2:
            return file.isEmpty() ? file : file.replace(at, 1, QByteArray(1, static_cast<char>(below(256))));
        case 3:
            return file.remove(at, below(40));
        case 4:
            return file.insert(at, nasty());
        default:
            return withNastyValue(file);
        }
    }

    // One line keeps its key and gets another value.
    QByteArray withNastyValue(const QByteArray &file)
    {
        QList<QByteArray> lines = file.split('\n');
        QByteArray &line = lines[below(lines.size())];
        const int sign = line.indexOf('=');
        if (sign >= 0) {
            line = line.left(sign + 1) + nasty();
        }
        return lines.join('\n');
    }

    std::mt19937 random;
};

void writeSettings(const QByteArray &content)
{
    QDir().mkpath(QFileInfo(Fixture::settingsFile()).path());
    QFile file(Fixture::settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray readSettings()
{
    QFile file(Fixture::settingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestDamagedSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<Fixture>(); }
    void cleanup() { fixture.reset(); }
    void aSerializedObjectGivesTheDefaultsAndIsSavedOver_data();
    void aSerializedObjectGivesTheDefaultsAndIsSavedOver();
    void aSerializedObjectIsFoundHoweverItIsEscaped_data();
    void aSerializedObjectIsFoundHoweverItIsEscaped();
    void aFileTooLargeIsSetAside();
    void aSoundFileIsLeftAlone();
    void aSplitterWithoutEndIsLeftAlone();
    void aSplitterThatWouldSpoilThePageIsLeftAlone_data();
    void aSplitterThatWouldSpoilThePageIsLeftAlone();
    void anyFileGivesAWindowThatRefreshesAndSaves();

private:
    std::unique_ptr<Fixture> fixture;
};

void TestDamagedSettings::aSerializedObjectGivesTheDefaultsAndIsSavedOver_data()
{
    QTest::addColumn<QByteArray>("key");
    for (const char *key : {"geometry", "proc_sort_column", "fsSplitter", "unknown"}) {
        QTest::newRow(key) << QByteArray(key);
    }
}

void TestDamagedSettings::aSerializedObjectGivesTheDefaultsAndIsSavedOver()
{
    QFETCH(QByteArray, key);
    const QByteArray content = "[General]\n" + key + "=" + nastyValues[0] + "\n[interval]\ngeneral=5\n";
    writeSettings(content);
    fixture->start(0);
    QCOMPARE(Fixture::window()->size(), QSize(640, 480).expandedTo(Fixture::window()->minimumSizeHint()));
    fixture->stop();
    QCOMPARE(QSettings().value(QStringLiteral("interval/general")).toInt(), 3);
    QFile aside(Fixture::settingsFile() + QStringLiteral(".damaged"));
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), content);
}

void TestDamagedSettings::aSerializedObjectIsFoundHoweverItIsEscaped_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("found");
    QTest::newRow("plain") << QByteArray("a=@Variant(\\0)") << true;
    QTest::newRow("date") << QByteArray("a=@DateTime(\\0)") << true;
    QTest::newRow("in a list") << QByteArray("a=1, @Variant(x), 2") << true;
    QTest::newRow("quoted") << QByteArray("a=\"@Va\"riant(x)") << true;
    QTest::newRow("hexadecimal") << QByteArray("a=\\x40V\\x61riant(") << true;
    QTest::newRow("many digits") << QByteArray("a=\\x100000040Variant(") << true;
    QTest::newRow("octal") << QByteArray("a=\\100Variant(") << true;
    QTest::newRow("over two lines") << QByteArray("a=@Vari\\\nant(") << true;
    QTest::newRow("skipped escape") << QByteArray("a=@Vari\\qant(") << true;
    QTest::newRow("blanks behind a quote") << QByteArray("a=\"@Vari\" \t ant(") << true;
    QTest::newRow("over two lines of another system") << QByteArray("a=@Vari\\\r\nant(") << true;
    QTest::newRow("bytes") << QByteArray("a=@ByteArray(\\0\\xff)") << false;
    QTest::newRow("another word") << QByteArray("a=Variant(") << false;
    QTest::newRow("cut") << QByteArray("a=@Variant") << false;
    QTest::newRow("a lone backslash") << QByteArray("\\") << false;
    QTest::newRow("an empty number") << QByteArray("\\x") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void TestDamagedSettings::aSerializedObjectIsFoundHoweverItIsEscaped()
{
    QFETCH(QByteArray, content);
    QTEST(holdsSerializedObject(content), "found");
}

void TestDamagedSettings::aSoundFileIsLeftAlone()
{
    fixture->start(0);
    fixture->stop();
    fixture->start(0);
    QVERIFY(!QFile::exists(Fixture::settingsFile() + QStringLiteral(".damaged")));
}

void TestDamagedSettings::aFileTooLargeIsSetAside()
{
    writeSettings("[interval]\ngeneral=5\n" + QByteArray(70000, ';'));
    fixture->start(0);
    fixture->stop();
    QCOMPARE(QSettings().value(QStringLiteral("interval/general")).toInt(), 3);
    QVERIFY(QFile::exists(Fixture::settingsFile() + QStringLiteral(".damaged")));
}

void TestDamagedSettings::aSplitterWithoutEndIsLeftAlone()
{
    writeSettings(QByteArray("[General]\nfsSplitter=") + nastyValues[10] + "\n[interval]\ngeneral=5\n");
    fixture->start(0);
    fixture->stop();
    QCOMPARE(QSettings().value(QStringLiteral("interval/general")).toInt(), 5);
}

void TestDamagedSettings::aSplitterThatWouldSpoilThePageIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("a handle wider than any screen")
        << QByteArray("\\x1\\x7f\\xff\\xff\\xff\\x1\\0\\0\\0\\x1\\0");
    QTest::newRow("an upright one") << QByteArray("\\x1\\0\\0\\0\\x5\\x1\\0\\0\\0\\x2\\0");
    QTest::newRow("cut behind its sizes") << QByteArray();
}

void TestDamagedSettings::aSplitterThatWouldSpoilThePageIsLeftAlone()
{
    QFETCH(QByteArray, end);
    writeSettings("[General]\nfsSplitter=@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\0\\0\\0\\x2"
                  "\\0\\0\\0\\x64\\0\\0\\0\\x64" +
                  end + ")\n");
    fixture->start(2);
    const auto *splitter = Fixture::find<QSplitter>("splitter");
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QVERIFY(splitter->handleWidth() < 100);
    QVERIFY(Fixture::window()->minimumSizeHint().width() < 2000);
    QVERIFY(splitter->sizes() != (QList<int>{100, 100}));
}

// ZSM_SOAK_FILES sets how many files, ZSM_SOAK_SEED where they begin.
void TestDamagedSettings::anyFileGivesAWindowThatRefreshesAndSaves()
{
    const int files =
        qEnvironmentVariableIsSet("ZSM_SOAK_FILES") ? qEnvironmentVariableIntValue("ZSM_SOAK_FILES") : 300;
    const auto firstSeed = static_cast<unsigned>(qEnvironmentVariableIntValue("ZSM_SOAK_SEED"));
    fixture->start(0);
    fixture->stop();
    const QByteArray sound = readSettings();
    QVERIFY(sound.contains("proc_sort_column"));
    for (int i = 0; i < files; ++i) {
        const unsigned seed = firstSeed + static_cast<unsigned>(i);
        QFile::remove(Fixture::settingsFile());
        writeSettings(Mutator(seed).damaged(sound));
        Updater &updater = fixture->start(i % 4);
        QMetaObject::invokeMethod(&updater, "update", Q_ARG(bool, true));
        QVERIFY2(Fixture::window()->isVisible(), qPrintable(QStringLiteral("seed %1").arg(seed)));
        QVERIFY2(!Fixture::window()->size().isEmpty(), qPrintable(QStringLiteral("seed %1").arg(seed)));
        fixture->stop();
        QVERIFY2(readSettings().contains("proc_sort_column"),
                 qPrintable(QStringLiteral("seed %1").arg(seed)));
    }
    qInfo("settings files: %d from seed %u, all survived", files, firstSeed);
}

QTEST_MAIN(TestDamagedSettings)
#include "test_damagedsettings.moc"
