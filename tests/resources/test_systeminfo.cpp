// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/systeminfo.h"

#include "../support/brackettranslator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <random>

namespace {

/// Serves recorded bytes and counts how many were read.
class CountingDevice : public QIODevice
{
public:
    explicit CountingDevice(const QByteArray &content) : bytes(content) { open(ReadOnly); }
    qint64 served() const { return position; }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 size = qMin(maxSize, bytes.size() - position);
        std::copy_n(bytes.constData() + position, size, data);
        position += size;
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray bytes;
    qint64 position = 0;
};

QByteArray manyCores(int count)
{
    QByteArray content;
    for (int i = 0; i < count; ++i) {
        content += "processor\t: " + QByteArray::number(i) +
                   "\nmodel name\t: Tiny  CPU\nflags\t\t:" + QByteArray(1000, 'f') + "\n\n";
    }
    return content;
}

} // namespace

class TestSystemInfo : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;

    QString recorded(const QByteArray &content)
    {
        const QString path = directory.filePath("recorded");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("the recorded text could not be written");
        }
        return path;
    }

private Q_SLOTS:
    void hostAndDomainAreJoined_data();
    void hostAndDomainAreJoined();
    void hostNameStartsWithTheMachinesName();

    void descriptionIsFound_data();
    void descriptionIsFound();

    void cpuModelIsFound_data();
    void cpuModelIsFound();
    void cpuinfoIsReadNoFurtherThanTheFirstModel();

    void onlyTheFallbackOfTheDescriptionIsTranslated_data();
    void onlyTheFallbackOfTheDescriptionIsTranslated();
    void anEndlessLineIsHandled();
    void noiseIsHandled();
    void liveProbesGiveOneLine();
    void kernelFactsAreUnames();
};

void TestSystemInfo::hostAndDomainAreJoined_data()
{
    QTest::addColumn<QByteArray>("host");
    QTest::addColumn<QByteArray>("domain");
    QTest::addColumn<QString>("joined");

    const auto row = [](const char *name, const QByteArray &host, const QByteArray &domain,
                        const QString &joined) { QTest::newRow(name) << host << domain << joined; };
    row("(none) yields the bare host", "box", "(none)", "box");
    row("a domain follows a dot", "box", "lan.net", "box.lan.net");
    row("an empty domain leaves a trailing dot", "box", "", "box.");
    row("a null domain leaves a trailing dot", "box", QByteArray(), "box.");
    row("the case matters", "box", "(None)", "box.(None)");
    row("(none) as a prefix doesn't count", "box", "(none).net", "box.(none).net");
    row("blanks are not trimmed", "box", "(none) ", "box.(none) ");
    row("an empty host", "", "(none)", "");
    row("both are UTF-8", "b\xc3\xb6x", "m\xc3\xbcn", QString::fromUtf8("b\xc3\xb6x.m\xc3\xbcn"));
    row("invalid UTF-8 is replaced", "b\xffx", "d\xfe", QString("b\uFFFDx.d\uFFFD"));
    row("the text ends at the first NUL", QByteArray("box\0junk", 8), QByteArray("(none)\0junk", 11), "box");
    row("a name as long as the buffer", QByteArray(3999, 'h'), "(none)", QString(3999, 'h'));
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
    row("no equals sign gives an empty value", "DISTRIB_DESCRIPTION\n", "");
    row("text after a second equals sign is dropped", "DISTRIB_DESCRIPTION=\"Some=OS\"\n", "Some");
    row("of two matches the later one is shown",
        "DISTRIB_DESCRIPTION=\"First\"\nDISTRIB_DESCRIPTION=\"Second\"\n", "Second");
    row("leading blanks are trimmed", " \t DISTRIB_DESCRIPTION=\"Some OS\"\n", "Some OS");
    row("trailing blanks are no part of the value", "DISTRIB_DESCRIPTION=\"Some OS\" \t\n", "Some OS");
    row("blanks after the equals sign stay, and so does the opening quote",
        "DISTRIB_DESCRIPTION= \"Some OS\"\n", " \"Some OS");
    row("a longer key matches too", "DISTRIB_DESCRIPTION_LONG=\"Some OS\"\n", "Some OS");
    row("the case matters", "distrib_description=\"Some OS\"\n", "Unknown OS");
    row("a match must begin the line", "# DISTRIB_DESCRIPTION=\"Some OS\"\n", "Unknown OS");
    row("no match gives the fallback", "DISTRIB_ID=Some\n", "Unknown OS");
    row("an empty file gives the fallback", "", "Unknown OS");
    row("lines may end in CR LF", "DISTRIB_DESCRIPTION=\"Some OS\"\r\n\r\n", "Some OS");
    row("the last line needs no end", "\n\nDISTRIB_DESCRIPTION=\"Some OS\"", "Some OS");
    row("the text is UTF-8", "DISTRIB_DESCRIPTION=\"S\xc3\xb6me\"\n", QString::fromUtf8("S\xc3\xb6me"));
    row("invalid UTF-8 is replaced", "DISTRIB_DESCRIPTION=\"S\xffme\"\n", "S\uFFFDme");
    row("NULs don't end the text", QByteArray("\0\nDISTRIB_DESCRIPTION=\"a\0b\"\n", 28),
        QString::fromLatin1("a\0b", 3));
}

