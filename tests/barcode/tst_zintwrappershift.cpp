// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>
#include <cmath>

using barcodesamples::isNear;
using barcodesamples::modulesOf;
using barcodesamples::paintedBy;

namespace {

constexpr QRectF Field(30, 20, 240, 120);

ZintWrapper *linear(ZintWrapper *barcode)
{
    barcode->setSymbology(20);
    barcode->setData("Cheque");
    return barcode;
}

} // namespace

/// Bars in the middle of a wider text, and what that leaves to the next symbol.
class ZintWrapperShiftTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void offsetOfBarsUnderAWideText();
    void offsetStaysForMatrixCodes();
    void offsetOfAddOns();
};

void ZintWrapperShiftTest::offsetOfBarsUnderAWideText()
{
    ZintWrapper barcode;
    linear(&barcode);
    const double columns = barcode.symbolWidth();
    const double text = QFontMetricsF(barcode.textFont()).horizontalAdvance(QStringLiteral("Cheque"));
    const auto firstBar = [&barcode] { return modulesOf(paintedBy(barcode, Field)).at(0).x(); };
    barcode.setModuleWidth(0.25);
    barcode.setBarHeight(20);
    QVERIFY(text > 0.25 * columns + 10);
    QVERIFY(std::abs(firstBar() - (text - 0.25 * columns) / 2) < 1e-9);
    // not without text
    barcode.setIsShowText(false);
    QCOMPARE(firstBar(), 0.0);
    // and not where the bars are wider
    barcode.setIsShowText(true);
    barcode.setModuleWidth(2);
    QCOMPARE(firstBar(), 0.0);
    // fitted, the bars span the text
    barcode.fitToSize({5, 60});
    QVERIFY(std::abs(firstBar()) < 1e-9);
}

void ZintWrapperShiftTest::offsetStaysForMatrixCodes()
{
    const double shift = [] {
        ZintWrapper barcode;
        linear(&barcode);
        barcode.setModuleWidth(0.25);
        return modulesOf(paintedBy(barcode, Field)).at(0).x();
    }();
    QVERIFY(shift > 5);
    const auto isShifted = [shift](const char *name) {
        const auto firstModule = [name](ZintWrapper *barcode) {
            barcodesamples::apply(barcode, barcodesamples::named(name));
            barcode->fitToSize(Field.size());
            return modulesOf(paintedBy(*barcode, Field)).at(0);
        };
        ZintWrapper fresh;
        ZintWrapper used;
        linear(&used);
        used.setModuleWidth(0.25);
        paintedBy(used, Field);
        return isNear(firstModule(&used), firstModule(&fresh).translated(shift, 0));
    };
    for (const char *name : {"QR Code", "Data Matrix", "Aztec", "Micro QR", "HIBC QR", "Aztec rune", "DataBar stacked"})
        QVERIFY2(isShifted(name), name);
    for (const char *name : {"PDF417", "DataBar stacked omnidirectional", "DataBar expanded stacked", "EAN-13", "UPC-A",
                             "EAN-13 composite", "DataBar composite", "DataBar stacked composite", "Code 39"})
        QVERIFY2(!isShifted(name), name);

    // Codes in between leave it, the next line of text does not.
    ZintWrapper barcode;
    linear(&barcode);
    barcode.setModuleWidth(0.25);
    paintedBy(barcode, Field);
    for (const char *name : {"PDF417", "EAN-13", "UPC-A", "MicroPDF417", "GS1-128 composite"}) {
        barcodesamples::apply(&barcode, barcodesamples::named(name));
        paintedBy(barcode, Field);
    }
    barcodesamples::apply(&barcode, barcodesamples::named("QR Code"));
    barcode.fitToSize({42, 42});
    QVERIFY(std::abs(modulesOf(paintedBy(barcode, Field)).at(0).x() - shift) < 1e-9);
    linear(&barcode)->fitToSize(Field.size());
    paintedBy(barcode, Field);
    barcodesamples::apply(&barcode, barcodesamples::named("QR Code"));
    QCOMPARE(modulesOf(paintedBy(barcode, Field)).at(0).x(), 0.0);
}

void ZintWrapperShiftTest::offsetOfAddOns()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-5 add-on"));
    const double text = QFontMetricsF(barcode.textFont()).horizontalAdvance(QStringLiteral("12345"));
    barcode.fitToSize({10, 60});
    QCOMPARE(barcode.moduleWidth(), text / 67);
    const double shift = (text - 47 * barcode.moduleWidth()) / 2;
    QVERIFY(shift > 1);
    QVERIFY(std::abs(modulesOf(paintedBy(barcode, Field)).at(0).x() - shift) < 1e-9);
    barcodesamples::apply(&barcode, barcodesamples::named("QR Code"));
    QVERIFY(std::abs(modulesOf(paintedBy(barcode, Field)).at(0).x() - shift) < 1e-9);
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-2 add-on"));
    barcode.fitToSize({200, 60});
    QCOMPARE(modulesOf(paintedBy(barcode, Field)).at(0).x(), 0.0);
}

QTEST_MAIN(ZintWrapperShiftTest)
#include "tst_zintwrappershift.moc"
