// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/dlgnice.h"
#include "tests/process/support/modaldriver.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

namespace {

/// The parts of the dialog, found where they must be.
struct Parts
{
    explicit Parts(QWidget *widget)
    {
        dialog = qobject_cast<QDialog *>(widget);
        box = qobject_cast<QVBoxLayout *>(dialog->layout());
        grid = qobject_cast<QGridLayout *>(box->itemAt(0)->layout());
        value = at<QLabel>(0, 1);
        caption = at<QLabel>(1, 0);
        slider = at<QSlider>(1, 1);
        description = at<QLabel>(2, 1);
        buttons = qobject_cast<QDialogButtonBox *>(box->itemAt(1)->widget());
        ok = buttons->button(QDialogButtonBox::Ok);
        cancel = buttons->button(QDialogButtonBox::Cancel);
    }
    template <typename Widget>
    Widget *at(int row, int column) const
    {
        return qobject_cast<Widget *>(grid->itemAtPosition(row, column)->widget());
    }
    Qt::Alignment alignment(int row, int column) const
    {
        return grid->itemAtPosition(row, column)->alignment();
    }

    QDialog *dialog;
    QVBoxLayout *box;
    QGridLayout *grid;
    QLabel *value;
    QLabel *caption;
    QSlider *slider;
    QLabel *description;
    QDialogButtonBox *buttons;
    QPushButton *ok;
    QPushButton *cancel;
};

/// Runs the dialog, hands its parts to `act`, and returns what was asked for.
int ask(int current, const std::function<void(const Parts &)> &act)
{
    const ModalDriver driver([&](QWidget *dialog) { act(Parts(dialog)); });
    const int answer = DlgNice(nullptr).askPriority(current);
    [&] { QCOMPARE(driver.count(), std::size_t(1)); }();
    return answer;
}

} // namespace

class TestDlgNice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void levelsHaveTheirNames_data();
    void levelsHaveTheirNames();
    void theDialogIsBuiltAsRequired();
    void theDialogHasTheGivenParent();
    void okAtOnceIsImpossible();
    void aMoveEnablesOkAndShowsValueAndLevel();
    void movingAwayAndBackReturnsTheStartValue();
    void okReturnsTheSlidersValue();
    void theKeyboardMovesTheSliderToo();
    void cancelReturnsTheGivenValue();
    void closingReturnsTheGivenValue();
    void escapeReturnsTheGivenValue();
    void aValueOutsideTheRangeIsClampedOnlyWhenChosen();
    void updateWithoutADialogDoesNothing();
    void theSameObjectAsksAgain();
};

void TestDlgNice::levelsHaveTheirNames_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    const QString names[] = {QStringLiteral("Very high priority"), QStringLiteral("High priority"),
                             QStringLiteral("Normal priority"), QStringLiteral("Low priority"),
                             QStringLiteral("Very low priority")};
    const std::pair<int, int> rows[] = {{-20, 0}, {-11, 0}, {-10, 1}, {-1, 1}, {0, 2},
                                        {1, 3},   {10, 3},  {11, 4},  {20, 4}};
    for (const auto &row : rows) {
        QTest::addRow("%d", row.first) << row.first << names[row.second];
    }
}

void TestDlgNice::levelsHaveTheirNames()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    QCOMPARE(DlgNice::levelName(value), name);
    ask(value, [&](const Parts &parts) {
        QCOMPARE(parts.value->text(), QString::number(value));
        QCOMPARE(parts.description->text(), name);
        parts.cancel->click();
    });
    ask(value == 20 ? 19 : 20, [&](const Parts &parts) {
        parts.slider->setValue(value);
        QCOMPARE(parts.description->text(), name);
        parts.cancel->click();
    });
}

