// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startmemory.h"

#include <QTemporaryFile>
#include <QtTest>

#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <fstream>
#include <sstream>

namespace {

constexpr std::size_t pageSize = 4096;
constexpr std::size_t pages = 64;

/// A file that is mapped into this process, all of its pages present.
class MappedFile
{
public:
    MappedFile()
    {
        const bool isWritten =
            file.open() && file.write(QByteArray(int(pages * pageSize), 'f')) > 0 && file.flush();
        void *mapped =
            isWritten ? mmap(nullptr, pages * pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE, file.handle(), 0)
                      : MAP_FAILED;
        begin = mapped == MAP_FAILED ? nullptr : static_cast<volatile char *>(mapped);
    }
    ~MappedFile() { munmap(address(), pages * pageSize); }

    /// Writes into the first page as a debugger writes a breakpoint: this process gets a copy of it.
    void poke() { begin[0] = 'p'; }
    bool protect() { return mprotect(address(), pages * pageSize, PROT_READ) == 0; }
    void touch() const
    {
        for (std::size_t i = 0; i < pages; ++i) {
            (void)begin[i * pageSize];
        }
    }
    void *address() const { return const_cast<char *>(begin); }

    volatile char *begin;

private:
    Q_DISABLE_COPY(MappedFile)

    QTemporaryFile file;
};

/// Kilobytes of a mapping that are present, by /proc/self/smaps; -1 if there is no such mapping.
int presentKilobytes(const void *begin)
{
    std::ifstream smaps("/proc/self/smaps");
    std::ostringstream name;
    name << std::hex << reinterpret_cast<std::uintptr_t>(begin) << '-';
    bool isFound = false;
    for (std::string line; std::getline(smaps, line);) {
        isFound = isFound || line.rfind(name.str(), 0) == 0;
        if (isFound && line.rfind("Rss:", 0) == 0) {
            return std::stoi(line.substr(4));
        }
    }
    return -1;
}

/// What is present of a mapping after releaseReadOnlyPages() in a child that this process traces.
int presentInATracedChild(const MappedFile &file)
{
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        file.touch();
        releaseReadOnlyPages(SinglePageFaults());
        _exit(presentKilobytes(file.address()) == int(pages * pageSize / 1024) ? 0 : 1);
    }
    int status = 0;
    while (waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
        ptrace(PTRACE_CONT, child, nullptr, nullptr);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

class TestStartMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyFilesThatAreNotMappedForWritingAreFound_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("isFound");
        const QByteArray code = "7f00a000-7f00c000 r-xp 00001000 fe:01 12    /usr/lib/a.so";
        QTest::newRow("code") << code << true;
        QTest::newRow("data") << QByteArray(code).replace("r-xp", "r--p") << true;
        QTest::newRow("shared data") << QByteArray(code).replace("r-xp", "r--s") << true;
        QTest::newRow("blanks in the path") << QByteArray(code).replace("a.so", "a b (deleted)") << true;
        QTest::newRow("mapped for writing") << QByteArray(code).replace("r-xp", "rw-p") << false;
        QTest::newRow("no file") << QByteArray(code).replace("/usr/lib/a.so", "") << false;
        QTest::newRow("the kernel's code") << QByteArray(code).replace("/usr/lib/a.so", "[vdso]") << false;
        QTest::newRow("ends before it begins") << QByteArray(code).replace("7f00c", "7f009") << false;
        QTest::newRow("no address") << QByteArray(code).replace("7f00a000-", "") << false;
        QTest::newRow("cut off") << code.left(20) << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }
    void onlyFilesThatAreNotMappedForWritingAreFound()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, isFound);
        std::istringstream maps("7f000000-7f001000 rw-p 0 fe:01 11 /b\n" + line.toStdString() + "\n");
        const std::vector<PageRange> ranges = readOnlyFiles(maps);
        QCOMPARE(ranges.size(), std::size_t(isFound));
        if (isFound) {
            QCOMPARE(reinterpret_cast<std::uintptr_t>(ranges[0].begin), std::uintptr_t(0x7f00a000));
            QCOMPARE(ranges[0].size, std::size_t(0x2000));
        }
    }

    void onlyAPlainZeroMeansThatNobodyTraces_data()
    {
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<bool>("mayBe");
        QTest::newRow("nobody") << QByteArray("Name:\tx\nTracerPid:\t0\nUid:\t0\n") << false;
        QTest::newRow("a debugger") << QByteArray("Name:\tx\nTracerPid:\t10\nUid:\t0\n") << true;
        QTest::newRow("in a name") << QByteArray("Name:\tTracerPid:\t0\n") << true;
        QTest::newRow("nothing read") << QByteArray() << true;
    }
    void onlyAPlainZeroMeansThatNobodyTraces()
    {
        QFETCH(QByteArray, status);
        QFETCH(bool, mayBe);
        std::istringstream text(status.toStdString());
        QCOMPARE(mayBeTraced(text), mayBe);
    }

    void pagesOfAFileLeaveMemoryAndComeBack()
    {
        MappedFile file;
        QVERIFY(file.begin && file.protect());
        file.touch();
        QCOMPARE(presentKilobytes(file.address()), int(pages * pageSize / 1024));
        releaseReadOnlyPages(SinglePageFaults());
        QCOMPARE(presentKilobytes(file.address()), 0);
        QCOMPARE(char(file.begin[pageSize]), 'f');
    }

    void onePageComesBackAtATime()
    {
        MappedFile file;
        QVERIFY(file.begin && file.protect());
        {
            const SinglePageFaults faults;
            if (!faults.isPossible()) {
                QSKIP("userfaultfd(2) does not track writes here");
            }
            releaseReadOnlyPages(faults);
            QCOMPARE(char(file.begin[pageSize]), 'f');
            QCOMPARE(presentKilobytes(file.address()), int(pageSize / 1024));
        }
        file.touch();
        QCOMPARE(presentKilobytes(file.address()), int(pages * pageSize / 1024));
    }

    void aFileWithACopiedPageIsLeftAlone()
    {
        MappedFile file;
        QVERIFY(file.begin);
        file.poke();
        QVERIFY(file.protect());
        releaseReadOnlyPages(SinglePageFaults());
        QCOMPARE(char(file.begin[0]), 'p');
    }

    void nothingLeavesMemoryUnderADebugger()
    {
        MappedFile file;
        QVERIFY(file.begin && file.protect());
        QCOMPARE(presentInATracedChild(file), 0);
    }
};

QTEST_MAIN(TestStartMemory)
#include "test_startmemory.moc"
