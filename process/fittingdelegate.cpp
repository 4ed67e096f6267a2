// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/fittingdelegate.h"

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
