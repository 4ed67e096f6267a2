// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of widgets that show the CPUs of the machine, in grid layouts that already sit in a widget.
#ifndef RESOURCES_CPUROWS_H
#define RESOURCES_CPUROWS_H

#include "resources/cpuload.h"

#include <QString>

#include <vector>

class QGridLayout;

// Adds a caption and the CPU model per CPU, from row 7 on, in columns 1 and 3.
void addCpuModelRows(QGridLayout *glGeneral, int cpuCount, const QString &model);

// Adds caption, percentage and gauge per record, from row 3 on, in columns 1 to 3, and stores them there.
void createCpuRows(QGridLayout *glState, std::vector<CpuRec> &records);

// Shows each record's load in its row, which createCpuRows() made.
void showCpuLoad(const std::vector<CpuRec> &records);

#endif
