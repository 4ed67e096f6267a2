// SPDX-License-Identifier: GPL-3.0-or-later
// bench_list <rounds>: the libraries alone, on Qt's offscreen platform. CPU time in microseconds per process
// of a snapshot as the program takes it, and of updating model, proxy and view with it, as a flat list and as
// a complete tree; one line per round.
#include "listview.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ListView flat;
    ListView tree;
    tree.list.setFlat(false);
    tree.list.setComplete(true);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 1;
    for (int i = -2; i < rounds; ++i) { // warm-up rounds fill the list
        ProcModel::Snapshot snapshot;
        const double read = cpuTime([&] { snapshot = ListView::read(); });
        const double asList = cpuTime([&] { flat.show(snapshot); });
        const double asTree = cpuTime([&] { tree.show(snapshot); });
        if (i >= 0) {
            const double perProcess = 1e3 / static_cast<double>(snapshot.size());
            std::printf("%.2f %.2f %.2f\n", read * perProcess, asList * perProcess, asTree * perProcess);
        }
        gtop_wrappers::ProcessFiller::instance()->giveBack(std::move(snapshot));
    }
    return 0;
}
