// SPDX-License-Identifier: MIT
// What of a value stands in which cell, and what the cells are read back as.
#include "cells/tavroseperateedit.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <limits>

using seperatecells::cellsOf;
using seperatecells::fill;

namespace {

using Edit = TavroSeperateEdit;

constexpr int Most = std::numeric_limits<int>::max();

} // namespace

class TestSeperateEditCells : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void amountInCells_data();
    void amountInCells();
    void amountReadBack_data() { amountInCells_data(); }
    void amountReadBack();
    void numberAsContent_data();
    void numberAsContent();
    void otherCountThanTheRange_data();
    void otherCountThanTheRange();
    void charactersInCells_data();
    void charactersInCells();
    void cellsAsAmount_data();
    void cellsAsAmount();
    void cellsAsCharacters_data();
    void cellsAsCharacters();
    void zerosBelowAFarRange();
    void leadingZeros_data();
    void leadingZeros();
    void trailingZeros_data();
    void trailingZeros();
};

void TestSeperateEditCells::amountInCells_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("readBack");
    const auto row = [](const char *name, int start, int end, const char *content, const char *cells,
                        const char *readBack) {
        QTest::newRow(name) << start << end << QString::fromUtf8(content) << QString::fromUtf8(cells)
                            << QString::fromUtf8(readBack);
    };
    row("one place", 0, 6, "1234.5", "_ 1 2 3 4 5 0", "1234.50");
    row("two places", 0, 6, "1234.56", "_ 1 2 3 4 5 6", "1234.56");
    row("places beyond the second", 0, 6, "1234.5678", "_ 1 2 3 4 5 6", "1234.56");
    row("places are not rounded", 0, 6, "0.999", "_ _ _ _ 0 9 9", "0.99");
    row("whole", 0, 6, "1234", "_ 1 2 3 4 0 0", "1234.00");
    row("full row", 0, 6, "98765.43", "9 8 7 6 5 4 3", "98765.43");
    row("zeros inside", 0, 6, "10200.30", "1 0 2 0 0 3 0", "10200.30");
    row("zero", 0, 6, "0", "_ _ _ _ 0 0 0", "0.00");
    row("empty", 0, 6, "", "_ _ _ _ 0 0 0", "0.00");
    row("places alone", 0, 6, ".5", "_ _ _ _ 0 5 0", "0.50");
    row("point alone", 0, 6, ".", "_ _ _ _ 0 0 0", "0.00");
    row("point at the end", 0, 6, "5.", "_ _ _ _ 5 0 0", "5.00");
    row("five cents", 0, 6, "0.05", "_ _ _ _ 0 0 5", "0.05");
    row("zeros in front", 0, 6, "0000000000000012.5", "_ _ _ 1 2 5 0", "12.50");
    row("beyond the row", 0, 6, "1234567.89", "3 4 5 6 7 8 9", "34567.89");
    row("zeros at the front of what is left", 0, 6, "7000001.20", "_ _ _ _ 1 2 0", "1.20");
    row("beyond ten whole digits", 0, 11, "123456789012.345", "3 4 5 6 7 8 9 0 1 2 3 4", "3456789012.34");
    row("ten whole digits", 0, 11, "1234567890.12", "1 2 3 4 5 6 7 8 9 0 1 2", "1234567890.12");
    row("ten whole digits without a point", 0, 11, "1234567890", "1 2 3 4 5 6 7 8 9 0 0 0", "1234567890.00");
    row("eleven whole digits", 0, 11, "91234567890", "1 2 3 4 5 6 7 8 9 0 0 0", "1234567890.00");
    row("few digits in a long row", 0, 11, "12.3", "_ _ _ _ _ _ _ _ 1 2 3 0", "12.30");
    row("元 alone", 2, 2, "123.45", "3", "3.00");
    row("元 alone, zero", 2, 2, "0.45", "0", "0.00");
    row("up to 元", 0, 2, "123.45", "3 4 5", "3.45");
    row("角 at the end", 1, 6, "12.34", "_ _ _ 1 2 3", "12.30");
    row("元 at the end", 2, 6, "12.34", "_ _ _ 1 2", "12.00");
    row("元 at the end, zero", 2, 6, "0.34", "_ _ _ _ 0", "0.00");
    row("without 元", 3, 8, "1234567.89", "1 2 3 4 5 6", "1234560.00");
    row("without 元, leading zeros", 3, 8, "120.5", "_ _ _ _ 1 2", "120.00");
    row("without 元, nothing left", 3, 8, "5.5", "_ _ _ _ _ _", "");
    row("without 元, zero", 3, 8, "0", "_ _ _ _ _ _", "");
    row("below 分", -2, 4, "12.34", "_ 1 2 3 4 _ _", "12.34");
    row("above the units", 0, 13, "1234567890.12", "_ _ 1 2 3 4 5 6 7 8 9 0 1 2", "1234567890.12");
    row("mostly above the units", 9, 14, "1234567890.12", "_ _ _ 1 2 3", "1230000000.00");
    row("above the units alone", 12, 14, "1234567890.12", "_ _ _", "");
    row("sign", 0, 6, "-5", "_ _ _ - 5 0 0", "-5.00");
    row("sign behind zeros", 0, 6, "-0.05", "_ _ _ - 0 0 5", "-0.05");
    row("plus", 0, 6, "+12.5", "_ _ + 1 2 5 0", "+12.50");
    row("letters", 0, 6, "abc", "_ _ a b c 0 0", "abc.00");
    row("letters behind the point", 0, 6, "1.xyz", "_ _ _ _ 1 x y", "1.xy");
    row("second point", 0, 6, "1.2.3", "_ _ _ _ 1 2 .", "1.2.");
    row("second point in the row", 0, 6, "1..5", "_ _ _ _ 1 . 5", "1..5");
    row("thousands", 0, 6, "1,234.5", "1 , 2 3 4 5 0", "1,234.50");
    row("exponent", 0, 6, "1e+20", "1 e + 2 0 0 0", "1e+20.00");
    row("capital digits", 0, 6, "壹拾.五", "_ _ _ 壹 拾 五 0", "壹拾.五0");
    row("full-width digits", 0, 6, "１２．３", "_ １ ２ ． ３ 0 0", "１２．３.00");
}

