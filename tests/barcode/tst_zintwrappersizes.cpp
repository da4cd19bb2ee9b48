// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>
#include <cmath>

namespace {

double textWidth(const char *text)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    return QFontMetricsF(font).horizontalAdvance(QString::fromLatin1(text));
}

double textHeight()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    return QFontMetricsF(font).height();
}

} // namespace

/// Sizes worked out by hand.
class ZintWrapperSizesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void naturalSizeOfGivenModules_data();
    void naturalSizeOfGivenModules();
    void qrOverflowsALowField();
    void textWiderThanTheField();
    void barsOverTheText();
    void barsAreNeverLowerThanAModule();
    void barsAloneFillTheField();
    void ean13InItsMargins();
    void pdf417InAWideField();
    void dataBarStacked();
    void dataBarStackedRows();
    void largerTextFont();
    void undrawnCodesFitToNothing_data();
    void undrawnCodesFitToNothing();
};

void ZintWrapperSizesTest::naturalSizeOfGivenModules_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<QSizeF>("size");

    // Modules of 3 pixels and bars of 80.
    const auto row = [](const char *sample, double width, double height) {
        QTest::newRow(sample) << QByteArray(sample) << QSizeF(width, height);
    };
    const double text = textHeight();
    row("2 of 5 standard", 47 * 3, 80 + text);
    row("EAN-2 add-on", (20 + 20) * 3, 80 + text);
    row("EAN-8", (67 + 20) * 3, 80 + text);
    row("EAN-13", (95 + 20) * 3, 80 + text);
    row("UPC-A", (95 + 20) * 3, 80 + text);
    row("UPC-E", (51 + 20) * 3, 80 + text);
    row("PDF417", 103 * 3, 6 * 9);
    row("QR Code", 21 * 3, 21 * 3);
    row("Data Matrix", 32 * 3, 8 * 3);
    row("DataBar stacked", 50 * 3, 2 * 80 + 3);
    row("DataBar stacked omnidirectional", 50 * 3, 2 * 80 + 3 * 3);
    row("EAN-13 composite", (99 + 20) * 3, 3 * 9 + 3 * 3 + 80 + text);
    row("UPC-E composite", (55 + 20) * 3, 5 * 9 + 3 * 3 + 80 + text);
    row("GS1-128 composite", 145 * 3, 3 * 9 + 3 + 80);
    row("DataBar stacked composite", 56 * 3, 5 * 9 + 3 + 80 + 3 + 80);
}

void ZintWrapperSizesTest::naturalSizeOfGivenModules()
{
    QFETCH(QByteArray, sample);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named(sample.constData()));
    barcode.setModuleWidth(3);
    barcode.setBarHeight(80);
    QTEST(barcode.naturalSize(), "size");
}

void ZintWrapperSizesTest::qrOverflowsALowField()
{
    ZintWrapper barcode;
    barcode.setSymbology(58);
    barcode.setData("1");
    QVERIFY(barcode.fitToSize({200, 100}));
    QCOMPARE(barcode.moduleWidth(), 200.0 / 21);
    QCOMPARE(barcode.barHeight(), 200.0 / 21);
    QCOMPARE(barcode.naturalSize(), QSizeF(200, 200));
}

void ZintWrapperSizesTest::textWiderThanTheField()
{
    ZintWrapper barcode;
    barcode.setData("Cheque 0042-77");
    const double width = textWidth("Cheque 0042-77");
    QVERIFY(width > 50);
    QVERIFY(barcode.fitToSize({50, 60}));
    QCOMPARE(barcode.moduleWidth(), width / barcode.symbolWidth());
    QCOMPARE(barcode.naturalSize(), QSizeF(width, 60));
    barcode.setIsShowText(false);
    QVERIFY(barcode.fitToSize({50, 60}));
    QCOMPARE(barcode.moduleWidth(), 50.0 / barcode.symbolWidth());
}

