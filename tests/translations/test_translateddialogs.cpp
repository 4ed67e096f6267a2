// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue.h"
#include "clipping.h"
#include "integration/zarninit.h"
#include "process/processbox.h"
#include "process/proxyprocmodel.h"
#include "tests/app/fixture.h"
#include "tests/support/modal.h"

#include <QtTest>
#include <QtWidgets>

#include <csignal>

/// Each dialog is legible in each language, with buttons in that language.
class TestTranslatedDialogs : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { everyLanguage(); }

    void initTestCase()
    {
        zarnInit("1.2.2",
                 "System monitor allows you to watch general system info, processes info, mount points "
                 "and network stat.");
    }

    void init()
    {
        QFETCH_GLOBAL(QString, language);
        useLanguage(language);
        ControllerTest::init();
        (*standin::machine().processes)[stopped].state = 16;
        fixture->start(1);
        QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 1));
    }

    void theIntervalDialogsAreLegible()
    {
        const QList<QAction *> entries = menu(1)->actions().at(0)->menu()->actions();
        QCOMPARE(entries.size(), 4);
        for (QAction *entry : entries) {
            checkDialogOf(entry);
        }
    }

    void thePriorityDialogIsLegible()
    {
        select(100);
        checkDialogOf(processAction({4}), [](QWidget *dialog) {
            const QString title = QCoreApplication::translate("DlgNice", "Change priority");
            QCOMPARE(title == QLatin1String("Change priority"), isEnglish());
            QCOMPARE(dialog->windowTitle(), title + QStringLiteral(" - ") + selectedProcess());
            auto *slider = dialog->findChild<QSlider *>();
            for (int nice : {-20, -10, 0, 10, 20}) {
                slider->setValue(nice);
                QCoreApplication::processEvents();
                QCOMPARE(unreadableTexts(dialog).join(QLatin1Char('\n')), QString());
            }
        });
    }

    void theQuestionsBeforeASignalAreLegible()
    {
        for (int signal : {SIGSTOP, SIGCONT, SIGTERM, SIGKILL}) {
            select(signal == SIGCONT ? stopped : 100);
            checkDialogOf(processAction({1, signal}), [](QWidget *dialog) {
                QCOMPARE(qobject_cast<QMessageBox *>(dialog)->informativeText(), selectedProcess());
            });
        }
    }

    void theWarningsAreLegible()
    {
        static constexpr int nobody = 0x7fffffff; // beyond the kernel's largest pid
        const auto look = [](QWidget *dialog) {
            QCOMPARE(qobject_cast<QMessageBox *>(dialog)->informativeText(), QString::number(nobody));
        };
        checkDialog([] { list()->sendSignal(nobody, 15); }, look);
        checkDialog([] { list()->setPriority(nobody, 1); }, look);
    }

    void theAboutBoxIsLegible()
    {
        checkDialogOf(menu(2)->actions().first(), [](QWidget *dialog) {
            QVERIFY(qobject_cast<QMessageBox *>(dialog)->text().contains(zarnDescription()));
        });
    }

private:
    using Look = std::function<void(QWidget *)>;

    static constexpr int stopped = 300;

    /// As dialogs name it.
    static QString selectedProcess() { return processLabel(list()->processAt(view()->currentIndex())); }
    static bool isEnglish()
    {
        QFETCH_GLOBAL(QString, language);
        return language == QLatin1String("C");
    }
    static QMenu *menu(int position) { return Fixture::window()->menuBar()->actions().at(position)->menu(); }

    /// The entry on a process that has these numbers as its data.
    static QAction *processAction(const QVariantList &data)
    {
        for (QAction *action : menu(1)->actions().at(1)->menu()->actions()) {
            if (action->data().toList() == data) {
                return action;
            }
        }
        return nullptr;
    }

    static void checkDialogOf(QAction *entry, const Look &look = {})
    {
        QVERIFY(entry && entry->isEnabled());
        checkDialog([entry] { entry->trigger(); }, look);
    }

    /// Opens a dialog, checks it, also with `look`, and cancels it.
    static void checkDialog(const std::function<void()> &open, const Look &look = {})
    {
        const ModalDriver driver([&](QWidget *dialog) {
            QCoreApplication::processEvents();
            check(dialog);
            if (look) {
                look(dialog);
            }
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
        for (const auto &[kind, text] :
             {std::pair(QDialogButtonBox::Ok, "OK"), std::pair(QDialogButtonBox::Cancel, "Cancel")}) {
            if (const auto *button = buttons->button(kind)) {
                QCOMPARE(button->text().remove(QLatin1Char('&')),
                         QCoreApplication::translate("QPlatformTheme", text));
            }
        }
    }
};

QTEST_MAIN(TestTranslatedDialogs)
#include "test_translateddialogs.moc"
