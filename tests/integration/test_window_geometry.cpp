// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/geometry.h"

#include <QFile>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <climits>
#include <memory>
#include <random>

namespace {

const QRect defaultRect(0, 0, 640, 480);

/// A window as the program has it: no smaller than what is in it.
class Window : public QMainWindow
{
public:
    Window() { setMinimumSize(100, 80); }
};

QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QVariantList fields(int x, int y, int width, int height, int titleBar = 0, int maximized = 0)
{
    return {x, y, width, height, titleBar, maximized};
}

// Mostly six of them, mostly such as a window can have.
QByteArray randomFields(std::mt19937 &random)
{
    static const char *const odd[] = {
        "2147483647", "-2147483648", "1000000", "-1000000", "1000001", "99999999999",   "0", "-1",
        "",           "x",           "1e3",     "0x40",     "\"",      "@Rect(1 2 3 4)"};
    QByteArrayList fields;
    const auto count = random() % 16 == 0 ? random() % 9 : 6;
    while (fields.size() < static_cast<int>(count)) {
        fields << (random() % 6 == 0 ? QByteArray(odd[random() % std::size(odd)])
                                     : QByteArray::number(static_cast<int>(random() % 3000) - 1000));
    }
    if (fields.size() > 4) { // no title bar is drawn here
        fields[4] = random() % 8 == 0 ? QByteArray(odd[random() % std::size(odd)]) : QByteArray("0");
    }
    return fields.join(", ");
}

} // namespace

class TestWindowGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_directory.reset(); }

    void titleBarDecidesWhetherARectangleLiesOnAScreen_data();
    void titleBarDecidesWhetherARectangleLiesOnAScreen();

    void firstStartGivesTheDefault();
    void geometryIsKeptUnderOneKey();
    void geometryComesBack();
    void repeatedSessionsDontDrift();
    void windowThatWasNeverShownKeepsItsGeometry();
    void maximizedComesBackWithItsNormalSize();
    void fullScreenComesBackAsANormalWindow();
    void minimizedComesBackOpen();
    void visibleMaximizedWindowCanBeGivenTheDefault();
    void geometryOffTheScreenGivesTheDefault();
    void oversizedGeometryIsCutToTheScreen();
    void unusableValuesGiveTheDefault_data();
    void unusableValuesGiveTheDefault();
    void damagedFileGivesTheDefault_data();
    void damagedFileGivesTheDefault();
    void anyFileGivesAWindowThatCanBeCaught();
    void toolBarsAreKeptOnlyWhenAskedFor();

