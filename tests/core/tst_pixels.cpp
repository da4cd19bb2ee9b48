// SPDX-License-Identifier: MIT
#include "core/pixels.h"

#include <QTest>
#include <limits>

/// Points and rectangles on whole pixels.
class PixelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rounded_data();
    void rounded();
    void roundedPoint_data();
    void roundedPoint();
    void truncated_data();
    void truncated();
    void edgesRounded_data();
    void edgesRounded();

private:
    static void addOrdinaryRectangles();
    static void addBoundlessRectangles();
};

void PixelsTest::rounded_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRect>("whole");

    addOrdinaryRectangles();
    addBoundlessRectangles();
}

void PixelsTest::addOrdinaryRectangles()
{
    QTest::newRow("whole") << QRectF(10, 20, 300, 40) << QRect(10, 20, 300, 40);
    QTest::newRow("empty") << QRectF() << QRect(0, 0, 0, 0);
    QTest::newRow("below the half") << QRectF(1.4, 2.4, 3.4, 4.4) << QRect(1, 2, 3, 4);
    QTest::newRow("above the half") << QRectF(1.6, 2.6, 3.6, 4.6) << QRect(2, 3, 4, 5);
    QTest::newRow("halves go up") << QRectF(0.5, 1.5, 2.5, 3.5) << QRect(1, 2, 3, 4);
    QTest::newRow("negative halves go up") << QRectF(-0.5, -1.5, -2.5, -3.5) << QRect(0, -1, -2, -3);
    QTest::newRow("negative, near the half") << QRectF(-0.6, -1.4, -2.6, -3.4) << QRect(-1, -1, -3, -3);
    QTest::newRow("size apart from place") << QRectF(0.4, 0.4, 2.4, 2.4) << QRect(0, 0, 2, 2);
    QTest::newRow("size apart from place, both up") << QRectF(0.6, 0.6, 2.6, 2.6) << QRect(1, 1, 3, 3);
}

void PixelsTest::addBoundlessRectangles()
{
    constexpr int widest = 16777215; // of a widget
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    constexpr double greatest = std::numeric_limits<double>::max();
    QTest::newRow("widest") << QRectF(widest, widest, widest, widest) << QRect(widest, widest, widest, widest);
    QTest::newRow("one less") << QRectF(widest - 1, 0, widest - 1, 0) << QRect(widest - 1, 0, widest - 1, 0);
    QTest::newRow("above the widest") << QRectF(widest + 1, widest + 0.5, 1e9, 1e10)
                                      << QRect(widest, widest, widest, widest);
    QTest::newRow("negative widest") << QRectF(-widest, -widest, -widest, -widest)
                                     << QRect(-widest, -widest, -widest, -widest);
    QTest::newRow("negative, one less") << QRectF(1 - widest, 0, 1 - widest, 0) << QRect(1 - widest, 0, 1 - widest, 0);
    QTest::newRow("below the negative widest")
        << QRectF(-widest - 1, -widest - 0.6, -1e9, -1e10) << QRect(-widest, -widest, -widest, -widest);
    QTest::newRow("greatest") << QRectF(greatest, -greatest, greatest, -greatest)
                              << QRect(widest, -widest, widest, -widest);
    QTest::newRow("infinite") << QRectF(infinity, -infinity, infinity, -infinity)
                              << QRect(widest, -widest, widest, -widest);
    QTest::newRow("not a number") << QRectF(notANumber, 1, notANumber, 2) << QRect(0, 1, 0, 2);
    QTest::newRow("not a number, crosswise") << QRectF(1, notANumber, 2, notANumber) << QRect(1, 0, 2, 0);
}

void PixelsTest::rounded()
{
    QFETCH(const QRectF, rect);
    QTEST(pixels::rounded(rect), "whole");
}

void PixelsTest::roundedPoint_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPoint>("whole");
    QTest::newRow("whole") << QPointF(10, -20) << QPoint(10, -20);
    QTest::newRow("near the half") << QPointF(1.4, 2.6) << QPoint(1, 3);
    QTest::newRow("halves go up") << QPointF(2.5, -2.5) << QPoint(3, -2);
    QTest::newRow("above the widest") << QPointF(1e10, -1e10) << QPoint(16777215, -16777215);
    QTest::newRow("not a number") << QPointF(std::numeric_limits<double>::quiet_NaN(), 1) << QPoint(0, 1);
}

void PixelsTest::roundedPoint()
{
    QFETCH(const QPointF, point);
    QTEST(pixels::rounded(point), "whole");
}

void PixelsTest::truncated_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<int>("truncated");
    QTest::newRow("towards zero") << 40.9 << 40;
    QTest::newRow("negative, towards zero") << -40.9 << -40;
    QTest::newRow("above the widest") << 1e10 << 16777215;
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << -16777215;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void PixelsTest::truncated()
{
    QFETCH(double, length);
    QTEST(pixels::truncated(length), "truncated");
}

void PixelsTest::edgesRounded_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("onEdges");
    QTest::newRow("whole") << QRectF(10, 20, 300, 40) << QRectF(10, 20, 300, 40);
    QTest::newRow("place and size add up") << QRectF(0.4, 0.4, 2.4, 2.4) << QRectF(0, 0, 3, 3);
    QTest::newRow("both up, and no larger") << QRectF(0.6, 0.6, 2.6, 2.6) << QRectF(1, 1, 2, 2);
    QTest::newRow("halves go up") << QRectF(-0.5, 0.5, 1, 1) << QRectF(0, 1, 1, 1);
    QTest::newRow("beyond whole numbers") << QRectF(0, 0, 1e12, 2) << QRectF(0, 0, 1e12, 2);
}

void PixelsTest::edgesRounded()
{
    QFETCH(const QRectF, rect);
    QTEST(pixels::edgesRounded(rect), "onEdges");
}

QTEST_APPLESS_MAIN(PixelsTest)
#include "tst_pixels.moc"
