// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/systeminfo.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTranslator>
#include <QtTest>

#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <random>

namespace {

// Puts every text that is looked up in the controller's context into angle brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "Updater") == 0 ? "<" + QString::fromLatin1(source) + ">" : QString();
    }
    bool isEmpty() const override { return false; }
};

// Serves recorded bytes and remembers how far it was read.
class CountingDevice : public QIODevice
{
public:
    explicit CountingDevice(const QByteArray &content) : m_content(content) { open(ReadOnly); }
    qint64 served() const { return m_pos; }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 size = qMin(maxSize, m_content.size() - m_pos);
        std::copy_n(m_content.constData() + m_pos, size, data);
        m_pos += size;
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_content;
    qint64 m_pos = 0;
};

QByteArray manyCores(int count)
{
    QByteArray content;
    for (int i = 0; i < count; ++i)
        content += "processor\t: " + QByteArray::number(i) +
                   "\nmodel name\t: Tiny  CPU\nflags\t\t:" + QByteArray(1000, 'f') + "\n\n";
    return content;
}

} // namespace

class TestSystemInfo : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString recorded(const QByteArray &content)
    {
        const QString path = m_dir.filePath("recorded");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the recorded text could not be written");
        return path;
    }

private Q_SLOTS:
    void hostAndDomainAreJoined_data();
    void hostAndDomainAreJoined();
    void hostNameStartsWithTheMachinesName();

    void descriptionIsFound_data();
    void descriptionIsFound();
    void unreadableLsbReleaseGivesTheTranslatedFallback();

    void cpuModelIsFound_data();
    void cpuModelIsFound();
    void unreadableCpuinfoGivesTheUntranslatedFallback();
    void cpuinfoIsReadNoFurtherThanTheFirstModel();

    void aPipeIsNotWaitedFor();
    void aDirectoryGivesTheFallbacks();
    void anEndlessLineIsSurvived();
    void noiseIsSurvived();
    void liveProbesGiveOneLine();
    void kernelFactsAreUnames();
};

void TestSystemInfo::hostAndDomainAreJoined_data()
{
    QTest::addColumn<QByteArray>("host");
    QTest::addColumn<QByteArray>("domain");
    QTest::addColumn<QString>("joined");

    QTest::newRow("(none) leaves the host alone") << QByteArray("box") << QByteArray("(none)") << "box";
    QTest::newRow("a domain follows a dot") << QByteArray("box") << QByteArray("lan.net") << "box.lan.net";
    QTest::newRow("an empty domain leaves a bare dot") << QByteArray("box") << QByteArray("") << "box.";
    QTest::newRow("a null domain leaves a bare dot") << QByteArray("box") << QByteArray() << "box.";
    QTest::newRow("the case matters") << QByteArray("box") << QByteArray("(None)") << "box.(None)";
    QTest::newRow("no prefix counts") << QByteArray("box") << QByteArray("(none).net") << "box.(none).net";
    QTest::newRow("no blank is cut off") << QByteArray("box") << QByteArray("(none) ") << "box.(none) ";
    QTest::newRow("an empty host") << QByteArray("") << QByteArray("(none)") << "";
    QTest::newRow("both are UTF-8") << QByteArray("b\xc3\xb6x") << QByteArray("m\xc3\xbcn")
                                    << QString::fromUtf8("b\xc3\xb6x.m\xc3\xbcn");
    QTest::newRow("bytes that aren't UTF-8 are replaced")
        << QByteArray("b\xffx") << QByteArray("d\xfe") << QString("b\uFFFDx.d\uFFFD");
    QTest::newRow("text ends at the first zero byte")
        << QByteArray("box\0junk", 8) << QByteArray("(none)\0junk", 11) << "box";
    QTest::newRow("a name as long as the buffer")
        << QByteArray(3999, 'h') << QByteArray("(none)") << QString(3999, 'h');
}

void TestSystemInfo::hostAndDomainAreJoined()
{
    QFETCH(QByteArray, host);
    QFETCH(QByteArray, domain);
    QTEST(joinHostAndDomain(host, domain), "joined");
}

void TestSystemInfo::hostNameStartsWithTheMachinesName()
{
    const QString name = QSysInfo::machineHostName();
    QVERIFY(!name.isEmpty());
    QVERIFY2(hostName().startsWith(name), qPrintable(hostName()));
}

