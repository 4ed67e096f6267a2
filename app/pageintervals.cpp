// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pageintervals.h"

#include "app/settingskeys.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace {

constexpr int shortestInterval = 1;
constexpr int longestInterval = 5;

} // namespace

PageIntervals::PageIntervals(QWidget *parent, int pages)
    : QObject(parent), parentWidget(parent), valueLabel(nullptr), textLabel(nullptr), okButton(nullptr),
      intervals(static_cast<std::size_t>(pages), settings::defaultInterval)
{}

int PageIntervals::interval(int page) const
{
    return intervals.at(static_cast<std::size_t>(page));
}

void PageIntervals::setInterval(int page, int ticks)
{
    intervals.at(static_cast<std::size_t>(page)) = ticks;
}

bool PageIntervals::isDue(int page, int tick) const
{
    const int ticks = interval(page);
    return ticks <= 0 || tick % ticks == 0;
}

void PageIntervals::exec(int page, const QString &pageName)
{
    QDialog dialog(parentWidget);
    dialog.setWindowTitle(tr("Interval changing"));
    dialog.resize(400, 100);
    auto *layout = new QVBoxLayout(&dialog);
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(10);
    layout->addLayout(grid);

    addTexts(grid, pageName);
    const QSlider *slider = addSlider(grid, interval(page));
    addButtons(&dialog);
    showUnchanged(interval(page));

    if (dialog.exec() == QDialog::Accepted) {
        setInterval(page, slider->value());
    }
}

void PageIntervals::update(int value)
{
    valueLabel->setText(QString::number(value));
    okButton->setEnabled(true);
}

void PageIntervals::addTexts(QGridLayout *grid, const QString &pageName)
{
    textLabel = new QLabel(tr("You can set time interval (in secs)\n between updates for page ") + pageName);
    textLabel->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    grid->addWidget(textLabel, 0, 1);
    valueLabel = new QLabel;
    valueLabel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    grid->addWidget(valueLabel, 1, 1);
}

QSlider *PageIntervals::addSlider(QGridLayout *grid, int value)
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setMinimum(shortestInterval);
    slider->setMaximum(longestInterval);
    slider->setValue(value);
    slider->setTickInterval(1);
    slider->setTracking(true);
    slider->setPageStep(1);
    slider->setSliderDown(true);
    // Intentional: sliderMoved, not valueChanged, so that only dragging the slider enables OK.
    connect(slider, SIGNAL(sliderMoved(int)), this, SLOT(update(int)));
    grid->addWidget(slider, 2, 1);
    auto *caption = new QLabel(QObject::tr("Interval"));
    caption->setBuddy(slider);
    grid->addWidget(caption, 2, 0);
    return slider;
}

void PageIntervals::addButtons(QDialog *dialog)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, SIGNAL(accepted()), dialog, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), dialog, SLOT(reject()));
    dialog->layout()->addWidget(buttons);
    okButton = buttons->button(QDialogButtonBox::Ok);
}

void PageIntervals::showUnchanged(int value)
{
    update(value);
    okButton->setEnabled(false);
    valueLabel->setText(QString::number(value));
}
