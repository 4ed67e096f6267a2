// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "images/logo.h"

#include <QtGui>
#include <QtTest>

namespace {

/// The share of a picture's pixels that contrast with a plain background of that grey.
double visibleOn(const QImage &picture, int grey)
{
    int visible = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            visible += color.alpha() > 128 && qAbs(qGray(color.rgb()) - grey) > 40;
        }
    }
    return double(visible) / (picture.width() * picture.height());
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(images); }
    void picturesAreTransparentAndShowOnLightAndDark_data()
    {
        const Rows<QString, int> row("name", "side");
        row("logo", ":/images/diobin_logo.png", 168);
        row("exit", ":/images/exit", 64);
        row("pause", ":/images/pause", 64);
        row("continue", ":/images/continue", 64);
        row("hard disk", ":/images/hard", 64);
        row("optical disc", ":/images/cd", 64);
    }

    void picturesAreTransparentAndShowOnLightAndDark()
    {
        QFETCH(QString, name);
        QFETCH(int, side);
        const QImage picture(name);
        QCOMPARE(picture.size(), QSize(side, side));
        QVERIFY(picture.hasAlphaChannel());
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QVERIFY(picture.pixelColor(side / 2, side / 4).alpha() > 0);
        QVERIFY(!QIcon(name).pixmap(16, 16).isNull());
        for (int grey : {0xff, 0x80, 0x20}) {
            QVERIFY2(visibleOn(picture, grey) > 0.15, qPrintable(QString::number(grey)));
        }
    }

    void theDecodedLogoIsThePicture()
    {
        const QPixmap expected(QStringLiteral(":/images/diobin_logo.png"));
        QCOMPARE(logo().toImage(), expected.toImage());
        QCOMPARE(logo().hasAlpha(), true);
    }

    void iconsDifferAndAllPicturesTogetherStaySmall()
    {
        QVector<QImage> seen;
        for (const char *name : {"exit", "pause", "continue", "hard", "cd"}) {
            const QImage icon = QImage(QStringLiteral(":/images/") + QLatin1String(name));
            QVERIFY2(!seen.contains(icon), name);
            seen << icon;
        }
        qint64 bytes = 0;
        const QFileInfoList files = QDir(QStringLiteral(":/images")).entryInfoList(QDir::Files);
        QCOMPARE(files.size(), 6);
        for (const QFileInfo &file : files) {
            bytes += file.size();
        }
        QVERIFY2(bytes < 60 * 1024, qPrintable(QString::number(bytes)));
    }
};

QTEST_MAIN(TestImages)
#include "test_images.moc"
