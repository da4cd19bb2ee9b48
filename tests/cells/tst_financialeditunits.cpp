// SPDX-License-Identifier: MIT
#include "tests/cells/gridcells.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <limits>

namespace {

using F = TavroFinancialEdit;

constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

// Remembers the contents that it was given through the virtual operation.
class RememberingEdit : public TavroFinancialEdit
{
public:
    void setContentData(const QVariant &content) override
    {
        given.append(content);
        unitsThen.append(limitUnit());
        TavroFinancialEdit::setContentData(content);
    }
    QVector<QVariant> given;
    QVector<int> unitsThen;
};

} // namespace

/// Which units a financial edit has, where 元 and the limit stand among them, and how many cells that makes.
class TestFinancialEditUnits : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedRange_data();
    void acceptedRange();
    void rejectedRange_data();
    void rejectedRange();
    void yuanCell_data();
    void yuanCell();
    void limitCell_data();
    void limitCell();
    void limitCellFollowsOnDemand();
    void limitUnitEmptiesTheContent_data();
    void limitUnitEmptiesTheContent();
    void limitUnitLeavesTheCursor();
    void numberOfCells_data();
    void numberOfCells();
};

void TestFinancialEditUnits::acceptedRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("cells");
    QTest::addColumn<QString>("digits"); // of 1234567890.12
    const auto row = [](const char *name, int start, int end, const char *digits) {
        QTest::newRow(name) << start << end << int(qstrlen(digits)) << QString::fromLatin1(digits);
    };
    row("all units", 0, 11, "123456789012");
    row("jiao and fen", 0, 1, "12");
    row("jiao alone", 1, 1, "1");
    row("highest unit alone", 11, 11, "1");
    row("whole digits", 2, 8, "4567890");
    row("below fen", -2, 3, "9012__");
    row("above ten yi", 10, 14, "___12");
    row("far above", 40, 41, "__");
    row("far below", -998, 1, QByteArray("12").append(998, '_').constData());
    QTest::newRow("greatest unit") << Most << Most << 1 << QStringLiteral("_");
    QTest::newRow("more cells than a row has") << 0 << Most << 1000 << QString(1000, QLatin1Char('_'));
    QTest::newRow("more cells than an int counts") << Least << Most << 1000 << QString(1000, QLatin1Char('_'));
}

void TestFinancialEditUnits::acceptedRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, cells);
    QFETCH(QString, digits);
    for (const bool asPair : {false, true}) {
        F edit;
        edit.setBoundingRect({0, 0, 240, 60});
        edit.setContentData(QStringLiteral("1234567890.12"));
        edit.moveCursorTo(7);
        const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
        QVERIFY(asPair ? edit.setUnitRange(start, end) : edit.setUnitRange(_UnitRange{start, end}));
        QCOMPARE(edit.unitStart(), start);
        QCOMPARE(edit.unitEnd(), end);
        QCOMPARE(edit.numOfEditable(), cells);
        QCOMPARE(edit.cursorIndx(), 0);
        // The cells wait for the content to be set again.
        QCOMPARE(cellsOf(edit), QString(cells, QLatin1Char('_')));
        QCOMPARE(edit.contentData().toString(), QStringLiteral("1234567890.12"));
        QCOMPARE(content.count(), 0);
        QCOMPARE(edit.rectAt(cells - 1), QRectF(240 - 240.0 / cells, 0, 240.0 / cells, 60));
        edit.syncDigitList();
        QCOMPARE(cellsOf(edit), digits);
    }
}

void TestFinancialEditUnits::rejectedRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::newRow("fen alone") << 0 << 0;
    QTest::newRow("end below jiao") << -5 << 0;
    QTest::newRow("least units") << Least << Least;
    QTest::newRow("upside down") << 5 << 4;
    QTest::newRow("upside down at the bound") << 2 << 1;
    QTest::newRow("upside down and beyond") << Most << Least;
}

