// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PAINTEDROWS_H
#define PROCESS_PAINTEDROWS_H

#include <QObject>
#include <QRect>
#include <QRegion>
#include <QString>

#include <functional>
#include <map>
#include <vector>

class ProxyProcModel;
class QModelIndex;
class QPainter;
class QStyleOptionViewItem;
class QTreeView;

/// What the rows in view were last painted with, so that a refresh repaints only what looks different after
/// it.
///
/// Qt repaints what anything else changes, be it the mouse, the keyboard or other colors; that is noted here
/// when it is painted. So only those things count here that a refresh changes. In doubt everything is
/// repainted.
class PaintedRows : public QObject
{
    Q_OBJECT

public:
    using TextOf = std::function<QString(const QModelIndex &)>;

    /// Becomes a child of the view, which shows this model.
    PaintedRows(const ProxyProcModel *model, QTreeView *view, TextOf textOfCell);

    /// Makes a change to the rows, after which the view is laid out. Of the list and of the header only what
    /// has changed is repainted.
    void repaintChanges(const std::function<void()> &change);

    /// Whether any of the cell is to be painted: Qt paints whole rows for each of their cells.
    bool isWanted(const QPainter &painter, const QStyleOptionViewItem &cell) const;
    /// The cell is painted with its text.
    void note(const QPainter &painter, const QStyleOptionViewItem &cell, const QModelIndex &index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Numbers = std::vector<int>;
    struct Cell
    {
        QRect rect; ///< null: not in view
        QString text;
    };
    struct Row
    {
        Numbers look;            ///< empty: to be repainted by each refresh
        std::vector<Cell> cells; ///< by column
    };

    void repairHeader(const QRegion &region);
    bool isBeingPainted(const QRect &rect) const;
    Row &noteRow(const QStyleOptionViewItem &cell, const QModelIndex &index);
    QRect rowRect(const QRect &cell) const;
    Numbers frameLook() const;
    Numbers rowLook(const QModelIndex &cell, int height) const;
    QRegion changedRegion();
    QRegion changedCells(const Row &row, const QModelIndex &index, const QRect &rect) const;

    const ProxyProcModel *proxy;
    QTreeView *list;
    TextOf textOf;
    std::map<int, Row> rows;        ///< by their upper edge
    Numbers frame;                  ///< what decides where they are
    bool isKnown = false;           ///< all that is in view
    bool isRepairingHeader = false; ///< all of it is painted next, if it can be
    // The current paint event.
    QRegion painted;
    bool isNoted = false;
    const Row *notedRow = nullptr;
};

#endif
