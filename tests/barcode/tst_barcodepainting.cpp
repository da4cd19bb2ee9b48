// SPDX-License-Identifier: MIT
// What a barcode object paints in its modes.
#include "tests/barcode/barcodeprobes.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QTest>
#include <functional>
#include <limits>

using barcodeprobes::inWords;
using barcodeprobes::isSame;
using barcodeprobes::modulesOf;
using barcodeprobes::symbolOf;
using barcodeprobes::textsOf;
using barcodeprobes::wordsOf;

namespace {

using B = TavroBarcode;

constexpr int Ean13 = -2;
constexpr int Ean8 = -1;
constexpr int Code128 = 20;

} // namespace

class TestBarcodePainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void backgroundThenModules_data();
    void backgroundThenModules();
    void symbolAndNothingElse_data();
    void symbolAndNothingElse();
    void modesThatPaintNothing_data();
    void modesThatPaintNothing();
    void notPrinted_data();
    void notPrinted();
    void printingDoesNotEncode();
    void printingAFailure();
    void readableText();
    void messages_data();
    void messages();
    void negativeRectangle_data();
    void negativeRectangle();
    void painterIsLeftAsItWas_data();
    void painterIsLeftAsItWas();
    void settingsRepaint();
};

void TestBarcodePainting::backgroundThenModules_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("design") << int(Paint_Design);
    QTest::newRow("input") << int(Paint_Input);
    QTest::newRow("print") << int(Paint_Print);
}

void TestBarcodePainting::backgroundThenModules()
{
    QFETCH(int, mode);
    B barcode;
    barcode.setBoundingRect(QRectF(10, 20, 84, 63));
    barcode.setPaintMode(static_cast<Paint_Mode>(mode));
    const QVector<PaintCommand> commands = probes::paintedBy(barcode);
    QVERIFY(commands.size() > 1);
    QCOMPARE(commands.first().kind, PaintCommand::Rect);
    QCOMPARE(commands.first().brush.color(), QColor(Qt::white));
    QCOMPARE(commands.first().transform.mapRect(commands.first().rect), QRectF(10, 20, 84, 63));
    // The larger of the two extents is filled; the symbol runs over the other one.
    QVERIFY2(isSame(symbolOf(barcode), QRectF(10, 20, 84, 84)), inWords(symbolOf(barcode)));
    QCOMPARE(modulesOf(barcode).size(), commands.size() - 1);
}

void TestBarcodePainting::symbolAndNothingElse_data()
{
    backgroundThenModules_data();
}

void TestBarcodePainting::symbolAndNothingElse()
{
    QFETCH(int, mode);
    QGraphicsScene scene;
    auto *barcode = new B;
    scene.addItem(barcode);
    barcode->setBoundingRect(QRectF(10, 20, 63, 63));
    barcode->setHasBorder(true);
    barcode->setBorderColor(0xFF0000);
    barcode->setBackgroundColor(0x00FF00);
    barcode->setPaintMode(Paint_Design);
    barcode->setIsLocked(true);
    barcode->setSelected(true);
    barcode->setPaintMode(static_cast<Paint_Mode>(mode));
    const QVector<PaintCommand> commands = probes::paintedBy(*barcode);
    for (const PaintCommand &command : commands) {
        QCOMPARE(command.kind, PaintCommand::Rect);
        QCOMPARE(command.pen.style(), Qt::NoPen);
        QVERIFY(command.brush.color() == QColor(Qt::black) || command.brush.color() == QColor(Qt::white));
    }
}

void TestBarcodePainting::modesThatPaintNothing_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("beyond") << 3;
    QTest::newRow("negative") << -1;
    QTest::newRow("most") << std::numeric_limits<int>::max();
}

void TestBarcodePainting::modesThatPaintNothing()
{
    QFETCH(int, mode);
    B barcode;
    barcode.setPaintMode(static_cast<Paint_Mode>(mode));
    QVERIFY(probes::paintedBy(barcode).isEmpty());
}

