// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/gtop_wrappers/snapshotcache.h"
#include "process/gtop_wrappers/usernames.h"

#include "../support/rows.h"
#include "cells.h"

#include <QtTest>

#include <pwd.h>

#include <cerrno>
#include <map>
#include <string>

using namespace gtop_wrappers;
using std::chrono::seconds;

namespace {

/// A user directory.
struct Directory
{
    std::map<uid_t, std::string> names;
    int error = 0; ///< errno of look-ups without a result
    bool isReachable = true;
    int lookUps = 0;
};

Directory directory;

constexpr UserNames::Time start;

QString shown(const ParamPtr &name)
{
    return name->displayValue().toString();
}

} // namespace

/// Replaces that of the C library.
extern "C" passwd *getpwuid(uid_t uid)
{
    static passwd entry;
    ++directory.lookUps;
    const auto found = directory.names.find(uid);
    if (!directory.isReachable || found == directory.names.end()) {
        if (directory.error != 0) {
            errno = directory.error;
        }
        return nullptr;
    }
    entry.pw_name = found->second.data();
    return &entry;
}

class TestUserNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        directory = Directory();
        directory.names = {{1000, "ann"}};
        users = UserNames();
        users.update(start);
    }

    void isTheNameOrElseTheNumber()
    {
        directory.names[1001] = "b\nb";
        QCOMPARE(shown(users.name(1000)), QStringLiteral("ann"));
        QCOMPARE(shown(users.name(1001)), QStringLiteral("b b"));
        QCOMPARE(shown(users.name(1002)), QStringLiteral("1002"));
        QVERIFY(users.name(1002) != users.name(1001));
        QCOMPARE(shown(users.name(-2)), QStringLiteral("4294967294"));
    }

    void anUnknownUserIsLookedUpWithEachUpdate()
    {
        const ParamPtr name = users.name(1001);
        users.update(start);
        users.update(start);
        QCOMPARE(directory.lookUps, 3);
        QCOMPARE(shown(name), QStringLiteral("1001"));
        directory.names[1001] = "bob";
        users.update(start);
        QCOMPARE(shown(name), QStringLiteral("bob"));
        QVERIFY(users.name(1001) == name);
    }

    void aKnownUserIsOneObjectLookedUpOnceAMinute()
    {
        const ParamPtr name = users.name(1000);
        QVERIFY(users.name(1000) == name);
        QCOMPARE(directory.lookUps, 1);
        directory.names[1000] = "anne";
        users.update(start + seconds(59));
        QCOMPARE(shown(name), QStringLiteral("ann"));
        users.update(start + seconds(60));
        QCOMPARE(shown(name), QStringLiteral("anne"));
        QVERIFY(users.name(1000) == name);
        users.update(start + seconds(119));
        QCOMPARE(directory.lookUps, 2);
        users.update(start + seconds(120));
        QCOMPARE(directory.lookUps, 3);
    }

    void aKnownUserWithoutAResult_data()
    {
        const Rows<int, QString> row("error", "text");
        for (const int noSuchUser : {0, ENOENT, ESRCH, EBADF, EPERM}) {
            row(strerror(noSuchUser), noSuchUser, "1000");
        }
        for (const int failure : {EINTR, EIO, EMFILE, ENFILE, ENOMEM, EAGAIN, ECONNREFUSED, ETIMEDOUT}) {
            row(strerror(failure), failure, "ann");
        }
    }

    void aKnownUserWithoutAResult()
    {
        QFETCH(int, error);
        QFETCH(QString, text);
        const ParamPtr name = users.name(1000);
        directory.isReachable = false;
        directory.error = error;
        errno = EIO; // of an earlier call
        users.update(start + seconds(60));
        QCOMPARE(shown(name), text);
        // One that is still known is asked for after a minute, so that a slow directory isn't always asked.
        directory.isReachable = true;
        directory.names[1000] = "anne";
        users.update(start + seconds(61));
        QCOMPARE(directory.lookUps, text == QStringLiteral("ann") ? 2 : 3);
        users.update(start + seconds(120));
        QCOMPARE(shown(name), QStringLiteral("anne"));
        QCOMPARE(directory.lookUps, 3);
    }

    void aUserNeverKnownIsANumberWhileTheDirectoryIsUnreachable()
    {
        directory.isReachable = false;
        directory.error = EIO;
        const ParamPtr name = users.name(1000);
        QCOMPARE(shown(name), QStringLiteral("1000"));
        directory.isReachable = true;
        users.update(start);
        QCOMPARE(shown(name), QStringLiteral("ann"));
    }

    void unusedOnesAreForgotten()
    {
        const ParamPtr kept = users.name(1001);
        std::tr1::weak_ptr<IProcessParam> forgotten = users.name(1002);
        users.dropUnused();
        QVERIFY(forgotten.expired());
        QVERIFY(users.name(1001) == kept);
        directory.lookUps = 0;
        users.update(start);
        QCOMPARE(directory.lookUps, 1);
    }

    void eachSnapshotLooksUnknownUsersUp()
    {
        ProcessRecord record;
        record.pid = 42;
        record.user = 1001;
        SnapshotCache cache;
        QCOMPARE(shown(cache.snapshot({record}).at(42), UserColumn), QStringLiteral("1001"));
        directory.names[1001] = "bob";
        QCOMPARE(shown(cache.snapshot({record}).at(42), UserColumn), QStringLiteral("bob"));
        directory.names[1001] = "bobby";
        QCOMPARE(shown(cache.snapshot({record}).at(42), UserColumn), QStringLiteral("bob"));
        QCOMPARE(directory.lookUps, 2);
    }

private:
    UserNames users;
};

QTEST_GUILESS_MAIN(TestUserNames)
#include "test_usernames.moc"
