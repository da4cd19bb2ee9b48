// SPDX-License-Identifier: MIT
#include "tests/cells/gridform.h"
#include "tests/support/stricttest.h"

#include <QScrollBar>

namespace {

const QString Digits = QStringLiteral("123456789012");
const QString Empty = QStringLiteral("____________");

} // namespace

/// The keyboard on a financial edit in a shown form.
class TestFinancialEditInput : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void backspaceWithShownZeros();
    void keysAtTheLimit_data();
    void keysAtTheLimit();
    void amounts_data();
    void amounts();
    void tabIsNoKeyOfTheRow();
    void readOnly_data() { addKeyRows(); }
    void readOnly();
    void withoutFocus_data() { addKeyRows(); }
    void withoutFocus();
    void formScrolls_data();
    void formScrolls();
    void inputMethodIsNotTaken();

private:
    static void addKeyRows();
};

void TestFinancialEditInput::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");
    QTest::addColumn<QString>("content"); // null where nothing is written
    const auto row = [](const QByteArray &name, int key, const char *text, int cursor, const QString &before,
                        const QString &after, int cursorAfter, const QByteArray &content, int modifiers = 0) {
        QTest::newRow(name.constData()) << key << QString::fromLatin1(text) << modifiers << cursor << before << after
                                        << cursorAfter << QString::fromLatin1(content);
    };
    const auto cells = [](const char *word) { return QString::fromLatin1(word); };
    for (int digit = 0; digit <= 9; ++digit) {
        const QByteArray text = QByteArray::number(digit);
        const QString after = digit == 0 ? Empty : QStringLiteral("_________%1").arg(digit) + cells("00");
        const QByteArray content = (digit == 0 ? QByteArray() : text) + ".00";
        row("digit " + text, Qt::Key_0 + digit, text, 9, Empty, after, 10, content);
        row("keypad " + text, Qt::Key_0 + digit, text, 9, Empty, after, 10, content, Qt::KeypadModifier);
    }
    row("digit in the first cell", Qt::Key_5, "5", 0, Empty, cells("500000000000"), 1, "5000000000.00");
    row("digit in the last cell", Qt::Key_5, "5", 11, Empty, cells("___________5"), 11, ".050");
    row("digit over a digit", Qt::Key_5, "5", 2, Digits, cells("125456789012"), 3, "1254567890.12");
    row("zero over the first digit", Qt::Key_0, "0", 0, Digits, cells("_23456789012"), 1, "234567890.12");

    row("Left", Qt::Key_Left, "", 5, Digits, Digits, 4, {});
    row("Left on the first cell", Qt::Key_Left, "", 0, Digits, Digits, 0, {});
    row("Right", Qt::Key_Right, "", 5, Digits, Digits, 6, {});
    row("Right on the last cell", Qt::Key_Right, "", 11, Digits, Digits, 11, {});
    row("Right over empty cells", Qt::Key_Right, "", 0, Empty, Empty, 1, {});

    const QString seven = cells("_________700");
    row("Backspace on a digit", Qt::Key_Backspace, "\b", 5, Digits, Digits, 5, "1234567890.12");
    row("Backspace on the first digit", Qt::Key_Backspace, "\b", 0, Digits, Digits, 0, "1234567890.12");
    row("Backspace on an empty cell", Qt::Key_Backspace, "\b", 5, Empty, Empty, 4, ".00");
    row("Backspace on the first empty cell", Qt::Key_Backspace, "\b", 0, Empty, Empty, 0, ".00");
    row("Backspace left of a digit", Qt::Key_Backspace, "\b", 8, seven, seven, 7, "7.00");
    // The content is written before the zeros are filled in.
    row("Backspace right of a digit", Qt::Key_Backspace, "\b", 10, cells("_________7__"), seven, 9, ".070");
    row("Backspace with gaps", Qt::Key_Backspace, "\b", 2, cells("00000_7_____"), cells("______700000"), 2, "0000.07");

    const auto nothing = [&row](const char *name, int key, const char *text, int modifiers = 0) {
        row(name, key, text, 5, Digits, Digits, 5, {}, modifiers);
    };
    nothing("letter", Qt::Key_A, "a");
    nothing("blank", Qt::Key_Space, " ");
    nothing("minus", Qt::Key_Minus, "-");
    nothing("point", Qt::Key_Period, ".");
    nothing("slash, before the digits", Qt::Key_Slash, "/");
    nothing("colon, behind the digits", Qt::Key_Colon, ":");
    nothing("Up", Qt::Key_Up, "");
    nothing("Down", Qt::Key_Down, "");
    nothing("Home", Qt::Key_Home, "");
    nothing("End", Qt::Key_End, "");
    nothing("Delete", Qt::Key_Delete, "\x7f");
    nothing("Return", Qt::Key_Return, "\r");
    nothing("Enter", Qt::Key_Enter, "\r", Qt::KeypadModifier);
    nothing("Escape", Qt::Key_Escape, "\x1b");
    nothing("digit with Control", Qt::Key_5, "5", Qt::ControlModifier);
    nothing("digit with Control, written as control", Qt::Key_5, "\x1d", Qt::ControlModifier);
    nothing("digit with Alt", Qt::Key_5, "5", Qt::AltModifier);
    nothing("digit without a text", Qt::Key_5, "");
}

