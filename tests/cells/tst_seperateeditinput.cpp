// SPDX-License-Identifier: MIT
// Keys and input methods on a form: which of them reach the cells, and which are left to the window.
#include "cells/tavroseperateedit.h"
#include "tests/cells/cellview.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using seperatecells::cellsOf;
using seperatecells::fill;
using seperatecells::rowOf;

namespace {

using Edit = TavroSeperateEdit;

// What a key does to the row "1 2 3 4 5 6" with the cursor on the 4.
enum Effect { Nothing, Announces, Writes, MovesLeft, MovesRight, Deletes };

QString rowAfter(int effect, const QString &text)
{
    if (effect == Writes)
        return QStringLiteral("1 2 3 %1 5 6, 4").arg(text);
    if (effect == Deletes)
        return QStringLiteral("1 2 3 _ 5 6, 3");
    const int cursor = effect == MovesLeft ? 2 : effect == MovesRight ? 4 : 3;
    return QStringLiteral("1 2 3 4 5 6, %1").arg(cursor);
}

// A row of six cells with the keyboard, the cursor on the fourth.
Edit *addRow(CellView &form, int mode)
{
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setSeperateMode(static_cast<SeperateMode>(mode));
    edit->setNumOfEditable(6);
    fill(*edit, QStringLiteral("1 2 3 4 5 6"));
    edit->moveCursorTo(3);
    edit->setFocus();
    return edit;
}

} // namespace

class TestSeperateEditInput : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void key_data() { addKeyRows({0, 1, 2, 3, 4, -1}); }
    void key();
    void keysOnReadOnlyRow_data() { addKeyRows({0, 3}); }
    void keysOnReadOnlyRow();
    void keysWithoutFocus_data() { addKeyRows({0, 3}); }
    void keysWithoutFocus();
    void typedAmount_data();
    void typedAmount();
    void typedCharacters_data();
    void typedCharacters();
    void backspaceClearsTheRowCellByCell();
    void arrowsStopAtTheEnds();
    void arrowsDoNotScroll();

private:
    static void addKeyRows(const std::vector<int> &modes);
};

void TestSeperateEditInput::addKeyRows(const std::vector<int> &modes)
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("effect");
    const auto row = [&modes](const char *name, int key, const char *text, int modifiers, Effect digits,
                              Effect characters, Effect beyond) {
        for (const int mode : modes) {
            const Effect effect = mode == 3 ? characters : mode >= 0 && mode < 3 ? digits : beyond;
            QTest::addRow("%s, mode %d", name, mode)
                << mode << key << QString::fromUtf8(text) << modifiers << static_cast<int>(effect);
        }
    };
    const auto same = [&row](const char *name, int key, const char *text, int modifiers, Effect effect) {
        row(name, key, text, modifiers, effect, effect, effect);
    };
    row("digit", Qt::Key_9, "9", 0, Writes, Writes, Announces);
    row("lowest digit", Qt::Key_0, "0", 0, Writes, Writes, Announces);
    row("digit of the keypad", Qt::Key_7, "7", Qt::KeypadModifier, Writes, Writes, Announces);
    row("digit with Shift", Qt::Key_7, "7", Qt::ShiftModifier, Writes, Writes, Announces);
    row("digit of the third level", Qt::Key_7, "7", Qt::ControlModifier | Qt::AltModifier, Writes, Writes, Announces);
    row("letter", Qt::Key_A, "a", 0, Announces, Writes, Announces);
    row("capital letter", Qt::Key_A, "A", Qt::ShiftModifier, Announces, Writes, Announces);
    row("letter without Latin key", Qt::Key_unknown, "壹", 0, Announces, Writes, Announces);
    row("point", Qt::Key_Period, ".", 0, Announces, Writes, Announces);
    row("point of the keypad", Qt::Key_Period, ".", Qt::KeypadModifier, Announces, Writes, Announces);
    row("minus", Qt::Key_Minus, "-", 0, Announces, Writes, Announces);
    row("slash, one below the digits", Qt::Key_Slash, "/", 0, Announces, Writes, Announces);
    row("colon, one above the digits", Qt::Key_Colon, ":", 0, Announces, Writes, Announces);
    same("Left", Qt::Key_Left, "", 0, MovesLeft);
    same("Left of the keypad", Qt::Key_Left, "", Qt::KeypadModifier, MovesLeft);
    same("Right", Qt::Key_Right, "", 0, MovesRight);
    same("Right of the keypad", Qt::Key_Right, "", Qt::KeypadModifier, MovesRight);
    same("Backspace", Qt::Key_Backspace, "\b", 0, Deletes);
    same("Backspace without a text", Qt::Key_Backspace, "", 0, Deletes);
    same("Delete", Qt::Key_Delete, "\x7f", 0, Nothing);
    same("Delete without a text", Qt::Key_Delete, "", 0, Nothing);
    same("Home", Qt::Key_Home, "", 0, Nothing);
    same("End", Qt::Key_End, "", 0, Nothing);
    same("Up", Qt::Key_Up, "", 0, Nothing);
    same("Down", Qt::Key_Down, "", 0, Nothing);
    same("Page up", Qt::Key_PageUp, "", 0, Nothing);
    same("Page down", Qt::Key_PageDown, "", 0, Nothing);
    same("Insert", Qt::Key_Insert, "", 0, Nothing);
    same("Tab", Qt::Key_Tab, "\t", 0, Nothing);
    same("Backtab", Qt::Key_Backtab, "", Qt::ShiftModifier, Nothing);
    same("Return", Qt::Key_Return, "\r", 0, Nothing);
    same("Enter", Qt::Key_Enter, "\r", Qt::KeypadModifier, Nothing);
    same("Escape", Qt::Key_Escape, "\x1b", 0, Nothing);
    same("Shift", Qt::Key_Shift, "", Qt::ShiftModifier, Nothing);
    same("function key", Qt::Key_F5, "", 0, Nothing);
    same("digit without a text", Qt::Key_5, "", 0, Nothing);
    same("letter without a text", Qt::Key_A, "", 0, Nothing);
    same("digit with Control", Qt::Key_5, "5", Qt::ControlModifier, Nothing);
    same("digit with Alt", Qt::Key_5, "5", Qt::AltModifier, Nothing);
    same("digit with Meta", Qt::Key_5, "5", Qt::MetaModifier, Nothing);
    same("letter with Control", Qt::Key_A, "\x01", Qt::ControlModifier, Nothing);
}

