// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"

#include <QDir>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

// A child that the kernel ends when the test program ends, however that happens.
class BoundProcess : public QProcess
{
protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    return environment;
}

// The toolkit asks for places within a window of the window manager that has gone: the numbers in the
// warnings are from its range. Most likely it is the frame of a box that has just been closed, looked into
// for the window under the mouse. libgtop says what a bare machine lacks, such as /etc/mtab.
bool isOfTheMachine(const QByteArray &line)
{
    return line.startsWith("qt.qpa.xcb: QXcbConnection: XCB error: 3 (BadWindow)") ||
           (line.startsWith("glibtop(") && line.contains("[WARNING]"));
}

// The sanitizers' run-time library has to come before anything else that is preloaded.
QString preloaded(const QStringList &objects)
{
    const QString first = QStringLiteral(ZSM_PRELOAD_FIRST);
    return (first.isEmpty() ? objects : QStringList(first) + objects).join(QLatin1Char(':'));
}

} // namespace

DesktopSession::DesktopSession(SessionOptions options) : m_options(std::move(options))
{
    if (m_options.program.isEmpty())
        m_options.program = QStringLiteral(ZSM_PROGRAM);
}

DesktopSession::~DesktopSession()
{
    disconnectProbe();
    end(m_program.get());
    m_x.close();
    end(m_windowManager.get());
    end(m_server.get());
}

void DesktopSession::end(QProcess *process)
{
    if (!process || process->state() == QProcess::NotRunning)
        return;
    process->terminate();
    if (!process->waitForFinished(5000))
        process->kill();
    process->waitForFinished();
}

bool DesktopSession::fail(const QString &error)
{
    m_error = error;
    return false;
}

bool DesktopSession::startServer()
{
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
        return fail(QStringLiteral("Xvfb is not installed (Debian package xvfb)"));
    const QString screen =
        QStringLiteral("%1x%2x24").arg(m_options.screen.width()).arg(m_options.screen.height());
    m_server = std::make_unique<BoundProcess>();
    m_server->setProcessEnvironment(plainEnvironment());
    m_server->start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), screen, QStringLiteral("-dpi"), QString::number(m_options.dpi),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    QByteArray number;
    while (!number.endsWith('\n')) {
        if (!m_server->waitForReadyRead(desktopDeadline))
            return fail(QStringLiteral("Xvfb gave no display: ") +
                        QString::fromLocal8Bit(m_server->readAllStandardError()));
        number += m_server->readAllStandardOutput();
    }
    m_display = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    return m_x.open(m_display) || fail(QStringLiteral("can't connect to display ") + m_display);
}

bool DesktopSession::startWindowManager()
{
    if (QStandardPaths::findExecutable(QStringLiteral("openbox")).isEmpty())
        return fail(QStringLiteral("openbox is not installed (Debian package openbox)"));
    QProcessEnvironment environment = plainEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_display);
    environment.insert(QStringLiteral("HOME"), m_directory.path());
    m_windowManager = std::make_unique<BoundProcess>();
    m_windowManager->setProcessEnvironment(environment);
    m_windowManager->start(QStringLiteral("openbox"),
                           {QStringLiteral("--sm-disable"), QStringLiteral("--config-file"),
                            QStringLiteral(ZSM_WINDOW_MANAGER_SETTINGS)});
    QElapsedTimer elapsed;
    for (elapsed.start(); !elapsed.hasExpired(desktopDeadline); QTest::qWait(10)) {
        if (m_x.hasWindowManager())
            return true;
    }
    return fail(QStringLiteral("openbox doesn't manage the screen: ") +
                QString::fromLocal8Bit(m_windowManager->readAllStandardError()));
}

