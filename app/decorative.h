// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DECORATIVE_H
#define APP_DECORATIVE_H

class QWidget;

/// Hides a picture or a spacer that says nothing from assistive technology, which would announce it.
void hideFromAssistiveTechnology(QWidget *picture);

#endif