void TestSeperateEditCells::amountInCells()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, content);
    QFETCH(QString, cells);
    Edit edit;
    QVERIFY(edit.setUnitRange(start, end));
    TavroPrototype &base = edit;
    base.setContentData(content);
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(edit.contentData(), QVariant(content));
    // What stood in the cells before does not matter.
    fill(edit, QStringLiteral("9 9 9 9 9 9 9"));
    edit.strToList(content);
    QCOMPARE(cellsOf(edit), cells);
}

void TestSeperateEditCells::amountReadBack()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, content);
    QFETCH(QString, readBack);
    Edit edit;
    edit.setUnitRange(start, end);
    edit.setContentData(content);
    edit.syncContentData();
    QCOMPARE(edit.contentData(), QVariant(readBack));
}

void TestSeperateEditCells::numberAsContent_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("cells");
    QTest::newRow("number") << QVariant(1234.5) << QStringLiteral("_ 1 2 3 4 5 0");
    QTest::newRow("whole number") << QVariant(70) << QStringLiteral("_ _ _ 7 0 0 0");
    QTest::newRow("null") << QVariant() << QStringLiteral("_ _ _ _ 0 0 0");
    QTest::newRow("no text") << QVariant(QPointF(1, 2)) << QStringLiteral("_ _ _ _ 0 0 0");
}

void TestSeperateEditCells::numberAsContent()
{
    QFETCH(QVariant, content);
    QFETCH(QString, cells);
    Edit edit;
    edit.setContentData(content);
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(edit.contentData(), content);
}

void TestSeperateEditCells::otherCountThanTheRange_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("cells");
    QTest::newRow("fewer cells") << 3 << QStringLiteral("1 2 3");
    QTest::newRow("more cells") << 9 << QStringLiteral("1 2 3 4 5 6 7 _ _");
    QTest::newRow("none") << 0 << QString();
}

void TestSeperateEditCells::otherCountThanTheRange()
{
    QFETCH(int, count);
    QFETCH(QString, cells);
    Edit edit;
    edit.setNumOfEditable(count);
    edit.setContentData(QStringLiteral("12345.67"));
    QCOMPARE(cellsOf(edit), cells);
}