void TestFinancialEditInput::keys()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    QFETCH(int, cursor);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    QFETCH(QString, content);
    GridForm form;
    QVERIFY(form.takesKeys());
    setCells(*form.edit, before);
    form.edit->moveCursorTo(cursor);
    const QSignalSpy changed(form.edit, &TavroPrototype::contentDataChanged);
    const bool isArrow = key == Qt::Key_Left || key == Qt::Key_Right;
    QCOMPARE(form.press(key, text, static_cast<Qt::KeyboardModifiers>(modifiers)), isArrow || !content.isNull());
    QCOMPARE(cellsOf(*form.edit), after);
    QCOMPARE(form.edit->cursorIndx(), cursorAfter);
    QCOMPARE(form.edit->contentData().toString(), content);
    QCOMPARE(changed.count(), content.isNull() ? 0 : 1);
    QVERIFY(form.edit->hasFocus());
}

void TestFinancialEditInput::backspaceWithShownZeros()
{
    GridForm form;
    QVERIFY(form.takesKeys());
    form.edit->setIsShowZero(true);
    form.edit->moveCursorTo(5);
    QVERIFY(form.press(Qt::Key_Backspace));
    QCOMPARE(cellsOf(*form.edit), QStringLiteral("_________000"));
    QCOMPARE(form.edit->contentData().toString(), QStringLiteral(".00"));
    QVERIFY(form.press(Qt::Key_Backspace));
    QCOMPARE(form.edit->contentData().toString(), QStringLiteral("0.00"));
    QCOMPARE(form.edit->cursorIndx(), 3);
}

void TestFinancialEditInput::keysAtTheLimit_data()
{
    QTest::addColumn<bool>("isShowLimit");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");
    const int left = Qt::Key_Left;
    const int back = Qt::Key_Backspace;
    QTest::newRow("Left right of the limit") << true << left << 6 << Digits << Digits << 5;
    QTest::newRow("Left on the limit") << true << left << 5 << Digits << Digits << 5;
    QTest::newRow("Left left of the limit") << true << left << 3 << Digits << Digits << 3;
    QTest::newRow("Left, not shown") << false << left << 5 << Digits << Digits << 4;
    QTest::newRow("Right left of the limit") << true << int(Qt::Key_Right) << 3 << Digits << Digits << 4;
    QTest::newRow("Backspace right of the limit") << true << back << 6 << Empty << Empty << 5;
    QTest::newRow("Backspace on the limit") << true << back << 5 << Empty << Empty << 5;
    QTest::newRow("Backspace left of the limit") << true << back << 3 << Empty << Empty << 3;
    QTest::newRow("Backspace, not shown") << false << back << 5 << Empty << Empty << 4;
    const QString typed = QStringLiteral("___500000000");
    QTest::newRow("digit left of the limit") << true << int(Qt::Key_5) << 3 << Empty << typed << 4;
}

void TestFinancialEditInput::keysAtTheLimit()
{
    QFETCH(bool, isShowLimit);
    QFETCH(int, key);
    QFETCH(int, cursor);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    GridForm form;
    QVERIFY(form.takesKeys());
    form.edit->setIsShowLimit(true);
    form.edit->setLimitUnit(6);
    form.edit->setIsShowLimit(isShowLimit);
    setCells(*form.edit, before);
    form.edit->moveCursorTo(cursor);
    QVERIFY(form.press(key, key == Qt::Key_5 ? QStringLiteral("5") : QString()));
    QCOMPARE(cellsOf(*form.edit), after);
    QCOMPARE(form.edit->cursorIndx(), cursorAfter);
}

void TestFinancialEditInput::amounts_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, int cursor, const char *typed, const char *cells, const char *content) {
        QTest::newRow(name) << cursor << QByteArray(typed) << QString::fromLatin1(cells)
                            << QString::fromLatin1(content);
    };
    row("from thousands on", 6, "1234", "______123400", "1234.00");
    row("with places", 6, "123456", "______123456", "1234.56");
    row("over the end", 10, "123", "__________13", ".130");
    row("letters between", 6, "1a2 3", "______123000", "1230.00");
    row("zeros first", 6, "0012", "________1200", "12.00");
    row("full row", 0, "123456789012", "123456789012", "1234567890.12");
}

