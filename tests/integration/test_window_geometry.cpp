// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "integration/geometry.h"

#include <QtTest>
#include <QtWidgets>

#include <climits>
#include <memory>
#include <random>

namespace {

const QRect defaultRect(0, 0, 640, 480);
const QRect savedRect(40, 60, 500, 300);

/// Like the program's window, it has a minimum size.
class Window : public QMainWindow
{
public:
    Window() { setMinimumSize(100, 80); }
};

QVariantList fields(int x, int y, int width, int height, int titleBar = 0, int maximized = 0)
{
    return {x, y, width, height, titleBar, maximized};
}

/// Mostly six numbers, and mostly plausible ones.
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
    if (fields.size() > 4) { // there are no title bars on the offscreen platform
        fields[4] = random() % 8 == 0 ? QByteArray(odd[random() % std::size(odd)]) : QByteArray("0");
    }
    return fields.join(", ");
}

} // namespace

class TestWindowGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
    }

    void cleanup() { directory.reset(); }

    void titleBarDecidesWhetherARectangleLiesOnAScreen_data()
    {
        const Rows<QRect, int, QVector<QRect>, QRect> row("client", "titleBar", "screens", "fitted");
        // A panel of 30 pixels along the top of the left screen, and a lower screen to the right of it.
        const QVector<QRect> one{QRect(0, 30, 1920, 1050)};
        const QVector<QRect> two{QRect(0, 30, 1920, 1050), QRect(1920, 200, 1280, 720)};
        const QVector<QRect> negative{QRect(-1280, 0, 1280, 720)};
        const auto fits = [&](const char *name, const QRect &client, const QVector<QRect> &screens,
                              int titleBar = 25) { row(name, client, titleBar, screens, client); };
        const auto isLost = [&](const char *name, const QRect &client, const QVector<QRect> &screens,
                                int titleBar = 25) { row(name, client, titleBar, screens, QRect()); };

        fits("inside", QRect(100, 100, 640, 480), one);
        fits("on the second screen", QRect(2000, 300, 640, 480), two);
        isLost("second screen gone", QRect(2000, 300, 640, 480), one);
        isLost("no screen", QRect(100, 100, 640, 480), {});
        fits("left of a screen at negative coordinates", QRect(-1200, 100, 640, 480), negative);

        fits("64 pixels left at the right edge", QRect(1856, 100, 640, 480), one);
        isLost("63 pixels left at the right edge", QRect(1857, 100, 640, 480), one);
        fits("64 pixels left at the left edge", QRect(-576, 100, 640, 480), one);
        isLost("63 pixels left at the left edge", QRect(-577, 100, 640, 480), one);

        fits("title bar just below the panel", QRect(100, 55, 640, 480), one);
        fits("8 pixels of the title bar below the panel", QRect(100, 38, 640, 480), one);
        isLost("7 pixels of the title bar below the panel", QRect(100, 37, 640, 480), one);
        isLost("title bar wholly above the screen", QRect(100, 30, 640, 480), one);
        fits("frameless at the top edge", QRect(0, 30, 640, 480), one, 0);
        isLost("frameless above the top edge", QRect(0, 0, 640, 480), one, 0);
        fits("title bar at the bottom edge", QRect(100, 1097, 640, 480), one);
        isLost("title bar below the bottom edge", QRect(100, 1098, 640, 480), one);

        row("wider than the screen", QRect(-50, 100, 4000, 480), 25, one, QRect(0, 100, 1920, 480));
        row("higher than the screen", QRect(100, 100, 640, 4000), 25, one, QRect(100, 55, 640, 1025));
        fits("as large as the screen", QRect(0, 55, 1920, 1025), one);
        row("cut to the screen that shows most of it", QRect(1800, 300, 1300, 480), 25, two,
            QRect(1920, 300, 1280, 480));
        fits("smallest", QRect(100, 100, 64, 32), one);
        isLost("too narrow", QRect(100, 100, 63, 480), one);
        isLost("too low", QRect(100, 100, 640, 31), one);
        isLost("negative size", QRect(100, 100, -640, -480), one);
        isLost("no size", QRect(), one, 0);
    }

    void titleBarDecidesWhetherARectangleLiesOnAScreen()
    {
        QFETCH(QRect, client);
        QFETCH(int, titleBar);
        QFETCH(QVector<QRect>, screens);
        QTEST(zarnFitToScreens(client, titleBar, screens), "fitted");
    }

    void onlyWaylandPlacesWindowsItself_data()
    {
        const Rows<bool> row("clientsDo");
        for (const char *name : {"xcb", "offscreen", "minimal", "vnc", ""}) {
            row(name, true);
        }
        for (const char *name : {"wayland", "wayland-egl", "wayland-xcomposite-egl"}) {
            row(name, false);
        }
    }

    void onlyWaylandPlacesWindowsItself()
    {
        QTEST(zarnClientsPlaceWindows(QString::fromLatin1(QTest::currentDataTag())), "clientsDo");
    }

    void onlyTheSizeIsBoundWhereWindowsAreNotPlaced_data()
    {
        const Rows<QSize, int, QVector<QRect>, QSize> row("client", "titleBar", "screens", "fitted");

        const QVector<QRect> one{QRect(0, 0, 1280, 1024)};
        const QVector<QRect> upright{QRect(0, 0, 1280, 720), QRect(1280, 0, 1080, 1920)};
        row("smaller than the screen", QSize(900, 700), 30, one, QSize(900, 700));
        row("as large as the screen", QSize(1280, 994), 30, one, QSize(1280, 994));
        row("one pixel too large each way", QSize(1281, 995), 30, one, QSize(1280, 994));
        row("without a title bar", QSize(5000, 4000), 0, one, QSize(1280, 1024));
        row("fits the second screen only", QSize(1000, 1500), 30, upright, QSize(1000, 1500));
        row("fits the first screen only", QSize(1200, 600), 30, upright, QSize(1200, 600));
        row("fits no screen", QSize(2000, 2000), 20, upright, QSize(1080, 1900));
        row("the largest numbers", QSize(1000000, 1000000), 0, {QRect(0, 0, 1000000, 1000000)},
            QSize(1000000, 1000000));
        row("smallest", QSize(64, 32), 30, one, QSize(64, 32));
        row("too narrow", QSize(63, 480), 30, one, QSize());
        row("too low", QSize(640, 31), 30, one, QSize());
        row("negative", QSize(-640, -480), 30, one, QSize());
        row("none", QSize(), 0, one, QSize());
        row("no room below the title bar", QSize(640, 480), 500, {QRect(0, 0, 800, 500)}, QSize());
        row("no screen", QSize(900, 700), 30, {}, QSize());
    }

    void onlyTheSizeIsBoundWhereWindowsAreNotPlaced()
    {
        QFETCH(QSize, client);
        QFETCH(int, titleBar);
        QFETCH(QVector<QRect>, screens);
        QTEST(zarnFitSizeToScreens(client, titleBar, screens), "fitted");
    }

    void firstStartGivesTheDefaultEvenToAMaximizedWindow()
    {
        Window window;
        restore(window);
        QCOMPARE(window.pos(), QPoint(0, 0));
        QCOMPARE(window.size(), QSize(640, 480));
        window.show();
        QCOMPARE(window.frameGeometry().topLeft(), QPoint(0, 0));
        QCOMPARE(window.size(), QSize(640, 480));
        window.showMaximized();
        restore(window);
        QVERIFY(!window.isMaximized());
        QCOMPARE(window.size(), defaultRect.size());
    }

    void geometryIsKeptUnderOneKey()
    {
        Window window;
        window.setGeometry(savedRect);
        window.show();
        save(window);
        const QSettings settings(path(), QSettings::IniFormat);
        QCOMPARE(settings.allKeys(), QStringList{QStringLiteral("geometry")});
        const int titleBar = window.geometry().top() - window.frameGeometry().top();
        QCOMPARE(settings.value(QStringLiteral("geometry")).toStringList().join(QLatin1Char(' ')),
                 QStringLiteral("40 60 500 300 %1 0").arg(titleBar));
    }

    void geometryComesBack_data()
    {
        const Rows<Qt::WindowState> row("state");
        row("normal", Qt::WindowNoState);
        row("maximized, with its normal size", Qt::WindowMaximized);
        row("full screen, as a normal window", Qt::WindowFullScreen);
        row("minimized, as an open window", Qt::WindowMinimized);
    }

    void geometryComesBack()
    {
        QFETCH(Qt::WindowState, state);
        const bool maximized = state == Qt::WindowMaximized;
        Window before;
        before.setGeometry(savedRect);
        before.show();
        before.setWindowState(state);
        if (maximized) {
            QTRY_VERIFY(before.width() > savedRect.width());
        }
        save(before);

        Window after;
        restore(after);
        after.show();
        QCOMPARE(after.isMaximized(), maximized);
        QVERIFY(!after.isFullScreen());
        QVERIFY(!after.isMinimized());
        if (maximized) {
            QTRY_VERIFY(after.width() > savedRect.width());
            after.showNormal();
        }
        QTRY_COMPARE(after.geometry(), savedRect);
    }

    void repeatedSessionsDontDrift()
    {
        store(QVariant(fields(40, 60, 500, 300)));
        for (bool maximized : {false, true, true, false}) {
            Window window;
            restore(window);
            window.setWindowState(maximized ? Qt::WindowMaximized : Qt::WindowNoState);
            window.show();
            QCOMPARE(window.normalGeometry(), savedRect);
            save(window);
        }
    }

    void windowThatWasNeverShownKeepsItsGeometry()
    {
        QWidget before;
        before.setGeometry(savedRect);
        save(before);
        Window after;
        restore(after);
        QCOMPARE(after.geometry(), savedRect);
    }

    void oversizedGeometryIsCutToTheScreen()
    {
        store(QVariant(fields(0, 20, 100000, 100000, 20)));
        Window window;
        restore(window);
        QCOMPARE(window.geometry(), screenArea().adjusted(0, 20, 0, 0));
    }

    void unusableValuesGiveTheDefault_data()
    {
        const Rows<QVariant> row("value");
        QWidget other;
        const QByteArray bytes = other.saveGeometry();
        row("invalid", {});
        row("empty text", QString());
        row("text", QStringLiteral("nonsense"));
        row("number", 7);
        row("true", true);
        row("rectangle", savedRect);
        row("foreign bytes", bytes);
        row("truncated bytes", bytes.left(7));
        row("random bytes", QByteArray("\xff\x00\x80,1,2\n@", 9));
        row("a megabyte", QByteArray(1 << 20, ','));
        row("empty list", QVariantList());
        row("five fields", fields(40, 60, 500, 300).mid(0, 5));
        row("seven fields", fields(40, 60, 500, 300) << 1);
        row("words for numbers", QStringList({"x", "", "500", "300", "0", "0"}));
        row("beyond int", QStringList({"99999999999", "60", "500", "300", "0", "0"}));
        row("lowest ints", fields(INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN));
        row("highest ints", fields(INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX));
        row("highest size", fields(0, 0, INT_MAX, INT_MAX));
        row("off the screen", fields(5000, 5000, 500, 300, 25, 1));
        row("1 x 1", fields(40, 60, 1, 1));
        row("0 x 0", fields(40, 60, 0, 0));
        row("negative size", fields(40, 60, -500, -300));
        row("negative title bar", fields(40, 60, 500, 300, -1));
        row("title bar of 501", fields(40, 560, 500, 300, 501));
    }

    void unusableValuesGiveTheDefault()
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

    void damagedFileGivesTheDefault_data()
    {
        const Rows<QByteArray> row("contents");
        const QByteArray key = "[General]\ngeometry=";
        row("binary", QByteArray("\x00\x01\xfe\xff[[[=\n\r\x80", 12));
        row("unfinished value", key + "\"40, 60");
        row("unfinished variant", key + "@Variant(\\0\\0\\0\n");
        row("variant of an unknown type", key + "@Variant(\\0\\0\\xff\\xff\\xff\\xff)\n");
        row("unfinished rectangle", key + "@Rect(40 60\n");
    }

    void damagedFileGivesTheDefault()
    {
        QFETCH(QByteArray, contents);
        write(contents);
        Window window;
        restore(window);
        QCOMPARE(window.geometry(), defaultRect);
    }

    /// ZSM_SOAK_FILES sets the number of files.
    void anyFileGivesAWindowThatCanBeDragged()
    {
        const int files = qEnvironmentVariableIsSet("ZSM_SOAK_FILES")
                              ? qEnvironmentVariableIntValue("ZSM_SOAK_FILES")
                              : 300;
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

    void toolBarsAreKeptOnlyWhenAskedFor()
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

private:
    static QRect screenArea() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    QString path() const { return directory->filePath(QStringLiteral("settings.ini")); }
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

    std::unique_ptr<QTemporaryDir> directory;
};

QTEST_MAIN(TestWindowGeometry)
#include "test_window_geometry.moc"