void TestSeperateEditCells::charactersInCells_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("cells");
    const QString pair = QString::fromUtf8("\xf0\xa0\xae\xb7");
    const QString marked = QStringLiteral("e\u0301");
    for (const int mode : {2, 3}) {
        const auto row = [mode](const char *name, const QString &content, const QString &cells) {
            QTest::addRow("%s, mode %d", name, mode) << mode << content << cells;
        };
        row("shorter", QStringLiteral("123"), QStringLiteral("1 2 3 _ _ _"));
        row("full", QStringLiteral("123456"), QStringLiteral("1 2 3 4 5 6"));
        row("longer", QStringLiteral("12345678"), QStringLiteral("1 2 3 4 5 6"));
        row("empty", QString(), QStringLiteral("_ _ _ _ _ _"));
        row("zeros stay", QStringLiteral("0012"), QStringLiteral("0 0 1 2 _ _"));
        row("point is a character", QStringLiteral("1.5"), QStringLiteral("1 . 5 _ _ _"));
        row("letters", QStringLiteral("a壹-"), QStringLiteral("a 壹 - _ _ _"));
        row("surrogate pair is one", pair + QStringLiteral("1"), pair + QStringLiteral(" 1 _ _ _ _"));
        row("letter and its mark are one", marked + QStringLiteral("1"), marked + QStringLiteral(" 1 _ _ _ _"));
    }
    QTest::newRow("18 digits") << 1 << QStringLiteral("012345678901234567899")
                               << QStringLiteral("0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7");
    QTest::newRow("beyond the modes") << 4 << QStringLiteral("012.5") << QStringLiteral("0 1 2 . 5 _ _");
    QTest::newRow("below the modes") << -1 << QStringLiteral("012.5") << QStringLiteral("0 1 2 . 5 _ _");
}

void TestSeperateEditCells::charactersInCells()
{
    QFETCH(int, mode);
    QFETCH(QString, content);
    QFETCH(QString, cells);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    edit.setContentData(content);
    QCOMPARE(cellsOf(edit), cells);
    fill(edit, QStringLiteral("9 9 9 9 9 9"));
    edit.strToList(content);
    QCOMPARE(cellsOf(edit), cells);
}

void TestSeperateEditCells::cellsAsAmount_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<QString>("amount");
    const auto row = [](const char *name, int start, int end, const char *cells, const char *amount) {
        QTest::newRow(name) << start << end << QString::fromLatin1(cells).split(QLatin1Char('|'))
                            << QString::fromLatin1(amount);
    };
    row("full", 0, 6, "1|2|3|4|5|6|7", "12345.67");
    row("empty cells add nothing", 0, 6, "1||3||5||7", "13.57");
    row("three digits", 0, 6, "||||1|2|3", "1.23");
    row("two digits", 0, 6, "|||||1|2", "0.12");
    row("one digit counts as 角", 0, 6, "||||||5", "0.5");
    row("one digit in the first cell", 0, 6, "5||||||", "0.5");
    row("no digit", 0, 6, "||||||", "");
    row("leading zeros stay", 0, 6, "0|0|0|0|1|2|3", "00001.23");
    row("角 at the end", 1, 6, "|||||5", "0.50");
    row("元 at the end", 2, 6, "||||5", "5.00");
    row("十 at the end", 3, 8, "||||1|2", "120.00");
    row("below 分", -3, 2, "1|2|3", "1.23");
    row("more than a character a cell", 0, 6, "12|3x", "12.3x");
    row("point in a cell", 0, 6, ".|5", "0..5");
    row("fewer cells than the row", 0, 6, "1|2|3", "1.23");
    row("more cells than the row", 0, 2, "1|2|3|4|5", "123.45");
}

void TestSeperateEditCells::cellsAsAmount()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QStringList, cells);
    QFETCH(QString, amount);
    Edit edit;
    QVERIFY(edit.setUnitRange(start, end));
    QCOMPARE(edit.strListToStr(cells), amount);
    // The row itself is not asked.
    QCOMPARE(cellsOf(edit).count(QLatin1Char('_')), end - start + 1);
    QCOMPARE(edit.strListToStr({}), QString());
}

void TestSeperateEditCells::cellsAsCharacters_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {1, 2, 3, 4, -1})
        QTest::addRow("mode %d", mode) << mode;
}

void TestSeperateEditCells::cellsAsCharacters()
{
    QFETCH(int, mode);
    Edit edit;
    edit.setUnitRange(1, 6);
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    const QStringList cells{QString(), QStringLiteral("0"), QStringLiteral("12"), QString(), QStringLiteral(".")};
    QCOMPARE(edit.strListToStr(cells), QStringLiteral("012."));
    QCOMPARE(edit.strListToStr({QStringLiteral("5")}), QStringLiteral("5"));
    QCOMPARE(edit.strListToStr({}), QString());
}

