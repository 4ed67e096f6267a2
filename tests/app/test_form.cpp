// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui_mainwindow.h"

#include <QtTest>
#include <QtWidgets>

// The form as it stands before the controller adds to it.
class TestForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eachWidgetHasItsClassAndText_data();
    void eachWidgetHasItsClassAndText();
    void eachTabHasItsWidgetAndTitle();
    void eachGridCellHoldsItsWidget_data();
    void eachGridCellHoldsItsWidget();
    void eachLayoutHasItsNameAndOwner_data();
    void eachLayoutHasItsNameAndOwner();
    void factsStandInACaptionAndAValueColumn();
    void headingsSpanTheGrid();
    void theHostIsUnderlinedInFourteenPoints();
    void theLogoStandsLeftAndTop();
    void theProcessTreeAsksForItsContextMenu();
    void theFileSystemTableSelectsRows();
    void framesAreStyledAndRaised();
    void captionsAreBuddiesOfWhatTheyName();
    void valuesAreNeverReadAsRichText();

private:
    QWidget *widget(const QString &name) const
    {
        return name == window->objectName() ? window.data() : window->findChild<QWidget *>(name);
    }

    QScopedPointer<QMainWindow> window;
    Ui_MainWindow ui;
};

void TestForm::init()
{
    window.reset(new QMainWindow);
    ui.setupUi(window.data());
}

void TestForm::cleanup()
{
    window.reset();
}

void TestForm::eachWidgetHasItsClassAndText_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QString>("text");
    const struct
    {
        const char *name;
        const char *className;
        const char *text;
    } rows[] = {
        {"MainWindow", "QMainWindow", nullptr},
        {"centralwidget", "QWidget", nullptr},
        {"tabWidget", "QTabWidget", nullptr},
        {"tab", "QWidget", nullptr},
        {"lblHost", "QLabel", "localhost"},
        {"label_2", "QLabel", "Operating system"},
        {"label_3", "QLabel", "System"},
        {"lblSystem", "QLabel", "TextLabel"},
        {"label_13", "QLabel", ""},
        {"label_4", "QLabel", "Kernel"},
        {"lblKernel", "QLabel", "TextLabel"},
        {"label", "QLabel", "Arch"},
        {"lblArch", "QLabel", "TextLabel"},
        {"label_5", "QLabel", "Devices"},
        {"label_6", "QLabel", "Memory"},
        {"lblMemTotal", "QLabel", "TextLabel"},
        {"label_14", "QLabel", ""},
        {"label_27", "QLabel", ""},
        {"label_8", "QLabel", "State"},
        {"label_9", "QLabel", "Free space"},
        {"lblDiskFree", "QLabel", "TextLabel"},
        {"label_10", "QLabel", "Free memory"},
        {"lblMemFree", "QLabel", "TextLabel"},
        {"label_15", "QLabel", ""},
        {"tab_2", "QWidget", nullptr},
        {"treeView", "QTreeView", nullptr},
        {"tab_3", "QWidget", nullptr},
        {"splitter", "QSplitter", nullptr},
        {"tableFS", "QTreeView", nullptr},
        {"frmDsk", "QFrame", nullptr},
        {"frmDisk", "QWidget", nullptr},
        {"widget", "QWidget", nullptr},
        {"label_17", "QLabel", "Device"},
        {"lblMountPoint", "QLabel", "TextLabel"},
        {"label_18", "QLabel", "Total"},
        {"lblTotal", "QLabel", "TextLabel"},
        {"lblUsedColor", "QLabel", ""},
        {"label_21", "QLabel", "Used"},
        {"lblUsed", "QLabel", "TextLabel"},
        {"lblAvailColor", "QLabel", ""},
        {"label_25", "QLabel", "Available"},
        {"lblAvail", "QLabel", "TextLabel"},
        {"label_12", "QLabel", "Type"},
        {"lblFsType", "QLabel", "TextLabel"},
        {"tab_4", "QWidget", nullptr},
        {"label_23", "QLabel", "Device"},
        {"comboNet", "QComboBox", nullptr},
        {"label_24", "QLabel", "Address"},
        {"netAdress", "QLabel", "TextLabel"},
        {"label_26", "QLabel", "Mask"},
        {"netMask", "QLabel", "TextLabel"},
        {"label_28", "QLabel", "In"},
        {"netIn", "QLabel", "TextLabel"},
        {"label_30", "QLabel", "Out"},
        {"netOut", "QLabel", "TextLabel"},
        {"label_32", "QLabel", "Errors"},
        {"netErrors", "QLabel", "TextLabel"},
        {"frame", "QFrame", nullptr},
        {"menubar", "QMenuBar", nullptr},
        {"statusbar", "QStatusBar", nullptr},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << QByteArray(row.className)
                                << (row.text == nullptr ? QString()
                                                        : QStringLiteral("=") + QLatin1String(row.text));
    }
}

