// SPDX-License-Identifier: GPL-3.0-or-later
// bench_filter <rounds>: the filter of the process list, on Qt's offscreen platform. One line per round, CPU
// time: of the slowest of some keystrokes until their result is painted, in ms; of a refresh without and with
// a filter that lets nearly everything pass, in µs per process; of reading all command lines, in ms.
#include "listview.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ListView shown;
    ProxyProcModel &list = shown.list;
    std::size_t count = 1;
    const auto refresh = [&] {
        const ProcModel::Snapshot snapshot = ListView::read();
        shown.show(snapshot);
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
    return 0;
}
