// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_HELPMENU_H
#define ZARN_INTEGRATION_HELPMENU_H

#include <QMenu>

/// The Help menu of a program that called zarnInit(): "About" shows the program's name, version,
/// description and licence, "About Qt" the toolkit's.
class ZarnHelpMenu : public QMenu
{
    Q_OBJECT

public:
    /// `parent` owns the menu, and its window is the parent of the About box.
    explicit ZarnHelpMenu(QWidget *parent);

public Q_SLOTS:
    /// Shows the About box and returns when the user has closed it. Its icon is the window's, or the
    /// embedded logo where the desktop's icon theme has none.
    void showAbout();
};

#endif
