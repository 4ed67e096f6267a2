// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_DECORATIVE_H
#define APP_DECORATIVE_H

class QWidget;

/// Hides a picture that says nothing from assistive technology, which would announce it as an image.
void hideFromAssistiveTechnology(QWidget *picture);

#endif
