// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/selectablevalues.h"

#include <QFocusEvent>
#include <QLabel>

namespace {

void setSelectable(QLabel *label, bool on)
{
    const Qt::FocusPolicy policy = label->focusPolicy(); // which setting the flags resets
    label->setTextInteractionFlags(on ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                      : Qt::LinksAccessibleByMouse); // the default
    label->setFocusPolicy(policy);
}

bool isByTabKey(const QEvent *event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

/// Whether the label gets the focus back: after its own context menu, or when its window is active again.
bool isTemporary(const QEvent *event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

} // namespace

void SelectableValues::add(QLabel *label, Qt::FocusPolicy policy)
{
    label->setFocusPolicy(policy);
    label->installEventFilter(this);
}

bool SelectableValues::eventFilter(QObject *watched, QEvent *event)
{
    auto *label = qobject_cast<QLabel *>(watched);
    if (!label) { // being destroyed
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        setSelectable(label, true);
    } else if (event->type() == QEvent::FocusIn) {
        setSelectable(label, true);
        if (isByTabKey(event)) {
            label->setSelection(0, label->text().size());
        }
    } else if (event->type() == QEvent::FocusOut && !isTemporary(event)) {
        setSelectable(label, false);
    }
    return false;
}
