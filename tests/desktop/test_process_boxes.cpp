// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/madeupprocess.h"
#include "tests/desktop/programtest.h"

namespace {

const int pid = madeUpPid(412);
const char *const names[] = {"sleep", "<b>bold</b>"};

} // namespace

/// Boxes about a process name it, and open over the main window, wherever that is.
class TestProcessBoxes : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllAndQuit(); }

    void questionsNameTheProcess_data()
    {
        const Rows<QString, QString> row("shortcut", "title");
        row("stop", "ctrl+s", "Process stopping");
        row("terminate", "ctrl+t", "Process terminating");
        row("kill", "ctrl+k", "Process killing");
    }

    void questionsNameTheProcess()
    {
        QFETCH(QString, shortcut);
        QFETCH(QString, title);
        for (const char *name : names) {
            start(name);
            QVERIFY(session->key(shortcut));
            QVERIFY(page->waitForDialog(title));
            QVERIFY(informs(name));
            QVERIFY(session->waitFor([&] { return isOverTheMainWindow(); }));
            QVERIFY(session->savePicture(QString("box-%1").arg(QTest::currentDataTag())));
            if (name != std::end(names)[-1]) {
                QVERIFY(page->dismissAll());
                verifyQuitsCleanly();
            }
        }
    }

    void errorsNameTheProcess_data()
    {
        const Rows<bool> row("isPriority");
        row("signal", false);
        row("priority", true);
    }

    /// The kernel knows no such process.
    void errorsNameTheProcess()
    {
        QFETCH(bool, isPriority);
        start(names[0]);
        if (isPriority) {
            QVERIFY(openPriorityDialog());
            QVERIFY(session->key("Right"));
            QVERIFY(session->waitFor([&] { return okIsEnabled(); }));
        } else {
            QVERIFY(session->key("ctrl+k"));
        }
        QVERIFY(session->clickButton("OK"));
        QVERIFY(page->waitForDialog("Error"));
        QVERIFY(session->dialog().value("text").toString().endsWith("No such process"));
        QVERIFY(informs(names[0]));
        QVERIFY(session->waitFor([&] { return isOverTheMainWindow(); }));
        QVERIFY(session->savePicture(QString("box-error-%1").arg(QTest::currentDataTag())));
    }

    void thePriorityDialogNamesTheProcess()
    {
        start(names[0]);
        QVERIFY(openPriorityDialog());
        QCOMPARE(session->dialog().value("title").toString(),
                 QString("Change priority - sleep (%1)").arg(pid));
        QVERIFY(session->waitFor([&] { return isOverTheMainWindow(); }));
        QVERIFY(session->savePicture("dialog-priority-over-the-window"));
    }

private:
    /// With the main window in the lower right corner of the screen and the process selected.
    void start(const char *name)
    {
        SessionOptions options;
        options.machine = standin::Machine{};
        options.machine->processes.emplace();
        (*options.machine->processes)[pid] = madeUpProcess(name);
        startProgram(options);
        const QRect frame = rectOf(session->mainWindow().value("frame"));
        const QPoint corner(options.screen.width() - frame.width(), options.screen.height() - frame.height());
        session->x().moveWindow(session->windowId(), corner);
        QVERIFY(session->waitFor(
            [&] { return rectOf(session->mainWindow().value("frame")).topLeft() == corner; }));
        QVERIFY(page->select(pid));
    }

    bool openPriorityDialog()
    {
        return page->openContextMenu(pid) && session->clickMenu("Change priority...") &&
               page->waitForDialog("Change priority");
    }

    /// Below the text, as plain text.
    bool informs(const char *name)
    {
        const QString label = QString("%1 (%2)").arg(name).arg(pid);
        const QJsonValue labelWidth = session->widget("qt_msgbox_informativelabel").value("text");
        return session->dialog().value("informativeText").toString() == label && labelWidth == label;
    }

    bool isOverTheMainWindow()
    {
        const QJsonObject box = session->dialog();
        const auto id = static_cast<unsigned long>(box.value("id").toDouble());
        // Not by the frames: if the toolkit asks for the one of the box before the window manager has given
        // it a size, it keeps what it got then.
        const QRect window = rectOf(session->mainWindow().value("rect"));
        const QPoint offset = rectOf(box.value("rect")).center() - window.center();
        const int nearby = 60;
        return session->x().transientFor(id) == session->windowId() && offset.manhattanLength() <= nearby;
    }
};

QTEST_GUILESS_MAIN(TestProcessBoxes)
#include "test_process_boxes.moc"
