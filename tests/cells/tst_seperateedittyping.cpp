// SPDX-License-Identifier: MIT
// What one key or one deletion does to the cells, the cursor and the content, in each mode.
#include "cells/tavroseperateedit.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>
#include <limits>

using seperatecells::cellsOf;
using seperatecells::fill;

namespace {

using Edit = TavroSeperateEdit;

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

} // namespace

class TestSeperateEditTyping : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void keyInAmount_data();
    void keyInAmount();
    void keyInRange_data();
    void keyInRange();
    void keyInOtherModes_data();
    void keyInOtherModes();
    void keyIsAnnouncedAtItsEnd();
    void deletion_data();
    void deletion();
    void deletionInEachMode_data();
    void deletionInEachMode();
    void deletionIsAnnouncedAtItsEnd();
    void cursorSteps();
    void cursorIsMovedInsideTheRow_data();
    void cursorIsMovedInsideTheRow();
    void cursorOfAnEmptyRow();
    void cursorIsResetWithTheCount_data();
    void cursorIsResetWithTheCount();
    void cursorAnnouncesNothing();
};

void TestSeperateEditTyping::keyInAmount_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, const char *before, int cursor, int key, const char *text, const char *after,
                        int cursorAfter, const char *content) {
        QTest::newRow(name) << QString::fromUtf8(before) << cursor << key << QString::fromUtf8(text)
                            << QString::fromUtf8(after) << cursorAfter << QString::fromUtf8(content);
    };
    const char *empty = "_ _ _ _ _ _ _";
    const char *full = "1 2 3 4 5 6 7";
    row("万 of an empty row", empty, 0, Qt::Key_1, "1", "1 0 0 0 0 0 0", 1, "10000.00");
    row("元 of an empty row", empty, 4, Qt::Key_3, "3", "_ _ _ _ 3 0 0", 5, "3.00");
    row("角 of an empty row", empty, 5, Qt::Key_5, "5", "_ _ _ _ _ 5 0", 6, "0.50");
    row("分 of an empty row", empty, 6, Qt::Key_5, "5", "_ _ _ _ _ _ 5", 6, "0.5");
    row("分 of a full row", full, 6, Qt::Key_9, "9", "1 2 3 4 5 6 9", 6, "12345.69");
    row("middle of a full row", full, 2, Qt::Key_9, "9", "1 2 9 4 5 6 7", 3, "12945.67");
    row("filled cells on the right stay", "_ _ _ 4 _ 6 _", 1, Qt::Key_9, "9", "_ 9 0 4 0 6 0", 2, "9040.60");
    row("empty cells on the left stay", "1 _ 3 _ 5 6 7", 2, Qt::Key_9, "9", "1 _ 9 0 5 6 7", 3, "1905.67");
    row("zero in 万 of an empty row", empty, 0, Qt::Key_0, "0", "_ _ _ _ 0 0 0", 1, "0.00");
    row("zero in the first cell", full, 0, Qt::Key_0, "0", "_ 2 3 4 5 6 7", 1, "2345.67");
    row("zero in front of zeros", "1 0 0 4 5 6 7", 0, Qt::Key_0, "0", "_ _ _ 4 5 6 7", 1, "45.67");
    row("zero inside", full, 2, Qt::Key_0, "0", "1 2 0 4 5 6 7", 3, "12045.67");
    row("lowest digit", full, 1, Qt::Key_0, "0", "1 0 3 4 5 6 7", 2, "10345.67");
    row("highest digit", full, 1, Qt::Key_9, "9", "1 9 3 4 5 6 7", 2, "19345.67");
    row("one below the digits", full, 1, Qt::Key_Slash, "5", full, 1, "12345.67");
    row("one above the digits", full, 1, Qt::Key_Colon, "5", full, 1, "12345.67");
    row("letter", full, 1, Qt::Key_A, "a", full, 1, "12345.67");
    row("key that yields a digit but is none", full, 1, Qt::Key_A, "5", full, 1, "12345.67");
    row("point", full, 1, Qt::Key_Period, ".", full, 1, "12345.67");
    row("minus", full, 1, Qt::Key_Minus, "-", full, 1, "12345.67");
    row("no key", full, 1, 0, "5", full, 1, "12345.67");
    row("negative key", full, 1, Least, "5", full, 1, "12345.67");
    row("highest key", full, 1, Most, "5", full, 1, "12345.67");
    row("other key in cells without zeros", "_ 1 _ _ _ _ _", 1, Qt::Key_A, "a", "_ 1 _ _ _ _ _", 1, "0.1");
    row("other key in an empty row", empty, 0, Qt::Key_A, "a", empty, 0, "");
    row("text of a digit key is not looked at", full, 0, Qt::Key_5, "５", "５ 2 3 4 5 6 7", 1, "５2345.67");
    row("long text of a digit key", full, 4, Qt::Key_5, "55", "1 2 3 4 55 6 7", 5, "123455.67");
}

