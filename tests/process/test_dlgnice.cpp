// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/dlgnice.h"
#include "tests/support/modal.h"

#include <QtWidgets>

namespace {

/// The parts of the dialog, each found at its required place.
struct Parts
{
    explicit Parts(QWidget *widget) : dialog(qobject_cast<QDialog *>(widget)) {}
    template <typename Widget>
    Widget *at(int row, int column) const
    {
        return qobject_cast<Widget *>(grid->itemAtPosition(row, column)->widget());
    }

    QDialog *dialog;
    QVBoxLayout *box = qobject_cast<QVBoxLayout *>(dialog->layout());
    QGridLayout *grid = qobject_cast<QGridLayout *>(box->itemAt(0)->layout());
    QLabel *value = at<QLabel>(0, 1);
    QLabel *caption = at<QLabel>(1, 0);
    QSlider *slider = at<QSlider>(1, 1);
    QLabel *description = at<QLabel>(2, 1);
    QDialogButtonBox *buttons = qobject_cast<QDialogButtonBox *>(box->itemAt(1)->widget());
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    QPushButton *cancel = buttons->button(QDialogButtonBox::Cancel);
};

using Act = std::function<void(const Parts &)>;

/// Runs the dialog, hands its parts to `act` and returns the answer.
int ask(int current, const Act &act)
{
    const ModalDriver driver([&](QWidget *dialog) { act(Parts(dialog)); });
    return DlgNice(nullptr).askPriority(current);
}

} // namespace

Q_DECLARE_METATYPE(Act)

