// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pagescroll.h"
#include "app/storedsettings.h"
#include "support.h"
#include "tests/support/rows.h"

#include <QtTest>
#include <QtWidgets>

#include <random>

namespace {

const QByteArray hugeList = "@Variant(\\0\\0\\0\\t\\x80\\0\\0\\0)"; // of 2^31 entries
const QByteArray endlessSplitter = "@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\x7f\\xff\\xff\\xff)";

const QByteArrayList encodedValues = {
    hugeList,
    "@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)",   // the longest list that the field can announce
    "@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)",   // texts
    "@Variant(\\0\\0\\0\\f\\x7f\\xff\\xff\\xf0)",   // bytes
    "@Variant(\\0\\0\\0\\b\\x10\\0\\0\\0)",         // a map
    "@Variant(\\0\\0\\0\\x45\\x7f\\xff\\xff\\xff)", // a bitmap
    "@Variant(\\0\\0\\0\\x47\\x7f\\xff\\xff\\xff)", // points
    "@Variant(\\x7f\\xff\\xff\\xff)",
    "\\x40Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
    "@Variant(",
    endlessSplitter,
    "@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\0\\0\\0\\x2\\xff\\xff\\xff\\xff\\x7f\\xff\\xff\\xff)"};

const QByteArrayList plainValues =
    QByteArray("@ByteArray()|@Invalid()|@Rect(1 2 3 4)|@Size(-1 -1)|@Point(x y)|@DateTime(\\0\\0\\0)|"
               "0|-1|1|2|5|6|2147483647|-2147483648|4294967296|99999999999999999999|1e9|nan|true|maybe|"
               "|\"|\"a\", b, \"c|1,2,3,4,5,6|0,0,2147483647,2147483647,0,0|-999999,-999999,100,100,20,1|"
               "10,10,300,200,20,1|\\xd800|\\x|\\|%|\xff\xfe\xfd")
        .split('|');

const QByteArrayList nastyValues = encodedValues + plainValues;

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
    char anyByte() { return static_cast<char>(below(256)); }
    QByteArray nasty() { return nastyValues[below(nastyValues.size())]; }

    QByteArray damagedOnce(QByteArray file)
    {
        const int at = file.isEmpty() ? 0 : below(file.size());
        switch (below(8)) {
        case 0:
            return file.left(at);
        case 1:
            return file.insert(at, QByteArray(1 + below(8), anyByte()));
        case 2:
            return file.isEmpty() ? file : file.replace(at, 1, QByteArray(1, anyByte()));
        case 3:
            return file.remove(at, below(40));
        case 4:
            return file.insert(at, nasty());
        default:
            return withNastyValue(file);
        }
    }

    QByteArray withNastyValue(const QByteArray &file)
    {
        QByteArrayList lines = file.split('\n');
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

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString pathSetAside()
{
    return Fixture::settingsFile() + QStringLiteral(".damaged");
}

int savedInterval()
{
    return QSettings().value(QStringLiteral("interval/general")).toInt();
}

} // namespace

class TestDamagedSettings : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void anUnsafeFileIsSetAsideAndTheDefaultsAreSaved_data()
    {
        const Rows<QByteArray> row("damage");
        for (const char *key : {"geometry", "proc_sort_column", "fsSplitter", "unknown"}) {
            row(key, "[General]\n" + QByteArray(key) + "=" + hugeList);
        }
        row("too large", QByteArray(70000, ';'));
    }

    void anUnsafeFileIsSetAsideAndTheDefaultsAreSaved()
    {
        QFETCH(QByteArray, damage);
        const QByteArray content = damage + "\n[interval]\ngeneral=5\n";
        writeSettings(content);
        fixture->start(0);
        const int needed = heightForWholePage(Fixture::window(), Fixture::find<PageScroll>("generalScroll"));
        QCOMPARE(Fixture::window()->size(),
                 QSize(640, qMax(480, needed)).expandedTo(Fixture::window()->minimumSizeHint()));
        fixture->stop();
        QCOMPARE(savedInterval(), 3);
        QCOMPARE(contentOf(pathSetAside()), content);
    }

