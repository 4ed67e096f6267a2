// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef BENCHMARKS_LISTVIEW_H
#define BENCHMARKS_LISTVIEW_H

#include "process/gtop_wrappers/filler.h"
#include "process/proxyprocmodel.h"

#include <QApplication>

#include <glibtop.h>
#include <glibtop/open.h>
#include <time.h>

#include <functional>

/// The process list in a view as in the program's window, with all processes of the machine.
struct ListView
{
    ListView() : list(nullptr), total(0)
    {
        glibtop_init();
        auto *filler = gtop_wrappers::ProcessFiller::instance();
        filler->setEagerColumns(std::vector<bool>(filler->size(), false));
        list.setView(&view);
        view.setUniformRowHeights(true);
        view.setSortingEnabled(true);
        view.sortByColumn(0, Qt::AscendingOrder);
        view.resize(800, 600);
        view.show();
    }
    ~ListView() { view.setModel(nullptr); }

    static ProcModel::Snapshot read()
    {
        return gtop_wrappers::ProcessFiller::instance()->getProcesses(gtop_wrappers::AllProcesses);
    }
    void show(const ProcModel::Snapshot &snapshot)
    {
        list.setTotalCpuTime(total += 200);
        list.refresh(snapshot);
    }

    QTreeView view;
    ProxyProcModel list;
    unsigned long total; ///< CPU time of the machine, made up
};

/// CPU time in milliseconds that the steps take, with the painting that they cause.
inline double cpuTime(const std::function<void()> &steps)
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

#endif
