// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_CONTROL_H
#define TESTS_PROCESS_CONTROL_H

#include "tests/process/support/child.h"
#include "tests/support/modal.h"

#include <QSlider>

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

/// Moves the slider of the priority dialog and presses OK.
inline ModalDriver::Handler choosing(int nice, int *shown = nullptr)
{
    return [nice, shown](QWidget *dialog) {
        auto *slider = dialog->findChild<QSlider *>();
        if (shown) {
            *shown = slider->value();
        }
        slider->setValue(slider->value() == 20 ? -20 : 20);
        slider->setValue(nice);
        for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
            if (button->isDefault()) {
                button->click();
            }
        }
    };
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
