// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/cpurows.h"

#include "../support/brackettranslator.h"
#include "../support/rows.h"
#include "resources/qprog.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

/// A page with a grid inside another layout, like the form's, and with rows for `cpus` CPUs.
struct Page
{
    explicit Page(std::size_t cpus) : records(cpus)
    {
        outer->addLayout(grid);
        createCpuRows(grid, records);
    }
    QWidget *at(int row, int column) const
    {
        QLayoutItem *item = grid->itemAtPosition(row, column);
        return item ? item->widget() : nullptr;
    }
    QString textAt(int row, int column) const
    {
        const auto *label = qobject_cast<QLabel *>(at(row, column));
        return label ? label->text() : QString();
    }
    void setDeltas(std::size_t cpu, quint64 idle, quint64 total)
    {
        records[cpu].idleDelta = idle;
        records[cpu].totalDelta = total;
    }

    QWidget widget;
    QVBoxLayout *outer = new QVBoxLayout(&widget);
    QGridLayout *grid = new QGridLayout;
    std::vector<CpuRec> records;
};

} // namespace

class TestCpuRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelRowsStartAtRowSevenInPlainText()
    {
        const Page page(0);
        showCpuLoad(page.records); // without CPUs it does nothing
        QCOMPARE(page.grid->count(), 0);
        const QString model("<b>CPU</b> & more");
        addCpuModelRows(page.grid, 4, model);
        for (int i = 1; i <= 4; ++i) {
            QCOMPARE(page.textAt(i + 6, 1), QString("CPU %1").arg(i));
            QVERIFY(!page.at(i + 6, 2));
            QCOMPARE(page.textAt(i + 6, 3), model);
            QCOMPARE(qobject_cast<QLabel *>(page.at(i + 6, 3))->textFormat(), Qt::PlainText);
        }
        QVERIFY(!page.at(6, 1));
        QVERIFY(!page.at(11, 1));
        QCOMPARE(page.widget.findChildren<QLabel *>().size(), 8);
    }

    void loadRowsStartAtRowThree_data() { addNumberRows("count", {1, 2, 1024}, "%1 CPUs"); }

    void loadRowsStartAtRowThree()
    {
        QFETCH(int, count);
        const Page page(static_cast<std::size_t>(count));
        int row = 3;
        for (const CpuRec &rec : page.records) {
            QCOMPARE(page.at(row, 1), static_cast<QWidget *>(rec.captionLabel));
            QCOMPARE(page.at(row, 2), static_cast<QWidget *>(rec.percentLabel));
            QCOMPARE(page.at(row, 3), static_cast<QWidget *>(rec.gauge));
            const QString caption =
                count == 1 ? QString("CPU load") : QString("CPU core %1 load").arg(row - 2);
            QCOMPARE(rec.captionLabel->text(), caption);
            QCOMPARE(rec.gauge->accessibleName(), caption);
            QCOMPARE(rec.captionLabel->buddy(), static_cast<QWidget *>(rec.percentLabel));
            const QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::DefaultType);
            QCOMPARE(rec.gauge->sizePolicy(), policy);
            ++row;
        }
        QVERIFY(!page.at(2, 1));
        QVERIFY(!page.at(row, 1));
    }

    void captionsAreTranslated()
    {
        const BracketTranslator translator("Updater");
        QCOMPARE(Page(1).textAt(3, 1), QString("<CPU load>"));
        const Page page(2);
        QCOMPARE(page.textAt(4, 1), QString("<CPU core 2 load>"));
        addCpuModelRows(page.grid, 1, "Unknown CPU");
        QCOMPARE(page.textAt(7, 1), QString("<CPU >1"));
        QCOMPARE(page.textAt(7, 3), QString("Unknown CPU"));
    }

    void widgetsBelongToThePage()
    {
        auto page = std::make_unique<Page>(2);
        QCOMPARE(page->records[1].gauge->parentWidget(), &page->widget);
        QPointer<QProg> gauge = page->records[1].gauge;
        QPointer<QLabel> caption = page->records[1].captionLabel;
        page.reset();
        QVERIFY(!gauge && !caption);
    }

    void loadIsShownInLabelAndGauge()
    {
        Page page(5);
        page.setDeltas(0, 300, 300);
        page.setDeltas(1, 0, 300);
        page.setDeltas(2, 997, 1000);
        page.setDeltas(3, 0, 0);
        page.setDeltas(4, 150, 100); // a negative load is shown as it is and empties the gauge
        showCpuLoad(page.records);
        const QStringList texts = {"0 %", "100 %", "1 %", "100 %", "-50 %"};
        const QVector<double> values = {0.0, 100.0, 1.0, 100.0, 0.0};
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(page.textAt(i + 3, 2), texts.at(i));
            QCOMPARE(page.records[static_cast<std::size_t>(i)].gauge->value(), values.at(i));
        }
        page.setDeltas(0, 150, 300);
        showCpuLoad({page.records[0]});
        QCOMPARE(page.textAt(3, 2), QString("50 %"));
        QCOMPARE(page.records[0].gauge->value(), 50.0);
        QCOMPARE(page.records[0].gauge->accessibleDescription(), QString("50 %"));
    }
};

QTEST_MAIN(TestCpuRows)
#include "test_cpurows.moc"
