// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/process/support/menus.h"
#include "tests/support/modal.h"

#include <QSignalSpy>

namespace {

constexpr int noSuchPid = 0x7ffffff0; ///< beyond the kernel's largest

QStringList logged;

void keepLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    logged.append(QStringLiteral("%1 %2: %3").arg(type).arg(QLatin1String(context.category), text));
}

/// The lines that `act` logs, with their type and category.
QStringList linesOf(const std::function<void()> &act)
{
    logged.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepLine);
    act();
    qInstallMessageHandler(before);
    return logged;
}

} // namespace

/// What the actions do when they are triggered.
class TestProcessMenuCommands : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void treeViewSwitchesTheMode()
    {
        const Desk desk;
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        desk.trigger("Tree view");
        QVERIFY(!desk.list->isFlat());
        QCOMPARE(resets.count(), 3);
        desk.trigger("Tree view");
        QVERIFY(desk.list->isFlat());
    }

    void allProcessesResetsEvenWhenChecked()
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

    void myProcessesSetsTheTypes()
    {
        const Desk desk;
        desk.list->setProcessTypes(0);
        desk.trigger("My processes");
        QCOMPARE(desk.list->processTypes(), 1);
    }

    void expandAndCollapseReachTheView()
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

    void anUnknownKindDoesNothing()
    {
        const Desk desk;
        const ModalDriver noDialog;
        const QSignalSpy resets(desk.list, SIGNAL(modelReset()));
        for (const QVariant &data :
             {QVariant(QVariantList{5, 1}), QVariant(QVariantList{-1}), QVariant(QVariantList()), QVariant(),
              QVariant(QStringLiteral("text"))}) {
            desk.triggerForeign(data);
        }
        QCOMPARE(resets.count(), 0);
        QVERIFY(desk.list->isFlat());
    }

    void withoutAnActionAsSenderOneCriticalLineIsLogged()
    {
        const Desk desk;
        QObject sender;
        connect(&sender, SIGNAL(objectNameChanged(QString)), desk.actions, SLOT(process()));
        const QStringList expected{
            QStringLiteral("%1 default: void ProcessMenu::process() call not by signal").arg(QtCriticalMsg)};
        QCOMPARE(linesOf([&] { desk.actions->process(); }), expected);
        QCOMPARE(linesOf([&] { sender.setObjectName(QStringLiteral("x")); }), expected);
    }

    void eachSignalAsksItsQuestion_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("Stop process") << 19 << "Process stopping"
                                      << "Are you really want to stop process?\n"
                                         "You would be able to resume it later.";
        QTest::newRow("Continue process") << 18 << "Process resuming"
                                          << "Are you really want to resume process?";
        QTest::newRow("Terminate process") << 15 << "Process terminating"
                                           << "Are you really want to terminate process?\n"
                                              "Process will have ability to finish normally.";
        QTest::newRow("Kill process") << 9 << "Process killing"
                                      << "Are you really want to kill process?\n"
                                         "Process will no have ability to finish normally.\n"
                                         "All process data can be lost.";
        for (const int unknown : {1, 0, -1, 64}) {
            QTest::addRow("signal %d", unknown) << unknown << "Unknown signal"
                                                << "Unknown signal";
        }
    }

    void eachSignalAsksItsQuestion()
    {
        QFETCH(int, signal);
        const Desk desk; // nothing is selected: even a wrong answer would reach nobody
        QList<SeenBox> boxes;
        const auto cancel = [&](QWidget *dialog) {
            boxes.append(SeenBox());
            pressing(QMessageBox::Cancel, &boxes.last())(dialog);
        };
        const bool hasAction = desk.action(QTest::currentDataTag()) != nullptr;
        const ModalDriver driver(std::vector<ModalDriver::Handler>(hasAction ? 2 : 1, cancel));
        if (hasAction) {
            desk.trigger(QTest::currentDataTag());
        }
        desk.triggerForeign(QVariantList{1, signal});
        for (const SeenBox &seen : boxes) {
            QTEST(seen.title, "title");
            QTEST(seen.text, "text");
            QCOMPARE(seen.icon, QMessageBox::Question);
            QCOMPARE(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
            QCOMPARE(seen.defaultButton, QMessageBox::Cancel);
            QVERIFY(!seen.hasParent);
        }
    }

    void eachQuestionNamesTheSelectedProcess_data()
    {
        QTest::addColumn<QString>("action");
        for (const char *action : {"Stop process", "Continue process", "Terminate process", "Kill process"}) {
            QTest::newRow(action) << action;
        }
    }

    void eachQuestionNamesTheSelectedProcess()
    {
        QFETCH(QString, action);
        const Desk desk;
        Facts facts;
        facts.pid = noSuchPid;
        facts.name = QStringLiteral("<b>%1</b>");
        facts.state = action == QLatin1String("Continue process") ? 16 : 1;
        desk.actions->setProcess(makeProcess(facts));
        const ModalDriver driver([](QWidget *dialog) {
            QCOMPARE(
                qobject_cast<QMessageBox *>(dialog)->informativeText(),
                QStringLiteral("<b>%1</b> (%2)").replace(QLatin1String("%2"), QString::number(noSuchPid)));
            dialog->close();
        });
        desk.trigger(qPrintable(action));
    }
};

QTEST_MAIN(TestProcessMenuCommands)
#include "test_processmenu_commands.moc"
