// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processbox.h"
#include "tests/process/support/synthetic.h"
#include "tests/support/modal.h"
#include "tests/support/rows.h"

#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>

namespace {

gtop_wrappers::Process processNamed(const QString &name = "sleep")
{
    return makeProcess({412, 0, name});
}

QMessageBox::StandardButton askAbout(const gtop_wrappers::Process &process)
{
    return showProcessBox(QMessageBox::Question, QStringLiteral("Process killing"),
                          QStringLiteral("Are you really?"), process, QMessageBox::Ok | QMessageBox::Cancel,
                          QMessageBox::Cancel);
}

/// Runs the question and hands its open box to `look`, which the box outlives; then closes it.
void lookAtBox(const std::function<void(QMessageBox *)> &look,
               const gtop_wrappers::Process &process = processNamed())
{
    const ModalDriver driver([&](QWidget *dialog) {
        look(qobject_cast<QMessageBox *>(dialog));
        dialog->close();
    });
    askAbout(process);
}

QLabel *informativeLabel(const QMessageBox *box)
{
    return box->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"));
}

/// Where a dialog with a parent widget opens.
QRect placeOfChildDialog(QWidget *parent)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Process killing"),
                    QStringLiteral("Are you really?"), QMessageBox::Ok | QMessageBox::Cancel, parent);
    box.setInformativeText(QStringLiteral("sleep (412)"));
    box.show();
    return box.geometry();
}

} // namespace