void TestSystemInfo::descriptionIsFound_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("description");

    const auto row = [](const char *name, const QByteArray &content, const QString &description) {
        QTest::newRow(name) << content << description;
    };
    row("quotes are dropped", "DISTRIB_ID=Some\nDISTRIB_DESCRIPTION=\"Some OS 1.0\"\nDISTRIB_RELEASE=1\n",
        "Some OS 1.0");
    row("no quotes are needed", "DISTRIB_DESCRIPTION=Some OS 1.0\n", "Some OS 1.0");
    row("only an opening quote loses only that", "DISTRIB_DESCRIPTION=\"Some OS\n", "Some OS");
    row("only a closing quote loses only that", "DISTRIB_DESCRIPTION=Some OS\"\n", "Some OS");
    row("one pair of quotes only", "DISTRIB_DESCRIPTION=\"\"Some OS\"\"\n", "\"Some OS\"");
    row("a single quote character leaves nothing", "DISTRIB_DESCRIPTION=\"\n", "");
    row("empty quotes leave nothing", "DISTRIB_DESCRIPTION=\"\"\n", "");
    row("an empty value replaces the fallback", "DISTRIB_DESCRIPTION=\n", "");
    row("no sign of equality gives an empty value", "DISTRIB_DESCRIPTION\n", "");
    row("text after a second sign of equality is dropped", "DISTRIB_DESCRIPTION=\"Some=OS\"\n", "Some");
    row("of two matches the later one is shown",
        "DISTRIB_DESCRIPTION=\"First\"\nDISTRIB_DESCRIPTION=\"Second\"\n", "Second");
    row("leading blanks don't hide a match", " \t DISTRIB_DESCRIPTION=\"Some OS\"\n", "Some OS");
    row("trailing blanks are no part of the value", "DISTRIB_DESCRIPTION=\"Some OS\" \t\n", "Some OS");
    row("blanks after the sign of equality stay, and so does the quote behind them",
        "DISTRIB_DESCRIPTION= \"Some OS\"\n", " \"Some OS");
    row("a longer key matches too", "DISTRIB_DESCRIPTION_LONG=\"Some OS\"\n", "Some OS");
    row("the case matters", "distrib_description=\"Some OS\"\n", "Unknown OS");
    row("a match must begin the line", "# DISTRIB_DESCRIPTION=\"Some OS\"\n", "Unknown OS");
    row("no match gives the fallback", "DISTRIB_ID=Some\n", "Unknown OS");
    row("an empty file gives the fallback", "", "Unknown OS");
    row("lines may end in CR LF", "DISTRIB_DESCRIPTION=\"Some OS\"\r\n\r\n", "Some OS");
    row("the last line needs no end", "\n\nDISTRIB_DESCRIPTION=\"Some OS\"", "Some OS");
    row("the text is UTF-8", "DISTRIB_DESCRIPTION=\"S\xc3\xb6me\"\n", QString::fromUtf8("S\xc3\xb6me"));
    row("bytes that aren't UTF-8 are replaced", "DISTRIB_DESCRIPTION=\"S\xffme\"\n", "S\uFFFDme");
    row("zero bytes end nothing", QByteArray("\0\nDISTRIB_DESCRIPTION=\"a\0b\"\n", 28),
        QString::fromLatin1("a\0b", 3));
}

void TestSystemInfo::descriptionIsFound()
{
    QFETCH(QByteArray, content);
    QTEST(osDescription(recorded(content)), "description");
}

void TestSystemInfo::unreadableLsbReleaseGivesTheTranslatedFallback()
{
    const QString missing = m_dir.filePath("missing");
    QCOMPARE(osDescription(missing), QString("Unknown OS"));
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(osDescription(missing), QString("<Unknown OS>"));
}

