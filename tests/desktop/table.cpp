// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/table.h"

#include <QJsonArray>

QRect rectOf(const QJsonValue &value)
{
    const QJsonArray numbers = value.toArray();
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(), numbers.at(3).toInt()};
}

Table::Table(const QJsonObject &json)
    : viewport(rectOf(json.value("viewport"))), sortSection(json.value("sortSection").toInt(-1)),
      sortDescending(json.value("sortDescending").toBool())
{
    const QJsonArray jsonHeaders = json.value("headers").toArray();
    for (const QJsonValue &header : jsonHeaders) {
        headers.append({header["text"].toString(), header["section"].toInt(), header["visible"].toBool(),
                        rectOf(header["rect"]), header["contentWidth"].toInt()});
    }
    const QJsonArray jsonRows = json.value("rows").toArray();
    for (const QJsonValue &jsonRow : jsonRows) {
        Row row;
        row.depth = jsonRow["depth"].toInt();
        row.texts = jsonRow["texts"].toVariant().toStringList();
        const QJsonArray rects = jsonRow["rects"].toArray();
        for (const QJsonValue &rect : rects) {
            row.rects.append(rectOf(rect));
        }
        row.expanded = jsonRow["expanded"].toBool();
        row.selected = jsonRow["selected"].toBool();
        row.current = jsonRow["current"].toBool();
        rows.append(row);
    }
}

QStringList Table::visibleHeaders() const
{
    QStringList texts;
    for (const Header &header : headers) {
        if (header.visible) {
            texts.append(header.text);
        }
    }
    return texts;
}

int Table::section(const QString &header) const
{
    for (const Header &each : headers) {
        if (each.text == header) {
            return each.section;
        }
    }
    return -1;
}

QRect Table::headerRect(const QString &header) const
{
    for (const Header &each : headers) {
        if (each.text == header && each.visible) {
            return each.rect;
        }
    }
    return {};
}

int Table::find(const QString &header, const QString &text) const
{
    return column(header).indexOf(text);
}

QString Table::text(int row, const QString &header) const
{
    return rows.value(row).texts.value(section(header));
}

QStringList Table::column(const QString &header) const
{
    const int index = section(header);
    QStringList texts;
    for (const Row &row : rows) {
        texts.append(row.texts.value(index));
    }
    return texts;
}

int Table::parentOf(int row) const
{
    int parent = row - 1;
    while (parent >= 0 && rows.at(parent).depth >= rows.at(row).depth) {
        --parent;
    }
    return parent;
}

QRect Table::rowRect(int row) const
{
    const QVector<QRect> rects = rows.value(row).rects;
    for (const QRect &rect : rects) {
        if (!rect.isEmpty()) {
            return rect;
        }
    }
    return {};
}
