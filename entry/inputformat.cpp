// SPDX-License-Identifier: MIT
#include "entry/inputformat.h"

#include <array>
#include <limits>

namespace inputformat {

namespace {

constexpr qsizetype MaxIntegerDigits = 10;
constexpr qsizetype MaxTypedDecimals = 2;
constexpr qsizetype AnyCount = std::numeric_limits<qsizetype>::max();

constexpr QStringView NumberPattern = u"^[0-9]*\\.?[0-9]*";
constexpr QStringView AmountPattern = u"(^\\-?[0-9]{1,10}$)|(^\\-?[0-9]{0,10}\\.{1}[0-9]*$)";
constexpr QStringView SerialPattern = u"^[0-9]+$";

bool isDigitKey(int key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}
bool isNumberKey(int key)
{
    return isDigitKey(key) || key == Qt::Key_Period;
}
bool isAnyKey(int)
{
    return true;
}

qsizetype leadingDigits(QStringView text)
{
    qsizetype count = 0;
    while (count < text.size() && text[count] >= QLatin1Char('0') && text[count] <= QLatin1Char('9'))
        ++count;
    return count;
}

bool isDecimals(QStringView text, qsizetype maxDecimals)
{
    return leadingDigits(text) == text.size() && text.size() <= maxDecimals;
}

bool isAnyText(QStringView)
{
    return true;
}

bool isNumber(QStringView text)
{
    const QStringView rest = text.mid(leadingDigits(text));
    return rest.isEmpty() || (rest[0] == QLatin1Char('.') && isDecimals(rest.mid(1), AnyCount));
}

bool isSerialNumber(QStringView text)
{
    return !text.isEmpty() && leadingDigits(text) == text.size();
}

bool isAmountText(QStringView text, qsizetype maxDecimals)
{
    const QStringView magnitude = text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
    const qsizetype integers = leadingDigits(magnitude);
    if (integers > MaxIntegerDigits)
        return false;
    const QStringView rest = magnitude.mid(integers);
    if (rest.isEmpty())
        return integers > 0;
    return rest[0] == QLatin1Char('.') && isDecimals(rest.mid(1), maxDecimals);
}

bool isStoredAmount(QStringView text)
{
    return isAmountText(text, AnyCount);
}

struct Rules
{
    QStringView pattern;
    bool (*acceptsText)(QStringView);
    bool (*acceptsKey)(int);
    bool isAmount;
};

constexpr Rules Free = {QStringView(), isAnyText, isAnyKey, false};
constexpr Rules Number = {NumberPattern, isNumber, isNumberKey, false};
constexpr Rules Amount = {AmountPattern, isStoredAmount, isNumberKey, true};
constexpr Rules Serial = {SerialPattern, isSerialNumber, isDigitKey, false};

// Index: Input_Format.
constexpr std::array<Rules, 11> FormatRules = {Free,   Number, Amount, Amount, Amount, Amount,
                                               Amount, Amount, Serial, Free,   Amount};

// Null for numbers beyond the named formats.
const Rules *rulesOf(Input_Format format)
{
    const auto index = static_cast<unsigned>(format);
    return index < FormatRules.size() ? &FormatRules[index] : nullptr;
}

} // namespace

QString matchPattern(Input_Format format)
{
    const Rules *rules = rulesOf(format);
    return rules ? rules->pattern.toString() : QString();
}

bool accepts(Input_Format format, QStringView text)
{
    const Rules *rules = rulesOf(format);
    return rules ? rules->acceptsText(text) : text.isEmpty();
}

bool isAmount(Input_Format format)
{
    const Rules *rules = rulesOf(format);
    return rules && rules->isAmount;
}

bool acceptsKey(Input_Format format, int key)
{
    const Rules *rules = rulesOf(format);
    return rules && rules->acceptsKey(key);
}

bool acceptsTyped(QStringView text)
{
    return isAmountText(text, MaxTypedDecimals);
}

} // namespace inputformat
