// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pageintervals.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

class TestPageIntervals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyIntervalStartsAtThree();
    void aPageIsDueOnMultiplesOfItsInterval_data();
    void aPageIsDueOnMultiplesOfItsInterval();
    void anIntervalOfZeroOrLessIsDueOnEveryTick_data();
    void anIntervalOfZeroOrLessIsDueOnEveryTick();
    void theDialogIsLaidOutAsRequired();
    void theSliderGoesFromOneToFive();
    void okIsDisabledUntilTheSliderIsDragged();
    void valueChangesWithoutADragEnableNothing();
    void draggingAndAcceptingStoresTheValue();
    void draggingAndCancellingStoresNothing_data();
    void draggingAndCancellingStoresNothing();
    void anIntervalOutOfRangeIsShownClampedAndStoredSo_data();
    void anIntervalOutOfRangeIsShownClampedAndStoredSo();

private:
    // Opens the dialog, lets the test act on it, and ends it.
    void withDialog(const std::function<void(QDialog *)> &act, int page = 1)
    {
        bool seen = false;
        const ModalDriver driver([&](QWidget *widget) {
            seen = true;
            auto *dialog = qobject_cast<QDialog *>(widget);
            act(dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        intervals->exec(page, QStringLiteral("Processes page"));
        QVERIFY(seen);
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
    // What a drag of the handle does.
    static void drag(const QDialog *dialog, int value) { slider(dialog)->setSliderPosition(value); }

    QScopedPointer<QWidget> window;
    PageIntervals *intervals = nullptr;
};

void TestPageIntervals::init()
{
    window.reset(new QWidget);
    intervals = new PageIntervals(window.data(), 4);
}

void TestPageIntervals::everyIntervalStartsAtThree()
{
    QCOMPARE(intervals->parent(), window.data());
    for (int page = 0; page < 4; ++page) {
        QCOMPARE(intervals->interval(page), 3);
    }
    intervals->setInterval(2, 5);
    QCOMPARE(intervals->interval(2), 5);
    QCOMPARE(intervals->interval(1), 3);
}

void TestPageIntervals::aPageIsDueOnMultiplesOfItsInterval_data()
{
    QTest::addColumn<int>("interval");
    for (int interval = 1; interval <= 5; ++interval) {
        QTest::newRow(QByteArray::number(interval).constData()) << interval;
    }
}

void TestPageIntervals::aPageIsDueOnMultiplesOfItsInterval()
{
    QFETCH(int, interval);
    intervals->setInterval(0, interval);
    QList<int> due;
    for (int tick = 0; tick <= 20; ++tick) {
        if (intervals->isDue(0, tick)) {
            due << tick;
        }
    }
    QList<int> expected;
    for (int tick = 0; tick <= 20; tick += interval) {
        expected << tick;
    }
    QCOMPARE(due, expected);
}

void TestPageIntervals::anIntervalOfZeroOrLessIsDueOnEveryTick_data()
{
    QTest::addColumn<int>("interval");
    for (int interval : {0, -1, -3, std::numeric_limits<int>::min()}) {
        QTest::newRow(QByteArray::number(interval).constData()) << interval;
    }
}

void TestPageIntervals::anIntervalOfZeroOrLessIsDueOnEveryTick()
{
    QFETCH(int, interval);
    intervals->setInterval(3, interval);
    for (int tick = 0; tick < 10; ++tick) {
        QVERIFY(intervals->isDue(3, tick));
    }
}

void TestPageIntervals::theDialogIsLaidOutAsRequired()
{
    withDialog([](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Interval changing"));
        QVERIFY(qobject_cast<QVBoxLayout *>(dialog->layout()) != nullptr);
        QCOMPARE(dialog->layout()->itemAt(0)->layout(), static_cast<QLayout *>(grid(dialog)));
        QVERIFY(qobject_cast<QDialogButtonBox *>(dialog->layout()->itemAt(1)->widget()) != nullptr);
        QCOMPARE(grid(dialog)->verticalSpacing(), 10);
        const QLabel *text = label(dialog, 0, 1);
        QCOMPARE(
            text->text(),
            QStringLiteral("You can set time interval (in secs)\n between updates for page Processes page"));
        QCOMPARE(text->alignment(), Qt::AlignHCenter | Qt::AlignTop);
        const QLabel *value = label(dialog, 1, 1);
        QCOMPARE(value->text(), QStringLiteral("3"));
        QCOMPARE(value->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
        QCOMPARE(grid(dialog)->itemAtPosition(2, 1)->widget(), static_cast<QWidget *>(slider(dialog)));
        QCOMPARE(label(dialog, 2, 0)->text(), QStringLiteral("Interval"));
        QCOMPARE(label(dialog, 2, 0)->buddy(), static_cast<QWidget *>(slider(dialog)));
        const auto *buttons = dialog->findChild<QDialogButtonBox *>();
        QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        QVERIFY(dialog->width() >= 400);
        QVERIFY(dialog->isModal());
    });
    QCOMPARE(QApplication::topLevelWidgets().size(), 1);
}

void TestPageIntervals::theSliderGoesFromOneToFive()
{
    intervals->setInterval(1, 4);
    withDialog([](QDialog *dialog) {
        const QSlider *found = slider(dialog);
        QCOMPARE(found->orientation(), Qt::Horizontal);
        QCOMPARE(found->minimum(), 1);
        QCOMPARE(found->maximum(), 5);
        QCOMPARE(found->value(), 4);
        QCOMPARE(found->tickInterval(), 1);
        QCOMPARE(found->pageStep(), 1);
        QVERIFY(found->hasTracking());
        QVERIFY(found->isSliderDown());
    });
}

void TestPageIntervals::okIsDisabledUntilTheSliderIsDragged()
{
    withDialog([](QDialog *dialog) {
        QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
        drag(dialog, 5);
        QVERIFY(button(dialog, QDialogButtonBox::Ok)->isEnabled());
        QCOMPARE(label(dialog, 1, 1)->text(), QStringLiteral("5"));
    });
}

void TestPageIntervals::valueChangesWithoutADragEnableNothing()
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
}

void TestPageIntervals::draggingAndAcceptingStoresTheValue()
{
    withDialog([](QDialog *dialog) {
        drag(dialog, 5);
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(intervals->interval(1), 5);
    QCOMPARE(intervals->interval(0), 3);
}

void TestPageIntervals::draggingAndCancellingStoresNothing_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("Cancel") << true;
    QTest::newRow("Esc") << false;
}

void TestPageIntervals::draggingAndCancellingStoresNothing()
{
    QFETCH(bool, byButton);
    withDialog([=](QDialog *dialog) {
        drag(dialog, 5);
        if (byButton) {
            button(dialog, QDialogButtonBox::Cancel)->click();
        } else {
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
    QCOMPARE(intervals->interval(1), 3);
}

void TestPageIntervals::anIntervalOutOfRangeIsShownClampedAndStoredSo_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("clamped");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("-5") << -5 << 1;
    QTest::newRow("6") << 6 << 5;
    QTest::newRow("int max") << std::numeric_limits<int>::max() << 5;
    QTest::newRow("int min") << std::numeric_limits<int>::min() << 1;
}

void TestPageIntervals::anIntervalOutOfRangeIsShownClampedAndStoredSo()
{
    QFETCH(int, stored);
    QFETCH(int, clamped);
    intervals->setInterval(1, stored);
    withDialog([=](QDialog *dialog) {
        QCOMPARE(slider(dialog)->value(), clamped);
        drag(dialog, 3);
        drag(dialog, clamped);
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(intervals->interval(1), clamped);
}

QTEST_MAIN(TestPageIntervals)
#include "test_pageintervals.moc"
