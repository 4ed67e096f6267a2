// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/pageintervals.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

#include <climits>

class TestPageIntervals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        window.reset(new QWidget);
        intervals = new PageIntervals(window.data(), 4);
    }

    void everyIntervalStartsAtThree()
    {
        QCOMPARE(intervals->parent(), window.data());
        for (int page = 0; page < 4; ++page) {
            QCOMPARE(intervals->interval(page), 3);
        }
        intervals->setInterval(2, 5);
        QCOMPARE(intervals->interval(2), 5);
        QCOMPARE(intervals->interval(1), 3);
    }

    void pageIsDueOnMultiplesOfItsInterval_data()
    {
        addNumberRows("interval", {1, 2, 3, 4, 5, 0, -1, -3, INT_MIN});
    }

    void pageIsDueOnMultiplesOfItsInterval()
    {
        QFETCH(int, interval);
        intervals->setInterval(3, interval);
        for (int tick = 0; tick <= 20; ++tick) {
            QCOMPARE(intervals->isDue(3, tick), interval <= 0 || tick % interval == 0);
        }
    }

    void theDialogIsBuiltAsRequired()
    {
        intervals->setInterval(1, 4);
        withDialog([](QDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Interval changing"));
            QVERIFY(qobject_cast<QVBoxLayout *>(dialog->layout()));
            QCOMPARE(dialog->layout()->itemAt(0)->layout(), static_cast<QLayout *>(grid(dialog)));
            QVERIFY(qobject_cast<QDialogButtonBox *>(dialog->layout()->itemAt(1)->widget()));
            QCOMPARE(grid(dialog)->verticalSpacing(), 10);
            const QLabel *text = label(dialog, 0, 1);
            QCOMPARE(text->text(),
                     QStringLiteral(
                         "You can set time interval (in secs)\n between updates for page Processes page"));
            QCOMPARE(text->alignment(), Qt::AlignHCenter | Qt::AlignTop);
            const QLabel *value = label(dialog, 1, 1);
            QCOMPARE(value->text(), QStringLiteral("4"));
            QCOMPARE(value->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
            const QSlider *found = slider(dialog);
            QCOMPARE(grid(dialog)->itemAtPosition(2, 1)->widget(), static_cast<const QWidget *>(found));
            QCOMPARE(found->orientation(), Qt::Horizontal);
            QCOMPARE(found->minimum(), 1);
            QCOMPARE(found->maximum(), 5);
            QCOMPARE(found->value(), 4);
            QCOMPARE(found->tickInterval(), 1);
            QCOMPARE(found->pageStep(), 1);
            QVERIFY(found->hasTracking());
            QVERIFY(found->isSliderDown());
            QCOMPARE(label(dialog, 2, 0)->text(), QStringLiteral("Interval"));
            QCOMPARE(label(dialog, 2, 0)->buddy(), static_cast<const QWidget *>(found));
            const auto *buttons = dialog->findChild<QDialogButtonBox *>();
            QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
            QVERIFY(dialog->width() >= 400);
            QVERIFY(dialog->isModal());
        });
        QCOMPARE(QApplication::topLevelWidgets().size(), 1);
    }

    void onlyDraggingTheSliderEnablesOk()
    {
        withDialog([](QDialog *dialog) {
            slider(dialog)->setSliderDown(false);
            slider(dialog)->setValue(2);
            slider(dialog)->triggerAction(QAbstractSlider::SliderPageStepAdd);
            QCOMPARE(slider(dialog)->value(), 3);
            QCOMPARE(label(dialog, 1, 1)->text(), QStringLiteral("3"));
            slider(dialog)->triggerAction(QAbstractSlider::SliderPageStepAdd);
            QCOMPARE(label(dialog, 1, 1)->text(), QStringLiteral("3"));
            QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
        });
        QCOMPARE(intervals->interval(1), 3);
        withDialog([](QDialog *dialog) {
            QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
            drag(dialog, 5);
            QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
            QCOMPARE(label(dialog, 1, 1)->text(), QStringLiteral("5"));
        });
    }

    void draggedValueIsStoredOnlyOnOk_data()
    {
        const Rows<int, int, int, int, int> row("initial", "shown", "dragged", "ending", "stored");
        const int escape = QDialogButtonBox::NoButton;
        row("OK", 3, 3, 5, QDialogButtonBox::Ok, 5);
        row("Cancel", 3, 3, 5, QDialogButtonBox::Cancel, 3);
        row("Esc", 3, 3, 5, escape, 3);
        const QPair<int, int> clamped[] = {{0, 1}, {-5, 1}, {6, 5}, {INT_MAX, 5}, {INT_MIN, 1}};
        for (const auto &[given, bound] : clamped) {
            row(QByteArray::number(given) + " is clamped", given, bound, bound, QDialogButtonBox::Ok, bound);
        }
    }

    void draggedValueIsStoredOnlyOnOk()
    {
        QFETCH(int, initial);
        QFETCH(int, shown);
        QFETCH(int, dragged);
        QFETCH(int, ending);
        intervals->setInterval(1, initial);
        withDialog([=](QDialog *dialog) {
            QCOMPARE(slider(dialog)->value(), shown);
            drag(dialog, 3);
            drag(dialog, dragged);
            if (ending == QDialogButtonBox::NoButton) {
                QTest::keyClick(dialog, Qt::Key_Escape);
            } else {
                button(dialog, QDialogButtonBox::StandardButton(ending))->click();
            }
        });
        QTEST(intervals->interval(1), "stored");
        QCOMPARE(intervals->interval(0), 3);
    }

private:
    /// Opens the dialog of page 1, calls `act` and closes the dialog if that left it open.
    void withDialog(const std::function<void(QDialog *)> &act)
    {
        const ModalDriver driver([&](QWidget *widget) {
            auto *dialog = qobject_cast<QDialog *>(widget);
            act(dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        intervals->exec(1, QStringLiteral("Processes page"));
    }
    static QSlider *slider(const QDialog *dialog) { return dialog->findChild<QSlider *>(); }
    static QPushButton *button(const QDialog *dialog, QDialogButtonBox::StandardButton which)
    {
        return dialog->findChild<QDialogButtonBox *>()->button(which);
    }
    static QGridLayout *grid(const QDialog *dialog) { return dialog->findChild<QGridLayout *>(); }
    static QLabel *label(const QDialog *dialog, int row, int column)
    {
        return qobject_cast<QLabel *>(grid(dialog)->itemAtPosition(row, column)->widget());
    }
    /// Has the effect of dragging the handle.
    static void drag(const QDialog *dialog, int value) { slider(dialog)->setSliderPosition(value); }

    QScopedPointer<QWidget> window;
    PageIntervals *intervals = nullptr;
};

QTEST_MAIN(TestPageIntervals)
#include "test_pageintervals.moc"