    void aSerializedObjectIsFoundHoweverItIsEscaped_data()
    {
        const Rows<QByteArray, bool> row("content", "found");
        row("plain", QByteArray("a=@Variant(\\0)"), true);
        row("date", QByteArray("a=@DateTime(\\0)"), true);
        row("in a list", QByteArray("a=1, @Variant(x), 2"), true);
        row("quoted", QByteArray("a=\"@Va\"riant(x)"), true);
        row("hexadecimal", QByteArray("a=\\x40V\\x61riant("), true);
        row("many digits", QByteArray("a=\\x100000040Variant("), true);
        row("octal", QByteArray("a=\\100Variant("), true);
        row("over two lines", QByteArray("a=@Vari\\\nant("), true);
        row("skipped escape", QByteArray("a=@Vari\\qant("), true);
        row("blanks after a quote", QByteArray("a=\"@Vari\" \t ant("), true);
        row("over two lines with CRLF", QByteArray("a=@Vari\\\r\nant("), true);
        row("bytes", QByteArray("a=@ByteArray(\\0\\xff)"), false);
        row("another word", QByteArray("a=Variant("), false);
        row("truncated", QByteArray("a=@Variant"), false);
        row("a lone backslash", QByteArray("\\"), false);
        row("an empty number", QByteArray("\\x"), false);
        row("empty", QByteArray(), false);
    }

    void aSerializedObjectIsFoundHoweverItIsEscaped()
    {
        QFETCH(QByteArray, content);
        QTEST(holdsSerializedObject(content), "found");
    }

    void anUnusableSplitterStateIsIgnored_data()
    {
        const QByteArray sizes =
            "@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\0\\0\\0\\x2\\0\\0\\0\\x64\\0\\0\\0\\x64";
        const Rows<QByteArray> row("state");
        row("no end", endlessSplitter);
        row("a handle wider than any screen", sizes + "\\x1\\x7f\\xff\\xff\\xff\\x1\\0\\0\\0\\x1\\0)");
        row("vertical", sizes + "\\x1\\0\\0\\0\\x5\\x1\\0\\0\\0\\x2\\0)");
        row("truncated after the sizes", sizes + ")");
    }

    void anUnusableSplitterStateIsIgnored()
    {
        QFETCH(QByteArray, state);
        writeSettings("[General]\nfsSplitter=" + state + "\n[interval]\ngeneral=5\n");
        fixture->start(2);
        const auto *splitter = Fixture::find<QSplitter>("splitter");
        QCOMPARE(splitter->orientation(), Qt::Horizontal);
        QVERIFY(splitter->handleWidth() < 100);
        QVERIFY(Fixture::window()->minimumSizeHint().width() < 2000);
        QVERIFY(splitter->sizes() != (QList<int>{100, 100}));
        fixture->stop();
        QCOMPARE(savedInterval(), 5);
    }

    /// ZSM_SOAK_FILES sets the number of files, ZSM_SOAK_SEED the first one's seed.
    void anyFileGivesAWindowThatRefreshesAndSaves()
    {
        const int files = runSize("ZSM_SOAK_FILES", 300);
        const auto firstSeed = static_cast<unsigned>(runSize("ZSM_SOAK_SEED", 0));
        fixture->start(0);
        fixture->stop();
        const QByteArray sound = contentOf(Fixture::settingsFile());
        fixture->start(0);
        QVERIFY(!QFile::exists(pathSetAside()));
        fixture->stop();
        QVERIFY(sound.contains("proc_sort_column"));
        for (int i = 0; i < files; ++i) {
            const unsigned seed = firstSeed + static_cast<unsigned>(i);
            const QByteArray name = "seed " + QByteArray::number(seed);
            QFile::remove(Fixture::settingsFile());
            writeSettings(Mutator(seed).damaged(sound));
            fixture->start(i % 4);
            refresh(*fixture);
            QVERIFY2(Fixture::window()->isVisible(), name);
            QVERIFY2(!Fixture::window()->size().isEmpty(), name);
            fixture->stop();
            QVERIFY2(contentOf(Fixture::settingsFile()).contains("proc_sort_column"), name);
        }
        qInfo("settings files: %d from seed %u, all survived", files, firstSeed);
    }
};

QTEST_MAIN(TestDamagedSettings)
#include "test_damagedsettings.moc"
