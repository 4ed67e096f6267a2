// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_TABLE_H
#define TESTS_DESKTOP_TABLE_H

#include <QJsonObject>
#include <QRect>
#include <QStringList>
#include <QVector>

/// The screen rectangle that the probe wrote as [x, y, width, height]; an empty one for anything else.
QRect rectOf(const QJsonValue &value);

/// An item view of the running program, as it was when the probe was asked.
struct Table
{
    struct Header
    {
        QString text;
        int section = -1; ///< the model's column
        bool visible = false;
        QRect rect;
    };

    struct Row
    {
        int depth = 0;        ///< 0 for rows at the top
        QStringList texts;    ///< by section, hidden columns too
        QVector<QRect> rects; ///< by section, empty for what is not on the screen; none if the row isn't
        bool expanded = false;
        bool selected = false;
        bool current = false;
    };

    explicit Table(const QJsonObject &json);

    QStringList visibleHeaders() const;       ///< in their shown order
    int section(const QString &header) const; ///< -1 if there is none
    QRect headerRect(const QString &header) const;

    /// Index of the first row with this text in this column, from `from` on; -1 if there is none.
    int find(const QString &header, const QString &text, int from = 0) const;
    QString text(int row, const QString &header) const;
    QStringList column(const QString &header) const; ///< from the first row to the last
    int parentOf(int row) const;                     ///< -1 for rows at the top
    /// A cell of the row that is on the screen; empty if the row isn't.
    QRect rowRect(int row) const;

    QVector<Header> headers; ///< in their shown order
    QVector<Row> rows;       ///< in their shown order, children after their parent
    QRect viewport;
    int sortSection = -1;
    bool sortDescending = false;
};

#endif
