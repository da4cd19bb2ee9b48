// SPDX-License-Identifier: MIT
#include "tests/cells/gridcells.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <functional>
#include <limits>

using F = TavroFinancialEdit;
using Operation = std::function<void(F &)>;
Q_DECLARE_METATYPE(Operation)

namespace {

const QString Digits = QStringLiteral("123456789012");
const QString Empty = QStringLiteral("____________");

} // namespace

/// The row of cells of a financial edit: what stands in it, what it reads as, and where its cursor goes.
class TestFinancialEditCells : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contentToCells_data();
    void contentToCells();
    void contentOfOtherTypes_data();
    void contentOfOtherTypes();
    void amountWithoutContent();
    void cellsToContent_data();
    void cellsToContent();
    void contentIsStoredDirectly();
    void leadingZeros_data();
    void leadingZeros();
    void trailingZeros_data();
    void trailingZeros();
    void cursor();
    void cursorWithoutCells();
    void cursorAtTheLimit_data();
    void cursorAtTheLimit();
    void digitByKey_data();
    void digitByKey();
    void announcements_data();
    void announcements();
};

void TestFinancialEditCells::contentToCells_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("isShowZero");
    QTest::addColumn<QString>("cells");
    const auto row = [](const char *name, const QString &content, int start, int end, bool zero, const char *cells) {
        QTest::newRow(name) << content << start << end << zero << QString::fromUtf8(cells);
    };
    const auto whole = [&row](const char *name, const char *content, const char *hidden, const char *shown) {
        row(name, QString::fromUtf8(content), 0, 11, false, hidden);
        row(QByteArray(name).append(", zeros shown").constData(), QString::fromUtf8(content), 0, 11, true, shown);
    };
    whole("empty", "", "____________", "_________000");
    whole("zero", "0", "____________", "_________000");
    whole("zero with places", "0.00", "____________", "_________000");
    whole("many zeros", "00000000000000.0000", "____________", "_________000");
    whole("amount", "1234.5", "______123450", "______123450");
    whole("fen alone", "0.05", "___________5", "_________005");
    whole("jiao alone", "0.5", "__________50", "_________050");
    whole("yuan alone", "5", "_________500", "_________500");
    whole("zeros inside", "10.05", "________1005", "________1005");
    whole("point in front", ".5", "__________50", "_________050");
    whole("point at the end", "5.", "_________500", "_________500");
    whole("point alone", ".", "____________", "_________000");
    whole("zeros in front", "000123.4", "_______12340", "_______12340");
    whole("ten whole digits", "1234567890.12", "123456789012", "123456789012");
    whole("more whole digits", "991234567890.12", "123456789012", "123456789012");
    whole("ten zeros after dropped digits", "90000000000", "____________", "_________000");
    whole("more places", "1.239", "_________123", "_________123");
    whole("more places of zero", "0.009", "____________", "_________000");
    whole("sign", "-5", "________-500", "________-500");
    whole("letters", "abc", "_______abc00", "_______abc00");
    whole("second point", "1.2.3", "_________12.", "_________12.");
    whole("separators", "1,234.50", "_____1,23450", "_____1,23450");
    whole("blank", " ", "_________ 00", "_________ 00");
    whole("exponent", "1e3", "_______1e300", "_______1e300");
    whole("digits of another script", "\u0665.5", "_________\u066550", "_________\u066550");
    row("jiao and fen", QStringLiteral("1234.56"), 0, 1, false, "56");
    row("jiao and fen of fen", QStringLiteral("0.05"), 0, 1, true, "_5");
    row("without fen", QStringLiteral("1234.56"), 1, 6, false, "_12345");
    row("thousands", QStringLiteral("1234567.89"), 5, 8, false, "1234");
    row("yuan and below", QStringLiteral("0.05"), 0, 2, true, "005");
    row("yuan and below, zeros hidden", QStringLiteral("0.05"), 0, 2, false, "__5");
    row("units without a digit", QStringLiteral("991234567890.12"), 10, 13, true, "__12");
    row("long text", QString(500, QLatin1Char('7')), 0, 11, false, "777777777700");
    row("long text without whole digits", QStringLiteral(".%1").arg(QString(500, QLatin1Char('7'))), 0, 11, false,
        "__________77");
}

void TestFinancialEditCells::contentToCells()
{
    QFETCH(QString, content);
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(bool, isShowZero);
    QFETCH(QString, cells);
    F edit;
    edit.setIsShowZero(isShowZero);
    QVERIFY(edit.setUnitRange(start, end));
    setCells(edit, Digits);
    edit.setContentData(content);
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(edit.contentData().toString(), content);
}

