// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QImage>
#include <QTest>
#include <cmath>
#include <limits>

using IntSetter = void (ZintWrapper::*)(int);

namespace {

constexpr int LowestSymbology = -5;
constexpr int HighestSymbology = 200;
constexpr QSizeF Field(200, 100);

// All operations, on a recording and on pixels. What they answer has to agree.
void useEverything(ZintWrapper &barcode, const QSizeF &size)
{
    const bool isUsable = barcode.encode();
    QCOMPARE(isUsable, barcode.lastResult() <= 1);
    QCOMPARE(barcode.symbolRows() > 0, isUsable);
    QCOMPARE(barcode.symbolWidth() > 0, isUsable);
    QCOMPARE(barcode.errorTextSize().isEmpty(), isUsable);
    const double before = barcode.moduleWidth();
    QCOMPARE(barcode.fitToSize(size), isUsable);
    QVERIFY(isUsable || barcode.moduleWidth() == before);
    QVERIFY(std::isfinite(barcode.moduleWidth()) && barcode.moduleWidth() >= 0);
    QVERIFY(std::isfinite(barcode.barHeight()));
    QVERIFY(isUsable || barcode.naturalSize() == QSizeF(0, 0));

    const QVector<PaintCommand> commands = barcodesamples::paintedBy(barcode, QRectF(QPointF(3, 2), size));
    QVERIFY(isUsable || barcodesamples::modulesOf(commands).isEmpty());
    QImage image(40, 30, QImage::Format_RGB32);
    QPainter painter(&image);
    barcode.paint(&painter, QRectF(QPointF(3, 2), size));
    QVERIFY(painter.transform().isIdentity());
}

} // namespace

/// Contents, sizes and settings that nobody means well with.
class ZintWrapperHostileTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void data_data();
    void data();
    void sizes_data();
    void sizes();
    void layouts_data();
    void layouts();
    void options_data();
    void options();
};

void ZintWrapperHostileTest::data_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("primary");

    const QByteArray component("[21]A12345678");
    QTest::newRow("nothing") << QByteArray() << QByteArray();
    QTest::newRow("10,000 letters") << QByteArray(10000, 'A') << QByteArray();
    QTest::newRow("10,000 digits") << QByteArray(10000, '7') << QByteArray();
    QTest::newRow("10,000 bytes above ASCII") << QByteArray(10000, '\xff') << QByteArray();
    QTest::newRow("10,000 NULs") << QByteArray(10000, '\0') << QByteArray();
    QTest::newRow("a NUL between") << QByteArray("12\0"
                                                 "34",
                                                 5)
                                   << QByteArray("12\0"
                                                 "34",
                                                 5);
    QTest::newRow("a NUL first") << QByteArray("\0", 1) << QByteArray("\0", 1);
    QTest::newRow("a broken sequence") << QByteArray("12\xe6\x94") << QByteArray("12\xe6\x94");
    QTest::newRow("an overlong sequence") << QByteArray("\xc0\xaf") << QByteArray("\xc0\xaf");
    QTest::newRow("a surrogate") << QByteArray("\xed\xa0\x80") << QByteArray("\xed\xa0\x80");
    QTest::newRow("beyond Unicode") << QByteArray("\xf4\x90\x80\x80") << QByteArray("\xf8\x88\x80\x80\x80");
    QTest::newRow("open brackets") << QByteArray("[[[[01") << QByteArray("[01");
    QTest::newRow("pluses") << QByteArray("++++") << QByteArray("+");
    QTest::newRow("primary of 127 bytes") << component << QByteArray(127, '1');
    QTest::newRow("primary of 128 bytes") << component << QByteArray(128, '1');
    QTest::newRow("primary of 1000 bytes") << component << QByteArray(1000, '[');
    QTest::newRow("digits") << QByteArray("1234567") << QByteArray("1234567");
    QTest::newRow("letters") << QByteArray("Cheque") << QByteArray("Cheque");
}

void ZintWrapperHostileTest::data()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, primary);
    for (int symbology = LowestSymbology; symbology <= HighestSymbology; ++symbology) {
        ZintWrapper barcode;
        barcode.setSymbology(symbology);
        barcode.setData(data);
        barcode.setPrimary(primary);
        useEverything(barcode, Field);
        QVERIFY2(!QTest::currentTestFailed(), QByteArray::number(symbology).constData());
    }
}

void ZintWrapperHostileTest::sizes_data()
{
    barcodesamples::addRows();
}

void ZintWrapperHostileTest::sizes()
{
    QFETCH(int, index);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double width : {0.0, -0.0, 1e-300, 1.0, -200.0, nan, infinity, -infinity, 1e9, -1e9}) {
        for (const double height : {0.0, 1.0, -100.0, nan, infinity, 1e9}) {
            for (const bool hasText : {true, false}) {
                ZintWrapper barcode;
                barcodesamples::apply(&barcode, barcodesamples::all().at(index));
                barcode.setIsShowText(hasText);
                useEverything(barcode, {width, height});
            }
        }
    }
}

void ZintWrapperHostileTest::layouts_data()
{
    barcodesamples::addRows();
}

void ZintWrapperHostileTest::layouts()
{
    QFETCH(int, index);
    using W = ZintWrapper;
    const IntSetter setters[] = {&W::setStackedRowModules, &W::setCompositeRowModules, &W::setCompositeSeparatorModules,
                                 &W::setEanVariant, &W::setInputMode};
    for (const int value : {-1, 0, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        for (const IntSetter set : setters) {
            ZintWrapper barcode;
            barcodesamples::apply(&barcode, barcodesamples::all().at(index));
            (barcode.*set)(value);
            barcode.setTextGap(value);
            barcode.setGuardExtension(value);
            useEverything(barcode, Field);
        }
    }
}

void ZintWrapperHostileTest::options_data()
{
    barcodesamples::addRows();
}

void ZintWrapperHostileTest::options()
{
    QFETCH(int, index);
    using W = ZintWrapper;
    const IntSetter setters[] = {&W::setCode39CheckDigit,
                                 &W::setMsiCheckDigit,
                                 &W::setPdf417Security,
                                 &W::setPdf417Columns,
                                 &W::setQrErrorCorrection,
                                 &W::setQrVersion,
                                 &W::setDataMatrixSize,
                                 &W::setDataMatrixSquareOnly,
                                 &W::setExpandedStackedColumns,
                                 &W::setAztecErrorCorrection,
                                 &W::setAztecSize,
                                 &W::setMicroQrErrorCorrection,
                                 &W::setMicroQrVersion,
                                 &W::setCompositeMode};
    const int hostile[] = {-1, 0, 5, 41, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    for (const int value : hostile) {
        ZintWrapper barcode;
        barcodesamples::apply(&barcode, barcodesamples::all().at(index));
        for (const IntSetter set : setters)
            (barcode.*set)(value);
        useEverything(barcode, Field);
    }
}

QTEST_MAIN(ZintWrapperHostileTest)
#include "tst_zintwrapperhostile.moc"
