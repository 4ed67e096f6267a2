// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_DLGNICE_H
#define PROCESS_DLGNICE_H

#include <QObject>

class QGridLayout;
class QLabel;
class QPushButton;
class QSlider;
class QWidget;

/// Asks for a new nice value with a slider and a description of the chosen level.
class DlgNice : public QObject
{
    Q_OBJECT
public:
    /// `dialogParent` is the parent widget of the dialog; may be null.
    explicit DlgNice(QWidget *dialogParent);

    /// Shows the dialog, modal. The chosen value, -20 to 20 (the kernel takes 20 as 19); `current` unless
    /// the user pressed OK.
    int askPriority(int current);

    /// Name of the level of a nice value.
    static QString levelName(int value);

public Q_SLOTS:
    /// Shows the value and its level, and allows OK. Does nothing while no dialog is shown.
    void update(int value);

private:
    QSlider *makeSlider(int current);
    QGridLayout *makeGrid(QSlider *slider);

    QWidget *parentWidget;
    QLabel *valueLabel;
    QLabel *descriptionLabel;
    QPushButton *okButton;
};

#endif
