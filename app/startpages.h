// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_STARTPAGES_H
#define APP_STARTPAGES_H

#include <QObject>

/// Takes the read-only pages of the program and its libraries out of this process's memory. They stay in the
/// system's cache, and those that are used again come back one by one. For the end of the start: it touches
/// symbol tables, relocations and set-up code that nothing needs afterwards, and with each page the kernel
/// maps the fifteen around it.
void releaseReadOnlyPages();

/// Does so once, two seconds after its creation: by then the page has been painted and followed up, so what
/// its refreshes use is not released in vain.
class StartPages : public QObject
{
    Q_OBJECT

public:
    StartPages();

private Q_SLOTS:
    void release() { releaseReadOnlyPages(); }
};

#endif
