// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/session.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray hugeList = "[General]\nunknown=@Variant(\\0\\0\\0\\t\\x80\\0\\0\\0)\n";

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

} // namespace

/// Files in the place of the program's own and next to it that can't be read, or only at a risk.
class TestSettingsFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        systemFolder = std::make_unique<QTemporaryDir>();
        SessionOptions options;
        options.environment["XDG_CONFIG_DIRS"] = systemFolder->path();
        session = std::make_unique<DesktopSession>(options);
        file = session->settingsFile();
    }
    void cleanup()
    {
        QVERIFY(session->pid() == 0 || session->endsCleanly());
        setFolderMode(0700);
    }

    void onlyTheFileOfTheProgramIsRead_data()
    {
        const Rows<QString> row("path");
        row("of the organization", "%1/.config/Telmorra.conf");
        row("system-wide", "%2/Telmorra/zarn-system-monitor.conf");
        row("of the organization, system-wide", "%2/Telmorra.conf");
    }

    void onlyTheFileOfTheProgramIsRead()
    {
        QFETCH(QString, path);
        const QString other = path.arg(session->home()).arg(systemFolder->path());
        QVERIFY(write(other, hugeList + "[interval]\ngeneral=5\n"));
        startAndQuit();
        QVERIFY2(session->settings().contains("general=3"), session->settings());
        QVERIFY(QFile::exists(other));
    }

    void whatCannotBeUsedIsLeftAlone_data()
    {
        addTextRows("what", {"named pipe", "link to /dev/zero", "link to /proc/kmsg", "link to itself",
                             "folder", "damaged, with a folder in the way", "damaged, in a read-only folder",
                             "named pipe as lock", "folder as lock"});
    }

    /// The program neither waits for it nor replaces it, at the start and at the end.
    void whatCannotBeUsedIsLeftAlone()
    {
        QFETCH(QString, what);
        if (what.contains("read-only") && geteuid() == 0) {
            QSKIP("root may write everywhere");
        }
        QVERIFY(create(what));
        struct stat before = {};
        struct stat after = {};
        const QByteArray path = QFile::encodeName(file);
        const bool exists = lstat(path.constData(), &before) == 0;
        startAndQuit();
        QCOMPARE(lstat(path.constData(), &after) == 0, exists);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(after.st_mode, before.st_mode);
        QCOMPARE(after.st_size, before.st_size);
    }

    void aFileThatIsTooLargeIsSetAside()
    {
        QVERIFY(write(file, QByteArray(65, '\n').repeated(1024) + "[interval]\ngeneral=5\n"));
        startAndQuit();
        QVERIFY2(session->settings().contains("general=3"), session->settings());
        QVERIFY(QFile::exists(file + ".damaged"));
    }

    void aPipeThatAppearsWhileItRunsDoesNotHoldItUp()
    {
        QVERIFY(write(file, "\n"));
        QVERIFY2(session->start(), qPrintable(session->error()));
        QVERIFY(QFile::remove(file) && makePipe(file));
        session->closeMainWindow();
        QVERIFY(session->exitsCleanly());
    }

    void aLinkToAFileIsReadAndWritten()
    {
        const QString target = session->home() + "/dotfiles/monitor";
        QVERIFY(write(target, "[interval]\ngeneral=5\n"));
        QVERIFY(makeFolder() && QFile::link(target, file));
        startAndQuit();
        QCOMPARE(QFile::symLinkTarget(file), target);
        QVERIFY2(session->settings().contains("general=5"), session->settings());
        QVERIFY2(session->settings().contains("nwt=3"), session->settings());
    }

private:
    void startAndQuit()
    {
        QVERIFY2(session->start(), qPrintable(session->error()));
        QVERIFY(session->dialog().isEmpty());
        session->closeMainWindow();
        QVERIFY(session->exitsCleanly());
    }

    bool setFolderMode(mode_t mode)
    {
        return chmod(QFile::encodeName(QFileInfo(file).path()).constData(), mode) == 0;
    }

    bool makeFolder() { return QDir().mkpath(QFileInfo(file).path()); }

    bool create(const QString &what)
    {
        if (!makeFolder()) {
            return false;
        }
        if (what.startsWith("link to ")) {
            return QFile::link(what == "link to itself" ? file : what.mid(8), file);
        }
        if (what.contains("read-only")) {
            return write(file, hugeList) && setFolderMode(0500);
        }
        if (what.startsWith("damaged")) {
            return write(file, hugeList) && QDir().mkpath(file + ".damaged/full");
        }
        const QString place = what.endsWith("lock") ? file + ".lock" : file;
        return what.startsWith("folder") ? QDir().mkpath(place) : makePipe(place);
    }

private:
    std::unique_ptr<QTemporaryDir> systemFolder;
    std::unique_ptr<DesktopSession> session;
    QString file;
};

QTEST_GUILESS_MAIN(TestSettingsFiles)
#include "test_settingsfiles.moc"