void TestFinancialEditCells::contentOfOtherTypes_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("cells");
    QTest::newRow("real number") << QVariant(1234.5) << QStringLiteral("______123450");
    QTest::newRow("whole number") << QVariant(70) << QStringLiteral("________7000");
    QTest::newRow("bytes") << QVariant(QByteArray("8.25")) << QStringLiteral("_________825");
    QTest::newRow("nothing") << QVariant() << Empty;
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << Empty;
}

void TestFinancialEditCells::contentOfOtherTypes()
{
    QFETCH(QVariant, content);
    QFETCH(QString, cells);
    F edit;
    setCells(edit, Digits);
    edit.setContentData(content);
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(edit.contentData(), content);
}

// An amount can be shown that is not the content, and the content comes back.
void TestFinancialEditCells::amountWithoutContent()
{
    F edit;
    edit.setContentData(QStringLiteral("1234.5"));
    edit.stringToDigits(QStringLiteral("8"));
    QCOMPARE(cellsOf(edit), QStringLiteral("_________800"));
    QCOMPARE(edit.contentData().toString(), QStringLiteral("1234.5"));
    edit.stringToDigits(QString());
    QCOMPARE(cellsOf(edit), Empty);
    edit.syncDigitList();
    QCOMPARE(cellsOf(edit), QStringLiteral("______123450"));
}

void TestFinancialEditCells::cellsToContent_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("content");
    const auto row = [](const char *name, int start, int end, const char *cells, const char *content) {
        QTest::newRow(name) << start << end << QString::fromLatin1(cells) << QString::fromLatin1(content);
    };
    row("no digit", 0, 11, "____________", ".00");
    row("fen", 0, 11, "___________5", ".050");
    row("fen of zero", 0, 11, "___________0", ".000");
    row("jiao and fen", 0, 11, "__________50", ".500");
    row("single digit far left", 0, 11, "5___________", ".050");
    row("yuan", 0, 11, "_________500", "5.00");
    row("amount", 0, 11, "______123450", "1234.50");
    row("full", 0, 11, "123456789012", "1234567890.12");
    row("gaps close up", 0, 11, "1__2__3__4__", "12.34");
    row("leading zeros stay", 0, 11, "_________005", "0.05");
    row("without fen, no digit", 1, 6, "______", ".000");
    row("without fen, jiao", 1, 6, "_____5", ".500");
    row("without fen, yuan", 1, 6, "____50", "5.00");
    row("yuan lowest, no digit", 2, 5, "____", ".000");
    row("yuan lowest, a digit", 2, 5, "___7", "7.00");
    row("thousands, no digit", 5, 8, "____", "000.00");
    row("thousands, digits", 5, 8, "__12", "12000.00");
    row("units below fen", -2, 1, "5___", ".050");
    row("jiao alone", 1, 1, "3", ".300");
    row("characters", 0, 11, "-x__________", ".-x0");
}

void TestFinancialEditCells::cellsToContent()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, cells);
    QFETCH(QString, content);
    F edit;
    QVERIFY(edit.setUnitRange(start, end));
    setCells(edit, cells);
    QCOMPARE(edit.digitsToString(), content);
    QVERIFY(edit.contentData().isNull());
    edit.syncContentData();
    QCOMPARE(edit.contentData(), QVariant(content));
    QCOMPARE(cellsOf(edit), cells);
}

// The cells are what the user typed: writing them back does neither spread the content nor fit the
// font anew. Listeners read the new one.
void TestFinancialEditCells::contentIsStoredDirectly()
{
    class Edit : public TavroFinancialEdit
    {
    public:
        void setContentData(const QVariant &) override { ++settings; }
        int settings = 0;
    };
    Edit edit;
    setCells(edit, QStringLiteral("0000_1______"));
    const QFont font(QStringLiteral("DejaVu Serif"), 7);
    edit.setFont(font);
    QVariant seen;
    connect(&edit, &TavroPrototype::contentDataChanged, [&] { seen = edit.contentData(); });
    edit.syncContentData();
    QCOMPARE(seen, QVariant(QStringLiteral("000.01")));
    QCOMPARE(edit.settings, 0);
    QCOMPARE(edit.font(), font);
    QCOMPARE(cellsOf(edit), QStringLiteral("0000_1______"));
}

