// SPDX-License-Identifier: MIT
#include "choice/symbols.h"
#include "choice/tavrocheckbox.h"
#include "tests/choice/drawnimages.h"
#include "tests/support/stricttest.h"

#include <QBuffer>
#include <QGraphicsScene>
#include <QPdfWriter>
#include <QTest>

Q_DECLARE_METATYPE(symbols::Symbol)

namespace {

QVector<DrawnImage> drawnUnder(const QTransform &transform, const QRectF &target, symbols::Symbol symbol)
{
    return imagesOf([&](QPainter *painter) {
        painter->setTransform(transform);
        symbols::draw(painter, target, symbol);
    });
}

qint64 keyOf(const QSizeF &size, symbols::Symbol symbol, const QPointF &place = {})
{
    return drawnUnder({}, QRectF(place, size), symbol).first().image.cacheKey();
}

// A page with rows of checked boxes.
QByteArray pageWithBoxes(int count)
{
    constexpr int perRow = 10;
    constexpr double step = 30;
    QGraphicsScene scene(0, 0, perRow * step, perRow * step);
    for (int i = 0; i < count; ++i) {
        auto *box = new TavroCheckBox;
        box->setBoundingRect(QRectF(i % perRow * step, i / perRow * step, 20, 20));
        box->setContentData(2);
        box->setPaintMode(Paint_Print);
        scene.addItem(box);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        QPainter painter(&writer);
        scene.render(&painter);
    }
    return buffer.data();
}

} // namespace

/// Marks read for the pixels that they cover.
class TestSymbols : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void images_data();
    void images();
    void size_data();
    void size();
    void sizeOnADenseScreen();
    void wholeImage();
    void nothing_data();
    void nothing();
    void sameImageAgain();
    void stateOfThePainterIsKept();
    void embeddedOnceInAPdf();
};

void TestSymbols::images_data()
{
    QTest::addColumn<symbols::Symbol>("symbol");
    QTest::addColumn<QString>("name");

    QTest::newRow("tick") << symbols::Tick << QStringLiteral("tick");
    QTest::newRow("cross") << symbols::Cross << QStringLiteral("cross");
    QTest::newRow("circle") << symbols::Circle << QStringLiteral("circle");
    QTest::newRow("block") << symbols::Block << QStringLiteral("block");
    QTest::newRow("triangle") << symbols::Triangle << QStringLiteral("triangle");
}

void TestSymbols::images()
{
    QFETCH(symbols::Symbol, symbol);
    QFETCH(QString, name);
    for (const QSize &size : {QSize(10, 10), QSize(96, 96), QSize(40, 20)}) {
        const QVector<DrawnImage> drawn = drawnUnder({}, QRectF(QPointF(3, 4), size), symbol);
        QCOMPARE(drawn.size(), 1);
        QVERIFY(!drawn.first().image.isNull());
        QCOMPARE(drawn.first().image, markImage(name, size));
    }
}

void TestSymbols::size_data()
{
    QTest::addColumn<QTransform>("transform");
    QTest::addColumn<QSizeF>("target");
    QTest::addColumn<QSize>("expected");

    const QTransform turned = QTransform().rotate(30);
    QTest::newRow("scale 1") << QTransform() << QSizeF(20, 20) << QSize(20, 20);
    QTest::newRow("scale 1, not square") << QTransform() << QSizeF(40, 20) << QSize(40, 20);
    QTest::newRow("scale 1.5") << QTransform::fromScale(1.5, 1.5) << QSizeF(20, 20) << QSize(30, 30);
    QTest::newRow("scale 2") << QTransform::fromScale(2, 2) << QSizeF(20, 20) << QSize(40, 40);
    QTest::newRow("stretched") << QTransform::fromScale(2, 3) << QSizeF(20, 20) << QSize(40, 60);
    QTest::newRow("half a pixel rounded up") << QTransform::fromScale(1.5, 1.5) << QSizeF(7, 7) << QSize(11, 11);
    QTest::newRow("rounded down") << QTransform::fromScale(1.2, 1.2) << QSizeF(12, 12) << QSize(14, 14);
    QTest::newRow("moved") << QTransform::fromTranslate(100, 50) << QSizeF(20, 20) << QSize(20, 20);
    QTest::newRow("turned by 30 degrees") << turned << QSizeF(40, 20) << QSize(40, 20);
    QTest::newRow("turned by 90 degrees") << QTransform().rotate(90) << QSizeF(40, 20) << QSize(40, 20);
    QTest::newRow("turned and scaled") << turned * QTransform::fromScale(2, 2) << QSizeF(40, 20) << QSize(80, 40);
    QTest::newRow("mirrored") << QTransform::fromScale(-1, 1) << QSizeF(40, 20) << QSize(40, 20);
    QTest::newRow("less than a pixel") << QTransform::fromScale(0.01, 0.01) << QSizeF(20, 20) << QSize(1, 1);
    QTest::newRow("the largest") << QTransform() << QSizeF(1024, 1024) << QSize(1024, 1024);
    QTest::newRow("beyond the largest") << QTransform() << QSizeF(1025, 3000) << QSize(1024, 1024);
    QTest::newRow("one side beyond") << QTransform::fromScale(100, 1) << QSizeF(20, 20) << QSize(1024, 20);
    QTest::newRow("far beyond") << QTransform::fromScale(1e12, 1e12) << QSizeF(20, 20) << QSize(1024, 1024);
}

