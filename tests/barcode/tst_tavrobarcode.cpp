// SPDX-License-Identifier: MIT
// Settings of a barcode object, and how its rectangle follows the symbology.
#include "tests/barcode/barcodeprobes.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QTest>
#include <limits>

using barcodeprobes::around;
using barcodeprobes::inWords;
using barcodeprobes::isSame;
using barcodeprobes::modulesOf;
using barcodeprobes::symbolOf;
using barcodeprobes::textHeight;

namespace {

using B = TavroBarcode;

constexpr bool Marks = true;
constexpr bool DoesNotMark = false;

constexpr int Ean13 = -2;
constexpr int Ean8 = -1;
constexpr int Code128 = 20;
constexpr int MaxiCode = 57;
constexpr int QrCode = 58;
constexpr int DataMatrix = 71;

const QVector<int> AllHandles{0, 1, 2, 3, 4, 5, 6, 7};
const QVector<int> Corners{0, 2, 4, 6};

template <typename Value, typename Getter, typename Setter>
Setting<B> of(const char *name, Getter get, Setter set, const Value &initial, const Value &written, bool marks)
{
    return setting<B>(name, get, set, initial, written, marks);
}

QVector<Setting<B>> settings()
{
    const QString text = QStringLiteral("Barcode");
    return {
        of<int>("symbology", &B::symbology, &B::setSymbology, QrCode, Code128, Marks),
        of<bool>("readable text", &B::hasReadableTxt, &B::setHasReadableTxt, true, false, Marks),
        of<int>("QR version", &B::QRcodeVersion, &B::setQRcodeVersion, 0, 7, Marks),
        of<int>("QR error correction", &B::QRcodeErrCorrection, &B::setQRcodeErrCorrection, 1, 4, Marks),
        of<bool>("keep at centre", &B::isKeepAtCenter, &B::setIsKeepAtCenter, true, false, Marks),
        of<bool>("keep region size", &B::isKeepRegionSz, &B::setIsKeepRegionSz, true, false, DoesNotMark),
        of<QVariant>("content", &B::contentData, &B::setContentData, text, QStringLiteral("42"), DoesNotMark),
        of<QVariant>("preset", &B::presetData, &B::setPresetData, text, QStringLiteral("43"), Marks),
    };
}

const QRectF Place(100, 200, 50, 30);

} // namespace

class TestTavroBarcode : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void settingsAreStored_data() { addSettingRows(settings()); }
    void settingsAreStored();
    void settingsStayApart();
    void symbologyNumbers_data();
    void symbologyNumbers();
    void eanReadsBackAsItsVariant();
    void sizeOfASymbology_data();
    void sizeOfASymbology();
    void versionsOfQr_data();
    void versionsOfQr();
    void qrIsProportional_data();
    void qrIsProportional();
    void readableTextOnPaper_data();
    void readableTextOnPaper();
    void textWiderThanTheBars();
    void metaObject();
};

void TestTavroBarcode::construction()
{
    B barcode;
    QCOMPARE(barcode.objType(), Obj_Barcode);
    QVERIFY(barcode.isModified());
    QVERIFY(barcode.isProportional());
    QCOMPARE(barcode.paintMode(), Paint_Design);
    QCOMPARE(barcode.parentItem(), nullptr);
    // The symbol of 21 modules, 3 px each, stood around the origin before it was made smaller from its corner.
    QCOMPARE(barcode.boundingRect(), QRectF(-31.5, -31.5, 10, 10));
    const QVector<QRectF> modules = modulesOf(barcode);
    QVERIFY(!modules.isEmpty());
    QVERIFY2(isSame(symbolOf(barcode), barcode.boundingRect()), inWords(symbolOf(barcode)));
    QVERIFY(isSame(modules.first().width(), 10.0 / 21));
    QGraphicsRectItem parent;
    const B child(&parent);
    QCOMPARE(child.parentItem(), &parent);
}

void TestTavroBarcode::settingsAreStored()
{
    QFETCH(int, index);
    checkSetting(settings().at(index));
}

void TestTavroBarcode::settingsStayApart()
{
    const QVector<Setting<B>> table = settings();
    for (const Setting<B> &written : table) {
        B barcode;
        written.write(barcode);
        for (const Setting<B> &other : table) {
            const bool presetIsContent = qstrcmp(written.name, "preset") == 0 && qstrcmp(other.name, "content") == 0;
            if (other.name == written.name || presetIsContent)
                continue;
            QVERIFY2(other.isInitial(barcode), QByteArray(written.name) + " changed " + other.name);
        }
    }
}

