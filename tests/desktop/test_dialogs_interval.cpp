// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/processespage.h"

#include <QJsonArray>
#include <QtTest>

#include <algorithm>

// The interval dialog under the user's hands. The intervals of the settings file are so long that a page is
// refreshed by a tick only once the dialog has changed its interval.
class TestDialogsInterval : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyPageHasItsDialog_data();
    void everyPageHasItsDialog();
    void okIsDisabledUntilTheSliderIsDragged();
    void theKeyboardReachesTheSliderAndOk();
    void anAcceptedIntervalIsUsed();
    void aCancelledIntervalIsNot();
    void theNetworkDialogEmptiesTheGraphEvenIfCancelled();

private:
    bool open(const char *entry);
    QStringList labels();
    bool okIsEnabled();
    int sliderValue();
    void dragSliderTo(int value);
    bool aTickHasPassed();
    QString graph();
    void setFreeMemory(std::uint64_t bytes);
    standin::Machine m_machine;
    std::unique_ptr<DesktopSession> m_session;
    std::unique_ptr<ProcessesPage> m_page;
};

void TestDialogsInterval::init()
{
    m_machine = standin::Machine{};
    m_machine.memory = standin::Memory{8 << 20, 1 << 20, 0, 0};
    m_machine.interfaces = std::vector<standin::Interface>(1);
    m_machine.interfaces->front().name = "eth0";
    SessionOptions options;
    options.settings = "[interval]\ngeneral=100000\nnet=100000\n";
    options.machine = m_machine;
    m_session = std::make_unique<DesktopSession>(asTestUser(options));
    m_page = std::make_unique<ProcessesPage>(*m_session);
    QVERIFY2(m_session->start(), qPrintable(m_session->error()));
}

void TestDialogsInterval::cleanup()
{
    if (QTest::currentTestFailed()) {
        qWarning("%s", qPrintable(m_session->error()));
        m_session->savePicture(QLatin1String("failed-") + QLatin1String(QTest::currentTestFunction()));
    }
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QCOMPARE(m_session->standardError(), QByteArray());
    QCOMPARE(m_session->exitCode(), 0);
}

bool TestDialogsInterval::open(const char *entry)
{
    return m_session->clickMenu(QStringLiteral("Edit")) &&
           m_session->clickMenu(QStringLiteral("Update interval")) &&
           m_session->clickMenu(QLatin1String(entry)) &&
           m_page->waitForDialog(QStringLiteral("Interval changing"));
}

// Of the dialog and of the window behind it.
QStringList TestDialogsInterval::labels()
{
    QStringList texts;
    const QJsonArray widgets =
        m_session->probe(QStringLiteral("widgets QLabel")).value(QLatin1String("widgets")).toArray();
    for (const QJsonValue &label : widgets)
        texts.append(label[QLatin1String("text")].toString());
    return texts;
}

bool TestDialogsInterval::okIsEnabled()
{
    const QJsonArray buttons = m_session->dialog().value(QLatin1String("buttons")).toArray();
    return std::any_of(buttons.begin(), buttons.end(), [](const QJsonValue &button) {
        return button[QLatin1String("text")].toString().remove(QLatin1Char('&')) == QLatin1String("OK") &&
               button[QLatin1String("enabled")].toBool();
    });
}

int TestDialogsInterval::sliderValue()
{
    return m_session->widget(QStringLiteral("QSlider")).value(QLatin1String("value")).toInt();
}

// From the handle to where its middle is at the value; the handle needs about its half at each end.
void TestDialogsInterval::dragSliderTo(int value)
{
    const QRect rect = rectOf(m_session->widget(QStringLiteral("QSlider")).value(QLatin1String("rect")));
    const int halfHandle = 8;
    const int length = rect.width() - 2 * halfHandle;
    const auto place = [&](int at) {
        return QPoint(rect.left() + halfHandle + length * (at - 1) / 4, rect.center().y());
    };
    m_session->drag(place(sliderValue()), place(value));
}

// The processes are listed anew once in three ticks: a name that is new to the list tells of one.
bool TestDialogsInterval::aTickHasPassed()
{
    standin::Process process;
    process.name = "tick";
    process.uid = testUser();
    if (!m_machine.processes)
        m_machine.processes.emplace();
    const int pid = 1000 + int(m_machine.processes->size());
    (*m_machine.processes)[pid] = process;
    m_session->setMachine(m_machine);
    return m_session->waitFor(
        [&] { return m_page->list().find(QStringLiteral("PID"), QString::number(pid)) >= 0; });
}

QString TestDialogsInterval::graph()
{
    return m_session->widget(QStringLiteral("TimeHisto"))
        .value(QLatin1String("accessibleDescription"))
        .toString();
}

