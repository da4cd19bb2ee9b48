// SPDX-License-Identifier: MIT
#include "entry/englishamount.h"

#include "entry/amountdigits.h"
#include "entry/numberwords.h"

#include <QVarLengthArray>

namespace englishamount {

namespace {

// The longest amount takes less than 200 characters with all its blanks.
using Buffer = QVarLengthArray<QChar, 256>;

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

// Reads `count` places as one integer, 0 when they are none. A sign or blanks around the digits are understood.
int readInteger(const QChar *places, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        if (!isDigit(places[i]))
            return QString(places, count).toInt();
        value = 10 * value + (places[i].unicode() - u'0');
    }
    return value;
}

void append(Buffer &text, QStringView words)
{
    text.append(words.data(), int(words.size()));
}

void appendOnes(Buffer &text, int value)
{
    append(text, numberwords::EnglishOnes[std::size_t(value)]);
}

// Words of a value below 100, nothing below 1.
void appendPair(Buffer &text, int value)
{
    if (value < 1)
        return;
    if (value <= 20) {
        appendOnes(text, value);
        return;
    }
    append(text, numberwords::EnglishTens[std::size_t(value / 10)]);
    if (value % 10 != 0)
        appendOnes(text, value % 10);
}

// Words of three places and the name of their group, nothing below 1.
void appendGroup(Buffer &text, const QChar *places, QStringView name)
{
    if (readInteger(places, 3) < 1)
        return;
    if (places[0] != QLatin1Char('0')) {
        appendOnes(text, readInteger(places, 1));
        append(text, numberwords::EnglishHundred);
    }
    appendPair(text, readInteger(places + 1, 2));
    append(text, name);
}

void appendLastGroup(Buffer &text, const QChar *places)
{
    const int hundreds = readInteger(places, 1);
    if (hundreds >= 1) {
        appendOnes(text, hundreds);
        append(text, numberwords::EnglishHundred);
        append(text, numberwords::EnglishAnd); // even with nothing after it
    }
    appendPair(text, readInteger(places + 1, 2));
}

} // namespace

QString amountText(QStringView content)
{
    const amountdigits::Places places = amountdigits::places(content);
    Buffer text;
    if (content.contains(QLatin1Char('-')))
        append(text, numberwords::EnglishNegative);
    if (places[0] != QLatin1Char('0')) {
        appendOnes(text, readInteger(&places[0], 1));
        append(text, numberwords::EnglishBillion);
    }
    appendGroup(text, &places[1], numberwords::EnglishMillion);
    appendGroup(text, &places[4], numberwords::EnglishThousand);
    appendLastGroup(text, &places[7]);
    const int cents = readInteger(&places[10], 2);
    if (cents >= 1) {
        append(text, numberwords::EnglishCents);
        appendPair(text, cents);
    }
    append(text, numberwords::EnglishOnly);
    return tidied(QStringView(text.constData(), text.size()));
}

QString tidied(QStringView words)
{
    constexpr QLatin1Char blank(' ');
    Buffer text(int(words.size()));
    QChar *out = text.data();
    for (const QChar *it = words.cbegin(); it != words.cend(); ++it) {
        *out++ = *it;
        if (*it == blank && it + 1 != words.cend() && it[1] == blank)
            ++it;
    }
    const QChar *begin = text.constData();
    while (begin != out && *begin == blank)
        ++begin;
    while (out != begin && out[-1] == blank)
        --out;
    return QString(begin, int(out - begin));
}

} // namespace englishamount
