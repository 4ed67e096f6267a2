// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settingskeys.h"
#include "app/startpage.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {

/// Texts by language; the untranslated one has an empty language.
using Texts = QMap<QString, QString>;
/// Texts by key.
using Group = QMap<QString, Texts>;

const QString program = QStringLiteral("zarn-system-monitor");

const QStringList languages{"",   "cs", "de",    "es", "fr", "it", "ja", "ko",
                            "nl", "pl", "pt_BR", "ru", "sv", "tr", "uk", "zh_CN"};

/// The arguments of the program in page order.
const QStringList pages{"general", "processes", "filesystems", "network"};

QString contentOf(const QString &path)
{
    QFile file(QStringLiteral(ZSM_SOURCE_DIR "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The groups of the desktop entry by name.
QMap<QString, Group> desktopEntry()
{
    QMap<QString, Group> groups;
    QString group;
    const QStringList lines = contentOf("packaging/zarn-system-monitor.desktop").split('\n');
    for (const QString &line : lines) {
        if (line.startsWith('[')) {
            group = line.mid(1, line.size() - 2);
        } else if (line.contains('=') && !line.startsWith('#')) {
            const QString key = line.section('=', 0, 0);
            groups[group][key.section('[', 0, 0)][key.section('[', 1).remove(']')] = line.section('=', 1);
        }
    }
    return groups;
}

/// Texts of the metainfo by element; those of a release are its attributes.
Group metainfo()
{
    const QStringList elements{"name", "summary", "launchable", "binary"};
    Group texts;
    QXmlStreamReader xml(contentOf("packaging/example.telmorra.zarn_system_monitor.metainfo.xml"));
    while (!xml.atEnd()) {
        xml.readNext();
        const QString name = xml.name().toString();
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.isStartElement() && name == "developer") {
            xml.skipCurrentElement(); // its name is not the program's
        } else if (xml.isStartElement() && name == "release") {
            texts["version"][""] = attributes.value("version").toString();
            texts["date"][""] = attributes.value("date").toString();
        } else if (xml.isStartElement() && elements.contains(name)) {
            texts[name][attributes.value("xml:lang").toString()] = xml.readElementText();
        }
    }
    return texts;
}

} // namespace

class TestDesktopFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entryStartsTheProgramWithItsIcon()
    {
        QCOMPARE(main["Name"][""], QString("System monitor"));
        QCOMPARE(main["Exec"][""], program);
        QCOMPARE(main["Icon"][""], program);
        QCOMPARE(main["Categories"][""], QString("System;Monitor;Qt;"));
        // The window's class on X11 is the program's name; a task bar finds the entry by it.
        QCOMPARE(main["StartupWMClass"][""], program);
    }

    void eachPageHasAnActionAndAnArgument()
    {
        QCOMPARE(main["Actions"][""], pages.join(';') + ';');
        QCOMPARE(entry.size(), 1 + pages.size());
        for (int page = 0; page < pages.size(); ++page) {
            QCOMPARE(actionOf(pages[page])["Exec"][""], program + ' ' + pages[page]);
            QCOMPARE(startPageOf(pages[page]), page);
            const QString line = QStringLiteral(".BR %1 \", \" -tab=%2\n").arg(pages[page]).arg(page + 1);
            QVERIFY2(manual.contains(line), qPrintable(line));
        }
    }

    void eachTextIsTranslated_data()
    {
        QTest::addColumn<Texts>("texts");
        QTest::addColumn<QString>("ending");
        for (const char *key : {"Name", "GenericName", "Comment"}) {
            QTest::newRow(key) << main[key] << QString();
        }
        QTest::newRow("Keywords") << main["Keywords"] << ";";
        for (const QString &page : pages) {
            QTest::addRow("Name of the action %s", qPrintable(page)) << actionOf(page)["Name"] << QString();
        }
    }

    void eachTextIsTranslated()
    {
        QFETCH(const Texts, texts);
        QFETCH(const QString, ending);
        QCOMPARE(texts.keys(), languages);
        for (const QString &language : languages) {
            QVERIFY2(!texts[language].isEmpty() && texts[language].endsWith(ending), qPrintable(language));
        }
    }

    void metainfoMatchesTheEntry()
    {
        QCOMPARE(info["launchable"][""], program + ".desktop");
        QCOMPARE(info["binary"][""], program);
        QCOMPARE(info["name"], main["Name"]);
        QCOMPARE(info["summary"], main["Comment"]);
    }

    void newestReleaseIsTheBuiltVersion()
    {
        QCOMPARE(info["version"][""], QString(ZSM_VERSION));
        const QRegularExpression heading("^## (\\S+) \\((\\S+)\\)$", QRegularExpression::MultilineOption);
        const QRegularExpressionMatch newest = heading.match(contentOf("CHANGELOG.md"));
        QCOMPARE(newest.captured(1), QString(ZSM_VERSION));
        QCOMPARE(newest.captured(2), info["date"][""]);
        QVERIFY(manual.contains(QStringLiteral("\"%1 %2\"").arg(program, ZSM_VERSION)));
    }

    void manualPageNamesEachSetting()
    {
        QStringList keys{settings::sortColumn, settings::sortOrder, settings::splitter, "column/ NAME",
                         "geometry"};
        for (const settings::IntervalKey &key : settings::intervalKeys) {
            keys << key.readFrom << key.writtenTo;
        }
        for (const QString &key : qAsConst(keys)) {
            QVERIFY2(manual.contains(key), qPrintable(key));
        }
    }

private:
    Group actionOf(const QString &page) const { return entry["Desktop Action " + page]; }

    const QMap<QString, Group> entry = desktopEntry();
    const Group main = entry["Desktop Entry"];
    const Group info = metainfo();
    /// Without the backslashes that protect its hyphens.
    const QString manual = contentOf("packaging/zarn-system-monitor.1").remove('\\');
};

QTEST_APPLESS_MAIN(TestDesktopFiles)

#include "test_desktopfiles.moc"
