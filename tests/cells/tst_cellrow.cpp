// SPDX-License-Identifier: MIT
#include "cells/cellrow.h"

#include <QTest>
#include <limits>

namespace {

const int BadIndexes[] = {-1, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};

QStringList texts(std::initializer_list<const char *> cells)
{
    QStringList result;
    for (const char *cell : cells)
        result.append(QString::fromUtf8(cell));
    return result;
}

CellRow rowOf(const QStringList &cells)
{
    CellRow row;
    row.reset(cells.size());
    row.setTexts(cells);
    return row;
}

// Three cells side by side, 10 wide and 20 high.
CellRow placedRow()
{
    CellRow row;
    row.reset(3);
    row.setRects({{0, 0, 10, 20}, {10, 0, 10, 20}, {20, 0, 10, 20}});
    return row;
}

} // namespace

/// A row of cells with its cursor.
class CellRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newRowIsEmpty();
    void resetEmptiesTheCells();
    void resetBoundsTheCount_data();
    void resetBoundsTheCount();
    void textOutsideTheRow();
    void textsKeepTheCount_data();
    void textsKeepTheCount();
    void firstFilled_data();
    void firstFilled();
    void zerosOfTheRow();
    void rectOutsideTheRow();
    void rectsKeepTheCount();
    void cellAt_data();
    void cellAt();
    void cellAtWithoutPlaces();
    void overlappingCellsGiveTheFirst();
    void cursorStaysInTheRow();
    void cursorMovesToCellsOnly();
    void cursorOfARowWithoutCells();
    void cursorBeyondAShorterRow();
};

void CellRowTest::newRowIsEmpty()
{
    const CellRow row;
    QCOMPARE(row.count(), 0);
    QCOMPARE(row.cursor(), 0);
    QVERIFY(row.texts().isEmpty());
    QVERIFY(row.rects().isEmpty());
    QCOMPARE(row.firstFilled(), -1);
    QCOMPARE(row.cellAt({0, 0}), -1);
}

void CellRowTest::resetEmptiesTheCells()
{
    CellRow row = placedRow();
    row.setTexts(texts({"1", "2", "3"}));
    row.moveCursorTo(2);
    row.reset(4);
    QCOMPARE(row.count(), 4);
    QCOMPARE(row.texts(), texts({"", "", "", ""}));
    QCOMPARE(row.rects(), QVector<QRectF>(4));
    QCOMPARE(row.cursor(), 2);
}

void CellRowTest::resetBoundsTheCount_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("count");

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("below none") << -1 << 0;
    QTest::newRow("least") << std::numeric_limits<int>::min() << 0;
    QTest::newRow("a thousand") << 1000 << 1000;
    QTest::newRow("one more") << 1001 << 1000;
    QTest::newRow("most") << std::numeric_limits<int>::max() << 1000;
}

void CellRowTest::resetBoundsTheCount()
{
    QFETCH(const int, wanted);
    QFETCH(const int, count);
    CellRow row = placedRow();
    row.reset(wanted);
    QCOMPARE(row.count(), count);
    QCOMPARE(row.texts().size(), count);
    QCOMPARE(row.rects().size(), count);
}

void CellRowTest::textOutsideTheRow()
{
    CellRow row = rowOf(texts({"1", "2", "3"}));
    for (const int index : BadIndexes) {
        row.setTextAt(index, QStringLiteral("9"));
        QCOMPARE(row.textAt(index), QString());
    }
    QCOMPARE(row.texts(), texts({"1", "2", "3"}));

    row.setTextAt(0, QStringLiteral("7"));
    row.setTextAt(2, QStringLiteral("8"));
    QCOMPARE(row.texts(), texts({"7", "2", "8"}));
    QCOMPARE(row.textAt(0), QStringLiteral("7"));
    QCOMPARE(row.textAt(2), QStringLiteral("8"));
}

void CellRowTest::textsKeepTheCount_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("kept");

    QTest::newRow("as many") << texts({"1", "2", "3"}) << texts({"1", "2", "3"});
    QTest::newRow("more are cut off") << texts({"1", "2", "3", "4"}) << texts({"1", "2", "3"});
    QTest::newRow("less are filled up") << texts({"1"}) << texts({"1", "", ""});
    QTest::newRow("none") << QStringList() << texts({"", "", ""});
}

void CellRowTest::textsKeepTheCount()
{
    QFETCH(const QStringList, given);
    QFETCH(const QStringList, kept);
    CellRow row = rowOf(texts({"7", "8", "9"}));
    row.setTexts(given);
    QCOMPARE(row.texts(), kept);
}

void CellRowTest::firstFilled_data()
{
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<int>("index");

    QTest::newRow("first") << texts({"1", "", "3"}) << 0;
    QTest::newRow("second") << texts({"", "2", "3"}) << 1;
    QTest::newRow("last") << texts({"", "", "3"}) << 2;
    QTest::newRow("zero fills a cell") << texts({"", "0", "3"}) << 1;
    QTest::newRow("blank fills a cell") << texts({" ", "", ""}) << 0;
    QTest::newRow("all empty") << texts({"", "", ""}) << -1;
}

void CellRowTest::firstFilled()
{
    QFETCH(const QStringList, cells);
    QTEST(rowOf(cells).firstFilled(), "index");
}

