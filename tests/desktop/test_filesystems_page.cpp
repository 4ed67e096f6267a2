// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QtTest>

namespace {

/// A mount of 1 GiB. Quarters of it are exact.
standin::Mount mount(const std::string &device, const std::string &directory, int percentAvailable,
                     const char *type = "ext4")
{
    const std::uint64_t blocks = 262144; // of 4 KiB each
    const auto percent = std::uint64_t(percentAvailable);
    return {device, directory, type, blocks, blocks, blocks * percent / 100};
}

const standin::Mount rootMount = mount("/dev/sda1", "/", 25);
const standin::Mount dataMount = mount("/dev/sdb1", "/data", 50, "xfs");
const standin::Mount discMount = mount("/dev/sr0", "/media/disc", 0, "iso9660");

} // namespace

class TestFileSystemsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(session->endsCleanly()); }
    void theFirstRowIsChosenAndShown()
    {
        start({discMount, dataMount, rootMount, mount("tmpfs", "/tmp", 50, "tmpfs"),
               mount("tmpfs", "/other", 50, "TMPFS")});
        QVERIFY(session->waitFor([&] { return chosen() == "/"; }));
        const Table shown = list();
        QCOMPARE(shown.visibleHeaders(), QStringList({"Mountpoint", "Type"}));
        QCOMPARE(mountPoints(), QStringList({"/", "/data", "/media/disc", "/other"}));
        QCOMPARE(shown.column("Type"), QStringList({"ext4", "xfs", "iso9660", "TMPFS"}));
        QVERIFY(session->waitForTexts({{"lblMountPoint", "/dev/sda1"},
                                       {"lblFsType", "ext4"},
                                       {"lblTotal", "1.00 GB"},
                                       {"lblUsed", "768.00 MB"},
                                       {"lblAvail", "256.00 MB"}}));
        QVERIFY(waitForPie("rrrrrrbb"));
        QCOMPARE(session->described("Chart"), QString("25% available"));
    }

    void theChosenRowFollowsTheMouseAndTheKeys()
    {
        start({discMount, dataMount, rootMount});
        QVERIFY(choose("/data"));
        QVERIFY(waitForDevice("/dev/sdb1") && waitForPie("rrrrbbbb"));
        QVERIFY(session->key("Down"));
        QVERIFY(waitForDevice("/dev/sr0") && waitForPie("rrrrrrrr"));
        QVERIFY(session->key("Home"));
        QVERIFY(waitForDevice("/dev/sda1") && waitForPie("rrrrrrbb"));
        QVERIFY(session->clickHeader("tableFS", "Mountpoint"));
        QVERIFY(waitForMountPoints({"/media/disc", "/data", "/"}));
        QCOMPARE(chosen(), QString("/"));
    }

    void figuresFollowTheirMount()
    {
        start({rootMount, dataMount});
        QVERIFY(waitForPie("rrrrrrbb"));
        standin::Mount changed = mount("/dev/sda1", "/", 75);
        changed.blockSize = 1024;
        setMounts({changed, dataMount});
        QVERIFY(session->waitForTexts(
            {{"lblTotal", "256.00 MB"}, {"lblUsed", "64.00 MB"}, {"lblAvail", "192.00 MB"}}));
        QVERIFY(waitForPie("rrbbbbbb"));
    }

    void newMountsDoNotChangeTheChosenOne()
    {
        start({rootMount, dataMount});
        QVERIFY(choose("/data"));
        setMounts({mount("/dev/sdc1", "/boot", 100), rootMount, dataMount, discMount});
        QVERIFY(waitForMountPoints({"/", "/boot", "/data", "/media/disc"}));
        QCOMPARE(chosen(), QString("/data"));
        QVERIFY(waitForDevice("/dev/sdb1"));
    }

    void ofTwoVanishedNeighboursTheSecondIsRemovedOneRefreshLater()
    {
        start({rootMount, dataMount, discMount});
        QVERIFY(session->waitFor([&] { return mountPoints().size() == 3; }));
        setMounts({rootMount});
        QVector<QStringList> seen{mountPoints()};
        QVERIFY(session->waitFor([&] {
            QStringList now = mountPoints();
            now.sort(); // removals leave the rows in any order
            if (now != seen.last()) {
                seen.append(now);
            }
            return now.size() == 1;
        }));
        QCOMPARE(seen, QVector<QStringList>({{"/", "/data", "/media/disc"}, {"/", "/media/disc"}, {"/"}}));
    }

    void whenTheChosenOneVanishesAnotherIsChosen()
    {
        start({rootMount, dataMount, discMount});
        QVERIFY(choose("/data"));
        QVERIFY(waitForDevice("/dev/sdb1"));
        setMounts({rootMount, discMount});
        QVERIFY(waitForMountPoints({"/", "/media/disc"}));
        // The panel describes the selected one.
        QVERIFY(session->waitFor([&] {
            const QString device = session->text("lblMountPoint");
            return (chosen() == "/" && device == "/dev/sda1") ||
                   (chosen() == "/media/disc" && device == "/dev/sr0");
        }));
    }

    void whenAllVanishThePanelIsEmptyUntilOneAppears()
    {
        start({rootMount, dataMount, discMount});
        QVERIFY(waitForPie("rrrrrrbb"));
        setMounts({});
        checkEmptyPanel();
        setMounts({dataMount});
        QVERIFY(waitForDevice("/dev/sdb1"));
        QVERIFY(session->waitFor([&] { return chosen() == "/data"; }));
        QVERIFY(waitForPie("rrrrbbbb"));
    }

    void aMissingMountListShowsAnEmptyPanel()
    {
        start({}, true);
        checkEmptyPanel();
    }

    void namesThatAreNotUtf8AreShownAndChosen()
    {
        start({rootMount, mount("/dev/\xff", "/m\xe9", 50), mount("/dev/sdc1", "/\xc3\xa9t\xc3\xa9", 75)});
        QVERIFY(choose("/été"));
        QVERIFY(waitForDevice("/dev/sdc1"));
        QVERIFY(choose("/m\uFFFD"));
        QVERIFY(waitForDevice("/dev/\uFFFD") && waitForPie("rrrrbbbb"));
    }

    void aLongDeviceNameMovesNothing()
    {
        const std::string luks = "/dev/mapper/luks-8b1f3c1e-5a7d-4e0a-9f0e-0123456789ab-and-its-home";
        start({rootMount, mount(luks, "/data", 50)});
        QVERIFY(waitForDevice("/dev/sda1"));
        const auto sizes = [&] {
            return QVector<QRect>{session->windowRect(), session->widgetRect("tableFS"),
                                  session->widgetRect("Chart"),
                                  rectOf(session->mainWindow().value("minimumSize"))};
        };
        const QVector<QRect> before = sizes();
        const auto toolTip = [&] { return session->widget("lblMountPoint").value("toolTip").toString(); };
        for (int round = 0; round < 2; ++round) {
            QVERIFY(choose("/data"));
            QVERIFY(waitForDevice(luks.c_str()));
            QVERIFY(session->waitFor([&] { return toolTip() == luks.c_str(); }));
            QCOMPARE(sizes(), before);
            session->x().moveTo(session->widgetRect("lblMountPoint").center());
            QVERIFY(session->waitFor([&] { return session->text("QTipLabel") == luks.c_str(); }));
            QVERIFY(session->savePicture("filesystems-long-device"));
            QVERIFY(choose("/"));
            QVERIFY(waitForDevice("/dev/sda1"));
            QVERIFY(session->waitFor([&] { return toolTip().isEmpty(); }));
            QCOMPARE(sizes(), before);
        }
    }

    void eachOfFiveHundredMountsCanBeChosen()
    {
        std::vector<standin::Mount> mounts;
        for (int i = 0; i < 500; ++i) {
            mounts.push_back(
                mount("/dev/disk" + std::to_string(i), "/m" + std::to_string(1000 + i), i % 5 * 25));
        }
        start(mounts);
        QVERIFY(session->waitFor([&] { return mountPoints().size() == 500; }));
        QVERIFY(choose("/m1003"));
        QVERIFY(waitForDevice("/dev/disk3"));
        QVERIFY(session->key("End"));
        QVERIFY(waitForDevice("/dev/disk499") && waitForPie("bbbbbbbb"));
        QVERIFY(session->key("Up"));
        QVERIFY(waitForDevice("/dev/disk498"));
        QVERIFY(choose("/m1460"));
        QVERIFY(waitForDevice("/dev/disk460"));
    }

