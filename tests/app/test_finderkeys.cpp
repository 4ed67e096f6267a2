// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/finderkeys.h"

#include <QKeyEvent>
#include <QtTest>

Q_DECLARE_METATYPE(ListKey)

/// Which keys of the process list open the line that filters it, and which go into it.
class TestFinderKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyInTheListMeans_data()
    {
        const Rows<int, Qt::KeyboardModifiers, QString, ListKey> row("key", "modifiers", "text", "meaning");
        row("letter", Qt::Key_A, Qt::NoModifier, "a", ListKey::Type);
        row("capital letter", Qt::Key_A, Qt::ShiftModifier, "A", ListKey::Type);
        row("digit of the key pad", Qt::Key_1, Qt::KeypadModifier, "1", ListKey::Type);
        row("letter of a third level", Qt::Key_At, Qt::GroupSwitchModifier, "@", ListKey::Type);
        row("letter beyond 16 bits", Qt::Key_unknown, Qt::NoModifier, "\U0001d504", ListKey::Type);
        row("slash", Qt::Key_Slash, Qt::NoModifier, "/", ListKey::Open);
        row("slash with Shift", Qt::Key_Slash, Qt::ShiftModifier, "/", ListKey::Open);
        row("slash of the key pad", Qt::Key_Slash, Qt::KeypadModifier, "/", ListKey::Open);
        row("Ctrl and letter", Qt::Key_K, Qt::ControlModifier, "\x0b", ListKey::None);
        row("Alt and letter", Qt::Key_A, Qt::AltModifier, "a", ListKey::None);
        row("Meta and letter", Qt::Key_A, Qt::MetaModifier, "a", ListKey::None);
        row("Space", Qt::Key_Space, Qt::NoModifier, " ", ListKey::None);
        row("Return", Qt::Key_Return, Qt::NoModifier, "\r", ListKey::None);
        row("plus", Qt::Key_Plus, Qt::NoModifier, "+", ListKey::None);
        row("minus", Qt::Key_Minus, Qt::NoModifier, "-", ListKey::None);
        row("asterisk", Qt::Key_Asterisk, Qt::ShiftModifier, "*", ListKey::None);
        row("Delete", Qt::Key_Delete, Qt::NoModifier, "\x7f", ListKey::None);
        row("arrow", Qt::Key_Left, Qt::NoModifier, "", ListKey::None);
        row("dead key", Qt::Key_Dead_Acute, Qt::NoModifier, "", ListKey::None);
        row("Escape", Qt::Key_Escape, Qt::NoModifier, "\x1b", ListKey::Close);
        row("Backspace", Qt::Key_Backspace, Qt::NoModifier, "\b", ListKey::Erase);
    }

    void aKeyInTheListMeans()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, text);
        QFETCH(ListKey, meaning);
        const ListKey found = listKey(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
        QCOMPARE(static_cast<int>(found), static_cast<int>(meaning));
    }
};

QTEST_GUILESS_MAIN(TestFinderKeys)
#include "test_finderkeys.moc"
