// SPDX-License-Identifier: GPL-3.0-or-later
#include "process/fittingdelegate.h"
#include "process/proxyprocmodel.h"
#include "tests/process/support/synthetic.h"

#include <QStringListModel>
#include <QtTest>

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

class TestFittingDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalTextsOfAColumnAreMeasuredOnce()
    {
        const MeasuredTexts texts({"one", "a longer one", "one", "one", "a longer one", ""});
        FittingDelegate delegate;
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
        FittingDelegate delegate;
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
        FittingDelegate delegate;
        sizesOf(texts, delegate);
        QCOMPARE(texts.count, 2);
        delegate.beginColumn();
        delegate.endColumn();
        sizesOf(texts, delegate);
        QCOMPARE(texts.count, 4);
    }

    void theListsColumnsFitTheirContents()
    {
        QObject owner; // of the source model too
        ProxyProcModel &list = *new ProxyProcModel(&owner);
        QTreeView view;
        list.setView(&view);
        FactsByPid facts = factsUpTo(200);
        facts.at(150).name = QStringLiteral("longer than all the others in the list");
        list.refresh(makeSnapshot(facts));
        QStyledItemDelegate plain;
        view.setItemDelegate(&plain);
        for (int column = 0; column < list.columnCount(); ++column) {
            const int fitted = view.columnWidth(column);
            view.resizeColumnToContents(column);
            QCOMPARE(fitted, view.columnWidth(column));
        }
        view.setModel(nullptr);
    }

private:
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

QTEST_MAIN(TestFittingDelegate)
#include "test_fittingdelegate.moc"