void ZintWrapperSizesTest::barsOverTheText()
{
    ZintWrapper barcode;
    barcode.setData("A");
    const int columns = barcode.symbolWidth();
    barcode.setTextGap(2.5);
    QVERIFY(barcode.fitToSize({2.0 * columns, 60}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 60 - textHeight() - 2.5);
    QCOMPARE(barcode.naturalSize(), QSizeF(2.0 * columns, 60));
}

void ZintWrapperSizesTest::barsAreNeverLowerThanAModule()
{
    ZintWrapper barcode;
    barcode.setData("A");
    const double columns = barcode.symbolWidth();
    const double exact = textHeight() + 2;
    QVERIFY(barcode.fitToSize({2 * columns, exact}));
    QCOMPARE(barcode.barHeight(), 2.0);
    QVERIFY(barcode.fitToSize({2 * columns, exact + 0.25}));
    QCOMPARE(barcode.barHeight(), 2.25);
    for (const double height : {exact - 0.25, textHeight(), 1.0, 0.0}) {
        QVERIFY(barcode.fitToSize({2 * columns, height}));
        QCOMPARE(barcode.barHeight(), 2.0);
    }
}

void ZintWrapperSizesTest::barsAloneFillTheField()
{
    ZintWrapper barcode;
    barcode.setData("A");
    barcode.setIsShowText(false);
    barcode.setTextGap(5);
    const double columns = barcode.symbolWidth();
    for (const double height : {60.0, 1.0, 0.0}) {
        QVERIFY(barcode.fitToSize({2 * columns, height}));
        QCOMPARE(barcode.moduleWidth(), 2.0);
        QCOMPARE(barcode.barHeight(), height);
        QCOMPARE(barcode.naturalSize(), QSizeF(2 * columns, height));
    }
}

void ZintWrapperSizesTest::ean13InItsMargins()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-13"));
    QCOMPARE(barcode.symbolWidth(), 95);
    QVERIFY(barcode.fitToSize({230, 100}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 100 - textHeight());
    QCOMPARE(barcode.naturalSize(), QSizeF(230, 100));
    // The guards reach below the bars without digits too.
    barcode.setIsShowText(false);
    QVERIFY(barcode.fitToSize({230, 100}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 100 - textHeight());
    QCOMPARE(barcode.naturalSize(), QSizeF(230, 100));
    // The text with its check digit is wider than the field.
    barcode.setIsShowText(true);
    QVERIFY(barcode.fitToSize({23, 100}));
    QCOMPARE(barcode.moduleWidth(), textWidth("1234567890128") / 115);
}

void ZintWrapperSizesTest::pdf417InAWideField()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("PDF417"));
    const double columns = barcode.symbolWidth();
    const double rows = barcode.symbolRows();
    QVERIFY(barcode.fitToSize({columns * 2, 10}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 6.0);
    QVERIFY(barcode.fitToSize({10, rows * 3 * 4}));
    QCOMPARE(barcode.moduleWidth(), 4.0);
    QCOMPARE(barcode.naturalSize(), QSizeF(columns * 4, rows * 12));
    barcode.setStackedRowModules(6);
    QVERIFY(barcode.fitToSize({10, rows * 3 * 4}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 12.0);
}

void ZintWrapperSizesTest::dataBarStacked()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("DataBar stacked"));
    QCOMPARE(barcode.symbolWidth(), 50);
    QVERIFY(barcode.fitToSize({100, 51}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 24.5);
    QCOMPARE(barcode.naturalSize(), QSizeF(100, 51));
}

void ZintWrapperSizesTest::dataBarStackedRows()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("DataBar stacked omnidirectional"));
    QCOMPARE(barcode.symbolRows(), 5);
    QVERIFY(barcode.fitToSize({100, 51}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), (51 - 3 * 2.0) / 2);
    QCOMPARE(barcode.naturalSize(), QSizeF(100, 51));
}

void ZintWrapperSizesTest::largerTextFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(40);
    const QFontMetricsF metrics(font);
    ZintWrapper barcode;
    barcode.setData("Cheque");
    barcode.setTextFont(font);
    QVERIFY(barcode.fitToSize({10, 100}));
    QCOMPARE(barcode.moduleWidth(), metrics.horizontalAdvance(QStringLiteral("Cheque")) / barcode.symbolWidth());
    QCOMPARE(barcode.barHeight(), 100 - metrics.height());
}

void ZintWrapperSizesTest::undrawnCodesFitToNothing_data()
{
    QTest::addColumn<int>("symbology");

    QTest::newRow("Code 11") << 1;
    QTest::newRow("Code 93") << 25;
    QTest::newRow("MaxiCode") << 57;
    QTest::newRow("DotCode") << 115;
    QTest::newRow("Han Xin") << 116;
}

void ZintWrapperSizesTest::undrawnCodesFitToNothing()
{
    QFETCH(int, symbology);
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setData("123");
    barcode.setModuleWidth(3);
    barcode.setBarHeight(80);
    QVERIFY(barcode.symbolWidth() > 0);
    QCOMPARE(barcode.naturalSize(), QSizeF(0, 0));
    QVERIFY(barcode.fitToSize({200, 100}));
    QCOMPARE(barcode.moduleWidth(), 0.0);
    QCOMPARE(barcode.barHeight(), 0.0);
    QCOMPARE(barcode.naturalSize(), QSizeF(0, 0));
}

QTEST_MAIN(ZintWrapperSizesTest)
#include "tst_zintwrappersizes.moc"
