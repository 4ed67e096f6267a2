// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_PROCESS_FIRSTCELLONLY_H
#define TESTS_PROCESS_FIRSTCELLONLY_H

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>

/// Shows the rows of a parent below its first cell only. The process model must have them below every cell,
/// which is the one thing that the model tester objects to.
class FirstCellOnly : public QIdentityProxyModel
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? 0 : QIdentityProxyModel::rowCount(parent);
    }
};

/// Has the model tester watch a model as long as `owner` lives.
inline void testFirstCells(QAbstractItemModel *model, QObject *owner)
{
    auto *firstCellOnly = new FirstCellOnly;
    firstCellOnly->setParent(owner);
    firstCellOnly->setSourceModel(model);
    new QAbstractItemModelTester(firstCellOnly, QAbstractItemModelTester::FailureReportingMode::Fatal, owner);
}

#endif
