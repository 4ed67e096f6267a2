// SPDX-License-Identifier: GPL-3.0-or-later
#include "holds.h"

#include "app/storedsettings.h"

#include <QApplication>
#include <QSplitter>

namespace {

QApplication *makeApplication()
{
    static int count = 1;
    static char name[] = "splitterstate";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return new QApplication(count, arguments);
}

/// As on the File systems page.
class Splitter
{
public:
    Splitter()
    {
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.resize(width, 100);
        splitter.show();
    }

    void restore(const QByteArray &state)
    {
        const int handle = splitter.handleWidth();
        splitter.restoreState(state);
        HOLDS(splitter.orientation() == Qt::Horizontal);
        HOLDS(splitter.minimumSizeHint().width() < width);
        const QList<int> sizes = splitter.sizes();
        HOLDS(sizes.size() == 2 && sizes[0] >= 0 && sizes[1] >= 0);
        HOLDS(sizes[0] + sizes[1] <= width);
        splitter.setHandleWidth(handle);
    }

private:
    static constexpr int width = 500;
    QSplitter splitter;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QApplication *const application = makeApplication();
    static Splitter splitter;
    Q_UNUSED(application)
    const QByteArray state = bytesOf(data, size);
    if (isSplitterState(state)) {
        splitter.restore(state);
    }
    return 0;
}
