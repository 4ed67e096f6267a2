// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_LISTNOTE_H
#define APP_LISTNOTE_H

#include <QLabel>

class QAbstractItemView;

/// A text in the middle of an empty list. Hidden at first.
class ListNote : public QLabel
{
    Q_OBJECT

public:
    /// Becomes a child of the view, not of its viewport, which moves its children when it scrolls.
    ListNote(const QString &text, QAbstractItemView *view);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cover(const QWidget *viewport);
};

#endif
