// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/pagesession.h"

#include <QtMath>
#include <QtTest>

class TestFileSystemsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theFirstRowIsChosenAndShown();
    void theChosenRowFollowsTheMouseAndTheKeys();
    void figuresFollowTheirMount();
    void mountsAppearWhileAnotherIsChosen();
    void ofTwoNeighboursThatVanishTheSecondGoesOneRefreshLater();
    void whenTheChosenOneVanishesAnotherIsChosen();
    void whenAllVanishThePanelIsEmptyAndOneThatAppearsIsShown();
    void noMountListAtAllShowsAnEmptyPanel();
    void namesThatAreNotUtf8AreShownAndChosen();
    void eachOfFiveHundredMountsCanBeChosen();

private:
    void start(const std::vector<standin::Mount> &mounts);
    void setMounts(const std::vector<standin::Mount> &mounts);
    Table list() { return m_session->table(QStringLiteral("tableFS")); }
    QStringList mountPoints() { return list().column(QStringLiteral("Mountpoint")); }
    QString chosen();
    bool waitForDevice(const char *device);
    QString pie();
    bool waitForPie(const char *colors);
    standin::Machine m_machine;
    std::unique_ptr<PageSession> m_session;
};

namespace {

standin::Mount mount(const std::string &device, const std::string &directory, int percentAvailable,
                     const char *type = "ext4")
{
    standin::Mount made;
    made.device = device;
    made.directory = directory;
    made.type = type;
    made.blocks = 262144; // of 4 KiB each: 1 GiB
    made.freeBlocks = made.blocks;
    made.availBlocks = made.blocks / 100 * std::uint64_t(percentAvailable);
    if (percentAvailable % 25 == 0)
        made.availBlocks = made.blocks / 4 * std::uint64_t(percentAvailable / 25);
    return made;
}

const standin::Mount rootMount = mount("/dev/sda1", "/", 25);
const standin::Mount dataMount = mount("/dev/sdb1", "/data", 50, "xfs");
const standin::Mount discMount = mount("/dev/sr0", "/media/disc", 0, "iso9660");

QStringList texts(std::initializer_list<const char *> words)
{
    QStringList result;
    for (const char *word : words)
        result.append(QString::fromUtf8(word));
    return result;
}

// Whatever the order: removals leave the rows sorted as they happen to be.
QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

void TestFileSystemsPage::start(const std::vector<standin::Mount> &mounts)
{
    m_machine = {};
    m_machine.mounts = mounts;
    m_session = std::make_unique<PageSession>(m_machine);
    QVERIFY2(m_session->start({QStringLiteral("filesystems")}), qPrintable(m_session->error()));
}

void TestFileSystemsPage::setMounts(const std::vector<standin::Mount> &mounts)
{
    m_machine.mounts = mounts;
    m_session->setMachine(m_machine);
}

void TestFileSystemsPage::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning("%s", qPrintable(m_session->error()));
    QVERIFY2(m_session->endsCleanly(), qPrintable(m_session->error()));
}

// The mount point of the highlighted row; empty unless it is the current one too.
QString TestFileSystemsPage::chosen()
{
    const Table now = list();
    for (int row = 0; row < now.rows.size(); ++row) {
        if (now.rows[row].selected)
            return now.rows[row].current ? now.text(row, QStringLiteral("Mountpoint")) : QString();
    }
    return {};
}

bool TestFileSystemsPage::waitForDevice(const char *device)
{
    return m_session->waitForTexts({{QStringLiteral("lblMountPoint"), QString::fromUtf8(device)}});
}

// The colours in the middle of the eighths of the pie, counter-clockwise from three o'clock.
QString TestFileSystemsPage::pie()
{
    const QImage picture = m_session->picture(m_session->widgets(QStringLiteral("Chart")).value(0));
    const int width = picture.width() - 1;
    const int diameter = qMin(picture.height(), picture.width()) - 40;
    if (diameter < 20)
        return QStringLiteral("too small");
    const QPointF center((width - 19 - diameter) / 2 + diameter / 2.0, 10 + diameter / 2.0);
    QString colors;
    for (int eighth = 0; eighth < 8; ++eighth) {
        const qreal angle = qDegreesToRadians(22.5 + 45.0 * eighth);
        colors += shade(picture, (center + diameter / 4.0 * QPointF(qCos(angle), -qSin(angle))).toPoint());
    }
    return colors;
}

bool TestFileSystemsPage::waitForPie(const char *colors)
{
    QString seen;
    const bool met = m_session->waitFor([&] { return (seen = pie()) == QLatin1String(colors); });
    if (!met)
        qWarning("the pie shows %s and not %s", qPrintable(seen), colors);
    return met;
}

