// SPDX-License-Identifier: MIT
#include "cells/amountcells.h"

#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <limits>

namespace {

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

// A row as one text: a character a cell, and a dot in the middle for an empty one.
QStringList row(const QString &picture)
{
    QStringList cells;
    for (const QChar character : picture)
        cells.append(character == QChar(u'·') ? QString() : QString(character));
    return cells;
}

QString picture(const QStringList &cells)
{
    QString text;
    for (const QString &cell : cells)
        text += cell.isEmpty() ? QStringLiteral("·") : cell;
    return text;
}

// The rules once more, on whole strings and a cell at a time, as plain as they can be written.
namespace plainly {

QStringList digitsOf(QString amount, const _UnitRange &range)
{
    if (amount.isEmpty())
        amount = QStringLiteral("0.00");
    if (!amount.contains(QLatin1String(".")))
        amount += QLatin1String(".00");
    int point = amount.indexOf(QLatin1String("."));
    if (point < 10)
        amount.prepend(QString(10 - point, QLatin1Char('0')));
    point = amount.indexOf(QLatin1String("."));
    amount += QString(amount.size() - point + 1, QLatin1Char('0'));
    QString digits = amount.mid(point - 10, 10) + amount.mid(point + 1, 2);
    std::reverse(digits.begin(), digits.end());
    QStringList cells;
    for (int unit = range.start; unit <= range.end; ++unit)
        cells.prepend(unit >= 0 && unit < 12 ? QString(digits.at(unit)) : QString());
    return cells;
}

QString withPoint(QString text)
{
    const int place = text.size() - 2;
    return text.insert(place < 0 ? 0 : place, QLatin1String("."));
}

QString separatedAmountOf(const QStringList &cells, int lowestUnit)
{
    QString text;
    for (const QString &cell : cells)
        text += cell;
    if (text.isEmpty())
        return text;
    for (int unit = 0; unit < lowestUnit; ++unit)
        text += QLatin1String("0");
    text = withPoint(text);
    return text.startsWith(QLatin1String(".")) ? QLatin1String("0") + text : text;
}

QString gridAmountOf(const QStringList &cells, int lowestUnit)
{
    QString text;
    for (const QString &cell : cells)
        text += cell;
    for (int unit = 0; unit < lowestUnit; ++unit)
        text += QLatin1String("0");
    if (text.size() < 2)
        text = QLatin1String("0") + text;
    text = withPoint(text);
    return text.startsWith(QLatin1String(".")) ? text + QLatin1String("0") : text;
}

void removeLeadingZeros(QStringList *cells, int yuan)
{
    for (int i = 0; i < cells->size(); ++i) {
        QString &cell = (*cells)[i];
        if (yuan >= 0 && i >= yuan) {
            if (cell != QLatin1String("0"))
                return;
        } else if (cell == QLatin1String("0")) {
            cell = QString();
        } else if (!cell.isEmpty()) {
            return;
        }
    }
}

} // namespace plainly

// What people type and what files bring: mostly digits, at times anything.
QString anyContent(QRandomGenerator *random)
{
    const QString digits = QStringLiteral("0001234567890.");
    const QString anything = QStringLiteral("00123.-+, e元٣é·") + QString::fromUcs4(U"\x1f600");
    const QString &alphabet = random->bounded(2) == 0 ? digits : anything;
    QString content;
    for (int length = random->bounded(18); length > 0; --length)
        content += alphabet.at(random->bounded(alphabet.size()));
    return content;
}

} // namespace

/// Amounts and characters spread over cells, and read from them.
class AmountCellsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digits_data();
    void digits();
    void digitsOfHundreds();
    void digitsOfEndlessRanges();
    void digitsOfRowsOfAnotherLength();
    void characters_data();
    void characters();
    void charactersOfManyTexts();
    void amount_data();
    void amount();
    void amountOfCellsWithLongTexts();
    void amountAboveAnyUnit();
    void leadingZeros_data();
    void leadingZeros();
    void leadingZerosOfLongTexts();
    void trailingZeros_data();
    void trailingZeros();
    void anyContentAsPlainly();

private:
    static void addAmounts();
    static void addOtherContents();
    static void addRanges();
};

void AmountCellsTest::digits_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("cells");

    addAmounts();
    addOtherContents();
    addRanges();
}

