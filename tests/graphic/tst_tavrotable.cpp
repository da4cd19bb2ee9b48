// SPDX-License-Identifier: MIT
#include "graphic/tavrotable.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"
#include "tests/support/virtualslots.h"

#include <QStyleOptionGraphicsItem>
#include <QTest>

/// Table placeholders.
class TestTavroTable : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void virtualOperations();
    void paintsNothing_data();
    void paintsNothing();
    void leavesThePainterAlone();
    void shownWhileSelected();
    void movedAndLocked();
    void resized();
    void restacked();
    void valueAndRenew();
};

void TestTavroTable::construction()
{
    const TavroTable table;
    QCOMPARE(table.objType(), Obj_Table);
    QCOMPARE(int(table.objType()), 12);
    QCOMPARE(table.type(), 65535);
    QVERIFY(!table.isModified());
    QVERIFY(table.hasBorder());
    QCOMPARE(table.boundingRect(), QRectF());
    QVERIFY(table.contentData().isNull());
    const QMetaObject &own = TavroTable::staticMetaObject;
    QCOMPARE(own.propertyCount(), own.propertyOffset());
    QCOMPARE(own.methodCount(), own.methodOffset());
}

void TestTavroTable::virtualOperations()
{
#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
    QCOMPARE(slotOf(&TavroTable::designPaint), slotOf(&TavroPrototype::designPaint));
    QCOMPARE(slotOf(&TavroTable::inputPaint), slotOf(&TavroPrototype::inputPaint));
    QCOMPARE(slotOf(&TavroTable::printPaint), slotOf(&TavroPrototype::printPaint));
#else
    QSKIP("slots are read off pointers to members on x86-64 only");
#endif
}

void TestTavroTable::paintsNothing_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("border");
    QTest::addColumn<bool>("print");
    for (int mode = 0; mode <= 3; ++mode) {
        for (const bool border : {true, false}) {
            for (const bool print : {true, false})
                QTest::addRow("mode %d, border %d, print %d", mode, border, print) << mode << border << print;
        }
    }
}

void TestTavroTable::paintsNothing()
{
    QFETCH(int, mode);
    QFETCH(bool, border);
    QFETCH(bool, print);
    TavroTable table;
    table.setBoundingRect(QRectF(10, 20, 60, 40));
    table.setContentData(QStringLiteral("rows"));
    table.setHasBorder(border);
    table.setIsPrint(print);
    table.setIsLocked(true);
    table.setPaintMode(static_cast<Paint_Mode>(mode));
    table.setFlag(QGraphicsItem::ItemIsSelectable);
    for (const bool selected : {false, true}) {
        table.setSelected(selected);
        QCOMPARE(table.isSelected(), selected);
        QVERIFY(probes::paintedBy(table).isEmpty());
    }
}

void TestTavroTable::leavesThePainterAlone()
{
    TavroTable table;
    table.setBoundingRect(QRectF(0, 0, 60, 40));
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(QColor(1, 2, 3), 5);
    painter.setPen(pen);
    table.designPaint(&painter);
    table.inputPaint(&painter);
    table.printPaint(&painter);
    QCOMPARE(painter.pen(), pen);
    QVERIFY(!painter.hasClipping());
    QVERIFY(device.commands().isEmpty());
}

void TestTavroTable::shownWhileSelected()
{
    TavroTable table;
    table.setBoundingRect(QRectF(10, 20, 60, 40));
    const SizeDashRect *frame = probes::dashRectOf(table);
    QVERIFY(!frame->isVisible());
    QVERIFY(probes::visibleHandles(table).isEmpty());
    table.setSelected(true);
    QVERIFY(frame->isVisible());
    QCOMPARE(probes::visibleHandles(table), QVector<int>({0, 1, 2, 3, 4, 5, 6, 7}));
    const QVector<PaintCommand> painted = probes::paintedBy(*probes::dashRectOf(table));
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().rect, QRectF(10, 20, 60, 40));
    table.setSelected(false);
    QVERIFY(!frame->isVisible());
}

void TestTavroTable::movedAndLocked()
{
    QGraphicsScene scene;
    auto *table = new TavroTable;
    table->setBoundingRect(QRectF(0, 0, 60, 40));
    scene.addItem(table);
    probes::drag(scene, {30, 20}, {50, 60});
    QCOMPARE(table->scenePos(), QPointF(20, 40));
    table->setIsLocked(true);
    QVERIFY(table->isModified());
    probes::drag(scene, {40, 50}, {90, 90});
    QCOMPARE(table->scenePos(), QPointF(20, 40));
    table->setSelected(true);
    QVERIFY(probes::visibleHandles(*table).isEmpty());
    QVERIFY(probes::dashRectOf(*table)->isVisible());
    table->setIsLocked(false);
    QCOMPARE(probes::visibleHandles(*table).size(), 8);
}

void TestTavroTable::resized()
{
    TavroTable table;
    table.setBoundingRect(QRectF(10, 20, 60, 40));
    table.setSelected(true);
    QCOMPARE(table.hitTest(QPointF(70, 60)), Handle_BottomRight);
    table.resize(Handle_BottomRight, QPointF(100, 5));
    QCOMPARE(table.boundingRect(), QRectF(10, 20, 90, -15));
    table.resize(Handle_Center, QPointF(0, 0));
    QCOMPARE(table.boundingRect(), QRectF(10, 20, 90, -15));
}

void TestTavroTable::restacked()
{
    QGraphicsScene scene;
    auto *lower = new TavroTable;
    auto *upper = new TavroTable;
    for (TavroTable *table : {lower, upper}) {
        table->setBoundingRect(QRectF(0, 0, 60, 40));
        scene.addItem(table);
    }
    upper->setZValue(1);
    lower->bringObjToFront();
    QVERIFY(lower->zValue() > upper->zValue());
    lower->lowerObjDown();
    QVERIFY(lower->zValue() < upper->zValue());
}

void TestTavroTable::valueAndRenew()
{
    TavroTable table;
    table.setPresetData(7);
    table.setContentData(QStringLiteral("rows"));
    QCOMPARE(table.contentData(), QVariant(QStringLiteral("rows")));
    QVERIFY(table.isValid());
    table.renew();
    QCOMPARE(table.contentData(), QVariant(7));
    table.bindToDB(QStringLiteral("cheques"), QStringLiteral("lines"));
    QVERIFY(table.isBindingToDB());
}

QTEST_MAIN(TestTavroTable)
#include "tst_tavrotable.moc"
