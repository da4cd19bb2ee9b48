// SPDX-License-Identifier: MIT
// Presses on a form: which cell takes the cursor, and who takes the press.
#include "cells/tavroseperateedit.h"
#include "tests/cells/cellview.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QGraphicsSceneMouseEvent>
#include <QSignalSpy>
#include <QTest>

using seperatecells::cellsOf;

namespace {

using Edit = TavroSeperateEdit;

// 350 x 40 px that stand for 70 mm: seven cells of 25 px, each with a gap of 25 px.
Edit *addRow(CellView &form, const QPointF &topLeft = QPointF(20, 20), Paint_Mode mode = Paint_Input)
{
    auto *edit = form.add<Edit>(QRectF(), mode);
    edit->setPhyRect(QRectF(0, 0, 70, 8));
    edit->setBoundingRect(QRectF(topLeft, QSizeF(350, 40)));
    return edit;
}

} // namespace

class TestSeperateEditPointing : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void press_data();
    void press();
    void pressOnMovedAndTurnedRow();
    void pressOnRowOfNegativeSize();
    void pressInEachMode_data();
    void pressInEachMode();
    void pressOnReadOnlyRow();
    void pressOnRowWithoutFocus();
    void pressOnDisabledRow();
    void otherButtons_data();
    void otherButtons();
    void pressChangesNoCell();
    void typedWhereItWasPressed();
    void fieldBelowIsNotPressed_data();
    void fieldBelowIsNotPressed();
    void pressIsTakenInInputMode_data();
    void pressIsTakenInInputMode();
    void pressSelectsInDesignMode();
};

void TestSeperateEditPointing::press_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<int>("cursor");
    QTest::newRow("first cell") << QPointF(30, 40) << 0;
    QTest::newRow("second cell") << QPointF(80, 40) << 1;
    QTest::newRow("fourth cell") << QPointF(180, 40) << 3;
    QTest::newRow("last cell") << QPointF(330, 40) << 6;
    QTest::newRow("top of a cell") << QPointF(80, 22) << 1;
    QTest::newRow("bottom of a cell") << QPointF(80, 58) << 1;
    QTest::newRow("gap") << QPointF(107, 40) << 5;
    QTest::newRow("gap behind the last cell") << QPointF(357, 40) << 5;
    QTest::newRow("beside the row") << QPointF(10, 40) << 5;
    QTest::newRow("below the row") << QPointF(80, 100) << 5;
}

void TestSeperateEditPointing::press()
{
    QFETCH(QPointF, place);
    QFETCH(int, cursor);
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form);
    edit->moveCursorTo(5);
    form.click(place);
    QCOMPARE(edit->cursorIndx(), cursor);
}

void TestSeperateEditPointing::pressOnMovedAndTurnedRow()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form);
    edit->setPos(0, 100);
    form.click(QPointF(180, 140));
    QCOMPARE(edit->cursorIndx(), 3);
    edit->setPos(0, 0);
    edit->setRotateAngle(180);
    edit->updateObjRotation();
    form.click(edit->mapToScene(edit->rectAt(5).center()));
    QCOMPARE(edit->cursorIndx(), 5);
    form.click(QPointF(360, 40));
    QCOMPARE(edit->cursorIndx(), 0);
}

void TestSeperateEditPointing::pressOnRowOfNegativeSize()
{
    CellView form;
    form.scene().setItemIndexMethod(QGraphicsScene::NoIndex);
    QVERIFY(form.isActive());
    Edit *edit = addRow(form);
    edit->setBoundingRect(QRectF(370, 60, -350, -40));
    form.click(QPointF(360, 40));
    QCOMPARE(edit->cursorIndx(), 0);
    form.click(QPointF(260, 40));
    QCOMPARE(edit->cursorIndx(), 2);
}

void TestSeperateEditPointing::pressInEachMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("paintMode");
    for (const int mode : {0, 1, 2, 3, 4}) {
        for (const int paintMode : {0, 1, 2, 7})
            QTest::addRow("mode %d, paint mode %d", mode, paintMode) << mode << paintMode;
    }
}

void TestSeperateEditPointing::pressInEachMode()
{
    QFETCH(int, mode);
    QFETCH(int, paintMode);
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, QPointF(20, 20), static_cast<Paint_Mode>(paintMode));
    edit->setSeperateMode(static_cast<SeperateMode>(mode));
    edit->setBoundingRect(edit->boundingRect());
    form.click(edit->rectAt(4).center());
    QCOMPARE(edit->cursorIndx(), 4);
    QCOMPARE(edit->hasFocus(), paintMode == 1);
}

void TestSeperateEditPointing::pressOnReadOnlyRow()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form);
    edit->setIsReadOnly(true);
    form.click(edit->rectAt(4).center());
    QCOMPARE(edit->cursorIndx(), 4);
    form.type("1");
    QCOMPARE(cellsOf(*edit), QStringLiteral("_ _ _ _ _ _ _"));
}

void TestSeperateEditPointing::pressOnRowWithoutFocus()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form);
    edit->setFocusable(false);
    form.click(edit->rectAt(4).center());
    QCOMPARE(edit->cursorIndx(), 4);
    QVERIFY(!edit->hasFocus());
}

