// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_FILTERLINE_H
#define APP_FILTERLINE_H

#include <QWidget>

class QLabel;
class QLineEdit;

/// The line below the process list in which the user types what to look for, with the number of processes
/// found at its end.
class FilterLine : public QWidget
{
    Q_OBJECT

public:
    explicit FilterLine(QWidget *parent = nullptr);

    /// The field that takes the keys.
    QLineEdit *field() const { return edit; }
    /// Appends the text as if it were typed.
    void type(const QString &text);
    /// isComplete: false while command lines are still read, so that more may be found.
    void showCount(int found, int all, bool isComplete);

Q_SIGNALS:
    void textChanged(const QString &text);
    void closeRequested();

private:
    QLineEdit *edit;
    QLabel *count;
};

#endif