Q_DECLARE_METATYPE(ModalDriver::Handler)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class TestProcessBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aProcessIsLabelledWithNameAndPid_data()
    {
        const Rows<QString, QString> row("name", "label");
        row("plain", "sleep", "sleep (412)");
        row("no name", "", "412");
        row("HTML", "<b>x</b>", "<b>x</b> (412)");
        row("place markers", "%1 %2 %L1", "%1 %2 %L1 (412)");
        row("ampersands", "a&b && c", "a&b && c (412)");
        row("brackets", "(sd-pam)", "(sd-pam) (412)");
        row("other script", "имя", "имя (412)");
        row("unknown", QString(), "77");
    }

    void aProcessIsLabelledWithNameAndPid()
    {
        QFETCH(QString, name);
        QFETCH(QString, label);
        const auto process = name.isNull() ? gtop_wrappers::Process(77) : processNamed(name);
        QCOMPARE(processLabel(process), label);
        const auto look = [&](QMessageBox *box) {
            QCOMPARE(box->informativeText(), label);
            const QLabel *shown = informativeLabel(box);
            QVERIFY(shown && shown->isVisible());
            QCOMPARE(shown->text(), label);
            QCOMPARE(shown->textFormat(), Qt::PlainText);
            QVERIFY(shown->width() >= shown->fontMetrics().horizontalAdvance(label));
            QCOMPARE(box->text(), QStringLiteral("Are you really?"));
        };
        lookAtBox(look, process);
    }

    void theBoxIsThatOfTheStaticFunctions_data()
    {
        using Box = QMessageBox;
        const Rows<QMessageBox::Icon, QMessageBox::StandardButtons, QMessageBox::StandardButton> row(
            "icon", "buttons", "byDefault");
        row("question", Box::Question, (Box::Ok | Box::Cancel), Box::Cancel);
        // Without a default the static functions choose OK.
        row("warning", Box::Warning, Box::StandardButtons(Box::Ok), Box::NoButton);
    }

    /// Everything but the informative text.
    void theBoxIsThatOfTheStaticFunctions()
    {
        QFETCH(QMessageBox::Icon, icon);
        QFETCH(QMessageBox::StandardButtons, buttons);
        QFETCH(QMessageBox::StandardButton, byDefault);
        QVector<QStringList> seen;
        const auto look = [&](QWidget *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            QStringList facts{box->windowTitle(), box->text()};
            for (const int fact :
                 {int(box->icon()), int(box->standardButtons()),
                  int(box->standardButton(box->defaultButton())),
                  int(box->standardButton(box->escapeButton())), int(box->windowModality()),
                  int(box->windowFlags()), int(box->textFormat()), int(box->parentWidget() != nullptr),
                  int(box->isModal()), int(QGuiApplication::modalWindow() == box->windowHandle()),
                  int(box->testAttribute(Qt::WA_QuitOnClose))}) {
                facts << QString::number(fact);
            }
            for (const QAbstractButton *button : box->buttons()) {
                facts << button->text() << QString::number(box->focusWidget() == button);
            }
            seen << facts;
            dialog->close();
        };
        const QString title = QStringLiteral("Error");
        const QString text = QStringLiteral("<i>Reason</i> - none\nat all");
        QMainWindow window;
        window.show();
        const ModalDriver driver({look, look});
        const auto expected = icon == QMessageBox::Question
                                  ? QMessageBox::question(nullptr, title, text, buttons, byDefault)
                                  : QMessageBox::warning(nullptr, title, text, buttons, byDefault);
        QCOMPARE(showProcessBox(icon, title, text, processNamed(), buttons,
                                byDefault == QMessageBox::NoButton ? QMessageBox::Ok : byDefault),
                 expected);
        QCOMPARE(seen.size(), 2);
        QCOMPARE(seen.at(1), seen.at(0));
    }

    void theAnswerIsThePressedButton_data()
    {
        const Rows<ModalDriver::Handler, QMessageBox::StandardButton> row("answer", "button");
        row("OK", pressing(QMessageBox::Ok), QMessageBox::Ok);
        row("Cancel", pressing(QMessageBox::Cancel), QMessageBox::Cancel);
        row("Escape", typing(Qt::Key_Escape), QMessageBox::Cancel);
        row("Return", typing(Qt::Key_Return), QMessageBox::Cancel);
        row("closed", closing(), QMessageBox::Cancel);
    }

    void theAnswerIsThePressedButton()
    {
        QFETCH(ModalDriver::Handler, answer);
        QMainWindow window;
        window.show();
        const ModalDriver driver(answer);
        QTEST(askAbout(processNamed()), "button");
    }

    void theProgramCanQuitWhileTheBoxIsOpen()
    {
        QMainWindow window;
        window.show();
        const ModalDriver driver([](QWidget *) { QCoreApplication::quit(); });
        QMessageBox::StandardButton answer = QMessageBox::Ok;
        QTimer::singleShot(0, &window, [&] { answer = askAbout(processNamed()); });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(answer, QMessageBox::NoButton);
    }

    void theBoxIsACentredDialogOfTheMainWindowWithoutBeingItsChild()
    {
        QWidget other;
        other.show();
        QMainWindow window;
        window.setGeometry(200, 150, 500, 400);
        window.show();
        lookAtBox([&](QMessageBox *box) {
            QVERIFY(!box->parentWidget());
            QVERIFY(!box->parent());
            QCOMPARE(box->windowHandle()->transientParent(), window.windowHandle());
            const QPoint off = box->geometry().center() - window.geometry().center();
            QVERIFY2(std::abs(off.x()) <= 10 && std::abs(off.y()) <= 40, "more than a frame off");
        });
    }

    void theBoxOpensWhereADialogOfTheMainWindowDoes_data()
    {
        const Rows<QRect, Qt::WindowState> row("place", "state");
        const QRect inside(120, 90, 500, 400);
        row("inside the screen", inside, Qt::WindowNoState);
        row("beyond the left and top edges", QRect(-480, -380, 500, 400), Qt::WindowNoState);
        row("beyond the right and bottom edges", QRect(780, 780, 500, 400), Qt::WindowNoState);
        row("smaller than the box", QRect(300, 300, 90, 60), Qt::WindowNoState);
        row("maximized", inside, Qt::WindowMaximized);
        row("full screen", inside, Qt::WindowFullScreen);
        row("minimized", inside, Qt::WindowMinimized);
    }

    void theBoxOpensWhereADialogOfTheMainWindowDoes()
    {
        QFETCH(QRect, place);
        QFETCH(Qt::WindowState, state);
        QMainWindow window;
        window.setMinimumSize(10, 10);
        window.setGeometry(place);
        window.setWindowState(state);
        window.show();
        QCoreApplication::processEvents();
        const QRect expected = placeOfChildDialog(&window);
        lookAtBox([&](QMessageBox *box) {
            QCOMPARE(box->geometry(), expected);
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(box->geometry()));
            QVERIFY(box->windowHandle()->geometry() == box->geometry());
        });
    }

    void withoutAMainWindowTheBoxOpensAsBefore_data()
    {
        const Rows<bool> row("hidden");
        row("there is none", false);
        row("it is hidden", true);
    }

    void withoutAMainWindowTheBoxOpensAsBefore()
    {
        QFETCH(bool, hidden);
        std::unique_ptr<QMainWindow> window;
        if (hidden) {
            window = std::make_unique<QMainWindow>();
            window->setGeometry(600, 600, 100, 100);
        }
        const QRect expected = placeOfChildDialog(nullptr);
        lookAtBox([&](QMessageBox *box) {
            QVERIFY(!box->windowHandle()->transientParent());
            QCOMPARE(box->geometry(), expected);
        });
    }

    void timersGoOnWhileTheBoxIsOpen()
    {
        QMainWindow window;
        window.show();
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&] { ++ticks; });
        timer.start(1);
        lookAtBox([&](QMessageBox *) { QTRY_VERIFY(ticks > 5); });
    }

    void theBoxSurvivesItsMainWindow_data()
    {
        const Rows<bool> row("destroyed");
        row("closed", false);
        row("destroyed", true);
    }

    void theBoxSurvivesItsMainWindow()
    {
        QFETCH(bool, destroyed);
        auto window = std::make_unique<QMainWindow>();
        window->show();
        const ModalDriver driver([&](QWidget *dialog) {
            window->close();
            if (destroyed) {
                window.reset();
            }
            QCoreApplication::processEvents();
            dialog->hide();
            dialog->show();
            pressing(QMessageBox::Ok)(dialog);
        });
        const QMessageBox::StandardButton answer = askAbout(processNamed());
        QVERIFY(answer == QMessageBox::Ok || answer == QMessageBox::NoButton);
    }
};

QTEST_MAIN(TestProcessBox)
#include "test_processbox.moc"
