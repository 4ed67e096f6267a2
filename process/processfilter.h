// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef PROCESS_PROCESSFILTER_H
#define PROCESS_PROCESSFILTER_H

#include <QString>
#include <QStringList>

/// What the user is looking for: words that must all occur in the fields of a process, in any of them and in
/// any order, without regard to case.
class ProcessFilter
{
public:
    /// text: words separated by white space; none let every process pass.
    explicit ProcessFilter(const QString &text = QString());

    bool isEmpty() const { return words.isEmpty(); }
    /// fields: name, user, pid and so on, one after the other, each through toField().
    bool matches(int pid, const QString &fields) const;
    /// A field in the form that is searched: case-folded, and set off so that no word extends over two.
    static QString toField(const QString &text);

private:
    QStringList words; ///< case-folded
    int number;        ///< if the text is a number alone; otherwise -1
};

#endif
