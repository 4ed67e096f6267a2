// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_CHURN_H
#define TESTS_DESKTOP_CHURN_H

#include "tests/desktop/sampleprocess.h"
#include "tests/support/gtopstandin.h"

#include <QRandomGenerator>
#include <QSet>

#include <memory>
#include <vector>

/// What happens around the program while a user works with it: processes of the test come, go, stop, take
/// other names and other parents, and a made-up machine has other mounts, interfaces and figures each time.
class Churn
{
public:
    /// The processes belong to that user; -1: to the user of the test.
    explicit Churn(int user) : m_user(user) {}
    ~Churn();
    Churn(const Churn &) = delete;
    Churn &operator=(const Churn &) = delete;

    /// Does one thing to the processes; tells what.
    QString changeProcesses(QRandomGenerator &random);
    /// Ends that one, if it is a child of the test.
    void end(int pid);
    /// Whether the process is or was one of the test's, and of no user but its own.
    bool owns(int pid) const;
    /// A machine of four CPUs with processes of the real one.
    static standin::Machine machine(QRandomGenerator &random);

private:
    QString startOne(QRandomGenerator &random);
    bool has(SampleProcess::What what) const;
    void forgetEnded();

    struct Sample
    {
        SampleProcess::What what;
        std::unique_ptr<SampleProcess> process;
    };

    int m_user;
    std::vector<Sample> m_samples;
    QSet<int> m_started;
};

#endif
