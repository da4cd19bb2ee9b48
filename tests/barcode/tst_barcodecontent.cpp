// SPDX-License-Identifier: MIT
// Contents of a barcode object, and how rectangle and symbol follow them.
#include "tests/barcode/barcodeprobes.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>

using barcodeprobes::around;
using barcodeprobes::inWords;
using barcodeprobes::isSame;
using barcodeprobes::modulesOf;
using barcodeprobes::symbolOf;
using barcodeprobes::textHeight;
using barcodeprobes::wordsOf;

namespace {

using B = TavroBarcode;

constexpr int Ean13 = -2;
constexpr int Code128 = 20;
constexpr int MaxiCode = 57;

} // namespace

class TestBarcodeContent : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contentKeepsTheRegion();
    void contentTakesTheSize_data();
    void contentTakesTheSize();
    void unencodableShrinksToNothing_data();
    void unencodableShrinksToNothing();
    void unencodableComesBack();
    void contentsBecomeBytes_data();
    void contentsBecomeBytes();
    void presetIsTheContent();
    void renew_data();
    void renew();
    void announcements();
    void derivedKindsTakePart();
};

void TestBarcodeContent::contentKeepsTheRegion()
{
    B barcode;
    barcode.setBoundingRect(QRectF(10, 20, 63, 63));
    QVERIFY(isSame(modulesOf(barcode).first().width(), 3));
    barcode.setContentData(QString(40, QLatin1Char('x')));
    QCOMPARE(barcode.boundingRect(), QRectF(10, 20, 63, 63));
    QVERIFY(isSame(modulesOf(barcode).first().width(), 63.0 / 29));
    QVERIFY(isSame(symbolOf(barcode), QRectF(10, 20, 63, 63)));
}

void TestBarcodeContent::contentTakesTheSize_data()
{
    QTest::addColumn<bool>("atCenter");
    QTest::addColumn<QRectF>("first");
    QTest::addColumn<QRectF>("longer");
    QTest::newRow("centre") << true << QRectF(10, 20, 42, 42) << QRectF(2, 12, 58, 58);
    QTest::newRow("top left corner") << false << QRectF(10, 20, 42, 42) << QRectF(10, 20, 58, 58);
}

void TestBarcodeContent::contentTakesTheSize()
{
    QFETCH(bool, atCenter);
    QFETCH(QRectF, first);
    QFETCH(QRectF, longer);
    B barcode;
    barcode.setIsKeepRegionSz(false);
    barcode.setIsKeepAtCenter(atCenter);
    barcode.setBoundingRect(first);
    // Modules of 2 px stay.
    barcode.setContentData(QString(40, QLatin1Char('x')));
    QVERIFY2(isSame(barcode.boundingRect(), longer), inWords(barcode.boundingRect()));
    QVERIFY(isSame(symbolOf(barcode), longer));
    barcode.setContentData(QStringLiteral("42"));
    QVERIFY2(isSame(barcode.boundingRect(), first), inWords(barcode.boundingRect()));
}

void TestBarcodeContent::unencodableShrinksToNothing_data()
{
    QTest::addColumn<bool>("atCenter");
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("letters in EAN-13, centre") << true << Ean13 << QRectF(125, 215, 0, 0);
    QTest::newRow("letters in EAN-13, top left corner") << false << Ean13 << QRectF(100, 200, 0, 0);
    QTest::newRow("not drawn, centre") << true << MaxiCode << QRectF(125, 215, 0, 0);
    QTest::newRow("not drawn, top left corner") << false << MaxiCode << QRectF(100, 200, 0, 0);
}

void TestBarcodeContent::unencodableShrinksToNothing()
{
    QFETCH(bool, atCenter);
    QFETCH(int, symbology);
    QFETCH(QRectF, rect);
    B barcode;
    barcode.setIsKeepAtCenter(atCenter);
    barcode.setBoundingRect(QRectF(100, 200, 50, 30));
    barcode.setSymbology(symbology);
    QCOMPARE(barcode.boundingRect(), rect);
    QVERIFY(probes::paintedBy(barcode).isEmpty());
}

void TestBarcodeContent::unencodableComesBack()
{
    B barcode;
    barcode.setIsKeepRegionSz(false);
    barcode.setBoundingRect(QRectF(10, 20, 42, 42));
    barcode.setContentData(QString());
    QCOMPARE(barcode.boundingRect(), QRectF(31, 41, 0, 0));
    barcode.setContentData(QStringLiteral("42"));
    QVERIFY2(isSame(barcode.boundingRect(), QRectF(10, 20, 42, 42)), inWords(barcode.boundingRect()));
    // With the region kept there is none to come back to, until the size is set again.
    barcode.setContentData(QStringLiteral("no digits"));
    barcode.setSymbology(Ean13);
    barcode.setIsKeepRegionSz(true);
    barcode.setContentData(QStringLiteral("690123456789"));
    QCOMPARE(barcode.boundingRect(), QRectF(31, 41, 0, 0));
    barcode.syncBarcodeRect(true);
    QVERIFY2(isSame(barcode.boundingRect(), around({31, 41}, {345, 80 + textHeight()})),
             inWords(barcode.boundingRect()));
}

