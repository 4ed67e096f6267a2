// SPDX-License-Identifier: GPL-3.0-or-later
// The gauge's interface, its range and its geometry; see test_qprogpainting for what it draws.
#include "resources/qprog.h"

#include <QAccessible>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QtTest>

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
    void propertiesAreInOrder();
    void methodsAreInOrder();
    void defaultsAreSet();
    void sizeHintsAreFixed();
    void propertiesReadAndWrite();
    void fontPropertyIsANumberAndTheWidgetsFontStays();
    void valueIsClamped_data();
    void valueIsClamped();
    void minimumMoves_data();
    void minimumMoves();
    void maximumMoves_data();
    void maximumMoves();
    void rectanglesFollowTheWidth();
    void barLengthFollowsTheValue_data();
    void barLengthFollowsTheValue();
    void bothFormsOfTheBarLengthAgree();
    void tickLinesReachTheRightEdge();
    void shareIsTold_data();
    void shareIsTold();
    void assistiveTechnologyReadsCaptionAndShare();
};

void TestQProg::propertiesAreInOrder()
{
    const QMetaObject &meta = QProg::staticMetaObject;
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        properties += QString(meta.property(i).typeName()) + ' ' + meta.property(i).name();
    QCOMPARE(properties, QStringList({"double value", "double min", "double max", "int font", "int numPrec",
                                      "QColor color"}));
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        QVERIFY(meta.property(i).isWritable());
}

void TestQProg::methodsAreInOrder()
{
    const QMetaObject &meta = QProg::staticMetaObject;
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods += meta.method(i).methodSignature();
    QCOMPARE(methods, QList<QByteArray>({"valueChanged(double)", "setValue(double)", "setMaxValue(double)",
                                         "setMinValue(double)", "setFontDim(int)", "setPrecision(int)",
                                         "setBarColor(QColor)"}));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    for (int i = meta.methodOffset() + 1; i < meta.methodCount(); ++i)
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
}

void TestQProg::defaultsAreSet()
{
    QWidget parent;
    const QProg *gauge = new QProg(&parent);
    QCOMPARE(gauge->parentWidget(), &parent);
    QCOMPARE(gauge->value(), 0.0);
    QCOMPARE(gauge->minimum(), 0.0);
    QCOMPARE(gauge->maximum(), 100.0);
    QCOMPARE(gauge->fontDim(), 20);
    QCOMPARE(gauge->numPrec(), 0);
    QCOMPARE(gauge->barColor(), QColor(Qt::green));
    QCOMPARE(gauge->text(), QString());
}

void TestQProg::sizeHintsAreFixed()
{
    QProg gauge(nullptr);
    gauge.setFontDim(200);
    QCOMPARE(gauge.minimumSizeHint(), QSize(250, 20));
    QCOMPARE(gauge.sizeHint(), QSize(250, 25));
}

void TestQProg::propertiesReadAndWrite()
{
    QProg gauge(nullptr);
    QVERIFY(gauge.setProperty("max", 50.0));
    QVERIFY(gauge.setProperty("min", -10.0));
    QVERIFY(gauge.setProperty("value", 60.0));
    QVERIFY(gauge.setProperty("numPrec", 3));
    QVERIFY(gauge.setProperty("color", QColor(Qt::red)));
    QCOMPARE(gauge.property("value").toDouble(), 50.0);
    QCOMPARE(gauge.property("min").toDouble(), -10.0);
    QCOMPARE(gauge.property("max").toDouble(), 50.0);
    QCOMPARE(gauge.property("numPrec").toInt(), 3);
    QCOMPARE(gauge.property("color").value<QColor>(), QColor(Qt::red));
}

void TestQProg::fontPropertyIsANumberAndTheWidgetsFontStays()
{
    QProg gauge(nullptr);
    const QFont before = gauge.font();
    QVERIFY(gauge.setProperty("font", 12));
    QCOMPARE(gauge.property("font"), QVariant(12));
    QCOMPARE(gauge.fontDim(), 12);
    QCOMPARE(gauge.font(), before);
}

void TestQProg::valueIsClamped_data()
{
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("value");

    QTest::newRow("inside") << 42.5 << 42.5;
    QTest::newRow("above") << 150.0 << 100.0;
    QTest::newRow("below") << -5.0 << 0.0;
    QTest::newRow("at the top") << 100.0 << 100.0;
    QTest::newRow("infinite") << infinity << 100.0;
    QTest::newRow("minus infinite") << -infinity << 0.0;
    QTest::newRow("not a number") << notANumber << notANumber;
}

void TestQProg::valueIsClamped()
{
    QFETCH(double, set);
    QProg gauge(nullptr);
    gauge.setValue(set);
    QTEST(gauge.value(), "value");
    QCOMPARE(gauge.minimum(), 0.0);
    QCOMPARE(gauge.maximum(), 100.0);
}

void TestQProg::minimumMoves_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("set");
    QTest::addColumn<QVector<double>>("minMaxValue");

    QTest::newRow("above the maximum: swapped") << 0.0 << 200.0 << QVector<double>{100, 200, 100};
    QTest::newRow("raised: the value stays below") << 10.0 << 50.0 << QVector<double>{50, 100, 10};
    QTest::newRow("lowered") << 10.0 << -50.0 << QVector<double>{-50, 100, 10};
    QTest::newRow("at the maximum") << 10.0 << 100.0 << QVector<double>{100, 100, 10};
}