namespace {

void add(const char *name, const char *content, int start, int end, const char *cells)
{
    QTest::newRow(name) << QString::fromUtf8(content) << start << end << QString::fromUtf8(cells);
}

} // namespace

void AmountCellsTest::addAmounts()
{
    add("one place", "1234.5", 0, 6, "0123450");
    add("two places", "1234.56", 0, 6, "0123456");
    add("third place is cut off, not rounded", "0.999", 0, 6, "0000099");
    add("no point", "1234", 0, 6, "0123400");
    add("empty", "", 0, 6, "0000000");
    add("zero", "0", 0, 6, "0000000");
    add("zero with places", "0.00", 0, 6, "0000000");
    add("zeros in front", "0001234.50", 0, 6, "0123450");
    add("nothing in front of the point", ".5", 0, 6, "0000050");
    add("nothing behind the point", "5.", 0, 6, "0000500");
    add("point alone", ".", 0, 6, "0000000");
    add("ten whole digits", "1234567890.12", 0, 11, "123456789012");
    add("eleventh whole digit is dropped", "91234567890.12", 0, 11, "123456789012");
    add("twelve whole digits and three places", "123456789012.345", 0, 11, "345678901234");
    add("whole digits beyond the range", "123456789012.345", 0, 6, "8901234");
    add("eleven whole digits without a point", "91234567890", 0, 11, "123456789000");
}

void AmountCellsTest::addOtherContents()
{
    add("minus stands in a cell", "-5", 0, 6, "000-500");
    add("minus in the highest cell", "-1234.5", 0, 6, "-123450");
    add("minus inside a wide row", "-1234.5", 0, 11, "00000-123450");
    add("minus as the eleventh is dropped", "-1234567890.12", 0, 11, "123456789012");
    add("plus", "+5", 0, 6, "000+500");
    add("minus behind the point", "5.-1", 0, 6, "00005-1");
    add("letters", "ab.cd", 0, 6, "000abcd");
    add("no number", "nan", 0, 6, "00nan00");
    add("exponent", "1e5", 0, 6, "001e500");
    add("comma is no point", "1,5", 0, 6, "001,500");
    add("blank", " ", 0, 6, "0000 00");
    add("blanks around", " 5 ", 0, 6, "00 5 00");
    add("blank for groups", "1 234.50", 0, 6, "1 23450");
    add("second point is a place", "1.2.3", 0, 6, "000012.");
    add("two points in a row", "1..5", 0, 6, "00001.5");
    add("points alone", "..", 0, 6, "00000.0");
    add("word of the unit", "5元", 0, 6, "0005元00");
    add("Arabic digit is copied", "٣", 0, 6, "0000٣00");
    add("fullwidth point is no point", "1．5", 0, 6, "001．500");
}

void AmountCellsTest::addRanges()
{
    add("without 分", "1234.56", 1, 6, "012345");
    add("without 角 and 分", "1234.56", 2, 6, "01234");
    add("元 alone", "7.89", 2, 2, "7");
    add("角 and 分 alone", "1.23", 0, 1, "23");
    add("inner units", "1234.56", 1, 3, "345");
    add("without 元", "12345678.9", 3, 8, "234567");
    add("highest two units", "1234567890", 10, 11, "12");
    add("content below the range", "0.99", 3, 5, "000");
    add("units below 分 are empty", "1.23", -2, 2, "123··");
    add("units above ten 亿 are empty", "1234567890", 9, 13, "··123");
    add("all units beyond the words", "1234567890.12", 12, 14, "···");
    add("all units below 分", "1234567890.12", -3, -1, "···");
    add("upside down", "1234.56", 5, 4, "");
}

void AmountCellsTest::digits()
{
    QFETCH(const QString, content);
    QFETCH(const int, start);
    QFETCH(const int, end);
    QFETCH(const QString, cells);
    const _UnitRange range = {start, end};
    QCOMPARE(picture(amountcells::digitsOf(content, range, amountcells::cellCount(range))), cells);
}

void AmountCellsTest::digitsOfHundreds()
{
    const QString sevens(400, QLatin1Char('7'));
    const QString sevenths = QStringLiteral("0.") + sevens;
    QCOMPARE(picture(amountcells::digitsOf(sevens, {0, 11}, 12)), QStringLiteral("777777777700"));
    QCOMPARE(picture(amountcells::digitsOf(sevenths, {0, 11}, 12)), QStringLiteral("000000000077"));
    QCOMPARE(picture(amountcells::digitsOf(sevens + sevenths, {0, 11}, 12)), QStringLiteral("777777777077"));
}

