// SPDX-License-Identifier: MIT
#include "cells/amountcells.h"

#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int Digits = 12;
constexpr int Invalid = -1;

constexpr std::array<qint64, Digits + 1> powersOfTen()
{
    std::array<qint64, Digits + 1> powers = {1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}

constexpr std::array<qint64, Digits + 1> Powers = powersOfTen();

// Value of a unit in 分; of one beyond the units, the value just beyond the highest.
qint64 valueOfUnit(int unit)
{
    return Powers[static_cast<std::size_t>(qBound(0, unit, Digits))];
}

// A kind of row, and a range that it accepts.
struct Row
{
    amountcells::Style style;
    bool keepsZeros;
    _UnitRange range;
};

void addRows(std::vector<Row> *rows, const amountcells::Style &style, bool keepsZeros)
{
    for (int end = style.leastEnd; end <= 13; ++end) {
        for (int start = -2; start <= end; ++start)
            rows->push_back({style, keepsZeros, {start, end}});
    }
}

std::vector<Row> everyRow()
{
    std::vector<Row> rows;
    addRows(&rows, amountcells::SeparatedRow, true);
    addRows(&rows, amountcells::Grid, true);
    addRows(&rows, amountcells::Grid, false);
    return rows;
}

// What the units of the row can say of an amount.
qint64 held(qint64 cents, const _UnitRange &range)
{
    const qint64 lowest = valueOfUnit(range.start);
    return cents % valueOfUnit(range.end + 1) / lowest * lowest;
}

QString text(qint64 cents)
{
    return QStringLiteral("%1.%2").arg(cents / 100).arg(cents % 100, 2, 10, QLatin1Char('0'));
}

// As an amount is written by people: no zero at the end, no point without places.
QString shortText(qint64 cents)
{
    QString result = text(cents);
    while (result.endsWith(QLatin1Char('0')))
        result.chop(1);
    if (result.endsWith(QLatin1Char('.')))
        result.chop(1);
    return result;
}

// Digit by digit: a floating-point number would hide what is a cent off.
qint64 centsOf(const QString &content)
{
    qint64 cents = 0;
    int places = Invalid;
    for (const QChar character : content) {
        if (character == QLatin1Char('.') && places == Invalid) {
            places = 0;
            continue;
        }
        const int digit = character.unicode() - '0';
        if (digit < 0 || digit > 9 || (places >= 2 && digit != 0))
            return Invalid;
        if (places < 2)
            cents = cents * 10 + digit;
        places += places == Invalid ? 0 : 1;
    }
    return cents * valueOfUnit(2 - std::max(places, 0));
}

QStringList split(const QString &content, const Row &row)
{
    QStringList cells = amountcells::digitsOf(content, row.range, amountcells::cellCount(row.range));
    const int yuan = amountcells::indexOfUnit(row.range, amountcells::Yuan);
    amountcells::removeLeadingZeros(&cells, row.keepsZeros ? yuan : -1);
    return cells;
}

QString joined(const QStringList &cells, const Row &row)
{
    return amountcells::amountOf(cells, row.range.start, row.style);
}

bool comesBack(const QString &content, const Row &row)
{
    return centsOf(joined(split(content, row), row)) == held(centsOf(content), row.range);
}

QByteArray describe(const QString &content, const Row &row)
{
    return QStringLiteral("%1 in %2 to %3 of a %4: %5")
        .arg(content)
        .arg(row.range.start)
        .arg(row.range.end)
        .arg(row.style.leadsWithZero ? QStringLiteral("row") : QStringLiteral("grid"), joined(split(content, row), row))
        .toUtf8();
}

// Amounts around each power of ten, and of each digit alone.
std::vector<qint64> telling()
{
    std::vector<qint64> amounts = {0};
    for (const qint64 power : Powers) {
        for (const qint64 amount : {power - 1, power, power + 1, 5 * power, 9 * power + 9}) {
            if (amount < Powers.back())
                amounts.push_back(amount);
        }
    }
    return amounts;
}

// As many short amounts as long ones.
qint64 anyAmount(QRandomGenerator *random)
{
    const qint64 bound = valueOfUnit(random->bounded(1, Digits + 1));
    return static_cast<qint64>(random->generate64() % static_cast<quint64>(bound));
}

} // namespace

