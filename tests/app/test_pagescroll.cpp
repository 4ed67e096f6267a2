// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/pagescroll.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/// A window like the program's: a menu bar, and a page of labels in the first of two tabs.
struct Window
{
    explicit Window(int lines, bool scrolls = true)
    {
        window.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Exit"));
        auto *central = new QWidget;
        auto *outer = new QVBoxLayout(central);
        tabs = new QTabWidget;
        outer->addWidget(tabs);
        auto *tab = new QWidget;
        auto *tabLayout = new QVBoxLayout(tab);
        tabLayout->setContentsMargins(0, 0, 0, 0);
        contents = new QWidget;
        layout = new QVBoxLayout(contents);
        for (int i = 0; i < lines; ++i) {
            addLine(QStringLiteral("Line %1").arg(i));
        }
        if (scrolls) {
            page = new PageScroll;
            page->setWidget(contents);
            page->makeTransparent();
            tabLayout->addWidget(page);
        } else {
            tabLayout->addWidget(contents);
        }
        tabs->addTab(tab, QStringLiteral("General"));
        tabs->addTab(new QWidget, QStringLiteral("Other"));
        window.setCentralWidget(central);
    }

    void addLine(const QString &text) const { layout->addWidget(new QLabel(text)); }
    void show(int height)
    {
        window.resize(400, height);
        window.show();
        QCoreApplication::processEvents();
    }
    bool hasScrollBar() const { return page->verticalScrollBar()->isVisible(); }

    QMainWindow window;
    QTabWidget *tabs = nullptr;
    QWidget *contents = nullptr;
    QVBoxLayout *layout = nullptr;
    PageScroll *page = nullptr;
};

/// Sets the program's style and font until its end.
class Look
{
public:
    Look(const QString &style, double points) : before(QApplication::font())
    {
        QApplication::setStyle(style);
        QFont font = before;
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }
    Look(const Look &) = delete;
    Look &operator=(const Look &) = delete;
    ~Look() { QApplication::setFont(before); }

private:
    QFont before;
};

} // namespace

