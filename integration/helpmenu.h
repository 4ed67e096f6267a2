// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef ZARN_INTEGRATION_HELPMENU_H
#define ZARN_INTEGRATION_HELPMENU_H

#include <QMenu>

/// The Help menu of a program that called zarnInit(): "About" shows the name, version, description and
/// licence of the program, "About Qt" those of the toolkit.
class ZarnHelpMenu : public QMenu
{
    Q_OBJECT

public:
    /// `parent` owns the menu; its window becomes the parent of the About box. May be null.
    explicit ZarnHelpMenu(QWidget *parent);

private Q_SLOTS:
    /// Runs the modal About box. Its icon is that of the window, or the embedded logo if the window has none.
    void showAbout();
};

#endif
