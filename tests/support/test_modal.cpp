// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/modal.h"

#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

using testsupport::ModalStep;
using testsupport::onModal;

class TestModal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBoxIsHandedOutWhileItRuns();
    void boxesInARowAreHandedOutInOrder();
    void aPopupMenuIsHandedOut();
    void aBoxThatOpensFromAnotherIsHandedOut();
    void aBoxThatAMenuEntryOpensIsHandedOut();
    void aDialogThatRunsAgainIsHandedOutAgain();
    void aStepWithoutDialogIsNotDone();
    void aDialogThatNobodyAnswersIsClosed();
};

namespace {

std::function<void(QWidget *)> press(QMessageBox::StandardButton button)
{
    return [button](QWidget *dialog) {
        auto *const box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(box);
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    };
}

QMessageBox::StandardButton ask(const QString &text)
{
    return QMessageBox::question(nullptr, QStringLiteral("Title"), text,
                                 QMessageBox::Ok | QMessageBox::Cancel);
}

} // namespace

void TestModal::aBoxIsHandedOutWhileItRuns()
{
    QString text;
    const ModalStep step = onModal([&](QWidget *dialog) {
        text = qobject_cast<QMessageBox *>(dialog)->text();
        press(QMessageBox::Ok)(dialog);
    });
    QVERIFY(!step.done());
    QCOMPARE(ask(QStringLiteral("Really?")), QMessageBox::Ok);
    QVERIFY(step.done());
    QCOMPARE(text, QStringLiteral("Really?"));
}

void TestModal::boxesInARowAreHandedOutInOrder()
{
    const ModalStep first = onModal(press(QMessageBox::Cancel));
    const ModalStep second = onModal(press(QMessageBox::Ok));
    QCOMPARE(ask(QStringLiteral("1")), QMessageBox::Cancel);
    QVERIFY(first.done());
    QVERIFY(!second.done());
    QCOMPARE(ask(QStringLiteral("2")), QMessageBox::Ok);
    QVERIFY(second.done());
}

void TestModal::aPopupMenuIsHandedOut()
{
    QMenu menu;
    QAction *const action = menu.addAction(QStringLiteral("Do"));
    const ModalStep step = onModal([&](QWidget *popup) {
        QCOMPARE(popup, &menu);
        QTest::mouseClick(popup, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    });
    QCOMPARE(menu.exec(QPoint(10, 10)), action);
    QVERIFY(step.done());
}

void TestModal::aBoxThatOpensFromAnotherIsHandedOut()
{
    QMessageBox::StandardButton inner = QMessageBox::NoButton;
    const ModalStep outerStep = onModal([&](QWidget *dialog) {
        QTimer::singleShot(0, dialog, [&, dialog] {
            inner = ask(QStringLiteral("inner"));
            press(QMessageBox::Ok)(dialog);
        });
    });
    const ModalStep innerStep = onModal(press(QMessageBox::Cancel));
    QCOMPARE(ask(QStringLiteral("outer")), QMessageBox::Ok);
    QVERIFY(outerStep.done());
    QVERIFY(innerStep.done());
    QCOMPARE(inner, QMessageBox::Cancel);
}

void TestModal::aBoxThatAMenuEntryOpensIsHandedOut()
{
    QMenu menu;
    QAction *const action = menu.addAction(QStringLiteral("Ask"));
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
    connect(action, &QAction::triggered, &menu, [&] { answer = ask(QStringLiteral("from the menu")); });
    const ModalStep menuStep = onModal([&](QWidget *popup) {
        QTest::mouseClick(popup, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    });
    const ModalStep boxStep = onModal(press(QMessageBox::Cancel));
    menu.exec(QPoint(10, 10));
    QVERIFY(menuStep.done());
    QVERIFY(boxStep.done());
    QCOMPARE(answer, QMessageBox::Cancel);
}

void TestModal::aDialogThatRunsAgainIsHandedOutAgain()
{
    QMessageBox box;
    box.addButton(QMessageBox::Ok);
    for (int i = 0; i < 2; ++i) {
        const ModalStep step = onModal(press(QMessageBox::Ok));
        QCOMPARE(box.exec(), int(QMessageBox::Ok));
        QVERIFY(step.done());
    }
}

void TestModal::aStepWithoutDialogIsNotDone()
{
    static bool warned;
    warned = false;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            warned = text == QLatin1String("No modal dialog came within 20 ms");
        });
    const ModalStep step = onModal([](QWidget *) {}, 20);
    const bool came = QTest::qWaitFor([] { return warned; });
    qInstallMessageHandler(before);
    QVERIFY(came);
    QVERIFY(!step.done());
}

void TestModal::aDialogThatNobodyAnswersIsClosed()
{
    QTest::ignoreMessage(QtWarningMsg, "No modal dialog came within 50 ms");
    const ModalStep seen = onModal([](QWidget *) {});
    const ModalStep never = onModal([](QWidget *) {}, 50);
    QCOMPARE(ask(QStringLiteral("left open")), QMessageBox::Cancel);
    QVERIFY(seen.done());
    QVERIFY(!never.done());
}

QTEST_MAIN(TestModal)
#include "test_modal.moc"