void TestSeperateEditTyping::keyInAmount()
{
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    QFETCH(QString, content);
    Edit edit;
    edit.setContentData(QStringLiteral("not this"));
    fill(edit, before);
    edit.moveCursorTo(cursor);
    const QSignalSpy changed(&edit, &Edit::contentDataChanged);
    edit.updateContentByKey(key, text);
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.cursorIndx(), cursorAfter);
    QCOMPARE(edit.contentData(), QVariant(content));
    QCOMPARE(changed.count(), 1);
}

void TestSeperateEditTyping::keyInRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, int start, int end, int cursor, const char *text, const char *after,
                        const char *content) {
        QTest::newRow(name) << start << end << cursor << QString::fromLatin1(text) << QString::fromLatin1(after)
                            << QString::fromLatin1(content);
    };
    row("without 元", 3, 8, 2, "5", "_ _ 5 0 0 0", "50000.00");
    row("without 元, zero", 3, 8, 0, "0", "_ _ _ _ _ _", "");
    row("without 元, zero in the last cell", 3, 8, 5, "0", "_ _ _ _ _ _", "");
    row("元 alone", 2, 2, 0, "5", "5", "5.00");
    row("元 alone, zero", 2, 2, 0, "0", "0", "0.00");
    row("元 at the end", 2, 5, 0, "7", "7 0 0 0", "7000.00");
    row("角 at the end", 1, 3, 0, "7", "7 0 0", "70.00");
    row("above the units", 0, 13, 0, "7", "7 0 0 0 0 0 0 0 0 0 0 0 0 0", "700000000000.00");
    row("below 分", -1, 2, 0, "7", "7 0 0 0", "70.00");
}

void TestSeperateEditTyping::keyInRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, cursor);
    QFETCH(QString, text);
    QFETCH(QString, after);
    QFETCH(QString, content);
    Edit edit;
    edit.setUnitRange(start, end);
    edit.moveCursorTo(cursor);
    edit.updateContentByKey(text.at(0).unicode(), text);
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.contentData(), QVariant(content));
    QCOMPARE(edit.cursorIndx(), std::min(cursor + 1, end - start));
}

void TestSeperateEditTyping::keyInOtherModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, int mode, const char *before, int cursor, int key, const char *text,
                        const char *after, int cursorAfter, const char *content) {
        QTest::addRow("%s, mode %d", name, mode)
            << mode << QString::fromLatin1(before) << cursor << key << QString::fromUtf8(text)
            << QString::fromUtf8(after) << cursorAfter << QString::fromUtf8(content);
    };
    const char *some = "1 _ 3 _ _ _";
    for (const int mode : {2, 3}) {
        row("digit", mode, some, 0, Qt::Key_9, "9", "9 _ 3 _ _ _", 1, "93");
        row("digit in an empty cell fills nothing else", mode, some, 1, Qt::Key_9, "9", "1 9 3 _ _ _", 2, "193");
        row("zero stays", mode, "_ _ _ _ _ _", 0, Qt::Key_0, "0", "0 _ _ _ _ _", 1, "0");
        row("last cell", mode, some, 5, Qt::Key_9, "9", "1 _ 3 _ _ 9", 5, "139");
        row("long text of a digit key", mode, some, 0, Qt::Key_9, "99", "99 _ 3 _ _ _", 1, "993");
    }
    row("letter", 2, some, 1, Qt::Key_A, "a", some, 1, "13");
    row("one below the digits", 2, some, 1, Qt::Key_Slash, "/", some, 1, "13");
    row("one above the digits", 2, some, 1, Qt::Key_Colon, ":", some, 1, "13");
    row("letter", 3, some, 1, Qt::Key_A, "a", "1 a 3 _ _ _", 2, "1a3");
    row("letter in the last cell", 3, some, 5, Qt::Key_A, "A", "1 _ 3 _ _ A", 5, "13A");
    row("point", 3, some, 1, Qt::Key_Period, ".", "1 . 3 _ _ _", 2, "1.3");
    row("Chinese", 3, some, 1, Qt::Key_unknown, "壹", "1 壹 3 _ _ _", 2, "1壹3");
    row("no key", 3, some, 1, 0, "ab", "1 ab 3 _ _ _", 2, "1ab3");
    row("negative key", 3, some, 1, Least, "x", "1 x 3 _ _ _", 2, "1x3");
    const char *row18 = "1 2 3 4 5 6 7 8 9 _ _ _ _ _ _ _ _ _";
    row("digit", 1, row18, 9, Qt::Key_0, "0", "1 2 3 4 5 6 7 8 9 0 _ _ _ _ _ _ _ _", 10, "1234567890");
    row("last cell", 1, row18, 17, Qt::Key_0, "0", "1 2 3 4 5 6 7 8 9 _ _ _ _ _ _ _ _ 0", 17, "1234567890");
    row("letter", 1, row18, 3, Qt::Key_A, "a", row18, 3, "123456789");
    for (const int mode : {4, -1, Most, Least}) {
        const char *row7 = "1 _ 3 _ _ _ _";
        row("digit", mode, row7, 1, Qt::Key_9, "9", row7, 1, "13");
        row("letter", mode, row7, 1, Qt::Key_A, "a", row7, 1, "13");
    }
}

