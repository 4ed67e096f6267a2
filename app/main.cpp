// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startpage.h"
#include "app/translations.h"
#include "app/updater.h"
#include "integration/zarninit.h"
#include "process/gtop_wrappers/filler.h"

#include <QApplication>
#include <QIcon>

#include <malloc.h>

#include <iostream>

namespace {

constexpr char description[] = QT_TRANSLATE_NOOP(
    "ZarnHelpMenu",
    "System monitor allows you to watch general system info, processes info, mount points and network stat.");

// The program paints with the raster engine; loading OpenGL would only cost it memory and time.
void doWithoutOpenGl()
{
    constexpr char variable[] = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(variable)) {
        qputenv(variable, "none");
    }
}

// What a refresh takes in one piece goes back to the system with it, instead of staying with the process for
// good, as it would once the C library has seen how large the pieces are.
void giveLargeBlocksBack()
{
    constexpr int largeBlock = 256 * 1024;
    constexpr int keptForTheNextRefresh = 16 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, keptForTheNextRefresh);
}

} // namespace

int main(int argc, char **argv)
{
    giveLargeBlocksBack();
    doWithoutOpenGl();
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("utilities-system-monitor")));
    QCoreApplication::setOrganizationName(QStringLiteral("Telmorra"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("telmorra.example"));
    QCoreApplication::setApplicationName(QStringLiteral("zarn-system-monitor"));
    // Under Wayland a task bar finds the menu entry, and with it the icon, by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("zarn-system-monitor"));
    installTranslations(&application);
    zarnInit("1.2.2", description);
    const int startPage = startPageFromArguments(argc, argv, std::cout);
    gtop_wrappers::ProcessFiller::instance();
    Updater updater(startPage);
    return QApplication::exec();
}
