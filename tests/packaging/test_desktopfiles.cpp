// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settingskeys.h"
#include "app/startpage.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {

const QString program = QStringLiteral("zarn-system-monitor");

/// The languages of the menu entry, besides the plain texts.
const QStringList languages{"cs", "de",    "es", "fr", "it", "ja", "ko",   "nl",
                            "pl", "pt_BR", "ru", "sv", "tr", "uk", "zh_CN"};

/// The actions of the menu entry are the arguments of the program, in page order.
const QStringList pages{"general", "processes", "filesystems", "network"};

using Group = QMap<QString, QString>;

QString textOf(const QString &path)
{
    QFile file(QStringLiteral(ZSM_SOURCE_DIR "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The groups of the desktop entry by name.
QMap<QString, Group> desktopEntry()
{
    QMap<QString, Group> groups;
    QString group;
    const QStringList lines = textOf("packaging/zarn-system-monitor.desktop").split('\n');
    for (const QString &line : lines) {
        if (line.startsWith('[')) {
            group = line.mid(1, line.size() - 2);
        } else if (line.contains('=') && !line.startsWith('#')) {
            groups[group][line.section('=', 0, 0)] = line.section('=', 1);
        }
    }
    return groups;
}

QString actionGroup(const QString &page)
{
    return QStringLiteral("Desktop Action ") + page;
}

QString inLanguage(const QString &key, const QString &language)
{
    return QStringLiteral("%1[%2]").arg(key, language);
}

/// What the metainfo says, by the element's name and, after a blank, its language if it has one.
Group metainfo()
{
    Group texts;
    QXmlStreamReader xml(textOf("packaging/example.telmorra.zarn_system_monitor.metainfo.xml"));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString name = xml.name().toString();
        const QXmlStreamAttributes attributes = xml.attributes();
        if (name == "release") {
            texts["version"] = attributes.value("version").toString();
            texts["date"] = attributes.value("date").toString();
        } else if (name == "name" || name == "summary" || name == "launchable" || name == "binary") {
            const QString language = attributes.value("xml:lang").toString();
            texts[language.isEmpty() ? name : inLanguage(name, language)] = xml.readElementText();
        }
    }
    return texts;
}

/// The manual page without the backslashes that keep its hyphens.
QString manualPage()
{
    return textOf("packaging/zarn-system-monitor.1").remove('\\');
}

} // namespace

class TestDesktopFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEntryStartsTheProgramUnderItsIcon()
    {
        const Group entry = desktopEntry()["Desktop Entry"];
        QCOMPARE(entry["Name"], QString("System monitor"));
        QCOMPARE(entry["Exec"], program);
        QCOMPARE(entry["Icon"], program);
        QCOMPARE(entry["Categories"], QString("System;Monitor;Qt;"));
        // The window's class on X11 is the program's name; a task bar finds the entry by it.
        QCOMPARE(entry["StartupWMClass"], program);
    }

    void eachActionStartsItsPage()
    {
        const QMap<QString, Group> entry = desktopEntry();
        QCOMPARE(entry["Desktop Entry"]["Actions"], pages.join(';') + ';');
        for (int page = 0; page < pages.size(); ++page) {
            QCOMPARE(entry[actionGroup(pages[page])]["Exec"], program + ' ' + pages[page]);
            QCOMPARE(startPageOf(pages[page]), page);
        }
        QCOMPARE(entry.size(), 1 + pages.size());
    }

    void eachTextIsThereInEachLanguage()
    {
        const QMap<QString, Group> entry = desktopEntry();
        checkLanguages(entry["Desktop Entry"], {"Name", "GenericName", "Comment", "Keywords"});
        for (const QString &page : pages) {
            checkLanguages(entry[actionGroup(page)], {"Name"});
        }
    }

    void keywordsEndWithASeparatorInEachLanguage()
    {
        const Group entry = desktopEntry()["Desktop Entry"];
        for (const QString &language : languages) {
            QVERIFY2(entry[inLanguage("Keywords", language)].endsWith(';'), qPrintable(language));
        }
    }

    void theMetainfoSaysWhatTheEntrySays()
    {
        const Group entry = desktopEntry()["Desktop Entry"];
        const Group info = metainfo();
        QCOMPARE(info["launchable"], program + ".desktop");
        QCOMPARE(info["binary"], program);
        QCOMPARE(info["name"], entry["Name"]);
        QCOMPARE(info["summary"], entry["Comment"]);
        for (const QString &language : languages) {
            QCOMPARE(info[inLanguage("name", language)], entry[inLanguage("Name", language)]);
            QCOMPARE(info[inLanguage("summary", language)], entry[inLanguage("Comment", language)]);
        }
    }

    void theNewestReleaseIsTheVersionThatIsBuilt()
    {
        const Group info = metainfo();
        QCOMPARE(info["version"], QString(ZSM_VERSION));
        const QRegularExpression heading("^## (\\S+) \\((\\S+)\\)$", QRegularExpression::MultilineOption);
        const QRegularExpressionMatch newest = heading.match(textOf("CHANGELOG.md"));
        QCOMPARE(newest.captured(1), QString(ZSM_VERSION));
        QCOMPARE(newest.captured(2), info["date"]);
        QVERIFY(manualPage().contains(QStringLiteral("\"%1 %2\"").arg(program, ZSM_VERSION)));
    }

    void theManualPageNamesEachArgument()
    {
        const QString manual = manualPage();
        for (int page = 0; page < pages.size(); ++page) {
            const QString line = QStringLiteral(".BR %1 \", \" -tab=%2\n").arg(pages[page]).arg(page + 1);
            QVERIFY2(manual.contains(line), qPrintable(line));
        }
    }

    void theManualPageNamesEachSetting()
    {
        const QString manual = manualPage();
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
    /// Each of `keys` has a text without a language and one in each of the languages, and in no other.
    static void checkLanguages(const Group &group, const QStringList &keys)
    {
        for (const QString &key : keys) {
            QVERIFY2(!group[key].isEmpty(), qPrintable(key));
            QStringList found;
            for (auto text = group.begin(); text != group.end(); ++text) {
                if (text.key().startsWith(key + '[')) {
                    QVERIFY2(!text.value().isEmpty(), qPrintable(text.key()));
                    found << text.key().section('[', 1).chopped(1);
                }
            }
            QCOMPARE(found, languages);
        }
    }
};

QTEST_APPLESS_MAIN(TestDesktopFiles)

#include "test_desktopfiles.moc"
