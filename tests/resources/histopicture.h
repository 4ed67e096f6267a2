// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_RESOURCES_HISTOPICTURE_H
#define TESTS_RESOURCES_HISTOPICTURE_H

#include "resources/histogeometry.h"
#include "resources/timehisto.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QtTest>

#include <functional>

/// Pictures of the traffic graph at 640 x 400, and what tests look for in them.
namespace histopicture {

const QSize usual(640, 400);
const QRect usualAmounts(1, 1, 66, 300);   ///< the amount labels above the legend
const QRect usualTimes(110, 386, 520, 13); ///< the time labels to the right of the legend
const QRect usualPlot(110, 1, 529, 384);   ///< everything above those

inline QImage paint(TimeHisto &histo, const QSize &size = usual)
{
    histo.resize(size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    histo.render(&image);
    return image;
}

inline void add(TimeHisto &histo, uint in, uint out, int times = 1)
{
    for (int i = 0; i < times; ++i) {
        histo.addValueIn(in);
        histo.addValueOut(out);
    }
}

inline bool isBlue(QRgb pixel)
{
    return qBlue(pixel) > qRed(pixel) + 60;
}

inline bool isRed(QRgb pixel)
{
    return qRed(pixel) > qBlue(pixel) + 60;
}

inline int countPixels(const QImage &image, const QRect &part, bool (*wanted)(QRgb))
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            count += wanted(image.pixel(x, y)) ? 1 : 0;
        }
    }
    return count;
}

inline bool isAnyColour(QRgb pixel)
{
    return isBlue(pixel) || isRed(pixel);
}

/// The rows of `part` in which at least a quarter of the pixels are `wanted`; only the last of adjacent ones.
inline QVector<int> rowsOf(const QImage &image, const QRect &part, bool (*wanted)(QRgb))
{
    QVector<int> rows;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        if (4 * countPixels(image, QRect(part.left(), y, part.width(), 1), wanted) >= part.width()) {
            if (!rows.isEmpty() && rows.last() == y - 1) {
                rows.removeLast();
            }
            rows << y;
        }
    }
    return rows;
}

inline bool isInk(QRgb pixel)
{
    return qGray(pixel) < 250;
}

/// The expected picture of `part` if it holds only black labels, each centred in its rectangle.
inline QImage labelsAlone(const QRect &part, int count, const std::function<QRectF(int)> &rect,
                          const std::function<QString(int)> &label)
{
    QImage image(usual, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(QFont(QStringLiteral("Arial"), 8, QFont::Normal));
    painter.setPen(Qt::black);
    for (int i = 0; i < count; ++i) {
        painter.drawText(rect(i), Qt::AlignCenter, label(i));
    }
    return image.copy(part);
}

inline QImage amountsFor(qint32 maxValue)
{
    return labelsAlone(
        usualAmounts, 5, [](int i) { return QRectF(0, i * 92.5, 70, 30); },
        [maxValue](int i) { return histogeometry::amountLabel(i, maxValue); });
}

inline QImage timesFor(int interval)
{
    return labelsAlone(
        usualTimes, 11, [](int i) { return QRectF(i * 55.5, 385, 140, 15); },
        [interval](int i) { return QString::number((10 - i) * 10 * interval); });
}

/// Runs a test at 96 dpi, on which positions and labels depend, whatever the display's is.
template <class Test>
int runAt96Dpi(int argc, char *argv[])
{
    qputenv("QT_FONT_DPI", "96");
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace histopicture

#endif