void TestFinancialEditCells::leadingZeros_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("isShowZero");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, int start, bool zero, const char *before, const char *after) {
        QTest::newRow(name) << start << zero << QString::fromLatin1(before) << QString::fromLatin1(after);
    };
    row("up to the first digit", 0, false, "00_050000000", "____50000000");
    row("all", 0, false, "000000000000", "____________");
    row("none", 0, false, "____________", "____________");
    row("of jiao", 0, false, "_________005", "___________5");
    row("up to another character", 0, false, "00-000000000", "__-000000000");
    row("digit in front", 0, false, "100000000000", "100000000000");
    row("shown, up to the first digit", 0, true, "00_050000000", "____50000000");
    row("shown, all", 0, true, "000000000000", "_________000");
    row("shown, none", 0, true, "____________", "____________");
    row("shown, of jiao", 0, true, "_________005", "_________005");
    row("shown, gaps behind yuan", 0, true, "000000000_0_", "__________0_");
    row("shown, up to another character", 0, true, "00x000000000", "__x000000000");
    row("shown, without yuan", 3, true, "000000000", "_________");
    row("shown, without yuan, up to the first digit", 3, true, "00_100000", "___100000");
}

void TestFinancialEditCells::leadingZeros()
{
    QFETCH(int, start);
    QFETCH(bool, isShowZero);
    QFETCH(QString, before);
    QFETCH(QString, after);
    F edit;
    QVERIFY(edit.setUnitRange(start, 11));
    setCells(edit, before);
    // The setting alone leaves the cells.
    edit.setIsShowZero(isShowZero);
    QCOMPARE(cellsOf(edit), before);
    edit.removePrefixZero();
    QCOMPARE(cellsOf(edit), after);
}

void TestFinancialEditCells::trailingZeros_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, int cursor, const char *before, const char *after) {
        QTest::newRow(name) << cursor << QString::fromLatin1(before) << QString::fromLatin1(after);
    };
    row("all", 0, "____________", "000000000000");
    row("from the cursor on", 9, "____________", "_________000");
    row("between digits", 1, "_1_2_3_4____", "_10203040000");
    row("from the last cell but one", 10, "____________", "__________00");
    row("not on the last cell", 11, "____________", "____________");
    row("none to fill", 3, "___123456789", "___123456789");
}

void TestFinancialEditCells::trailingZeros()
{
    QFETCH(int, cursor);
    QFETCH(QString, before);
    QFETCH(QString, after);
    F edit;
    setCells(edit, before);
    edit.moveCursorTo(cursor);
    edit.fillZeroToTrail();
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.cursorIndx(), cursor);
}

void TestFinancialEditCells::cursor()
{
    F edit;
    edit.decreaseCursor();
    QCOMPARE(edit.cursorIndx(), 0);
    QCOMPARE(edit.increaseCursor(), 11);
    QCOMPARE(edit.cursorIndx(), 1);
    edit.moveCursorTo(10);
    QCOMPARE(edit.increaseCursor(), 11);
    QCOMPARE(edit.cursorIndx(), 11);
    QCOMPARE(edit.increaseCursor(), 11);
    QCOMPARE(edit.cursorIndx(), 11);
    for (const int outside : {-1, 12, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        edit.moveCursorTo(outside);
        QCOMPARE(edit.cursorIndx(), 11);
    }
    edit.decreaseCursor();
    QCOMPARE(edit.cursorIndx(), 10);
    edit.resetCurosr();
    QCOMPARE(edit.cursorIndx(), 0);
}

void TestFinancialEditCells::cursorWithoutCells()
{
    F edit;
    edit.setNumOfEditable(0);
    QCOMPARE(edit.increaseCursor(), -1);
    edit.decreaseCursor();
    edit.moveCursorTo(0);
    edit.fillZeroToTrail();
    edit.updateDigitByKey(Qt::Key_5, QStringLiteral("5"));
    QCOMPARE(edit.cursorIndx(), 0);
    QCOMPARE(cellsOf(edit), QString());
    QCOMPARE(edit.contentData().toString(), QStringLiteral(".00"));
}

void TestFinancialEditCells::cursorAtTheLimit_data()
{
    QTest::addColumn<bool>("isShowLimit");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("right of the limit") << true << 6 << 5;
    QTest::newRow("on the limit") << true << 5 << 5;
    QTest::newRow("left of the limit") << true << 3 << 3;
    QTest::newRow("on the cell, not shown") << false << 5 << 4;
    QTest::newRow("left of the cell, not shown") << false << 3 << 2;
}

void TestFinancialEditCells::cursorAtTheLimit()
{
    QFETCH(bool, isShowLimit);
    QFETCH(int, from);
    QFETCH(int, to);
    F edit;
    edit.setIsShowLimit(true);
    edit.setLimitUnit(6);
    edit.setIsShowLimit(isShowLimit);
    edit.moveCursorTo(from);
    QCOMPARE(edit.cursorIndx(), from);
    edit.decreaseCursor();
    QCOMPARE(edit.cursorIndx(), to);
}

void TestFinancialEditCells::digitByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");
    QTest::addColumn<QString>("content"); // null where nothing is to happen
    const auto row = [](const char *name, int key, const char *text, int cursor, const QString &before,
                        const char *after, int cursorAfter, const char *content) {
        QTest::newRow(name) << key << QString::fromLatin1(text) << cursor << before << QString::fromLatin1(after)
                            << cursorAfter << QString::fromLatin1(content);
    };
    row("first cell", Qt::Key_1, "1", 0, Empty, "100000000000", 1, "1000000000.00");
    row("cell of yuan", Qt::Key_9, "9", 9, Empty, "_________900", 10, "9.00");
    row("last cell but one", Qt::Key_5, "5", 10, Empty, "__________50", 11, ".500");
    row("last cell", Qt::Key_5, "5", 11, Empty, "___________5", 11, ".050");
    row("zero in front", Qt::Key_0, "0", 0, Empty, "____________", 1, ".00");
    row("zero over the first digit", Qt::Key_0, "0", 0, Digits, "_23456789012", 1, "234567890.12");
    row("over a digit", Qt::Key_0, "0", 5, Digits, "123450789012", 6, "1234507890.12");
    row("gap to the right", Qt::Key_2, "2", 1, QStringLiteral("1__3________"), "120300000000", 2, "1203000000.00");
    row("text of the key", Qt::Key_9, "x", 9, Empty, "_________x00", 10, "x.00");
    row("letter", Qt::Key_A, "a", 3, Digits, "123456789012", 3, nullptr);
    row("key before the digits", Qt::Key_0 - 1, "7", 3, Digits, "123456789012", 3, nullptr);
    row("key behind the digits", Qt::Key_9 + 1, "7", 3, Digits, "123456789012", 3, nullptr);
    row("Enter", Qt::Key_Return, "\r", 3, Digits, "123456789012", 3, nullptr);
}

