// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/processbox.h"
#include "tests/process/support/synthetic.h"
#include "tests/support/modal.h"

#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>

namespace {

gtop_wrappers::Process processNamed(const QString &name, int pid = 412)
{
    Facts facts;
    facts.pid = pid;
    facts.name = name;
    return makeProcess(facts);
}

QMessageBox::StandardButton askAbout(const gtop_wrappers::Process &process)
{
    return showProcessBox(QMessageBox::Question, QStringLiteral("Process killing"),
                          QStringLiteral("Are you really?"), process, QMessageBox::Ok | QMessageBox::Cancel,
                          QMessageBox::Cancel);
}

/// Runs the question and hands its open box to `look`, which the box outlives; then closes it.
void lookAtBox(const std::function<void(QMessageBox *)> &look,
               const gtop_wrappers::Process &process = processNamed(QStringLiteral("sleep")))
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
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("label");
        QTest::newRow("plain") << "sleep"
                               << "sleep (412)";
        QTest::newRow("no name") << ""
                                 << "412";
        QTest::newRow("HTML") << "<b>x</b>"
                              << "<b>x</b> (412)";
        QTest::newRow("place markers") << "%1 %2 %L1"
                                       << "%1 %2 %L1 (412)";
        QTest::newRow("ampersands") << "a&b && c"
                                    << "a&b && c (412)";
        QTest::newRow("brackets") << "(sd-pam)"
                                  << "(sd-pam) (412)";
        QTest::newRow("other script") << QString::fromUtf8("имя") << QString::fromUtf8("имя (412)");
    }

    void aProcessIsLabelledWithNameAndPid()
    {
        QFETCH(QString, name);
        QFETCH(QString, label);
        QCOMPARE(processLabel(processNamed(name)), label);
        const auto look = [&](QMessageBox *box) {
            QCOMPARE(box->informativeText(), label);
            const QLabel *shown = informativeLabel(box);
            QVERIFY(shown && shown->isVisible());
            QCOMPARE(shown->text(), label);
            QCOMPARE(shown->textFormat(), Qt::PlainText);
            QVERIFY(shown->width() >= shown->fontMetrics().horizontalAdvance(label));
            QCOMPARE(box->text(), QStringLiteral("Are you really?"));
        };
        lookAtBox(look, processNamed(name));
    }

    void onlyAPidIsShownOfAnUnknownProcess()
    {
        QCOMPARE(processLabel(gtop_wrappers::Process(77)), QStringLiteral("77"));
        lookAtBox([](QMessageBox *box) { QCOMPARE(box->informativeText(), QStringLiteral("77")); },
                  gtop_wrappers::Process(77));
    }

    void theBoxIsThatOfTheStaticFunctions_data()
    {
        using Box = QMessageBox;
        QTest::addColumn<QMessageBox::Icon>("icon");
        QTest::addColumn<QMessageBox::StandardButtons>("buttons");
        QTest::addColumn<QMessageBox::StandardButton>("byDefault");
        QTest::newRow("question") << Box::Question << (Box::Ok | Box::Cancel) << Box::Cancel;
        // Without a default the static functions choose OK.
        QTest::newRow("warning") << Box::Warning << Box::StandardButtons(Box::Ok) << Box::NoButton;
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
        QCOMPARE(showProcessBox(icon, title, text, processNamed(QStringLiteral("sleep")), buttons,
                                byDefault == QMessageBox::NoButton ? QMessageBox::Ok : byDefault),
                 expected);
        QCOMPARE(seen.size(), 2);
        QCOMPARE(seen.at(1), seen.at(0));
    }

    void theAnswerIsThePressedButton_data()
    {
        QTest::addColumn<ModalDriver::Handler>("answer");
        QTest::addColumn<QMessageBox::StandardButton>("button");
        QTest::newRow("OK") << pressing(QMessageBox::Ok) << QMessageBox::Ok;
        QTest::newRow("Cancel") << pressing(QMessageBox::Cancel) << QMessageBox::Cancel;
        QTest::newRow("Escape") << typing(Qt::Key_Escape) << QMessageBox::Cancel;
        QTest::newRow("Return") << typing(Qt::Key_Return) << QMessageBox::Cancel;
        QTest::newRow("closed") << closing() << QMessageBox::Cancel;
    }

    void theAnswerIsThePressedButton()
    {
        QFETCH(ModalDriver::Handler, answer);
        QMainWindow window;
        window.show();
        const ModalDriver driver(answer);
        QTEST(askAbout(processNamed(QStringLiteral("sleep"))), "button");
    }

    void theProgramCanQuitWhileTheBoxIsOpen()
    {
        QMainWindow window;
        window.show();
        const ModalDriver driver([](QWidget *) { QCoreApplication::quit(); });
        QMessageBox::StandardButton answer = QMessageBox::Ok;
        QTimer::singleShot(0, &window, [&] { answer = askAbout(processNamed(QStringLiteral("sleep"))); });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(answer, QMessageBox::NoButton);
    }

    void theBoxIsADialogOfTheMainWindowWithoutBeingItsChild()
    {
        QWidget other;
        other.show();
        QMainWindow window;
        window.show();
        lookAtBox([&](QMessageBox *box) {
            QVERIFY(!box->parentWidget());
            QVERIFY(!box->parent());
            QCOMPARE(box->windowHandle()->transientParent(), window.windowHandle());
        });
    }

    void theBoxOpensWhereADialogOfTheMainWindowDoes_data()
    {
        QTest::addColumn<QRect>("place");
        QTest::addColumn<Qt::WindowState>("state");
        const QRect inside(120, 90, 500, 400);
        QTest::newRow("inside the screen") << inside << Qt::WindowNoState;
        QTest::newRow("beyond the left and top edges") << QRect(-480, -380, 500, 400) << Qt::WindowNoState;
        QTest::newRow("beyond the right and bottom edges") << QRect(780, 780, 500, 400) << Qt::WindowNoState;
        QTest::newRow("smaller than the box") << QRect(300, 300, 90, 60) << Qt::WindowNoState;
        QTest::newRow("maximized") << inside << Qt::WindowMaximized;
        QTest::newRow("full screen") << inside << Qt::WindowFullScreen;
        QTest::newRow("minimized") << inside << Qt::WindowMinimized;
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

    void theBoxIsCentredOnTheMainWindow()
    {
        QMainWindow window;
        window.setGeometry(200, 150, 500, 400);
        window.show();
        lookAtBox([&](QMessageBox *box) {
            const QPoint off = box->geometry().center() - window.geometry().center();
            QVERIFY2(std::abs(off.x()) <= 10 && std::abs(off.y()) <= 40, "more than a frame off");
        });
    }

    void withoutAMainWindowTheBoxOpensAsBefore_data()
    {
        QTest::addColumn<bool>("hidden");
        QTest::newRow("there is none") << false;
        QTest::newRow("it is hidden") << true;
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
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("closed") << false;
        QTest::newRow("destroyed") << true;
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
        const QMessageBox::StandardButton answer = askAbout(processNamed(QStringLiteral("sleep")));
        QVERIFY(answer == QMessageBox::Ok || answer == QMessageBox::NoButton);
    }
};

QTEST_MAIN(TestProcessBox)
#include "test_processbox.moc"