void TestTavroBarcode::symbologyNumbers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("columns"); // of the symbol, 0 where none is drawn
    QTest::newRow("EAN-13") << -2 << -2 << QStringLiteral("690123456789") << 95;
    QTest::newRow("EAN-8") << -1 << -1 << QStringLiteral("6901234") << 67;
    QTest::newRow("EAN as libzint numbers it") << 13 << -2 << QStringLiteral("690123456789") << 95;
    QTest::newRow("QR Code") << 58 << 58 << QStringLiteral("42") << 21;
    QTest::newRow("Code 128") << 20 << 20 << QStringLiteral("42") << 46;
    QTest::newRow("not drawn") << MaxiCode << MaxiCode << QStringLiteral("42") << 0;
    QTest::newRow("zero") << 0 << 0 << QStringLiteral("42") << 0;
    QTest::newRow("next to the numbers of EAN") << -3 << -3 << QStringLiteral("690123456789") << 0;
    QTest::newRow("beyond libzint") << 9999 << 9999 << QStringLiteral("42") << 0;
    QTest::newRow("least") << std::numeric_limits<int>::min() << std::numeric_limits<int>::min() << QStringLiteral("42")
                           << 0;
    QTest::newRow("most") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max() << QStringLiteral("42")
                          << 0;
}

void TestTavroBarcode::symbologyNumbers()
{
    QFETCH(int, number);
    QFETCH(int, answer);
    QFETCH(QString, content);
    QFETCH(int, columns);
    B barcode;
    barcode.setContentData(content);
    barcode.setSymbology(number);
    QCOMPARE(barcode.symbology(), answer);
    QVERIFY(isSame(symbolOf(barcode).width(), 3 * columns));
}

void TestTavroBarcode::eanReadsBackAsItsVariant()
{
    B barcode;
    barcode.setSymbology(Ean8);
    barcode.setSymbology(QrCode);
    QCOMPARE(barcode.symbology(), QrCode);
    barcode.setSymbology(13);
    QCOMPARE(barcode.symbology(), Ean8);
    barcode.setSymbology(Ean13);
    barcode.setSymbology(QrCode);
    QCOMPARE(barcode.symbology(), QrCode);
    barcode.setSymbology(13);
    QCOMPARE(barcode.symbology(), Ean13);
}

void TestTavroBarcode::sizeOfASymbology_data()
{
    const double band = textHeight();
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("hasText");
    QTest::addColumn<QSizeF>("size");
    const QString text = QStringLiteral("Barcode");
    QTest::newRow("QR Code") << QrCode << text << true << QSizeF(63, 63);
    QTest::newRow("Data Matrix") << DataMatrix << text << true << QSizeF(42, 42);
    QTest::newRow("Code 128") << Code128 << text << true << QSizeF(336, 80 + band);
    QTest::newRow("Code 128 without text") << Code128 << text << false << QSizeF(336, 80);
    QTest::newRow("EAN-13") << Ean13 << QStringLiteral("690123456789") << true << QSizeF(345, 80 + band);
    QTest::newRow("EAN-8") << Ean8 << QStringLiteral("6901234") << true << QSizeF(261, 80 + band);
    QTest::newRow("EAN-8, guards reach below without text too")
        << Ean8 << QStringLiteral("6901234") << false << QSizeF(261, 80 + band);
    QTest::newRow("UPC-A") << 34 << QStringLiteral("01234567890") << true << QSizeF(345, 80 + band);
    QTest::newRow("UPC-E") << 37 << QStringLiteral("0123456") << true << QSizeF(213, 80 + band);
    QTest::newRow("DataBar stacked") << 79 << QStringLiteral("1234567890123") << true << QSizeF(150, 163);
    QTest::newRow("PDF417, seven rows") << 55 << text << true << QSizeF(258, 63);
}

void TestTavroBarcode::sizeOfASymbology()
{
    QFETCH(int, symbology);
    QFETCH(QString, content);
    QFETCH(bool, hasText);
    QFETCH(QSizeF, size);
    for (const bool atCenter : {true, false}) {
        B barcode;
        barcode.setIsKeepAtCenter(atCenter);
        barcode.setHasReadableTxt(hasText);
        barcode.setContentData(content);
        barcode.setBoundingRect(Place);
        barcode.setSymbology(symbology);
        const QRectF expected = atCenter ? around(Place.center(), size) : QRectF(Place.topLeft(), size);
        QVERIFY2(isSame(barcode.boundingRect(), expected), inWords(barcode.boundingRect()));
    }
}

void TestTavroBarcode::versionsOfQr_data()
{
    QTest::addColumn<int>("version");
    for (const int version : {1, 2, 7, 25, 40})
        QTest::addRow("version %d", version) << version;
}