private:
    void start(const std::vector<standin::Mount> &mounts, bool listFails = false)
    {
        standin::Machine machine;
        machine.mounts = mounts;
        machine.mountListFails = listFails;
        session = std::make_unique<PageSession>(machine);
        QVERIFY(session->start({"filesystems"}));
    }

    void setMounts(const std::vector<standin::Mount> &mounts)
    {
        standin::Machine machine;
        machine.mounts = mounts;
        session->setMachine(machine);
    }

    void checkEmptyPanel()
    {
        QVERIFY(waitForMountPoints({}));
        QVERIFY(session->waitForTexts({{"lblMountPoint", ""},
                                       {"lblFsType", ""},
                                       {"lblTotal", "0.00 B"},
                                       {"lblUsed", "0.00 B"},
                                       {"lblAvail", "0.00 B"}}));
        QVERIFY(waitForPie("--------"));
        QCOMPARE(session->undefinedNumber(), QString());
    }

    Table list() { return session->table("tableFS"); }
    QStringList mountPoints() { return list().column("Mountpoint"); }
    // The mount point of the selected row; empty unless it is the current one too.
    QString chosen()
    {
        const Table now = list();
        for (int row = 0; row < now.rows.size(); ++row) {
            if (now.rows[row].selected) {
                return now.rows[row].current ? now.text(row, "Mountpoint") : QString();
            }
        }
        return {};
    }

    bool choose(const QString &mountPoint) { return session->clickRow("tableFS", "Mountpoint", mountPoint); }
    bool waitForMountPoints(const QStringList &expected)
    {
        return session->waitFor([&] { return mountPoints() == expected; });
    }
    bool waitForDevice(const QString &device) { return session->waitForTexts({{"lblMountPoint", device}}); }
    // The colors in the middle of the eighths of the pie, counterclockwise from three o'clock.
    QString pie()
    {
        const QImage picture = session->picture("Chart");
        const int width = picture.width() - 1;
        const int diameter = qMin(picture.height(), picture.width()) - 40;
        if (diameter < 20) {
            return "too small";
        }
        const QPointF center((width - 19 - diameter) / 2 + diameter / 2.0, 10 + diameter / 2.0);
        QString colors;
        for (int eighth = 0; eighth < 8; ++eighth) {
            const qreal angle = qDegreesToRadians(22.5 + 45.0 * eighth);
            colors +=
                shade(picture, (center + diameter / 4.0 * QPointF(qCos(angle), -qSin(angle))).toPoint());
        }
        return colors;
    }

    bool waitForPie(const QString &colors)
    {
        QString seen;
        const bool met = session->waitFor([&] { return (seen = pie()) == colors; });
        if (!met) {
            qWarning("the pie shows %s, not %s", qPrintable(seen), qPrintable(colors));
        }
        return met;
    }

    std::unique_ptr<PageSession> session;
};

QTEST_GUILESS_MAIN(TestFileSystemsPage)
#include "test_filesystems_page.moc"
