// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QTest>

using barcodesamples::patternOf;
using barcodesamples::Sample;
using IntSetter = void (ZintWrapper::*)(int);

Q_DECLARE_METATYPE(IntSetter)

namespace {

// Each option with a value that its symbologies take, and those symbologies.
struct Option
{
    IntSetter set;
    int value;
    QVector<int> symbologies;
};

const QVector<Option> &options()
{
    using W = ZintWrapper;
    static const QVector<int> composites{130, 131, 132, 133, 134, 135, 136, 137, 138, 139};
    static const QVector<Option> all{
        {&W::setCode39CheckDigit, 1, {8}},
        {&W::setMsiCheckDigit, 1, {47}},
        {&W::setPdf417Security, 2, {55, 56, 84, 108}},
        {&W::setPdf417Columns, 2, {55, 56, 84, 108}},
        {&W::setQrErrorCorrection, 2, {58, 104}},
        {&W::setQrVersion, 2, {58, 104}},
        {&W::setDataMatrixSize, 2, {71}},
        {&W::setDataMatrixSquareOnly, 100, {71}},
        {&W::setExpandedStackedColumns, 2, {81, 139}},
        {&W::setAztecErrorCorrection, 2, {92, 112}},
        {&W::setAztecSize, 2, {92, 112}},
        {&W::setMicroQrErrorCorrection, 2, {97}},
        {&W::setMicroQrVersion, 2, {97}},
        {&W::setCompositeMode, 2, composites},
    };
    return all;
}

} // namespace

/// Which options reach the symbols of which symbologies.
class ZintWrapperOptionsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void inputModeReachesTheSymbol();
    void optionsReachTheSymbol_data();
    void optionsReachTheSymbol();
    void otherOptionsDoNot_data();
    void otherOptionsDoNot();
};

void ZintWrapperOptionsTest::inputModeReachesTheSymbol()
{
    const QByteArray data("[01]12345678901231");
    EncodedSymbol::Options gs1;
    gs1.inputMode = GS1_MODE;
    const EncodedSymbol symbol(71, data, {}, gs1);
    ZintWrapper barcode;
    barcode.setSymbology(71);
    barcode.setData(data);
    QVERIFY(barcode.encode());
    const QVector<QRectF> withBrackets = patternOf(barcode);
    barcode.setInputMode(GS1_MODE);
    QVERIFY(barcode.encode());
    QVERIFY(patternOf(barcode) != withBrackets);
    QCOMPARE(patternOf(barcode).size(), symbol.darkModules());
}

