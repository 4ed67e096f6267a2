// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/systeminfo.h"

#include "../support/brackettranslator.h"
#include "../support/rows.h"

#include <QtTest>

#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace {

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
    void hostAndDomainAreJoined_data()
    {
        const Rows<QByteArray, QByteArray, QString> row("host", "domain", "joined");

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
        row("the text ends at the first NUL", QByteArray("box\0junk", 8), QByteArray("(none)\0junk", 11),
            "box");
        row("a name as long as the buffer", QByteArray(3999, 'h'), "(none)", QString(3999, 'h'));
    }

    void hostAndDomainAreJoined()
    {
        QFETCH(QByteArray, host);
        QFETCH(QByteArray, domain);
        QTEST(joinHostAndDomain(host, domain), "joined");
    }

    void descriptionAndModelAreFound_data()
    {
        const Rows<QByteArray, bool, QString> row("content", "isCpuModel", "found");

        const auto os = [](const char *name, const QByteArray &content, const QString &found) {
            QTest::addRow("description: %s", name) << content << false << found;
        };
        os("quotes are dropped", "DISTRIB_ID=Some\nDISTRIB_DESCRIPTION=\"Some OS 1.0\"\nDISTRIB_RELEASE=1\n",
           "Some OS 1.0");
        os("no quotes are needed", "DISTRIB_DESCRIPTION=Some OS 1.0\n", "Some OS 1.0");
        os("only an opening quote loses only that", "DISTRIB_DESCRIPTION=\"Some OS\n", "Some OS");
        os("only a closing quote loses only that", "DISTRIB_DESCRIPTION=Some OS\"\n", "Some OS");
        os("one pair of quotes only", "DISTRIB_DESCRIPTION=\"\"Some OS\"\"\n", "\"Some OS\"");
        os("a single quote character leaves nothing", "DISTRIB_DESCRIPTION=\"\n", "");
        os("empty quotes leave nothing", "DISTRIB_DESCRIPTION=\"\"\n", "");
        os("an empty value replaces the fallback", "DISTRIB_DESCRIPTION=\n", "");
        os("no equals sign gives an empty value", "DISTRIB_DESCRIPTION\n", "");
        os("text after a second equals sign is dropped", "DISTRIB_DESCRIPTION=\"Some=OS\"\n", "Some");
        os("of two matches the later one is shown",
           "DISTRIB_DESCRIPTION=\"First\"\nDISTRIB_DESCRIPTION=\"Second\"\n", "Second");
        os("leading blanks are trimmed", " \t DISTRIB_DESCRIPTION=\"Some OS\"\n", "Some OS");
        os("trailing blanks are no part of the value", "DISTRIB_DESCRIPTION=\"Some OS\" \t\n", "Some OS");
        os("blanks after the equals sign stay, and so does the opening quote",
           "DISTRIB_DESCRIPTION= \"Some OS\"\n", " \"Some OS");
        os("a longer key matches too", "DISTRIB_DESCRIPTION_LONG=\"Some OS\"\n", "Some OS");
        os("the case matters", "distrib_description=\"Some OS\"\n", "Unknown OS");
        os("a match must begin the line", "# DISTRIB_DESCRIPTION=\"Some OS\"\n", "Unknown OS");
        os("no match gives the fallback", "DISTRIB_ID=Some\n", "Unknown OS");
        os("an empty file gives the fallback", "", "Unknown OS");
        os("lines may end in CR LF", "DISTRIB_DESCRIPTION=\"Some OS\"\r\n\r\n", "Some OS");
        os("the last line needs no end", "\n\nDISTRIB_DESCRIPTION=\"Some OS\"", "Some OS");
        os("the text is UTF-8", "DISTRIB_DESCRIPTION=\"S\xc3\xb6me\"\n", QString::fromUtf8("S\xc3\xb6me"));
        os("invalid UTF-8 is replaced", "DISTRIB_DESCRIPTION=\"S\xffme\"\n", "S\uFFFDme");
        os("an endless line is passed over", QByteArray(8 << 20, 'x') + "\nDISTRIB_DESCRIPTION=OS\n", "OS");
        os("NULs don't end the text", QByteArray("\0\nDISTRIB_DESCRIPTION=\"a\0b\"\n", 28),
           QString::fromLatin1("a\0b", 3));

        const auto cpu = [](const char *name, const QByteArray &content, const QString &found) {
            QTest::addRow("model: %s", name) << content << true << found;
        };
        cpu("the first model is taken", "processor\t: 0\nmodel name\t: First\n\nmodel name\t: Second\n",
            "First");
        cpu("runs of blanks become one", "model name\t:  Big \t CPU   2.00GHz  \n", "Big CPU 2.00GHz");
        cpu("text after a second colon is dropped", "model name\t: CPU: the best\n", "CPU");
        cpu("leading blanks prevent a match", "  model name\t: Indented\n", "Unknown CPU");
        cpu("an indented line is skipped", " model name : No\nmodel name : Yes\n", "Yes");
        cpu("the case matters", "Model name\t: CPU\n", "Unknown CPU");
        cpu("the model number doesn't match", "model\t\t: 167\n", "Unknown CPU");
        cpu("no colon gives an empty model", "model name\n", "");
        cpu("an empty model is a model", "model name\t:\nmodel name\t: Second\n", "");
        cpu("an empty file gives the fallback", "", "Unknown CPU");
        cpu("lines may end in CR LF", "processor : 0\r\nmodel name : CPU\r\n", "CPU");
        cpu("the last line needs no end", "model name : CPU", "CPU");
        cpu("invalid UTF-8 is replaced", "model name : C\xffU\n", "C\uFFFDU");
        cpu("an endless line is passed over", QByteArray(8 << 20, 'x') + "\nmodel name : CPU\n", "CPU");
        cpu("NULs don't end the text", QByteArray("\0\nmodel name : C\0U\n", 19),
            QString::fromLatin1("C\0U", 3));
        cpu("a machine of 1024 cores", manyCores(1024), "Tiny CPU");
    }

    void descriptionAndModelAreFound()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isCpuModel);
        const QString path = recorded(content);
        QTEST(isCpuModel ? cpuModel(path) : osDescription(path), "found");
    }

    void cpuinfoIsReadNoFurtherThanTheFirstModel()
    {
        QByteArray content = manyCores(1024);
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QTextStream text(&device);
        QCOMPARE(cpuModelFromText(text), QString("Tiny CPU"));
        QVERIFY2(device.pos() < content.size() / 10, qPrintable(QString::number(device.pos())));
    }

    void onlyTheFallbackOfTheDescriptionIsTranslated_data()
    {
        const Rows<QString> row("path");
        const QString pipe = directory.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        row("missing file", directory.filePath("missing"));
        row("pipe, which would block", pipe);
        row("directory", directory.path());
        row("no path", QString());
    }

    void onlyTheFallbackOfTheDescriptionIsTranslated()
    {
        QFETCH(QString, path);
        QCOMPARE(osDescription(path), QString("Unknown OS"));
        QCOMPARE(cpuModel(path), QString("Unknown CPU"));
        const BracketTranslator translator("Updater");
        QCOMPARE(osDescription(path), QString("<Unknown OS>"));
        QCOMPARE(cpuModel(path), QString("Unknown CPU"));
    }

    void liveProbesDescribeThisMachine()
    {
        for (const QString &text : {osDescription(), cpuModel()}) {
            QVERIFY(!text.isNull());
            QVERIFY(!text.contains('\n'));
        }
        const QString name = QSysInfo::machineHostName();
        QVERIFY(!name.isEmpty());
        QVERIFY2(hostName().startsWith(name), qPrintable(hostName()));
        utsname expected{};
        QCOMPARE(uname(&expected), 0);
        const KernelFacts facts = kernelFacts();
        QCOMPARE(facts.release, QString::fromLatin1(expected.release));
        QCOMPARE(facts.machine, QString::fromLatin1(expected.machine));
    }
};

QTEST_GUILESS_MAIN(TestSystemInfo)
#include "test_systeminfo.moc"
