// SPDX-License-Identifier: GPL-3.0-or-later
// What the controller adds to the form, and the General page as a whole.
#include "fixture.h"

#include "../support/rows.h"
#include "fs/chart.h"
#include "resources/qprog.h"
#include "resources/systeminfo.h"
#include "resources/timehisto.h"

#include <QtTest>
#include <QtWidgets>

class TestWindow : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void gaugesStandInTheirRowsWithTheirColors()
    {
        fixture->start(0);
        QCOMPARE(stateCell(1, 3)->property("color").value<QColor>(), QColor(Qt::red));
        QCOMPARE(stateCell(2, 3)->property("color").value<QColor>(), QColor(Qt::blue));
        for (int row : {1, 2, 3, 4}) {
            auto *found = qobject_cast<QProg *>(stateCell(row, 3));
            QVERIFY(found);
            QCOMPARE(found->property("max").toDouble(), 100.0);
            QCOMPARE(found->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
        }
    }

    void theLogoIsShown()
    {
        fixture->start(0);
        const QPixmap shown = Fixture::find<QLabel>("label_27")->pixmap(Qt::ReturnByValue);
        QCOMPARE(shown.toImage(), QPixmap(QStringLiteral(":/images/diobin_logo.png")).toImage());
    }

    void graphAndChartStandInTheirFrames()
    {
        fixture->start(0);
        QCOMPARE(Fixture::find<QVBoxLayout>("ltTimeHisto")->count(), 1);
        QVERIFY(qobject_cast<TimeHisto *>(Fixture::graph()));
        const QLayout *layout = Fixture::find<QWidget>("frmDisk")->layout();
        QVERIFY(qobject_cast<const QVBoxLayout *>(layout));
        QCOMPARE(layout->objectName(), QStringLiteral("verticalLayout"));
        QVERIFY(qobject_cast<Chart *>(layout->itemAt(0)->widget()));
    }

    void colorKeysAreThoseOfTheChart()
    {
        fixture->start(0);
        const QPair<const char *, QColor> keys[] = {{"lblUsedColor", Chart::usedColor()},
                                                    {"lblAvailColor", Chart::availColor()}};
        for (const auto &key : keys) {
            const QPixmap pixmap = Fixture::find<QLabel>(key.first)->pixmap(Qt::ReturnByValue);
            QCOMPARE(pixmap.size(), QSize(15, 15));
            QCOMPARE(pixmap.toImage().pixelColor(7, 7), key.second);
            QVERIFY(pixmap.toImage().pixelColor(7, 0) != key.second);
        }
    }

    void staticFactsAreThoseOfTheProbesWithAModelRowPerCpu()
    {
        standin::machine().cpus->resize(4);
        fixture->start(0);
        QCOMPARE(Fixture::text("lblHost"), hostName());
        QCOMPARE(Fixture::text("lblSystem"), osDescription());
        QCOMPARE(Fixture::text("lblKernel"), kernelFacts().release);
        QCOMPARE(Fixture::text("lblArch"), kernelFacts().machine);
        const auto *grid = Fixture::find<QGridLayout>("glGeneral");
        for (int i = 1; i <= 4; ++i) {
            const auto *caption = qobject_cast<QLabel *>(grid->itemAtPosition(i + 6, 1)->widget());
            const auto *value = qobject_cast<QLabel *>(grid->itemAtPosition(i + 6, 3)->widget());
            QCOMPARE(caption->text(), QStringLiteral("CPU %1").arg(i));
            QCOMPARE(value->text(), cpuModel());
        }
        QVERIFY(!grid->itemAtPosition(11, 1));
    }

    void eachCpuHasALoadRow_data()
    {
        const Rows<QStringList> row("captions");
        row("one CPU", {"CPU load"});
        row("two CPUs", {"CPU core 1 load", "CPU core 2 load"});
    }

    void eachCpuHasALoadRow()
    {
        QFETCH(QStringList, captions);
        standin::machine().cpus->resize(static_cast<std::size_t>(captions.size()));
        fixture->start(0);
        for (int cpu = 0; cpu < captions.size(); ++cpu) {
            QCOMPARE(stateText(3 + cpu, 1), captions.at(cpu));
            QCOMPARE(stateCell(3 + cpu, 3)->accessibleName(), captions.at(cpu));
        }
        QVERIFY(!stateCell(3 + captions.size(), 1));
    }

    void memoryAndDiskFollowTheMachine()
    {
        fixture->start(0);
        QCOMPARE(Fixture::text("lblMemTotal"), QStringLiteral("8.00 GB"));
        QCOMPARE(Fixture::text("lblMemFree"), QStringLiteral("3.50 GB"));
        QCOMPARE(gauge(2), 43.0);
        QCOMPARE(Fixture::text("lblDiskFree"), QStringLiteral("976.56 MB"));
        QCOMPARE(gauge(1), 12.0);
        standin::machine().memory->free = 0;
        standin::machine().mounts->at(0).availBlocks = 1000000;
        fixture->refresh(0);
        QCOMPARE(Fixture::text("lblMemFree"), QStringLiteral("2.50 GB"));
        QCOMPARE(gauge(2), 31.0);
        QCOMPARE(gauge(1), 50.0);
    }

    void zeroedMachineShowsSensibleTexts()
    {
        standin::machine().memory = standin::Memory();
        standin::machine().mounts->clear();
        standin::machine().cpus = {{0, 0}, {0, 0}};
        fixture->start(0);
        for (const char *label : {"lblMemTotal", "lblMemFree", "lblDiskFree"}) {
            QCOMPARE(Fixture::text(label), QStringLiteral("0.00 B"));
        }
        QCOMPARE(gauge(1), 0.0);
        QCOMPARE(gauge(2), 0.0);
        QCOMPARE(stateText(3, 2), QStringLiteral("100 %"));
    }

    void cpuLoadsFollowTheMachine()
    {
        fixture->start(0);
        standin::machine().cpus = {{1100, 4200}, {700, 4200}};
        fixture->refresh(0);
        QCOMPARE(stateText(3, 2), QStringLiteral("50 %"));
        QCOMPARE(gauge(3), 50.0);
        QCOMPARE(stateText(4, 2), QStringLiteral("0 %"));
        fixture->refresh(0);
        QCOMPARE(stateText(3, 2), QStringLiteral("100 %"));
    }

    void fittingPageDoesNotScroll()
    {
        fixture->start(0);
        auto *scroll = Fixture::find<QScrollArea>("generalScroll");
        Fixture::window()->resize(900, 700);
        QCoreApplication::processEvents();
        QVERIFY(!scroll->verticalScrollBar()->isVisible());
        QVERIFY(!scroll->horizontalScrollBar()->isVisible());
        QCOMPARE(Fixture::find<QTabWidget>("tabWidget")->widget(0), Fixture::find<QWidget>("tab"));
    }

    void tooHighPageScrolls_data() { addNumberRows("cpus", {1, 2, 10, 16, 64, 256, 1024}); }

    void tooHighPageScrolls()
    {
        QFETCH(int, cpus);
        standin::machine().cpus = std::vector<standin::Cpu>(static_cast<std::size_t>(cpus));
        fixture->start(0);
        auto *tabs = Fixture::find<QTabWidget>("tabWidget");
        auto *scroll = Fixture::find<QScrollArea>("generalScroll");
        QCOMPARE(tabs->widget(0), Fixture::find<QWidget>("tab"));
        QCOMPARE(tabs->tabText(0), QStringLiteral("System"));
        QCOMPARE(tabs->count(), 4);
        QCOMPARE(tabs->currentIndex(), 0);
        QVERIFY(Fixture::window()->height() <=
                QGuiApplication::primaryScreen()->availableGeometry().height());
        QVERIFY(Fixture::window()->minimumSizeHint().height() < 400);
        Fixture::window()->resize(640, 300);
        // Wide enough for its content, so that nothing is cut off at the right.
        QCoreApplication::processEvents();
        QVERIFY(!scroll->horizontalScrollBar()->isVisible());
        QVERIFY(scroll->viewport()->width() >= scroll->widget()->minimumSizeHint().width());
        QWidget *last = stateCell(cpus + 2, 3);
        QVERIFY(last->visibleRegion().isEmpty());
        scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
        QVERIFY(!last->visibleRegion().isEmpty());
    }

private:
    static QWidget *stateCell(int row, int column)
    {
        QLayoutItem *item = Fixture::find<QGridLayout>("glState")->itemAtPosition(row, column);
        return item ? item->widget() : nullptr;
    }
    static QString stateText(int row, int column)
    {
        return qobject_cast<QLabel *>(stateCell(row, column))->text();
    }
    static double gauge(int row) { return stateCell(row, 3)->property("value").toDouble(); }
};

QTEST_MAIN(TestWindow)
#include "test_window.moc"