void AmountCellsTest::digitsOfEndlessRanges()
{
    const QString content = QStringLiteral("1.23");
    const QString empty(1000, QChar(u'·'));
    const auto cells = [&content](int start, int end) {
        return picture(amountcells::digitsOf(content, {start, end}, amountcells::cellCount({start, end})));
    };
    QCOMPARE(cells(Lowest, 2), QStringLiteral("123") + empty.left(997));
    QCOMPARE(cells(0, 999), empty.left(988) + QStringLiteral("000000000123"));
    QCOMPARE(cells(0, Highest), empty);
    QCOMPARE(cells(Lowest, Highest), empty);
    QCOMPARE(cells(Highest, Lowest), QString());
    QCOMPARE(cells(Highest, Highest), QStringLiteral("·"));
    QCOMPARE(cells(Lowest, Lowest), QStringLiteral("·"));
}

void AmountCellsTest::digitsOfRowsOfAnotherLength()
{
    const QString content = QStringLiteral("1234.5");
    QCOMPARE(picture(amountcells::digitsOf(content, {0, 6}, 3)), QStringLiteral("012"));
    QCOMPARE(picture(amountcells::digitsOf(content, {0, 6}, 9)), QStringLiteral("0123450··"));
    QCOMPARE(picture(amountcells::digitsOf(content, {0, 6}, 0)), QString());
    QCOMPARE(picture(amountcells::digitsOf(content, {5, 4}, 2)), QStringLiteral("··"));
}

void AmountCellsTest::characters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("cells");

    const auto add = [](const char *name, const QString &text, int count, const QStringList &cells) {
        QTest::newRow(name) << text << count << cells;
    };
    const QString digits = QStringLiteral("123456");
    const QString smile = QString::fromUcs4(U"\x1f600");
    const QString accented = QStringLiteral("e\u0301");
    add("exactly filled", digits, 6, row(digits));
    add("too short", QStringLiteral("12"), 6, row(QStringLiteral("12····")));
    add("too long", QStringLiteral("1234567"), 6, row(digits));
    add("empty", QString(), 3, row(QStringLiteral("···")));
    add("no cells", digits, 0, {});
    add("less than no cells", digits, -1, {});
    add("anything is copied", QStringLiteral("-a 中.0"), 6, row(QStringLiteral("-a 中.0")));
    add("leading zeros stay", QStringLiteral("007"), 4, row(QStringLiteral("007·")));
    add("beyond the basic plane", smile + QLatin1Char('1') + smile, 3, {smile, QStringLiteral("1"), smile});
    add("letter and its accent", accented + QLatin1Char('1'), 3, {accented, QStringLiteral("1"), QString()});
    add("two accents on one letter", accented + QChar(0x0323), 1, {accented + QChar(0x0323)});
    add("wide character cut off whole", QLatin1Char('1') + smile, 1, {QStringLiteral("1")});
    add("accent that follows the last cell", QLatin1Char('1') + accented, 2, {QStringLiteral("1"), accented});
    add("accent alone", QString(QChar(0x0301)), 2, {QString(QChar(0x0301)), QString()});
    add("half a pair", QString(smile.at(0)), 2, {QString(smile.at(0)), QString()});
}

void AmountCellsTest::characters()
{
    QFETCH(const QString, text);
    QFETCH(const int, count);
    QFETCH(const QStringList, cells);
    QCOMPARE(amountcells::charactersOf(text, count), cells);
}

void AmountCellsTest::charactersOfManyTexts()
{
    QRandomGenerator random(20240404);
    for (int round = 0; round < 5000; ++round) {
        const QString text = anyContent(&random);
        const QStringList wide = amountcells::charactersOf(text, text.size() + 2);
        QCOMPARE(wide.size(), text.size() + 2);
        QCOMPARE(wide.join(QString()), text);
        const int count = random.bounded(text.size() + 2);
        QCOMPARE(amountcells::charactersOf(text, count), wide.mid(0, count));
    }
}