void TestQProg::minimumMoves()
{
    QFETCH(double, value);
    QFETCH(double, set);
    QProg gauge(nullptr);
    gauge.setValue(value);
    gauge.setMinValue(set);
    QTEST((QVector<double>{gauge.minimum(), gauge.maximum(), gauge.value()}), "minMaxValue");
}

void TestQProg::maximumMoves_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("set");
    QTest::addColumn<QVector<double>>("minMaxValue");

    QTest::newRow("below the minimum: swapped") << 10.0 << -50.0 << QVector<double>{-50, 0, -50};
    QTest::newRow("lowered: the value stays above") << 80.0 << 50.0 << QVector<double>{0, 50, 80};
    QTest::newRow("raised") << 80.0 << 500.0 << QVector<double>{0, 500, 80};
    QTest::newRow("at the minimum") << 80.0 << 0.0 << QVector<double>{0, 0, 80};
}

void TestQProg::maximumMoves()
{
    QFETCH(double, value);
    QFETCH(double, set);
    QProg gauge(nullptr);
    gauge.setValue(value);
    gauge.setMaxValue(set);
    QTEST((QVector<double>{gauge.minimum(), gauge.maximum(), gauge.value()}), "minMaxValue");
}

void TestQProg::rectanglesFollowTheWidth()
{
    QCOMPARE(qprog::frameRect(251), QRectF(5, 5, 246, 70));
    QCOMPARE(qprog::troughRect(251), QRectF(10, 10, 234, 60));
    QCOMPARE(qprog::barRect(120.5), QRectF(10, 10, 120.5, 60));
    QCOMPARE(qprog::frameRect(1000), QRectF(5, 5, 995, 70));
    QCOMPARE(qprog::troughRect(1000), QRectF(10, 10, 983, 60));
    QCOMPARE(qprog::emptyRangeBlocks(),
             QVector<QRectF>({{40, 10, 40, 60}, {130, 10, 40, 60}, {220, 10, 40, 60}, {310, 10, 40, 60}}));
}

void TestQProg::barLengthFollowsTheValue_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("length");

    const auto row = [](const char *name, double min, double max, double value, double length) {
        QTest::newRow(name) << min << max << value << length;
    };
    row("empty", 0, 100, 0, 0);
    row("full", 0, 100, 100, 240);
    row("a quarter", 0, 100, 25, 60);
    row("across zero", -50, 50, 25, 180);
    row("up to zero", -100, 0, -25, 180);
    row("below zero", -200, -100, -150, 120);
    row("below zero, empty", -200, -100, -200, 0);
    row("below zero, full", -200, -100, -100, 240);
    row("too wide to be computed", -huge, huge, 0, 0);
    row("without bounds above", 0, infinity, 5, 0);
    row("without bounds below", -infinity, -1, -5, 0);
}

void TestQProg::barLengthFollowsTheValue()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QTEST(qprog::barLength(250, min, max, value), "length");
}

void TestQProg::bothFormsOfTheBarLengthAgree()
{
    for (int value = 0; value <= 100; ++value) {
        const double above = qprog::barLength(777, 0, 100, value);
        const double below = qprog::barLength(777, -300, -200, value - 300);
        QVERIFY(qAbs(above - below) < 1e-9);
        QVERIFY(qAbs(above - 767.0 * value / 100.0) < 1e-9);
    }
}

void TestQProg::tickLinesReachTheRightEdge()
{
    const QVector<QLineF> lines = qprog::tickLines(250);
    QCOMPARE(lines.size(), 26);
    QCOMPARE(lines.first(), QLineF(20, 10, 20, 70));
    QCOMPARE(lines.at(1), QLineF(30, 10, 30, 70));
    QCOMPARE(lines.last(), QLineF(270, 10, 270, 70));
    QCOMPARE(qprog::tickLines(249).size(), 25);
    QCOMPARE(qprog::tickLines(0).size(), 1);
}

void TestQProg::shareIsTold_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("share");

    const auto row = [](const char *name, double min, double max, double value, const char *share) {
        QTest::newRow(name) << min << max << value << share;
    };
    row("empty", 0, 100, 0, "0 %");
    row("zero with a sign", 0, 100, -0.0, "0 %");
    row("a share that binary fractions miss", 0, 100, 29, "29 %");
    row("rounded down", 0, 100, 99.9, "99 %");
    row("full", 0, 100, 100, "100 %");
    row("of another range", -200, -100, -150, "50 %");
    row("outside the range", 50, 100, 10, "");
    row("without a range", 5, 5, 5, "");
    row("not a number", 0, 100, notANumber, "");
    row("without bounds", 0, infinity, infinity, "");
    row("too wide to be computed", -huge, huge, huge, "");
}

void TestQProg::shareIsTold()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, value);
    QFETCH(QString, share);
    QTEST(qprog::shareText(min, max, value), "share");
}

void TestQProg::assistiveTechnologyReadsCaptionAndShare()
{
    QProg gauge(nullptr);
    gauge.setAccessibleName("Free memory");
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&gauge);
    QVERIFY(interface);
    QCOMPARE(interface->text(QAccessible::Name), QString("Free memory"));
    QCOMPARE(interface->text(QAccessible::Description), QString("0 %"));
    gauge.setValue(42);
    QCOMPARE(interface->text(QAccessible::Description), QString("42 %"));
    gauge.setMaxValue(84);
    QCOMPARE(interface->text(QAccessible::Description), QString("50 %"));
    gauge.setMinValue(43);
    QCOMPARE(interface->text(QAccessible::Description), QString());
}

QTEST_MAIN(TestQProg)
#include "test_qprog.moc"
