// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/listnote.h"

#include <QAbstractItemView>
#include <QEvent>

ListNote::ListNote(const QString &text, QAbstractItemView *view) : QLabel(text, view)
{
    setObjectName(QStringLiteral("listNote"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setForegroundRole(QPalette::Text);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    cover(view->viewport());
    view->viewport()->installEventFilter(this);
}

bool ListNote::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        cover(qobject_cast<QWidget *>(watched));
    }
    return false;
}

void ListNote::cover(const QWidget *viewport)
{
    setGeometry(viewport->geometry());
}
