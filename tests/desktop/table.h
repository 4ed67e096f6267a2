// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_TABLE_H
#define TESTS_DESKTOP_TABLE_H

#include <QJsonObject>
#include <QRect>
#include <QStringList>
#include <QVector>

/// The screen rectangle that the probe wrote as [x, y, width, height]; an empty one for anything else.
QRect rectOf(const QJsonValue &value);

/// A snapshot of an item view of the running program.
struct Table
{
    struct Header
    {
        QString text;
        int section = -1; ///< the model's column
        bool visible = false;
        QRect rect;
        int contentWidth = 0; ///< the width that fits the header and the cells
    };

    struct Row
    {
        int depth = 0;        ///< 0 for rows at the top
        QStringList texts;    ///< by section, including hidden columns
        QVector<QRect> rects; ///< by section, empty for cells off the screen; none if the whole row is
        bool expanded = false;
        bool selected = false;
        bool current = false;
    };

    explicit Table(const QJsonObject &json);

    QStringList visibleHeaders() const;       ///< in visual order
    int section(const QString &header) const; ///< -1 if there is none
    QRect headerRect(const QString &header) const;
    /// Index of the first row with this text in this column; -1 if there is none.
    int find(const QString &header, const QString &text) const;
    QString text(int row, const QString &header) const;
    QStringList column(const QString &header) const; ///< from the first row to the last
    int parentOf(int row) const;                     ///< negative for rows at the top
    QRect rowRect(int row) const; ///< a cell of the row that is on the screen; empty if none is

    QVector<Header> headers; ///< in visual order
    QVector<Row> rows;       ///< in visual order, children after their parent
    QRect viewport;
    int sortSection = -1;
    bool sortDescending = false;
};

#endif