void TestSymbols::size()
{
    QFETCH(QTransform, transform);
    QFETCH(QSizeF, target);
    QFETCH(QSize, expected);
    const QVector<DrawnImage> drawn = drawnUnder(transform, QRectF(QPointF(5, 6), target), symbols::Tick);
    QCOMPARE(drawn.size(), 1);
    QCOMPARE(drawn.first().image.size(), expected);
}

void TestSymbols::sizeOnADenseScreen()
{
    ImageDevice device(2);
    QPainter painter(&device);
    symbols::draw(&painter, QRectF(0, 0, 20, 10), symbols::Cross);
    painter.end();
    QCOMPARE(device.images().size(), 1);
    QCOMPARE(device.images().first().image.size(), QSize(40, 20));
}

void TestSymbols::wholeImage()
{
    const QRectF target(-3.25, 4.5, 20.5, 10);
    for (const double scale : {1.0, 1.5, 200.0}) {
        const DrawnImage drawn = drawnUnder(QTransform::fromScale(scale, scale), target, symbols::Circle).first();
        QCOMPARE(drawn.target, target);
        QCOMPARE(drawn.source, QRectF(drawn.image.rect()));
    }
}

void TestSymbols::nothing_data()
{
    QTest::addColumn<QRectF>("target");
    QTest::addColumn<symbols::Symbol>("symbol");

    QTest::newRow("no mark") << QRectF(0, 0, 20, 20) << symbols::None;
    QTest::newRow("null rectangle") << QRectF() << symbols::Tick;
    QTest::newRow("no width") << QRectF(0, 0, 0, 20) << symbols::Tick;
    QTest::newRow("no height") << QRectF(0, 0, 20, 0) << symbols::Tick;
    QTest::newRow("negative width") << QRectF(20, 0, -20, 20) << symbols::Tick;
    QTest::newRow("negative height") << QRectF(0, 20, 20, -20) << symbols::Tick;
}

void TestSymbols::nothing()
{
    QFETCH(QRectF, target);
    QFETCH(symbols::Symbol, symbol);
    QVERIFY(drawnUnder({}, target, symbol).isEmpty());
}

void TestSymbols::sameImageAgain()
{
    const qint64 tick = keyOf({20, 20}, symbols::Tick);
    QCOMPARE(keyOf({20, 20}, symbols::Tick, QPointF(300, 200)), tick);
    const qint64 wide = keyOf({30, 20}, symbols::Tick);
    const qint64 high = keyOf({20, 30}, symbols::Tick);
    const qint64 cross = keyOf({20, 20}, symbols::Cross);
    const QSet<qint64> keys{tick, wide, high, cross};
    QCOMPARE(keys.size(), 4);
    QCOMPARE(keyOf({20, 20}, symbols::Tick), tick);
    QCOMPARE(keyOf({30, 20}, symbols::Tick), wide);
    QCOMPARE(keyOf({20, 30}, symbols::Tick), high);
    QCOMPARE(keyOf({20, 20}, symbols::Cross), cross);
}

void TestSymbols::stateOfThePainterIsKept()
{
    ImageDevice device;
    QPainter painter(&device);
    const QTransform transform = QTransform().rotate(30).scale(2, 2);
    painter.setTransform(transform);
    painter.setPen(QPen(Qt::red, 3));
    const QPainter::RenderHints hints = painter.renderHints();
    symbols::draw(&painter, QRectF(0, 0, 20, 20), symbols::Block);
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.pen(), QPen(Qt::red, 3));
    QCOMPARE(painter.renderHints(), hints);
}

void TestSymbols::embeddedOnceInAPdf()
{
    const QByteArray image = QByteArrayLiteral("/Subtype /Image");
    const QByteArray one = pageWithBoxes(1);
    const QByteArray fifty = pageWithBoxes(50);
    QVERIFY(one.count(image) >= 1);
    QCOMPARE(fifty.count(image), one.count(image));
    constexpr int mostBytesOfABox = 200;
    QVERIFY2(fifty.size() - one.size() < 50 * mostBytesOfABox, qPrintable(QString::number(fifty.size() - one.size())));
}

QTEST_MAIN(TestSymbols)
#include "tst_symbols.moc"
