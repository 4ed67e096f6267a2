// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processfilter.h"

#include <algorithm>

namespace {

/// The pid that the text names, even with leading zeros; -1 for anything but digits.
int pidOf(const QString &text)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    bool isInt = false;
    const int pid = std::all_of(text.begin(), text.end(), isDigit) ? text.toInt(&isInt) : -1;
    return isInt ? pid : -1;
}

} // namespace

ProcessFilter::ProcessFilter(const QString &text)
    : words(text.simplified().toCaseFolded().split(QLatin1Char(' '), Qt::SkipEmptyParts)),
      number(words.size() == 1 ? pidOf(words.first()) : -1)
{}

bool ProcessFilter::matches(int pid, const QString &fields) const
{
    const auto occurs = [&fields](const QString &word) { return fields.contains(word); };
    return (number != -1 && number == pid) || std::all_of(words.begin(), words.end(), occurs);
}

QString ProcessFilter::toField(const QString &text)
{
    return text.toCaseFolded() + QLatin1Char('\n');
}
