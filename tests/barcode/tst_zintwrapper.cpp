// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>

using barcodesamples::patternOf;
using barcodesamples::Sample;

namespace {

constexpr QSizeF Field(200, 100);

QFont fontOfSize(const char *family, int pixels)
{
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(pixels);
    return font;
}

template <typename Getter, typename Setter, typename Value>
Setting<ZintWrapper> stored(const char *name, Getter get, Setter set, const Value &initial, const Value &written)
{
    return ::setting<ZintWrapper>(name, get, set, initial, written, false);
}

const QVector<Setting<ZintWrapper>> &settings()
{
    using W = ZintWrapper;
    static const QVector<Setting<ZintWrapper>> table{
        stored("re-encoding", &W::isReencoding, &W::setIsReencoding, true, false),
        stored("symbology", &W::symbology, &W::setSymbology, 20, 58),
        stored("input mode", &W::inputMode, &W::setInputMode, 1, 2),
        stored("module width", &W::moduleWidth, &W::setModuleWidth, 0.0, 2.5),
        stored("bar height", &W::barHeight, &W::setBarHeight, 0.0, 77.5),
        stored("error font", &W::errorFont, &W::setErrorFont, QFont(QStringLiteral("Arial")),
               fontOfSize("DejaVu Sans", 9)),
        stored("text font", &W::textFont, &W::setTextFont, fontOfSize("Arial", 15), fontOfSize("DejaVu Sans", 9)),
        stored("primary", &W::primary, &W::setPrimary, QByteArray(), QByteArray("12345")),
        stored("data", &W::data, &W::setData, QByteArray(), QByteArray("Cheque\0 77", 10)),
        stored("foreground", &W::foregroundColor, &W::setForegroundColor, QColor(0, 0, 0), QColor(10, 20, 30, 40)),
        stored("background", &W::backgroundColor, &W::setBackgroundColor, QColor(255, 255, 255),
               QColor(10, 20, 30, 40)),
        stored("show text", &W::isShowText, &W::setIsShowText, true, false),
        stored("text gap", &W::textGap, &W::setTextGap, 0.0, 3.5),
        stored("EAN variant", &W::eanVariant, &W::setEanVariant, 3, 2),
        stored("guard extension", &W::guardExtension, &W::setGuardExtension, 10.0, 4.5),
        stored("quiet-zone marks", &W::hasQuietZoneMarks, &W::setHasQuietZoneMarks, false, true),
        stored("stacked row modules", &W::stackedRowModules, &W::setStackedRowModules, 3, 5),
        stored("PDF417 columns", &W::pdf417Columns, &W::setPdf417Columns, 0, 6),
        stored("PDF417 security level", &W::pdf417Security, &W::setPdf417Security, 0, 3),
        stored("Micro QR version", &W::microQrVersion, &W::setMicroQrVersion, 0, 4),
        stored("Micro QR error correction", &W::microQrErrorCorrection, &W::setMicroQrErrorCorrection, 0, 2),
        stored("QR version", &W::qrVersion, &W::setQrVersion, 0, 10),
        stored("QR error correction", &W::qrErrorCorrection, &W::setQrErrorCorrection, 1, 4),
        stored("Aztec error correction", &W::aztecErrorCorrection, &W::setAztecErrorCorrection, 0, 2),
        stored("Aztec size", &W::aztecSize, &W::setAztecSize, 0, 7),
        stored("Data Matrix size", &W::dataMatrixSize, &W::setDataMatrixSize, 0, 9),
        stored("Data Matrix square only", &W::dataMatrixSquareOnly, &W::setDataMatrixSquareOnly, 0, 100),
        stored("composite mode", &W::compositeMode, &W::setCompositeMode, 0, 2),
        stored("composite row modules", &W::compositeRowModules, &W::setCompositeRowModules, 3, 4),
        stored("composite separator modules", &W::compositeSeparatorModules, &W::setCompositeSeparatorModules, 1, 2),
        stored("expanded-stacked columns", &W::expandedStackedColumns, &W::setExpandedStackedColumns, 0, 2),
        stored("Code 39 check digit", &W::code39CheckDigit, &W::setCode39CheckDigit, 0, 1),
        stored("MSI check digit scheme", &W::msiCheckDigit, &W::setMsiCheckDigit, 0, 3),
    };
    return table;
}

} // namespace

