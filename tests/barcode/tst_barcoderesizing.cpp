// SPDX-License-Identifier: MIT
// Dragging the handles of a barcode: its rectangle snaps to whole symbols at the edges that stay.
#include "tests/barcode/barcodeprobes.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <limits>

using barcodeprobes::inWords;
using barcodeprobes::isSame;
using barcodeprobes::symbolOf;
using barcodeprobes::textHeight;

namespace {

using B = TavroBarcode;

constexpr int Code128 = 20;
constexpr int QrCode = 58;
constexpr double Columns = 112; // of "Barcode" in Code 128

// Which way a handle looks: -1 left or up, 1 right or down, 0 for an edge that it leaves alone.
struct Handle
{
    const char *name;
    HandleDirect direction;
    int x;
    int y;
};

const QVector<Handle> Handles{
    {"top left", Handle_TopLeft, -1, -1},       {"top", Handle_Top, 0, -1},
    {"top right", Handle_TopRight, 1, -1},      {"right", Handle_Right, 1, 0},
    {"bottom right", Handle_BottomRight, 1, 1}, {"bottom", Handle_Bottom, 0, 1},
    {"bottom left", Handle_BottomLeft, -1, 1},  {"left", Handle_Left, -1, 0},
};

const QRectF Place(100, 200, 224, 80);

// Where an edge is dragged, as a share of the extent beyond the edge that stays: 0 exactly onto that one, negative past
// it.
struct Drag
{
    const char *name;
    double x;
    double y;
};

const QVector<Drag> Drags{
    {"inwards", 0.5, 0.75},
    {"outwards", 1.5, 3},
    {"nowhere", 1, 1},
    {"past both", -0.5, -2},
    {"past one way", -1.25, 1.5},
    {"past the other way", 1.5, -1.25},
    {"onto both", 0, 0},
    {"onto one, past the other", 0, -1},
    {"past one, onto the other", -1, 0},
    {"onto one, in the other", 0, 0.5},
};

const QVector<int> Angles{0, 90, 30, -45, 180};

// Symbol that is fitted to an extent, worked out by hand.
QSizeF symbolSize(int symbology, bool hasText, const QSizeF &dragged)
{
    const double width = std::abs(dragged.width());
    const double height = std::abs(dragged.height());
    if (symbology == QrCode)
        return {std::max(width, height), std::max(width, height)};
    if (!hasText)
        return {width, height};
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    const double bars = std::max(width, QFontMetricsF(font).horizontalAdvance(QStringLiteral("Barcode")));
    return {bars, std::max(height, bars / Columns + textHeight())};
}

double edgeThatStays(int look, double low, double high)
{
    return look < 0 ? high : low;
}

// Extent along one axis from the edge that stays to the pointer; negative where it passed that edge.
double draggedExtent(int look, double extent, double share)
{
    return look == 0 ? extent : extent * share;
}

double edgeAfter(int look, double low, double high, double extent, double size)
{
    const double fixed = edgeThatStays(look, low, high);
    const bool growsDown = (look < 0) != (extent < 0);
    return growsDown ? fixed - size : fixed;
}

QPointF pointerOf(const QRectF &rect, const Handle &handle, const Drag &drag)
{
    const double x = draggedExtent(handle.x, rect.width(), drag.x);
    const double y = draggedExtent(handle.y, rect.height(), drag.y);
    return {edgeThatStays(handle.x, rect.left(), rect.right()) + (handle.x < 0 ? -x : x),
            edgeThatStays(handle.y, rect.top(), rect.bottom()) + (handle.y < 0 ? -y : y)};
}

} // namespace

class TestBarcodeResizing : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void drags_data();
    void drags();
    void dragThroughOneHandle();
    void handlesThatDoNotResize_data();
    void handlesThatDoNotResize();
    void negativeRectangle_data();
    void negativeRectangle();
    void withoutSymbol();
    void pointerOutOfTheWorld_data();
    void pointerOutOfTheWorld();
};

void TestBarcodeResizing::drags_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<bool>("hasText");
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("drag");
    const auto add = [](const char *kind, int symbology, bool hasText) {
        for (int handle = 0; handle < Handles.size(); ++handle) {
            for (int drag = 0; drag < Drags.size(); ++drag)
                QTest::addRow("%s, %s, %s", kind, Handles.at(handle).name, Drags.at(drag).name)
                    << symbology << hasText << handle << drag;
        }
    };
    add("QR Code", QrCode, true);
    add("Code 128", Code128, true);
    add("Code 128 without text", Code128, false);
}

void TestBarcodeResizing::drags()
{
    QFETCH(int, symbology);
    QFETCH(bool, hasText);
    QFETCH(int, handle);
    QFETCH(int, drag);
    const Handle &h = Handles.at(handle);
    const Drag &d = Drags.at(drag);
    for (const int angle : Angles) {
        QGraphicsScene scene;
        auto *barcode = new B;
        scene.addItem(barcode);
        barcode->setHasReadableTxt(hasText);
        barcode->setSymbology(symbology);
        barcode->setBoundingRect(Place);
        barcode->setRotateAngle(angle);
        barcode->updateObjRotation();
        const QPointF staysAt = barcode->mapToScene(edgeThatStays(h.x, Place.left(), Place.right()),
                                                    edgeThatStays(h.y, Place.top(), Place.bottom()));
        QSignalSpy changed(barcode, &B::boundingRectChanged);

        barcode->resize(h.direction, barcode->mapToScene(pointerOf(Place, h, d)));

        const QSizeF extent(draggedExtent(h.x, Place.width(), d.x), draggedExtent(h.y, Place.height(), d.y));
        const QSizeF size = symbolSize(symbology, hasText, extent);
        const QRectF expected(QPointF(edgeAfter(h.x, Place.left(), Place.right(), extent.width(), size.width()),
                                      edgeAfter(h.y, Place.top(), Place.bottom(), extent.height(), size.height())),
                              size);
        const QRectF rect = barcode->boundingRect();
        QVERIFY2(isSame(rect, expected), inWords(rect) + " instead of " + inWords(expected));
        QCOMPARE(changed.count(), 1);
        const QRectF grown = rect.adjusted(-1e-6, -1e-6, 1e-6, 1e-6);
        QVERIFY(grown.contains(barcode->mapFromScene(staysAt)));
        if (!rect.isEmpty()) {
            const QRectF bars(rect.topLeft(),
                              rect.size() - QSizeF(0, symbology == Code128 && hasText ? textHeight() : 0));
            QVERIFY2(isSame(symbolOf(*barcode), bars), inWords(symbolOf(*barcode)));
        }
    }
}

