// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QtTest>

#include <algorithm>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

/// A child that the kernel kills when the test program ends, however that happens.
class BoundProcess : public QProcess
{
protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment;
    environment.insert("PATH", qEnvironmentVariable("PATH"));
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("TZ", "UTC");
    return environment;
}

/// Whether a line of standard error is about the environment. The toolkit queries windows that the window
/// manager has destroyed meanwhile, most likely the frame of a dialog that has just been closed. libgtop
/// names each counter that it misses where sysfs is not mounted.
bool isAboutEnvironment(const QByteArray &line)
{
    return line.startsWith("qt.qpa.xcb: QXcbConnection: XCB error: 3 (BadWindow)") ||
           (line.startsWith("glibtop(") && line.contains("/sys/"));
}

/// The sanitizers' run-time library has to precede everything else that is preloaded. The others are named by
/// links in `folder`, since blanks and colons in the path of the build would end a name.
QString preloadList(const QStringList &objects, const QDir &folder)
{
    QStringList names;
    if (QString(ZSM_PRELOAD_FIRST) != QString()) {
        names.append(ZSM_PRELOAD_FIRST);
    }
    for (const QString &object : objects) {
        names.append(folder.filePath(QFileInfo(object).fileName()));
        QFile::link(object, names.last()); // fails if a former start has made it
    }
    return names.join(':');
}

void end(QProcess *process)
{
    if (!process || process->state() == QProcess::NotRunning) {
        return;
    }
    process->terminate();
    if (!process->waitForFinished(5000)) {
        process->kill();
    }
    process->waitForFinished();
}

} // namespace

DesktopSession::DesktopSession(SessionOptions options) : setup(std::move(options))
{
    if (setup.program.isEmpty()) {
        setup.program = ZSM_PROGRAM;
    }
}

DesktopSession::~DesktopSession()
{
    probeSocket.abort();
    end(program.get());
    client.close();
    end(windowManager.get());
    end(server.get());
}

bool DesktopSession::fail(const QString &error)
{
    lastError = error;
    return false;
}

bool DesktopSession::startServer()
{
    if (QStandardPaths::findExecutable("Xvfb").isEmpty()) {
        return fail("Xvfb is not installed (Debian package xvfb)");
    }
    const QString screen = QString("%1x%2x24").arg(setup.screen.width()).arg(setup.screen.height());
    server = std::make_unique<BoundProcess>();
    server->setProcessEnvironment(plainEnvironment());
    server->start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-dpi", QString::number(setup.dpi),
                           "-nolisten", "tcp", "-noreset"});
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!server->waitForReadyRead(desktopDeadline)) {
            return fail("Xvfb gave no display: " + QString::fromLocal8Bit(server->readAllStandardError()));
        }
        number += server->readAllStandardOutput();
    }
    display = ':' + QString::fromLatin1(number.trimmed());
    if (!client.open(display)) {
        return fail("can't connect to display " + display);
    }
    client.setTextDpi(setup.dpi);
    return true;
}

bool DesktopSession::startWindowManager()
{
    if (QStandardPaths::findExecutable("openbox").isEmpty()) {
        return fail("openbox is not installed (Debian package openbox)");
    }
    QProcessEnvironment environment = plainEnvironment();
    environment.insert("DISPLAY", display);
    environment.insert("HOME", directory.path());
    windowManager = std::make_unique<BoundProcess>();
    windowManager->setProcessEnvironment(environment);
    windowManager->start("openbox", {"--sm-disable", "--config-file", ZSM_WINDOW_MANAGER_SETTINGS});
    return QTest::qWaitFor([&] { return client.hasWindowManager(); }, desktopDeadline) ||
           fail("openbox doesn't manage the screen: " +
                QString::fromLocal8Bit(windowManager->readAllStandardError()));
}