class TestPageScroll : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFittingPageLooksAsWithoutScrolling_data() { addLooks(); }

    void aFittingPageLooksAsWithoutScrolling()
    {
        QFETCH(QString, style);
        QFETCH(double, points);
        const Look look(style, points);
        Window scrolling(5);
        Window plain(5, false);
        const int height = plain.window.minimumSizeHint().height() + 60;
        scrolling.show(height);
        plain.show(height);
        QVERIFY(!scrolling.hasScrollBar());
        const QPoint corner = plain.tabs->currentWidget()->mapTo(plain.tabs, QPoint());
        const QRect area(corner, plain.tabs->currentWidget()->size());
        QCOMPARE(picture(scrolling.tabs, area), picture(plain.tabs, area));
    }

    void aPageThatIsTooHighScrollsVerticallyOnly()
    {
        Window made(40);
        made.addLine(QString(60, QLatin1Char('w')));
        made.show(300);
        QVERIFY(made.hasScrollBar());
        QVERIFY(!made.page->horizontalScrollBar()->isVisible());
        QTRY_COMPARE(made.page->horizontalScrollBar()->maximum(), 0);
        made.window.resize(1, 300);
        QCoreApplication::processEvents();
        QCOMPARE(made.page->horizontalScrollBar()->maximum(), 0);
        QVERIFY(made.page->viewport()->width() >= made.contents->minimumSizeHint().width());
        QCOMPARE(made.contents->width(), made.page->viewport()->width());

        const auto *last = qobject_cast<QLabel *>(made.layout->itemAt(40)->widget());
        QVERIFY(last->visibleRegion().isEmpty());
        made.page->verticalScrollBar()->setValue(made.page->verticalScrollBar()->maximum());
        QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
    }

    void theWheelScrollsThePage()
    {
        Window made(40);
        made.show(300);
        const QPoint middle = made.page->viewport()->rect().center();
        QWheelEvent event(middle, made.page->viewport()->mapToGlobal(middle), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(made.page->viewport(), &event);
        QVERIFY(made.page->verticalScrollBar()->value() > 0);
    }

    void theMinimumWidthFollowsTheContents()
    {
        Window made(3);
        made.show(400);
        const int bar = made.page->verticalScrollBar()->sizeHint().width();
        QCOMPARE(made.page->minimumSizeHint().width(), made.contents->minimumSizeHint().width() + bar);
        const int before = made.window.minimumSizeHint().width();
        made.addLine(QString(80, QLatin1Char('w')));
        QCoreApplication::processEvents();
        QCOMPARE(made.page->minimumSizeHint().width(), made.contents->minimumSizeHint().width() + bar);
        QTRY_VERIFY(made.window.minimumSizeHint().width() > before);
        QTRY_VERIFY(made.window.width() >= made.window.minimumSizeHint().width());
    }

    void theMinimumHeightFollowsTheFontAndNotTheContents()
    {
        Window made(3);
        made.show(400);
        const int before = made.page->minimumSizeHint().height();
        for (int i = 0; i < 100; ++i) {
            made.addLine(QStringLiteral("more"));
        }
        QCoreApplication::processEvents();
        QCOMPARE(made.page->minimumSizeHint().height(), before);
        QVERIFY(made.window.minimumSizeHint().height() < 300);
        const int windowBefore = made.window.minimumSizeHint().height();
        QFont font = made.page->font();
        font.setPointSizeF(font.pointSizeF() * 3);
        made.page->setFont(font);
        QCoreApplication::processEvents();
        QVERIFY(made.page->minimumSizeHint().height() >= 2 * before);
        QTRY_VERIFY(made.window.minimumSizeHint().height() > windowBefore);
    }

    void withoutContentsThereIsAMinimumToo()
    {
        const PageScroll page;
        QVERIFY(page.minimumSizeHint().isValid());
    }

    void theHeightForTheWholePageIsTheLeastOfAPageThatCannotScroll_data() { addLooks(); }

    void theHeightForTheWholePageIsTheLeastOfAPageThatCannotScroll()
    {
        QFETCH(QString, style);
        QFETCH(double, points);
        const Look look(style, points);
        for (const int lines : {12, 30}) {
            Window made(lines);
            const int height = heightForWholePage(&made.window, made.page); // still hidden
            QCOMPARE(height, Window(lines, false).window.minimumSizeHint().height());
            verifyWholePageNeeds(height, made);
            QCOMPARE(heightForWholePage(&made.window, made.page), height);
        }
    }

    void theHeightForTheWholePageIsNotThatOfASizeHint()
    {
        Window made(12);
        made.layout->addWidget(new QScrollArea); // asks for more than it needs
        verifyWholePageNeeds(heightForWholePage(&made.window, made.page), made);
    }

    void theHeightForTheWholePageFollowsLaterContents()
    {
        Window made(12);
        const int before = heightForWholePage(&made.window, made.page);
        for (int i = 0; i < 12; ++i) {
            made.addLine(QStringLiteral("more"));
        }
        const int height = heightForWholePage(&made.window, made.page);
        QVERIFY(height > before);
        verifyWholePageNeeds(height, made);
    }

private:
    static QImage picture(QWidget *widget, const QRect &area) { return widget->grab(area).toImage(); }

    /// QTabWidget's minimum is up to two pixels higher than it needs.
    static void verifyWholePageNeeds(int height, Window &made)
    {
        made.show(height);
        QCOMPARE(made.window.height(), height);
        QVERIFY(!made.hasScrollBar());
        made.show(height - 3);
        QCOMPARE(made.window.height(), height - 3); // the page can be made lower again
        QVERIFY(made.hasScrollBar());
    }

    static void addLooks()
    {
        const Rows<QString, double> row("style", "points");
        for (const QString &style : QStyleFactory::keys()) {
            for (const double points : {6.5, 9.0, 14.0, 27.0}) {
                row(QStringLiteral("%1, %2 points").arg(style).arg(points).toUtf8(), style, points);
            }
        }
    }
};

QTEST_MAIN(TestPageScroll)
#include "test_pagescroll.moc"