// A drag comes as many moves, each from the rectangle that the move before left.
void TestBarcodeResizing::dragThroughOneHandle()
{
    B barcode;
    barcode.setBoundingRect(QRectF(100, 200, 63, 63));
    for (double x = 170; x >= 90; x -= 10)
        barcode.resize(Handle_BottomRight, QPointF(x, 210));
    // The left edge stayed until the pointer came to its other side.
    QVERIFY2(isSame(barcode.boundingRect(), QRectF(90, 200, 10, 10)), inWords(barcode.boundingRect()));
    barcode.resize(Handle_BottomRight, QPointF(150, 210));
    QVERIFY2(isSame(barcode.boundingRect(), QRectF(90, 200, 60, 60)), inWords(barcode.boundingRect()));
}

void TestBarcodeResizing::handlesThatDoNotResize_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("centre") << 8;
    QTest::newRow("none") << 9;
    QTest::newRow("beyond") << 10;
    QTest::newRow("negative") << -1;
    QTest::newRow("most") << std::numeric_limits<int>::max();
}

void TestBarcodeResizing::handlesThatDoNotResize()
{
    QFETCH(int, direction);
    B barcode;
    barcode.setBoundingRect(Place);
    const double module = barcodeprobes::modulesOf(barcode).first().width();
    barcode.resize(static_cast<HandleDirect>(direction), QPointF(1000, 1000));
    QCOMPARE(barcode.boundingRect(), Place);
    QCOMPARE(barcodeprobes::modulesOf(barcode).first().width(), module);
}

void TestBarcodeResizing::negativeRectangle_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("edges of the origin stay") << int(Handle_BottomRight) << QRectF(60, 160, 40, 40);
    QTest::newRow("opposite edges stay") << int(Handle_TopLeft) << QRectF(50, 150, 40, 40);
}

// Hosts may set rectangles that run to the left and upwards; a drag leaves one that does not.
void TestBarcodeResizing::negativeRectangle()
{
    QFETCH(int, direction);
    QFETCH(QRectF, rect);
    B barcode;
    barcode.setBoundingRect(QRectF(100, 200, -50, -50));
    barcode.resize(static_cast<HandleDirect>(direction),
                   direction == Handle_TopLeft ? QPointF(90, 190) : QPointF(60, 160));
    QVERIFY2(isSame(barcode.boundingRect(), rect), inWords(barcode.boundingRect()));
    QVERIFY2(isSame(symbolOf(barcode), rect), inWords(symbolOf(barcode)));
}

void TestBarcodeResizing::withoutSymbol()
{
    B barcode;
    barcode.setContentData(QString());
    barcode.setBoundingRect(QRectF(100, 200, 50, 50));
    barcode.resize(Handle_TopLeft, QPointF(90, 190));
    QCOMPARE(barcode.boundingRect(), QRectF(150, 250, 0, 0));
}

void TestBarcodeResizing::pointerOutOfTheWorld_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<QRectF>("rect");
    const double huge = std::numeric_limits<double>::infinity();
    const double none = std::numeric_limits<double>::quiet_NaN();
    const int bottomRight = Handle_BottomRight;
    const int topLeft = Handle_TopLeft;
    // What is no length counts as none.
    QTest::newRow("infinite") << bottomRight << QPointF(huge, 250) << QRectF(100, 200, 50, 50);
    QTest::newRow("not a number") << bottomRight << QPointF(none, 250) << QRectF(100, 200, 50, 50);
    QTest::newRow("nothing but infinite") << bottomRight << QPointF(huge, huge) << QRectF(100, 200, 0, 0);
    QTest::newRow("far") << bottomRight << QPointF(1e9, 250) << QRectF(100, 200, 1e9 - 100, 1e9 - 100);
    QTest::newRow("infinite, other edges stay") << topLeft << QPointF(-huge, 200) << QRectF(100, 200, 50, 50);
    QTest::newRow("infinite, past the other edges") << topLeft << QPointF(huge, 200) << QRectF(150, 200, 50, 50);
    QTest::newRow("not a number, other edges stay") << topLeft << QPointF(none, 200) << QRectF(100, 200, 50, 50);
}

void TestBarcodeResizing::pointerOutOfTheWorld()
{
    QFETCH(int, direction);
    QFETCH(QPointF, pointer);
    QFETCH(QRectF, rect);
    B barcode;
    barcode.setBoundingRect(QRectF(100, 200, 50, 50));
    barcode.resize(static_cast<HandleDirect>(direction), pointer);
    QVERIFY2(isSame(barcode.boundingRect(), rect), inWords(barcode.boundingRect()));
}

QTEST_MAIN(TestBarcodeResizing)
#include "tst_barcoderesizing.moc"
