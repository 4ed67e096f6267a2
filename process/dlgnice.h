// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_DLGNICE_H
#define PROCESS_DLGNICE_H

#include <QObject>
#include <QString>

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
    /// `dialogParent` becomes the parent widget of the dialog; may be null. The dialog's title names
    /// `processLabel`, unless it is empty. This object has no QObject parent.
    explicit DlgNice(QWidget *dialogParent, const QString &processLabel = QString());

    /// Runs the modal dialog. Returns the chosen nice value, -20 to 20 (the kernel clamps 20 to 19), or
    /// `current` unless the user presses OK.
    int askPriority(int current);

    /// Description of the priority level that a nice value belongs to.
    static QString levelName(int value);

public Q_SLOTS:
    /// Shows the value and its level, and enables OK. No-op while no dialog is shown.
    void update(int value);

private:
    QSlider *makeSlider(int current);
    QGridLayout *makeGrid(QSlider *slider);

    QWidget *parentWidget;
    QString subject;
    // The next three belong to the dialog being shown. Afterwards the labels dangle and the button is null,
    // which is what update() checks.
    QLabel *valueLabel;
    QLabel *descriptionLabel;
    QPushButton *okButton;
};

#endif
