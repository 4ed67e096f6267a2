// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/rows.h"
#include "app/elidedlabel.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

const QString longText = QStringLiteral("/dev/mapper/luks-0f0e0d0c-1111-2222-3333-444455556666");

template <class Label>
std::unique_ptr<Label> makeLabel(const QString &text, QSize size = {})
{
    auto label = std::make_unique<Label>();
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->resize(size.isValid() ? size : label->sizeHint());
    return label;
}

QImage picture(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    widget.render(&image);
    return image;
}

QString toolTipOver(ElidedLabel &label)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), label.mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(&label, &event);
    return event.isAccepted() ? QToolTip::text() : QString();
}

/// What a reader of the tool tip sees.
QString plain(const QString &toolTip)
{
    QTextDocument document;
    if (Qt::mightBeRichText(toolTip)) {
        document.setHtml(toolTip);
    } else {
        document.setPlainText(toolTip);
    }
    return document.toPlainText().replace(QChar::Nbsp, QLatin1Char(' '));
}

using Change = std::function<void(QLabel &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class TestElidedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void minimumWidthIsThatOfNoTextAndSizeHintThatOfTheWhole_data() { addTexts(); }

    void minimumWidthIsThatOfNoTextAndSizeHintThatOfTheWhole()
    {
        QFETCH(QString, text);
        const auto whole = makeLabel<QLabel>(text);
        const QSize none = ElidedLabel().minimumSizeHint();
        QVERIFY(none.width() <= whole->fontMetrics().averageCharWidth() * 4);
        for (const int width : {10, 2000}) {
            const auto label = makeLabel<ElidedLabel>(text, QSize(width, 20));
            label->grab();
            QCOMPARE(label->minimumSizeHint().width(), none.width());
            QCOMPARE(label->minimumSizeHint().height(), whole->minimumSizeHint().height());
            QCOMPARE(label->sizeHint(), whole->sizeHint());
            QCOMPARE(label->text(), text);
        }
    }

    void whatIsShownIsPaintedAsALabelPaintsIt_data()
    {
        const Rows<QString, Change> row("text", "change");
        const QPair<const char *, Change> changes[] = {
            {"plain", [](QLabel &) {}},
            {"disabled", [](QLabel &label) { label.setEnabled(false); }},
            {"etched",
             [](QLabel &label) {
                 QStyle *style = QStyleFactory::create(QStringLiteral("Windows"));
                 style->setParent(&label);
                 label.setStyle(style);
                 label.setEnabled(false);
             }},
            {"right-to-left", [](QLabel &label) { label.setLayoutDirection(Qt::RightToLeft); }},
            {"at the right", [](QLabel &label) { label.setAlignment(Qt::AlignRight | Qt::AlignBottom); }},
            {"centred", [](QLabel &label) { label.setAlignment(Qt::AlignCenter); }},
            {"underlined",
             [](QLabel &label) {
                 QFont font = label.font();
                 font.setPointSize(14);
                 font.setUnderline(true);
                 label.setFont(font);
             }},
            {"red", [](QLabel &label) {
                 QPalette palette;
                 palette.setColor(QPalette::WindowText, Qt::red);
                 label.setPalette(palette);
             }}};
        for (const auto &text : texts()) {
            for (const auto &change : changes) {
                QTest::addRow("%s, %s", text.first, change.first) << text.second << change.second;
            }
        }
    }

    void whatIsShownIsPaintedAsALabelPaintsIt()
    {
        QFETCH(QString, text);
        QFETCH(Change, change);
        const auto whole = makeLabel<QLabel>(text);
        const auto label = makeLabel<ElidedLabel>(text);
        for (QLabel *each : {whole.get(), static_cast<QLabel *>(label.get())}) {
            change(*each);
        }
        for (const QSize more : {QSize(0, 0), QSize(7, 5), QSize(100, 0)}) {
            for (QLabel *each : {whole.get(), static_cast<QLabel *>(label.get())}) {
                each->resize(whole->sizeHint() + more);
            }
            QCOMPARE(picture(*label), picture(*whole));
        }
        if (text.isEmpty()) {
            return;
        }
        for (const Qt::TextElideMode mode : {Qt::ElideMiddle, Qt::ElideRight}) {
            label->setElideMode(mode);
            label->resize(fullWidth(*label) * 2 / 3, 30);
            const QString elided = label->fontMetrics().elidedText(text, mode, label->width());
            QVERIFY(elided != text);
            whole->setText(elided);
            whole->resize(label->size());
            QCOMPARE(picture(*label), picture(*whole));
        }
    }

    void itHasFourCharactersAndIsElidedAtTheEndUnlessToldOtherwise()
    {
        QCOMPARE(ElidedLabel().elideMode(), Qt::ElideRight);
        ElidedLabel label;
        QVERIFY(label.setProperty("elideMode", QVariant::fromValue(Qt::ElideMiddle)));
        QCOMPARE(label.elideMode(), Qt::ElideMiddle);
        QCOMPARE(label.property("leastCharacters"), QVariant(4));
        QVERIFY(label.setProperty("leastCharacters", 12));
        QCOMPARE(label.leastCharacters(), 12);
        QVERIFY(label.minimumSizeHint().width() > ElidedLabel().minimumSizeHint().width());
    }

    void theToolTipIsTheWholeTextAndOnlyThereWhenElided_data() { addTexts(); }

    void theToolTipIsTheWholeTextAndOnlyThereWhenElided()
    {
        QFETCH(QString, text);
        const auto label = makeLabel<ElidedLabel>(text);
        label->show();
        QCOMPARE(toolTipOver(*label), QString());
        if (text.isEmpty()) {
            return;
        }
        label->resize(fullWidth(*label) - 1, label->height()); // the full width is rounded
        QCOMPARE(plain(toolTipOver(*label)), text);
        label->resize(fullWidth(*label) + 1, label->height());
        QCOMPARE(toolTipOver(*label), QString());
    }

    void aTextFitsInItsSizeHint_data() { addTexts(); }

    void aTextFitsInItsSizeHint()
    {
        QFETCH(QString, text);
        const auto label = makeLabel<ElidedLabel>(text);
        for (int tenths = 50; tenths < 400; tenths += 3) {
            for (const bool italic : {false, true}) {
                QFont font = label->font();
                font.setPointSizeF(tenths / 10.0);
                font.setItalic(italic);
                label->setFont(font);
                label->resize(label->sizeHint());
                QCOMPARE(toolTipOver(*label), QString());
            }
        }
    }

    void theToolTipFollows_data()
    {
        const Rows<QString, Change> row("expected", "change");
        const QString other = longText + QStringLiteral("-other");
        row("a text that is elided too", other, [other](QLabel &label) { label.setText(other); });
        row("a text that fits", "", [](QLabel &label) { label.setText("a"); });
        row("more room", "", [](QLabel &label) { label.resize(2000, 20); });
        row("a smaller font", "", [](QLabel &label) {
            QFont font = label.font();
            font.setPixelSize(1);
            label.setFont(font);
        });
    }

    /// Also without the mouse, since assistive tools read the tool tip as the description.
    void theToolTipFollows()
    {
        QFETCH(Change, change);
        QFETCH(QString, expected);
        const auto label = makeLabel<ElidedLabel>(longText, QSize(100, 20));
        label->show();
        QTRY_COMPARE(label->toolTip(), longText);
        change(*label);
        QTRY_COMPARE(label->toolTip(), expected);
        QCOMPARE(toolTipOver(*label), expected);
    }

    void aLargerFontMakesATextElided()
    {
        const auto label = makeLabel<ElidedLabel>(longText);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * 2);
        const int before = label->minimumSizeHint().width();
        label->setFont(font);
        label->show();
        QCOMPARE(toolTipOver(*label), longText);
        QVERIFY(label->minimumSizeHint().width() > before);
    }

    void theAccessibleNameIsTheWholeText()
    {
        const auto label = makeLabel<ElidedLabel>(longText, QSize(50, 20));
        label->grab();
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(label.get());
        QVERIFY(accessible);
        QCOMPARE(accessible->text(QAccessible::Name), longText);
        QCOMPARE(accessible->role(), QAccessible::StaticText);
        label->setAccessibleName(QStringLiteral("Device"));
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Device"));
    }

    void aWindowKeepsItsMinimumWidth()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        auto *label = new ElidedLabel(&window);
        layout->addWidget(label);
        window.resize(150, 40);
        window.show();
        const int before = window.minimumSizeHint().width();
        label->setText(longText);
        QCoreApplication::processEvents();
        QCOMPARE(window.minimumSizeHint().width(), before);
        QCOMPARE(window.width(), 150);
    }

private:
    static int fullWidth(const QLabel &label) { return label.fontMetrics().horizontalAdvance(label.text()); }
    static QVector<QPair<const char *, QString>> texts()
    {
        return {{"none", QString()},
                {"short", QStringLiteral("a.b")},
                {"long", longText},
                {"HTML", QStringLiteral("<b>bold</b> & <i>more</i>  two spaces")},
                {"ampersands", QStringLiteral("/media/a&b && c")},
                {"Hebrew", QString::fromUtf8("שלום עולם שלום עולם")},
                {"mixed", QString::fromUtf8("/media/שלום/disk one")}};
    }
    static void addTexts()
    {
        const Rows<QString> row("text");
        for (const auto &text : texts()) {
            row(text.first, text.second);
        }
    }
};

QTEST_MAIN(TestElidedLabel)
#include "test_elidedlabel.moc"
