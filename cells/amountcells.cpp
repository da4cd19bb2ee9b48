// SPDX-License-Identifier: MIT
#include "cells/amountcells.h"

#include "entry/numberwords.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <limits>

namespace amountcells {

namespace {

constexpr int Units = static_cast<int>(numberwords::PlainUnits.size());
constexpr int Places = 2;
constexpr int MostCells = 1000;

const QString &zero()
{
    static const QString text = QStringLiteral("0");
    return text;
}

bool isZero(const QString &text)
{
    return text.size() == 1 && text.at(0) == QLatin1Char('0');
}

// Text of one cell. Forms are full of digits, so these are made once and shared.
QString cellText(QChar character)
{
    static const std::array<QString, 10> digits = {
        zero(),
        QStringLiteral("1"),
        QStringLiteral("2"),
        QStringLiteral("3"),
        QStringLiteral("4"),
        QStringLiteral("5"),
        QStringLiteral("6"),
        QStringLiteral("7"),
        QStringLiteral("8"),
        QStringLiteral("9"),
    };
    const int value = character.unicode() - '0';
    return value >= 0 && value < 10 ? digits[static_cast<std::size_t>(value)] : QString(character);
}

// Text of the cell of one unit. Reads the amount as if it had zeros without end on both sides.
QString digitOf(const QString &amount, int point, int unit)
{
    if (unit < 0 || unit >= Units)
        return {};
    const int index = unit < Places ? point + Places - unit : point - 1 - (unit - Places);
    return index >= 0 && index < amount.size() ? cellText(amount.at(index)) : zero();
}

} // namespace

QStringView unitWord(int unit)
{
    const QStringView *word = entryAt(numberwords::PlainUnits, unit);
    return word ? *word : QStringView();
}

bool isAccepted(const _UnitRange &range, const Style &style)
{
    return range.end >= style.leastEnd && range.end >= range.start;
}

int cellCount(const _UnitRange &range)
{
    return static_cast<int>(qBound(qint64(0), qint64(range.end) - range.start + 1, qint64(MostCells)));
}

int boundedCount(int wanted)
{
    return qBound(0, wanted, MostCells);
}

int indexOfUnit(const _UnitRange &range, int unit)
{
    if (unit < range.start || unit > range.end)
        return -1;
    return static_cast<int>(std::min(qint64(range.end) - unit, qint64(std::numeric_limits<int>::max())));
}

int indexOfLimit(const _UnitRange &range, int limitUnit)
{
    return limitUnit < range.end ? indexOfUnit(range, limitUnit) : -1;
}

QStringList digitsOf(const QString &amount, const _UnitRange &range, int count)
{
    const int found = amount.indexOf(QLatin1Char('.'));
    const int point = found < 0 ? amount.size() : found;
    const int units = std::min(count, cellCount(range));
    QStringList cells;
    cells.reserve(count);
    for (int i = 0; i < units; ++i)
        cells.append(digitOf(amount, point, range.end - i));
    while (cells.size() < count)
        cells.append(QString());
    return cells;
}

QStringList charactersOf(const QString &text, int count)
{
    QStringList cells;
    cells.reserve(count);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int start = 0, end = finder.toNextBoundary(); end > 0 && cells.size() < count;
         start = end, end = finder.toNextBoundary())
        cells.append(text.mid(start, end - start));
    while (cells.size() < count)
        cells.append(QString());
    return cells;
}

QString amountOf(const QStringList &cells, int lowestUnit, const Style &style)
{
    QString amount = cells.join(QString());
    if (amount.isEmpty() && style.isEmptyWithoutDigits)
        return amount;
    // Bounded like a row: no amount has a billion zeros, but a wrong number from a file may ask for them.
    amount += QString(qBound(0, lowestUnit, MostCells), QLatin1Char('0'));
    if (amount.size() < Places && style.padsSingleDigit)
        amount.prepend(QLatin1Char('0'));
    amount.insert(std::max(0, amount.size() - Places), QLatin1Char('.'));
    if (amount.startsWith(QLatin1Char('.')))
        amount.insert(style.leadsWithZero ? 0 : amount.size(), QLatin1Char('0'));
    return amount;
}

void removeLeadingZeros(QStringList *cells, int firstKept)
{
    const int end = firstKept < 0 ? cells->size() : std::min(firstKept, cells->size());
    for (int i = 0; i < end; ++i) {
        if (cells->at(i).isEmpty())
            continue;
        if (!isZero(cells->at(i)))
            return;
        (*cells)[i].clear();
    }
}

void fillTrailingZeros(QStringList *cells, int cursor)
{
    if (cursor < 0 || cursor >= cells->size() - 1)
        return;
    for (int i = cursor; i < cells->size(); ++i) {
        if (cells->at(i).isEmpty())
            (*cells)[i] = zero();
    }
}

QVector<QRectF> cellRects(const QRectF &area, int count, double gap, int gaps)
{
    QVector<QRectF> rects;
    rects.reserve(count);
    const double width = (area.width() - gap * gaps) / count;
    for (int i = 0; i < count; ++i)
        rects.append({area.x() + i * (gap + width), area.y(), width, area.height()});
    return rects;
}

} // namespace amountcells
