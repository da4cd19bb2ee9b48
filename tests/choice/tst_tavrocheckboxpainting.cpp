// SPDX-License-Identifier: MIT
#include "tests/choice/boxprobes.h"
#include "tests/choice/drawnimages.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

using boxprobes::show;

/// What check boxes draw.
class TestTavroCheckBoxPainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void target_data();
    void target();
    void wholeImage();
    void modes_data();
    void modes();
    void lockSign();
    void newObject();
};

void TestTavroCheckBoxPainting::target_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("expected");

    QTest::newRow("whole pixels") << QRectF(2, 3, 24, 24) << QRectF(2, 3, 24, 24);
    QTest::newRow("to the nearest") << QRectF(2.4, 3.6, 24.4, 23.6) << QRectF(2, 4, 24, 24);
    QTest::newRow("halves away from zero") << QRectF(2.5, 3.5, 24.5, 23.5) << QRectF(3, 4, 25, 24);
    QTest::newRow("negative place") << QRectF(-2.4, -3.6, 24, 24) << QRectF(-2, -4, 24, 24);
    QTest::newRow("negative halves") << QRectF(-2.5, -0.5, 24, 24) << QRectF(-3, -1, 24, 24);
    QTest::newRow("not square") << QRectF(0, 0, 40, 20) << QRectF(0, 0, 40, 20);
    QTest::newRow("negative width") << QRectF(30, 0, -20, 20) << QRectF(10, 0, 20, 20);
    QTest::newRow("negative height") << QRectF(0, 30, 20, -20) << QRectF(0, 10, 20, 20);
    QTest::newRow("both negative, halves") << QRectF(30.5, -0.5, -20.5, -20.5) << QRectF(10, -22, 21, 21);
    QTest::newRow("no width") << QRectF(0, 0, 0, 20) << QRectF();
    QTest::newRow("no height") << QRectF(0, 0, 20, 0) << QRectF();
    QTest::newRow("no size") << QRectF(5, 5, 0, 0) << QRectF();
    QTest::newRow("less than half a pixel") << QRectF(0, 0, 0.4, 20) << QRectF();
    QTest::newRow("half a pixel") << QRectF(0, 0, 0.5, 0.5) << QRectF(0, 0, 1, 1);
}

void TestTavroCheckBoxPainting::target()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, expected);
    TavroCheckBox box;
    box.setBoundingRect(rect);
    const auto images = imagesOf([&](QPainter *painter) { box.drawChecked(painter); });
    QCOMPARE(images.size(), expected.isEmpty() ? 0 : 1);
    if (!images.isEmpty())
        QCOMPARE(images.first().target, expected);
    QCOMPARE(box.boundingRect(), rect);
}

void TestTavroCheckBoxPainting::wholeImage()
{
    TavroCheckBox box;
    box.setBoundingRect(QRectF(0.5, 0.5, 23.5, 23.5));
    const DrawnImage drawn = imagesOf([&](QPainter *painter) { box.drawChecked(painter); }).first();
    QCOMPARE(drawn.image.size(), QSize(24, 24));
    QCOMPARE(drawn.source, QRectF(0, 0, 24, 24));
}

void TestTavroCheckBoxPainting::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("hasBorder");
    QTest::addColumn<bool>("isPrint");
    QTest::addColumn<QVector<int>>("kinds");

    const QVector<int> both{PaintCommand::Rect, PaintCommand::Image};
    const QVector<int> mark{PaintCommand::Image};
    QTest::newRow("design") << 0 << true << true << both;
    QTest::newRow("design, no border") << 0 << false << true << mark;
    QTest::newRow("design, not printed") << 0 << true << false << both;
    QTest::newRow("input") << 1 << true << true << both;
    QTest::newRow("input, no border") << 1 << false << true << mark;
    QTest::newRow("input, not printed") << 1 << true << false << both;
    QTest::newRow("print") << 2 << true << true << mark;
    QTest::newRow("print, no border") << 2 << false << true << mark;
    QTest::newRow("print, not printed") << 2 << true << false << QVector<int>();
    QTest::newRow("beyond") << 3 << true << true << QVector<int>();
}

void TestTavroCheckBoxPainting::modes()
{
    QFETCH(int, mode);
    QFETCH(bool, hasBorder);
    QFETCH(bool, isPrint);
    QFETCH(QVector<int>, kinds);
    TavroCheckBox box;
    show(box, EmptyTick, 2);
    box.setHasBorder(hasBorder);
    box.setIsPrint(isPrint);
    box.setPaintMode(static_cast<Paint_Mode>(mode));
    QVector<int> painted;
    for (const PaintCommand &command : probes::paintedBy(box)) {
        painted.append(command.kind);
        const QRectF border(2.5, 3.5, 23, 23);
        QCOMPARE(command.rect, command.kind == PaintCommand::Rect ? border : QRectF(2, 3, 24, 24));
    }
    QCOMPARE(painted, kinds);
}

void TestTavroCheckBoxPainting::lockSign()
{
    TavroCheckBox box;
    show(box, CrossTick, 0);
    box.setIsLocked(true);
    QCOMPARE(probes::paintedBy(box).size(), 2);
    box.setSelected(true);
    const QVector<PaintCommand> painted = probes::paintedBy(box);
    QCOMPARE(painted.size(), 3);
    QCOMPARE(painted.at(0).kind, PaintCommand::Rect);
    QCOMPARE(painted.at(1).rect, QRectF(2, 3, 24, 24));
    QCOMPARE(painted.at(2).kind, PaintCommand::Image);
    QCOMPARE(painted.at(2).rect, QRectF(2, 3, 16, 16));
    for (const Paint_Mode mode : {Paint_Input, Paint_Print}) {
        box.setPaintMode(mode);
        box.setFlag(QGraphicsItem::ItemIsSelectable, true);
        box.setSelected(true);
        QCOMPARE(probes::paintedBy(box).size(), mode == Paint_Input ? 2 : 1);
    }
}

void TestTavroCheckBoxPainting::newObject()
{
    TavroCheckBox box;
    box.setBoundingRect(QRectF(2, 3, 24, 24));
    for (const Paint_Mode mode : {Paint_Design, Paint_Input}) {
        box.setPaintMode(mode);
        QCOMPARE(probes::paintedBy(box).size(), 1);
        QCOMPARE(probes::paintedBy(box).first().kind, PaintCommand::Rect);
    }
    box.setPaintMode(Paint_Print);
    QVERIFY(probes::paintedBy(box).isEmpty());
}

QTEST_MAIN(TestTavroCheckBoxPainting)
#include "tst_tavrocheckboxpainting.moc"
