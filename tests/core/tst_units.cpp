// SPDX-License-Identifier: MIT
#include "core/units.h"

#include <QTest>
#include <limits>

/// Font sizes and lengths between paper and pixels.
class TestUnits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pixelSize_data();
    void pixelSize();
    void pixelSizeWithoutPhysicalWidth_data();
    void pixelSizeWithoutPhysicalWidth();
    void pointSize_data();
    void pointSize();
    void pointSizeWithoutPixelWidth();
    void pixelLength_data();
    void pixelLength();
};

void TestUnits::pixelSize_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<double>("pixelWidth");
    QTest::addColumn<double>("physicalWidth");
    QTest::addColumn<int>("pixels");

    QTest::newRow("14.8 is cut off to 14") << 10.5 << 400.0 << 100.0 << 14;
    QTest::newRow("9 pt at 4 px a millimetre") << 9.0 << 400.0 << 100.0 << 12;
    QTest::newRow("the scale is a ratio, not a width") << 9.0 << 40.0 << 10.0 << 12;
    QTest::newRow("72 pt are an inch") << 72.0 << 254.0 << 25.4 << 254;
    QTest::newRow("a pixel width halved halves the size") << 10.5 << 200.0 << 100.0 << 7;
    QTest::newRow("a physical width doubled halves the size") << 10.5 << 400.0 << 200.0 << 7;
    QTest::newRow("nearly two pixels are one") << 1.41 << 400.0 << 100.0 << 1;
    QTest::newRow("just two pixels are two") << 1.418 << 400.0 << 100.0 << 2;
    QTest::newRow("below one pixel") << 0.5 << 400.0 << 100.0 << 1;
    QTest::newRow("no size") << 0.0 << 400.0 << 100.0 << 1;
    QTest::newRow("negative size") << -10.5 << 400.0 << 100.0 << 1;
    QTest::newRow("negative pixel width") << 10.5 << -400.0 << 100.0 << 1;
    QTest::newRow("negative physical width") << 10.5 << 400.0 << -100.0 << 1;
    QTest::newRow("both widths negative") << 10.5 << -400.0 << -100.0 << 14;
    QTest::newRow("no pixel width") << 10.5 << 0.0 << 100.0 << 1;
    QTest::newRow("beyond the largest int") << 1e12 << 400.0 << 100.0 << 1;
    QTest::newRow("infinite size") << std::numeric_limits<double>::infinity() << 400.0 << 100.0 << 1;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 400.0 << 100.0 << 1;
}

void TestUnits::pixelSize()
{
    QFETCH(double, points);
    QFETCH(double, pixelWidth);
    QFETCH(double, physicalWidth);
    QTEST(units::pixelSize(points, pixelWidth, physicalWidth), "pixels");
}

void TestUnits::pixelSizeWithoutPhysicalWidth_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<double>("pixelWidth");

    QTest::newRow("usual size") << 10.5 << 400.0;
    QTest::newRow("negative size") << -10.5 << 400.0;
    QTest::newRow("zero by zero") << 0.0 << 400.0;
    QTest::newRow("no pixel width either") << 10.5 << 0.0;
}

void TestUnits::pixelSizeWithoutPhysicalWidth()
{
    QFETCH(double, points);
    QFETCH(double, pixelWidth);
    QCOMPARE(units::pixelSize(points, pixelWidth, 0.0), 1);
    QCOMPARE(units::pixelSize(points, pixelWidth, -0.0), 1);
}

void TestUnits::pointSize_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<double>("pixelWidth");
    QTest::addColumn<double>("physicalWidth");
    QTest::addColumn<double>("points");

    QTest::newRow("an inch is 72 pt") << 254 << 254.0 << 25.4 << 72.0;
    QTest::newRow("not rounded") << 14 << 400.0 << 100.0 << 9.921259842519685;
    QTest::newRow("one pixel") << 1 << 400.0 << 100.0 << 0.7086614173228346;
    QTest::newRow("no lower bound: nothing") << 0 << 400.0 << 100.0 << 0.0;
    QTest::newRow("no lower bound: negative") << -14 << 400.0 << 100.0 << -9.921259842519685;
    QTest::newRow("negative pixel width") << 14 << -400.0 << 100.0 << -9.921259842519685;
    QTest::newRow("no physical width") << 14 << 400.0 << 0.0 << 0.0;
}

void TestUnits::pointSize()
{
    QFETCH(int, pixels);
    QFETCH(double, pixelWidth);
    QFETCH(double, physicalWidth);
    QTEST(units::pointSize(pixels, pixelWidth, physicalWidth), "points");
}

void TestUnits::pointSizeWithoutPixelWidth()
{
    QVERIFY(qIsInf(units::pointSize(14, 0, 100)));
    QVERIFY(qIsNaN(units::pointSize(14, 0, 0)));
}

void TestUnits::pixelLength_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("pixelExtent");
    QTest::addColumn<double>("physicalExtent");
    QTest::addColumn<double>("pixels");

    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("4 px a millimetre") << 5.0 << 400.0 << 100.0 << 20.0;
    QTest::newRow("not rounded") << 2.5 << 50.0 << 100.0 << 1.25;
    QTest::newRow("whole extent") << 100.0 << 400.0 << 100.0 << 400.0;
    QTest::newRow("longer than the extent") << 200.0 << 400.0 << 100.0 << 800.0;
    QTest::newRow("nothing") << 0.0 << 400.0 << 100.0 << 0.0;
    QTest::newRow("negative length") << -5.0 << 400.0 << 100.0 << -20.0;
    QTest::newRow("negative pixel extent") << 5.0 << -400.0 << 100.0 << -20.0;
    QTest::newRow("negative physical extent") << 5.0 << 400.0 << -100.0 << -20.0;
    QTest::newRow("both extents negative") << 5.0 << -400.0 << -100.0 << 20.0;
    QTest::newRow("no pixel extent") << 5.0 << 0.0 << 100.0 << 0.0;
    QTest::newRow("no physical extent") << 5.0 << 400.0 << 0.0 << 0.0;
    QTest::newRow("no extent at all") << 5.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("beyond the largest number") << 1e300 << 1e300 << 100.0 << 0.0;
    QTest::newRow("infinite length") << infinity << 400.0 << 100.0 << 0.0;
    QTest::newRow("infinite physical extent") << 5.0 << 400.0 << infinity << 0.0;
    QTest::newRow("not a number") << nan << 400.0 << 100.0 << 0.0;
}

void TestUnits::pixelLength()
{
    QFETCH(double, length);
    QFETCH(double, pixelExtent);
    QFETCH(double, physicalExtent);
    QTEST(units::pixelLength(length, pixelExtent, physicalExtent), "pixels");
}

QTEST_APPLESS_MAIN(TestUnits)
#include "tst_units.moc"
