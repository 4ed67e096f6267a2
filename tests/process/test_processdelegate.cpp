// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "process/processdelegate.h"
#include "tests/process/support/listview.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/// Counts how often one of its texts is measured: each time, the font is asked for.
class MeasuredTexts : public QStringListModel
{
public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        count += role == Qt::FontRole ? 1 : 0;
        return QStringListModel::data(index, role);
    }

    mutable int count = 0;
};

} // namespace

class TestProcessDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalTextsOfAColumnAreMeasuredOnce()
    {
        const MeasuredTexts texts({"one", "a longer one", "one", "one", "a longer one", ""});
        ProcessDelegate delegate;
        delegate.beginColumn();
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
        delegate.beginColumn();
        const QVector<QSize> before = sizesOf(texts, delegate);
        delegate.endColumn();
        option.font.setPointSize(option.font.pointSize() * 3);
        delegate.beginColumn();
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
        delegate.beginColumn();
        delegate.endColumn();
        sizesOf(texts, delegate);
        QCOMPARE(texts.count, 4);
    }

    void theListsColumnsFitTheirContents()
    {
        List list;
        FactsByPid facts = factsUpTo(200);
        facts.at(150).name = QStringLiteral("longer than all the others");
        list.proxy->refresh(makeSnapshot(facts));
        ProcessDelegate plain; // that measures every cell
        list.view.setItemDelegate(&plain);
        for (int column = 0; column < list.proxy->columnCount() - 1; ++column) {
            const int fitted = list.view.columnWidth(column);
            list.view.resizeColumnToContents(column);
            QCOMPARE(fitted, list.view.columnWidth(column));
        }
    }

    void noColumnIsFittedWiderThanFortyCharacters()
    {
        List list;
        FactsByPid facts = factsUpTo(2);
        facts.at(1).name = QString(200, QLatin1Char('x'));
        list.proxy->refresh(makeSnapshot(facts));
        QCOMPARE(list.view.columnWidth(0), list.view.fontMetrics().averageCharWidth() * 40);
    }

    void theLastColumnTakesWhatIsLeft()
    {
        List list;
        list.view.resize(3000, 200);
        list.view.show();
        const int last = list.proxy->columnCount() - 1;
        for (int fit = 0; fit < 2; ++fit) {
            list.proxy->setFlat(fit > 0); // fits again
            list.proxy->refresh(makeSnapshot(factsUpTo(2)));
            const int end = list.view.columnViewportPosition(last) + list.view.columnWidth(last);
            QCOMPARE(end, list.view.viewport()->width());
        }
        list.view.resize(200, 200); // in which the last one is out of view
        list.proxy->refresh(makeSnapshot(factsUpTo(2)));
        QCOMPARE(list.view.columnWidth(last), list.view.header()->sectionSizeHint(last));
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