private:
    QString path() const { return m_directory->filePath(QStringLiteral("settings.ini")); }
    void store(const QVariant &value)
    {
        QSettings settings(path(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("geometry"), value);
    }
    void write(const QByteArray &contents)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(contents), qint64(contents.size()));
    }
    void save(const QWidget &window, bool withToolBars = false)
    {
        QSettings settings(path(), QSettings::IniFormat);
        zarnSaveGeometry(&window, &settings, withToolBars);
    }
    void restore(QWidget &window, bool withToolBars = false)
    {
        QSettings settings(path(), QSettings::IniFormat);
        zarnRestoreGeometry(&window, &settings, defaultRect, withToolBars);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestWindowGeometry::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void TestWindowGeometry::titleBarDecidesWhetherARectangleLiesOnAScreen_data()
{
    QTest::addColumn<QRect>("client");
    QTest::addColumn<int>("titleBar");
    QTest::addColumn<QVector<QRect>>("screens");
    QTest::addColumn<QRect>("fitted");

    const QRect none;
    // A panel of 30 pixels along the top of the left screen, a lower right screen beside it.
    const QVector<QRect> one{QRect(0, 30, 1920, 1050)};
    const QVector<QRect> two{QRect(0, 30, 1920, 1050), QRect(1920, 200, 1280, 720)};
    const QRect plain(100, 100, 640, 480);
    const QRect onRight(2000, 300, 640, 480);

    QTest::newRow("inside") << plain << 25 << one << plain;
    QTest::newRow("on the second screen") << onRight << 25 << two << onRight;
    QTest::newRow("second screen gone") << onRight << 25 << one << none;
    QTest::newRow("no screen") << plain << 25 << QVector<QRect>() << none;
    QTest::newRow("left of a screen at negative coordinates")
        << QRect(-1200, 100, 640, 480) << 25 << QVector<QRect>{QRect(-1280, 0, 1280, 720)}
        << QRect(-1200, 100, 640, 480);

    QTest::newRow("64 pixels left at the right edge")
        << QRect(1856, 100, 640, 480) << 25 << one << QRect(1856, 100, 640, 480);
    QTest::newRow("63 pixels left at the right edge") << QRect(1857, 100, 640, 480) << 25 << one << none;
    QTest::newRow("64 pixels left at the left edge")
        << QRect(-576, 100, 640, 480) << 25 << one << QRect(-576, 100, 640, 480);
    QTest::newRow("63 pixels left at the left edge") << QRect(-577, 100, 640, 480) << 25 << one << none;

    QTest::newRow("title bar just below the panel")
        << QRect(100, 55, 640, 480) << 25 << one << QRect(100, 55, 640, 480);
    QTest::newRow("8 pixels of the title bar below the panel")
        << QRect(100, 38, 640, 480) << 25 << one << QRect(100, 38, 640, 480);
    QTest::newRow("7 pixels of the title bar below the panel")
        << QRect(100, 37, 640, 480) << 25 << one << none;
    QTest::newRow("title bar wholly above the screen") << QRect(100, 30, 640, 480) << 25 << one << none;
    QTest::newRow("frameless at the top edge")
        << QRect(0, 30, 640, 480) << 0 << one << QRect(0, 30, 640, 480);
    QTest::newRow("frameless above the top edge") << QRect(0, 0, 640, 480) << 0 << one << none;
    QTest::newRow("title bar at the bottom edge")
        << QRect(100, 1097, 640, 480) << 25 << one << QRect(100, 1097, 640, 480);
    QTest::newRow("title bar below the bottom edge") << QRect(100, 1098, 640, 480) << 25 << one << none;

    QTest::newRow("wider than the screen")
        << QRect(-50, 100, 4000, 480) << 25 << one << QRect(0, 100, 1920, 480);
    QTest::newRow("higher than the screen")
        << QRect(100, 100, 640, 4000) << 25 << one << QRect(100, 55, 640, 1025);
    QTest::newRow("as large as the screen")
        << QRect(0, 55, 1920, 1025) << 25 << one << QRect(0, 55, 1920, 1025);
    QTest::newRow("cut to the screen that shows most of it")
        << QRect(1800, 300, 1300, 480) << 25 << two << QRect(1920, 300, 1280, 480);

    QTest::newRow("smallest") << QRect(100, 100, 64, 32) << 25 << one << QRect(100, 100, 64, 32);
    QTest::newRow("too narrow") << QRect(100, 100, 63, 480) << 25 << one << none;
    QTest::newRow("too low") << QRect(100, 100, 640, 31) << 25 << one << none;
    QTest::newRow("negative size") << QRect(100, 100, -640, -480) << 25 << one << none;
    QTest::newRow("no size") << QRect() << 0 << one << none;
}

void TestWindowGeometry::titleBarDecidesWhetherARectangleLiesOnAScreen()
{
    QFETCH(QRect, client);
    QFETCH(int, titleBar);
    QFETCH(QVector<QRect>, screens);
    QTEST(zarnFitToScreens(client, titleBar, screens), "fitted");
}

void TestWindowGeometry::firstStartGivesTheDefault()
{
    Window window;
    restore(window);
    QCOMPARE(window.pos(), QPoint(0, 0));
    QCOMPARE(window.size(), QSize(640, 480));
    window.show();
    QCOMPARE(window.frameGeometry().topLeft(), QPoint(0, 0));
    QCOMPARE(window.size(), QSize(640, 480));
}

void TestWindowGeometry::geometryIsKeptUnderOneKey()
{
    Window window;
    window.setGeometry(40, 60, 500, 300);
    window.show();
    save(window);
    const QSettings settings(path(), QSettings::IniFormat);
    QCOMPARE(settings.allKeys(), QStringList{QStringLiteral("geometry")});
    const int titleBar = window.geometry().top() - window.frameGeometry().top();
    QCOMPARE(settings.value(QStringLiteral("geometry")).toStringList().join(QLatin1Char(' ')),
             QStringLiteral("40 60 500 300 %1 0").arg(titleBar));
}

void TestWindowGeometry::geometryComesBack()
{
    Window before;
    before.setGeometry(40, 60, 500, 300);
    before.show();
    save(before);

    Window after;
    restore(after);
    after.show();
    QCOMPARE(after.geometry(), QRect(40, 60, 500, 300));
    QVERIFY(!after.isMaximized());
}

void TestWindowGeometry::repeatedSessionsDontDrift()
{
    store(QVariant(fields(40, 60, 500, 300)));
    for (bool maximized : {false, true, true, false}) {
        Window window;
        restore(window);
        window.setWindowState(maximized ? Qt::WindowMaximized : Qt::WindowNoState);
        window.show();
        QCOMPARE(window.normalGeometry(), QRect(40, 60, 500, 300));
        save(window);
    }
}

void TestWindowGeometry::windowThatWasNeverShownKeepsItsGeometry()
{
    QWidget before;
    before.setGeometry(40, 60, 500, 300);
    save(before);
    Window after;
    restore(after);
    QCOMPARE(after.geometry(), QRect(40, 60, 500, 300));
}

void TestWindowGeometry::maximizedComesBackWithItsNormalSize()
{
    Window before;
    before.setGeometry(40, 60, 500, 300);
    before.show();
    before.showMaximized();
    QTRY_VERIFY(before.width() > 500);
    save(before);

    Window after;
    restore(after);
    after.show();
    QVERIFY(after.isMaximized());
    QTRY_VERIFY(after.width() > 500);
    after.showNormal();
    QTRY_COMPARE(after.geometry(), QRect(40, 60, 500, 300));
}

void TestWindowGeometry::fullScreenComesBackAsANormalWindow()
{
    Window before;
    before.setGeometry(40, 60, 500, 300);
    before.show();
    before.showFullScreen();
    save(before);

    Window after;
    restore(after);
    after.show();
    QVERIFY(!after.isFullScreen());
    QCOMPARE(after.geometry(), QRect(40, 60, 500, 300));
}

void TestWindowGeometry::minimizedComesBackOpen()
{
    Window before;
    before.setGeometry(40, 60, 500, 300);
    before.show();
    before.showMinimized();
    save(before);

    Window after;
    restore(after);
    after.show();
    QVERIFY(!after.isMinimized());
    QCOMPARE(after.geometry(), QRect(40, 60, 500, 300));
}

void TestWindowGeometry::visibleMaximizedWindowCanBeGivenTheDefault()
{
    Window window;
    window.showMaximized();
    restore(window);
    QVERIFY(!window.isMaximized());
    QCOMPARE(window.size(), defaultRect.size());
}

void TestWindowGeometry::geometryOffTheScreenGivesTheDefault()
{
    store(QVariant(fields(5000, 5000, 500, 300, 25, 1)));
    Window window;
    restore(window);
    window.show();
    QVERIFY(!window.isMaximized());
    QCOMPARE(window.frameGeometry().topLeft(), defaultRect.topLeft());
    QCOMPARE(window.size(), defaultRect.size());
}

void TestWindowGeometry::oversizedGeometryIsCutToTheScreen()
{
    store(QVariant(fields(0, 20, 100000, 100000, 20)));
    Window window;
    restore(window);
    QCOMPARE(window.geometry(), screenArea().adjusted(0, 20, 0, 0));
}

void TestWindowGeometry::unusableValuesGiveTheDefault_data()
{
    QTest::addColumn<QVariant>("value");
    QWidget other;
    const QByteArray bytes = other.saveGeometry();
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("text") << QVariant(QStringLiteral("nonsense"));
    QTest::newRow("number") << QVariant(7);
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("rectangle") << QVariant(QRect(40, 60, 500, 300));
    QTest::newRow("foreign bytes") << QVariant(bytes);
    QTest::newRow("truncated bytes") << QVariant(bytes.left(7));
    QTest::newRow("random bytes") << QVariant(QByteArray("\xff\x00\x80,1,2\n@", 9));
    QTest::newRow("a megabyte") << QVariant(QByteArray(1 << 20, ','));
    QTest::newRow("empty list") << QVariant(QVariantList());
    QTest::newRow("five fields") << QVariant(fields(40, 60, 500, 300).mid(0, 5));
    QTest::newRow("seven fields") << QVariant(fields(40, 60, 500, 300) << 1);
    QTest::newRow("words for numbers")
        << QVariant(QStringList{QStringLiteral("x"), QString(), QStringLiteral("500"), QStringLiteral("300"),
                                QStringLiteral("0"), QStringLiteral("0")});
    QTest::newRow("beyond int") << QVariant(QStringList{QStringLiteral("99999999999"), QStringLiteral("60"),
                                                        QStringLiteral("500"), QStringLiteral("300"),
                                                        QStringLiteral("0"), QStringLiteral("0")});
    QTest::newRow("lowest ints") << QVariant(fields(INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN));
    QTest::newRow("highest ints") << QVariant(fields(INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX));
    QTest::newRow("highest size") << QVariant(fields(0, 0, INT_MAX, INT_MAX));
    QTest::newRow("1 x 1") << QVariant(fields(40, 60, 1, 1));
    QTest::newRow("0 x 0") << QVariant(fields(40, 60, 0, 0));
    QTest::newRow("negative size") << QVariant(fields(40, 60, -500, -300));
    QTest::newRow("negative title bar") << QVariant(fields(40, 60, 500, 300, -1));
    QTest::newRow("title bar of 501") << QVariant(fields(40, 560, 500, 300, 501));
}

void TestWindowGeometry::unusableValuesGiveTheDefault()
{
    QFETCH(QVariant, value);
    store(value);
    Window window;
    restore(window);
    window.show();
    QCOMPARE(window.frameGeometry().topLeft(), defaultRect.topLeft());
    QCOMPARE(window.size(), defaultRect.size());
    QVERIFY(!window.isMaximized());
}

void TestWindowGeometry::damagedFileGivesTheDefault_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("binary") << QByteArray("\x00\x01\xfe\xff[[[=\n\r\x80", 12);
    QTest::newRow("unfinished value") << QByteArray("[General]\ngeometry=\"40, 60");
    QTest::newRow("unfinished variant") << QByteArray("[General]\ngeometry=@Variant(\\0\\0\\0\n");
    QTest::newRow("variant of an unknown type")
        << QByteArray("[General]\ngeometry=@Variant(\\0\\0\\xff\\xff\\xff\\xff)\n");
    QTest::newRow("unfinished rectangle") << QByteArray("[General]\ngeometry=@Rect(40 60\n");
}

