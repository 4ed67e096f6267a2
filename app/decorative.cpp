// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/decorative.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char decorative[] = "decorative"; ///< dynamic property of hidden pictures

class DecorativeAccess : public QAccessibleWidget
{
public:
    explicit DecorativeAccess(QWidget *picture) : QAccessibleWidget(picture, QAccessible::Graphic) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

QAccessibleInterface *makeDecorativeAccess(const QString & /*className*/, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && widget->property(decorative).toBool() ? new DecorativeAccess(widget) : nullptr;
}

} // namespace

void hideFromAssistiveTechnology(QWidget *picture)
{
    QAccessible::installFactory(makeDecorativeAccess);
    picture->setProperty(decorative, true);
}