/// Settings and encoding of one barcode.
class ZintWrapperTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void setting_data();
    void setting();
    void newBarcodeIsNotEncoded();
    void encodes_data();
    void encodes();
    void encodesAnewEachTime();
    void keepsTheSymbolWhenToldSo();
    void failures_data();
    void failures();
    void warningsAreFailures_data();
    void warningsAreFailures();
    void failureLeavesTheSizes();
    void errorTextSize();
    void messageOfTheLastEncoding();
    void unicodeIsAnnounced_data();
    void unicodeIsAnnounced();
    void unicodeIsNotAnnounced_data();
    void unicodeIsNotAnnounced();
    void longPrimary();
    void primaryEndsAtNul();
    void bytesOfSomebodyElse();
};

void ZintWrapperTest::setting_data()
{
    addSettingRows(settings());
}

void ZintWrapperTest::setting()
{
    QFETCH(int, index);
    ZintWrapper barcode;
    QVERIFY2(settings().at(index).isInitial(barcode), "initial value");
    settings().at(index).write(barcode);
    QVERIFY2(settings().at(index).isWritten(barcode), "not read back");
    for (int i = 0; i < settings().size(); ++i)
        QVERIFY2(i == index || settings().at(i).isInitial(barcode), settings().at(i).name);
    QCOMPARE(barcode.lastResult(), 2);
}

void ZintWrapperTest::newBarcodeIsNotEncoded()
{
    const ZintWrapper barcode;
    QCOMPARE(barcode.lastResult(), 2);
    QCOMPARE(barcode.errorText(), QString());
    QCOMPARE(barcode.errorTextSize(), QSizeF(0, 0));
}

void ZintWrapperTest::encodes_data()
{
    barcodesamples::addRows();
}

void ZintWrapperTest::encodes()
{
    QFETCH(int, index);
    const Sample &sample = barcodesamples::all().at(index);
    const EncodedSymbol symbol = barcodesamples::encoded(sample);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, sample);
    QVERIFY(barcode.encode());
    QCOMPARE(barcode.lastResult(), 0);
    QCOMPARE(barcode.errorText(), QString());
    QCOMPARE(barcode.errorTextSize(), QSizeF(0, 0));
    QCOMPARE(barcode.symbolRows(), symbol.rows());
    QCOMPARE(barcode.symbolWidth(), symbol.width());
    QCOMPARE(patternOf(barcode).size(), symbol.darkModules());
}

void ZintWrapperTest::encodesAnewEachTime()
{
    ZintWrapper barcode;
    barcode.setSymbology(58);
    barcode.setData("1");
    QCOMPARE(barcode.symbolWidth(), 21);
    QCOMPARE(barcode.symbolRows(), 21);
    barcode.setQrVersion(2);
    QCOMPARE(barcode.symbolWidth(), 25);
    barcode.setQrVersion(3);
    QCOMPARE(barcode.symbolRows(), 29);
    barcode.setQrVersion(4);
    QVERIFY(barcode.fitToSize({33, 33}));
    QCOMPARE(barcode.moduleWidth(), 1.0);
    barcode.setQrVersion(5);
    QCOMPARE(barcode.naturalSize(), QSizeF(37, 37));
    QVERIFY(barcode.isReencoding());
}

void ZintWrapperTest::keepsTheSymbolWhenToldSo()
{
    ZintWrapper barcode;
    barcode.setSymbology(58);
    barcode.setData("1");
    barcode.setIsReencoding(false);
    QCOMPARE(barcode.symbolWidth(), 21); // there was none to keep
    barcode.setData("");
    barcode.setQrVersion(5);
    QVERIFY(barcode.encode());
    QCOMPARE(barcode.symbolWidth(), 21);
    QVERIFY(barcode.fitToSize({42, 42}));
    QCOMPARE(barcode.naturalSize(), QSizeF(42, 42));
    QVERIFY(barcodesamples::paintedBy(barcode, {0, 0, 42, 42}).size() > 100);

    barcode.setIsReencoding(true);
    QVERIFY(!barcode.encode());
    barcode.setIsReencoding(false);
    barcode.setData("1");
    QVERIFY(!barcode.encode()); // a failure is kept too
    QCOMPARE(barcode.lastResult(), 6);
    barcode.setIsReencoding(true);
    QCOMPARE(barcode.symbolWidth(), 37);
}

