// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_CONTROL_H
#define TESTS_PROCESS_CONTROL_H

#include "tests/process/support/child.h"
#include "tests/support/modal.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

const uid_t daemonUser = 1;
const uid_t nobodyUser = 65534;

/// Drops the rights of root for its lifetime.
class WithoutRights
{
public:
    WithoutRights() : dropped(seteuid(nobodyUser) == 0) {}
    ~WithoutRights()
    {
        if (dropped && seteuid(0) == 0) {
            prctl(PR_SET_DUMPABLE, 1); // lost with the change; the leak check needs it
        }
    }

    const bool dropped;
};

inline int niceOf(pid_t pid)
{
    return getpriority(PRIO_PROCESS, static_cast<id_t>(pid));
}

inline void verifyErrorBox(const SeenBox &seen, const char *text)
{
    QCOMPARE(seen.title, QStringLiteral("Error"));
    QCOMPARE(seen.text, QLatin1String(text));
    QCOMPARE(seen.icon, QMessageBox::Warning);
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(!seen.hasParent);
}

#endif
