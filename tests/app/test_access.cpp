// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive technology and the keyboard can reach.
#include "../support/rows.h"
#include "fixture.h"

#include <QtTest>
#include <QtWidgets>

class TestAccess : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void gaugesTellTheirCaptionAndValue()
    {
        fixture->start(0);
        QCOMPARE(told(gauge(1), QAccessible::Name), QStringLiteral("Free space"));
        QCOMPARE(told(gauge(1), QAccessible::Description), QStringLiteral("12 %"));
        QCOMPARE(told(gauge(2), QAccessible::Name), QStringLiteral("Free memory"));
        QCOMPARE(told(gauge(2), QAccessible::Description), QStringLiteral("43 %"));
        QCOMPARE(told(gauge(3), QAccessible::Name), QStringLiteral("CPU core 1 load"));
        QCOMPARE(told(gauge(4), QAccessible::Name), QStringLiteral("CPU core 2 load"));
        standin::machine().cpus = {{1100, 4200}, {500, 4200}};
        fixture->refresh(0);
        QCOMPARE(told(gauge(3), QAccessible::Description), QStringLiteral("50 %"));
    }

    void gaugesAreProgressBarsWithAReadOnlyValue()
    {
        fixture->start(0);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(gauge(2));
        QCOMPARE(interface->role(), QAccessible::ProgressBar);
        QAccessibleValueInterface *value = interface->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), 100.0);
        QCOMPARE(value->minimumStepSize().toDouble(), 0.0);
        QCOMPARE(value->currentValue().toDouble(), 43.0);
        value->setCurrentValue(7.0);
        QCOMPARE(value->currentValue().toDouble(), 43.0);
    }

    void loadsAndModelsAreLabelledByTheirCore_data()
    {
        const Rows<QString, int, int, QString> row("grid", "row", "column", "caption");
        row("load of the first core", "glState", 3, 2, "CPU core 1 load");
        row("load of the second core", "glState", 4, 2, "CPU core 2 load");
        row("model of the first core", "glGeneral", 7, 3, "CPU 1");
        row("model of the second core", "glGeneral", 8, 3, "CPU 2");
    }

    void loadsAndModelsAreLabelledByTheirCore()
    {
        QFETCH(QString, grid);
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, caption);
        fixture->start(0);
        QWidget *value = Fixture::find<QGridLayout>(qPrintable(grid))->itemAtPosition(row, column)->widget();
        const auto relations = QAccessible::queryAccessibleInterface(value)->relations(QAccessible::Label);
        QCOMPARE(relations.size(), 1);
        QCOMPARE(relations.first().first->text(QAccessible::Name), caption);
    }

    void picturesAndSpacersAreHidden()
    {
        fixture->start(2);
        for (const char *picture :
             {"label_13", "label_14", "label_15", "label_27", "lblUsedColor", "lblAvailColor"}) {
            QAccessibleInterface *interface =
                QAccessible::queryAccessibleInterface(Fixture::find<QWidget>(picture));
            QVERIFY(interface->state().invisible);
            QCOMPARE(interface->text(QAccessible::Name), QString());
        }
        QVERIFY(!QAccessible::queryAccessibleInterface(Fixture::find<QWidget>("lblUsed"))->state().invisible);
    }

    void headingsCaptionsAndValuesStandOnOneSideOfAMirroredWindow()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        fixture->start(0);
        for (const QLabel *label : Fixture::window()->findChildren<QLabel *>()) {
            const bool isText = !label->text().isEmpty();
            QVERIFY2(!isText || label->alignment() == (Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter),
                     qPrintable(label->text()));
        }
        QApplication::setLayoutDirection(Qt::LeftToRight);
        fixture->start(0);
        QCOMPARE(Fixture::find<QLabel>("label_2")->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    }

    void viewsAreNamedAndChartAndGraphTellWhatTheyShow()
    {
        fixture->start(2);
        QWidget *chart = Fixture::find<QWidget>("frmDisk")->layout()->itemAt(0)->widget();
        QCOMPARE(told(chart, QAccessible::Name), QStringLiteral("Disk usage"));
        QCOMPARE(told(chart, QAccessible::Description), QStringLiteral("25% available"));
        QCOMPARE(told(Fixture::graph(), QAccessible::Name), QStringLiteral("Network traffic"));
        standin::machine().interfaces->at(1).bytesOut += 512;
        fixture->refresh(2);
        QCOMPARE(told(Fixture::graph(), QAccessible::Description),
                 QStringLiteral("In: 0.00 B, Out: 512.00 B"));
        QCOMPARE(told(Fixture::find<QWidget>("treeView"), QAccessible::Name), QStringLiteral("Processes"));
        QCOMPARE(told(Fixture::find<QWidget>("tableFS"), QAccessible::Name), QStringLiteral("File systems"));
        QAccessibleInterface *tabs = QAccessible::queryAccessibleInterface(tabBar());
        QVERIFY(tabs);
        QCOMPARE(tabs->child(1)->text(QAccessible::Name), QStringLiteral("Processes"));
    }

    void valuesAreLabelledByTheirCaptions_data()
    {
        const Rows<QString, QString> row("label", "caption");
        row("lblSystem", "label_3", "System");
        row("lblKernel", "label_4", "Kernel");
        row("lblArch", "label", "Arch");
        row("lblMemTotal", "label_6", "Memory");
        row("lblDiskFree", "label_9", "Free space");
        row("lblMemFree", "label_10", "Free memory");
        row("lblMountPoint", "label_17", "Device");
        row("lblTotal", "label_18", "Total");
        row("lblUsed", "label_21", "Used");
        row("lblAvail", "label_25", "Available");
        row("lblFsType", "label_12", "Type");
        row("comboNet", "label_23", "Device");
        row("netAdress", "label_24", "Address");
        row("netMask", "label_26", "Mask");
        row("netIn", "label_28", "In");
        row("netOut", "label_30", "Out");
        row("netErrors", "label_32", "Errors");
    }

    void valuesAreLabelledByTheirCaptions()
    {
        QFETCH(QString, label);
        QFETCH(QString, caption);
        fixture->start(0);
        QAccessibleInterface *value =
            QAccessible::queryAccessibleInterface(Fixture::find<QWidget>(QTest::currentDataTag()));
        QVERIFY(value);
        const auto relations = value->relations(QAccessible::Label);
        QCOMPARE(relations.size(), 1);
        QCOMPARE(relations.first().first->object()->objectName(), label);
        QCOMPARE(relations.first().first->text(QAccessible::Name), caption);
    }

    void tabKeyReachesEveryControlOfAPage_data()
    {
        const Rows<int, QStringList> row("page", "order");
        row("General", 0,
            QStringList({"qt_tabwidget_tabbar", "generalScroll", "lblHost", "lblSystem", "lblKernel",
                         "lblArch", "lblMemTotal", "lblDiskFree", "lblMemFree"}));
        row("Processes", 1, QStringList({"qt_tabwidget_tabbar", "treeView"}));
        row("File systems", 2,
            QStringList({"qt_tabwidget_tabbar", "tableFS", "lblMountPoint", "lblTotal", "lblUsed", "lblAvail",
                         "lblFsType"}));
        row("Network", 3,
            QStringList(
                {"qt_tabwidget_tabbar", "comboNet", "netAdress", "netMask", "netIn", "netOut", "netErrors"}));
    }

    void tabKeyReachesEveryControlOfAPage()
    {
        QFETCH(int, page);
        QFETCH(QStringList, order);
        fixture->start(page);
        QVERIFY(QTest::qWaitForWindowActive(Fixture::window()));
        tabBar()->setFocus();
        QStringList found;
        for (int i = 0; i < order.size(); ++i) {
            found << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(found, order);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(tabBar()));
    }

    void arrowKeysChangeThePageAndMnemonicsOpenTheMenus()
    {
        fixture->start(0);
        QTest::keyClick(tabBar(), Qt::Key_Right);
        QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 1);
        QTest::keyClick(tabBar(), Qt::Key_Left);
        QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->currentIndex(), 0);
        for (const QAction *menu : Fixture::window()->menuBar()->actions()) {
            QVERIFY2(menu->text().contains(QLatin1Char('&')), qPrintable(menu->text()));
        }
    }

private:
    static QString told(QObject *object, QAccessible::Text what)
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(what) : QString();
    }
    static QWidget *gauge(int row)
    {
        return Fixture::find<QGridLayout>("glState")->itemAtPosition(row, 3)->widget();
    }
    static QTabBar *tabBar() { return Fixture::find<QTabBar>("qt_tabwidget_tabbar"); }
};

QTEST_MAIN(TestAccess)
#include "test_access.moc"