void TestFinancialEditUnits::rejectedRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    for (const bool asPair : {false, true}) {
        F edit;
        edit.setBoundingRect({0, 0, 240, 60});
        edit.setIsShowZero(true);
        edit.setIsShowLimit(true);
        edit.setUnitRange(1, 6);
        edit.setLimitUnit(4);
        edit.setContentData(QStringLiteral("0"));
        edit.moveCursorTo(3);
        edit.setIsModified(false);
        const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
        QVERIFY(!(asPair ? edit.setUnitRange(start, end) : edit.setUnitRange(_UnitRange{start, end})));
        QCOMPARE(edit.unitStart(), 1);
        QCOMPARE(edit.unitEnd(), 6);
        QCOMPARE(edit.cursorIndx(), 3);
        QCOMPARE(cellsOf(edit), QStringLiteral("____00"));
        QCOMPARE(edit.rectAt(5), QRectF(200, 0, 40, 60));
        QCOMPARE(edit.contentData().toString(), QStringLiteral("0"));
        QCOMPARE(content.count(), 0);
        QCOMPARE(leftmostReached(edit), 2);
        edit.syncDigitList();
        QCOMPARE(cellsOf(edit), QStringLiteral("____00"));
        QVERIFY(edit.isModified());
    }
}

// Shown zeros start at the cell of 元.
void TestFinancialEditUnits::yuanCell_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("zeros");
    QTest::newRow("all units") << 0 << 11 << QStringLiteral("_________000");
    QTest::newRow("lowest") << 2 << 5 << QStringLiteral("___0");
    QTest::newRow("highest") << 0 << 2 << QStringLiteral("000");
    QTest::newRow("without fen") << 1 << 4 << QStringLiteral("__00");
    QTest::newRow("range below yuan") << 0 << 1 << QStringLiteral("__");
    QTest::newRow("range above yuan") << 3 << 8 << QStringLiteral("______");
}

void TestFinancialEditUnits::yuanCell()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, zeros);
    F edit;
    edit.setIsShowZero(true);
    QVERIFY(edit.setUnitRange(start, end));
    for (int i = 0; i < 2; ++i) {
        edit.setContentData(QStringLiteral("0"));
        QCOMPARE(cellsOf(edit), zeros);
        edit.updateIndxOfYuan();
    }
}

void TestFinancialEditUnits::limitCell_data()
{
    QTest::addColumn<bool>("isShowLimit");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("leftmost");
    QTest::newRow("wan") << true << 0 << 11 << 6 << 5;
    QTest::newRow("not shown") << false << 0 << 11 << 6 << 0;
    QTest::newRow("one below the highest") << true << 0 << 11 << 10 << 1;
    QTest::newRow("the highest") << true << 0 << 11 << 11 << 0;
    QTest::newRow("the lowest") << true << 0 << 11 << 0 << 11;
    QTest::newRow("below the lowest") << true << 0 << 11 << -1 << 0;
    QTest::newRow("above the highest") << true << 0 << 11 << 12 << 0;
    QTest::newRow("least number") << true << 0 << 11 << Least << 0;
    QTest::newRow("greatest number") << true << 0 << 11 << Most << 0;
    QTest::newRow("lowest of a part") << true << 2 << 8 << 2 << 6;
    QTest::newRow("below a part") << true << 2 << 8 << 1 << 0;
    QTest::newRow("one below the highest of a part") << true << 2 << 8 << 7 << 1;
    QTest::newRow("the highest of a part") << true << 2 << 8 << 8 << 0;
}

void TestFinancialEditUnits::limitCell()
{
    QFETCH(bool, isShowLimit);
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, limit);
    QFETCH(int, leftmost);
    F edit;
    edit.setIsShowLimit(isShowLimit);
    QVERIFY(edit.setUnitRange(start, end));
    edit.setLimitUnit(limit);
    QCOMPARE(leftmostReached(edit), leftmost);
    edit.updateIndxOfLimitUnit();
    QCOMPARE(leftmostReached(edit), leftmost);
}

