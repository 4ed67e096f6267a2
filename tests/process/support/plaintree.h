// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_PLAINTREE_H
#define TESTS_PROCESS_PLAINTREE_H

#include "tests/process/support/synthetic.h"

#include <QMap>
#include <QStringList>

/// Parents by pid.
using Parents = QMap<int, int>;

/// The rules of the complete tree as they read: -1 for a process at the root.
Parents plainParents(const Parents &asRead);

/// What the complete tree has to hold after each refresh, without a toolkit.
class PlainTree
{
public:
    void clear() { counters.clear(); }
    void refresh(const FactsByPid &facts, quint64 totalDelta);

    Parents parents() const { return current; }
    /// Ascending: "3<1:0.5", process 3 below 1 with its CPU load; without the parent at the root.
    QStringList rows() const { return texts; }

private:
    struct Counter
    {
        quint64 start;
        qint64 value;
    };
    std::map<int, Counter> counters;
    Parents current;
    QStringList texts;
};

/// The rows of the model in the same form and order; the CPU column must be visible.
QStringList rowsWithLoad(const ProcModel &model);

#endif