// No host means such a range, and it must not fill the memory.
void TestSeperateEditCells::zerosBelowAFarRange()
{
    Edit edit;
    edit.setUnitRange(Most, Most);
    const QString amount = edit.strListToStr({QStringLiteral("5")});
    QVERIFY(amount.startsWith(QStringLiteral("500000000000")));
    QVERIFY(amount.endsWith(QStringLiteral("0.00")));
    QVERIFY(amount.size() < 2000);
}

void TestSeperateEditCells::leadingZeros_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, int start, int end, const char *before, const char *after) {
        QTest::newRow(name) << start << end << QString::fromLatin1(before) << QString::fromLatin1(after);
    };
    row("zeros only", 0, 6, "0 0 0 0 0 0 0", "_ _ _ _ 0 0 0");
    row("empty cells are skipped", 0, 6, "_ 0 _ 0 0 0 0", "_ _ _ _ 0 0 0");
    row("digit ends", 0, 6, "0 0 1 0 0 0 0", "_ _ 1 0 0 0 0");
    row("sign ends", 0, 6, "0 - 0 0 0 0 0", "_ - 0 0 0 0 0");
    row("two zeros in a cell end", 0, 6, "0 00 0 0 0 0 0", "_ 00 0 0 0 0 0");
    row("元 stays though 角 and 分 are empty", 0, 6, "0 0 0 0 0 _ _", "_ _ _ _ 0 _ _");
    row("empty 元", 0, 6, "0 0 0 0 _ 0 0", "_ _ _ _ _ 0 0");
    row("digit behind 元", 0, 6, "0 0 0 0 0 0 5", "_ _ _ _ 0 0 5");
    row("nothing in front", 0, 6, "_ _ _ _ 0 0 0", "_ _ _ _ 0 0 0");
    row("元 in the first cell", 0, 2, "0 0 0", "0 0 0");
    row("元 in the last cell", 2, 5, "0 0 0 0", "_ _ _ 0");
    row("元 before the last cell", 1, 4, "0 0 0 0", "_ _ 0 0");
    row("below 分", -1, 3, "0 0 0 0 0", "_ 0 0 0 0");
    row("without 元, zeros only", 3, 8, "0 0 0 0 0 0", "_ _ _ _ _ _");
    row("without 元, empty cells are skipped", 3, 8, "0 _ 0 _ 0 5", "_ _ _ _ _ 5");
    row("without 元, digit ends", 3, 8, "0 0 0 0 1 0", "_ _ _ _ 1 0");
    row("without 元, letter ends", 3, 8, "0 x 0 0 0 0", "_ x 0 0 0 0");
}

void TestSeperateEditCells::leadingZeros()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, before);
    QFETCH(QString, after);
    Edit edit;
    edit.setUnitRange(start, end);
    fill(edit, before);
    edit.removePrefixZero();
    QCOMPARE(cellsOf(edit), after);
    fill(edit, before);
    edit.updateIndxOfYuan();
    edit.removePrefixZero();
    QCOMPARE(cellsOf(edit), after);
}

void TestSeperateEditCells::trailingZeros_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *before, int cursor, const char *after) {
        QTest::newRow(name) << QString::fromLatin1(before) << cursor << QString::fromLatin1(after);
    };
    row("from the first cell", "_ _ _ _ _ _ _", 0, "0 0 0 0 0 0 0");
    row("cells before the cursor stay", "_ _ _ _ _ _ _", 3, "_ _ _ 0 0 0 0");
    row("filled cells stay", "_ 2 _ 4 x _ 7", 2, "_ 2 0 4 x 0 7");
    row("last but one", "_ _ _ _ _ _ _", 5, "_ _ _ _ _ 0 0");
    row("last cell", "_ _ _ _ _ _ _", 6, "_ _ _ _ _ _ _");
}

void TestSeperateEditCells::trailingZeros()
{
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(QString, after);
    Edit edit;
    fill(edit, before);
    edit.moveCursorTo(cursor);
    edit.fillZeroToTrail();
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.cursorIndx(), cursor);
}

QTEST_MAIN(TestSeperateEditCells)
#include "tst_seperateeditcells.moc"