void AmountCellsTest::amount_data()
{
    QTest::addColumn<QString>("cells");
    QTest::addColumn<int>("lowestUnit");
    QTest::addColumn<QString>("separated");
    QTest::addColumn<QString>("grid");

    const auto add = [](const char *name, const char *cells, int lowestUnit, const char *separated, const char *grid) {
        QTest::newRow(name) << QString::fromUtf8(cells) << lowestUnit << QString::fromUtf8(separated)
                            << QString::fromUtf8(grid);
    };
    add("usual", "·123450", 0, "1234.50", "1234.50");
    add("all cells filled", "123456789012", 0, "1234567890.12", "1234567890.12");
    add("visible zeros", "····005", 0, "0.05", "0.05");
    add("zero that is kept", "····000", 0, "0.00", "0.00");
    add("two digits", "·····12", 0, "0.12", ".120");
    add("digit of 分 alone counts as 角 in a separated row", "······5", 0, "0.5", ".050");
    add("single digit is a single digit wherever it stands", "5······", 0, "0.5", ".050");
    add("gap closes", "1··2··3", 0, "1.23", "1.23");
    add("zeros in front are written", "0001234", 0, "00012.34", "00012.34");

    add("no cells", "", 0, "", ".00");
    add("empty cells", "·······", 0, "", ".00");
    add("empty cells above 分", "······", 1, "", ".000");
    add("empty cells above 角", "·····", 2, "", ".000");
    add("empty cells above 元", "····", 3, "", "0.00");
    add("empty cells above the words", "··", 12, "", "0000000000.00");

    add("角 alone", "·····5", 1, "0.50", ".500");
    add("元 alone", "····5", 2, "5.00", "5.00");
    add("十 alone", "···5", 3, "50.00", "50.00");
    add("百万 down to 十", "·23456", 3, "234560.00", "234560.00");
    add("below 分 nothing is appended", "12··", -2, "0.12", ".120");
    add("far below 分", "12", Lowest, "0.12", ".120");

    add("minus", "···-500", 0, "-5.00", "-5.00");
    add("minus and a digit", "·····-5", 0, "0.-5", ".-50");
    add("letters", "···abcd", 0, "ab.cd", "ab.cd");
    add("point in a cell", "000012.", 0, "00001.2.", "00001.2.");
    add("point alone", "·.", 0, "0..", ".0.0");
    add("point in front", "·.500", 0, "0.5.00", ".5.000");
}

void AmountCellsTest::amount()
{
    QFETCH(const QString, cells);
    QFETCH(const int, lowestUnit);
    QFETCH(const QString, separated);
    QFETCH(const QString, grid);
    QCOMPARE(amountcells::amountOf(row(cells), lowestUnit, amountcells::SeparatedRow), separated);
    QCOMPARE(amountcells::amountOf(row(cells), lowestUnit, amountcells::Grid), grid);
}

void AmountCellsTest::amountOfCellsWithLongTexts()
{
    const QStringList cells = {QStringLiteral("12"), QString(), QStringLiteral("345")};
    QCOMPARE(amountcells::amountOf(cells, 0, amountcells::SeparatedRow), QStringLiteral("123.45"));
    QCOMPARE(amountcells::amountOf(cells, 0, amountcells::Grid), QStringLiteral("123.45"));
}

void AmountCellsTest::amountAboveAnyUnit()
{
    // as many zeros as a row has cells at most: nothing has a billion of them
    const QString zeros(998, QLatin1Char('0'));
    QCOMPARE(amountcells::amountOf({QString()}, Highest, amountcells::SeparatedRow), QString());
    QCOMPARE(amountcells::amountOf({QString()}, Highest, amountcells::Grid), zeros + QStringLiteral(".00"));
    QCOMPARE(amountcells::amountOf({QStringLiteral("7")}, 1001, amountcells::SeparatedRow),
             QStringLiteral("7") + zeros + QStringLiteral(".00"));
}

