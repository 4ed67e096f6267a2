// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/cpurows.h"

#include "resources/qprog.h"

#include <QGridLayout>
#include <QLabel>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

// Puts every text that is looked up in the controller's context into angle brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "Updater") == 0 ? "<" + QString::fromLatin1(source) + ">" : QString();
    }
    bool isEmpty() const override { return false; }
};

// A page with a grid inside another layout, as the form has it.
struct Page
{
    QWidget widget;
    QVBoxLayout *outer = new QVBoxLayout(&widget);
    QGridLayout *grid = new QGridLayout;

    Page() { outer->addLayout(grid); }
    QWidget *at(int row, int column) const
    {
        QLayoutItem *item = grid->itemAtPosition(row, column);
        return item ? item->widget() : nullptr;
    }
    QString textAt(int row, int column) const
    {
        const QLabel *label = qobject_cast<QLabel *>(at(row, column));
        return label ? label->text() : QString();
    }
};

CpuRec &withDeltas(CpuRec &rec, quint64 idle, quint64 total)
{
    rec.idleDelta = idle;
    rec.totalDelta = total;
    return rec;
}

} // namespace

class TestCpuRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelRowsOfFourCpusAreRowsSevenToTen();
    void modelRowCaptionIsTranslated();
    void loadRowsStartAtRowThree_data();
    void loadRowsStartAtRowThree();
    void aSingleCpuIsCaptionedWithoutANumber();
    void captionsAreTranslated();
    void gaugesKeepTheirHeight();
    void widgetsBelongToThePage();
    void gaugesTellTheirCaption();
    void loadIsShownInLabelAndGauge();
    void aLoadBelowZeroIsShownAsItIsAndEmptiesTheGauge();
    void noCpuAtAllIsSurvived();
};

void TestCpuRows::modelRowsOfFourCpusAreRowsSevenToTen()
{
    Page page;
    addCpuModelRows(page.grid, 4, "Some CPU");
    for (int i = 1; i <= 4; ++i) {
        QCOMPARE(page.textAt(i + 6, 1), QString("CPU %1").arg(i));
        QVERIFY(!page.at(i + 6, 2));
        QCOMPARE(page.textAt(i + 6, 3), QString("Some CPU"));
    }
    QVERIFY(!page.at(6, 1));
    QVERIFY(!page.at(11, 1));
    QCOMPARE(page.widget.findChildren<QLabel *>().size(), 8);
}

void TestCpuRows::modelRowCaptionIsTranslated()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Page page;
    addCpuModelRows(page.grid, 1, "Unknown CPU");
    QCOMPARE(page.textAt(7, 1), QString("<CPU >1"));
    QCOMPARE(page.textAt(7, 3), QString("Unknown CPU"));
}

void TestCpuRows::loadRowsStartAtRowThree_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("a large server") << 1024;
}

void TestCpuRows::loadRowsStartAtRowThree()
{
    QFETCH(int, count);
    Page page;
    std::vector<CpuRec> records(static_cast<std::size_t>(count));
    createCpuRows(page.grid, records);
    int row = 3;
    for (const CpuRec &rec : records) {
        QCOMPARE(page.at(row, 1), static_cast<QWidget *>(rec.captionLabel));
        QCOMPARE(page.at(row, 2), static_cast<QWidget *>(rec.percentLabel));
        QCOMPARE(page.at(row, 3), static_cast<QWidget *>(rec.gauge));
        if (count > 1)
            QCOMPARE(rec.captionLabel->text(), QString("CPU core %1 load").arg(row - 2));
        ++row;
    }
    QVERIFY(!page.at(2, 1));
    QVERIFY(!page.at(row, 1));
}

void TestCpuRows::aSingleCpuIsCaptionedWithoutANumber()
{
    Page page;
    std::vector<CpuRec> records(1);
    createCpuRows(page.grid, records);
    QCOMPARE(page.textAt(3, 1), QString("CPU load"));
}

void TestCpuRows::captionsAreTranslated()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Page one;
    std::vector<CpuRec> single(1);
    createCpuRows(one.grid, single);
    QCOMPARE(one.textAt(3, 1), QString("<CPU load>"));
    Page two;
    std::vector<CpuRec> pair(2);
    createCpuRows(two.grid, pair);
    QCOMPARE(two.textAt(4, 1), QString("<CPU core 2 load>"));
}

void TestCpuRows::gaugesKeepTheirHeight()
{
    Page page;
    std::vector<CpuRec> records(1);
    createCpuRows(page.grid, records);
    const QSizePolicy policy = records[0].gauge->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(policy.controlType(), QSizePolicy::DefaultType);
}

void TestCpuRows::widgetsBelongToThePage()
{
    std::vector<CpuRec> records(2);
    auto page = std::make_unique<Page>();
    createCpuRows(page->grid, records);
    QCOMPARE(records[1].gauge->parentWidget(), &page->widget);
    QPointer<QProg> gauge = records[1].gauge;
    QPointer<QLabel> caption = records[1].captionLabel;
    page.reset();
    QVERIFY(!gauge && !caption);
}

void TestCpuRows::gaugesTellTheirCaption()
{
    Page page;
    std::vector<CpuRec> records(2);
    createCpuRows(page.grid, records);
    QCOMPARE(records[1].gauge->accessibleName(), QString("CPU core 2 load"));
    QCOMPARE(records[1].captionLabel->buddy(), static_cast<QWidget *>(records[1].gauge));
}

void TestCpuRows::loadIsShownInLabelAndGauge()
{
    Page page;
    std::vector<CpuRec> records(4);
    createCpuRows(page.grid, records);
    withDeltas(records[0], 300, 300);
    withDeltas(records[1], 0, 300);
    withDeltas(records[2], 997, 1000);
    withDeltas(records[3], 0, 0);
    showCpuLoad(records);
    const QStringList texts = {"0 %", "100 %", "1 %", "100 %"};
    const QVector<double> values = {0.0, 100.0, 1.0, 100.0};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(page.textAt(i + 3, 2), texts.at(i));
        QCOMPARE(records[static_cast<std::size_t>(i)].gauge->value(), values.at(i));
    }
    showCpuLoad({withDeltas(records[0], 150, 300)});
    QCOMPARE(page.textAt(3, 2), QString("50 %"));
    QCOMPARE(records[0].gauge->value(), 50.0);
    QCOMPARE(records[0].gauge->accessibleDescription(), QString("50 %"));
}

void TestCpuRows::aLoadBelowZeroIsShownAsItIsAndEmptiesTheGauge()
{
    Page page;
    std::vector<CpuRec> records(1);
    createCpuRows(page.grid, records);
    withDeltas(records[0], 150, 100);
    showCpuLoad(records);
    QCOMPARE(page.textAt(3, 2), QString("-50 %"));
    QCOMPARE(records[0].gauge->value(), 0.0);
}

void TestCpuRows::noCpuAtAllIsSurvived()
{
    Page page;
    std::vector<CpuRec> none;
    createCpuRows(page.grid, none);
    showCpuLoad(none);
    QCOMPARE(page.grid->count(), 0);
}

QTEST_MAIN(TestCpuRows)
#include "test_cpurows.moc"
