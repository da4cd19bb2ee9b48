// SPDX-License-Identifier: MIT
// Contents, numbers and rectangles that no form should hold: there is a symbol or a message, and nothing else happens.
#include "tests/barcode/barcodeprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <cmath>
#include <limits>

using barcodeprobes::modulesOf;
using barcodeprobes::wordsOf;

namespace {

using B = TavroBarcode;

constexpr int Ean13 = -2;
constexpr int Ean8 = -1;
constexpr int MaxiCode = 57;

// One of each family that is drawn from a content alone, and two that are not drawn.
const QVector<int> Symbologies{Ean13, Ean8, 20, 34, 37, 55, MaxiCode, 58, 71, 79, 81, 92, 130, 137, 0};

void paintInAllModes(B &barcode)
{
    QImage image(64, 64, QImage::Format_RGB32);
    QPainter painter(&image);
    const QStyleOptionGraphicsItem option;
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        barcode.setPaintMode(mode);
        barcode.paint(&painter, &option, nullptr);
    }
}

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height());
}

} // namespace

class TestBarcodeHostile : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contents_data();
    void contents();
    void symbologies();
    void versions_data();
    void versions();
    void rectangles_data();
    void rectangles();
};

void TestBarcodeHostile::contents_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("empty") << QVariant(QString());
    QTest::newRow("of no text") << QVariant(QVariantList{1, 2});
    QTest::newRow("rectangle") << QVariant(QRectF(1, 2, 3, 4));
    QTest::newRow("NUL") << QVariant(QByteArray("\0", 1));
    QTest::newRow("NUL between digits") << QVariant(QByteArray("690123\0 56789", 13));
    QTest::newRow("control characters") << QVariant(QStringLiteral("\t\r\n\x1b\x7f"));
    QTest::newRow("no UTF-8") << QVariant(QByteArray("\xff\xfe\xc3\x28"));
    QTest::newRow("half of a pair") << QVariant(QString(QChar(0xD83D)));
    QTest::newRow("emoji") << QVariant(QStringLiteral("🧾🧾"));
    QTest::newRow("digits") << QVariant(QStringLiteral("690123456789"));
    QTest::newRow("127 characters") << QVariant(QString(127, QLatin1Char('8')));
    QTest::newRow("128 characters") << QVariant(QString(128, QLatin1Char('8')));
    QTest::newRow("more than a symbol holds") << QVariant(QString(20000, QLatin1Char('8')));
    QTest::newRow("a megabyte") << QVariant(QByteArray(1 << 20, 'x'));
    QTest::newRow("brackets") << QVariant(QStringLiteral("[01]12345678901231[[10]"));
    QTest::newRow("add-ons") << QVariant(QStringLiteral("690123456789+12345+1"));
    QTest::newRow("backslashes") << QVariant(QStringLiteral("\\d\\x00\\G"));
}

void TestBarcodeHostile::contents()
{
    QFETCH(QVariant, content);
    for (const int symbology : Symbologies) {
        for (const bool keepsRegion : {true, false}) {
            B barcode;
            barcode.setSymbology(symbology);
            barcode.setBoundingRect(QRectF(10, 20, 100, 50));
            barcode.setIsKeepRegionSz(keepsRegion);
            barcode.setContentData(content);
            QCOMPARE(barcode.contentData(), content);
            QVERIFY(isFinite(barcode.boundingRect()));
            if (keepsRegion)
                QCOMPARE(barcode.boundingRect(), QRectF(10, 20, 100, 50));
            barcode.setBoundingRect(QRectF(10, 20, 100, 50));
            if (symbology != MaxiCode)
                QVERIFY(!modulesOf(barcode).isEmpty() || !wordsOf(barcode).isEmpty());
            else
                QVERIFY(modulesOf(barcode).isEmpty());
            paintInAllModes(barcode);
        }
    }
}

void TestBarcodeHostile::symbologies()
{
    for (int symbology = -3; symbology <= 150; ++symbology) {
        B barcode;
        barcode.setContentData(QStringLiteral("690123456789"));
        barcode.setSymbology(symbology);
        QVERIFY(isFinite(barcode.boundingRect()));
        barcode.setBoundingRect(QRectF(10, 20, 60, 40));
        barcode.resize(Handle_TopLeft, QPointF(0, 0));
        QVERIFY(isFinite(barcode.boundingRect()));
        paintInAllModes(barcode);
    }
}

void TestBarcodeHostile::versions_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("level");
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QTest::newRow("negative version") << -1 << 1;
    QTest::newRow("version 41") << 41 << 1;
    QTest::newRow("level 0") << 0 << 0;
    QTest::newRow("level 5") << 0 << 5;
    QTest::newRow("negative level") << 0 << -1;
    QTest::newRow("least") << least << least;
    QTest::newRow("most") << most << most;
}

void TestBarcodeHostile::versions()
{
    QFETCH(int, version);
    QFETCH(int, level);
    B barcode;
    barcode.setBoundingRect(QRectF(10, 20, 60, 60));
    barcode.setQRcodeVersion(version);
    barcode.setQRcodeErrCorrection(level);
    QCOMPARE(barcode.QRcodeVersion(), version);
    QCOMPARE(barcode.QRcodeErrCorrection(), level);
    barcode.setContentData(QStringLiteral("4711"));
    // The smallest symbol that holds the content.
    QVERIFY2(barcodeprobes::isSame(barcodeprobes::symbolOf(barcode), barcode.boundingRect()),
             barcodeprobes::inWords(barcodeprobes::symbolOf(barcode)));
    QVERIFY(barcodeprobes::isSame(modulesOf(barcode).first().width(), 60.0 / 21));
    paintInAllModes(barcode);
}

void TestBarcodeHostile::rectangles_data()
{
    QTest::addColumn<QRectF>("rect");
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("nothing") << QRectF();
    QTest::newRow("no width") << QRectF(10, 20, 0, 30);
    QTest::newRow("no height") << QRectF(10, 20, 30, 0);
    QTest::newRow("less than a pixel") << QRectF(10, 20, 1e-9, 1e-9);
    QTest::newRow("negative") << QRectF(10, 20, -30, -30);
    QTest::newRow("large") << QRectF(-1e6, -1e6, 2e6, 2e6);
    QTest::newRow("huge") << QRectF(0, 0, 1e300, 1e300);
    QTest::newRow("infinite") << QRectF(0, 0, infinite, infinite);
    QTest::newRow("no numbers") << QRectF(none, none, none, none);
    QTest::newRow("no width that is a number") << QRectF(10, 20, none, 30);
}

void TestBarcodeHostile::rectangles()
{
    QFETCH(QRectF, rect);
    for (const int symbology : Symbologies) {
        for (const bool hasText : {true, false}) {
            B barcode;
            barcode.setContentData(symbology == Ean8 ? QStringLiteral("6901234") : QStringLiteral("690123456789"));
            barcode.setHasReadableTxt(hasText);
            barcode.setSymbology(symbology);
            barcode.setBoundingRect(rect);
            barcode.setPhyBoundingRectWidth(10);
            paintInAllModes(barcode);
            barcode.syncReadableTextPixSz();
            paintInAllModes(barcode);
            // A sound rectangle makes the object sound again.
            barcode.syncReadableTextPixSz();
            barcode.setBoundingRect(QRectF(10, 20, 100, 50));
            barcode.resize(Handle_BottomRight, QPointF(60, 60));
            QVERIFY(isFinite(barcode.boundingRect()));
        }
    }
}

QTEST_MAIN(TestBarcodeHostile)
#include "tst_barcodehostile.moc"