void TestSeperateEditTyping::keyInOtherModes()
{
    QFETCH(int, mode);
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    QFETCH(QString, content);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    edit.setContentData(QStringLiteral("not this"));
    fill(edit, before);
    edit.moveCursorTo(cursor);
    const QSignalSpy changed(&edit, &Edit::contentDataChanged);
    edit.updateContentByKey(key, text);
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.cursorIndx(), cursorAfter);
    QCOMPARE(edit.contentData(), QVariant(content));
    QCOMPARE(changed.count(), 1);
}

void TestSeperateEditTyping::keyIsAnnouncedAtItsEnd()
{
    Edit edit;
    QString seen;
    connect(&edit, &Edit::contentDataChanged, &edit, [&] {
        seen = QStringLiteral("%1, %2, %3").arg(edit.contentData().toString(), cellsOf(edit)).arg(edit.cursorIndx());
    });
    edit.updateContentByKey(Qt::Key_1, QStringLiteral("1"));
    QCOMPARE(seen, QStringLiteral("10000.00, 1 0 0 0 0 0 0, 1"));
}

void TestSeperateEditTyping::deletion_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, const char *before, int cursor, const char *after, int cursorAfter,
                        const char *content) {
        QTest::newRow(name) << QString::fromLatin1(before) << cursor << QString::fromLatin1(after) << cursorAfter
                            << QString::fromLatin1(content);
    };
    row("filled cell", "1 2 3 4 5 6 7", 3, "1 2 3 _ 5 6 7", 3, "1235.67");
    row("empty cell clears the one to its left", "1 2 _ 4 5 6 7", 2, "1 _ _ 4 5 6 7", 1, "145.67");
    row("two empty cells", "1 2 _ _ 5 6 7", 3, "1 2 _ _ 5 6 7", 2, "125.67");
    row("filled first cell", "1 2 3 4 5 6 7", 0, "_ 2 3 4 5 6 7", 0, "2345.67");
    row("empty first cell", "_ 2 3 4 5 6 7", 0, "_ 2 3 4 5 6 7", 0, "2345.67");
    row("second cell back to the first", "1 _ _ _ _ _ _", 1, "_ _ _ _ _ _ _", 0, "");
    row("filled last cell", "1 2 3 4 5 6 7", 6, "1 2 3 4 5 6 _", 6, "1234.56");
    row("empty last cell", "1 2 3 4 5 6 _", 6, "1 2 3 4 5 _ _", 5, "123.45");
    row("no zeros are filled in", "_ _ _ _ 3 0 0", 4, "_ _ _ _ _ 0 0", 4, "0.00");
    row("no zeros are removed", "1 0 0 4 5 6 7", 0, "_ 0 0 4 5 6 7", 0, "0045.67");
    row("one digit left", "_ _ _ _ 3 0 _", 4, "_ _ _ _ _ 0 _", 4, "0.0");
    row("empty row", "_ _ _ _ _ _ _", 0, "_ _ _ _ _ _ _", 0, "");
}

void TestSeperateEditTyping::deletion()
{
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    QFETCH(QString, content);
    Edit edit;
    edit.setContentData(QStringLiteral("not this"));
    fill(edit, before);
    edit.moveCursorTo(cursor);
    const QSignalSpy changed(&edit, &Edit::contentDataChanged);
    edit.deleteCharUnderCursor();
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.cursorIndx(), cursorAfter);
    QCOMPARE(edit.contentData(), QVariant(content));
    QCOMPARE(changed.count(), 1);
}

void TestSeperateEditTyping::deletionInEachMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    QTest::newRow("amount") << 0 << QStringLiteral("1.30");
    for (const int mode : {1, 2, 3, 4, -1})
        QTest::addRow("mode %d", mode) << mode << QStringLiteral("130");
}

void TestSeperateEditTyping::deletionInEachMode()
{
    QFETCH(int, mode);
    QFETCH(QString, content);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    fill(edit, QStringLiteral("1 2 _ 3 0 _"));
    edit.moveCursorTo(2);
    edit.deleteCharUnderCursor();
    QVERIFY(cellsOf(edit).startsWith(QStringLiteral("1 _ _ 3 0 _")));
    QCOMPARE(edit.cursorIndx(), 1);
    QCOMPARE(edit.contentData(), QVariant(content));
}

