// SPDX-License-Identifier: GPL-3.0-or-later
#include "mounts.h"

#include <QImage>
#include <QtTest>

namespace {

// The colours of the program's own pictures and of those of the made-up theme.
const QColor ownCd(0, 255, 0);
const QColor ownHard(0, 0, 255);
const QColor themeOptical(255, 0, 0);
const QColor themeDisk(255, 255, 0);

bool writePicture(const QString &file, const QColor &color)
{
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(color);
    return picture.save(file);
}

bool writeTheme(const QString &root)
{
    const QString folder = root + QStringLiteral("/colors/16x16");
    QFile index(root + QStringLiteral("/colors/index.theme"));
    return QDir().mkpath(folder) && index.open(QIODevice::WriteOnly) &&
           index.write("[Icon Theme]\nName=colors\nDirectories=16x16\n\n[16x16]\nSize=16\n") > 0 &&
           writePicture(folder + QStringLiteral("/drive-optical.png"), themeOptical) &&
           writePicture(folder + QStringLiteral("/drive-harddisk.png"), themeDisk);
}

QColor colorOf(const QVariant &decoration)
{
    return decoration.value<QIcon>().pixmap(16, 16).toImage().pixelColor(8, 8);
}

} // namespace

class TestFsIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(themes.isValid());
        QVERIFY(writeTheme(themes.path()));
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setFallbackSearchPaths({});
    }

    void theIconFollowsTypeAndTheme_data()
    {
        QTest::addColumn<bool>("optical");
        for (const char *type : {"iso9660", "iso", "isofs", "udf"}) {
            QTest::newRow(type) << true;
        }
        for (const char *type : {"ISO9660", "Iso", "is", "aiso", "UDF", "udf2", "ext4", ""}) {
            QTest::newRow(*type ? type : "no type") << false;
        }
    }

    void theIconFollowsTypeAndTheme()
    {
        QFETCH(bool, optical);
        const QString tag = QLatin1String(QTest::currentDataTag());
        const QString type = tag == QLatin1String("no type") ? QString() : tag;
        FSModel model;
        model.update({mount(QStringLiteral("/dev/sr0"), QStringLiteral("/media"), type)});
        const auto color = [&model] { return colorOf(model.index(0, 0).data(Qt::DecorationRole)); };
        for (int change = 0; change < 2; ++change) {
            QIcon::setThemeName(QStringLiteral("colors"));
            QCOMPARE(color(), optical ? themeOptical : themeDisk);
            QIcon::setThemeName(QStringLiteral("no such theme"));
            QCOMPARE(color(), optical ? ownCd : ownHard);
        }
        QVERIFY(!model.index(0, 1).data(Qt::DecorationRole).isValid());
    }

private:
    QTemporaryDir themes;
};

QTEST_MAIN(TestFsIcons)
#include "test_fsicons.moc"
