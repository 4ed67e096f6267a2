// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin.h"

#include <QtTest>

#include <stdexcept>

namespace {

standin::Machine fullMachine()
{
    standin::Machine machine;
    machine.cpus = {{1, 2, 50}, {3, ~std::uint64_t(0)}};
    machine.memory = standin::Memory{100, 20, 3, 4};
    machine.mounts = {{"/dev/sd a", "/mnt/\xff%\n", "", 5, 4, 3, 2, 512, true, 7}, standin::Mount{}};
    machine.mountListFails = true;
    machine.interfaces = {{"eth0", 0x0100007f, 0xff, 11, 12, 13, true}};
    machine.interfaceListFails = true;
    const standin::Process process{-2, "a b", 1000, 16, -20, 1, 2, 3, 4, 5, 6, std::string("a\0b\0", 4), 2};
    machine.processes = {{42, process}, {43, standin::Process{}}};
    machine.mostOfOthers = 8;
    return machine;
}

} // namespace

class TestGtopStandinText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textKeepsEveryField()
    {
        const std::string text = standin::toText(fullMachine());
        const standin::Machine read = standin::fromText(text);
        QCOMPARE(standin::toText(read), text);
        QCOMPARE(read.mounts->at(0).directory, std::string("/mnt/\xff%\n"));
        QCOMPARE(read.mounts->at(0).type, std::string());
        QVERIFY(read.mounts->at(0).fails);
        QVERIFY(read.mountListFails);
        QVERIFY(read.interfaceListFails);
        QVERIFY(read.interfaces->at(0).fails);
        QCOMPARE(read.cpus->at(0).load, 50);
        QCOMPARE(read.cpus->at(1).load, -1);
        QCOMPARE(read.cpus->at(1).total, ~std::uint64_t(0));
        QCOMPARE(read.processes->at(42).arguments, std::string("a\0b\0", 4));
        QCOMPARE(read.processes->at(42).nice, -20);
        QCOMPARE(read.processes->at(42).answersBeforeEnd, 2);
        QCOMPARE(read.processes->at(43).answersBeforeEnd, -1);
        QCOMPARE(read.mostOfOthers, 8);
    }

    void emptyListIsNotUnset()
    {
        QCOMPARE(standin::toText({}), std::string());
        QVERIFY(!standin::fromText("# nothing\n\n").mounts);
        standin::Machine machine;
        machine.mounts.emplace();
        machine.interfaces.emplace();
        machine.processes.emplace();
        machine.cpus.emplace();
        const standin::Machine read = standin::fromText(standin::toText(machine));
        QVERIFY(read.mounts && read.mounts->empty());
        QVERIFY(read.interfaces && read.interfaces->empty());
        QVERIFY(read.processes && read.processes->empty());
        QVERIFY(read.cpus && read.cpus->empty());
        QVERIFY(!read.memory);
    }

    void badLineIsQuoted_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("unknown kind") << QByteArray("disk a b");
        QTest::newRow("unknown field") << QByteArray("cpu busy 5");
        QTest::newRow("not a number") << QByteArray("cpu idle x");
        QTest::newRow("out of range") << QByteArray("mount bsize 4294967296");
        QTest::newRow("cut escape") << QByteArray("net name a%");
    }

    void badLineIsQuoted()
    {
        QFETCH(QByteArray, line);
        QByteArray message;
        try {
            standin::fromText(line.toStdString());
        } catch (const std::runtime_error &error) {
            message = error.what();
        }
        QVERIFY2(message.contains('"' + line + '"'), message.constData());
    }

    void savingReplacesTheFileAtomically()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("machine");
        standin::save(fullMachine(), path.toStdString());
        QFile opened(path);
        QVERIFY(opened.open(QIODevice::ReadOnly));
        standin::save({}, path.toStdString());
        QCOMPARE(opened.readAll().toStdString(), standin::toText(fullMachine()));
        QCOMPARE(QFileInfo(path).size(), 0);
        const std::string unwritable = directory.filePath("no/such").toStdString();
        QVERIFY_EXCEPTION_THROWN(standin::save({}, unwritable), std::runtime_error);
    }
};

QTEST_GUILESS_MAIN(TestGtopStandinText)
#include "test_gtopstandintext.moc"