void TestSeperateEditPointing::pressOnDisabledRow()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, QPointF(20, 20), Paint_Design);
    edit->setObjEnabled(false);
    edit->setPaintMode(Paint_Input);
    form.click(edit->rectAt(4).center());
    QCOMPARE(edit->cursorIndx(), 0);
    QVERIFY(!edit->hasFocus());
}

void TestSeperateEditPointing::otherButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << static_cast<int>(Qt::RightButton);
    QTest::newRow("middle") << static_cast<int>(Qt::MiddleButton);
}

void TestSeperateEditPointing::otherButtons()
{
    QFETCH(int, button);
    CellView form;
    QVERIFY(form.isActive());
    const Edit *edit = addRow(form);
    form.click(edit->rectAt(4).center(), static_cast<Qt::MouseButton>(button));
    QCOMPARE(edit->cursorIndx(), 4);
}

void TestSeperateEditPointing::pressChangesNoCell()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form);
    edit->setContentData(QStringLiteral("12.50"));
    edit->setIsModified(false);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    form.click(edit->rectAt(4).center());
    QCOMPARE(cellsOf(*edit), QStringLiteral("_ _ _ 1 2 5 0"));
    QCOMPARE(edit->contentData(), QVariant(QStringLiteral("12.50")));
    QCOMPARE(changed.count(), 0);
    QVERIFY(!edit->isModified());
}

void TestSeperateEditPointing::typedWhereItWasPressed()
{
    CellView form;
    QVERIFY(form.isActive());
    const Edit *first = addRow(form);
    const Edit *second = addRow(form, QPointF(20, 100));
    form.click(first->rectAt(3).center());
    form.type("12");
    form.click(second->rectAt(4).center());
    form.type("7");
    form.click(first->rectAt(1).center());
    form.type("9");
    QCOMPARE(cellsOf(*first), QStringLiteral("_ 9 0 1 2 0 0"));
    QCOMPARE(first->contentData(), QVariant(QStringLiteral("9012.00")));
    QCOMPARE(cellsOf(*second), QStringLiteral("_ _ _ _ 7 0 0"));
}

void TestSeperateEditPointing::fieldBelowIsNotPressed_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<int>("cursorAbove");
    QTest::addColumn<int>("cursorBelow");
    QTest::newRow("in a cell") << QPointF(180, 40) << 3 << 0;
    // The field below has cells where the one above has gaps.
    QTest::newRow("in a gap") << QPointF(205, 40) << 0 << 3;
}

void TestSeperateEditPointing::fieldBelowIsNotPressed()
{
    QFETCH(QPointF, place);
    QFETCH(int, cursorAbove);
    QFETCH(int, cursorBelow);
    CellView form;
    QVERIFY(form.isActive());
    Edit *below = addRow(form);
    below->setPhyWidthOfSeperator(0);
    below->syncRectGeometry();
    const Edit *above = addRow(form);
    form.click(place);
    QCOMPARE(above->cursorIndx(), cursorAbove);
    QCOMPARE(below->cursorIndx(), cursorBelow);
}

void TestSeperateEditPointing::pressIsTakenInInputMode_data()
{
    QTest::addColumn<int>("paintMode");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<bool>("taken");
    QTest::newRow("input, in a cell") << 1 << QPointF(180, 40) << true;
    QTest::newRow("input, in a gap") << 1 << QPointF(205, 40) << false;
    QTest::newRow("print, in a cell") << 2 << QPointF(180, 40) << false;
    QTest::newRow("print, in a gap") << 2 << QPointF(205, 40) << false;
    QTest::newRow("beyond the paint modes, in a cell") << 7 << QPointF(180, 40) << false;
    QTest::newRow("design, in a cell") << 0 << QPointF(180, 40) << true;
    QTest::newRow("design, in a gap") << 0 << QPointF(205, 40) << true;
}

void TestSeperateEditPointing::pressIsTakenInInputMode()
{
    QFETCH(int, paintMode);
    QFETCH(QPointF, place);
    QFETCH(bool, taken);
    CellView form;
    QVERIFY(form.isActive());
    const QGraphicsItem *edit = addRow(form, QPointF(20, 20), static_cast<Paint_Mode>(paintMode));
    QCOMPARE(form.takerOfPress(place), taken ? edit : nullptr);
}

// The press is the object's first, as on every other kind.
void TestSeperateEditPointing::pressSelectsInDesignMode()
{
    CellView form;
    QVERIFY(form.isActive());
    const Edit *edit = addRow(form, QPointF(20, 20), Paint_Design);
    form.click(QPointF(180, 40));
    QVERIFY(edit->isSelected());
    QCOMPARE(edit->cursorIndx(), 3);
    const Edit *filledIn = addRow(form, QPointF(20, 100));
    form.click(QPointF(180, 120));
    QVERIFY(!filledIn->isSelected());
}

QTEST_MAIN(TestSeperateEditPointing)
#include "tst_seperateeditpointing.moc"
