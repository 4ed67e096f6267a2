// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCESSDELEGATE_H
#define PROCESS_PROCESSDELEGATE_H

#include "process/celltexts.h"

#include <QHash>
#include <QPointer>
#include <QStyledItemDelegate>

class PaintedRows;

/// Measures, aligns and draws the cells of the process list.
class ProcessDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Between these, equal texts are measured only once: most of the time that a long list takes to appear
    /// goes into this. All cells are then in one column and one font, and have nothing but text.
    void beginColumn() { isFitting = true; }
    void endColumn();
    /// To be told what is painted; not owned, may be null.
    void setPaintedRows(PaintedRows *rows);
    /// What a cell of the process list shows.
    QString textOf(const QModelIndex &index, const QLocale &locale) const;
    /// Forgets texts that the last refresh no longer showed.
    void startRefresh() { texts.startRefresh(); }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Gives the same picture as the style, which lays out every text twice each time.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// The tool tip of a cell that is too narrow shows all of its text.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    /// Aligns numbers right, and dims rows that are shown only because of a descendant.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QString textOf(const QVariant &value, Qt::Alignment alignment, const QLocale &locale) const;

    bool isFitting = false;
    mutable QHash<QString, QSize> sizes; ///< by text
    mutable CellTexts texts;
    QPointer<PaintedRows> painted;
};

#endif