void ZintWrapperOptionsTest::optionsReachTheSymbol_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<IntSetter>("set");
    QTest::addColumn<int>("value");
    QTest::addColumn<QVector<int>>("options");

    using W = ZintWrapper;
    const auto row = [](const char *name, const char *sample, IntSetter set, int value, const QVector<int> &options) {
        QTest::newRow(name) << QByteArray(sample) << set << value << options;
    };
    row("Code 39 with check digit", "Code 39", &W::setCode39CheckDigit, 1, {-1, 1, 0});
    row("MSI with one check digit", "MSI Plessey", &W::setMsiCheckDigit, 1, {-1, 1, 0});
    row("MSI with two check digits", "MSI Plessey", &W::setMsiCheckDigit, 2, {-1, 2, 0});
    row("security of PDF417", "PDF417", &W::setPdf417Security, 4, {4, 0, 0});
    row("columns of PDF417", "PDF417", &W::setPdf417Columns, 5, {0, 5, 0});
    row("security of truncated PDF417", "truncated PDF417", &W::setPdf417Security, 4, {4, 0, 0});
    row("columns of truncated PDF417", "truncated PDF417", &W::setPdf417Columns, 5, {0, 5, 0});
    row("columns of MicroPDF417", "MicroPDF417", &W::setPdf417Columns, 4, {0, 4, 0});
    row("columns of HIBC MicroPDF417", "HIBC MicroPDF417", &W::setPdf417Columns, 4, {0, 4, 0});
    row("version of QR", "QR Code", &W::setQrVersion, 7, {1, 7, 0});
    row("error correction of QR", "QR Code", &W::setQrErrorCorrection, 4, {4, 0, 0});
    row("version of HIBC QR", "HIBC QR", &W::setQrVersion, 7, {1, 7, 0});
    row("error correction of HIBC QR", "HIBC QR", &W::setQrErrorCorrection, 4, {4, 0, 0});
    row("size of Data Matrix", "Data Matrix", &W::setDataMatrixSize, 12, {-1, 12, 0});
    row("squares of Data Matrix", "Data Matrix", &W::setDataMatrixSquareOnly, DM_SQUARE, {-1, 0, DM_SQUARE});
    row("columns of expanded stacked", "DataBar expanded stacked", &W::setExpandedStackedColumns, 4, {-1, 4, 0});
    row("error correction of Aztec", "Aztec", &W::setAztecErrorCorrection, 4, {4, 0, 0});
    row("size of Aztec", "Aztec", &W::setAztecSize, 9, {0, 9, 0});
    row("error correction of HIBC Aztec", "HIBC Aztec", &W::setAztecErrorCorrection, 4, {4, 0, 0});
    row("size of HIBC Aztec", "HIBC Aztec", &W::setAztecSize, 9, {0, 9, 0});
    row("error correction of Micro QR", "Micro QR", &W::setMicroQrErrorCorrection, 2, {2, 0, 0});
    row("version of Micro QR", "Micro QR", &W::setMicroQrVersion, 4, {0, 4, 0});
    row("mode of EAN-8 composite", "EAN-8 composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of EAN-13 composite", "EAN-13 composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("CC-B of GS1-128 composite", "GS1-128 composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("CC-C of GS1-128 composite", "GS1-128 composite", &W::setCompositeMode, 3, {3, 0, 0});
    row("mode of DataBar composite", "DataBar composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of limited composite", "DataBar limited composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of expanded composite", "DataBar expanded composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of UPC-A composite", "UPC-A composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of UPC-E composite", "UPC-E composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of stacked composite", "DataBar stacked composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("mode of omnidirectional composite", "DataBar stacked omnidirectional composite", &W::setCompositeMode, 2,
        {2, 0, 0});
    row("mode of expanded stacked composite", "DataBar expanded stacked composite", &W::setCompositeMode, 2, {2, 0, 0});
    row("columns of expanded stacked composite", "DataBar expanded stacked composite", &W::setExpandedStackedColumns, 4,
        {0, 4, 0});
}

void ZintWrapperOptionsTest::optionsReachTheSymbol()
{
    QFETCH(QByteArray, sample);
    QFETCH(IntSetter, set);
    QFETCH(int, value);
    QFETCH(QVector<int>, options);
    const Sample &tested = barcodesamples::named(sample.constData());
    const EncodedSymbol symbol(tested.symbology, tested.data, tested.primary,
                               {options.at(0), options.at(1), options.at(2), 0, UNICODE_MODE});
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, tested);
    (barcode.*set)(value);
    QVERIFY(barcode.encode());
    QCOMPARE(barcode.lastResult(), symbol.result());
    QCOMPARE(barcode.symbolRows(), symbol.rows());
    QCOMPARE(barcode.symbolWidth(), symbol.width());
    const QVector<QRectF> pattern = patternOf(barcode);
    QCOMPARE(pattern.size(), symbol.darkModules());
    QVERIFY(pattern != patternOf(tested));
}

void ZintWrapperOptionsTest::otherOptionsDoNot_data()
{
    barcodesamples::addRows();
}

void ZintWrapperOptionsTest::otherOptionsDoNot()
{
    QFETCH(int, index);
    const Sample &sample = barcodesamples::all().at(index);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, sample);
    for (const Option &option : options()) {
        if (!option.symbologies.contains(sample.symbology))
            (barcode.*option.set)(option.value);
    }
    QCOMPARE(patternOf(barcode), patternOf(sample));
}

QTEST_MAIN(ZintWrapperOptionsTest)
#include "tst_zintwrapperoptions.moc"
