// SPDX-License-Identifier: GPL-3.0-or-later
// bench_filter <rounds>: the filter of the process list, on Qt's offscreen platform. One line per round, CPU
// time: of the slowest of some keystrokes until their result is painted, in ms; of a refresh without and with
// a filter that lets nearly everything pass, in µs per process; of reading all command lines, in ms.
#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QApplication>

#include <glibtop.h>
#include <glibtop/open.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

using gtop_wrappers::ProcessFiller;

namespace {

/// CPU time in milliseconds that the steps take, with the painting that they cause.
double cpuTime(const std::function<void()> &steps)
{
    timespec before = {};
    timespec after = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &before);
    steps();
    QApplication::processEvents();
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &after);
    return static_cast<double>(after.tv_sec - before.tv_sec) * 1e3 +
           static_cast<double>(after.tv_nsec - before.tv_nsec) / 1e6;
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
    std::size_t count = 1;
    const auto refresh = [&] {
        const ProcModel::Snapshot snapshot = filler->getProcesses(gtop_wrappers::AllProcesses);
        list.setTotalCpuTime(total += 200);
        list.refresh(snapshot);
        count = std::max<std::size_t>(snapshot.size(), 1);
    };
    for (int i = 0; i < 2; ++i) { // fills the list
        cpuTime(refresh);
    }
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 1;
    for (int i = 0; i < rounds; ++i) {
        const double closed = cpuTime(refresh);
        double keystroke = 0.0;
        const auto type = [&](const char *text) {
            keystroke = std::max(keystroke, cpuTime([&] { list.setFilter(QLatin1String(text)); }));
        };
        for (const char *text : {"b", "be", "bex", "be", "b"}) {
            type(text);
        }
        const double reading = cpuTime([&] {
            while (!list.isFilterComplete()) {
                list.readForFilter(10);
            }
        });
        for (const char *text : {"be", "bex", "", "b"}) {
            type(text);
        }
        const double open = cpuTime(refresh);
        type("");
        list.closeFilter();
        const double perProcess = 1e3 / static_cast<double>(count);
        std::printf("%.2f %.2f %.2f %.2f\n", keystroke, closed * perProcess, open * perProcess, reading);
    }
    view.setModel(nullptr);
    return 0;
}