void TestFileSystemsPage::theFirstRowIsChosenAndShown()
{
    start({discMount, dataMount, rootMount, mount("tmpfs", "/tmp", 50, "tmpfs"),
           mount("tmpfs", "/other", 50, "TMPFS")});
    QVERIFY(m_session->waitFor([&] { return chosen() == QLatin1String("/"); }));
    const Table shown = list();
    QCOMPARE(shown.visibleHeaders(), texts({"Mountpoint", "Type"}));
    QCOMPARE(mountPoints(), texts({"/", "/data", "/media/disc", "/other"}));
    QCOMPARE(shown.column(QStringLiteral("Type")), texts({"ext4", "xfs", "iso9660", "TMPFS"}));
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblMountPoint"), QStringLiteral("/dev/sda1")},
                                     {QStringLiteral("lblFsType"), QStringLiteral("ext4")},
                                     {QStringLiteral("lblTotal"), QStringLiteral("1.00 GB")},
                                     {QStringLiteral("lblUsed"), QStringLiteral("768.00 MB")},
                                     {QStringLiteral("lblAvail"), QStringLiteral("256.00 MB")}}));
    QVERIFY(waitForPie("rrrrrrbb"));
    QCOMPARE(m_session->described(QStringLiteral("Chart")), QStringLiteral("25% available"));
}

void TestFileSystemsPage::theChosenRowFollowsTheMouseAndTheKeys()
{
    start({discMount, dataMount, rootMount});
    QVERIFY2(
        m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"), QStringLiteral("/data")),
        qPrintable(m_session->error()));
    QVERIFY(waitForDevice("/dev/sdb1"));
    QVERIFY(waitForPie("rrrrbbbb"));
    QVERIFY(m_session->key(QStringLiteral("Down")));
    QVERIFY(waitForDevice("/dev/sr0"));
    QVERIFY(waitForPie("rrrrrrrr"));
    QVERIFY(m_session->key(QStringLiteral("Home")));
    QVERIFY(waitForDevice("/dev/sda1"));
    QVERIFY(waitForPie("rrrrrrbb"));
    QVERIFY2(m_session->clickHeader(QStringLiteral("tableFS"), QStringLiteral("Mountpoint")),
             qPrintable(m_session->error()));
    QVERIFY(m_session->waitFor([&] { return mountPoints() == texts({"/media/disc", "/data", "/"}); }));
    QCOMPARE(chosen(), QStringLiteral("/"));
}

void TestFileSystemsPage::figuresFollowTheirMount()
{
    start({rootMount, dataMount});
    QVERIFY(waitForPie("rrrrrrbb"));
    standin::Mount filling = mount("/dev/sda1", "/", 75);
    filling.blockSize = 1024;
    setMounts({filling, dataMount});
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblTotal"), QStringLiteral("256.00 MB")},
                                     {QStringLiteral("lblUsed"), QStringLiteral("64.00 MB")},
                                     {QStringLiteral("lblAvail"), QStringLiteral("192.00 MB")}}));
    QVERIFY(waitForPie("rrbbbbbb"));
}

void TestFileSystemsPage::mountsAppearWhileAnotherIsChosen()
{
    start({rootMount, dataMount});
    QVERIFY2(
        m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"), QStringLiteral("/data")),
        qPrintable(m_session->error()));
    setMounts({mount("/dev/sdc1", "/boot", 100), rootMount, dataMount, discMount});
    QVERIFY(m_session->waitFor([&] {
        return mountPoints() == texts({"/", "/boot", "/data", "/media/disc"});
    }));
    QCOMPARE(chosen(), QStringLiteral("/data"));
    QVERIFY(waitForDevice("/dev/sdb1"));
}

void TestFileSystemsPage::ofTwoNeighboursThatVanishTheSecondGoesOneRefreshLater()
{
    start({rootMount, dataMount, discMount});
    QVERIFY(m_session->waitFor([&] { return mountPoints().size() == 3; }));
    setMounts({rootMount});
    QVector<QStringList> seen{mountPoints()};
    QVERIFY(m_session->waitFor([&] {
        const QStringList now = sorted(mountPoints());
        if (now != seen.last())
            seen.append(now);
        return now.size() == 1;
    }));
    QCOMPARE(seen, (QVector<QStringList>{texts({"/", "/data", "/media/disc"}), texts({"/", "/media/disc"}),
                                         texts({"/"})}));
}