void TestSystemInfo::cpuModelIsFound_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("model");

    const auto row = [](const char *name, const QByteArray &content, const QString &model) {
        QTest::newRow(name) << content << model;
    };
    row("the first model is taken", "processor\t: 0\nmodel name\t: First\n\nmodel name\t: Second\n", "First");
    row("runs of blanks become one", "model name\t:  Big \t CPU   2.00GHz  \n", "Big CPU 2.00GHz");
    row("text after a second colon is dropped", "model name\t: CPU: the best\n", "CPU");
    row("leading blanks hide a match", "  model name\t: Indented\n", "Unknown CPU");
    row("a later line counts if the first is indented", " model name : No\nmodel name : Yes\n", "Yes");
    row("the case matters", "Model name\t: CPU\n", "Unknown CPU");
    row("the model number is no name", "model\t\t: 167\n", "Unknown CPU");
    row("no colon gives an empty model", "model name\n", "");
    row("an empty model is a model", "model name\t:\nmodel name\t: Second\n", "");
    row("an empty file gives the fallback", "", "Unknown CPU");
    row("lines may end in CR LF", "processor : 0\r\nmodel name : CPU\r\n", "CPU");
    row("the last line needs no end", "model name : CPU", "CPU");
    row("bytes that aren't UTF-8 are replaced", "model name : C\xffU\n", "C\uFFFDU");
    row("zero bytes end nothing", QByteArray("\0\nmodel name : C\0U\n", 19), QString::fromLatin1("C\0U", 3));
    row("a machine of 1024 cores", manyCores(1024), "Tiny CPU");
}

void TestSystemInfo::cpuModelIsFound()
{
    QFETCH(QByteArray, content);
    QTEST(cpuModel(recorded(content)), "model");
}

void TestSystemInfo::unreadableCpuinfoGivesTheUntranslatedFallback()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(cpuModel(m_dir.filePath("missing")), QString("Unknown CPU"));
}

void TestSystemInfo::cpuinfoIsReadNoFurtherThanTheFirstModel()
{
    const QByteArray content = manyCores(1024);
    CountingDevice device(content);
    QTextStream text(&device);
    QCOMPARE(cpuModelFromText(text), QString("Tiny CPU"));
    QVERIFY2(device.served() < content.size() / 10, qPrintable(QString::number(device.served())));
}

void TestSystemInfo::aPipeIsNotWaitedFor()
{
    const QString pipe = m_dir.filePath("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(osDescription(pipe), QString("Unknown OS"));
    QCOMPARE(cpuModel(pipe), QString("Unknown CPU"));
}

void TestSystemInfo::aDirectoryGivesTheFallbacks()
{
    QCOMPARE(osDescription(m_dir.path()), QString("Unknown OS"));
    QCOMPARE(cpuModel(m_dir.path()), QString("Unknown CPU"));
    QCOMPARE(cpuModel(QString()), QString("Unknown CPU"));
}

void TestSystemInfo::anEndlessLineIsSurvived()
{
    const QString path = recorded(QByteArray(8 << 20, 'x') + "\nmodel name : CPU\nDISTRIB_DESCRIPTION=OS\n");
    QCOMPARE(cpuModel(path), QString("CPU"));
    QCOMPARE(osDescription(path), QString("OS"));
}

void TestSystemInfo::noiseIsSurvived()
{
    std::mt19937 random(20261121);
    const QList<QByteArray> pieces = {"DISTRIB_DESCRIPTION", "model name", "=", ":", "\"", "\n", "\r\n", " "};
    for (int round = 0; round < 500; ++round) {
        QByteArray content = "x\nmodel name:CPU\nDISTRIB_DESCRIPTION=OS\n";
        for (int i = 0; i < 60; ++i) {
            const unsigned pick = random() % 16;
            content +=
                pick < 8 ? pieces.at(static_cast<int>(pick)) : QByteArray(1, static_cast<char>(random()));
        }
        const QString path = recorded(content);
        QCOMPARE(cpuModel(path), QString("CPU"));
        const QString description = osDescription(path);
        QVERIFY(description != "Unknown OS");
        QVERIFY(!description.contains('=') && !description.contains('\n'));
    }
}

void TestSystemInfo::liveProbesGiveOneLine()
{
    for (const QString &text : {osDescription(), cpuModel()}) {
        QVERIFY(!text.isNull());
        QVERIFY(!text.contains('\n'));
    }
}

void TestSystemInfo::kernelFactsAreUnames()
{
    utsname expected{};
    QCOMPARE(uname(&expected), 0);
    const KernelFacts facts = kernelFacts();
    QCOMPARE(facts.release, QString::fromLatin1(expected.release));
    QCOMPARE(facts.machine, QString::fromLatin1(expected.machine));
}

QTEST_GUILESS_MAIN(TestSystemInfo)
#include "test_systeminfo.moc"