void TestSystemInfo::descriptionIsFound()
{
    QFETCH(QByteArray, content);
    QTEST(osDescription(recorded(content)), "description");
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
    row("leading blanks prevent a match", "  model name\t: Indented\n", "Unknown CPU");
    row("an indented line is skipped", " model name : No\nmodel name : Yes\n", "Yes");
    row("the case matters", "Model name\t: CPU\n", "Unknown CPU");
    row("the model number doesn't match", "model\t\t: 167\n", "Unknown CPU");
    row("no colon gives an empty model", "model name\n", "");
    row("an empty model is a model", "model name\t:\nmodel name\t: Second\n", "");
    row("an empty file gives the fallback", "", "Unknown CPU");
    row("lines may end in CR LF", "processor : 0\r\nmodel name : CPU\r\n", "CPU");
    row("the last line needs no end", "model name : CPU", "CPU");
    row("invalid UTF-8 is replaced", "model name : C\xffU\n", "C\uFFFDU");
    row("NULs don't end the text", QByteArray("\0\nmodel name : C\0U\n", 19), QString::fromLatin1("C\0U", 3));
    row("a machine of 1024 cores", manyCores(1024), "Tiny CPU");
}

void TestSystemInfo::cpuModelIsFound()
{
    QFETCH(QByteArray, content);
    QTEST(cpuModel(recorded(content)), "model");
}

void TestSystemInfo::cpuinfoIsReadNoFurtherThanTheFirstModel()
{
    const QByteArray content = manyCores(1024);
    CountingDevice device(content);
    QTextStream text(&device);
    QCOMPARE(cpuModelFromText(text), QString("Tiny CPU"));
    QVERIFY2(device.served() < content.size() / 10, qPrintable(QString::number(device.served())));
}

void TestSystemInfo::onlyTheFallbackOfTheDescriptionIsTranslated_data()
{
    QTest::addColumn<QString>("path");
    const QString pipe = directory.filePath("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("missing file") << directory.filePath("missing");
    QTest::newRow("pipe, which would block") << pipe;
    QTest::newRow("directory") << directory.path();
    QTest::newRow("no path") << QString();
}

void TestSystemInfo::onlyTheFallbackOfTheDescriptionIsTranslated()
{
    QFETCH(QString, path);
    QCOMPARE(osDescription(path), QString("Unknown OS"));
    QCOMPARE(cpuModel(path), QString("Unknown CPU"));
    const BracketTranslator translator("Updater");
    QCOMPARE(osDescription(path), QString("<Unknown OS>"));
    QCOMPARE(cpuModel(path), QString("Unknown CPU"));
}

void TestSystemInfo::anEndlessLineIsHandled()
{
    const QString path = recorded(QByteArray(8 << 20, 'x') + "\nmodel name : CPU\nDISTRIB_DESCRIPTION=OS\n");
    QCOMPARE(cpuModel(path), QString("CPU"));
    QCOMPARE(osDescription(path), QString("OS"));
}

void TestSystemInfo::noiseIsHandled()
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
