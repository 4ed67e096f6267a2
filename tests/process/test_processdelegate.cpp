// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/processdelegate.h"
#include "tests/process/support/listview.h"

#include <QtTest>
#include <QtWidgets>

#include <optional>

namespace {

/// Counts how often one of its texts is measured: each time, the font is asked for. Sorted by their numbers.
class MeasuredTexts : public QStringListModel
{
public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        count += role == Qt::FontRole ? 1 : 0;
        if (role == Qt::DisplayRole) {
            read.insert(index.row());
        }
        return QStringListModel::data(index, role == Qt::UserRole ? Qt::DisplayRole : role);
    }

    mutable int count = 0;
    mutable QSet<int> read; ///< rows
};

/// Notes how much text it is to measure.
class NotingStyle : public QProxyStyle
{
public:
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        if (const auto *cell = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
            lengths.append(cell->text.size());
        }
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }

    mutable QList<int> lengths;
};

int widestOf(const QVector<QSize> &sizes)
{
    int widest = 0;
    for (const QSize &size : sizes) {
        widest = qMax(widest, size.width());
    }
    return widest;
}

/// One in which digits differ in width, if there is any.
std::optional<QFont> fontWithProportionalDigits()
{
    const QFontDatabase fonts;
    for (const QString &family : fonts.families()) {
        const QFont font(family, 12);
        const QFontMetrics metrics(font);
        const auto widthOf = [&](char digit) { return metrics.horizontalAdvance(QLatin1Char(digit)); };
        if (widthOf('0') != widthOf('1') || widthOf('0') != widthOf('7')) {
            return font;
        }
    }
    return std::nullopt;
}

} // namespace

class TestProcessDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalTextsOfAColumnAreMeasuredOnce()
    {
        const MeasuredTexts texts({"one", "a longer one", "one", "one", "a longer one", ""});
        ProcessDelegate delegate;
        delegate.beginColumn({});
        const QVector<QSize> fitted = sizesOf(texts, delegate);
        QCOMPARE(texts.count, 3);
        delegate.endColumn();
        QCOMPARE(fitted, sizesOf(texts, QStyledItemDelegate()));
        QVERIFY(fitted.at(1).width() > fitted.at(0).width());
    }

    void theNextColumnIsMeasuredAgain()
    {
        const MeasuredTexts texts({"one", "one"});
        ProcessDelegate delegate;
        delegate.beginColumn({});
        const QVector<QSize> before = sizesOf(texts, delegate);
        delegate.endColumn();
        option.font.setPointSize(option.font.pointSize() * 3);
        delegate.beginColumn({});
        const QVector<QSize> after = sizesOf(texts, delegate);
        QCOMPARE(texts.count, 2);
        QVERIFY(after.at(0).width() > before.at(0).width());
        QCOMPARE(after.at(1), after.at(0));
    }

    void eachTextIsMeasuredOtherwise()
    {
        const MeasuredTexts texts({"one", "one"});
        ProcessDelegate delegate;
        sizesOf(texts, delegate);
        QCOMPARE(texts.count, 2);
        delegate.beginColumn({});
        delegate.endColumn();
        sizesOf(texts, delegate);
        QCOMPARE(texts.count, 4);
    }

    void cellsAreNotReadOnceOneIsAsWideAsTheColumnGets()
    {
        const MeasuredTexts texts({"one", "one that is wide", "another", "and one that is even wider"});
        const int widest = widestOf(sizesOf(MeasuredTexts({"one that is"}), QStyledItemDelegate()));
        ProcessDelegate delegate;
        delegate.beginColumn({widest});
        const QVector<QSize> fitted = sizesOf(texts, delegate);
        QCOMPARE(texts.read, (QSet<int>{0, 1}));
        QVERIFY(fitted.at(0).width() < widest);
        QVERIFY(fitted.at(1).width() > widest);
        QCOMPARE(fitted.at(3).width(), widest);
    }

    void numbersAreMeasuredOnlyIfTheyCanBeTheWidest_data()
    {
        const Rows<QStringList, bool, QSet<int>, int> row("numbers", "isOrdered", "read", "measured");
        const QStringList sizes = {"1.00 KB", "2.50 KB", "1023.99 KB", "3.00 MB", "1000.00 KB", ""};
        row("amounts of memory", sizes, false, {0, 1, 2, 3, 4, 5}, 4);
        row("whole numbers", {"5", "70", "6", "1000", "70", "300", "3", "-2", "4"}, true, {0, 1, 3, 6, 7}, 4);
        row("no number among them", {"5", "unknown", "5", "unknown"}, true, {0, 1, 3}, 2);
        row("infinite and undefined ones", {"-inf", "0.1", "inf", "9.9", "nan"}, true, {0, 1, 2, 4}, 4);
        row("the same one each time", {"7", "7", "7"}, true, {0}, 1);
    }

    void numbersAreMeasuredOnlyIfTheyCanBeTheWidest()
    {
        QFETCH(QStringList, numbers);
        QFETCH(bool, isOrdered);
        const MeasuredTexts texts(numbers);
        ProcessDelegate delegate;
        delegate.beginColumn({10000, true, isOrdered});
        const int widest = widestOf(sizesOf(texts, delegate));
        QTEST(texts.read, "read");
        QTEST(texts.count, "measured");
        QCOMPARE(widest, widestOf(sizesOf(texts, QStyledItemDelegate())));
    }

    void eachNumberIsMeasuredInAFontWithProportionalDigits()
    {
        const std::optional<QFont> font = fontWithProportionalDigits();
        if (!font) {
            QSKIP("all fonts have digits of one width");
        }
        option.font = *font;
        const MeasuredTexts texts({"000", "111", "777", "222"});
        ProcessDelegate delegate;
        delegate.beginColumn({10000, true, true});
        QCOMPARE(sizesOf(texts, delegate), sizesOf(texts, QStyledItemDelegate()));
        option.font = QFont();
    }

    void ofALongTextTheBeginningIsMeasuredIfItIsWideEnough_data()
    {
        const QString wide(3000, QLatin1Char('x'));
        const Rows<QString, QList<int>> row("text", "measured");
        row("wide", wide, {160});
        row("wide at its end", QString(500, QChar(0x200b)) + wide, {160, 3500}); // after what has no width
        row("short", QString(160, QChar(0x200b)), {160});
    }

    void ofALongTextTheBeginningIsMeasuredIfItIsWideEnough()
    {
        QFETCH(QString, text);
        NotingStyle style;
        QWidget widget;
        widget.setStyle(&style);
        option.widget = &widget;
        const MeasuredTexts texts({text});
        const int all = widestOf(sizesOf(texts, QStyledItemDelegate()));
        style.lengths.clear();
        const int widest = 300;
        ProcessDelegate delegate;
        delegate.beginColumn({widest});
        QCOMPARE(qMin(widestOf(sizesOf(texts, delegate)), widest), qMin(all, widest));
        QTEST(style.lengths, "measured");
        option.widget = nullptr;
    }

    void numbersStandRightAndTextsLeft_data()
    {
        const Rows<bool> row("mirrored");
        row("left to right", false);
        row("right to left", true);
    }

    void numbersStandRightAndTextsLeft()
    {
        QFETCH(bool, mirrored);
        List list;
        list.view.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        list.view.resize(900, 200);
        list.view.show();
        FactsByPid facts = factsUpTo(2);
        facts[1].name = facts[2].name = QStringLiteral("bash");
        list.proxy->refresh(makeSnapshot(facts));
        for (int column = 0; column < list.proxy->columnCount(); ++column) {
            list.view.setColumnWidth(column, 80);
        }
        const QImage picture = list.view.viewport()->grab().toImage();
        const auto isRight = [&](int column) {
            const QRect cell = list.view.visualRect(list.proxy->index(0, column));
            return inkIn(picture, cell).center().x() > cell.center().x();
        };
        QCOMPARE(isRight(0), mirrored); // a name
        for (const int number : {1, 2}) {
            QVERIFY(isRight(number));
            QCOMPARE(list.proxy->headerData(number, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
                     static_cast<int>(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter));
        }
        QCOMPARE(isRight(5), mirrored); // a state
    }

    void aFlatListHasNoSpaceForExpanders()
    {
        List list;
        list.view.resize(900, 200);
        list.view.show();
        for (const bool isFlat : {true, false, true}) {
            list.proxy->setFlat(isFlat);
            list.proxy->refresh(makeSnapshot({{1, 0}, {2, 1}}));
            QCOMPARE(list.view.visualRect(list.proxy->index(0, 0)).left() == 0, isFlat);
        }
    }

    void theToolTipOfAnElidedTextShowsAllOfIt()
    {
        List list;
        list.view.resize(500, 200);
        list.view.show();
        FactsByPid facts = factsUpTo(1);
        facts[1].name = QStringLiteral("<b>a & name</b> ") + QString(300, QLatin1Char('x'));
        list.proxy->refresh(makeSnapshot(facts));
        const QModelIndex cell = list.proxy->index(0, 0);
        list.view.setColumnWidth(0, 100);
        askForToolTip(list, cell);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        QCOMPARE(shown.toPlainText().remove(QChar(0x200b)), facts[1].name);
        QVERIFY(widestWord(shown.toPlainText()) <= 60);
        list.view.setColumnWidth(0, 5000);
        askForToolTip(list, cell);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

private:
    /// What is not background.
    static QRect inkIn(const QImage &picture, const QRect &cell)
    {
        QRect ink;
        const QRgb background = picture.pixel(cell.center().x(), cell.top());
        for (int x = cell.left(); x <= cell.right(); ++x) {
            for (int y = cell.top(); y <= cell.bottom(); ++y) {
                if (picture.pixel(x, y) != background) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    static void askForToolTip(const List &list, const QModelIndex &cell)
    {
        const QPoint place = list.view.visualRect(cell).topLeft() + QPoint(20, 5);
        QHelpEvent event(QEvent::ToolTip, place, list.view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(list.view.viewport(), &event);
    }

    static int widestWord(const QString &text)
    {
        int widest = 0;
        for (const QString &word : text.split(QRegularExpression(QStringLiteral("[ \u200b]")))) {
            widest = qMax(widest, word.size());
        }
        return widest;
    }

    QVector<QSize> sizesOf(const QAbstractItemModel &model, const QStyledItemDelegate &delegate) const
    {
        QVector<QSize> sizes;
        for (int row = 0; row < model.rowCount(); ++row) {
            sizes.append(delegate.sizeHint(option, model.index(row, 0)));
        }
        return sizes;
    }

    QStyleOptionViewItem option;
};

QTEST_MAIN(TestProcessDelegate)
#include "test_processdelegate.moc"