void TestBarcodePainting::notPrinted_data()
{
    backgroundThenModules_data();
}

void TestBarcodePainting::notPrinted()
{
    QFETCH(int, mode);
    B barcode;
    barcode.setIsPrint(false);
    barcode.setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(probes::paintedBy(barcode).isEmpty(), mode == Paint_Print);
}

// A version that was set after the fit shows on the screen; on paper comes the symbol that was encoded last.
void TestBarcodePainting::printingDoesNotEncode()
{
    B barcode;
    barcode.setBoundingRect(QRectF(0, 0, 63, 63));
    barcode.setQRcodeVersion(2);
    barcode.setPaintMode(Paint_Print);
    QVERIFY2(isSame(symbolOf(barcode), QRectF(0, 0, 63, 63)), inWords(symbolOf(barcode)));
    barcode.setPaintMode(Paint_Design);
    QVERIFY2(isSame(symbolOf(barcode), QRectF(0, 0, 75, 75)), inWords(symbolOf(barcode)));
    // Each question encodes again after printing.
    barcode.setPaintMode(Paint_Print);
    QVERIFY2(isSame(symbolOf(barcode), QRectF(0, 0, 75, 75)), inWords(symbolOf(barcode)));
    barcode.setQRcodeVersion(1);
    QCOMPARE(barcode.actualSzFromExpectSz(QSizeF(42, 21)), QSizeF(42, 42));
    QVERIFY2(isSame(symbolOf(barcode), QRectF(0, 0, 42, 42)), inWords(symbolOf(barcode)));
}

void TestBarcodePainting::printingAFailure()
{
    B barcode;
    barcode.setContentData(QString());
    barcode.setPaintMode(Paint_Print);
    QVERIFY(modulesOf(barcode).isEmpty());
    QCOMPARE(wordsOf(barcode).size(), 1);
    QVERIFY(wordsOf(barcode).first().contains(QLatin1String("No input data")));
}

void TestBarcodePainting::readableText()
{
    B barcode;
    barcode.setSymbology(Code128);
    barcode.setBoundingRect(QRectF(0, 0, 336, 100));
    QVector<PaintCommand> texts = textsOf(barcode);
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts.first().text, QStringLiteral("Barcode"));
    const QRectF words = texts.first().transform.mapRect(texts.first().rect);
    QVERIFY(qAbs(words.center().x() - 168) < 0.51);
    QVERIFY(words.top() > symbolOf(barcode).bottom() - 0.01);
    QVERIFY(words.bottom() < 100.01);
    barcode.setHasReadableTxt(false);
    QVERIFY(textsOf(barcode).isEmpty());
    // The bars take the room of the text with the next fit.
    QVERIFY(symbolOf(barcode).height() < 90);
    barcode.syncBarcodeRect(false);
    QVERIFY2(isSame(symbolOf(barcode), QRectF(0, 0, 336, 100)), inWords(symbolOf(barcode)));
}

void TestBarcodePainting::messages_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("message");
    const QString length = QStringLiteral("error: Invalid Length Input!");
    QTest::newRow("nothing") << 58 << QString() << QStringLiteral("No input data");
    QTest::newRow("EAN-13 with its check digit") << Ean13 << QStringLiteral("6901234567892") << length;
    QTest::newRow("EAN-8 with its check digit") << Ean8 << QStringLiteral("69012341") << length;
    QTest::newRow("EAN-8 as EAN-13") << Ean13 << QStringLiteral("6901234") << length;
    QTest::newRow("composite without its linear component")
        << 130 << QStringLiteral("[21]A12345678") << QStringLiteral("No primary");
}

