// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/modal.h"

#include <QMenu>

namespace {

QMessageBox::StandardButton ask(const QString &text)
{
    return QMessageBox::question(nullptr, QStringLiteral("Title"), text,
                                 QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
}

/// A menu whose only entry asks a question.
struct AskingMenu : QMenu
{
    AskingMenu()
    {
        connect(entry, &QAction::triggered, this, [this] { answer = ask(QStringLiteral("from the menu")); });
    }
    /// Opens the menu, clicks its entry and hands the box to `handler`.
    void run(const ModalDriver::Handler &handler)
    {
        const auto click = [this](QWidget *popup) {
            QCOMPARE(popup, this);
            QTest::mouseClick(popup, Qt::LeftButton, {}, actionGeometry(entry).center());
        };
        const ModalDriver driver({click, handler});
        QCOMPARE(exec(QPoint(10, 10)), entry);
    }

    QAction *entry = addAction(QStringLiteral("Ask"));
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
};

} // namespace

class TestModal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxesAreHandedOutInOrderWhileTheyRun()
    {
        const ModalDriver driver({pressing(QMessageBox::Cancel), pressing(QMessageBox::Ok), closing()});
        QCOMPARE(ask(QStringLiteral("1")), QMessageBox::Cancel);
        QCOMPARE(ask(QStringLiteral("2")), QMessageBox::Ok);
        QCOMPARE(ask(QStringLiteral("3")), QMessageBox::Cancel);
    }

    void aBoxIsReadBeforeItsButtonIsPressed()
    {
        SeenBox seen;
        const ModalDriver driver(pressing(QMessageBox::Ok, &seen));
        QCOMPARE(ask(QStringLiteral("Really?")), QMessageBox::Ok);
        QCOMPARE(seen.title, QStringLiteral("Title"));
        QCOMPARE(seen.text, QStringLiteral("Really?"));
        QCOMPARE(seen.icon, QMessageBox::Question);
        QCOMPARE(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
        QCOMPARE(seen.defaultButton, QMessageBox::Cancel);
        QVERIFY(!seen.hasParent);
    }

    void keysGoToTheFocusedButton()
    {
        const ModalDriver driver(
            {typing(Qt::Key_Return), [](QWidget *dialog) {
                 qobject_cast<QMessageBox *>(dialog)->button(QMessageBox::Ok)->setFocus();
                 typing(Qt::Key_Space)(dialog);
             }});
        QCOMPARE(ask(QStringLiteral("1")), QMessageBox::Cancel);
        QCOMPARE(ask(QStringLiteral("2")), QMessageBox::Ok);
    }

    void aMenuAndTheBoxThatItOpensAreHandedOut()
    {
        AskingMenu menu;
        menu.run(pressing(QMessageBox::Cancel));
        QCOMPARE(menu.answer, QMessageBox::Cancel);
        menu.run(pressing(QMessageBox::Ok));
        QCOMPARE(menu.answer, QMessageBox::Ok);
    }

    void aBoxThatOpensFromAnotherIsHandedOut()
    {
        QMessageBox::StandardButton inner = QMessageBox::NoButton;
        const auto askMore = [&](QWidget *dialog) {
            QTimer::singleShot(0, dialog, [&, dialog] {
                inner = ask(QStringLiteral("inner"));
                pressing(QMessageBox::Ok)(dialog);
            });
        };
        const ModalDriver driver({askMore, pressing(QMessageBox::Cancel)});
        QCOMPARE(ask(QStringLiteral("outer")), QMessageBox::Ok);
        QCOMPARE(inner, QMessageBox::Cancel);
    }

    void aDialogThatRunsAgainIsHandedOutAgain()
    {
        QMessageBox box;
        box.addButton(QMessageBox::Ok);
        const ModalDriver driver({pressing(QMessageBox::Ok), pressing(QMessageBox::Ok)});
        QCOMPARE(box.exec(), int(QMessageBox::Ok));
        QCOMPARE(box.exec(), int(QMessageBox::Ok));
    }

    void aHandlerWithoutDialogFailsTheTest()
    {
        QEXPECT_FAIL("", "the second handler", Continue);
        const ModalDriver driver({closing(), closing()});
        ask(QStringLiteral("the only one"));
    }

    void anUnexpectedDialogIsClosedAndFailsTheTest()
    {
        const ModalDriver driver;
        QEXPECT_FAIL("", "the box", Continue);
        ask(QStringLiteral("unexpected"));
    }

    void aDialogThatItsHandlerLeavesOpenIsClosedAndFailsTheTest()
    {
        const ModalDriver driver({[](QWidget *) {}}, 50);
        QEXPECT_FAIL("", "the box", Continue);
        QCOMPARE(ask(QStringLiteral("left open")), QMessageBox::Cancel);
    }
};

QTEST_MAIN(TestModal)
#include "test_modal.moc"
