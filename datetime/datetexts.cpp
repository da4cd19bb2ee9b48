// SPDX-License-Identifier: MIT
#include "datetime/datetexts.h"

#include "core/tavrotypes.h"
#include "entry/numberwords.h"

#include <QStringBuilder>

namespace datetexts {

namespace {

using Digits = std::array<QStringView, 10>;

constexpr int MostDays = 31;
const QLatin1Char Zero('0');

QString digit(const Digits &digits, int value)
{
    return digits[static_cast<std::size_t>(value)].toString();
}

// A year before our era keeps its sign.
QString yearIn(const Digits &digits, int year)
{
    QString text;
    const QString decimal = QString::number(year);
    for (const QChar character : decimal)
        text += character.isDigit() ? digit(digits, character.digitValue()) : QString(character);
    return text;
}

QString padded(int number)
{
    return number <= 9 ? Zero + QString::number(number) : QString::number(number);
}

struct Style
{
    QString (*year)(int year);
    QString (*number)(int monthOrDay);
};

// Index: Datetime_Format.
const std::array<Style, 5> Styles = {{
    {[](int year) { return yearIn(numberwords::CapitalDigits, year); },
     [](int number) { return capitalNumber(number, true); }},
    {[](int year) { return yearIn(numberwords::CapitalDigits, year); },
     [](int number) { return capitalNumber(number, false); }},
    {[](int year) { return yearIn(numberwords::PlainDigits, year); }, plainNumber},
    {[](int year) { return QString::number(year); }, padded},
    {[](int year) { return QString::number(year); }, [](int number) { return QString::number(number); }},
}};

} // namespace

QString capitalNumber(int number, bool withZero)
{
    const Digits &digits = numberwords::CapitalDigits;
    const QString ten = numberwords::CapitalUnits[3].toString();
    const QString zero = withZero ? digit(digits, 0) : QString();
    if (number < 0 || number > MostDays)
        return {};
    if (number < 10)
        return zero + digit(digits, number);
    if (number % 10 == 0)
        return zero + digit(digits, number / 10) + ten;
    return digit(digits, number / 10) + ten + digit(digits, number % 10);
}

QString plainNumber(int number)
{
    const Digits &digits = numberwords::PlainDigits;
    const QString ten = numberwords::PlainUnits[3].toString();
    if (number < 0 || number > MostDays)
        return {};
    if (number < 10)
        return digit(digits, number);
    const QString tens = number < 20 ? ten : digit(digits, number / 10) + ten;
    return number % 10 == 0 ? tens : tens + digit(digits, number % 10);
}

bool isDateStyle(int style)
{
    return style >= Dt_CapitalFormal && style <= Dt_Arabic;
}

Texts dateTexts(const QDate &date, int style)
{
    if (!date.isValid() || !isDateStyle(style))
        return {};
    const Style &chosen = Styles[static_cast<std::size_t>(style)];
    return {chosen.year(date.year()), chosen.number(date.month()), chosen.number(date.day())};
}

Texts timeTexts(const QTime &time)
{
    if (!time.isValid())
        return {};
    return {QString::number(time.hour()), QString::number(time.minute()), QString::number(time.second())};
}

} // namespace datetexts
