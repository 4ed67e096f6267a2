// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_SELECTABLEVALUES_H
#define APP_SELECTABLEVALUES_H

#include <QObject>

class QLabel;

/// Lets the user select the text of labels by mouse and keyboard and copy it. A label that has the focus is
/// selectable; others stay plain, since a selectable label costs as much as a small text editor.
class SelectableValues : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Makes a label selectable. `policy` tells how it gets the focus. A label that gets it by the Tab key is
    /// selected as a whole.
    void add(QLabel *label, Qt::FocusPolicy policy);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif
