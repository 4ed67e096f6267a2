// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startpage.h"

#include <QObject>

namespace {

/// The two ways to name a page on the command line.
struct PageArgument
{
    const char *name;
    const char *number;
};

/// In page order.
constexpr PageArgument pageArguments[] = {
    {"general", "-tab=1"},
    {"processes", "-tab=2"},
    {"filesystems", "-tab=3"},
    {"network", "-tab=4"},
};

} // namespace

int startPageOf(const QString &argument)
{
    int page = 0;
    for (const PageArgument &known : pageArguments) {
        if (argument == QLatin1String(known.name) || argument == QLatin1String(known.number)) {
            return page;
        }
        ++page;
    }
    return -1;
}

QStringList usageText()
{
    const QString alternative = QObject::tr("or");
    return {
        QObject::tr("Usage: zarn-system-monitor [tab]"),
        QObject::tr("tab can be specified as:"),
        QStringLiteral("  general ") + alternative + QStringLiteral(" -tab=1") +
            QObject::tr(" - first page with general system info"),
        QStringLiteral("  processes ") + alternative + QStringLiteral(" -tab=2") +
            QObject::tr(" - second page with process list"),
        QStringLiteral("  filesystems ") + alternative + QStringLiteral(" -tab=3") +
            QObject::tr(" - third page with filesystem list"),
        QStringLiteral("  network ") + alternative + QStringLiteral(" -tab=4") +
            QObject::tr(" - fourth page with network info"),
    };
}

void printUsage(std::ostream &out)
{
    const QStringList lines = usageText();
    for (const QString &line : lines) {
        out << line.toLocal8Bit().constData() << std::endl;
    }
}

int startPageFromArguments(int argc, const char *const *argv, std::ostream &out)
{
    if (argc <= 1) {
        return -1;
    }
    const int page = startPageOf(QString::fromLocal8Bit(argv[1]));
    // Intentional: an unknown argument prints the usage text, but the program starts all the same.
    if (page < 0) {
        printUsage(out);
    }
    return page;
}