void TestFinancialEditUnits::limitCellFollowsOnDemand()
{
    F edit;
    edit.setLimitUnit(6);
    edit.setIsShowLimit(true);
    QCOMPARE(leftmostReached(edit), 0);
    edit.updateIndxOfLimitUnit();
    QCOMPARE(leftmostReached(edit), 5);
    // Of another range the old cell stays the limit.
    QVERIFY(edit.setUnitRange(0, 9));
    QCOMPARE(leftmostReached(edit), 5);
    edit.updateIndxOfLimitUnit();
    QCOMPARE(leftmostReached(edit), 3);
    edit.setIsShowLimit(false);
    QCOMPARE(leftmostReached(edit), 0);
    edit.setIsShowLimit(true);
    QCOMPARE(leftmostReached(edit), 3);
    edit.setIsShowLimit(false);
    edit.updateIndxOfLimitUnit();
    edit.setIsShowLimit(true);
    QCOMPARE(leftmostReached(edit), 0);
}

void TestFinancialEditUnits::limitUnitEmptiesTheContent_data()
{
    QTest::addColumn<bool>("isShowLimit");
    QTest::addColumn<bool>("isShowZero");
    QTest::addColumn<QString>("cells");
    QTest::newRow("shown") << true << false << QStringLiteral("____________");
    QTest::newRow("not shown") << false << false << QStringLiteral("____________");
    QTest::newRow("with zeros") << true << true << QStringLiteral("_________000");
}

void TestFinancialEditUnits::limitUnitEmptiesTheContent()
{
    QFETCH(bool, isShowLimit);
    QFETCH(bool, isShowZero);
    QFETCH(QString, cells);
    RememberingEdit edit;
    edit.setIsShowLimit(isShowLimit);
    edit.setIsShowZero(isShowZero);
    edit.setContentData(QStringLiteral("1234.5"));
    edit.given.clear();
    edit.unitsThen.clear();
    const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
    edit.setLimitUnit(6);
    QCOMPARE(edit.given.size(), 1);
    QCOMPARE(edit.given.first().userType(), static_cast<int>(QMetaType::QString));
    QCOMPARE(edit.given.first().toString(), QString());
    QCOMPARE(edit.unitsThen, QVector<int>{6});
    QCOMPARE(edit.contentData().toString(), QString());
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(content.count(), 1);
}

void TestFinancialEditUnits::limitUnitLeavesTheCursor()
{
    F edit;
    edit.setIsShowLimit(true);
    edit.setLimitUnit(6);
    QCOMPARE(edit.cursorIndx(), 0);
    edit.moveCursorTo(9);
    edit.setLimitUnit(1);
    QCOMPARE(edit.cursorIndx(), 9);
}

void TestFinancialEditUnits::numberOfCells_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("made");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("as many as units") << 12 << 12;
    QTest::newRow("more than units") << 14 << 14;
    QTest::newRow("most") << 1000 << 1000;
    QTest::newRow("one too many") << 1001 << 1000;
    QTest::newRow("greatest") << Most << 1000;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("least") << Least << 0;
}

void TestFinancialEditUnits::numberOfCells()
{
    QFETCH(int, wanted);
    QFETCH(int, made);
    F edit;
    edit.setBoundingRect({0, 0, 240, 60});
    edit.setContentData(QStringLiteral("1234567890.12"));
    edit.moveCursorTo(7);
    const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
    edit.setNumOfEditable(wanted);
    QCOMPARE(edit.numOfEditable(), made);
    QCOMPARE(edit.cursorIndx(), 0);
    QCOMPARE(cellsOf(edit), QString(made, QLatin1Char('_')));
    QCOMPARE(edit.rectAt(made), QRectF());
    QCOMPARE(edit.rectAt(0), made ? QRectF(0, 0, 240.0 / made, 60) : QRectF());
    // The range stays: the digits are those of its highest units.
    QCOMPARE(edit.unitEnd(), 11);
    QCOMPARE(edit.contentData().toString(), QStringLiteral("1234567890.12"));
    QCOMPARE(content.count(), 0);
    edit.syncDigitList();
    QCOMPARE(cellsOf(edit), QStringLiteral("123456789012").leftJustified(made, QLatin1Char('_'), true));
}

QTEST_MAIN(TestFinancialEditUnits)
#include "tst_financialeditunits.moc"
