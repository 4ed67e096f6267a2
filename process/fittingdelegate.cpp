// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/fittingdelegate.h"

#include "process/proxyprocmodel.h"

namespace {

/// The text color, nearer to the background. The one for disabled text would be too faint to read.
QColor dimmed(const QPalette &palette)
{
    constexpr qreal share = 0.6;
    const QColor &text = palette.color(QPalette::Active, QPalette::Text);
    const QColor &base = palette.color(QPalette::Active, QPalette::Base);
    const auto mix = [&](qreal from, qreal to) { return from * share + to * (1 - share); };
    return QColor::fromRgbF(mix(text.redF(), base.redF()), mix(text.greenF(), base.greenF()),
                            mix(text.blueF(), base.blueF()));
}

} // namespace

void FittingDelegate::endColumn()
{
    isFitting = false;
    sizes.clear();
}

QSize FittingDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!isFitting) {
        return QStyledItemDelegate::sizeHint(option, index);
    }
    QSize &size = sizes[displayText(index.data(), option.locale)];
    if (!size.isValid()) {
        size = QStyledItemDelegate::sizeHint(option, index);
    }
    return size;
}

void FittingDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(ProxyProcModel::AncestorOnlyRole).toBool()) {
        option->palette.setColor(QPalette::Text, dimmed(option->palette));
    }
}
