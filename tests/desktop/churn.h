// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_CHURN_H
#define TESTS_DESKTOP_CHURN_H

#include "tests/desktop/sampleprocess.h"
#include "tests/support/gtopstandin.h"

#include <QRandomGenerator>
#include <QSet>

#include <memory>
#include <vector>

/// Changes the machine while a user works with the program: processes of the test start, exit, stop, rename
/// themselves and are reparented, and each made-up machine has other mounts, interfaces and figures.
class Churn
{
public:
    /// The user who owns the processes; -1: the user of the test.
    explicit Churn(int userId) : user(userId) {}
    ~Churn();
    Churn(const Churn &) = delete;
    Churn &operator=(const Churn &) = delete;

    /// Does one thing to the processes; returns its description.
    QString changeProcesses(QRandomGenerator &random);
    /// Kills the process if it is a child of the test.
    void end(int pid);
    /// Whether the process is or was one of the test's; false if the test has no user of its own.
    bool owns(int pid) const;
    /// A random machine of four CPUs, with the processes of the real one.
    static standin::Machine machine(QRandomGenerator &random);

private:
    QString startOne(QRandomGenerator &random);
    bool has(SampleProcess::What what) const;

    struct Sample
    {
        SampleProcess::What what;
        std::unique_ptr<SampleProcess> process;
    };

    int user;
    std::vector<Sample> samples;
    QSet<int> started;
};

#endif
