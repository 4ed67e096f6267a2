// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_FOREST_H
#define TESTS_PROCESS_FOREST_H

#include "tests/process/support/synthetic.h"

#include <QMetaType>

#include <random>

/// How the parent of a process is chosen.
enum Shape {
    Bushes,
    ChainsDown, ///< parents mostly have the next smaller pid
    ChainsUp,   ///< or the next greater one
    Rings,
};

Q_DECLARE_METATYPE(Shape)

/// A few processes with many changes between two refreshes. The same seed gives the same history.
class Forest
{
public:
    Forest(Shape shape, int processes, unsigned int seed);

    /// Simulates one refresh interval.
    void step();
    /// A random number from 0 to `end` - 1.
    int pick(int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); }

    FactsByPid alive;

private:
    void change(int pid);
    int parentFor(int pid);

    std::mt19937 random;
    Shape shape;
    int size;
    quint64 births;
};

#endif
