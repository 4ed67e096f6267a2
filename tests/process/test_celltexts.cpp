// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/processdelegate.h"
#include "tests/process/support/listview.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/// Leaves the painting to the style.
class PaintedByStyle : public ProcessDelegate
{
public:
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
    }
};

/// Counts the cells that the style draws and measures, and can draw them in its own way.
class CountingStyle : public QProxyStyle
{
public:
    explicit CountingStyle(bool drawsOtherwise = false) : QProxyStyle("fusion"), isOther(drawsOtherwise) {}

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_ItemViewItem) {
            ++cells;
            if (isOther) {
                painter->drawLine(option->rect.topLeft(), option->rect.bottomRight());
            }
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const auto *cell = qstyleoption_cast<const QStyleOptionViewItem *>(option);
        measured += cell && !cell->text.isEmpty() ? 1 : 0;
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

    mutable int cells = 0;
    mutable int measured = 0;

private:
    bool isOther;
};

/// Colors of text, background, other rows, and text and background of what is selected.
QPalette paletteOf(const QStringList &colors)
{
    QPalette palette(QColor(colors.at(1)));
    const QPalette::ColorRole roles[] = {QPalette::Text, QPalette::Base, QPalette::AlternateBase,
                                         QPalette::HighlightedText, QPalette::Highlight};
    for (int i = 0; i < colors.size(); ++i) {
        palette.setColor(roles[i], QColor(colors.at(i)));
    }
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::gray);
    return palette;
}

/// Processes with texts that are short, long, empty, in several scripts, and taller than a line.
FactsByPid textsOfAllKinds()
{
    FactsByPid facts = factsUpTo(12);
    const QStringList names{"init",
                            "an editor with a name that is too long for its column",
                            "",
                            "\u05e9\u05dc\u05d5\u05dd shell",
                            "\u0645\u0631\u062d\u0628\u0627",
                            "\u65e5\u672c\u8a9e\u306e\u540d\u524d",
                            "e\u0301\u0302\u0303\u0304\u0305\u0306",
                            "fj\u0237 (sd-pam)",
                            "<b>bold</b> & co",
                            "\u0635 \u0628 and a name that is also too long for its column"};
    for (int i = 0; i < names.size(); ++i) {
        facts[i + 1].name = names.at(i);
        facts[i + 1].ppid = i / 2;
        facts[i + 1].cpuCounter = i * 12345;
    }
    return facts;
}

} // namespace

class TestCellTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsLookAsTheStyleDrawsThem_data()
    {
        const QStringList light{"black", "white", "#eeeeee", "white", "#308cc6"};
        const QStringList dark{"#e0e0e0", "#202020", "#282828", "black", "#80b0ff"};
        const QStringList contrast{"yellow", "black", "black", "black", "lime"};
        const Rows<QString, QStringList, bool, bool, qreal> row("style", "colors", "flat", "mirrored",
                                                                "scale");
        for (const char *style : {"fusion", "windows"}) {
            const QByteArray name = style;
            row(name, style, light, true, false, 1.0);
            row(name + ", dark", style, dark, true, false, 1.0);
            row(name + ", high contrast", style, contrast, true, false, 1.0);
            row(name + ", mirrored", style, light, true, true, 1.0);
            row(name + ", tree", style, dark, false, false, 1.0);
            row(name + ", mirrored tree", style, light, false, true, 1.0);
            row(name + ", scaled", style, light, true, false, 2.0);
            row(name + ", scaled by a fraction", style, light, true, false, 1.25);
        }
    }

    void cellsLookAsTheStyleDrawsThem()
    {
        QFETCH(QString, style);
        QFETCH(QStringList, colors);
        QFETCH(bool, flat);
        QFETCH(bool, mirrored);
        QFETCH(qreal, scale);
        const std::unique_ptr<QStyle> drawing(QStyleFactory::create(style));
        List list;
        show(list, drawing.get());
        list.view.setPalette(paletteOf(colors));
        list.view.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        list.proxy->setFlat(flat);
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        list.view.setColumnWidth(0, 120);
        for (const QString state : {"plain", "alternating", "selected", "filtered", "disabled", "narrow"}) {
            enter(list, state);
            const QImage wanted = pictureByStyle(list, scale);
            const QImage picture = pictureOf(list, scale);
            QVERIFY2(picture == wanted, qPrintable(state));
            QVERIFY2(pictureOf(list, scale) == wanted, qPrintable(state)); // with all texts laid out
        }
    }

    void aStyleIsAskedOnlyForASample()
    {
        CountingStyle style;
        List list;
        show(list, &style);
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        pictureOf(list);
        const int sample = style.cells;
        QVERIFY(sample > 0 && sample < 5);
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        pictureOf(list);
        QCOMPARE(style.cells, sample);
    }

    void whatAStyleDrawsOtherwiseItDrawsItself()
    {
        CountingStyle style(true);
        List list;
        show(list, &style);
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        QVERIFY(pictureOf(list) == pictureByStyle(list));
        style.cells = 0;
        pictureOf(list);
        QVERIFY(style.cells > list.proxy->rowCount());
    }

    void aTextIsMeasuredOnce()
    {
        CountingStyle style;
        List list;
        show(list, &style);
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        QVERIFY(areSizesThoseOfTheStyle(list));
        for (int i = 0; i < 2; ++i) { // the CPU load of the first two refreshes differs
            style.measured = 0;
            list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
            list.view.indexAt(QPoint(1, 1)); // lays the list out, with the height of the first row
        }
        QCOMPARE(style.measured, 0);
    }

    void aStyleThatDrawsOtherwiseMeasuresAgain()
    {
        CountingStyle style(true);
        List list;
        show(list, &style);
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        QVERIFY(areSizesThoseOfTheStyle(list));
        style.measured = 0;
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        list.view.indexAt(QPoint(1, 1));
        QVERIFY(style.measured > 0);
    }

    void aStyleSheetHolds()
    {
        List list;
        show(list, QApplication::style());
        list.view.setStyleSheet("QTreeView::item { color: red; padding: 3px; border: 1px solid blue }");
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        const QImage picture = pictureOf(list);
        QVERIFY(picture == pictureByStyle(list));
        QVERIFY(areSizesThoseOfTheStyle(list));
        list.view.setStyleSheet("QTreeView::item { padding: 20px }");
        QVERIFY(areSizesThoseOfTheStyle(list));
        list.view.setStyleSheet(QString());
        QVERIFY(areSizesThoseOfTheStyle(list));
        QVERIFY(picture != pictureOf(list));
    }

    void aNewFontIsShownAtOnce()
    {
        List list;
        show(list, QApplication::style());
        list.proxy->refresh(makeSnapshot(textsOfAllKinds()));
        pictureOf(list);
        QFont font = list.view.font();
        font.setItalic(true);
        font.setPointSize(font.pointSize() * 2);
        QVERIFY(areSizesThoseOfTheStyle(list));
        list.view.setFont(font);
        QVERIFY(areSizesThoseOfTheStyle(list));
        QVERIFY(pictureOf(list) == pictureByStyle(list));
    }

private:
    static bool areSizesThoseOfTheStyle(const List &list)
    {
        const auto *delegate = qobject_cast<ProcessDelegate *>(list.view.itemDelegate());
        QStyleOptionViewItem option;
        option.initFrom(&list.view);
        option.widget = &list.view;
        option.font = list.view.font();
        option.textElideMode = list.view.textElideMode();
        for (int row = 0; row < list.proxy->rowCount(); ++row) {
            for (int column = 0; column < list.proxy->columnCount(); ++column) {
                const QModelIndex cell = list.proxy->index(row, column);
                const QSize wanted = delegate->QStyledItemDelegate::sizeHint(option, cell);
                if (!wanted.isValid() || delegate->sizeHint(option, cell) != wanted) {
                    return false;
                }
            }
        }
        return list.proxy->rowCount() > 0;
    }

    static void show(List &list, QStyle *style)
    {
        list.view.setStyle(style);
        list.view.resize(500, 400);
        list.view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it comes and goes late
        list.view.show();
    }

    static void enter(List &list, const QString &state)
    {
        list.view.setAlternatingRowColors(state == "alternating");
        list.view.setEnabled(state != "disabled");
        list.proxy->setFilter(state == "filtered" ? "short" : "");
        if (state == "selected") {
            list.view.setFocus();
            list.view.setCurrentIndex(list.proxy->index(1, 0));
        } else if (state == "filtered") {
            list.proxy->setFilter("e");
        } else if (state == "narrow") {
            for (int column = 0; column < list.proxy->columnCount(); ++column) {
                list.view.setColumnWidth(column, 12 + column * 3);
            }
        }
    }

    static QImage pictureOf(List &list, qreal scale = 1.0)
    {
        QImage image(list.view.size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        list.view.render(&image);
        return image;
    }

    static QImage pictureByStyle(List &list, qreal scale = 1.0)
    {
        QAbstractItemDelegate *own = list.view.itemDelegate();
        PaintedByStyle delegate;
        list.view.setItemDelegate(&delegate);
        const QImage image = pictureOf(list, scale);
        list.view.setItemDelegate(own);
        return image;
    }
};

QTEST_MAIN(TestCellTexts)
#include "test_celltexts.moc"