void AmountCellsTest::leadingZeros_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("firstKept");
    QTest::addColumn<QString>("after");

    const auto add = [](const char *name, const char *before, int firstKept, const char *after) {
        QTest::newRow(name) << QString::fromUtf8(before) << firstKept << QString::fromUtf8(after);
    };
    add("元, 角 and 分 stay", "0000005", 4, "····005");
    add("元, 角 and 分 stay in an amount of nothing", "0000000", 4, "····000");
    add("up to the first digit", "0123450", 4, "·123450");
    add("zeros behind the first digit stay", "0100000", 4, "·100000");
    add("digit in the first cell", "1000000", 4, "1000000");
    add("digit of 元", "0000100", 4, "····100");
    add("empty cells are skipped", "·0·0105", 4, "····105");
    add("empty from 元 on", "0000···", 4, "·······");
    add("zero right of an empty 元 stays", "0000·0·", 4, "·····0·");
    add("元 in the first cell", "005", 0, "005");
    add("元 beyond the row", "0005", 9, "···5");
    add("元 right behind the row", "0000", 4, "····");
    add("minus ends the pass", "00-0500", 4, "··-0500");
    add("letter ends the pass", "0a00000", 4, "·a00000");
    add("blank ends the pass", "0 00000", 4, "· 00000");
    add("without 元 all leading zeros go", "000005", -1, "·····5");
    add("without 元 nothing is left of nothing", "000000", -1, "······");
    add("without 元 empty cells are skipped", "0·0·50", -1, "····50");
    add("without 元 a minus ends the pass", "0-0005", -1, "·-0005");
    add("no cells", "", -1, "");
    add("no cells, 元 somewhere", "", 4, "");
}

void AmountCellsTest::leadingZeros()
{
    QFETCH(const QString, before);
    QFETCH(const int, firstKept);
    QFETCH(const QString, after);
    QStringList cells = row(before);
    amountcells::removeLeadingZeros(&cells, firstKept);
    QCOMPARE(picture(cells), after);
}

void AmountCellsTest::leadingZerosOfLongTexts()
{
    QStringList cells = {QStringLiteral("0"), QStringLiteral("00"), QStringLiteral("0")};
    amountcells::removeLeadingZeros(&cells, -1);
    QCOMPARE(picture(cells), QStringLiteral("·000"));
}

void AmountCellsTest::trailingZeros_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("after");

    const auto add = [](const char *name, const char *before, int cursor, const char *after) {
        QTest::newRow(name) << QString::fromUtf8(before) << cursor << QString::fromUtf8(after);
    };
    add("behind the first digit", "1······", 0, "1000000");
    add("from the cursor on", "·1·····", 1, "·100000");
    add("left of the cursor nothing", "·······", 5, "·····00");
    add("cursor on an empty cell", "1·3··6·", 1, "1030060");
    add("filled cells stay", "1234567", 0, "1234567");
    add("last cell but one", "·····5·", 5, "·····50");
    add("cursor on the last cell", "1·····5", 6, "1·····5");
    add("cursor on the last cell, which is empty", "1······", 6, "1······");
    add("cursor beyond the row", "1······", 7, "1······");
    add("cursor left of the row", "1······", -1, "1······");
    add("single cell", "·", 0, "·");
    add("no cells", "", 0, "");
    add("letters stay", "a·-····", 0, "a0-0000");
}

void AmountCellsTest::trailingZeros()
{
    QFETCH(const QString, before);
    QFETCH(const int, cursor);
    QFETCH(const QString, after);
    QStringList cells = row(before);
    amountcells::fillTrailingZeros(&cells, cursor);
    QCOMPARE(picture(cells), after);
}

void AmountCellsTest::anyContentAsPlainly()
{
    QRandomGenerator random(20250505);
    for (int round = 0; round < 20000; ++round) {
        const QString content = anyContent(&random);
        const int start = random.bounded(-2, 13);
        const _UnitRange range = {start, start + random.bounded(14)};
        QStringList cells = amountcells::digitsOf(content, range, amountcells::cellCount(range));
        QStringList plain = plainly::digitsOf(content, range);
        QVERIFY2(cells == plain, qPrintable(content));

        const int yuan = random.bounded(-1, 12);
        amountcells::removeLeadingZeros(&cells, yuan);
        plainly::removeLeadingZeros(&plain, yuan);
        QVERIFY2(cells == plain, qPrintable(content));
        QCOMPARE(amountcells::amountOf(cells, start, amountcells::SeparatedRow),
                 plainly::separatedAmountOf(plain, start));
        QCOMPARE(amountcells::amountOf(cells, start, amountcells::Grid), plainly::gridAmountOf(plain, start));
    }
}

QTEST_APPLESS_MAIN(AmountCellsTest)
#include "tst_amountcells.moc"