void TestDialogsInterval::setFreeMemory(std::uint64_t bytes)
{
    m_machine.memory->free = bytes;
    m_session->setMachine(m_machine);
}

void TestDialogsInterval::everyPageHasItsDialog_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shown");
    QTest::newRow("general") << "General interval"
                             << "General page"
                             << "100000";
    QTest::newRow("processes") << "Process interval"
                               << "Processes page"
                               << "3";
    QTest::newRow("file systems") << "Filesystem interval"
                                  << "Filesystems page"
                                  << "3";
    QTest::newRow("network") << "Network interval"
                             << "Network page"
                             << "100000";
}

// A stored value outside of the slider's range is told as it is; the slider stands at its end.
void TestDialogsInterval::everyPageHasItsDialog()
{
    QFETCH(QString, entry);
    QFETCH(QString, page);
    QFETCH(QString, shown);
    QVERIFY(open(qPrintable(entry)));
    const QString text = QStringLiteral("You can set time interval (in secs)\n between updates for page ");
    QVERIFY(labels().contains(text + page));
    QVERIFY(labels().contains(shown));
    QVERIFY(labels().contains(QStringLiteral("Interval")));
    const QJsonObject slider = m_session->widget(QStringLiteral("QSlider"));
    QCOMPARE(slider.value(QLatin1String("minimum")).toInt(), 1);
    QCOMPARE(slider.value(QLatin1String("maximum")).toInt(), 5);
    QCOMPARE(sliderValue(), std::min(shown.toInt(), 5));
    QVERIFY(!okIsEnabled());
}

void TestDialogsInterval::okIsDisabledUntilTheSliderIsDragged()
{
    QVERIFY(open("Process interval"));
    QVERIFY(!okIsEnabled());
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(!m_session->dialog().isEmpty());
    dragSliderTo(4);
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    QCOMPARE(sliderValue(), 4);
    QVERIFY(labels().contains(QStringLiteral("4")));
}

// The toolkit tells the first steps of a slider that is held down as moves: the keyboard user's way in.
void TestDialogsInterval::theKeyboardReachesTheSliderAndOk()
{
    QVERIFY(open("Process interval"));
    QVERIFY(m_session->key(QStringLiteral("Left")));
    QVERIFY(m_session->waitFor([&] { return sliderValue() == 2 && okIsEnabled(); }));
    QVERIFY(m_session->key(QStringLiteral("Return")));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY(open("Process interval"));
    QCOMPARE(sliderValue(), 2);
}

void TestDialogsInterval::anAcceptedIntervalIsUsed()
{
    const QString before = m_session->text(QStringLiteral("lblMemFree"));
    setFreeMemory(3 << 20);
    QVERIFY(open("General interval"));
    dragSliderTo(1);
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    QCOMPARE(m_session->text(QStringLiteral("lblMemFree")), before);
    QVERIFY(m_session->clickButton(QStringLiteral("OK")));
    QVERIFY(m_session->waitFor(
        [&] { return m_session->text(QStringLiteral("lblMemFree")).startsWith(QStringLiteral("3.00 MB")); }));
    QVERIFY2(m_page->quit(), qPrintable(m_session->error()));
    QFile file(m_session->settingsFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\ngeneral=1\n"));
    QVERIFY(m_session->start());
}

void TestDialogsInterval::aCancelledIntervalIsNot()
{
    QVERIFY(open("General interval"));
    dragSliderTo(1);
    QVERIFY(m_session->waitFor([&] { return okIsEnabled(); }));
    QVERIFY(m_session->clickButton(QStringLiteral("Cancel")));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY(m_page->showPage(QStringLiteral("Processes")));
    QVERIFY(aTickHasPassed());
    QVERIFY(open("General interval"));
    QVERIFY(labels().contains(QStringLiteral("100000")));
    QCOMPARE(sliderValue(), 5);
}

// A change to the page takes a sample; no tick takes another.
void TestDialogsInterval::theNetworkDialogEmptiesTheGraphEvenIfCancelled()
{
    QVERIFY(m_page->showPage(QStringLiteral("Network")));
    QVERIFY(m_session->waitFor([&] { return !graph().isEmpty(); }));
    QVERIFY(open("General interval"));
    QVERIFY(m_session->clickButton(QStringLiteral("Cancel")));
    QVERIFY(m_page->waitForNoDialog());
    QVERIFY2(!graph().isEmpty(), "the dialogs of the other pages leave it");
    QVERIFY(open("Network interval"));
    QVERIFY(!graph().isEmpty());
    QVERIFY(m_session->key(QStringLiteral("Escape")));
    QVERIFY(m_session->waitFor([&] { return graph().isEmpty(); }));
}

QTEST_GUILESS_MAIN(TestDialogsInterval)
#include "test_dialogs_interval.moc"
