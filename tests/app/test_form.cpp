// SPDX-License-Identifier: GPL-3.0-or-later
// The form as generated, before the controller adds to it.
#include "../support/rows.h"
#include "ui_mainwindow.h"

#include <QtTest>
#include <QtWidgets>

class TestForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        window.reset(new QMainWindow);
        ui.setupUi(window.data());
    }

    void cleanup() { window.reset(); }

    /// A null text or grid is not checked.
    void eachWidgetHasItsClassTextAndCell_data()
    {
        const Rows<QByteArray, QByteArray, QString, int, int> rows("className", "text", "grid", "row",
                                                                   "column");
        const auto row = [&](const char *name, const char *className, const char *text = nullptr,
                             const char *grid = nullptr, int cellRow = 0,
                             int cellColumn = 0) { rows(name, className, text, grid, cellRow, cellColumn); };
        const auto captionAndValue = [&](const char *caption, const char *text, const char *value,
                                         const char *grid, int cellRow, int valueColumn = 2) {
            row(caption, "QLabel", text, grid, cellRow, 1);
            row(value, "QLabel", "TextLabel", grid, cellRow, valueColumn);
        };
        for (const char *name :
             {"centralwidget", "tab", "generalContents", "tab_2", "tab_3", "frmDisk", "widget", "tab_4"}) {
            row(name, "QWidget");
        }
        row("MainWindow", "QMainWindow");
        row("tabWidget", "QTabWidget");
        row("generalScroll", "PageScroll");
        row("lblHost", "ElidedLabel", "localhost");
        row("label_2", "QLabel", "Operating system", "glGeneral", 0, 0);
        captionAndValue("label_3", "System", "lblSystem", "glGeneral", 1, 3);
        row("label_13", "QLabel", "", "glGeneral", 2, 0);
        captionAndValue("label_4", "Kernel", "lblKernel", "glGeneral", 2, 3);
        captionAndValue("label", "Arch", "lblArch", "glGeneral", 3, 3);
        row("label_5", "QLabel", "Devices", "glGeneral", 5, 0);
        captionAndValue("label_6", "Memory", "lblMemTotal", "glGeneral", 6, 3);
        row("label_14", "QLabel", "", "glGeneral", 6, 0);
        row("label_27", "QLabel", "");
        row("label_8", "QLabel", "State");
        captionAndValue("label_9", "Free space", "lblDiskFree", "glState", 1);
        captionAndValue("label_10", "Free memory", "lblMemFree", "glState", 2);
        row("label_15", "QLabel", "", "glState", 2, 0);
        row("treeView", "QTreeView");
        row("splitter", "QSplitter");
        row("tableFS", "QTreeView");
        row("frmDsk", "QFrame");
        row("label_17", "QLabel", "Device", "gridLayout_5", 0, 1);
        row("lblMountPoint", "ElidedLabel", "TextLabel", "gridLayout_5", 0, 2);
        captionAndValue("label_18", "Total", "lblTotal", "gridLayout_5", 1);
        row("lblUsedColor", "QLabel", "", "gridLayout_5", 2, 0);
        captionAndValue("label_21", "Used", "lblUsed", "gridLayout_5", 2);
        row("lblAvailColor", "QLabel", "", "gridLayout_5", 3, 0);
        captionAndValue("label_25", "Available", "lblAvail", "gridLayout_5", 3);
        captionAndValue("label_12", "Type", "lblFsType", "gridLayout_5", 5);
        row("label_23", "QLabel", "Device", "gridLayout_4", 0, 1);
        row("comboNet", "QComboBox", nullptr, "gridLayout_4", 0, 2);
        captionAndValue("label_24", "Address", "netAdress", "gridLayout_4", 1);
        captionAndValue("label_26", "Mask", "netMask", "gridLayout_4", 2);
        captionAndValue("label_28", "In", "netIn", "gridLayout_4", 3);
        captionAndValue("label_30", "Out", "netOut", "gridLayout_4", 4);
        captionAndValue("label_32", "Errors", "netErrors", "gridLayout_4", 5);
        row("frame", "QFrame");
        row("menubar", "QMenuBar");
        row("statusbar", "QStatusBar");
    }

    void eachWidgetHasItsClassTextAndCell()
    {
        QFETCH(QByteArray, className);
        QFETCH(QByteArray, text);
        QFETCH(QString, grid);
        QFETCH(int, row);
        QFETCH(int, column);
        QWidget *found = widget(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(found);
        QCOMPARE(QByteArray(found->metaObject()->className()), className);
        if (!text.isNull()) {
            QCOMPARE(found->property("text").toString(), QString::fromLatin1(text));
        }
        if (!grid.isEmpty()) {
            const auto *layout = window->findChild<QGridLayout *>(grid);
            QVERIFY(layout);
            QVERIFY(layout->itemAtPosition(row, column));
            QCOMPARE(layout->itemAtPosition(row, column)->widget(), found);
        }
    }

    void generalPageScrollsInsideItsTab()
    {
        QCOMPARE(ui.tab->layout()->count(), 1);
        QCOMPARE(ui.tab->layout()->itemAt(0)->widget(), static_cast<QWidget *>(ui.generalScroll));
        QCOMPARE(ui.generalScroll->widget(), ui.generalContents);
    }

    void eachTabHasItsWidgetAndTitle()
    {
        QCOMPARE(window->windowTitle(), QStringLiteral("System monitor"));
        QCOMPARE(window->centralWidget(), ui.centralwidget);
        QCOMPARE(ui.tabWidget->count(), 4);
        QCOMPARE(ui.tabWidget->currentIndex(), 0);
        const QList<QPair<QWidget *, QString>> tabs = {{ui.tab, QStringLiteral("System")},
                                                       {ui.tab_2, QStringLiteral("Processes")},
                                                       {ui.tab_3, QStringLiteral("File systems")},
                                                       {ui.tab_4, QStringLiteral("Network")}};
        for (int i = 0; i < tabs.size(); ++i) {
            QCOMPARE(ui.tabWidget->widget(i), tabs.at(i).first);
            QCOMPARE(ui.tabWidget->tabText(i), tabs.at(i).second);
        }
    }

    void eachLayoutHasItsNameAndOwner_data()
    {
        const Rows<QString, QStringList> row("owner", "members");
        row("verticalLayout", "centralwidget", {"tabWidget"});
        row("verticalLayout_4", "generalContents", {"lblHost", "horizontalLayout", "label_8", "glState"});
        row("verticalLayout_5", "tab_2", {"treeView"});
        row("verticalLayout_6", "tab_3", {"splitter"});
        row("verticalLayout_3", "frmDsk", {"frmDisk", "widget"});
        row("verticalLayout_2", "tab_4", {"gridLayout_4", "frame"});
        row("ltTimeHisto", "frame", {});
    }

    void eachLayoutHasItsNameAndOwner()
    {
        QFETCH(QString, owner);
        QFETCH(QStringList, members);
        const QLayout *layout = widget(owner)->layout();
        QVERIFY(layout);
        QCOMPARE(layout->objectName(), QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(qobject_cast<const QVBoxLayout *>(layout));
        QStringList found;
        for (int i = 0; i < layout->count(); ++i) {
            QLayoutItem *item = layout->itemAt(i);
            const QObject *member = item->widget() ? static_cast<QObject *>(item->widget()) : item->layout();
            if (member) {
                found << member->objectName();
            }
        }
        QCOMPARE(found, members);
    }

    void factsStandBesideTheLogoUnderSpanningHeadings()
    {
        QCOMPARE(ui.horizontalLayout->itemAt(0)->layout(), ui.glGeneral);
        QCOMPARE(ui.horizontalLayout->itemAt(1)->widget(), ui.label_27);
        QCOMPARE(ui.label_27->alignment(), Qt::AlignLeft | Qt::AlignTop);
        // The last cells of the headings whose first cells eachWidgetHasItsClassTextAndCell() checks.
        QCOMPARE(ui.glGeneral->itemAtPosition(0, 3)->widget(), ui.label_2);
        QCOMPARE(ui.glGeneral->itemAtPosition(5, 1)->widget(), ui.label_5);
        QVERIFY(!ui.glGeneral->itemAtPosition(5, 2));
        // The rows of the CPU models begin at 7.
        QCOMPARE(ui.glGeneral->rowCount(), 7);
    }

    void hostNameAndFramesHaveTheirLook()
    {
        QCOMPARE(ui.lblHost->font().pointSize(), 14);
        QVERIFY(ui.lblHost->font().underline());
        for (const QFrame *frame : {ui.frmDsk, ui.frame}) {
            QCOMPARE(frame->frameShape(), QFrame::StyledPanel);
            QCOMPARE(frame->frameShadow(), QFrame::Raised);
        }
        QCOMPARE(ui.frame->minimumSize(), QSize(0, 50));
    }

    void viewsHaveTheirProperties()
    {
        QCOMPARE(ui.treeView->contextMenuPolicy(), Qt::CustomContextMenu);
        QVERIFY(ui.treeView->uniformRowHeights());
        QVERIFY(ui.treeView->isSortingEnabled());
        QCOMPARE(ui.tableFS->selectionBehavior(), QAbstractItemView::SelectRows);
        QVERIFY(!ui.tableFS->rootIsDecorated());
        QVERIFY(ui.tableFS->isSortingEnabled());
        QCOMPARE(ui.tableFS->property("showGrid"), QVariant(true));
        QVERIFY(ui.tableFS->dynamicPropertyNames().contains("showGrid"));
        QCOMPARE(ui.splitter->orientation(), Qt::Horizontal);
        QCOMPARE(ui.splitter->widget(0), static_cast<QWidget *>(ui.tableFS));
        QCOMPARE(ui.splitter->widget(1), static_cast<QWidget *>(ui.frmDsk));
    }

    void valuesAreNeverReadAsRichText()
    {
        const std::initializer_list<const QLabel *> values = {ui.lblHost,   ui.lblSystem,   ui.lblKernel,
                                                              ui.lblArch,   ui.lblMemTotal, ui.lblMountPoint,
                                                              ui.lblFsType, ui.netAdress};
        for (const QLabel *value : values) {
            QCOMPARE(value->textFormat(), Qt::PlainText);
        }
    }

private:
    QWidget *widget(const QString &name) const
    {
        return name == window->objectName() ? window.data() : window->findChild<QWidget *>(name);
    }

    QScopedPointer<QMainWindow> window;
    Ui_MainWindow ui;
};

QTEST_MAIN(TestForm)
#include "test_form.moc"
