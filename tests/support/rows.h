// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_ROWS_H
#define TESTS_SUPPORT_ROWS_H

#include <QTest>

#include <initializer_list>

/// The data of a test: the constructor adds the columns, each call a row.
///   const Rows<int, QString> row("value", "text");
///   row("zero", 0, "nothing");
template <class... Values>
class Rows
{
public:
    template <class... Names>
    explicit Rows(Names... columns)
    {
        (QTest::addColumn<Values>(columns), ...);
    }
    void operator()(const QByteArray &name, const Values &...values) const
    {
        (QTest::newRow(name.constData()) << ... << values);
    }
};

/// A single column, with a row per number that is named by it.
inline void addNumberRows(const char *column, std::initializer_list<int> numbers, const char *name = "%1")
{
    const Rows<int> row(column);
    for (int number : numbers) {
        row(QString(name).arg(number).toLatin1(), number);
    }
}

/// A single column, with a row per text that is named by it.
inline void addTextRows(const char *column, std::initializer_list<const char *> texts)
{
    const Rows<QString> row(column);
    for (const char *text : texts) {
        row(text, text);
    }
}

#endif
