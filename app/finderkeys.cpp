// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/finderkeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

/// Shift and the key pad don't matter.
bool isPlain(const QKeyEvent &key)
{
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

} // namespace

bool isTypable(const QString &text)
{
    const QVector<uint> characters = text.toUcs4();
    return !text.trimmed().isEmpty() &&
           std::all_of(characters.begin(), characters.end(), [](uint c) { return QChar::isPrint(c); });
}

ListKey listKey(const QKeyEvent &key)
{
    if (!isPlain(key)) {
        return ListKey::None;
    }
    switch (key.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Minus:
    case Qt::Key_Asterisk:
        return ListKey::None;
    case Qt::Key_Escape:
        return ListKey::Close;
    case Qt::Key_Backspace:
        return ListKey::Erase;
    default:
        break;
    }
    if (key.text() == QLatin1String("/")) {
        return ListKey::Open;
    }
    return isTypable(key.text()) ? ListKey::Type : ListKey::None;
}

bool goesToList(const QKeyEvent &key)
{
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return isPlain(key);
    default:
        return isEnter(key) && isPlain(key);
    }
}

bool isEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}
