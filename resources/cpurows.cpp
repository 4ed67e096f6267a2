// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/cpurows.h"

#include "resources/qprog.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace {

/// The caption of CPU `number`, counted from 1; a machine's only CPU has no number.
QString loadCaption(int number, std::size_t count)
{
    return count == 1 ? QCoreApplication::translate("Updater", "CPU load")
                      : QCoreApplication::translate("Updater", "CPU core %1 load").arg(number);
}

} // namespace

void addCpuModelRows(QGridLayout *glGeneral, int cpuCount, const QString &model)
{
    const QString caption = QCoreApplication::translate("Updater", "CPU ");
    for (int i = 1; i <= cpuCount; ++i) {
        auto *number = new QLabel(caption + QString::number(i), glGeneral->parentWidget());
        glGeneral->addWidget(number, i + 6, 1);
        auto *value = new QLabel(model, glGeneral->parentWidget());
        value->setTextFormat(Qt::PlainText);
        glGeneral->addWidget(value, i + 6, 3);
        number->setBuddy(value);
    }
}

void createCpuRows(QGridLayout *glState, std::vector<CpuRec> &records)
{
    QWidget *page = glState->parentWidget();
    int number = 1;
    for (CpuRec &rec : records) {
        rec.gauge = new QProg(page);
        rec.gauge->setSizePolicy({QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::DefaultType});
        rec.captionLabel = new QLabel(loadCaption(number, records.size()), page);
        rec.percentLabel = new QLabel(page);
        glState->addWidget(rec.captionLabel, number + 2, 1);
        glState->addWidget(rec.percentLabel, number + 2, 2);
        glState->addWidget(rec.gauge, number + 2, 3);
        rec.captionLabel->setBuddy(rec.percentLabel);
        rec.gauge->setAccessibleName(rec.captionLabel->text());
        ++number;
    }
}

void showCpuLoad(const std::vector<CpuRec> &records)
{
    for (const CpuRec &rec : records) {
        const int load = cpuLoadPercent(rec.idleDelta, rec.totalDelta);
        rec.percentLabel->setText(cpuLoadText(load));
        rec.gauge->setValue(load);
    }
}
