// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/sampleprocess.h"

#include <QFile>

#include <csignal>
#include <unistd.h>

SampleProcess::SampleProcess(const QString &name, What what, int user)
    : fullName(QString("%1%2").arg(name).arg(getpid() % 1000000))
{
    const QStringList words = {"sleep", "busy", "parent", "heir"};
    QStringList arguments{fullName, words[what]};
    if (user >= 0) {
        arguments.append(QString::number(user));
    }
    process.start(SAMPLE_PROCESS, arguments);
    while (!process.canReadLine() && process.waitForReadyRead()) {
    }
    ready = process.canReadLine();
}

SampleProcess::~SampleProcess()
{
    process.kill();
    process.waitForFinished();
}

bool SampleProcess::sendSignal(int signal) const
{
    return pid() > 0 && ::kill(pid(), signal) == 0;
}

int SampleProcess::endedBy() const
{
    const bool ended = process.state() == QProcess::NotRunning;
    return ended && process.exitStatus() == QProcess::CrashExit ? process.exitCode() : 0;
}

char SampleProcess::state() const
{
    QFile file(QString("/proc/%1/stat").arg(pid()));
    if (pid() <= 0 || !file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray line = file.readAll();
    const int afterName = line.lastIndexOf(") ");
    return afterName < 0 ? char(0) : line.at(afterName + 2);
}