void TestSeperateEditInput::key()
{
    QFETCH(int, mode);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    QFETCH(int, effect);
    CellView form;
    QVERIFY(form.isActive());
    const Edit *edit = addRow(form, mode);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    const bool accepted = form.press(key, text, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(rowOf(*edit), rowAfter(effect, text));
    QCOMPARE(accepted, effect != Nothing);
    const bool announces = effect == Announces || effect == Writes || effect == Deletes;
    QCOMPARE(changed.count(), announces ? 1 : 0);
    const QString digits = cellsOf(*edit).remove(QLatin1Char(' ')).remove(QLatin1Char('_'));
    const QString amount = QString(digits).insert(digits.size() - 2, QLatin1Char('.'));
    QCOMPARE(edit->contentData(), announces ? QVariant(mode == 0 ? amount : digits) : QVariant());
}

void TestSeperateEditInput::keysOnReadOnlyRow()
{
    QFETCH(int, mode);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, mode);
    edit->setIsReadOnly(true);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    QVERIFY(edit->hasFocus());
    QVERIFY(!form.press(key, text, Qt::KeyboardModifiers(modifiers)));
    QCOMPARE(rowOf(*edit), rowAfter(Nothing, text));
    QCOMPARE(changed.count(), 0);
}

void TestSeperateEditInput::keysWithoutFocus()
{
    QFETCH(int, mode);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, modifiers);
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, mode);
    edit->clearFocus();
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
    form.scene().sendEvent(edit, &event);
    // On a form without focus, Tab gives it to an item.
    QCOMPARE(event.isAccepted(), key == Qt::Key_Tab || key == Qt::Key_Backtab);
    QVERIFY(!form.press(key, text, Qt::KeyboardModifiers(modifiers)));
    QCOMPARE(rowOf(*edit), rowAfter(Nothing, text));
    QCOMPARE(changed.count(), 0);
}

void TestSeperateEditInput::typedAmount_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, int cursor, const char *keys, const char *after, const char *content) {
        QTest::newRow(name) << cursor << QString::fromLatin1(keys) << QString::fromLatin1(after)
                            << QString::fromLatin1(content);
    };
    row("one digit", 0, "1", "1 0 0 0 0 0 0, 1", "10000.00");
    row("five digits", 0, "12345", "1 2 3 4 5 0 0, 5", "12345.00");
    row("full row", 0, "1234567", "1 2 3 4 5 6 7, 6", "12345.67");
    row("last cell is written again", 0, "12345678", "1 2 3 4 5 6 8, 6", "12345.68");
    row("from 元 on", 4, "305", "_ _ _ _ 3 0 5, 6", "3.05");
    row("behind 元", 5, "25", "_ _ _ _ _ 2 5, 6", "0.25");
    row("分 alone", 6, "7", "_ _ _ _ _ _ 7, 6", "0.7");
    row("zeros first", 0, "0012", "_ _ 1 2 0 0 0, 4", "120.00");
    row("zeros alone", 0, "0000000", "_ _ _ _ 0 0 0, 6", "0.00");
    row("letters between", 0, "1a2 3b", "1 2 3 0 0 0 0, 3", "12300.00");
}

