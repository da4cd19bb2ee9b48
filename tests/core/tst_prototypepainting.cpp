// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <functional>

namespace {

// Tells which of the three paint operations ran, and under which hints.
class DispatchProbe : public TavroPrototype
{
public:
    void designPaint(QPainter *painter) override { note(QStringLiteral("design"), painter); }
    void inputPaint(QPainter *painter) override { note(QStringLiteral("input"), painter); }
    void printPaint(QPainter *painter) override { note(QStringLiteral("print"), painter); }

    QStringList calls;
    QPainter::RenderHints hints;

private:
    void note(const QString &call, const QPainter *painter)
    {
        calls.append(call);
        hints = painter->renderHints();
    }
};

// What one of the painting operations paints under a painter with a pen, a brush and an opacity of its own.
struct Painted
{
    QVector<PaintCommand> commands;
    bool stateKept;
};

Painted paintedBy(TavroPrototype &object, const std::function<void(TavroPrototype &, QPainter *)> &operation)
{
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(QColor(1, 2, 3), 5);
    const QBrush brush(Qt::red);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setOpacity(0.5);
    operation(object, &painter);
    const bool kept = painter.pen() == pen && painter.brush() == brush && qFuzzyCompare(painter.opacity(), 0.5);
    painter.end();
    return {device.commands(), kept};
}

const QRectF Rect(10, 20, 30, 50);

} // namespace

/// What the base of all objects paints, and when.
class TestPrototypePainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void dispatch_data();
    void dispatch();
    void emptyObjects_data();
    void emptyObjects();
    void border();
    void borderIsAlwaysOnePixelWide();
    void borderFollowsNegativeSizes();
    void noBorder();
    void lockedSign_data();
    void lockedSign();
    void modes();
    void background();
};

void TestPrototypePainting::dispatch_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("calls");

    QTest::newRow("design") << 0 << QStringList{QStringLiteral("design")};
    QTest::newRow("input") << 1 << QStringList{QStringLiteral("input")};
    QTest::newRow("print") << 2 << QStringList{QStringLiteral("print")};
    QTest::newRow("beyond") << 3 << QStringList{};
    QTest::newRow("far beyond") << 7 << QStringList{};
    QTest::newRow("negative") << -1 << QStringList{};
}

void TestPrototypePainting::dispatch()
{
    QFETCH(int, mode);
    QFETCH(QStringList, calls);
    DispatchProbe object;
    object.setBoundingRect(Rect);
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    const QPainter::RenderHints wanted =
        QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;
    RecordingDevice device;
    QPainter painter(&device);
    // A new painter has one of the hints already.
    painter.setRenderHints(wanted, false);
    const QStyleOptionGraphicsItem option;
    object.paint(&painter, &option, nullptr);
    painter.end();
    QVERIFY(device.commands().isEmpty());
    QCOMPARE(object.calls, calls);
    if (!calls.isEmpty())
        QCOMPARE(object.hints & wanted, wanted);
}

void TestPrototypePainting::emptyObjects_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<bool>("painted");

    QTest::newRow("no size") << QRectF(0, 0, 0, 0) << false;
    QTest::newRow("no size elsewhere") << QRectF(7, 8, 0, 0) << false;
    QTest::newRow("0 x 5") << QRectF(0, 0, 0, 5) << true;
    QTest::newRow("5 x 0") << QRectF(0, 0, 5, 0) << true;
    QTest::newRow("-5 x 0") << QRectF(0, 0, -5, 0) << true;
    QTest::newRow("-5 x -5") << QRectF(0, 0, -5, -5) << true;
    QTest::newRow("next to nothing") << QRectF(0, 0, 1e-9, 0) << true;
}

void TestPrototypePainting::emptyObjects()
{
    QFETCH(QRectF, rect);
    for (const int mode : {0, 1, 2}) {
        DispatchProbe object;
        object.setBoundingRect(rect);
        object.setPaintMode(static_cast<Paint_Mode>(mode));
        probes::paintedBy(object);
        QTEST(!object.calls.isEmpty(), "painted");
    }
}

void TestPrototypePainting::border()
{
    TavroPrototype object;
    object.setBoundingRect(Rect);
    const Painted painted = paintedBy(object, &TavroPrototype::drawBorder);
    QCOMPARE(painted.commands.size(), 1);
    const PaintCommand border = painted.commands.first();
    QCOMPARE(border.kind, PaintCommand::Rect);
    QCOMPARE(border.rect, QRectF(10.5, 20.5, 29, 49));
    QCOMPARE(border.pen.color(), QColor(0x1B, 0xA3, 0x9C));
    QCOMPARE(border.pen.widthF(), 1.0);
    QCOMPARE(border.pen.style(), Qt::SolidLine);
    QCOMPARE(border.brush.style(), Qt::NoBrush);
    QVERIFY(painted.stateKept);
}

