// SPDX-License-Identifier: MIT
// How many cells a separated-cell edit has, and which units stand in them.
#include "cells/tavroseperateedit.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <limits>

using seperatecells::cellsOf;
using seperatecells::rectsOf;

namespace {

using Edit = TavroSeperateEdit;
using Range = std::pair<int, int>;

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

Range rangeOf(const Edit &edit)
{
    return {edit.unitRange().start, edit.unitRange().end};
}

} // namespace

class TestSeperateEditUnits : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void separators_data();
    void separators();
    void numberOfCells_data();
    void numberOfCells();
    void acceptedRange_data();
    void acceptedRange();
    void rejectedRange_data();
    void rejectedRange();
    void rangeIsTakenInEachMode();
};

void TestSeperateEditUnits::separators_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("cells");
    QTest::addColumn<int>("separators");
    for (const int mode : {1, 2, 3, 4, -1}) {
        for (const int cells : {0, 1, 2, 18})
            QTest::addRow("mode %d, %d cells", mode, cells) << mode << cells << (cells == 0 ? 0 : cells - 1);
    }
    // The last word stands behind the last cell.
    for (const int cells : {0, 1, 2, 7})
        QTest::addRow("amount, %d cells", cells) << 0 << cells << cells;
}

void TestSeperateEditUnits::separators()
{
    QFETCH(int, mode);
    QFETCH(int, cells);
    QFETCH(int, separators);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    edit.setNumOfEditable(cells);
    QCOMPARE(edit.numOfSeperator(), separators);
}

void TestSeperateEditUnits::numberOfCells_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("cells");
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("below none") << -1 << 0;
    QTest::newRow("far below none") << Least << 0;
    QTest::newRow("the most") << 1000 << 1000;
    QTest::newRow("above the most") << 1001 << 1000;
    QTest::newRow("far above the most") << Most << 1000;
}

void TestSeperateEditUnits::numberOfCells()
{
    QFETCH(int, wanted);
    QFETCH(int, cells);
    Edit edit;
    edit.setBoundingRect(QRectF(0, 0, 1000, 20));
    edit.setContentData(QStringLiteral("12345.67"));
    edit.moveCursorTo(5);
    edit.setNumOfEditable(wanted);
    QCOMPARE(edit.numOfEditable(), cells);
    QCOMPARE(edit.cursorIndx(), 0);
    for (int i = 0; i < cells; ++i) {
        QCOMPARE(edit.charAt(i), QString());
        QCOMPARE(edit.rectAt(i).height(), 20.0);
    }
    QCOMPARE(edit.rectAt(cells), QRectF());
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("12345.67")));
}

void TestSeperateEditUnits::acceptedRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("cells");
    QTest::newRow("up to 元") << 0 << 2 << 3;
    QTest::newRow("元 alone") << 2 << 2 << 1;
    QTest::newRow("角 and 元") << 1 << 2 << 2;
    QTest::newRow("without 元") << 3 << 8 << 6;
    QTest::newRow("one high unit") << 9 << 9 << 1;
    QTest::newRow("all units") << 0 << 11 << 12;
    QTest::newRow("below 分") << -3 << 4 << 8;
    QTest::newRow("above the units") << 0 << 14 << 15;
    QTest::newRow("above the units alone") << 12 << 14 << 3;
    QTest::newRow("the most cells") << 0 << 999 << 1000;
    QTest::newRow("more than the most cells") << 0 << 1000 << 1000;
    QTest::newRow("highest end") << 0 << Most << 1000;
    QTest::newRow("highest unit alone") << Most << Most << 1;
    QTest::newRow("lowest start") << Least << 2 << 1000;
    QTest::newRow("all numbers") << Least << Most << 1000;
}

void TestSeperateEditUnits::acceptedRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, cells);
    for (const bool asStruct : {false, true}) {
        Edit edit;
        edit.setContentData(QStringLiteral("12345.67"));
        edit.moveCursorTo(3);
        QVERIFY(asStruct ? edit.setUnitRange(_UnitRange{start, end}) : edit.setUnitRange(start, end));
        QCOMPARE(rangeOf(edit), Range(start, end));
        QCOMPARE(edit.unitStart(), start);
        QCOMPARE(edit.unitEnd(), end);
        QCOMPARE(edit.numOfEditable(), cells);
        QCOMPARE(edit.numOfSeperator(), cells);
        QCOMPARE(edit.cursorIndx(), 0);
        QCOMPARE(cellsOf(edit).count(QLatin1Char('_')), cells);
        QCOMPARE(edit.contentData(), QVariant(QStringLiteral("12345.67")));
    }
}

void TestSeperateEditUnits::rejectedRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::newRow("up to 角") << 0 << 1;
    QTest::newRow("角 alone") << 1 << 1;
    QTest::newRow("below 分") << -5 << -1;
    QTest::newRow("upside down") << 5 << 4;
    QTest::newRow("upside down at 元") << 3 << 2;
    QTest::newRow("upside down from end to end") << Most << Least;
    QTest::newRow("lowest end") << Least << Least;
}

void TestSeperateEditUnits::rejectedRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    for (const bool asStruct : {false, true}) {
        Edit edit;
        edit.setBoundingRect(QRectF(0, 0, 700, 20));
        edit.setUnitRange(1, 5);
        edit.setContentData(QStringLiteral("12.50"));
        edit.moveCursorTo(3);
        const QVector<QRectF> rects = rectsOf(edit);
        edit.setIsModified(false);
        QVERIFY(!(asStruct ? edit.setUnitRange(_UnitRange{start, end}) : edit.setUnitRange(start, end)));
        QVERIFY(edit.isModified());
        QCOMPARE(rangeOf(edit), Range(1, 5));
        QCOMPARE(cellsOf(edit), QStringLiteral("_ _ 1 2 5"));
        QCOMPARE(rectsOf(edit), rects);
        QCOMPARE(edit.cursorIndx(), 3);
        QCOMPARE(edit.contentData(), QVariant(QStringLiteral("12.50")));
        // The cell of 元 is where it was.
        edit.setContentData(QStringLiteral("0"));
        QCOMPARE(cellsOf(edit), QStringLiteral("_ _ _ 0 0"));
    }
}

void TestSeperateEditUnits::rangeIsTakenInEachMode()
{
    for (const int mode : {1, 2, 3, 4}) {
        Edit edit;
        edit.setSeperateMode(static_cast<SeperateMode>(mode));
        QVERIFY(edit.setUnitRange(2, 5));
        QCOMPARE(rangeOf(edit), Range(2, 5));
        QCOMPARE(edit.numOfEditable(), 4);
        QCOMPARE(static_cast<int>(edit.seperateMode()), mode);
    }
}

QTEST_MAIN(TestSeperateEditUnits)
#include "tst_seperateeditunits.moc"
