// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_SAMPLEPROCESS_H
#define TESTS_DESKTOP_SAMPLEPROCESS_H

#include <QProcess>
#include <QString>

/// A child of the test with a unique name, to be found in the process list. Killed by the destructor.
class SampleProcess
{
public:
    /// A Parent always has children that have just been started, an Heir children that have just been
    /// reparented to it.
    enum What { Sleeping, Busy, Parent, Heir };

    /// `name` has up to 4 characters; a suffix makes it unique among the tests that run.
    /// With a user id other than -1 the child changes to that user, which needs root.
    explicit SampleProcess(const QString &name, What what = Sleeping, int user = -1);
    ~SampleProcess();
    SampleProcess(const SampleProcess &) = delete;
    SampleProcess &operator=(const SampleProcess &) = delete;

    bool isReady() const { return ready; } ///< it has its name and user
    QString name() const { return fullName; }
    QString renamed() const { return fullName + 'n'; }   ///< its name after SIGUSR1
    QString childName() const { return fullName + 'c'; } ///< of the children of a Parent or Heir
    int pid() const { return static_cast<int>(process.processId()); }
    bool sendSignal(int signal) const;
    int endedBy() const; ///< the signal that has killed it; 0 if it runs or has exited
    char state() const;  ///< the kernel's letter: S sleeping, R running, T stopped, Z zombie; 0 if it is gone

private:
    QProcess process;
    QString fullName;
    bool ready = false;
};

#endif
