// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_CONTROL_H
#define TESTS_PROCESS_CONTROL_H

#include "tests/process/support/child.h"
#include "tests/process/support/modaldriver.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

const uid_t daemonUser = 1;
const uid_t nobodyUser = 65534;

/// The rights of nobody as long as it lives; needs root.
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

/// A pid that was a child's and is nobody's now.
inline int endedPid()
{
    const Child child;
    return child.pid();
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
