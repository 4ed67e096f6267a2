// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/menus.h"
#include "tests/process/support/modaldriver.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

struct LoggedLine
{
    QtMsgType type = QtDebugMsg;
    QString category;
    QString text;
};
LoggedLine lastLine;

void keepLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    lastLine = {type, QLatin1String(context.category), text};
}

/// The line that `act` logs.
LoggedLine lineOf(const std::function<void()> &act)
{
    lastLine = LoggedLine();
    const QtMessageHandler before = qInstallMessageHandler(keepLine);
    act();
    qInstallMessageHandler(before);
    return lastLine;
}

} // namespace

/// What the actions do when they are triggered.
class TestProcessMenuCommands : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void treeViewSwitchesTheMode();
    void allProcessesResetsEvenWhenChecked();
    void myProcessesSetsTheTypes();
    void expandAndCollapseReachTheView();
    void anUnknownKindDoesNothing();
    void aDirectCallWritesOneCriticalLine();
    void aSenderThatIsNoActionWritesTheSameLine();
    void eachSignalAsksItsQuestion_data();
    void eachSignalAsksItsQuestion();
    void anUnknownSignalAsksItsQuestionToo();
};

void TestProcessMenuCommands::treeViewSwitchesTheMode()
{
    const Desk desk;
    const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
    desk.trigger("Tree view");
    QVERIFY(!desk.list->isFlat());
    QCOMPARE(resets.count(), 3);
    desk.trigger("Tree view");
    QVERIFY(desk.list->isFlat());
}

void TestProcessMenuCommands::allProcessesResetsEvenWhenChecked()
{
    const Desk desk;
    desk.trigger("All processes");
    QCOMPARE(desk.list->processTypes(), 0);
    QVERIFY(desk.action("All processes")->isChecked());
    const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
    desk.trigger("All processes");
    QCOMPARE(desk.list->processTypes(), 0);
    QCOMPARE(resets.count(), 2);
}

void TestProcessMenuCommands::myProcessesSetsTheTypes()
{
    const Desk desk;
    desk.list->setProcessTypes(0);
    desk.trigger("My processes");
    QCOMPARE(desk.list->processTypes(), 1);
}

void TestProcessMenuCommands::expandAndCollapseReachTheView()
{
    const Desk desk;
    desk.list->setFlat(false);
    desk.list->refresh(makeSnapshot({{1, 0}, {2, 1}}));
    const QModelIndex top = desk.list->index(0, 0);
    desk.trigger("Collapse all");
    QVERIFY(!desk.view.isExpanded(top));
    desk.trigger("Expand all");
    QVERIFY(desk.view.isExpanded(top));
}

void TestProcessMenuCommands::anUnknownKindDoesNothing()
{
    const Desk desk;
    const ModalDriver driver(std::vector<ModalDriver::Handler>{});
    const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
    QAction foreign;
    connect(&foreign, SIGNAL(triggered(bool)), desk.actions, SLOT(process()));
    for (const QVariant &data : {QVariant(QVariantList{5, 1}), QVariant(QVariantList{-1}),
                                 QVariant(QVariantList()), QVariant(), QVariant(QStringLiteral("text"))}) {
        foreign.setData(data);
        foreign.trigger();
    }
    QCOMPARE(resets.count(), 0);
    QCOMPARE(driver.count(), std::size_t(0));
    QVERIFY(desk.list->isFlat());
}

void TestProcessMenuCommands::aDirectCallWritesOneCriticalLine()
{
    const Desk desk;
    const LoggedLine line = lineOf([&] { desk.actions->process(); });
    QCOMPARE(line.type, QtCriticalMsg);
    QCOMPARE(line.category, QStringLiteral("default"));
    QCOMPARE(line.text, QStringLiteral("void ProcessMenu::process() call not by signal"));
}

void TestProcessMenuCommands::aSenderThatIsNoActionWritesTheSameLine()
{
    const Desk desk;
    QObject sender;
    connect(&sender, SIGNAL(objectNameChanged(QString)), desk.actions, SLOT(process()));
    const LoggedLine line = lineOf([&] { sender.setObjectName(QStringLiteral("x")); });
    QCOMPARE(line.text, QStringLiteral("void ProcessMenu::process() call not by signal"));
}

void TestProcessMenuCommands::eachSignalAsksItsQuestion_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("Stop process") << "Process stopping"
                                  << "Are you really want to stop process?\n"
                                     "You would be able to resume it later.";
    QTest::newRow("Continue process") << "Process resuming"
                                      << "Are you really want to resume process?";
    QTest::newRow("Terminate process") << "Process terminating"
                                       << "Are you really want to terminate process?\n"
                                          "Process will have ability to finish normally.";
    QTest::newRow("Kill process") << "Process killing"
                                  << "Are you really want to kill process?\n"
                                     "Process will no have ability to finish normally.\n"
                                     "All process data can be lost.";
}

void TestProcessMenuCommands::eachSignalAsksItsQuestion()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    const Desk desk; // nothing is selected: even a wrong answer would reach nobody
    SeenBox seen;
    const ModalDriver driver(pressing(QMessageBox::Cancel, &seen));
    desk.trigger(QTest::currentDataTag());
    QCOMPARE(driver.count(), std::size_t(1));
    QCOMPARE(seen.title, title);
    QCOMPARE(seen.text, text);
    QCOMPARE(seen.icon, QMessageBox::Question);
    QCOMPARE(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(seen.defaultButton, QMessageBox::Cancel);
    QVERIFY(!seen.hasParent);
}

void TestProcessMenuCommands::anUnknownSignalAsksItsQuestionToo()
{
    const Desk desk;
    for (const int signal : {1, 0, -1, 64}) {
        QAction foreign;
        connect(&foreign, SIGNAL(triggered(bool)), desk.actions, SLOT(process()));
        foreign.setData(QVariantList{1, signal});
        SeenBox seen;
        const ModalDriver driver(pressing(QMessageBox::Cancel, &seen));
        foreign.trigger();
        QCOMPARE(driver.count(), std::size_t(1));
        QCOMPARE(seen.title, QStringLiteral("Unknown signal"));
        QCOMPARE(seen.text, QStringLiteral("Unknown signal"));
        QCOMPARE(seen.defaultButton, QMessageBox::Cancel);
    }
}

QTEST_MAIN(TestProcessMenuCommands)
#include "test_processmenu_commands.moc"