bool DesktopSession::startDesktop()
{
    if (server) {
        return true;
    }
    const QDir root(directory.path());
    if (!directory.isValid() || !root.mkpath("home/.config") || !root.mkpath("run")) {
        return fail("no temporary directory");
    }
    QFile::setPermissions(root.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return writeSettings() && startServer() && startWindowManager();
}

bool DesktopSession::writeSettings()
{
    if (setup.settings.isEmpty()) {
        return true;
    }
    QFile file(settingsFile());
    return (QFileInfo(file).dir().mkpath(".") && file.open(QIODevice::WriteOnly) &&
            file.write(setup.settings) == setup.settings.size()) ||
           fail("can't write " + settingsFile());
}

QProcessEnvironment DesktopSession::programEnvironment() const
{
    QProcessEnvironment environment = plainEnvironment();
    for (const char *name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (qEnvironmentVariableIsSet(name)) {
            environment.insert(name, qEnvironmentVariable(name));
        }
    }
    QStringList objects = setup.preload + QStringList(ZSM_PROBE_OBJECT);
    if (setup.machine) {
        objects.append(ZSM_STANDIN_OBJECT);
        environment.insert("ZSM_STANDIN", directory.filePath("machine"));
    }
    environment.insert("DISPLAY", display);
    environment.insert("HOME", home());
    environment.insert("XDG_CONFIG_HOME", home() + "/.config");
    environment.insert("XDG_RUNTIME_DIR", directory.filePath("run"));
    // No session bus, and none started that would outlive the test.
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    // The toolkit would log to the system's journal.
    environment.insert("QT_FORCE_STDERR_LOGGING", "1");
    environment.insert("ZSM_PROBE", probePath());
    environment.insert("LD_PRELOAD", preloadList(objects, QDir(directory.path())));
    for (auto each = setup.environment.begin(); each != setup.environment.end(); ++each) {
        if (each.value().isEmpty()) {
            environment.remove(each.key());
        } else {
            environment.insert(each.key(), each.value());
        }
    }
    return environment;
}

bool DesktopSession::start(const QStringList &arguments)
{
    return launch(arguments) && waitForWindow();
}

bool DesktopSession::launch(const QStringList &arguments)
{
    if (!startDesktop()) {
        return false;
    }
    if (setup.machine) {
        setMachine(*setup.machine);
    }
    probeSocket.abort();
    ++runs;
    output.clear();
    errors.clear();
    program = std::make_unique<BoundProcess>();
    program->setProcessEnvironment(programEnvironment());
    program->start(setup.program, arguments);
    return program->waitForStarted() || fail("can't start " + setup.program);
}

bool DesktopSession::waitForWindow()
{
    QJsonObject window;
    const bool shown = waitFor([&] {
        const QJsonValue before = window.value("rect");
        window = mainWindow();
        return !rectOf(window.value("rect")).isEmpty() && window.value("rect") == before &&
               window.value("exposed").toBool() && window.value("active").toBool();
    });
    return shown || fail(QString("no window appeared: %1; last state: %2")
                             .arg(lastError, QString::fromUtf8(QJsonDocument(window).toJson())));
}

bool DesktopSession::waitForExit()
{
    if (isRunning() && !program->waitForFinished(desktopDeadline)) {
        return fail("the program doesn't exit");
    }
    collectOutput();
    return true;
}

bool DesktopSession::exitsCleanly()
{
    const bool clean = waitForExit() && standardError().isEmpty() && exitCode() == 0;
    if (!clean) {
        qWarning("%s; exit code %d; standard error: %s", qPrintable(lastError), exitCode(),
                 standardError().constData());
    }
    return clean;
}

bool DesktopSession::endsCleanly()
{
    if (QTest::currentTestFailed()) {
        qWarning("%s", qPrintable(lastError));
        key("Escape");
    }
    closeMainWindow();
    return exitsCleanly();
}

int DesktopSession::exitCode() const
{
    const bool exited = program && !isRunning() && program->exitStatus() == QProcess::NormalExit;
    return exited ? program->exitCode() : -1;
}

int DesktopSession::endingSignal() const
{
    const bool crashed = program && !isRunning() && program->exitStatus() == QProcess::CrashExit;
    return crashed ? program->exitCode() : 0;
}

void DesktopSession::killServer()
{
    client.close();
    server->kill();
    server->waitForFinished();
}

QByteArray DesktopSession::settings() const
{
    QFile file(settingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void DesktopSession::collectOutput()
{
    if (program) {
        output += program->readAllStandardOutput();
        errors += program->readAllStandardError();
    }
}

QByteArray DesktopSession::standardOutput()
{
    collectOutput();
    return output;
}

QByteArray DesktopSession::standardError()
{
    collectOutput();
    QList<QByteArray> lines = errors.split('\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(), isAboutEnvironment), lines.end());
    return lines.join('\n');
}

void DesktopSession::setMachine(const standin::Machine &machine)
{
    setup.machine = machine;
    standin::save(machine, directory.filePath("machine").toStdString());
}

bool DesktopSession::waitForTicks(int count)
{
    const auto wakeUps = [&] {
        QFile file(QString("/proc/%1/status").arg(pid()));
        const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const QByteArray key = "\nvoluntary_ctxt_switches:";
        return status.mid(status.indexOf(key) + key.size()).split('\n').value(0).trimmed().toLong();
    };
    const long before = wakeUps();
    return waitFor([&] { return wakeUps() >= before + count; });
}

bool DesktopSession::waitFor(const std::function<bool()> &condition, int deadlineMs)
{
    QElapsedTimer elapsed;
    for (elapsed.start(); !elapsed.hasExpired(deadlineMs); QTest::qWait(20)) {
        if (condition()) {
            return true;
        }
        if (!isRunning()) {
            return fail("the program has ended: " + QString::fromLocal8Bit(standardError()));
        }
    }
    return condition() ||
           fail("a condition wasn't met in time; standard error: " + QString::fromLocal8Bit(standardError()));
}

bool DesktopSession::savePicture(const QString &name)
{
    QImage picture;
    const bool still = waitFor([&] {
        const QImage before = picture;
        picture = screenshot();
        return picture == before;
    });
    const QString folder = ZSM_PICTURES;
    const QString file = folder + '/' + name + ".png";
    return still && ((QDir().mkpath(folder) && picture.save(file)) || fail("can't write " + file));
}

QJsonObject DesktopSession::probe(const QString &command)
{
    bool answers = probeSocket.state() == QLocalSocket::ConnectedState;
    if (!answers) {
        probeSocket.connectToServer(probePath());
        answers = probeSocket.waitForConnected(desktopDeadline);
    }
    if (answers) {
        probeSocket.write(command.toUtf8() + '\n');
    }
    const QDeadlineTimer deadline(desktopDeadline);
    while (answers && !probeSocket.canReadLine()) {
        answers = probeSocket.waitForReadyRead(int(deadline.remainingTime()));
    }
    if (!answers) {
        probeSocket.abort(); // a late answer would be taken for that to the next command
        return {{"error", "the program doesn't answer"}};
    }
    return QJsonDocument::fromJson(probeSocket.readLine()).object();
}

QJsonObject DesktopSession::stateAfterInput()
{
    QJsonObject state = probe("state");
    client.mark(static_cast<unsigned long>(state.value("id").toDouble()), ++marks);
    for (const QDeadlineTimer deadline(desktopDeadline); state.contains("id") && !deadline.hasExpired();
         state = probe("state")) {
        if (state.value("mark").toInt() >= marks) {
            return probe("state"); // again: input that came with the mark may still be in the toolkit's queue
        }
    }
    return {};
}

QJsonObject DesktopSession::dialog()
{
    const QJsonObject answer = probe("dialog");
    return answer.value("exposed").toBool() ? answer : QJsonObject();
}

QJsonObject DesktopSession::mainWindow()
{
    const QJsonArray windows = probe("windows").value("windows").toArray();
    for (const QJsonValue &window : windows) {
        if (window["isMainWindow"].toBool()) {
            return window.toObject();
        }
    }
    return {};
}
