// SPDX-License-Identifier: GPL-3.0-or-later
// Values of the pages are selected and copied by mouse and keyboard.
#include "fixture.h"

#include <QtTest>
#include <QtWidgets>

class TestSelectableValues : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeySelectsAValueAndCopyTakesIt_data()
    {
        QTest::addColumn<int>("page");
        for (const char *label :
             {"lblHost", "lblSystem", "lblKernel", "lblArch", "lblMemTotal", "lblDiskFree", "lblMemFree"}) {
            QTest::newRow(label) << 0;
        }
        for (const char *label : {"lblMountPoint", "lblTotal", "lblUsed", "lblAvail", "lblFsType"}) {
            QTest::newRow(label) << 2;
        }
        for (const char *label : {"netAdress", "netMask", "netIn", "netOut", "netErrors"}) {
            QTest::newRow(label) << 3;
        }
    }

    void theTabKeySelectsAValueAndCopyTakesIt()
    {
        QFETCH(int, page);
        start(page);
        auto *value = Fixture::find<QLabel>(QTest::currentDataTag());
        focusByTabKey(value);
        QVERIFY(!value->text().isEmpty());
        QCOMPARE(value->selectedText(), value->text());
        QTest::keySequence(value, QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text(), value->text());
    }

    void theMouseSelects()
    {
        start(0);
        auto *value = Fixture::find<QLabel>("lblKernel");
        QTest::mouseDClick(value, Qt::LeftButton, Qt::NoModifier, QPoint(3, value->height() / 2));
        QVERIFY(value->hasSelectedText());
        QVERIFY(value->text().startsWith(value->selectedText()));
    }

    void coresAreReachedByMouseOnly()
    {
        start(0);
        QLabel *load = valueAt("glState", 3, 2);
        QLabel *model = valueAt("glGeneral", 7, 3);
        for (QLabel *value : {load, model}) {
            QCOMPARE(value->focusPolicy(), Qt::ClickFocus);
            QTest::mouseClick(value, Qt::LeftButton);
            QTest::keySequence(value, QKeySequence::SelectAll);
            QCOMPARE(value->selectedText(), value->text());
        }
    }

    void aShortenedValueIsCopiedAsAWhole()
    {
        start(2);
        auto *value = Fixture::find<QLabel>("lblMountPoint");
        value->setText(
            QStringLiteral("/dev/mapper/a-name-that-is-much-too-long-for-the-space-beside-the-list"));
        const QImage shortened = value->grab().toImage();
        focusByTabKey(value);
        QTest::keySequence(value, QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text(), value->text());
        QVERIFY(value->grab().toImage() != shortened); // shows the selection
        QTest::keyClick(value, Qt::Key_Tab);
        QCOMPARE(value->grab().toImage(), shortened);
    }

    /// A selectable label costs as much as a small text editor.
    void onlyTheValueWithTheFocusIsSelectable()
    {
        start(3);
        auto *address = Fixture::find<QLabel>("netAdress");
        auto *mask = Fixture::find<QLabel>("netMask");
        const Qt::TextInteractionFlags selectable = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
        QVERIFY(!(address->textInteractionFlags() & selectable));
        const QImage plain = address->grab().toImage();
        focusByTabKey(address);
        QCOMPARE(address->textInteractionFlags(), selectable);
        QTest::keyClick(address, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(mask));
        QVERIFY(!(address->textInteractionFlags() & selectable));
        QVERIFY(!address->hasSelectedText());
        QCOMPARE(address->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(address->grab().toImage(), plain);
    }

    void aValueKeepsItsSelectionWhileAnotherWindowIsActive()
    {
        start(3);
        auto *address = Fixture::find<QLabel>("netAdress");
        focusByTabKey(address);
        QFocusEvent leave(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(address, &leave);
        QCOMPARE(address->selectedText(), address->text());
    }

private:
    void start(int page)
    {
        fixture->start(page);
        QVERIFY(QTest::qWaitForWindowActive(Fixture::window()));
    }

    static void focusByTabKey(QLabel *value)
    {
        value->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(value));
    }

    static QLabel *valueAt(const char *grid, int row, int column)
    {
        return qobject_cast<QLabel *>(
            Fixture::find<QGridLayout>(grid)->itemAtPosition(row, column)->widget());
    }
};

QTEST_MAIN(TestSelectableValues)
#include "test_selectablevalues.moc"