void TestTavroBarcode::versionsOfQr()
{
    QFETCH(int, version);
    B barcode;
    barcode.setBoundingRect(QRectF(0, 0, 63, 63));
    barcode.setQRcodeVersion(version);
    QCOMPARE(barcode.boundingRect(), QRectF(0, 0, 63, 63));
    // The module is the one that was fitted, until the host asks for another.
    const double columns = 17 + 4 * version;
    QVERIFY(isSame(symbolOf(barcode).width(), 3 * columns));
    barcode.syncBarcodeRect(false);
    QVERIFY(isSame(symbolOf(barcode), QRectF(0, 0, 63, 63)));
    barcode.syncBarcodeRect(true);
    QVERIFY2(isSame(barcode.boundingRect(), around({31.5, 31.5}, {3 * columns, 3 * columns})),
             inWords(barcode.boundingRect()));
}

void TestTavroBarcode::qrIsProportional_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QVector<int>>("handles");
    QTest::newRow("QR Code") << QrCode << Corners;
    QTest::newRow("Data Matrix") << DataMatrix << AllHandles;
    QTest::newRow("Code 128") << Code128 << AllHandles;
    QTest::newRow("EAN-13") << Ean13 << AllHandles;
    QTest::newRow("QR Code of health care") << 104 << AllHandles;
    QTest::newRow("Micro QR") << 97 << AllHandles;
}

void TestTavroBarcode::qrIsProportional()
{
    QFETCH(int, symbology);
    QFETCH(QVector<int>, handles);
    QGraphicsScene scene;
    auto *barcode = new B;
    scene.addItem(barcode);
    QCOMPARE(probes::visibleHandles(*barcode), QVector<int>());
    barcode->setSelected(true);
    QCOMPARE(probes::visibleHandles(*barcode), Corners);
    barcode->setSymbology(Code128);
    QCOMPARE(probes::visibleHandles(*barcode), AllHandles);
    barcode->setSymbology(symbology);
    QCOMPARE(probes::visibleHandles(*barcode), handles);
    QCOMPARE(barcode->isProportional(), handles == Corners);
    // The symbology decides, not what is set.
    barcode->setProportional(handles != Corners);
    QCOMPARE(barcode->isProportional(), handles == Corners);
}

void TestTavroBarcode::readableTextOnPaper_data()
{
    QTest::addColumn<double>("physicalWidth"); // of 336 px, mm
    QTest::addColumn<int>("pixels");
    QTest::newRow("5 px to the millimetre") << 67.2 << 15;
    QTest::newRow("8 px to the millimetre") << 42.0 << 25;
    QTest::newRow("10 px to the millimetre") << 33.6 << 31;
    QTest::newRow("no physical size") << 0.0 << 1;
}

void TestTavroBarcode::readableTextOnPaper()
{
    QFETCH(double, physicalWidth);
    QFETCH(int, pixels);
    B barcode;
    barcode.setSymbology(Code128);
    barcode.setBoundingRect(QRectF(0, 0, 336, 100));
    barcode.setPhyBoundingRectWidth(physicalWidth);
    QCOMPARE(barcodeprobes::textsOf(barcode).first().font.pixelSize(), 15);
    barcode.setIsModified(false);
    barcode.syncReadableTextPixSz();
    QVERIFY(!barcode.isModified());
    QCOMPARE(barcodeprobes::textsOf(barcode).first().font.pixelSize(), pixels);
    QCOMPARE(barcodeprobes::textsOf(barcode).first().font.family(), QStringLiteral("Arial"));
    // The bars give way to the text.
    QCOMPARE(barcode.boundingRect(), QRectF(0, 0, 336, 100));
    QVERIFY(isSame(symbolOf(barcode).height(), (100 - textHeight(pixels))));
}

// The modules widen until the text stands below the bars, and the rectangle with them.
void TestTavroBarcode::textWiderThanTheBars()
{
    B barcode;
    barcode.setSymbology(Code128);
    barcode.setBoundingRect(QRectF(0, 0, 336, 100));
    barcode.setPhyBoundingRectWidth(5.334);
    barcode.syncReadableTextPixSz();
    const QFont font = barcodeprobes::textsOf(barcode).first().font;
    QCOMPARE(font.pixelSize(), 200);
    const double text = QFontMetricsF(font).horizontalAdvance(QStringLiteral("Barcode"));
    QVERIFY(text > 336);
    barcode.syncBarcodeRect(true);
    QVERIFY(isSame(barcode.width(), text));
    QVERIFY(isSame(symbolOf(barcode).width(), text));
}

void TestTavroBarcode::metaObject()
{
    const QMetaObject &meta = B::staticMetaObject;
    QCOMPARE(meta.superClass(), &TavroPrototype::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

QTEST_MAIN(TestTavroBarcode)
#include "tst_tavrobarcode.moc"
