// SPDX-License-Identifier: GPL-3.0-or-later
// The program's window and boxes under a Wayland compositor. Needs weston and Qt's Wayland plugin.
#include "fixture.h"

#include "../support/rows.h"
#include "process/processbox.h"
#include "tests/support/modal.h"

#include <QLibraryInfo>
#include <QMainWindow>
#include <QProcess>
#include <QWindow>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

constexpr int screenWidth = 1280;
constexpr int screenHeight = 1024;

/// A compositor with one screen that nobody sees, until the end of its lifetime.
class Compositor
{
public:
    explicit Compositor(const char *name) : socketName(name)
    {
        qputenv("XDG_RUNTIME_DIR", directory.path().toLocal8Bit());
        qputenv("WAYLAND_DISPLAY", name);
        const QByteArray width = "--width=" + QByteArray::number(screenWidth);
        const QByteArray height = "--height=" + QByteArray::number(screenHeight);
        const QByteArray socket = QByteArray("--socket=") + name;
        pid = fork();
        if (pid == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (!freopen("/dev/null", "w", stdout) || !freopen("/dev/null", "w", stderr)) {
                _exit(126);
            }
            execlp("weston", "weston", "--no-config", "--backend=headless-backend.so", "--idle-time=0",
                   width.constData(), height.constData(), socket.constData(), nullptr);
            _exit(127);
        }
    }
    Compositor(const Compositor &) = delete;
    Compositor &operator=(const Compositor &) = delete;
    ~Compositor() { end(SIGTERM); }

    void end(int signal)
    {
        if (pid > 0) {
            kill(pid, signal);
            waitpid(pid, nullptr, 0);
        }
        pid = -1;
    }

    /// False if it did not start.
    bool waitUntilReady()
    {
        const QString socket = directory.filePath(QLatin1String(socketName));
        for (int i = 0; pid > 0 && i < 200; ++i) {
            if (QFile::exists(socket)) {
                return true;
            }
            if (waitpid(pid, nullptr, WNOHANG) == pid) {
                pid = -1;
            }
            QThread::msleep(50);
        }
        return false;
    }

private:
    const char *socketName;
    QTemporaryDir directory;
    pid_t pid = -1;
};

/// Whether the program runs its event loop: just before, it begins to handle signals.
bool handlesSignals(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(pid));
    const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QByteArray key = "\nSigCgt:";
    const QByteArray caught = status.mid(status.indexOf(key) + key.size()).split('\n').value(0).trimmed();
    return (caught.toULongLong(nullptr, 16) & (1U << (SIGTERM - 1U))) != 0;
}

bool hasWaylandPlugin()
{
    return QFile::exists(QLibraryInfo::location(QLibraryInfo::PluginsPath) +
                         QStringLiteral("/platforms/libqwayland-generic.so"));
}

} // namespace

class TestWayland : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
            QSKIP("weston or qtwayland5 is not installed");
        }
    }

    void geometryComesBackWithoutAPosition_data()
    {
        const Rows<QString, QSize, bool> row("stored", "size", "maximized");
        row("none", QString(), QSize(640, 480), false);
        row("saved under Wayland", "0, 0, 900, 700, 30, 0", QSize(900, 700), false);
        row("saved under X11", "40, 60, 900, 700, 20, 0", QSize(900, 700), false);
        row("on a screen that is gone", "5000, 60, 900, 700, 20, 0", QSize(900, 700), false);
        row("larger than the screen", "0, 0, 5000, 4000, 30, 0", QSize(screenWidth, screenHeight - 30),
            false);
        row("too small", "0, 0, 60, 700, 30, 0", QSize(640, 480), false);
        row("maximized", "0, 0, 900, 700, 30, 1", QSize(900, 700), true);
    }

    void geometryComesBackWithoutAPosition()
    {
        QFETCH(QString, stored);
        QFETCH(QSize, size);
        QFETCH(bool, maximized);
        if (!stored.isEmpty()) {
            QSettings().setValue(QStringLiteral("geometry"), stored.split(QStringLiteral(", ")));
        }
        for (int session = 1; session <= 3; ++session) { // what is saved comes back too
            fixture->start(0);
            const QMainWindow *window = Fixture::window();
            QVERIFY(QTest::qWaitForWindowExposed(Fixture::window()));
            QCOMPARE(window->isMaximized(), maximized);
            if (maximized) {
                QTRY_VERIFY(window->width() > size.width() && window->height() > size.height());
            } else {
                QCOMPARE(window->size(), size);
            }
            fixture->stop();
            const QStringList saved = QSettings().value(QStringLiteral("geometry")).toStringList();
            QCOMPARE(saved.size(), 6);
            QCOMPARE(QSize(saved.at(2).toInt(), saved.at(3).toInt()), size);
            QCOMPARE(saved.at(5), QString::number(maximized));
        }
    }

    void aWindowMaximizedByTheUserIsSavedWithItsNormalSize()
    {
        fixture->start(0);
        QMainWindow *window = Fixture::window();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        window->resize(700, 600);
        QTRY_COMPARE(window->size(), QSize(700, 600));
        window->showMaximized();
        QTRY_VERIFY(window->width() > 700);
        fixture->stop();
        const QStringList saved = QSettings().value(QStringLiteral("geometry")).toStringList();
        QCOMPARE(saved.mid(2, 2).join(QLatin1Char(' ')), QStringLiteral("700 600"));
        QCOMPARE(saved.last(), QStringLiteral("1"));
    }

    void aBoxIsADialogOfTheWindow()
    {
        fixture->start(0);
        QVERIFY(QTest::qWaitForWindowExposed(Fixture::window()));
        const ModalDriver driver([](QWidget *dialog) {
            QVERIFY(!dialog->parentWidget());
            QCOMPARE(dialog->windowHandle()->transientParent(), Fixture::window()->windowHandle());
            QTRY_VERIFY(dialog->windowHandle()->isExposed());
            pressing(QMessageBox::Ok)(dialog);
        });
        QCOMPARE(showProcessBox(QMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"),
                                gtop_wrappers::Process(412), QMessageBox::Ok | QMessageBox::Cancel,
                                QMessageBox::Cancel),
                 QMessageBox::Ok);
    }

    void theLossOfTheCompositorSavesTheSettings()
    {
        Compositor another("zsm-test-2");
        QVERIFY(another.waitUntilReady());
        QProcess program;
        program.start(QStringLiteral(ZSM_PROGRAM), {QStringLiteral("processes")});
        QVERIFY(program.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(handlesSignals(program.processId()), 30000);
        QVERIFY(!QFile::exists(Fixture::settingsFile()));
        another.end(SIGKILL);
        QVERIFY(program.waitForFinished(30000));
        QVERIFY2(program.exitStatus() == QProcess::NormalExit, program.readAllStandardError());
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(QSettings().contains(QStringLiteral("geometry")));
        QCOMPARE(QSettings().value(QStringLiteral("interval/nwt")).toInt(), 3);
    }
};

int main(int argc, char **argv)
{
    Compositor compositor("zsm-test");
    const bool available = hasWaylandPlugin() && compositor.waitUntilReady();
    qputenv("QT_QPA_PLATFORM", available ? "wayland" : "offscreen");
    QApplication application(argc, argv);
    TestWayland test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_wayland.moc"
