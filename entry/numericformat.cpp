// SPDX-License-Identifier: MIT
#include "entry/numericformat.h"

#include <QStringView>
#include <algorithm>
#include <cmath>

namespace numericformat {

namespace {

constexpr QLatin1Char Point('.');
constexpr QLatin1Char Comma(',');
constexpr QLatin1Char Minus('-');
constexpr QLatin1Char Plus('+');
constexpr QLatin1Char Nought('0');

// No double has more decimals, so what a longer pattern asks for beyond them is zeros.
constexpr qsizetype MaxDecimals = 1074;

struct Pattern
{
    QStringView prefix;
    QChar sign; ///< "-" or "+" at the start of the body, or null
    QStringView integers;
    QStringView decimals;
    QStringView suffix;
};

bool isPlace(QChar character)
{
    return (character >= Nought && character <= QLatin1Char('9')) || character == QLatin1Char('#') ||
           character == Plus || character == Minus;
}

qsizetype placesIn(QStringView pattern)
{
    return std::count_if(pattern.begin(), pattern.end(), isPlace);
}

// Where a part of the pattern says how many digits there are, separators count like places.
bool isCounted(QChar character)
{
    return isPlace(character) || character == Comma || character == Point;
}

qsizetype countedIn(QStringView pattern)
{
    return std::count_if(pattern.begin(), pattern.end(), isCounted);
}

Pattern parsed(QStringView pattern)
{
    Pattern result;
    const auto first = std::find_if(pattern.begin(), pattern.end(), isPlace);
    const auto last = std::find_if(pattern.rbegin(), pattern.rend(), isPlace).base();
    const qsizetype start = first - pattern.begin();
    const qsizetype end = std::max(start, qsizetype(last - pattern.begin()));
    result.prefix = pattern.left(start);
    result.suffix = pattern.mid(end);

    QStringView body = pattern.mid(start, end - start);
    if (body.startsWith(Minus) || body.startsWith(Plus)) {
        result.sign = body.front();
        body = body.mid(1);
    }
    const qsizetype point = body.indexOf(Point);
    result.integers = point < 0 ? body : body.left(point);
    result.decimals = point < 0 ? QStringView() : body.mid(point + 1);
    return result;
}

bool isZero(QStringView digits)
{
    return std::all_of(digits.begin(), digits.end(), [](QChar digit) { return digit == Nought; });
}

qsizetype minimumDigits(QStringView integers)
{
    const qsizetype first = integers.indexOf(Nought);
    return first < 0 ? 0 : countedIn(integers.mid(first));
}

qsizetype groupSize(QStringView integers)
{
    const qsizetype comma = integers.lastIndexOf(Comma);
    return comma < 0 ? 0 : placesIn(integers.mid(comma + 1));
}

// The rounded digits around a point, with the noughts in front that the pattern asks for; without a point where the
// value is infinite or not a number.
QString writtenDigits(double magnitude, const Pattern &pattern)
{
    const qsizetype decimals = std::clamp(countedIn(pattern.decimals), qsizetype(1), MaxDecimals);
    QString digits = QString::number(magnitude, 'f', int(decimals));
    const int integers = digits.indexOf(Point);
    const qsizetype missing = integers < 0 ? 0 : minimumDigits(pattern.integers) - integers;
    if (missing > 0)
        digits.prepend(QString(int(missing), Nought));
    return digits;
}

void append(QString &text, QStringView characters)
{
    text.append(characters.data(), int(characters.size()));
}

// Appends the next `count` digits and a comma wherever a whole number of groups is left behind one.
void appendDigits(QString &text, QStringView &digits, qsizetype count, qsizetype group)
{
    for (; count > 0; --count) {
        text.append(digits.front());
        digits = digits.mid(1);
        if (group > 0 && !digits.isEmpty() && digits.size() % group == 0)
            text.append(Comma);
    }
}

void appendIntegers(QString &text, QStringView pattern, QStringView digits)
{
    const qsizetype group = groupSize(pattern);
    qsizetype places = placesIn(pattern);
    for (const QChar character : pattern) {
        if (isPlace(character)) {
            // at the first place all that are too many, then one at each
            --places;
            appendDigits(text, digits, digits.size() - places, group);
        } else if (character != Comma) {
            text.append(character);
        }
    }
    appendDigits(text, digits, digits.size(), group);
}

void appendDecimals(QString &text, QStringView pattern, QStringView digits)
{
    for (const QChar character : pattern) {
        if (!isCounted(character)) {
            text.append(character);
        } else if (digits.isEmpty()) {
            text.append(Nought);
        } else {
            text.append(digits.front());
            digits = digits.mid(1);
        }
    }
}

void appendSign(QString &text, const Pattern &pattern, double value)
{
    if (value < 0)
        text.append(Minus);
    else if (value > 0 && pattern.sign == Plus)
        text.append(Plus);
}

void appendNumber(QString &text, const Pattern &pattern, double value)
{
    const QString digits = writtenDigits(std::abs(value), pattern);
    if (!std::isfinite(value)) {
        appendSign(text, pattern, value);
        text.append(digits);
        return;
    }
    const int point = digits.indexOf(Point);
    const QStringView integers = QStringView(digits).left(point);
    const QStringView decimals = pattern.decimals.isEmpty() ? QStringView() : QStringView(digits).mid(point + 1);
    if (!isZero(integers) || !isZero(decimals))
        appendSign(text, pattern, value);
    // a comma behind each digit at most
    text.reserve(int(text.size() + 2 * integers.size() + pattern.integers.size() + pattern.decimals.size() + 1 +
                     pattern.suffix.size()));
    appendIntegers(text, pattern.integers, integers);
    if (!decimals.isEmpty()) {
        text.append(Point);
        appendDecimals(text, pattern.decimals, decimals);
    }
}

} // namespace

QString format(const QString &pattern, double value)
{
    if (pattern.isEmpty())
        return QString::number(value, 'g', 6);

    const Pattern parts = parsed(pattern);
    QString text;
    append(text, parts.prefix);
    appendNumber(text, parts, parts.sign == Minus ? 0 - value : value);
    append(text, parts.suffix);
    return text;
}

} // namespace numericformat