void TestWindowGeometry::damagedFileGivesTheDefault()
{
    QFETCH(QByteArray, contents);
    write(contents);
    Window window;
    restore(window);
    QCOMPARE(window.geometry(), defaultRect);
}

// ZSM_SOAK_FILES sets how many.
void TestWindowGeometry::anyFileGivesAWindowThatCanBeCaught()
{
    const int files =
        qEnvironmentVariableIsSet("ZSM_SOAK_FILES") ? qEnvironmentVariableIntValue("ZSM_SOAK_FILES") : 300;
    std::mt19937 random(1);
    const QRect screen = screenArea();
    for (int i = 0; i < files; ++i) {
        const QByteArray contents = "[General]\ngeometry=" + randomFields(random) + '\n';
        write(contents);
        Window window;
        restore(window);
        window.show();
        const QRect grip = QRect(window.geometry().topLeft(), QSize(window.width(), 16)) & screen;
        QVERIFY2(grip.width() >= 64 && grip.height() >= 8, contents.constData());
        QVERIFY2(window.width() <= screen.width() && window.height() <= screen.height(),
                 contents.constData());
    }
    qInfo("%d settings files", files);
}

void TestWindowGeometry::toolBarsAreKeptOnlyWhenAskedFor()
{
    const auto toolBarOf = [](Window &window) {
        QToolBar *bar = window.addToolBar(QStringLiteral("bar"));
        bar->setObjectName(QStringLiteral("bar"));
        return bar;
    };
    Window before;
    toolBarOf(before);
    before.addToolBar(Qt::LeftToolBarArea, before.findChild<QToolBar *>());
    save(before, true);
    for (bool asked : {false, true}) {
        Window after;
        QToolBar *bar = toolBarOf(after);
        restore(after, asked);
        QCOMPARE(after.toolBarArea(bar), asked ? Qt::LeftToolBarArea : Qt::TopToolBarArea);
    }
}

QTEST_MAIN(TestWindowGeometry)
#include "test_window_geometry.moc"