void TestBarcodePainting::messages()
{
    QFETCH(int, symbology);
    QFETCH(QString, content);
    QFETCH(QString, message);
    B barcode;
    barcode.setSymbology(symbology);
    barcode.setContentData(content);
    barcode.setBoundingRect(QRectF(10, 20, 200, 60));
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        barcode.setPaintMode(mode);
        QVERIFY(modulesOf(barcode).isEmpty());
        QCOMPARE(textsOf(barcode).size(), 1);
        const PaintCommand text = textsOf(barcode).first();
        // Around the words of libzint stands a number, and what its version adds.
        QVERIFY2(text.text == message || (text.text.startsWith(QLatin1String("Error ")) && text.text.contains(message)),
                 text.text.toUtf8());
        QCOMPARE(text.pen.color(), QColor(Qt::black));
        QCOMPARE(text.font.pointSize(), 12);
        const QPointF start = text.transform.map(text.rect.topLeft());
        QVERIFY(qAbs(start.x() - 10) < 1 && qAbs(start.y() - 20) < 1);
    }
}

void TestBarcodePainting::negativeRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("painted");
    QTest::newRow("to the left") << QRectF(100, 200, -50, 50) << QRectF(50, 200, 50, 50);
    QTest::newRow("upwards") << QRectF(100, 200, 50, -50) << QRectF(100, 150, 50, 50);
    QTest::newRow("both") << QRectF(100, 200, -50, -50) << QRectF(50, 150, 50, 50);
}

void TestBarcodePainting::negativeRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, painted);
    B barcode;
    barcode.setBoundingRect(rect);
    QCOMPARE(barcode.boundingRect(), rect);
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        barcode.setPaintMode(mode);
        QVERIFY2(isSame(symbolOf(barcode), painted), inWords(symbolOf(barcode)));
        const PaintCommand background = probes::paintedBy(barcode).first();
        QCOMPARE(background.transform.mapRect(background.rect), painted);
    }
}

void TestBarcodePainting::painterIsLeftAsItWas_data()
{
    QTest::addColumn<int>("symbology");
    for (const int symbology : {-2, -1, 0, 20, 34, 37, 55, 57, 58, 71, 79, 81, 92, 130})
        QTest::addRow("%d", symbology) << symbology;
}

void TestBarcodePainting::painterIsLeftAsItWas()
{
    QFETCH(int, symbology);
    B barcode;
    barcode.setContentData(QStringLiteral("123456789012"));
    barcode.setSymbology(symbology);
    barcode.setBoundingRect(QRectF(10, 20, 100, 50));
    QImage image(64, 64, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.translate(3, 4);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::green);
    const QTransform transform = painter.transform();
    const QFont font = painter.font();
    const QStyleOptionGraphicsItem option;
    barcode.paint(&painter, &option, nullptr);
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.pen(), QPen(Qt::red));
    QCOMPARE(painter.brush(), QBrush(Qt::green));
    QCOMPARE(painter.font(), font);
    QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
}

// What is shown changes with these at once, without the rectangle.
void TestBarcodePainting::settingsRepaint()
{
    QGraphicsScene scene;
    auto *barcode = new B;
    barcode->setBoundingRect(QRectF(10, 20, 63, 63));
    scene.addItem(barcode);
    QList<QRectF> updated;
    connect(&scene, &QGraphicsScene::changed, this, [&updated](const QList<QRectF> &region) { updated += region; });
    const QVector<std::function<void()>> changes{
        [barcode] { barcode->setContentData(QStringLiteral("4711")); },
        [barcode] { barcode->setQRcodeVersion(3); },
        [barcode] { barcode->setQRcodeErrCorrection(4); },
        [barcode] { barcode->setHasReadableTxt(false); },
        [barcode] { barcode->syncReadableTextPixSz(); },
    };
    for (const std::function<void()> &change : changes) {
        QCoreApplication::processEvents();
        updated.clear();
        change();
        QTRY_VERIFY(!updated.isEmpty());
    }
}

QTEST_MAIN(TestBarcodePainting)
#include "tst_barcodepainting.moc"
