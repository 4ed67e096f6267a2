// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef RESOURCES_CPUROWS_H
#define RESOURCES_CPUROWS_H

#include "resources/cpuload.h"

#include <QString>

#include <vector>

class QGridLayout;

// The CPU rows of the General page. Each grid layout must already belong to a widget.

/// Adds one row per CPU, from row 7 on: caption in column 1, CPU model in column 3.
void addCpuModelRows(QGridLayout *glGeneral, int cpuCount, const QString &model);

/// Adds one row per record, from row 3 on, and stores its widgets in the record: caption, percentage and
/// gauge in columns 1 to 3.
void createCpuRows(QGridLayout *glState, std::vector<CpuRec> &records);

/// Shows each record's load in the row that createCpuRows() added for it.
void showCpuLoad(const std::vector<CpuRec> &records);

#endif