void TestPrototypePainting::borderIsAlwaysOnePixelWide()
{
    TavroPrototype object;
    object.setBoundingRect(Rect);
    object.setBorderWpx(9);
    object.setBorderColor(0x102030);
    const PaintCommand border = paintedBy(object, &TavroPrototype::drawBorder).commands.first();
    QCOMPARE(border.pen.widthF(), 1.0);
    QCOMPARE(border.rect, QRectF(10.5, 20.5, 29, 49));
    QCOMPARE(border.pen.color(), QColor(0x10, 0x20, 0x30));
}

void TestPrototypePainting::borderFollowsNegativeSizes()
{
    TavroPrototype object;
    object.setBoundingRect(QRectF(10, 20, -30, 50));
    QCOMPARE(paintedBy(object, &TavroPrototype::drawBorder).commands.first().rect, QRectF(10.5, 20.5, -31, 49));
}

void TestPrototypePainting::noBorder()
{
    TavroPrototype object;
    object.setBoundingRect(Rect);
    object.setHasBorder(false);
    QVERIFY(paintedBy(object, &TavroPrototype::drawBorder).commands.isEmpty());
    QVERIFY(probes::paintedBy(object).isEmpty());
}

void TestPrototypePainting::lockedSign_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<int>("images");

    QTest::newRow("locked and selected") << true << true << 1;
    QTest::newRow("locked") << true << false << 0;
    QTest::newRow("selected") << false << true << 0;
    QTest::newRow("neither") << false << false << 0;
}

void TestPrototypePainting::lockedSign()
{
    QFETCH(bool, locked);
    QFETCH(bool, selected);
    QFETCH(int, images);
    TavroPrototype object;
    object.setBoundingRect(Rect);
    object.setIsLocked(locked);
    object.setSelected(selected);
    const Painted painted = paintedBy(object, &TavroPrototype::drawLockedSign);
    QCOMPARE(painted.commands.size(), images);
    QVERIFY(painted.stateKept);
    if (images == 0)
        return;
    const QImage sign(QStringLiteral(":/image/image/locked.png"));
    QVERIFY(!sign.isNull());
    QCOMPARE(painted.commands.first().kind, PaintCommand::Image);
    QCOMPARE(painted.commands.first().rect, QRectF(Rect.topLeft(), sign.size()));

    QImage canvas(sign.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    const QImage blank = canvas;
    QPainter painter(&canvas);
    painter.translate(-Rect.topLeft());
    object.drawLockedSign(&painter);
    painter.end();
    QCOMPARE(canvas, sign.convertToFormat(canvas.format()));
    QVERIFY(canvas != blank);
}

void TestPrototypePainting::modes()
{
    TavroPrototype object;
    object.setBoundingRect(Rect);
    object.setIsLocked(true);
    object.setSelected(true);
    const QVector<PaintCommand> design = probes::paintedBy(object);
    QCOMPARE(design.size(), 2);
    QCOMPARE(design.at(0).kind, PaintCommand::Rect);
    QCOMPARE(design.at(1).kind, PaintCommand::Image);

    object.setPaintMode(Paint_Input);
    object.setFlag(QGraphicsItem::ItemIsSelectable, true);
    object.setSelected(true);
    const QVector<PaintCommand> input = probes::paintedBy(object);
    QCOMPARE(input.size(), 1);
    QCOMPARE(input.first().kind, PaintCommand::Rect);

    object.setPaintMode(Paint_Print);
    QVERIFY(probes::paintedBy(object).isEmpty());
}

void TestPrototypePainting::background()
{
    TavroPrototype object;
    object.setBoundingRect(Rect);
    object.setBackgroundColor(0x102030);
    const QRectF filled(1, 2, 3, 4);
    const Painted painted = paintedBy(object, [&](TavroPrototype &o, QPainter *p) { o.fillBackground(p, filled); });
    QCOMPARE(painted.commands.size(), 1);
    const PaintCommand fill = painted.commands.first();
    QCOMPARE(fill.kind, PaintCommand::Rect);
    QCOMPARE(fill.rect, filled);
    QCOMPARE(fill.pen.style(), Qt::NoPen);
    QCOMPARE(fill.brush, QBrush(QColor(0x10, 0x20, 0x30)));
    QCOMPARE(fill.opacity, 0.4);
    QVERIFY(painted.stateKept);

    // The base never fills on its own.
    object.setBackgroundStyle(3);
    for (const PaintCommand &command : probes::paintedBy(object))
        QCOMPARE(command.brush.style(), Qt::NoBrush);
}

QTEST_MAIN(TestPrototypePainting)
#include "tst_prototypepainting.moc"