/// Amounts that go into cells and come back: whatever the units of a row can say of them survives.
class AmountRoundTripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contentsAreReadExactly();
    void tellingAmountsInEveryRow();
    void manyAmounts();
    void whatComesBackStays();
    void splitRowsNeverHoldASingleCent();
    void singleCharacterTypedIntoASeparatedRow();
};

void AmountRoundTripTest::contentsAreReadExactly()
{
    QCOMPARE(centsOf(QStringLiteral("9999999999.99")), Powers.back() - 1);
    QCOMPARE(centsOf(QStringLiteral(".050")), qint64(5));
    QCOMPARE(centsOf(QStringLiteral("0.5")), qint64(50));
    QCOMPARE(centsOf(QStringLiteral("12")), qint64(1200));
    QCOMPARE(centsOf(QString()), qint64(0));
    QCOMPARE(centsOf(QStringLiteral("0.055")), qint64(Invalid));
    QCOMPARE(centsOf(QStringLiteral("1.2.3")), qint64(Invalid));
    QCOMPARE(centsOf(QStringLiteral("-1.00")), qint64(Invalid));
    QCOMPARE(held(123456, {0, 11}), qint64(123456));
    QCOMPARE(held(123456, {1, 3}), qint64(3450));
    QCOMPARE(held(123456, {-2, 2}), qint64(456));
    QCOMPARE(held(123456, {12, 13}), qint64(0));
    QCOMPARE(text(100005), QStringLiteral("1000.05"));
    QCOMPARE(shortText(100050), QStringLiteral("1000.5"));
    QCOMPARE(shortText(1000), QStringLiteral("10"));
}

void AmountRoundTripTest::tellingAmountsInEveryRow()
{
    for (const Row &row : everyRow()) {
        QVERIFY(amountcells::isAccepted(row.range, row.style));
        for (const qint64 amount : telling())
            QVERIFY2(comesBack(text(amount), row), describe(text(amount), row));
    }
}

void AmountRoundTripTest::manyAmounts()
{
    const std::vector<Row> rows = everyRow();
    QRandomGenerator random(20260606);
    for (int round = 0; round < 100000; ++round) {
        const Row &row = rows[static_cast<std::size_t>(round) % rows.size()];
        const qint64 amount = anyAmount(&random);
        const QString content = random.bounded(2) == 0 ? text(amount) : shortText(amount);
        QVERIFY2(comesBack(content, row), describe(content, row));
    }
}

// The content that a row wrote gives the same cells again: leaving a field and coming back changes nothing.
void AmountRoundTripTest::whatComesBackStays()
{
    const std::vector<Row> rows = everyRow();
    QRandomGenerator random(20260707);
    for (int round = 0; round < 10000; ++round) {
        const Row &row = rows[static_cast<std::size_t>(round) % rows.size()];
        const QStringList cells = split(text(anyAmount(&random)), row);
        QCOMPARE(split(joined(cells, row), row), cells);
    }
}

// A digit alone is read as 角 in a separated row. No amount that was split comes to that: where the row has 分, it has
// 元 as well, and from there on all zeros stay.
void AmountRoundTripTest::splitRowsNeverHoldASingleCent()
{
    for (const Row &row : everyRow()) {
        if (!row.style.leadsWithZero || row.range.start > 0)
            continue;
        for (const qint64 amount : telling())
            QVERIFY2(split(text(amount), row).join(QString()).size() >= 3, describe(text(amount), row));
    }
}

void AmountRoundTripTest::singleCharacterTypedIntoASeparatedRow()
{
    const Row row = {amountcells::SeparatedRow, true, {0, 6}};
    const Row grid = {amountcells::Grid, false, {0, 6}};
    for (int cell = 0; cell < 7; ++cell) {
        QStringList cells = QVector<QString>(7).toList();
        cells[cell] = QStringLiteral("5");
        QCOMPARE(joined(cells, row), QStringLiteral("0.5"));
        QCOMPARE(joined(cells, grid), QStringLiteral(".050"));
        cells[(cell + 1) % 7] = QStringLiteral("5");
        QCOMPARE(centsOf(joined(cells, row)), qint64(55));
    }
    // read again, the row says five 角
    QCOMPARE(split(QStringLiteral("0.5"), row).join(QLatin1Char(' ')), QStringLiteral("    0 5 0"));
}

QTEST_APPLESS_MAIN(AmountRoundTripTest)
#include "tst_amountroundtrip.moc"
