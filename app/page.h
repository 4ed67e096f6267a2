// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_PAGE_H
#define APP_PAGE_H

/// Pages in the order of the tabs. The start page, the tabs and the update intervals share this numbering.
enum Page { GeneralPage = 0, ProcessesPage = 1, FileSystemsPage = 2, NetworkPage = 3 };

#endif
