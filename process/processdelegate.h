// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCESSDELEGATE_H
#define PROCESS_PROCESSDELEGATE_H

#include "process/celltexts.h"

#include <QHash>
#include <QPointer>
#include <QStyledItemDelegate>

#include <limits>
#include <optional>

class PaintedRows;

/// Measures, aligns and draws the cells of the process list.
class ProcessDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// What is known of a column before its cells are measured.
    struct Column
    {
        int widest = std::numeric_limits<int>::max(); ///< what is wider counts as this wide
        bool isNumeric = false;
        /// A number between two others, by what they are sorted by, never has more digits than both.
        bool isOrdered = false;
    };
    /// Between these, size hints are only good for the width of the column. Cells that cannot change it are
    /// neither measured nor, where that is known before, read: most of the time that a long list takes to
    /// appear goes into this. All cells are then in one column and one font, and have nothing but text.
    void beginColumn(const Column &column) { fit = Fit(column); }
    void endColumn() { fit.reset(); }
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

    /// What was measured of a column.
    struct Fit
    {
        explicit Fit(const Column &known) : column(known) {}
        bool isBetween(const QModelIndex &index);

        Column column;
        QHash<QString, QSize> sizes; ///< by text; of numbers, by their shape
        double least = std::numeric_limits<double>::infinity();
        double greatest = -std::numeric_limits<double>::infinity();
        bool isWidest = false; ///< one of them is as wide as the column gets
    };
    QSize measured(const QStyleOptionViewItem &option, const QModelIndex &index, int enough) const;
    QSize sizeToFit(const QStyleOptionViewItem &option, const QModelIndex &index) const;

    mutable std::optional<Fit> fit;
    mutable CellTexts texts;
    QPointer<PaintedRows> painted;
};

#endif
