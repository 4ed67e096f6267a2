// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipping.h"
#include "integration/zarninit.h"
#include "language.h"
#include "process/proxyprocmodel.h"
#include "tests/app/fixture.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

// Each dialog, in each language, can be read and has buttons in that language.
class TestTranslatedDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theIntervalDialogsCanBeRead_data() { everyLanguage(); }
    void theIntervalDialogsCanBeRead();
    void thePriorityDialogCanBeRead_data() { everyLanguage(); }
    void thePriorityDialogCanBeRead();
    void theQuestionsBeforeASignalCanBeRead_data() { everyLanguage(); }
    void theQuestionsBeforeASignalCanBeRead();
    void theWarningsCanBeRead_data() { everyLanguage(); }
    void theWarningsCanBeRead();
    void theAboutBoxCanBeRead_data() { everyLanguage(); }
    void theAboutBoxCanBeRead();

private:
    /// Opens a dialog, looks at it with `look` besides, and cancels it.
    static void checkDialog(
        const std::function<void()> &open, const std::function<void(QWidget *)> &look = [](QWidget *) {})
    {
        const ModalDriver driver([&](QWidget *dialog) {
            QCoreApplication::processEvents();
            check(dialog);
            look(dialog);
            dialog->close();
        });
        open();
    }
    static void check(QWidget *dialog)
    {
        QCOMPARE(unreadableTexts(dialog).join(QLatin1Char('\n')), QString());
        QVERIFY(dialog->width() <= 640);
        const auto *buttons = dialog->findChild<QDialogButtonBox *>();
        QVERIFY(buttons);
        checkButton(buttons->button(QDialogButtonBox::Ok), "OK");
        checkButton(buttons->button(QDialogButtonBox::Cancel), "Cancel");
    }
    static void checkButton(const QAbstractButton *button, const char *text)
    {
        if (button) {
            QCOMPARE(button->text().remove(QLatin1Char('&')),
                     QCoreApplication::translate("QPlatformTheme", text));
        }
    }
    /// The controller on the page of processes, with a stopped one in the third row.
    static void startOnProcesses(Fixture &fixture)
    {
        (*standin::machine().processes)[300].state = 16;
        fixture.start(1);
        QMetaObject::invokeMethod(&fixture.updater(), "slotTabChanged", Q_ARG(int, 1));
    }
    static void select(int row)
    {
        auto *tree = Fixture::find<QTreeView>("treeView");
        tree->setCurrentIndex(tree->model()->index(row, 0));
    }
    static QMenu *editEntry(int position)
    {
        return Fixture::window()->menuBar()->actions().at(1)->menu()->actions().at(position)->menu();
    }
    /// The entry on a process that has these numbers as its data.
    static QAction *processAction(const QVariantList &data)
    {
        for (QAction *action : editEntry(1)->actions()) {
            if (action->data().toList() == data) {
                return action;
            }
        }
        return nullptr;
    }
};

void TestTranslatedDialogs::theIntervalDialogsCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    fixture.start();
    const QList<QAction *> entries = editEntry(0)->actions();
    QCOMPARE(entries.size(), 4);
    for (QAction *entry : entries) {
        checkDialog([entry] { entry->trigger(); });
    }
}

void TestTranslatedDialogs::thePriorityDialogCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    startOnProcesses(fixture);
    select(0);
    QAction *entry = processAction({4});
    QVERIFY(entry);
    const auto atEachLevel = [](QWidget *dialog) {
        auto *slider = dialog->findChild<QSlider *>();
        for (int nice : {-20, -10, 0, 10, 20}) {
            slider->setValue(nice);
            QCoreApplication::processEvents();
            QCOMPARE(unreadableTexts(dialog).join(QLatin1Char('\n')), QString());
        }
    };
    checkDialog([entry] { entry->trigger(); }, atEachLevel);
}

void TestTranslatedDialogs::theQuestionsBeforeASignalCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    startOnProcesses(fixture);
    for (int signal : {19, 18, 15, 9}) {
        select(signal == 18 ? 2 : 0);
        QAction *entry = processAction({1, signal});
        QVERIFY(entry && entry->isEnabled());
        checkDialog([entry] { entry->trigger(); });
    }
}

void TestTranslatedDialogs::theWarningsCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    Fixture fixture;
    fixture.start();
    auto *model = qobject_cast<ProxyProcModel *>(Fixture::find<QTreeView>("treeView")->model());
    const int nobody = 0x7fffffff; // above the largest pid that the kernel gives
    checkDialog([&] { model->sendSignal(nobody, 15); });
    checkDialog([&] { model->setPriority(nobody, 1); });
}

void TestTranslatedDialogs::theAboutBoxCanBeRead()
{
    QFETCH(QString, language);
    const InLanguage texts(language);
    zarnInit("1.2.2", "System monitor allows you to watch general system info, processes info, mount points "
                      "and network stat.");
    Fixture fixture;
    fixture.start();
    QAction *entry = Fixture::window()->menuBar()->actions().at(2)->menu()->actions().first();
    checkDialog([entry] { entry->trigger(); },
                [](QWidget *dialog) {
                    QVERIFY(qobject_cast<QMessageBox *>(dialog)->text().contains(zarnDescription()));
                });
}

QTEST_MAIN(TestTranslatedDialogs)
#include "test_translateddialogs.moc"
