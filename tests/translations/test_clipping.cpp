// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipping.h"

#include <QtTest>
#include <QtWidgets>

/// The checks for legible texts find what is wrong.
class TestClipping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        window = std::make_unique<QWidget>();
        window->resize(300, 100);
        one = new QLabel(QStringLiteral("a caption"), window.get());
        one->resize(one->sizeHint());
        window->show();
        QCOMPARE(unreadableTexts(window.get()), QStringList());
    }

    void aTruncatedTextIsFound()
    {
        one->resize(one->width() - 1, one->height());
        QCOMPARE(unreadableTexts(window.get()).size(), 1);
    }

    void aTextCutOffByItsParentIsFound()
    {
        one->move(window->width() - one->width() + 1, 0);
        QCOMPARE(unreadableTexts(window.get()).size(), 1);
    }

    void anOverlapIsFound()
    {
        QLabel other(QStringLiteral("other"), window.get());
        other.resize(other.sizeHint());
        other.move(one->width(), 0);
        other.show();
        QCOMPARE(unreadableTexts(window.get()), QStringList());
        other.move(one->width() - 1, 0);
        QCOMPARE(unreadableTexts(window.get()).size(), 1);
    }

    void aTruncatedColumnTitleIsFound()
    {
        QTreeWidget table;
        table.setHeaderLabels({QStringLiteral("a rather long title"), QStringLiteral("b")});
        table.show();
        table.header()->resizeSection(0, table.header()->sectionSizeHint(0));
        QCOMPARE(unreadableTexts(&table), QStringList());
        table.header()->resizeSection(0, table.header()->sectionSizeHint(0) - 1);
        QCOMPARE(unreadableTexts(&table).size(), 1);
    }

    void aSharedMnemonicIsFound()
    {
        QCOMPARE(sharedMnemonics({"&Datei", "&Info", "Info"}), QStringList());
        QCOMPARE(sharedMnemonics({"&Archivo", "&Ayuda"}).size(), 1);
    }

private:
    std::unique_ptr<QWidget> window;
    QLabel *one = nullptr;
};

QTEST_MAIN(TestClipping)
#include "test_clipping.moc"
