// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef GTOP_WRAPPERS_PARAM_H
#define GTOP_WRAPPERS_PARAM_H

#include <QString>
#include <QVariant>

#include <tr1/memory>

namespace gtop_wrappers {

/// The value of one process in one column: what the cell shows and what it is sorted by.
class IProcessParam
{
public:
    explicit IProcessParam(const QVariant &value = QVariant());

    /// What the cell shows (Qt::DisplayRole).
    virtual QVariant displayValue() const;
    /// What the column is sorted by (Qt::UserRole); the display value unless a subclass has a better one.
    virtual QVariant sortValue() const;
    /// False if the next call of displayValue() has to read the value from the machine first.
    virtual bool isRead() const;
    virtual ~IProcessParam();

    void setDisplayValue(const QVariant &value);

protected:
    IProcessParam(const IProcessParam &) = default;
    IProcessParam &operator=(const IProcessParam &) = default;

    // Mutable for subclasses that make their text on demand.
    mutable QVariant display;
};

using ParamPtr = std::tr1::shared_ptr<IProcessParam>;

/// A column value that is text only.
class SimpleProcessParam : public IProcessParam
{
public:
    explicit SimpleProcessParam(const QString &text);
};

/// A column value that carries a 32-bit integer and sorts by it.
class IntProcessParam : public IProcessParam
{
public:
    IntProcessParam(int value, const QVariant &text);
    explicit IntProcessParam(int value); ///< shows the number itself

    int value() const;
    QVariant sortValue() const override;

private:
    int number;
};

/// The CPU load column. The library has no time base: the process model writes both values on every refresh.
class CpuProcessParam : public IProcessParam
{
public:
    CpuProcessParam();

    double percent() const;
    /// Sets the percentage alone. Only tests call it; the interface of a column value has it.
    void setPercent(double percent);
    /// Sets the percentage and, as display value, its text with one decimal and " %", made on demand.
    void showPercent(double percent);
    QVariant displayValue() const override;
    /// The percentage; NaN sorts below everything else, since comparing it would break the order.
    QVariant sortValue() const override;

private:
    double load;
    bool textIsMissing;
};

} // namespace gtop_wrappers

#endif