void TestSeperateEditTyping::deletionIsAnnouncedAtItsEnd()
{
    Edit edit;
    fill(edit, QStringLiteral("1 2 3 4 5 6 _"));
    edit.moveCursorTo(6);
    QString seen;
    connect(&edit, &Edit::contentDataChanged, &edit, [&] {
        seen = QStringLiteral("%1, %2, %3").arg(edit.contentData().toString(), cellsOf(edit)).arg(edit.cursorIndx());
    });
    edit.deleteCharUnderCursor();
    QCOMPARE(seen, QStringLiteral("123.45, 1 2 3 4 5 _ _, 5"));
}

void TestSeperateEditTyping::cursorSteps()
{
    Edit edit;
    edit.decreaseCursor();
    QCOMPARE(edit.cursorIndx(), 0);
    for (const int expected : {1, 2, 3, 4, 5, 6, 6, 6}) {
        QCOMPARE(edit.increaseCursor(), 6);
        QCOMPARE(edit.cursorIndx(), expected);
    }
    for (const int expected : {5, 4, 3, 2, 1, 0, 0}) {
        edit.decreaseCursor();
        QCOMPARE(edit.cursorIndx(), expected);
    }
    edit.moveCursorTo(4);
    edit.resetCursor();
    QCOMPARE(edit.cursorIndx(), 0);
}

void TestSeperateEditTyping::cursorIsMovedInsideTheRow_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("cursor");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("inside") << 5 << 5;
    QTest::newRow("last") << 6 << 6;
    QTest::newRow("behind the last") << 7 << 3;
    QTest::newRow("far behind the last") << Most << 3;
    QTest::newRow("before the first") << -1 << 3;
    QTest::newRow("far before the first") << Least << 3;
}

void TestSeperateEditTyping::cursorIsMovedInsideTheRow()
{
    QFETCH(int, index);
    QFETCH(int, cursor);
    Edit edit;
    edit.moveCursorTo(3);
    edit.moveCursorTo(index);
    QCOMPARE(edit.cursorIndx(), cursor);
}

void TestSeperateEditTyping::cursorOfAnEmptyRow()
{
    for (const SeperateMode mode : {Sep_Amount, Sep_Digits6, Sep_Chars6}) {
        Edit edit;
        edit.setSeperateMode(mode);
        edit.setNumOfEditable(0);
        edit.moveCursorTo(0);
        QCOMPARE(edit.increaseCursor(), -1);
        QCOMPARE(edit.cursorIndx(), 0);
        edit.decreaseCursor();
        QCOMPARE(edit.cursorIndx(), 0);
        edit.setContentData(QStringLiteral("5"));
        edit.updateContentByKey(Qt::Key_1, QStringLiteral("1"));
        edit.deleteCharUnderCursor();
        edit.fillZeroToTrail();
        edit.removePrefixZero();
        QCOMPARE(edit.contentData(), QVariant(QString()));
        QCOMPARE(edit.numOfEditable(), 0);
    }
}

void TestSeperateEditTyping::cursorIsResetWithTheCount_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2, 3})
        QTest::addRow("mode %d", mode) << mode;
}

void TestSeperateEditTyping::cursorIsResetWithTheCount()
{
    QFETCH(int, mode);
    Edit edit;
    edit.moveCursorTo(3);
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    QCOMPARE(edit.cursorIndx(), 0);
    edit.moveCursorTo(3);
    edit.setNumOfEditable(edit.numOfEditable());
    QCOMPARE(edit.cursorIndx(), 0);
    edit.moveCursorTo(3);
    edit.setUnitRange(0, 6);
    QCOMPARE(edit.cursorIndx(), 0);
    // Other changes of the row leave it.
    edit.moveCursorTo(3);
    edit.setContentData(QStringLiteral("12"));
    edit.setBoundingRect(QRectF(0, 0, 100, 10));
    edit.setPhyWidthOfSeperator(1);
    QCOMPARE(edit.cursorIndx(), 3);
}

void TestSeperateEditTyping::cursorAnnouncesNothing()
{
    Edit edit;
    const QSignalSpy changed(&edit, &Edit::contentDataChanged);
    edit.setCharAt(2, QStringLiteral("5"));
    edit.moveCursorTo(2);
    edit.increaseCursor();
    edit.decreaseCursor();
    edit.triggerDrawCursor();
    edit.resetCursor();
    QCOMPARE(changed.count(), 0);
    QVERIFY(edit.contentData().isNull());
}

QTEST_MAIN(TestSeperateEditTyping)
#include "tst_seperateedittyping.moc"
