// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include <QAccessible>
#include <QtTest>
#include <QtWidgets>

// What a screen reader and a keyboard find.
class TestAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void gaugesTellTheirCaptionAndValue();
    void theChartAndTheGraphTellWhatTheyShow();
    void valuesAreLabelledByTheirCaptions_data();
    void valuesAreLabelledByTheirCaptions();
    void tablesAndTabsAreNamed();
    void everyControlOfAPageIsReachedByTab_data();
    void everyControlOfAPageIsReachedByTab();
    void pagesAreChangedByKeys();
    void menusAreOpenedByKeys();

private:
    static QString told(QObject *object, QAccessible::Text what)
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(object);
        return interface == nullptr ? QString() : interface->text(what);
    }
    static QWidget *gauge(int row)
    {
        return Fixture::find<QGridLayout>("glState")->itemAtPosition(row, 3)->widget();
    }

    std::unique_ptr<Fixture> fixture;
};

void TestAccess::init()
{
    fixture = std::make_unique<Fixture>();
}

void TestAccess::cleanup()
{
    fixture.reset();
}

void TestAccess::gaugesTellTheirCaptionAndValue()
{
    fixture->start(0);
    QCOMPARE(told(gauge(1), QAccessible::Name), QStringLiteral("Free space"));
    QCOMPARE(told(gauge(1), QAccessible::Description), QStringLiteral("12 %"));
    QCOMPARE(told(gauge(2), QAccessible::Name), QStringLiteral("Free memory"));
    QCOMPARE(told(gauge(2), QAccessible::Description), QStringLiteral("43 %"));
    QCOMPARE(told(gauge(3), QAccessible::Name), QStringLiteral("CPU core 1 load"));
    standin::machine().cpus = {{1100, 4200}, {500, 4200}};
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 0));
    QCOMPARE(told(gauge(3), QAccessible::Description), QStringLiteral("50 %"));
}

void TestAccess::theChartAndTheGraphTellWhatTheyShow()
{
    fixture->start(2);
    QWidget *chart = Fixture::find<QWidget>("frmDisk")->layout()->itemAt(0)->widget();
    QCOMPARE(told(chart, QAccessible::Name), QStringLiteral("Disk usage"));
    QCOMPARE(told(chart, QAccessible::Description), QStringLiteral("25% available"));
    QWidget *graph = Fixture::find<QVBoxLayout>("ltTimeHisto")->itemAt(0)->widget();
    QCOMPARE(told(graph, QAccessible::Name), QStringLiteral("Network traffic"));
    standin::machine().interfaces->at(1).bytesOut += 512;
    QMetaObject::invokeMethod(&fixture->updater(), "slotTabChanged", Q_ARG(int, 2));
    QCOMPARE(told(graph, QAccessible::Description), QStringLiteral("In: 0.00 B, Out: 512.00 B"));
}

void TestAccess::valuesAreLabelledByTheirCaptions_data()
{
    QTest::addColumn<QString>("caption");
    const QPair<const char *, const char *> pairs[] = {
        {"comboNet", "Device"},
        {"lblSystem", "System"},
        {"lblKernel", "Kernel"},
        {"lblArch", "Arch"},
        {"lblMemTotal", "Memory"},
        {"lblMountPoint", "Device"},
        {"lblTotal", "Total"},
        {"lblUsed", "Used"},
        {"lblAvail", "Available"},
        {"lblFsType", "Type"},
        {"netAdress", "Address"},
        {"netMask", "Mask"},
        {"netIn", "In"},
        {"netOut", "Out"},
        {"netErrors", "Errors"},
        {"lblDiskFree", "Free space"},
        {"lblMemFree", "Free memory"},
    };
    for (const auto &pair : pairs) {
        QTest::newRow(pair.first) << QString::fromLatin1(pair.second);
    }
}

void TestAccess::valuesAreLabelledByTheirCaptions()
{
    QFETCH(QString, caption);
    fixture->start(0);
    QAccessibleInterface *value =
        QAccessible::queryAccessibleInterface(Fixture::find<QWidget>(QTest::currentDataTag()));
    QVERIFY(value != nullptr);
    const auto relations = value->relations(QAccessible::Label);
    QCOMPARE(relations.size(), 1);
    QCOMPARE(relations.first().first->text(QAccessible::Name), caption);
}

void TestAccess::tablesAndTabsAreNamed()
{
    fixture->start(0);
    QCOMPARE(told(Fixture::find<QWidget>("treeView"), QAccessible::Name), QStringLiteral("Processes"));
    QCOMPARE(told(Fixture::find<QWidget>("tableFS"), QAccessible::Name), QStringLiteral("File systems"));
    QAccessibleInterface *tabs =
        QAccessible::queryAccessibleInterface(Fixture::find<QTabBar>("qt_tabwidget_tabbar"));
    QVERIFY(tabs != nullptr);
    QCOMPARE(tabs->child(1)->text(QAccessible::Name), QStringLiteral("Processes"));
}

void TestAccess::everyControlOfAPageIsReachedByTab_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("order");
    QTest::newRow("General") << 0 << QStringList({"qt_tabwidget_tabbar"});
    QTest::newRow("Processes") << 1 << QStringList({"qt_tabwidget_tabbar", "treeView"});
    QTest::newRow("File systems") << 2 << QStringList({"qt_tabwidget_tabbar", "tableFS"});
    QTest::newRow("Network") << 3 << QStringList({"qt_tabwidget_tabbar", "comboNet"});
}

void TestAccess::everyControlOfAPageIsReachedByTab()
{
    QFETCH(int, page);
    QFETCH(QStringList, order);
    fixture->start(page);
    QVERIFY(QTest::qWaitForWindowActive(Fixture::window()));
    auto *bar = Fixture::find<QTabBar>("qt_tabwidget_tabbar");
    bar->setFocus();
    QStringList found;
    for (int i = 0; i < order.size(); ++i) {
        found << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(found, order);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(bar));
}

void TestAccess::pagesAreChangedByKeys()
{
    fixture->start(0);
    auto *bar = Fixture::find<QTabBar>("qt_tabwidget_tabbar");
    QTest::keyClick(bar, Qt::Key_Right);
    QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 1);
    QTest::keyClick(bar, Qt::Key_Left);
    QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 0);
}

void TestAccess::menusAreOpenedByKeys()
{
    fixture->start(1);
    for (const QAction *menu : Fixture::window()->menuBar()->actions()) {
        QVERIFY2(menu->text().contains(QLatin1Char('&')), qPrintable(menu->text()));
    }
}

QTEST_MAIN(TestAccess)
#include "test_access.moc"
