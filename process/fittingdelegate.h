// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_FITTINGDELEGATE_H
#define PROCESS_FITTINGDELEGATE_H

#include <QHash>
#include <QStyledItemDelegate>

/// Measures equal texts of a column only once while the column is fitted. Most of the time that a long list
/// takes to appear goes into this, and its cells have few different texts.
class FittingDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Between these, cells are in one column and one font, and have nothing but text.
    void beginColumn() { isFitting = true; }
    void endColumn();

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    /// Dims rows that are shown only because of a descendant.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    bool isFitting = false;
    mutable QHash<QString, QSize> sizes; ///< by text
};

#endif