void CellRowTest::zerosOfTheRow()
{
    CellRow row = rowOf(texts({"", "5", "", ""}));
    row.moveCursorTo(1);
    row.fillTrailingZeros();
    QCOMPARE(row.texts(), texts({"", "5", "0", "0"}));

    row.moveCursorTo(3);
    row.setTexts(texts({"0", "0", "0", ""}));
    row.fillTrailingZeros();
    QCOMPARE(row.texts(), texts({"0", "0", "0", ""}));
    row.removeLeadingZeros(2);
    QCOMPARE(row.texts(), texts({"", "", "0", ""}));
    row.removeLeadingZeros(-1);
    QCOMPARE(row.texts(), texts({"", "", "", ""}));
}

void CellRowTest::rectOutsideTheRow()
{
    CellRow row = placedRow();
    const QVector<QRectF> before = row.rects();
    for (const int index : BadIndexes) {
        row.setRectAt(index, {1, 2, 3, 4});
        QCOMPARE(row.rectAt(index), QRectF());
    }
    QCOMPARE(row.rects(), before);

    row.setRectAt(2, {1, 2, 3, 4});
    QCOMPARE(row.rectAt(2), QRectF(1, 2, 3, 4));
    QCOMPARE(row.rectAt(0), before.at(0));
}

void CellRowTest::rectsKeepTheCount()
{
    CellRow row = placedRow();
    row.setRects({{1, 1, 1, 1}});
    QCOMPARE(row.rects(), (QVector<QRectF>{{1, 1, 1, 1}, {}, {}}));
    row.setRects(QVector<QRectF>(5, {2, 2, 2, 2}));
    QCOMPARE(row.rects(), QVector<QRectF>(3, {2, 2, 2, 2}));
}

void CellRowTest::cellAt_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("index");

    QTest::newRow("first cell") << QPointF(5, 5) << 0;
    QTest::newRow("second cell") << QPointF(15, 5) << 1;
    QTest::newRow("last cell") << QPointF(25, 19) << 2;
    QTest::newRow("edge between two belongs to the left one") << QPointF(10, 5) << 0;
    QTest::newRow("corner of the row") << QPointF(0, 0) << 0;
    QTest::newRow("opposite corner of the row") << QPointF(30, 20) << 2;
    QTest::newRow("left of the row") << QPointF(-0.5, 5) << -1;
    QTest::newRow("right of the row") << QPointF(30.5, 5) << -1;
    QTest::newRow("above the row") << QPointF(5, -0.5) << -1;
    QTest::newRow("below the row") << QPointF(5, 20.5) << -1;
}

void CellRowTest::cellAt()
{
    QFETCH(const QPointF, point);
    QTEST(placedRow().cellAt(point), "index");
}

void CellRowTest::cellAtWithoutPlaces()
{
    CellRow row;
    row.reset(3);
    QCOMPARE(row.cellAt({0, 0}), -1);
}

void CellRowTest::overlappingCellsGiveTheFirst()
{
    CellRow row;
    row.reset(3);
    row.setRects({{0, 0, 10, 20}, {5, 0, 20, 20}, {5, 0, 30, 20}});
    QCOMPARE(row.cellAt({7, 5}), 0);
    QCOMPARE(row.cellAt({12, 5}), 1);
    QCOMPARE(row.cellAt({30, 5}), 2);
}

void CellRowTest::cursorStaysInTheRow()
{
    CellRow row = placedRow();
    row.moveCursorLeft();
    QCOMPARE(row.cursor(), 0);
    row.moveCursorRight();
    QCOMPARE(row.cursor(), 1);
    row.moveCursorRight();
    QCOMPARE(row.cursor(), 2);
    row.moveCursorRight();
    QCOMPARE(row.cursor(), 2);
    row.moveCursorLeft();
    QCOMPARE(row.cursor(), 1);
    row.resetCursor();
    QCOMPARE(row.cursor(), 0);
}

void CellRowTest::cursorMovesToCellsOnly()
{
    CellRow row = placedRow();
    row.moveCursorTo(2);
    QCOMPARE(row.cursor(), 2);
    for (const int index : BadIndexes) {
        row.moveCursorTo(index);
        QCOMPARE(row.cursor(), 2);
    }
    row.moveCursorTo(0);
    QCOMPARE(row.cursor(), 0);
}

void CellRowTest::cursorOfARowWithoutCells()
{
    CellRow row;
    row.moveCursorRight();
    row.moveCursorLeft();
    row.moveCursorTo(0);
    QCOMPARE(row.cursor(), 0);
    row.fillTrailingZeros();
    row.removeLeadingZeros(-1);
    QCOMPARE(row.count(), 0);
}

void CellRowTest::cursorBeyondAShorterRow()
{
    CellRow row = placedRow();
    row.moveCursorTo(2);
    row.reset(2);
    QCOMPARE(row.cursor(), 2);
    row.fillTrailingZeros();
    QCOMPARE(row.texts(), texts({"", ""}));
    row.moveCursorLeft();
    QCOMPARE(row.cursor(), 1);
}

QTEST_APPLESS_MAIN(CellRowTest)
#include "tst_cellrow.moc"
