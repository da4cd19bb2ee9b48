// SPDX-License-Identifier: MIT
#include "tests/cells/gridform.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <algorithm>
#include <functional>

using Change = std::function<void(GridForm &)>;
Q_DECLARE_METATYPE(Change)

namespace {

const QString Digits = QStringLiteral("123456789012");

bool showsCursor(TavroFinancialEdit &edit)
{
    const QVector<PaintCommand> commands = probes::paintedBy(edit);
    return std::any_of(commands.cbegin(), commands.cend(),
                       [](const PaintCommand &command) { return command.brush.color() == QColor(102, 204, 153, 127); });
}

} // namespace

/// Clicks on a financial edit in a shown form, and its cursor while it has the keyboard.
class TestFinancialEditFocus : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void clicks_data();
    void clicks();
    void clickOfALimitOutsideTheRow();
    void clickTakesTheKeyboard();
    void pressStaysInTheUpperField_data();
    void pressStaysInTheUpperField();
    void printedFieldLeavesThePress();
    void cursorBlinksWithFocus();
    void onlyTheOwnTimerBlinks();
    void leavingTheInputModeLeavesTheKeyboard();
    void changesAreRepainted_data();
    void changesAreRepainted();
};

void TestFinancialEditFocus::clicks_data()
{
    QTest::addColumn<bool>("isShowLimit");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<int>("cursor"); // was on 8
    QTest::newRow("first cell") << false << QPointF(30, 80) << 0;
    QTest::newRow("fourth cell") << false << QPointF(90, 80) << 3;
    QTest::newRow("last cell") << false << QPointF(250, 80) << 11;
    QTest::newRow("top of a cell") << false << QPointF(90, 51) << 3;
    QTest::newRow("row of words") << false << QPointF(90, 45) << 8;
    QTest::newRow("left of the grid") << false << QPointF(10, 80) << 8;
    QTest::newRow("right of the grid") << false << QPointF(270, 80) << 8;
    QTest::newRow("below the grid") << false << QPointF(90, 110) << 8;
    QTest::newRow("first cell above the limit") << true << QPointF(30, 80) << 5;
    QTest::newRow("last cell above the limit") << true << QPointF(110, 80) << 5;
    QTest::newRow("cell of the limit") << true << QPointF(130, 80) << 5;
    QTest::newRow("below the limit") << true << QPointF(150, 80) << 6;
    QTest::newRow("words above the limit") << true << QPointF(30, 45) << 8;
}

void TestFinancialEditFocus::clicks()
{
    QFETCH(bool, isShowLimit);
    QFETCH(QPointF, place);
    QFETCH(int, cursor);
    GridForm form;
    QVERIFY(form.isActive());
    form.edit->setIsShowLimit(true);
    form.edit->setLimitUnit(6);
    form.edit->setIsShowLimit(isShowLimit);
    setCells(*form.edit, Digits);
    form.edit->moveCursorTo(8);
    const QSignalSpy changed(form.edit, &TavroPrototype::contentDataChanged);
    form.click(place);
    QCOMPARE(form.edit->cursorIndx(), cursor);
    QCOMPARE(cellsOf(*form.edit), Digits);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(form.edit->hasFocus(), GridForm::place().contains(place));
}

// The cell of the limit is still that of the range before.
void TestFinancialEditFocus::clickOfALimitOutsideTheRow()
{
    GridForm form;
    QVERIFY(form.isActive());
    form.edit->setIsShowLimit(true);
    form.edit->setLimitUnit(6);
    QVERIFY(form.edit->setUnitRange(0, 3));
    form.edit->moveCursorTo(2);
    form.click({30, 80});
    QCOMPARE(form.edit->cursorIndx(), 2);
}

void TestFinancialEditFocus::clickTakesTheKeyboard()
{
    GridForm form;
    QVERIFY(form.isActive());
    form.click({210, 80});
    QVERIFY(form.edit->hasFocus());
    form.type("42");
    QCOMPARE(cellsOf(*form.edit), QStringLiteral("_________420"));
    for (const Paint_Mode mode : {Paint_Design, Paint_Print}) {
        form.edit->clearFocus();
        form.edit->setPaintMode(mode);
        form.click({30, 80});
        QVERIFY(!form.edit->hasFocus());
    }
}

void TestFinancialEditFocus::pressStaysInTheUpperField_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::newRow("cell") << QPointF(90, 80);
    QTest::newRow("cell with the cursor") << QPointF(30, 80);
    QTest::newRow("cell above the limit") << QPointF(50, 80);
}