bool DesktopSession::startDesktop()
{
    if (m_server)
        return true;
    if (!m_directory.isValid() || !QDir(m_directory.path()).mkpath(QStringLiteral("home/.config")) ||
        !QDir(m_directory.path()).mkpath(QStringLiteral("run")))
        return fail(QStringLiteral("no temporary directory"));
    QFile::setPermissions(m_directory.filePath(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return writeSettings() && startServer() && startWindowManager();
}

bool DesktopSession::writeSettings()
{
    if (m_options.settings.isEmpty())
        return true;
    QFile file(settingsFile());
    return (QFileInfo(file).dir().mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
            file.write(m_options.settings) == m_options.settings.size()) ||
           fail(QStringLiteral("can't write ") + settingsFile());
}

QProcessEnvironment DesktopSession::programEnvironment() const
{
    QProcessEnvironment environment = plainEnvironment();
    for (const char *name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (qEnvironmentVariableIsSet(name))
            environment.insert(QLatin1String(name), qEnvironmentVariable(name));
    }
    QStringList objects = m_options.preload;
    objects.append(QStringLiteral(ZSM_PROBE_OBJECT));
    if (m_options.machine) {
        objects.append(QStringLiteral(ZSM_STANDIN_OBJECT));
        environment.insert(QStringLiteral("ZSM_STANDIN"), m_directory.filePath(QStringLiteral("machine")));
    }
    const QMap<QString, QString> own = {
        {QStringLiteral("DISPLAY"), m_display},
        {QStringLiteral("HOME"), home()},
        {QStringLiteral("XDG_CONFIG_HOME"), home() + QStringLiteral("/.config")},
        {QStringLiteral("XDG_RUNTIME_DIR"), m_directory.filePath(QStringLiteral("run"))},
        // Without a session bus, and without starting one that would outlive the test.
        {QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:")},
        // Where the toolkit would write to the system's journal.
        {QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1")},
        {QStringLiteral("ZSM_PROBE"), m_directory.filePath(QStringLiteral("probe%1").arg(m_runs))},
        {QStringLiteral("LD_PRELOAD"), preloaded(objects)}};
    for (auto each = own.begin(); each != own.end(); ++each)
        environment.insert(each.key(), each.value());
    for (auto each = m_options.environment.begin(); each != m_options.environment.end(); ++each) {
        if (each.value().isEmpty())
            environment.remove(each.key());
        else
            environment.insert(each.key(), each.value());
    }
    return environment;
}

bool DesktopSession::start(const QStringList &arguments)
{
    if (!startDesktop())
        return false;
    if (m_options.machine)
        setMachine(*m_options.machine);
    disconnectProbe();
    ++m_runs;
    m_output.clear();
    m_errors.clear();
    m_program = std::make_unique<BoundProcess>();
    m_program->setProcessEnvironment(programEnvironment());
    m_program->start(m_options.program, arguments);
    if (!m_program->waitForStarted())
        return fail(QStringLiteral("can't start ") + m_options.program);
    return waitForWindow();
}

bool DesktopSession::waitForWindow()
{
    QJsonObject window;
    QRect before;
    const bool shown = waitFor([&] {
        window = mainWindow();
        const QRect now = rectOf(window.value(QLatin1String("rect")));
        const bool still = !now.isEmpty() && now == before;
        before = now;
        return still && window.value(QLatin1String("exposed")).toBool() &&
               window.value(QLatin1String("active")).toBool();
    });
    return shown || fail(QStringLiteral("no window came up: %1; the last seen: %2")
                             .arg(m_error, QString::fromUtf8(QJsonDocument(window).toJson())));
}

bool DesktopSession::waitForExit()
{
    if (isRunning() && !m_program->waitForFinished(desktopDeadline))
        return fail(QStringLiteral("the program doesn't end"));
    collectOutput();
    return true;
}

int DesktopSession::exitCode() const
{
    const bool ended = m_program && !isRunning() && m_program->exitStatus() == QProcess::NormalExit;
    return ended ? m_program->exitCode() : -1;
}

bool DesktopSession::isRunning() const
{
    return m_program && m_program->state() != QProcess::NotRunning;
}

qint64 DesktopSession::pid() const
{
    return m_program ? m_program->processId() : 0;
}

void DesktopSession::collectOutput()
{
    if (!m_program)
        return;
    m_output += m_program->readAllStandardOutput();
    m_errors += m_program->readAllStandardError();
}

QByteArray DesktopSession::standardOutput()
{
    collectOutput();
    return m_output;
}

QByteArray DesktopSession::standardError()
{
    collectOutput();
    QList<QByteArray> lines = m_errors.split('\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(), isOfTheMachine), lines.end());
    return lines.join('\n');
}

QString DesktopSession::home() const
{
    return m_directory.filePath(QStringLiteral("home"));
}

QString DesktopSession::settingsFile() const
{
    return home() + QStringLiteral("/.config/Telmorra/zarn-system-monitor.conf");
}

void DesktopSession::setMachine(const standin::Machine &machine)
{
    m_options.machine = machine;
    standin::save(machine, m_directory.filePath(QStringLiteral("machine")).toStdString());
}

bool DesktopSession::waitFor(const std::function<bool()> &condition, int deadlineMs)
{
    QElapsedTimer elapsed;
    for (elapsed.start(); !elapsed.hasExpired(deadlineMs); QTest::qWait(20)) {
        if (condition())
            return true;
        if (!isRunning())
            return fail(QStringLiteral("the program has ended: ") + QString::fromLocal8Bit(standardError()));
    }
    return condition() || fail(QStringLiteral("a condition wasn't met in time; standard error: ") +
                               QString::fromLocal8Bit(standardError()));
}

// Of a screen that stands still, so that what was asked to be shown has been painted.
bool DesktopSession::savePicture(const QString &name)
{
    const QString folder = QStringLiteral(ZSM_PICTURES);
    QImage picture;
    const bool still = waitFor([&] {
        const QImage now = screenshot();
        const bool same = now == picture;
        picture = now;
        return same;
    });
    const QString file = folder + QLatin1Char('/') + name + QStringLiteral(".png");
    return still &&
           ((QDir().mkpath(folder) && picture.save(file)) || fail(QStringLiteral("can't write ") + file));
}
