// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/table.h"

#include <QJsonArray>

#include <algorithm>

QRect rectOf(const QJsonValue &value)
{
    const QJsonArray numbers = value.toArray();
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(), numbers.at(3).toInt()};
}

Table::Table(const QJsonObject &json)
    : viewport(rectOf(json.value(QLatin1String("viewport")))),
      sortSection(json.value(QLatin1String("sortSection")).toInt(-1)),
      sortDescending(json.value(QLatin1String("sortDescending")).toBool())
{
    const QJsonArray jsonHeaders = json.value(QLatin1String("headers")).toArray();
    for (const QJsonValue &header : jsonHeaders)
        headers.append({header[QLatin1String("text")].toString(), header[QLatin1String("section")].toInt(),
                        header[QLatin1String("visible")].toBool(), rectOf(header[QLatin1String("rect")])});
    const QJsonArray jsonRows = json.value(QLatin1String("rows")).toArray();
    for (const QJsonValue &jsonRow : jsonRows) {
        Row row;
        row.depth = jsonRow[QLatin1String("depth")].toInt();
        const QJsonArray texts = jsonRow[QLatin1String("texts")].toArray();
        for (const QJsonValue &text : texts)
            row.texts.append(text.toString());
        const QJsonArray rects = jsonRow[QLatin1String("rects")].toArray();
        for (const QJsonValue &rect : rects)
            row.rects.append(rectOf(rect));
        row.expanded = jsonRow[QLatin1String("expanded")].toBool();
        row.selected = jsonRow[QLatin1String("selected")].toBool();
        row.current = jsonRow[QLatin1String("current")].toBool();
        rows.append(row);
    }
}

QStringList Table::visibleHeaders() const
{
    QStringList texts;
    for (const Header &header : headers) {
        if (header.visible)
            texts.append(header.text);
    }
    return texts;
}

int Table::section(const QString &header) const
{
    const auto found =
        std::find_if(headers.begin(), headers.end(), [&](const Header &each) { return each.text == header; });
    return found == headers.end() ? -1 : found->section;
}

QRect Table::headerRect(const QString &header) const
{
    const auto found = std::find_if(headers.begin(), headers.end(),
                                    [&](const Header &each) { return each.text == header && each.visible; });
    return found == headers.end() ? QRect() : found->rect;
}

int Table::find(const QString &header, const QString &text, int from) const
{
    for (int row = from; row < rows.size(); ++row) {
        if (this->text(row, header) == text)
            return row;
    }
    return -1;
}

QString Table::text(int row, const QString &header) const
{
    return rows.value(row).texts.value(section(header));
}

QStringList Table::column(const QString &header) const
{
    QStringList texts;
    for (int row = 0; row < rows.size(); ++row)
        texts.append(text(row, header));
    return texts;
}

int Table::parentOf(int row) const
{
    int parent = row - 1;
    while (parent >= 0 && rows.at(parent).depth >= rows.at(row).depth)
        --parent;
    return parent;
}

QRect Table::rowRect(int row) const
{
    const QVector<QRect> rects = rows.value(row).rects;
    const auto shown =
        std::find_if(rects.begin(), rects.end(), [](const QRect &rect) { return !rect.isEmpty(); });
    return shown == rects.end() ? QRect() : *shown;
}