void TestFinancialEditFocus::pressStaysInTheUpperField()
{
    QFETCH(QPointF, place);
    GridForm form;
    QVERIFY(form.isActive());
    auto *upper = form.addGrid(GridForm::place());
    upper->setIsShowLimit(true);
    upper->setLimitUnit(9);
    form.edit->moveCursorTo(8);
    form.click(place);
    QVERIFY(upper->hasFocus());
    QCOMPARE(form.edit->cursorIndx(), 8);
    upper->setVisible(false);
    form.click(place);
    QVERIFY(form.edit->cursorIndx() != 8);
}

// Only what is filled in takes presses: a printed field is no more than paint.
void TestFinancialEditFocus::printedFieldLeavesThePress()
{
    GridForm form;
    QVERIFY(form.isActive());
    auto *upper = form.addGrid(GridForm::place());
    upper->setPaintMode(Paint_Print);
    form.edit->moveCursorTo(8);
    form.click({90, 80});
    QVERIFY(form.edit->hasFocus());
    QCOMPARE(form.edit->cursorIndx(), 3);
}

void TestFinancialEditFocus::cursorBlinksWithFocus()
{
    GridForm form;
    QVERIFY(form.isActive());
    QCOMPARE(timersOf(form.edit).size(), 0);
    for (int turn = 0; turn < 2; ++turn) {
        form.edit->setFocus();
        QCOMPARE(timersOf(form.edit).size(), 1);
        QCOMPARE(timersOf(form.edit).first().interval, 500);
        QCOMPARE(timersOf(form.edit).first().timerType, Qt::CoarseTimer);
        QVERIFY(!showsCursor(*form.edit));
        for (const bool shown : {true, false, true}) {
            tick(form.edit);
            QCOMPARE(showsCursor(*form.edit), shown);
        }
        form.edit->clearFocus();
        QCOMPARE(timersOf(form.edit).size(), 0);
        QVERIFY(!showsCursor(*form.edit));
    }
}

void TestFinancialEditFocus::onlyTheOwnTimerBlinks()
{
    GridForm form;
    QVERIFY(form.takesKeys());
    QTimerEvent other(timersOf(form.edit).first().timerId + 1);
    QCoreApplication::sendEvent(form.edit, &other);
    QVERIFY(!showsCursor(*form.edit));
    // A tick that was under way when the focus went.
    QTimerEvent late(timersOf(form.edit).first().timerId);
    form.edit->clearFocus();
    QCoreApplication::sendEvent(form.edit, &late);
    QVERIFY(!showsCursor(*form.edit));
}

void TestFinancialEditFocus::leavingTheInputModeLeavesTheKeyboard()
{
    GridForm form;
    QVERIFY(form.takesKeys());
    tick(form.edit);
    form.edit->setPaintMode(Paint_Design);
    QVERIFY(!form.edit->hasFocus());
    QCOMPARE(timersOf(form.edit).size(), 0);
    QVERIFY(!showsCursor(*form.edit));
}

void TestFinancialEditFocus::changesAreRepainted_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("digit", [](GridForm &form) { form.press(Qt::Key_5, QStringLiteral("5")); });
    row("letter", [](GridForm &form) { form.press(Qt::Key_A, QStringLiteral("a")); });
    row("Right", [](GridForm &form) { form.press(Qt::Key_Right); });
    row("Backspace", [](GridForm &form) { form.press(Qt::Key_Backspace); });
    row("click on a cell", [](GridForm &form) { form.click({90, 80}); });
    row("tick", [](GridForm &form) { tick(form.edit); });
    row("focus out", [](GridForm &form) { form.edit->clearFocus(); });
    row("cells", [](GridForm &form) { form.edit->syncEditableGeometry(); });
    row("content to cells", [](GridForm &form) { form.edit->syncDigitList(); });
    row("number of cells", [](GridForm &form) { form.edit->setNumOfEditable(3); });
    row("currency", [](GridForm &form) { form.edit->setCurrency(Currency_Pound); });
    row("words", [](GridForm &form) { form.edit->setIsDrawMonetaryUnit(false); });
    row("limit shown", [](GridForm &form) { form.edit->setIsShowLimit(true); });
    row("cell of the limit", [](GridForm &form) { form.edit->updateIndxOfLimitUnit(); });
    row("limit", [](GridForm &form) { form.edit->setLimitUnit(6); });
}

void TestFinancialEditFocus::changesAreRepainted()
{
    QFETCH(Change, change);
    GridForm form;
    QVERIFY(form.takesKeys());
    tick(form.edit);
    QSignalSpy repainted(&form.scene(), &QGraphicsScene::changed);
    QTRY_VERIFY(!repainted.isEmpty());
    // What is due by now is painted, but the cursor does not tick.
    while (!repainted.isEmpty()) {
        repainted.clear();
        QCoreApplication::sendPostedEvents();
    }
    change(form);
    QCoreApplication::sendPostedEvents();
    QVERIFY(!repainted.isEmpty());
}

QTEST_MAIN(TestFinancialEditFocus)
#include "tst_financialeditfocus.moc"