void TestFinancialEditInput::amounts()
{
    QFETCH(int, cursor);
    QFETCH(QByteArray, typed);
    QFETCH(QString, cells);
    QFETCH(QString, content);
    GridForm form;
    QVERIFY(form.takesKeys());
    form.edit->moveCursorTo(cursor);
    form.type(typed);
    QCOMPARE(cellsOf(*form.edit), cells);
    QCOMPARE(form.edit->contentData().toString(), content);
}

void TestFinancialEditInput::tabIsNoKeyOfTheRow()
{
    GridForm form;
    QVERIFY(form.takesKeys());
    setCells(*form.edit, Digits);
    form.edit->moveCursorTo(5);
    const QSignalSpy changed(form.edit, &TavroPrototype::contentDataChanged);
    form.press(Qt::Key_Tab, QStringLiteral("\t"));
    form.press(Qt::Key_Backtab);
    QCOMPARE(cellsOf(*form.edit), Digits);
    QCOMPARE(form.edit->cursorIndx(), 5);
    QCOMPARE(changed.count(), 0);
}

void TestFinancialEditInput::addKeyRows()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("digit") << int(Qt::Key_5) << QStringLiteral("5");
    QTest::newRow("Left") << int(Qt::Key_Left) << QString();
    QTest::newRow("Right") << int(Qt::Key_Right) << QString();
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << QStringLiteral("\b");
    QTest::newRow("letter") << int(Qt::Key_A) << QStringLiteral("a");
}

void TestFinancialEditInput::readOnly()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    GridForm form;
    QVERIFY(form.takesKeys());
    form.edit->setIsReadOnly(true);
    form.edit->moveCursorTo(5);
    const QSignalSpy changed(form.edit, &TavroPrototype::contentDataChanged);
    QVERIFY(!form.press(key, text));
    QCOMPARE(cellsOf(*form.edit), Empty);
    QCOMPARE(form.edit->cursorIndx(), 5);
    QCOMPARE(changed.count(), 0);
}

void TestFinancialEditInput::withoutFocus()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    GridForm form;
    auto *other = form.addGrid(GridForm::place().translated(0, 100));
    other->setFocus();
    QVERIFY(form.isActive() && other->hasFocus());
    form.edit->moveCursorTo(5);
    const QSignalSpy changed(form.edit, &TavroPrototype::contentDataChanged);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    form.scene().sendEvent(form.edit, &event);
    QVERIFY(!event.isAccepted());
    form.press(key, text);
    QCOMPARE(cellsOf(*form.edit), Empty);
    QCOMPARE(form.edit->cursorIndx(), 5);
    QCOMPARE(changed.count(), 0);
}

// A form larger than its window moves under arrow keys that mean nothing in the field.
void TestFinancialEditInput::formScrolls_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<bool>("isReadOnly");
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("Left") << int(Qt::Key_Left) << 5 << false << false;
    QTest::newRow("Left on the first cell") << int(Qt::Key_Left) << 0 << false << false;
    QTest::newRow("Right") << int(Qt::Key_Right) << 5 << false << false;
    QTest::newRow("Right on the last cell") << int(Qt::Key_Right) << 11 << false << false;
    QTest::newRow("Left, read-only") << int(Qt::Key_Left) << 5 << true << true;
    QTest::newRow("Right, read-only") << int(Qt::Key_Right) << 5 << true << true;
    QTest::newRow("Down") << int(Qt::Key_Down) << 5 << false << true;
}

void TestFinancialEditInput::formScrolls()
{
    QFETCH(int, key);
    QFETCH(int, cursor);
    QFETCH(bool, isReadOnly);
    QFETCH(bool, scrolls);
    GridForm form(QRectF(0, 0, 2000, 2000));
    QVERIFY(form.takesKeys());
    form.edit->setIsReadOnly(isReadOnly);
    form.edit->moveCursorTo(cursor);
    const auto place = [&form] {
        return QPoint(form.view().horizontalScrollBar()->value(), form.view().verticalScrollBar()->value());
    };
    form.view().centerOn(1000, 1000);
    const QPoint before = place();
    QVERIFY(before.x() > 0 && before.y() > 0);
    form.press(key);
    QCOMPARE(place() != before, scrolls);
}

void TestFinancialEditInput::inputMethodIsNotTaken()
{
    GridForm form;
    QVERIFY(form.takesKeys());
    QVERIFY(!form.view().testAttribute(Qt::WA_InputMethodEnabled));
    const QSignalSpy changed(form.edit, &TavroPrototype::contentDataChanged);
    form.commit(QStringLiteral("5"));
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("5"));
    form.scene().sendEvent(form.edit, &event);
    QCOMPARE(cellsOf(*form.edit), Empty);
    QCOMPARE(form.edit->cursorIndx(), 0);
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(TestFinancialEditInput)
#include "tst_financialeditinput.moc"
