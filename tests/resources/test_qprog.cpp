// SPDX-License-Identifier: GPL-3.0-or-later
// The gauge's interface, range and geometry; test_qprogpainting covers what it draws.
#include "../support/rows.h"
#include "resources/qprog.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double huge = std::numeric_limits<double>::max();

} // namespace

class TestQProg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesAndMethodsAreInOrder()
    {
        const QMetaObject &meta = QProg::staticMetaObject;
        QStringList properties;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty property = meta.property(i);
            properties += QString(property.typeName()) + ' ' + property.name();
            QVERIFY(property.isWritable());
        }
        QCOMPARE(properties, QStringList({"double value", "double min", "double max", "int font",
                                          "int numPrec", "QColor color"}));
        QList<QByteArray> methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += meta.method(i).methodSignature();
            QCOMPARE(meta.method(i).methodType(),
                     methods.size() == 1 ? QMetaMethod::Signal : QMetaMethod::Slot);
        }
        QCOMPARE(methods, QList<QByteArray>({"valueChanged(double)", "setValue(double)",
                                             "setMaxValue(double)", "setMinValue(double)", "setFontDim(int)",
                                             "setPrecision(int)", "setBarColor(QColor)"}));
    }

    void defaultsAreSet()
    {
        QWidget parent;
        auto *gauge = new QProg(&parent);
        QCOMPARE(gauge->parentWidget(), &parent);
        QCOMPARE(gauge->value(), 0.0);
        QCOMPARE(gauge->minimum(), 0.0);
        QCOMPARE(gauge->maximum(), 100.0);
        QCOMPARE(gauge->fontDim(), 20);
        QCOMPARE(gauge->numPrec(), 0);
        QCOMPARE(gauge->barColor(), QColor(Qt::green));
        QCOMPARE(gauge->text(), QString());
        gauge->setFontDim(200); // has no effect on the size
        QCOMPARE(gauge->minimumSizeHint(), QSize(250, 20));
        QCOMPARE(gauge->sizeHint(), QSize(250, 25));
    }

    void unusedPropertiesAreStored()
    {
        QProg gauge(nullptr);
        const QFont before = gauge.font();
        QVERIFY(gauge.setProperty("font", 12));
        QVERIFY(gauge.setProperty("numPrec", 3));
        QVERIFY(gauge.setProperty("color", QColor(Qt::red)));
        QCOMPARE(gauge.property("font"), QVariant(12));
        QCOMPARE(gauge.property("numPrec"), QVariant(3));
        QCOMPARE(gauge.property("color"), QVariant(QColor(Qt::red)));
        QCOMPARE(gauge.fontDim(), 12);
        QCOMPARE(gauge.numPrec(), 3);
        QCOMPARE(gauge.barColor(), QColor(Qt::red));
        QCOMPARE(gauge.font(), before); // the widget's own font, which the property hides
    }

    void valueAndRangeAreSet_data()
    {
        const Rows<QByteArray, double, double, QVector<double>> row("property", "value", "set",
                                                                    "minMaxValue");

        row("value inside the range", "value", 0, 42.5, {0, 100, 42.5});
        row("value above the range", "value", 0, 150, {0, 100, 100});
        row("value below the range", "value", 0, -5, {0, 100, 0});
        row("value at the maximum", "value", 0, 100, {0, 100, 100});
        row("infinite value", "value", 0, infinity, {0, 100, 100});
        row("negative infinite value", "value", 0, -infinity, {0, 100, 0});
        row("value that is not a number", "value", 0, notANumber, {0, 100, notANumber});
        row("minimum above the maximum: swapped", "min", 0, 200, {100, 200, 100});
        row("minimum raised: the value stays below", "min", 10, 50, {50, 100, 10});
        row("minimum lowered", "min", 10, -50, {-50, 100, 10});
        row("minimum at the maximum", "min", 10, 100, {100, 100, 10});
        row("maximum below the minimum: swapped", "max", 10, -50, {-50, 0, -50});
        row("maximum lowered: the value stays above", "max", 80, 50, {0, 50, 80});
        row("maximum raised", "max", 80, 500, {0, 500, 80});
        row("maximum at the minimum", "max", 80, 0, {0, 0, 80});
    }

    void valueAndRangeAreSet()
    {
        QFETCH(QByteArray, property);
        QFETCH(double, value);
        QFETCH(double, set);
        QFETCH(QVector<double>, minMaxValue);
        QProg gauge(nullptr);
        gauge.setValue(value);
        QVERIFY(gauge.setProperty(property, set));
        QCOMPARE(gauge.minimum(), minMaxValue.at(0));
        QCOMPARE(gauge.maximum(), minMaxValue.at(1));
        QCOMPARE(gauge.value(), minMaxValue.at(2));
        QCOMPARE(gauge.property("min").toDouble(), gauge.minimum());
        QCOMPARE(gauge.property("max").toDouble(), gauge.maximum());
        QCOMPARE(gauge.property("value").toDouble(), gauge.value());
    }

    void shapesFollowTheWidth()
    {
        QCOMPARE(qprog::frameRect(251), QRectF(5, 5, 246, 70));
        QCOMPARE(qprog::troughRect(251), QRectF(10, 10, 234, 60));
        QCOMPARE(qprog::barRect(120.5), QRectF(10, 10, 120.5, 60));
        QCOMPARE(qprog::frameRect(1000), QRectF(5, 5, 995, 70));
        QCOMPARE(qprog::troughRect(1000), QRectF(10, 10, 983, 60));
        QCOMPARE(
            qprog::emptyRangeBlocks(),
            QVector<QRectF>({{40, 10, 40, 60}, {130, 10, 40, 60}, {220, 10, 40, 60}, {310, 10, 40, 60}}));
        const QVector<QLineF> ticks = qprog::tickLines(250);
        QCOMPARE(ticks.size(), 26);
        QCOMPARE(ticks.first(), QLineF(20, 10, 20, 70));
        QCOMPARE(ticks.at(1), QLineF(30, 10, 30, 70));
        QCOMPARE(ticks.last(), QLineF(270, 10, 270, 70));
        QCOMPARE(qprog::tickLines(249).size(), 25);
        QCOMPARE(qprog::tickLines(0).size(), 1);
    }

    void barLengthFollowsTheValue_data()
    {
        const Rows<double, double, double, double> row("min", "max", "value", "length");

        row("empty", 0, 100, 0, 0);
        row("full", 0, 100, 100, 240);
        row("a quarter", 0, 100, 25, 60);
        row("across zero", -50, 50, 25, 180);
        row("up to zero", -100, 0, -25, 180);
        row("below zero", -200, -100, -150, 120);
        row("below zero, empty", -200, -100, -200, 0);
        row("below zero, full", -200, -100, -100, 240);
        row("range that overflows", -huge, huge, 0, 0);
        row("infinite maximum", 0, infinity, 5, 0);
        row("infinite minimum", -infinity, -1, -5, 0);
    }

    void barLengthFollowsTheValue()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(double, value);
        QTEST(qprog::barLength(250, min, max, value), "length");
    }

    void shareIsInWholePercent_data()
    {
        const Rows<double, double, double, QString> row("min", "max", "value", "share");

        row("empty", 0, 100, 0, "0 %");
        row("negative zero", 0, 100, -0.0, "0 %");
        row("a share that binary fractions can't represent", 0, 100, 29, "29 %");
        row("rounded down", 0, 100, 99.9, "99 %");
        row("full", 0, 100, 100, "100 %");
        row("negative range", -200, -100, -150, "50 %");
        row("outside the range", 50, 100, 10, "");
        row("empty range", 5, 5, 5, "");
        row("not a number", 0, 100, notANumber, "");
        row("infinite maximum", 0, infinity, infinity, "");
        row("range that overflows", -huge, huge, huge, "");
    }

    void shareIsInWholePercent()
    {
        QFETCH(double, min);
        QFETCH(double, max);
        QFETCH(double, value);
        QTEST(qprog::shareText(min, max, value), "share");
    }

    void bothFormsOfTheBarLengthAgree()
    {
        for (int value = 0; value <= 100; ++value) {
            const double above = qprog::barLength(777, 0, 100, value);
            const double below = qprog::barLength(777, -300, -200, value - 300);
            QVERIFY(qAbs(above - below) < 1e-9);
            QVERIFY(qAbs(above - 767.0 * value / 100.0) < 1e-9);
        }
    }

    void accessibleTextsAreCaptionAndShare()
    {
        QProg gauge(nullptr);
        gauge.setAccessibleName("Free memory");
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&gauge);
        QVERIFY(interface);
        QCOMPARE(interface->text(QAccessible::Name), QString("Free memory"));
        const auto description = [interface] { return interface->text(QAccessible::Description); };
        QCOMPARE(description(), QString("0 %"));
        gauge.setValue(42);
        QCOMPARE(description(), QString("42 %"));
        gauge.setMaxValue(84);
        QCOMPARE(description(), QString("50 %"));
        gauge.setMinValue(43);
        QCOMPARE(description(), QString());
    }
};

QTEST_MAIN(TestQProg)
#include "test_qprog.moc"