void ZintWrapperTest::failures_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("result");

    QTest::newRow("no data") << 20 << QByteArray() << 6;
    QTest::newRow("letters in EAN") << 13 << QByteArray("12345678901X") << 6;
    QTest::newRow("too long for EAN") << 13 << QByteArray("12345678901234") << 5;
    QTest::newRow("too long for Code 128") << 20 << QByteArray(200, 'A') << 5;
    QTest::newRow("too long for a rune") << 128 << QByteArray("1234") << 5;
    QTest::newRow("no such symbology") << 200 << QByteArray("A") << 2;
    QTest::newRow("Unicode in a code without it") << 20 << QByteArray("支付宝") << 6;
}

void ZintWrapperTest::failures()
{
    QFETCH(int, symbology);
    QFETCH(QByteArray, data);
    const EncodedSymbol symbol(symbology, data, {});
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setData(data);
    QVERIFY(!barcode.encode());
    QTEST(barcode.lastResult(), "result");
    QVERIFY(!symbol.error().isEmpty());
    QCOMPARE(barcode.errorText(), symbol.error());
    QCOMPARE(barcode.symbolRows(), 0);
    QCOMPARE(barcode.symbolWidth(), 0);
    QCOMPARE(barcode.naturalSize(), QSizeF(0, 0));
    QVERIFY(!barcode.fitToSize(Field));
}

void ZintWrapperTest::warningsAreFailures_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("result");

    QTest::newRow("level that is not there") << 55 << QByteArray("Cheque") << 2;
    QTest::newRow("wrong check digit in GS1") << 16 << QByteArray("[01]12345678901234") << 4;
}

// libzint makes a symbol, though with a doubt.
void ZintWrapperTest::warningsAreFailures()
{
    QFETCH(int, symbology);
    QFETCH(QByteArray, data);
    constexpr int level = 9;
    const EncodedSymbol symbol(symbology, data, {}, {level, 0, 0, 0, UNICODE_MODE});
    QVERIFY(symbol.rows() > 0 && symbol.width() > 0);
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setData(data);
    barcode.setPdf417Security(level);
    QVERIFY(!barcode.encode());
    QTEST(barcode.lastResult(), "result");
    QCOMPARE(barcode.errorText(), symbol.error());
    QCOMPARE(barcode.symbolRows(), 0);
    QCOMPARE(barcode.symbolWidth(), 0);
    QCOMPARE(barcode.naturalSize(), QSizeF(0, 0));
    QVERIFY(barcode.errorTextSize().width() > 0);
    QVERIFY(patternOf(barcode).isEmpty());
}

void ZintWrapperTest::failureLeavesTheSizes()
{
    ZintWrapper barcode;
    barcode.setModuleWidth(2.5);
    barcode.setBarHeight(40);
    QVERIFY(!barcode.fitToSize(Field));
    QCOMPARE(barcode.moduleWidth(), 2.5);
    QCOMPARE(barcode.barHeight(), 40.0);
}

void ZintWrapperTest::errorTextSize()
{
    ZintWrapper barcode;
    QVERIFY(!barcode.encode());
    const auto sizeIn = [&barcode](QFont font) {
        font.setPointSize(12);
        const QFontMetricsF metrics(font);
        return QSizeF(metrics.horizontalAdvance(barcode.errorText()), metrics.height());
    };
    QVERIFY(barcode.errorTextSize().width() > 100);
    QCOMPARE(barcode.errorTextSize(), sizeIn(QFont(QStringLiteral("Arial"))));
    // of the size in which it is drawn
    barcode.setErrorFont(fontOfSize("DejaVu Sans", 50));
    QCOMPARE(barcode.errorTextSize(), sizeIn(QFont(QStringLiteral("DejaVu Sans"))));
    barcode.setData("1");
    QVERIFY(barcode.encode());
    QCOMPARE(barcode.errorTextSize(), QSizeF(0, 0));
}

void ZintWrapperTest::messageOfTheLastEncoding()
{
    ZintWrapper barcode;
    QVERIFY(!barcode.encode());
    barcode.setData("1");
    QVERIFY(barcode.errorText().contains(QLatin1String("No input data"))); // nothing is encoded yet
    QVERIFY(barcode.encode());
    QCOMPARE(barcode.errorText(), QString());
}

void ZintWrapperTest::unicodeIsAnnounced_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QByteArray>("data");

    const QVector<int> symbologies{55, 56, 58, 71, 84, 92};
    for (const int symbology : symbologies) {
        QTest::addRow("%d, Chinese", symbology) << symbology << QByteArray("支付宝 12");
        QTest::addRow("%d, Latin", symbology) << symbology << QByteArray("Zürich");
        QTest::addRow("%d, the last byte", symbology) << symbology << QByteArray("12 €");
    }
}

