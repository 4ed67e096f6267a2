// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SOAK_SUPPORT_H
#define TESTS_SOAK_SUPPORT_H

#include "process/proxyprocmodel.h"
#include "tests/app/fixture.h"

#include <QAction>
#include <QDir>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

/// The size of a run: `usual`, or what the environment variable says.
inline int runSize(const char *variable, int usual)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : usual;
}

/// Refreshes whatever page is shown, due or not.
inline void refresh(Fixture &fixture)
{
    QMetaObject::invokeMethod(&fixture.updater(), "update", Q_ARG(bool, true));
}

inline ProxyProcModel *processList()
{
    return qobject_cast<ProxyProcModel *>(Fixture::find<QTreeView>("treeView")->model());
}

inline int openDescriptors()
{
    const QDir open(QStringLiteral("/proc/self/fd"));
    return static_cast<int>(open.entryList(QDir::Files | QDir::System).size());
}

/// Collects the warnings and errors logged during its lifetime and forwards anything less. One at a time.
class LoggedMessages
{
public:
    LoggedMessages()
    {
        messages.clear();
        previous = qInstallMessageHandler(keep);
    }
    ~LoggedMessages() { qInstallMessageHandler(previous); }
    LoggedMessages(const LoggedMessages &) = delete;
    LoggedMessages &operator=(const LoggedMessages &) = delete;

    QString text() const { return messages.join(QLatin1Char('\n')); }

private:
    static inline QStringList messages;
    static inline QtMessageHandler previous = nullptr;

    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type == QtDebugMsg || type == QtInfoMsg) {
            previous(type, context, message);
        } else if (!message.startsWith(QLatin1String("This plugin"))) { // logged by the offscreen platform
            messages << message;
        }
    }
};

/// What this process holds.
struct Resources
{
    int descriptors;
    long allocated; ///< bytes of the heap; 0 if the sanitizer replaces the allocator

    static Resources now() { return {openDescriptors(), static_cast<long>(mallinfo2().uordblks)}; }
    static long peakKiB()
    {
        rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    }
    QString text() const
    {
        return QStringLiteral("%1 descriptors, %2 bytes allocated").arg(descriptors).arg(allocated);
    }
};

/// What this process holds when every page shows the same made-up machine: the processes of the real one, and
/// with them the rows of the list, differ between two measurements. Afterwards the real machine is back.
inline Resources settledResources(Fixture &fixture)
{
    standin::machine() = Fixture::smallMachine();
    for (int page = 3; page >= 0; --page) {
        Fixture::choosePage(page);
        refresh(fixture);
        QCoreApplication::processEvents();
    }
    const Resources now = Resources::now();
    standin::machine() = {};
    return now;
}

#endif
