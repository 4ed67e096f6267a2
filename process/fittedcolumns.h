// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_FITTEDCOLUMNS_H
#define PROCESS_FITTEDCOLUMNS_H

#include <QObject>

#include <functional>
#include <vector>

class QTreeView;

/// The widths of a list's columns. The last one takes what is left of the view, but is never narrower than it
/// was fitted.
class FittedColumns : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the view.
    explicit FittedColumns(QTreeView *view);

    /// Makes no column wider than some characters, however long its texts. `contents` gives the width that
    /// the cells of a column need; all from `widest` on are the same.
    void fit(const std::function<int(int column, int widest)> &contents);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTreeView *list;
    std::vector<int> widths; ///< fitted
};

#endif
