// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "app/storedsettings.h"

#include <QApplication>
#include <QSplitter>

namespace {

constexpr int width = 500;

/// A splitter like that of the File systems page, with the application that it needs. Both live until the
/// end.
QSplitter *makeSplitter()
{
    static int count = 1;
    static char name[] = "splitterstate";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(count, arguments);
    auto *splitter = new QSplitter;
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    splitter->resize(width, 100);
    splitter->show();
    return splitter;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static auto *splitter = makeSplitter();
    const QByteArray state = bytesOf(data, size);
    if (isSplitterState(state)) {
        const int handle = splitter->handleWidth();
        splitter->restoreState(state);
        HOLDS(splitter->orientation() == Qt::Horizontal);
        HOLDS(splitter->minimumSizeHint().width() < width);
        const QList<int> sizes = splitter->sizes();
        HOLDS(sizes.size() == 2 && sizes[0] >= 0 && sizes[1] >= 0);
        HOLDS(sizes[0] + sizes[1] <= width);
        splitter->setHandleWidth(handle);
    }
    return 0;
}
