// SPDX-License-Identifier: GPL-3.0-or-later
// bench_list <rounds>: the libraries alone, on Qt's offscreen platform. CPU time in microseconds per process
// of a snapshot as the program takes it, and of updating model, proxy and view with it; one line per round.
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QApplication>

#include <glibtop.h>
#include <glibtop/open.h>
#include <time.h>

#include <cstdio>
#include <cstdlib>

using gtop_wrappers::ProcessFiller;

namespace {

double cpuMicroseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    glibtop_init();
    auto *filler = ProcessFiller::instance();
    filler->setEagerColumns(std::vector<bool>(filler->size(), false));
    QTreeView view;
    ProxyProcModel list(nullptr);
    list.setView(&view);
    view.setUniformRowHeights(true); // as in the program's window
    view.setSortingEnabled(true);
    view.sortByColumn(0, Qt::AscendingOrder);
    view.resize(800, 600);
    view.show();
    unsigned long total = 0;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 1;
    for (int i = -2; i < rounds; ++i) { // warm-up rounds fill the list
        const double start = cpuMicroseconds();
        const ProcModel::Snapshot snapshot = filler->getProcesses(gtop_wrappers::AllProcesses);
        const double read = cpuMicroseconds();
        list.setTotalCpuTime(total += 200);
        list.refresh(snapshot);
        QApplication::processEvents();
        const double shown = cpuMicroseconds();
        if (i >= 0) {
            const auto count = static_cast<double>(snapshot.size());
            std::printf("%.2f %.2f\n", (read - start) / count, (shown - read) / count);
        }
    }
    view.setModel(nullptr);
    return 0;
}