void TestForm::eachWidgetHasItsClassAndText()
{
    QFETCH(QByteArray, className);
    QFETCH(QString, text);
    const QWidget *found = widget(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(found != nullptr);
    QCOMPARE(QByteArray(found->metaObject()->className()), className);
    if (!text.isNull()) {
        QCOMPARE(found->property("text").toString(), text.mid(1));
    }
}

void TestForm::eachTabHasItsWidgetAndTitle()
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

void TestForm::eachGridCellHoldsItsWidget_data()
{
    QTest::addColumn<QString>("grid");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    const struct
    {
        const char *grid;
        int row;
        int column;
        const char *name;
    } cells[] = {
        {"glState", 1, 1, "label_9"},
        {"glState", 1, 2, "lblDiskFree"},
        {"glState", 2, 1, "label_10"},
        {"glState", 2, 2, "lblMemFree"},
        {"glState", 2, 0, "label_15"},
        {"gridLayout_5", 0, 1, "label_17"},
        {"gridLayout_5", 0, 2, "lblMountPoint"},
        {"gridLayout_5", 1, 1, "label_18"},
        {"gridLayout_5", 1, 2, "lblTotal"},
        {"gridLayout_5", 2, 0, "lblUsedColor"},
        {"gridLayout_5", 2, 1, "label_21"},
        {"gridLayout_5", 2, 2, "lblUsed"},
        {"gridLayout_5", 3, 0, "lblAvailColor"},
        {"gridLayout_5", 3, 1, "label_25"},
        {"gridLayout_5", 3, 2, "lblAvail"},
        {"gridLayout_5", 5, 1, "label_12"},
        {"gridLayout_5", 5, 2, "lblFsType"},
        {"gridLayout_4", 0, 1, "label_23"},
        {"gridLayout_4", 0, 2, "comboNet"},
        {"gridLayout_4", 1, 1, "label_24"},
        {"gridLayout_4", 1, 2, "netAdress"},
        {"gridLayout_4", 2, 1, "label_26"},
        {"gridLayout_4", 2, 2, "netMask"},
        {"gridLayout_4", 3, 1, "label_28"},
        {"gridLayout_4", 3, 2, "netIn"},
        {"gridLayout_4", 4, 1, "label_30"},
        {"gridLayout_4", 4, 2, "netOut"},
        {"gridLayout_4", 5, 1, "label_32"},
        {"gridLayout_4", 5, 2, "netErrors"},
    };
    for (const auto &cell : cells) {
        QTest::newRow(cell.name) << QString::fromLatin1(cell.grid) << cell.row << cell.column;
    }
}

void TestForm::eachGridCellHoldsItsWidget()
{
    QFETCH(QString, grid);
    QFETCH(int, row);
    QFETCH(int, column);
    const auto *layout = window->findChild<QGridLayout *>(grid);
    QVERIFY(layout != nullptr);
    const QLayoutItem *item = layout->itemAtPosition(row, column);
    QVERIFY(item != nullptr);
    QCOMPARE(const_cast<QLayoutItem *>(item)->widget(), widget(QString::fromLatin1(QTest::currentDataTag())));
}

void TestForm::eachLayoutHasItsNameAndOwner_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QStringList>("members");
    const auto row = [](const char *layout, const char *owner, const QStringList &members) {
        QTest::newRow(layout) << QString::fromLatin1(owner) << members;
    };
    row("verticalLayout", "centralwidget", {"tabWidget"});
    row("verticalLayout_4", "tab", {"lblHost", "horizontalLayout", "label_8", "glState"});
    row("verticalLayout_5", "tab_2", {"treeView"});
    row("verticalLayout_6", "tab_3", {"splitter"});
    row("verticalLayout_3", "frmDsk", {"frmDisk", "widget"});
    row("verticalLayout_2", "tab_4", {"gridLayout_4", "frame"});
    row("ltTimeHisto", "frame", {});
}

void TestForm::eachLayoutHasItsNameAndOwner()
{
    QFETCH(QString, owner);
    QFETCH(QStringList, members);
    const QLayout *layout = widget(owner)->layout();
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->objectName(), QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(qobject_cast<const QVBoxLayout *>(layout) != nullptr);
    QStringList found;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        const QObject *member =
            item->widget() != nullptr ? static_cast<QObject *>(item->widget()) : item->layout();
        if (member != nullptr) {
            found << member->objectName();
        }
    }
    QCOMPARE(found, members);
}

