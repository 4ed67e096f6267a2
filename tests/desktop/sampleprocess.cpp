// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/sampleprocess.h"

#include <QFile>

#include <csignal>
#include <unistd.h>

SampleProcess::SampleProcess(const QString &name, What what, int user)
    : m_name(QStringLiteral("%1%2").arg(name).arg(getpid() % 1000000))
{
    static const char *const words[] = {"sleep", "busy", "parent", "heir"};
    QStringList arguments{m_name, QLatin1String(words[what])};
    if (user >= 0)
        arguments.append(QString::number(user));
    m_process.start(QStringLiteral(SAMPLE_PROCESS), arguments);
    while (!m_process.canReadLine() && m_process.waitForReadyRead()) {
    }
    m_ready = m_process.canReadLine();
}

SampleProcess::~SampleProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool SampleProcess::sendSignal(int signal) const
{
    return pid() > 0 && ::kill(pid(), signal) == 0;
}

int SampleProcess::endedBy() const
{
    const bool ended = m_process.state() == QProcess::NotRunning;
    return ended && m_process.exitStatus() == QProcess::CrashExit ? m_process.exitCode() : 0;
}

char SampleProcess::state() const
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid()));
    if (pid() <= 0 || !file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray line = file.readAll();
    const int afterName = line.lastIndexOf(") ");
    return afterName < 0 ? char(0) : line.at(afterName + 2);
}