void TestDlgNice::theDialogIsBuiltAsRequired()
{
    ask(5, [](const Parts &parts) {
        QCOMPARE(parts.dialog->size(), QSize(400, 100).expandedTo(parts.dialog->minimumSizeHint()));
        QVERIFY(parts.dialog->isModal());
        QVERIFY(!parts.dialog->parentWidget());
        QCOMPARE(parts.box->count(), 2);
        QCOMPARE(parts.grid->verticalSpacing(), 10);
        QCOMPARE(parts.grid->count(), 4);
        QCOMPARE(parts.alignment(0, 1), Qt::AlignHCenter | Qt::AlignBottom);
        QCOMPARE(parts.alignment(2, 1), Qt::AlignHCenter | Qt::AlignTop);
        QCOMPARE(parts.caption->text(), QStringLiteral("Priority"));
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

void TestDlgNice::theDialogHasTheGivenParent()
{
    QWidget window;
    const QWidget *parent = nullptr;
    const ModalDriver driver([&](QWidget *dialog) {
        parent = dialog->parentWidget();
        dialog->close();
    });
    DlgNice(&window).askPriority(0);
    QCOMPARE(parent, &window);
}

void TestDlgNice::okAtOnceIsImpossible()
{
    QCOMPARE(ask(3,
                 [](const Parts &parts) {
                     QVERIFY(!parts.ok->isEnabled());
                     parts.ok->click();
                     QVERIFY(parts.dialog->isVisible());
                     parts.slider->setValue(3); // no change, no signal
                     QVERIFY(!parts.ok->isEnabled());
                     parts.dialog->close();
                 }),
             3);
}

void TestDlgNice::aMoveEnablesOkAndShowsValueAndLevel()
{
    ask(0, [](const Parts &parts) {
        parts.slider->setValue(-12);
        QVERIFY(parts.ok->isEnabled());
        QCOMPARE(parts.value->text(), QStringLiteral("-12"));
        QCOMPARE(parts.description->text(), QStringLiteral("Very high priority"));
        parts.cancel->click();
    });
}

void TestDlgNice::movingAwayAndBackReturnsTheStartValue()
{
    QCOMPARE(ask(4,
                 [](const Parts &parts) {
                     parts.slider->setValue(9);
                     parts.slider->setValue(4);
                     QVERIFY(parts.ok->isEnabled());
                     parts.ok->click();
                 }),
             4);
}

void TestDlgNice::okReturnsTheSlidersValue()
{
    QCOMPARE(ask(0,
                 [](const Parts &parts) {
                     parts.slider->setValue(20);
                     parts.ok->click();
                 }),
             20);
}

void TestDlgNice::theKeyboardMovesTheSliderToo()
{
    QCOMPARE(ask(0,
                 [](const Parts &parts) {
                     QTest::keyClick(parts.slider, Qt::Key_Right);
                     QTest::keyClick(parts.slider, Qt::Key_PageUp);
                     QCOMPARE(parts.value->text(), QStringLiteral("2"));
                     parts.ok->click();
                 }),
             2);
}

void TestDlgNice::cancelReturnsTheGivenValue()
{
    QCOMPARE(ask(-3,
                 [](const Parts &parts) {
                     parts.slider->setValue(7);
                     parts.cancel->click();
                 }),
             -3);
}

void TestDlgNice::closingReturnsTheGivenValue()
{
    QCOMPARE(ask(-3,
                 [](const Parts &parts) {
                     parts.slider->setValue(7);
                     parts.dialog->close();
                 }),
             -3);
}

void TestDlgNice::escapeReturnsTheGivenValue()
{
    QCOMPARE(ask(-3,
                 [](const Parts &parts) {
                     parts.slider->setValue(7);
                     QTest::keyClick(parts.slider, Qt::Key_Escape);
                 }),
             -3);
}

void TestDlgNice::aValueOutsideTheRangeIsClampedOnlyWhenChosen()
{
    const auto look = [](const Parts &parts) {
        QCOMPARE(parts.slider->value(), 20);
        QCOMPARE(parts.value->text(), QStringLiteral("99"));
        parts.dialog->close();
    };
    QCOMPARE(ask(99, look), 99);
    const auto choose = [](const Parts &parts) {
        parts.slider->setValue(-20); // where it stands already
        QVERIFY(!parts.ok->isEnabled());
        parts.slider->setValue(-19);
        parts.slider->setValue(-20);
        parts.ok->click();
    };
    QCOMPARE(ask(-99, choose), -20);
}

void TestDlgNice::updateWithoutADialogDoesNothing()
{
    DlgNice asker(nullptr);
    asker.update(7);
    const ModalDriver driver(closing());
    QCOMPARE(asker.askPriority(1), 1);
    asker.update(7);
}

void TestDlgNice::theSameObjectAsksAgain()
{
    DlgNice asker(nullptr);
    const auto choose = [](QWidget *dialog) {
        const Parts parts(dialog);
        QVERIFY(!parts.ok->isEnabled());
        parts.slider->setValue(parts.slider->value() + 1);
        parts.ok->click();
    };
    const ModalDriver driver({choose, choose});
    QCOMPARE(asker.askPriority(1), 2);
    QCOMPARE(asker.askPriority(5), 6);
    QCOMPARE(driver.count(), std::size_t(2));
}

QTEST_MAIN(TestDlgNice)
#include "test_dlgnice.moc"