void TestFileSystemsPage::whenTheChosenOneVanishesAnotherIsChosen()
{
    start({rootMount, dataMount, discMount});
    QVERIFY2(
        m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"), QStringLiteral("/data")),
        qPrintable(m_session->error()));
    QVERIFY(waitForDevice("/dev/sdb1"));
    setMounts({rootMount, discMount});
    QVERIFY(m_session->waitFor([&] { return mountPoints() == texts({"/", "/media/disc"}); }));
    // What is highlighted and what the panel tells are the same one.
    QVERIFY(m_session->waitFor([&] {
        const QString device = m_session->text(QStringLiteral("lblMountPoint"));
        return (chosen() == QLatin1String("/") && device == QLatin1String("/dev/sda1")) ||
               (chosen() == QLatin1String("/media/disc") && device == QLatin1String("/dev/sr0"));
    }));
}

void TestFileSystemsPage::whenAllVanishThePanelIsEmptyAndOneThatAppearsIsShown()
{
    start({rootMount, dataMount, discMount});
    QVERIFY(waitForPie("rrrrrrbb"));
    setMounts({});
    QVERIFY(m_session->waitFor([&] { return mountPoints().isEmpty(); }));
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblMountPoint"), QString()},
                                     {QStringLiteral("lblFsType"), QString()},
                                     {QStringLiteral("lblTotal"), QStringLiteral("0.00 B")},
                                     {QStringLiteral("lblUsed"), QStringLiteral("0.00 B")},
                                     {QStringLiteral("lblAvail"), QStringLiteral("0.00 B")}}));
    QVERIFY(waitForPie("--------"));
    QCOMPARE(m_session->undefinedNumber(), QString());
    setMounts({dataMount});
    QVERIFY(waitForDevice("/dev/sdb1"));
    QVERIFY(m_session->waitFor([&] { return chosen() == QLatin1String("/data"); }));
    QVERIFY(waitForPie("rrrrbbbb"));
}

void TestFileSystemsPage::noMountListAtAllShowsAnEmptyPanel()
{
    m_machine = {};
    m_machine.mounts.emplace();
    m_machine.mountListFails = true;
    m_session = std::make_unique<PageSession>(m_machine);
    QVERIFY2(m_session->start({QStringLiteral("filesystems")}), qPrintable(m_session->error()));
    QVERIFY(m_session->waitForTexts({{QStringLiteral("lblMountPoint"), QString()},
                                     {QStringLiteral("lblTotal"), QStringLiteral("0.00 B")}}));
    QVERIFY(mountPoints().isEmpty());
    QVERIFY(waitForPie("--------"));
    QCOMPARE(m_session->undefinedNumber(), QString());
}

void TestFileSystemsPage::namesThatAreNotUtf8AreShownAndChosen()
{
    start({rootMount, mount("/dev/\xff", "/m\xe9", 50), mount("/dev/sdc1", "/\xc3\xa9t\xc3\xa9", 75)});
    QVERIFY2(m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"),
                                 QString::fromUtf8("/été")),
             qPrintable(m_session->error()));
    QVERIFY(waitForDevice("/dev/sdc1"));
    QVERIFY2(m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"),
                                 QString::fromUtf8("/m\uFFFD")),
             qPrintable(m_session->error()));
    QVERIFY(waitForDevice("/dev/\uFFFD"));
    QVERIFY(waitForPie("rrrrbbbb"));
}

void TestFileSystemsPage::eachOfFiveHundredMountsCanBeChosen()
{
    std::vector<standin::Mount> mounts;
    for (int i = 0; i < 500; ++i)
        mounts.push_back(mount("/dev/disk" + std::to_string(i), "/m" + std::to_string(1000 + i), i % 5 * 25));
    start(mounts);
    QVERIFY(m_session->waitFor([&] { return mountPoints().size() == 500; }));
    QVERIFY2(m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"),
                                 QStringLiteral("/m1003")),
             qPrintable(m_session->error()));
    QVERIFY(waitForDevice("/dev/disk3"));
    QVERIFY(m_session->key(QStringLiteral("End")));
    QVERIFY(waitForDevice("/dev/disk499"));
    QVERIFY(waitForPie("bbbbbbbb"));
    QVERIFY(m_session->key(QStringLiteral("Up")));
    QVERIFY(waitForDevice("/dev/disk498"));
    QVERIFY2(m_session->clickRow(QStringLiteral("tableFS"), QStringLiteral("Mountpoint"),
                                 QStringLiteral("/m1460")),
             qPrintable(m_session->error()));
    QVERIFY(waitForDevice("/dev/disk460"));
}

QTEST_GUILESS_MAIN(TestFileSystemsPage)
#include "test_filesystems_page.moc"