void TestForm::factsStandInACaptionAndAValueColumn()
{
    QCOMPARE(ui.horizontalLayout->itemAt(0)->layout(), ui.glGeneral);
    QCOMPARE(ui.horizontalLayout->itemAt(1)->widget(), ui.label_27);
    const QList<QPair<QLabel *, QLabel *>> facts = {{ui.label_3, ui.lblSystem},
                                                    {ui.label_4, ui.lblKernel},
                                                    {ui.label, ui.lblArch},
                                                    {ui.label_6, ui.lblMemTotal}};
    int lastRow = 0;
    for (const auto &fact : facts) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        ui.glGeneral->getItemPosition(ui.glGeneral->indexOf(fact.first), &row, &column, &rowSpan,
                                      &columnSpan);
        QCOMPARE(column, 1);
        QCOMPARE(ui.glGeneral->itemAtPosition(row, 3)->widget(), fact.second);
        QVERIFY(row > lastRow);
        // The rows of the CPU models begin at 7.
        QVERIFY(row < 7);
        lastRow = row;
    }
    QCOMPARE(ui.glGeneral->itemAtPosition(2, 0)->widget(), ui.label_13);
    QCOMPARE(ui.glGeneral->itemAtPosition(6, 0)->widget(), ui.label_14);
}

void TestForm::headingsSpanTheGrid()
{
    QCOMPARE(ui.glGeneral->itemAtPosition(0, 0)->widget(), ui.label_2);
    QCOMPARE(ui.glGeneral->itemAtPosition(0, 3)->widget(), ui.label_2);
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    ui.glGeneral->getItemPosition(ui.glGeneral->indexOf(ui.label_5), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(columnSpan, 2);
}

void TestForm::theHostIsUnderlinedInFourteenPoints()
{
    QCOMPARE(ui.lblHost->font().pointSize(), 14);
    QVERIFY(ui.lblHost->font().underline());
}

void TestForm::theLogoStandsLeftAndTop()
{
    QCOMPARE(ui.label_27->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

void TestForm::theProcessTreeAsksForItsContextMenu()
{
    QCOMPARE(ui.treeView->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(ui.treeView->uniformRowHeights());
    QVERIFY(ui.treeView->isSortingEnabled());
}

void TestForm::theFileSystemTableSelectsRows()
{
    QCOMPARE(ui.tableFS->selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!ui.tableFS->rootIsDecorated());
    QVERIFY(ui.tableFS->isSortingEnabled());
    QCOMPARE(ui.tableFS->property("showGrid"), QVariant(true));
    QVERIFY(ui.tableFS->dynamicPropertyNames().contains("showGrid"));
    QCOMPARE(ui.splitter->orientation(), Qt::Horizontal);
    QCOMPARE(ui.splitter->widget(0), static_cast<QWidget *>(ui.tableFS));
    QCOMPARE(ui.splitter->widget(1), static_cast<QWidget *>(ui.frmDsk));
}

void TestForm::framesAreStyledAndRaised()
{
    for (const QFrame *frame : {ui.frmDsk, ui.frame}) {
        QCOMPARE(frame->frameShape(), QFrame::StyledPanel);
        QCOMPARE(frame->frameShadow(), QFrame::Raised);
    }
    QCOMPARE(ui.frame->minimumSize(), QSize(0, 50));
}

void TestForm::captionsAreBuddiesOfWhatTheyName()
{
    const QList<QPair<QLabel *, QWidget *>> pairs = {
        {ui.label_3, ui.lblSystem},      {ui.label_4, ui.lblKernel},   {ui.label, ui.lblArch},
        {ui.label_6, ui.lblMemTotal},    {ui.label_9, ui.lblDiskFree}, {ui.label_10, ui.lblMemFree},
        {ui.label_17, ui.lblMountPoint}, {ui.label_18, ui.lblTotal},   {ui.label_21, ui.lblUsed},
        {ui.label_25, ui.lblAvail},      {ui.label_12, ui.lblFsType},  {ui.label_23, ui.comboNet},
        {ui.label_24, ui.netAdress},     {ui.label_26, ui.netMask},    {ui.label_28, ui.netIn},
        {ui.label_30, ui.netOut},        {ui.label_32, ui.netErrors}};
    for (const auto &pair : pairs) {
        QCOMPARE(pair.first->buddy(), pair.second);
    }
}

void TestForm::valuesAreNeverReadAsRichText()
{
    for (const QLabel *value : {ui.lblHost, ui.lblSystem, ui.lblKernel, ui.lblArch, ui.lblMemTotal,
                                ui.lblMountPoint, ui.lblFsType, ui.netAdress}) {
        QCOMPARE(value->textFormat(), Qt::PlainText);
    }
}

QTEST_MAIN(TestForm)
#include "test_form.moc"
