// SPDX-License-Identifier: MIT
// How often libzint is asked to encode. The linker sends the calls through here.
#include "barcode/tavrobarcode.h"
#include "barcode/zintwrapper.h"
#include "tests/barcode/encodedsymbol.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QImage>
#include <QTest>
#include <functional>

namespace {

int encodings = 0;

} // namespace

extern "C" {
int __real_ZBarcode_Encode(zint_symbol *symbol, const unsigned char *source, int length);
int __wrap_ZBarcode_Encode(zint_symbol *symbol, const unsigned char *source, int length);
}

int __wrap_ZBarcode_Encode(zint_symbol *symbol, const unsigned char *source, int length)
{
    ++encodings;
    return __real_ZBarcode_Encode(symbol, source, length);
}

namespace {

constexpr int FormBarcodes = 100;
constexpr QSize Page(1000, 1000);

int encodingsOf(const std::function<void()> &operation)
{
    const int before = encodings;
    operation();
    return encodings - before;
}

struct Operation
{
    const char *name;
    std::function<void(ZintWrapper &)> run;
};

const QVector<Operation> &questions()
{
    static const QVector<Operation> all{
        {"encode", [](ZintWrapper &barcode) { barcode.encode(); }},
        {"rows", [](ZintWrapper &barcode) { barcode.symbolRows(); }},
        {"width", [](ZintWrapper &barcode) { barcode.symbolWidth(); }},
        {"fit",
         [](ZintWrapper &barcode) {
             barcode.fitToSize({200, 100});
         }},
        {"natural size", [](ZintWrapper &barcode) { barcode.naturalSize(); }},
        {"paint",
         [](ZintWrapper &barcode) {
             QImage image(50, 50, QImage::Format_RGB32);
             QPainter painter(&image);
             barcode.paint(&painter, {0, 0, 50, 50});
         }},
    };
    return all;
}

// As many barcodes as a page of labels has, each with a content of its own.
class LabelPage
{
public:
    explicit LabelPage(Paint_Mode mode)
    {
        m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        for (int i = 0; i < FormBarcodes; ++i) {
            auto *barcode = new TavroBarcode;
            barcode->setSymbology(i % 2 == 0 ? 58 : 20);
            barcode->setBoundingRect({i % 10 * 100.0, i / 10 * 100.0, 90, 90});
            barcode->setContentData(QString::number(4200 + i));
            barcode->setPaintMode(mode);
            m_scene.addItem(barcode);
            m_barcodes.append(barcode);
        }
        QCoreApplication::processEvents();
    }

    const QVector<TavroBarcode *> &barcodes() const { return m_barcodes; }
    void render()
    {
        QImage image(Page, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        m_scene.render(&painter, QRectF({0, 0}, Page), QRectF({0, 0}, Page));
        m_darkCorner = qGray(image.pixel(1, 1)) == 0;
    }
    bool isPainted() const { return m_darkCorner; }

private:
    QGraphicsScene m_scene;
    QVector<TavroBarcode *> m_barcodes;
    bool m_darkCorner = false;
};

} // namespace

/// Encodings that each operation costs.
class BarcodeEncodingsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void onePerQuestion_data();
    void onePerQuestion();
    void noneForWhatIsKnown();
    void noneForALongPrimary();
    void contentIsEncodedOnce();
    void pageOnTheScreen_data();
    void pageOnTheScreen();
    void pageOnPaper();
    void newContentsOfAPage();
};

void BarcodeEncodingsTest::onePerQuestion_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("data");

    for (int i = 0; i < questions().size(); ++i) {
        QTest::addRow("%s", questions().at(i).name) << i << QByteArray("Cheque");
        QTest::addRow("%s, nothing to encode", questions().at(i).name) << i << QByteArray();
    }
}

void BarcodeEncodingsTest::onePerQuestion()
{
    QFETCH(int, index);
    QFETCH(QByteArray, data);
    for (const int symbology : {20, 13, 34, 55, 58, 79, 57, 130}) {
        ZintWrapper barcode;
        barcode.setSymbology(symbology);
        barcode.setData(data);
        const auto ask = [&barcode, index] { questions().at(index).run(barcode); };
        QCOMPARE(encodingsOf(ask), 1);
        QCOMPARE(encodingsOf(ask), 1);
        barcode.setIsReencoding(false);
        QCOMPARE(encodingsOf(ask), 0);
    }
}

void BarcodeEncodingsTest::noneForWhatIsKnown()
{
    ZintWrapper barcode;
    const int count = encodingsOf([&barcode] {
        barcode.setSymbology(58);
        barcode.setData("Cheque");
        barcode.setQrVersion(3);
        barcode.setIsShowText(false);
        barcode.errorText();
        barcode.errorTextSize();
        barcode.lastResult();
        barcode.moduleWidth();
    });
    QCOMPARE(count, 0);
}

void BarcodeEncodingsTest::noneForALongPrimary()
{
    ZintWrapper barcode;
    barcode.setData("Cheque");
    barcode.setPrimary(QByteArray(128, '1'));
    QCOMPARE(encodingsOf([&barcode] { barcode.encode(); }), 0);
    barcode.setPrimary(QByteArray(127, '1'));
    QCOMPARE(encodingsOf([&barcode] { barcode.encode(); }), 1);
}

void BarcodeEncodingsTest::contentIsEncodedOnce()
{
    TavroBarcode barcode;
    QCOMPARE(encodingsOf([&barcode] { barcode.setContentData(QStringLiteral("Cheque")); }), 1);
    QCOMPARE(encodingsOf([&barcode] { barcode.setBoundingRect({0, 0, 80, 80}); }), 1);
    QCOMPARE(encodingsOf([&barcode] { barcode.setIsKeepAtCenter(false); }), 0);
    QCOMPARE(encodingsOf([&barcode] { barcode.setHasReadableTxt(false); }), 0);
}

void BarcodeEncodingsTest::pageOnTheScreen_data()
{
    QTest::addColumn<Paint_Mode>("mode");

    QTest::newRow("design") << Paint_Design;
    QTest::newRow("input") << Paint_Input;
}

void BarcodeEncodingsTest::pageOnTheScreen()
{
    QFETCH(Paint_Mode, mode);
    LabelPage page(mode);
    for (int repaint = 0; repaint < 3; ++repaint) {
        QCOMPARE(encodingsOf([&page] { page.render(); }), FormBarcodes);
        QVERIFY(page.isPainted());
    }
}

void BarcodeEncodingsTest::pageOnPaper()
{
    LabelPage page(Paint_Print);
    for (int copy = 0; copy < 3; ++copy) {
        QCOMPARE(encodingsOf([&page] { page.render(); }), 0);
        QVERIFY(page.isPainted());
    }
    // What changed since is encoded when it is set, not when it is printed.
    for (TavroBarcode *barcode : page.barcodes())
        barcode->setContentData(QStringLiteral("another"));
    QCOMPARE(encodingsOf([&page] { page.render(); }), 0);
    // Encoding is switched on again after a page.
    page.barcodes().first()->setPaintMode(Paint_Input);
    QCOMPARE(encodingsOf([&page] { page.render(); }), 1);
}

void BarcodeEncodingsTest::newContentsOfAPage()
{
    LabelPage page(Paint_Input);
    const int count = encodingsOf([&page] {
        for (int i = 0; i < page.barcodes().size(); ++i)
            page.barcodes().at(i)->setContentData(QString::number(7700 + i));
        page.render();
    });
    QCOMPARE(count, 2 * FormBarcodes);
}

QTEST_MAIN(BarcodeEncodingsTest)
#include "tst_barcodeencodings.moc"