void ZintWrapperTest::unicodeIsAnnounced()
{
    QFETCH(int, symbology);
    QFETCH(QByteArray, data);
    EncodedSymbol::Options announced;
    announced.option1 = symbology == 58 ? 1 : symbology == 71 ? -1 : 0;
    announced.eci = 26;
    const EncodedSymbol symbol(symbology, data, {}, announced);
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setData(data);
    QVERIFY(barcode.encode());
    QCOMPARE(barcode.lastResult(), 0);
    QCOMPARE(barcode.symbolWidth(), symbol.width());
    QCOMPARE(barcode.symbolRows(), symbol.rows());
    QCOMPARE(patternOf(barcode).size(), symbol.darkModules());
}

void ZintWrapperTest::unicodeIsNotAnnounced_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<int>("inputMode");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("result");

    QTest::newRow("ASCII in QR") << 58 << 1 << QByteArray("Cheque") << 0;
    QTest::newRow("ASCII in Data Matrix") << 71 << 1 << QByteArray("Cheque") << 0;
    QTest::newRow("bytes in QR") << 58 << 0 << QByteArray("Z\xfcrich") << 0;
    QTest::newRow("bytes in Data Matrix") << 71 << 0 << QByteArray("支付宝") << 0;
    QTest::newRow("Latin in Code 128") << 20 << 1 << QByteArray("Zürich") << 0;
}

void ZintWrapperTest::unicodeIsNotAnnounced()
{
    QFETCH(int, symbology);
    QFETCH(int, inputMode);
    QFETCH(QByteArray, data);
    EncodedSymbol::Options plain;
    plain.option1 = symbology == 58 ? 1 : -1;
    plain.inputMode = inputMode;
    const EncodedSymbol symbol(symbology, data, {}, plain);
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setInputMode(inputMode);
    barcode.setData(data);
    barcode.encode();
    QTEST(barcode.lastResult(), "result");
    QCOMPARE(patternOf(barcode).size(), symbol.darkModules());
}

void ZintWrapperTest::longPrimary()
{
    const QString tooLong = QStringLiteral("error: Linear Component Too Long!");
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-13 composite"));
    barcode.setPrimary(QByteArray(127, '1'));
    QVERIFY(!barcode.encode());
    QVERIFY(barcode.errorText() != tooLong); // it is libzint that does not like it
    for (const int length : {128, 129, 1000, 1000000}) {
        barcode.setPrimary(QByteArray(length, '1'));
        QVERIFY(!barcode.encode());
        QCOMPARE(barcode.lastResult(), 5);
        QCOMPARE(barcode.errorText(), tooLong);
        QVERIFY(!barcode.fitToSize(Field));
        QVERIFY(patternOf(barcode).isEmpty());
    }
    // Without any use for it too: nothing is cut off in silence.
    barcode.setSymbology(58);
    QVERIFY(!barcode.encode());
    QCOMPARE(barcode.errorText(), tooLong);
    barcode.setPrimary("1");
    QVERIFY(barcode.encode());
}

void ZintWrapperTest::primaryEndsAtNul()
{
    const Sample &sample = barcodesamples::named("EAN-13 composite");
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, sample);
    barcode.setPrimary(QByteArray("123456789012\0rest", 17));
    QVERIFY(barcode.encode());
    QCOMPARE(patternOf(barcode), patternOf(sample));
}

void ZintWrapperTest::bytesOfSomebodyElse()
{
    const QByteArray page("123456789012 and on");
    ZintWrapper barcode;
    barcode.setSymbology(13);
    barcode.setData(QByteArray::fromRawData(page.constData(), 12));
    QCOMPARE(patternOf(barcode), patternOf(barcodesamples::named("EAN-13")));

    const Sample &composite = barcodesamples::named("EAN-13 composite");
    barcodesamples::apply(&barcode, composite);
    barcode.setPrimary(QByteArray::fromRawData(page.constData(), 12));
    QCOMPARE(patternOf(barcode), patternOf(composite));

    barcode.setSymbology(20);
    barcode.setData(QByteArray::fromRawData(page.constData(), 0));
    QVERIFY(!barcode.encode());
    QCOMPARE(barcode.errorText(), QStringLiteral("Error 778: No input data"));
}

QTEST_MAIN(ZintWrapperTest)
#include "tst_zintwrapper.moc"