void TestFinancialEditCells::digitByKey()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    QFETCH(QString, content);
    F edit;
    setCells(edit, before);
    edit.moveCursorTo(cursor);
    const QSignalSpy changed(&edit, &TavroPrototype::contentDataChanged);
    edit.updateDigitByKey(key, text);
    QCOMPARE(cellsOf(edit), after);
    QCOMPARE(edit.cursorIndx(), cursorAfter);
    QCOMPARE(edit.contentData().toString(), content);
    QCOMPARE(changed.count(), content.isNull() ? 0 : 1);
}

void TestFinancialEditCells::announcements_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<int>("announced");
    const auto row = [](const char *name, int announced, const Operation &operation) {
        QTest::newRow(name) << operation << announced;
    };
    row("content", 1, [](F &edit) { edit.setContentData(QStringLiteral("5")); });
    row("same content", 1, [](F &edit) { edit.setContentData(edit.contentData()); });
    row("renewed", 1, [](F &edit) { edit.renew(); });
    row("cells to content", 1, [](F &edit) { edit.syncContentData(); });
    row("content to cells", 0, [](F &edit) { edit.syncDigitList(); });
    row("amount to cells", 0, [](F &edit) { edit.stringToDigits(QStringLiteral("5")); });
    row("limit", 1, [](F &edit) { edit.setLimitUnit(6); });
    row("limit shown", 0, [](F &edit) { edit.setIsShowLimit(true); });
    row("zeros shown", 0, [](F &edit) { edit.setIsShowZero(true); });
    row("zeros", 0, [](F &edit) {
        edit.fillZeroToTrail();
        edit.removePrefixZero();
    });
    row("one cell", 0, [](F &edit) { edit.setDigitAt(0, QStringLiteral("5")); });
    row("cursor", 0, [](F &edit) {
        edit.increaseCursor();
        edit.decreaseCursor();
        edit.moveCursorTo(3);
        edit.resetCurosr();
        edit.triggerDrawCursor();
    });
    row("rectangle", 0, [](F &edit) { edit.setBoundingRect({0, 0, 1, 1}); });
    row("mode", 0, [](F &edit) { edit.setPaintMode(Paint_Input); });
}

void TestFinancialEditCells::announcements()
{
    QFETCH(Operation, operation);
    QFETCH(int, announced);
    F edit;
    edit.setContentData(QStringLiteral("1234.5"));
    const QSignalSpy changed(&edit, &TavroPrototype::contentDataChanged);
    operation(edit);
    QCOMPARE(changed.count(), announced);
}

QTEST_MAIN(TestFinancialEditCells)
#include "tst_financialeditcells.moc"
