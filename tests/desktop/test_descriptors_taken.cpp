// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"
#include "tests/desktop/sampleprocess.h"

#include <QtTest>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

// The running program's limit on file descriptors, lowered from outside.
class TestDescriptorsTaken : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withNoneToSpareItGoesOnAndSavesItsSettings();
    void withTooFewItKeepsWhatItShowsUntilThereAreMore();

private:
    bool limitDescriptors(rlim_t limit);
    rlim_t lowestUsefulLimit();
    bool waitForTicks();
    void verifyQuitsAndSaves();

    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

void TestDescriptorsTaken::init()
{
    SessionOptions options;
    options.settings = "[interval]\nprocs=1\n";
    m_session = std::make_unique<DesktopSession>(options);
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start({QStringLiteral("processes")}), qPrintable(m_session->error()));
    QVERIFY2(m_page->waitForRow(getpid()), qPrintable(m_session->error()));
}

bool TestDescriptorsTaken::limitDescriptors(rlim_t limit)
{
    rlimit now = {};
    const auto pid = static_cast<pid_t>(m_session->pid());
    if (prlimit(pid, RLIMIT_NOFILE, nullptr, &now) != 0)
        return false;
    now.rlim_cur = limit;
    return prlimit(pid, RLIMIT_NOFILE, &now, nullptr) == 0;
}

// Just above the highest descriptor that is open, the kept-back ones among them.
rlim_t TestDescriptorsTaken::lowestUsefulLimit()
{
    const QDir folder(QStringLiteral("/proc/%1/fd").arg(m_session->pid()));
    const QStringList open = folder.entryList(QDir::Files | QDir::System);
    int highest = 0;
    for (const QString &descriptor : open)
        highest = std::max(highest, descriptor.toInt());
    return static_cast<rlim_t>(highest) + 1;
}

// The program wakes up for nothing but its tick as long as nobody asks it anything.
bool TestDescriptorsTaken::waitForTicks()
{
    const auto wakeUps = [&] {
        QFile file(QStringLiteral("/proc/%1/status").arg(m_session->pid()));
        const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const QByteArray key = "\nvoluntary_ctxt_switches:";
        return status.mid(status.indexOf(key) + key.size()).split('\n').value(0).trimmed().toLong();
    };
    const long before = wakeUps();
    return m_session->waitFor([&] { return wakeUps() >= before + 3; });
}

void TestDescriptorsTaken::verifyQuitsAndSaves()
{
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->exitCode(), 0);
    QFile file(m_session->settingsFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray settings = file.readAll();
    QVERIFY2(settings.contains("procs=1") && settings.contains("nwt=3"), settings.constData());
}

void TestDescriptorsTaken::withNoneToSpareItGoesOnAndSavesItsSettings()
{
    QVERIFY(limitDescriptors(lowestUsefulLimit()));
    QVERIFY(!m_session->probe(QStringLiteral("hoard")).contains(QLatin1String("error")));
    const SampleProcess sample(QStringLiteral("desc"));
    QVERIFY(sample.isReady());
    QVERIFY2(m_page->waitForRow(sample.pid()), qPrintable(m_session->error()));
    for (const char *page : {"System", "File systems", "Network", "Processes"})
        QVERIFY2(m_page->showPage(QLatin1String(page)), qPrintable(m_session->error()));
    verifyQuitsAndSaves();
}

void TestDescriptorsTaken::withTooFewItKeepsWhatItShowsUntilThereAreMore()
{
    const rlim_t enough = lowestUsefulLimit();
    QVERIFY(limitDescriptors(3));
    const QStringList before = m_page->list().column(QStringLiteral("PID"));
    QVERIFY(!before.isEmpty());
    const SampleProcess sample(QStringLiteral("desc"));
    QVERIFY(sample.isReady());
    QVERIFY2(waitForTicks(), qPrintable(m_session->error()));
    QCOMPARE(m_page->list().column(QStringLiteral("PID")), before);
    QVERIFY(limitDescriptors(enough));
    QVERIFY2(m_page->waitForRow(sample.pid()), qPrintable(m_session->error()));
    verifyQuitsAndSaves();
}

QTEST_GUILESS_MAIN(TestDescriptorsTaken)
#include "test_descriptors_taken.moc"