void TestBarcodeContent::contentsBecomeBytes_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral("Tavro")) << QStringLiteral("Tavro");
    QTest::newRow("bytes") << QVariant(QByteArrayLiteral("Tavro")) << QStringLiteral("Tavro");
    QTest::newRow("whole number") << QVariant(4711) << QStringLiteral("4711");
    QTest::newRow("number") << QVariant(12.5) << QStringLiteral("12.5");
    QTest::newRow("yes") << QVariant(true) << QStringLiteral("true");
    QTest::newRow("Latin beyond ASCII") << QVariant(QStringLiteral("é")) << QStringLiteral("é");
}

void TestBarcodeContent::contentsBecomeBytes()
{
    QFETCH(QVariant, content);
    QFETCH(QString, text);
    B barcode;
    barcode.setSymbology(Code128);
    barcode.setContentData(content);
    QCOMPARE(wordsOf(barcode), QStringList(text));
}

void TestBarcodeContent::presetIsTheContent()
{
    B barcode;
    QSignalSpy changed(&barcode, &B::contentDataChanged);
    barcode.setPresetData(QStringLiteral("4711"));
    QCOMPARE(barcode.presetData(), QVariant(QStringLiteral("4711")));
    QCOMPARE(barcode.contentData(), QVariant(QStringLiteral("4711")));
    QCOMPARE(changed.count(), 1);
    barcode.setSymbology(Code128);
    QCOMPARE(wordsOf(barcode), QStringList(QStringLiteral("4711")));
}

void TestBarcodeContent::renew_data()
{
    QTest::addColumn<bool>("reset");
    QTest::addColumn<QString>("text");
    QTest::newRow("takes the preset") << true << QStringLiteral("4711");
    QTest::newRow("keeps the content") << false << QStringLiteral("0815");
}

void TestBarcodeContent::renew()
{
    QFETCH(bool, reset);
    QFETCH(QString, text);
    B barcode;
    barcode.setSymbology(Code128);
    barcode.setPresetData(QStringLiteral("4711"));
    barcode.setContentData(QStringLiteral("0815"));
    QCOMPARE(barcode.presetData(), QVariant(QStringLiteral("4711")));
    barcode.setIsResetAtRenew(reset);
    barcode.renew();
    QCOMPARE(barcode.contentData(), QVariant(text));
    QCOMPARE(wordsOf(barcode), QStringList(text));
}

void TestBarcodeContent::announcements()
{
    B barcode;
    QSignalSpy content(&barcode, &B::contentDataChanged);
    QSignalSpy rect(&barcode, &B::boundingRectChanged);
    barcode.setContentData(QStringLiteral("0815"));
    QCOMPARE(content.count(), 1);
    QCOMPARE(rect.count(), 0);
    barcode.setIsKeepRegionSz(false);
    barcode.setContentData(QStringLiteral("0815"));
    QCOMPARE(content.count(), 2);
    QCOMPARE(rect.count(), 1);
    barcode.setSymbology(Code128);
    QCOMPARE(content.count(), 2);
    QCOMPARE(rect.count(), 2);
}

// A host's own kind of barcode sees every content and every rectangle.
void TestBarcodeContent::derivedKindsTakePart()
{
    class Derived : public TavroBarcode
    {
    public:
        void setContentData(const QVariant &content) override
        {
            ++contents;
            TavroBarcode::setContentData(content);
        }
        void setBoundingRect(const QRectF &rect) override
        {
            ++rects;
            TavroBarcode::setBoundingRect(rect);
        }
        int contents = 0;
        int rects = 0;
    };
    Derived barcode;
    barcode.setPresetData(QStringLiteral("1"));
    QCOMPARE(barcode.contents, 1);
    barcode.renew();
    QCOMPARE(barcode.contents, 2);
    QCOMPARE(barcode.rects, 0);
    barcode.setSymbology(20);
    QCOMPARE(barcode.rects, 1);
    barcode.setIsKeepRegionSz(false);
    barcode.setContentData(QStringLiteral("12345678"));
    QCOMPARE(barcode.rects, 2);
    barcode.resize(Handle_Right, {500, 0});
    QCOMPARE(barcode.rects, 3);
}

QTEST_MAIN(TestBarcodeContent)
#include "tst_barcodecontent.moc"