void TestSeperateEditInput::typedAmount()
{
    QFETCH(int, cursor);
    QFETCH(QString, keys);
    QFETCH(QString, row);
    QFETCH(QString, content);
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 350, 40));
    edit->setFocus();
    edit->moveCursorTo(cursor);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    form.type(qPrintable(keys));
    QCOMPARE(rowOf(*edit), row);
    QCOMPARE(edit->contentData(), QVariant(content));
    QCOMPARE(changed.count(), keys.size());
}

void TestSeperateEditInput::typedCharacters_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("cursor");
    QTest::newRow("18 digits") << 1 << QStringLiteral("012345678901234567") << QStringLiteral("012345678901234567")
                               << 17;
    QTest::newRow("19 digits") << 1 << QStringLiteral("0123456789012345678") << QStringLiteral("012345678901234568")
                               << 17;
    QTest::newRow("letters do not count as digits") << 1 << QStringLiteral("01a 2") << QStringLiteral("012") << 3;
    QTest::newRow("postal code") << 2 << QStringLiteral("100080") << QStringLiteral("100080") << 5;
    QTest::newRow("letters in a postal code") << 2 << QStringLiteral("1x0") << QStringLiteral("10") << 2;
    QTest::newRow("characters") << 3 << QStringLiteral("a1 b") << QStringLiteral("a1 b") << 4;
    QTest::newRow("seven characters") << 3 << QStringLiteral("abcdefg") << QStringLiteral("abcdeg") << 5;
}

void TestSeperateEditInput::typedCharacters()
{
    QFETCH(int, mode);
    QFETCH(QString, keys);
    QFETCH(QString, content);
    QFETCH(int, cursor);
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 350, 40));
    edit->setSeperateMode(static_cast<SeperateMode>(mode));
    edit->setFocus();
    form.type(qPrintable(keys));
    QCOMPARE(edit->contentData(), QVariant(content));
    QCOMPARE(edit->cursorIndx(), cursor);
}

void TestSeperateEditInput::backspaceClearsTheRowCellByCell()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 350, 40));
    edit->setContentData(QStringLiteral("12345.67"));
    edit->setFocus();
    edit->moveCursorTo(6);
    const char *rows[] = {"1 2 3 4 5 6 _, 6", "1 2 3 4 5 _ _, 5", "1 2 3 4 _ _ _, 4", "1 2 3 _ _ _ _, 3",
                          "1 2 _ _ _ _ _, 2", "1 _ _ _ _ _ _, 1", "_ _ _ _ _ _ _, 0", "_ _ _ _ _ _ _, 0"};
    for (const char *row : rows) {
        form.press(Qt::Key_Backspace);
        QCOMPARE(rowOf(*edit), QString::fromLatin1(row));
    }
    QCOMPARE(edit->contentData(), QVariant(QString()));
}

void TestSeperateEditInput::arrowsStopAtTheEnds()
{
    CellView form;
    QVERIFY(form.isActive());
    const Edit *edit = addRow(form, 0);
    for (const int cursor : {4, 5, 5, 5}) {
        QVERIFY(form.press(Qt::Key_Right));
        QCOMPARE(edit->cursorIndx(), cursor);
    }
    for (const int cursor : {4, 3, 2, 1, 0, 0, 0}) {
        QVERIFY(form.press(Qt::Key_Left));
        QCOMPARE(edit->cursorIndx(), cursor);
    }
}

void TestSeperateEditInput::arrowsDoNotScroll()
{
    CellView form(QRectF(0, 0, 4000, 4000));
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, 0);
    edit->setNumOfEditable(2);
    QScrollBar *across = form.view().horizontalScrollBar();
    QScrollBar *down = form.view().verticalScrollBar();
    across->setValue(1000);
    down->setValue(1000);
    // Also where the cursor cannot go on.
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Backspace})
        form.press(key);
    form.type("1a ");
    QCOMPARE(across->value(), 1000);
    QCOMPARE(down->value(), 1000);
    form.press(Qt::Key_Down);
    QVERIFY(down->value() > 1000);
    edit->setIsReadOnly(true);
    form.press(Qt::Key_Right);
    QVERIFY(across->value() > 1000);
}

QTEST_MAIN(TestSeperateEditInput)
#include "tst_seperateeditinput.moc"
