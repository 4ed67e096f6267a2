// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/savedends.h"

#include "app/updater.h"

#include <QGuiApplication>
#include <QSemaphore>
#include <QThread>

#include <cstdlib>
#include <memory>
#include <utility>

namespace {

constexpr int longestWait = 5000; ///< milliseconds, for the main thread

SavedEnds *present = nullptr;
QtMessageHandler nextHandler = nullptr;

/// Qt reads from the compositor in threads of its own, but the window belongs to the main thread.
void saveInMainThread()
{
    auto *application = QCoreApplication::instance();
    if (!application || QThread::currentThread() == application->thread()) {
        SavedEnds::saveLastTime();
        return;
    }
    const auto saved = std::make_shared<QSemaphore>();
    const auto save = [saved] {
        SavedEnds::saveLastTime();
        saved->release();
    };
    QMetaObject::invokeMethod(application, save, Qt::QueuedConnection);
    saved->tryAcquire(1, longestWait);
}

void saveBeforeDisplayIsLost(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("The Wayland connection "))) {
        saveInMainThread();
    }
    nextHandler(type, context, message);
}

} // namespace

SavedEnds::SavedEnds(Updater *controller) : updater(controller)
{
    present = this;
    nextHandler = qInstallMessageHandler(saveBeforeDisplayIsLost);
    // Registered after the settings have been loaded: what QSettings keeps is then destroyed after the call.
    std::atexit(saveLastTime);
    // Qt would close the window at the end of the session, even if another program then prevents that end.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    connect(qGuiApp, SIGNAL(commitDataRequest(QSessionManager &)), this, SLOT(save()));
}

SavedEnds::~SavedEnds()
{
    qInstallMessageHandler(nextHandler);
    present = nullptr;
}

void SavedEnds::saveLastTime()
{
    if (auto *ends = std::exchange(present, nullptr)) {
        ends->save();
    }
}

void SavedEnds::save()
{
    updater->saveSettings();
}
