// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/quitsignals.h"
#include "app/savedends.h"
#include "app/startmemory.h"
#include "app/startpage.h"
#include "app/systemfiles.h"
#include "app/translations.h"
#include "app/updater.h"
#include "integration/zarninit.h"
#include "process/gtop_wrappers/filler.h"

#include <QApplication>
#include <QIcon>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>

namespace {

constexpr char description[] = QT_TRANSLATE_NOOP(
    "ZarnHelpMenu",
    "System monitor allows you to watch general system info, processes info, mount points and network stat.");

/// Opens those of the descriptors 0 to 2 that are closed, on /dev/null. Otherwise the connection to the
/// display would get one of them, and each message of a library would be written into it.
void openStandardDescriptors()
{
    int descriptor = open("/dev/null", O_RDWR);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    close(descriptor);
}

/// A message must not end the program because nobody reads its output any more.
void ignoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN);
}

/// The program paints with the raster engine; loading OpenGL would only cost memory and time.
void disableOpenGl()
{
    constexpr char variable[] = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(variable)) {
        qputenv(variable, "none");
    }
}

/// Makes malloc() return large blocks to the system when they are freed. By default the C library raises its
/// thresholds to the size of freed blocks, so the memory of a refresh would stay with the process.
void returnLargeBlocksToSystem()
{
    constexpr int largeBlock = 256 * 1024;
    constexpr int keptForTheNextRefresh = 16 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, keptForTheNextRefresh);
}

} // namespace

int main(int argc, char **argv)
{
    openStandardDescriptors();
    ignoreBrokenPipes();
    returnLargeBlocksToSystem();
    disableOpenGl();
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("utilities-system-monitor")));
    QCoreApplication::setOrganizationName(QStringLiteral("Telmorra"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("telmorra.example"));
    QCoreApplication::setApplicationName(QStringLiteral("zarn-system-monitor"));
    // Under Wayland a task bar finds the desktop entry, and through it the icon, by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("zarn-system-monitor"));
    installTranslations(&application);
    zarnInit(ZSM_VERSION, description);
    const int startPage = startPageFromArguments(argc, argv, std::cout);
    if (const char *missing = fileMissingForStart()) {
        reportMissingFile(missing);
        return EXIT_FAILURE;
    }
    gtop_wrappers::ProcessFiller::instance();
    Updater updater(startPage);
    const SavedEnds savedEnds(&updater);
    quitOnSignals(&application);
    const StartMemory startMemory;
    return QApplication::exec();
}