class TestDlgNice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void levelsHaveTheirNames_data()
    {
        const Rows<int, QString> row("value", "name");
        const QPair<int, const char *> levels[] = {
            {-20, "Very high priority"}, {-11, "Very high priority"}, {-10, "High priority"},
            {-1, "High priority"},       {0, "Normal priority"},      {1, "Low priority"},
            {10, "Low priority"},        {11, "Very low priority"},   {20, "Very low priority"}};
        for (const auto &level : levels) {
            row(QByteArray::number(level.first), level.first, level.second);
        }
    }

    void levelsHaveTheirNames()
    {
        QFETCH(int, value);
        QFETCH(QString, name);
        QCOMPARE(DlgNice::levelName(value), name);
        const auto check = [&](const Parts &parts) {
            parts.slider->setValue(value);
            QCOMPARE(parts.value->text(), QString::number(value));
            QCOMPARE(parts.description->text(), name);
            parts.cancel->click();
        };
        ask(value, check);
        ask(value == 20 ? 19 : 20, check);
    }

    void theDialogIsBuiltAsRequired()
    {
        ask(5, [](const Parts &parts) {
            QCOMPARE(parts.dialog->size(), QSize(400, 100).expandedTo(parts.dialog->minimumSizeHint()));
            QVERIFY(parts.dialog->isModal());
            QVERIFY(!parts.dialog->parentWidget());
            QCOMPARE(parts.box->count(), 2);
            QCOMPARE(parts.grid->verticalSpacing(), 10);
            QCOMPARE(parts.grid->count(), 4);
            QCOMPARE(parts.grid->itemAtPosition(0, 1)->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
            QCOMPARE(parts.grid->itemAtPosition(2, 1)->alignment(), Qt::AlignHCenter | Qt::AlignTop);
            QCOMPARE(parts.caption->text(), QStringLiteral("Priority"));
            QCOMPARE(QAccessible::queryAccessibleInterface(parts.slider)->text(QAccessible::Name),
                     QStringLiteral("Priority"));
            QCOMPARE(parts.slider->orientation(), Qt::Horizontal);
            QCOMPARE(parts.slider->minimum(), -20);
            QCOMPARE(parts.slider->maximum(), 20);
            QCOMPARE(parts.slider->value(), 5);
            QCOMPARE(parts.slider->tickInterval(), 1);
            QCOMPARE(parts.slider->pageStep(), 1);
            QVERIFY(parts.slider->hasTracking());
            QVERIFY(parts.slider->isSliderDown());
            QCOMPARE(parts.buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
            QVERIFY(parts.cancel->isEnabled());
            parts.cancel->click();
        });
    }

    void theTitleNamesTheProcessAndTheParentIsTheGivenOne_data()
    {
        const Rows<QString, QString> row("label", "title");
        row("none", "", "Change priority");
        row("name and pid", "sleep (412)", "Change priority - sleep (412)");
        row("pid alone", "412", "Change priority - 412");
        row("HTML and place markers", "<b>%1</b> (412)", "Change priority - <b>%1</b> (412)");
    }

    void theTitleNamesTheProcessAndTheParentIsTheGivenOne()
    {
        QFETCH(QString, label);
        QWidget window;
        const ModalDriver driver([&](QWidget *dialog) {
            QTEST(dialog->windowTitle(), "title");
            QCOMPARE(dialog->parentWidget(), &window);
            dialog->close();
        });
        DlgNice(&window, label).askPriority(0);
    }

    void onlyOkAfterAMoveReturnsTheSlidersValue_data()
    {
        const Rows<int, QList<int>, Act, int> row("current", "moves", "leave", "answer");
        const Act ok = [](const Parts &parts) { parts.ok->click(); };
        const Act cancel = [](const Parts &parts) { parts.cancel->click(); };
        const Act close = [](const Parts &parts) { parts.dialog->close(); };
        const Act escape = [](const Parts &parts) { QTest::keyClick(parts.slider, Qt::Key_Escape); };
        row("closed without a move", 3, QList<int>(), close, 3);
        row("OK", 0, QList<int>{-12, 20}, ok, 20);
        row("OK after moving away and back", 4, QList<int>{9, 4}, ok, 4);
        row("OK below the range", -99, QList<int>{-19, -20}, ok, -20);
        row("Cancel", -3, QList<int>{7}, cancel, -3);
        row("closed", -3, QList<int>{7}, close, -3);
        row("Escape", -3, QList<int>{7}, escape, -3);
    }

    void onlyOkAfterAMoveReturnsTheSlidersValue()
    {
        QFETCH(int, current);
        QFETCH(QList<int>, moves);
        QFETCH(Act, leave);
        const auto act = [&](const Parts &parts) {
            QVERIFY(!parts.ok->isEnabled());
            parts.ok->click();
            QVERIFY(parts.dialog->isVisible());
            parts.slider->setValue(parts.slider->value()); // no change, no signal
            QVERIFY(!parts.ok->isEnabled());
            for (const int value : moves) {
                parts.slider->setValue(value);
                QVERIFY(parts.ok->isEnabled());
            }
            leave(parts);
        };
        QTEST(ask(current, act), "answer");
    }

    void theKeyboardMovesTheSlider()
    {
        const auto act = [](const Parts &parts) {
            QTest::keyClick(parts.slider, Qt::Key_Right);
            QTest::keyClick(parts.slider, Qt::Key_PageUp);
            QCOMPARE(parts.value->text(), QStringLiteral("2"));
            parts.ok->click();
        };
        QCOMPARE(ask(0, act), 2);
    }

    void aValueOutsideTheRangeIsShownButNotClamped()
    {
        const auto look = [](const Parts &parts) {
            QCOMPARE(parts.slider->value(), 20);
            QCOMPARE(parts.value->text(), QStringLiteral("99"));
            parts.dialog->close();
        };
        QCOMPARE(ask(99, look), 99);
    }

    void theSameObjectAsksAgainAndIsNotUpdatedInBetween()
    {
        DlgNice asker(nullptr);
        asker.update(7);
        const auto choose = [](QWidget *dialog) {
            const Parts parts(dialog);
            QVERIFY(!parts.ok->isEnabled());
            parts.slider->setValue(parts.slider->value() + 1);
            parts.ok->click();
        };
        const ModalDriver driver({choose, choose});
        QCOMPARE(asker.askPriority(1), 2);
        asker.update(7);
        QCOMPARE(asker.askPriority(5), 6);
    }
};

QTEST_MAIN(TestDlgNice)
#include "test_dlgnice.moc"
