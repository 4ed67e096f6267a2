// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_SAMPLEPROCESS_H
#define TESTS_DESKTOP_SAMPLEPROCESS_H

#include <QProcess>
#include <QString>

/// A child of the test, to be found in the process list under a name of its own. Ended with the object.
class SampleProcess
{
public:
    /// A Parent always has children that have just been started, an Heir always such that have just become
    /// its own.
    enum What { Sleeping, Busy, Parent, Heir };

    /// `name` has up to 4 characters; the rest makes it unlike that of any other test that runs.
    /// With a user id other than -1 the child changes to that user, which only root may.
    explicit SampleProcess(const QString &name, What what = Sleeping, int user = -1);
    ~SampleProcess();
    SampleProcess(const SampleProcess &) = delete;
    SampleProcess &operator=(const SampleProcess &) = delete;

    bool isReady() const { return m_ready; } ///< it has its name and user
    QString name() const { return m_name; }
    QString renamed() const { return m_name + QLatin1Char('n'); } ///< its name after SIGUSR1
    int pid() const { return static_cast<int>(m_process.processId()); }
    QString childName() const { return m_name + QLatin1Char('c'); } ///< that of what these two start
    bool sendSignal(int signal) const;
    int endedBy() const; ///< the signal that has ended it; 0 if it runs or has ended otherwise
    char state() const;  ///< the kernel's letter: S sleeping, R running, T stopped, Z ended; 0 if it is gone

private:
    QProcess m_process;
    QString m_name;
    bool m_ready = false;
};

#endif
