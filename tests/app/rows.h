// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_APP_ROWS_H
#define TESTS_APP_ROWS_H

#include <QTest>

#include <initializer_list>

/// Test data of a single column: one row per number, named by it.
inline void addNumberRows(const char *column, std::initializer_list<int> numbers)
{
    QTest::addColumn<int>(column);
    for (int number : numbers) {
        QTest::newRow(QByteArray::number(number).constData()) << number;
    }
}

#endif
