// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/dlgnice.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

DlgNice::DlgNice(QWidget *dialogParent, const QString &processLabel)
    : parentWidget(dialogParent), subject(processLabel), valueLabel(nullptr), descriptionLabel(nullptr),
      okButton(nullptr)
{}

int DlgNice::askPriority(int current)
{
    QDialog dialog(parentWidget);
    const QString title = tr("Change priority");
    dialog.setWindowTitle(subject.isEmpty() ? title : title + QStringLiteral(" - ") + subject);
    dialog.resize(400, 100);
    auto *layout = new QVBoxLayout(&dialog);
    QSlider *slider = makeSlider(current);
    layout->addLayout(makeGrid(slider));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, SIGNAL(accepted()), &dialog, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), &dialog, SLOT(reject()));
    layout->addWidget(buttons);

    okButton = buttons->button(QDialogButtonBox::Ok);
    update(current);
    okButton->setEnabled(false); // until the slider has been moved

    const bool accepted = dialog.exec() != QDialog::Rejected;
    okButton = nullptr;
    return accepted ? slider->value() : current;
}

QSlider *DlgNice::makeSlider(int current)
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setMinimum(-20);
    slider->setMaximum(20);
    slider->setValue(current);
    slider->setTickInterval(1);
    slider->setTracking(true);
    slider->setSliderDown(true); // Intentional: required, although no mouse button holds it.
    slider->setPageStep(1);
    connect(slider, SIGNAL(valueChanged(int)), this, SLOT(update(int)));
    return slider;
}

QGridLayout *DlgNice::makeGrid(QSlider *slider)
{
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(10);
    valueLabel = new QLabel;
    grid->addWidget(valueLabel, 0, 1, Qt::AlignHCenter | Qt::AlignBottom);
    grid->addWidget(slider, 1, 1);
    auto *caption = new QLabel(tr("Priority"));
    caption->setBuddy(slider); // also names it for assistive technology
    grid->addWidget(caption, 1, 0);
    descriptionLabel = new QLabel;
    grid->addWidget(descriptionLabel, 2, 1, Qt::AlignHCenter | Qt::AlignTop);
    return grid;
}

void DlgNice::update(int value)
{
    if (!okButton) {
        return;
    }
    valueLabel->setText(QString::number(value, 10));
    descriptionLabel->setText(levelName(value));
    okButton->setEnabled(true);
}

QString DlgNice::levelName(int value)
{
    if (value < -10) {
        return tr("Very high priority");
    }
    if (value < 0) {
        return tr("High priority");
    }
    if (value == 0) {
        return tr("Normal priority");
    }
    return value <= 10 ? tr("Low priority") : tr("Very low priority");
}
