// SPDX-License-Identifier: MIT
#include "entry/chineseamount.h"

#include "entry/amountdigits.h"
#include "entry/numberwords.h"

#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <iterator>

// Building a regular expression costs more than a whole conversion, so every replacement is one walk over the
// characters.

namespace chineseamount {

namespace {

using Buffer = QVarLengthArray<QChar, 64>;

constexpr QChar Zero = numberwords::CapitalDigits[0][0];
constexpr QChar Fen = numberwords::CapitalUnits[0][0];
constexpr QChar Jiao = numberwords::CapitalUnits[1][0];
constexpr QChar Yuan = numberwords::CapitalUnits[2][0];
constexpr QChar Ten = numberwords::CapitalUnits[3][0];
constexpr QChar Hundred = numberwords::CapitalUnits[4][0];
constexpr QChar Thousand = numberwords::CapitalUnits[5][0];
constexpr QChar TenThousand = numberwords::CapitalUnits[6][0];
constexpr QChar HundredMillion = numberwords::CapitalUnits[10][0];
constexpr QChar Whole = numberwords::WholeSuffix[0];
constexpr QChar RoundYuan = numberwords::RoundYuan[0];

// A finished text has 30 characters at most, so the stages never move it.
constexpr int RoomForAmount = 40;

// Index: Input_Format.
constexpr std::array<QStringView, 8> AllZeroTexts = {QStringView(),
                                                     QStringView(),
                                                     numberwords::ZeroYuan,
                                                     numberwords::ZeroYuan,
                                                     numberwords::ZeroRoundYuan,
                                                     numberwords::ZeroYuan,
                                                     numberwords::ZeroYuanJiaoFen,
                                                     numberwords::ZeroEnglish};

QChar capitalDigit(QChar character)
{
    const bool isDigit = character >= QLatin1Char('0') && character <= QLatin1Char('9');
    return isDigit ? numberwords::CapitalDigits[character.unicode() - u'0'][0] : Zero;
}

// Units that an empty place loses; 亿, 万, 元 and 分 stay to part the groups.
bool isLostUnit(QChar character)
{
    return character == Thousand || character == Hundred || character == Ten || character == Jiao;
}

// Units in front of which no zero is written.
bool isGroupUnit(QChar character)
{
    return character == HundredMillion || character == TenThousand || character == Yuan;
}

// End of the zeros, each with or without a unit to lose, that begin at `it`.
const QChar *endOfZeros(const QChar *it, const QChar *end)
{
    while (it != end && *it == Zero) {
        ++it;
        if (it != end && isLostUnit(*it))
            ++it;
    }
    return it;
}

void replacePairs(QString &text, QChar first, QChar second, QChar by)
{
    QChar *const start = text.data();
    const QChar *const end = start + text.size();
    QChar *out = start;
    for (const QChar *it = start; it != end; ++it) {
        const bool isPair = *it == first && it + 1 != end && it[1] == second;
        *out++ = isPair ? by : *it;
        it += isPair ? 1 : 0;
    }
    text.truncate(int(out - start));
}

void assign(QString &text, const Buffer &characters)
{
    text.resize(characters.size());
    std::copy(characters.begin(), characters.end(), text.data());
}

// 35 cents are read as 叁拾伍美分: 角 becomes the ten of the cents, and 伍角整 is 伍拾美分.
void nameDollarCents(QString &text)
{
    Buffer result;
    const QChar *const end = text.constEnd();
    for (const QChar *it = text.constBegin(); it != end; ++it) {
        const bool isWholeTens = *it == Jiao && it + 1 != end && it[1] == Whole;
        if (*it == Jiao)
            result.append(Ten);
        if (*it == Fen || isWholeTens)
            result.append(numberwords::UsdCents.data(), int(numberwords::UsdCents.size()));
        if (*it != Jiao && *it != Fen)
            result.append(*it);
        it += isWholeTens ? 1 : 0;
    }
    assign(text, result);
}

void insertZeros(QString &text, const Options &options)
{
    Buffer result;
    for (const QChar character : qAsConst(text)) {
        result.append(character);
        const bool isThousandNext = character == TenThousand;
        const bool isJiaoNext = character == Yuan || character == RoundYuan;
        if ((options.zeroBeforeThousand && isThousandNext) || (options.zeroBeforeJiao && isJiaoNext))
            result.append(Zero);
    }
    assign(text, result);
}

// 万零元 and 万零圆 lose their 零.
void closeEmptyThousands(QString &text)
{
    QChar *const start = text.data();
    const QChar *const end = start + text.size();
    QChar *out = start;
    for (const QChar *it = start; it != end; ++it) {
        *out++ = *it;
        const bool isOnlyZero = *it == TenThousand && end - it > 2 && it[1] == Zero;
        if (isOnlyZero && (it[2] == Yuan || it[2] == RoundYuan))
            ++it;
    }
    text.truncate(int(out - start));
}

} // namespace

bool isAllZero(QStringView text)
{
    qsizetype zeros = 0;
    qsizetype points = 0;
    for (const QChar character : text) {
        zeros += character == QLatin1Char('0') ? 1 : 0;
        points += character == QLatin1Char('.') ? 1 : 0;
    }
    return zeros > 0 && points <= 1 && zeros + points == text.size();
}

QString allZeroText(Input_Format format)
{
    const auto index = static_cast<unsigned>(format);
    return index < AllZeroTexts.size() ? AllZeroTexts[index].toString() : QString();
}

void appendPlaces(QString &text, QStringView content)
{
    constexpr QLatin1Char minus('-');
    const bool isNegative = content.contains(minus);
    Buffer magnitude;
    if (isNegative) {
        std::remove_copy(content.begin(), content.end(), std::back_inserter(magnitude), minus);
        content = QStringView(magnitude.constData(), magnitude.size());
    }

    const amountdigits::Places places = amountdigits::places(content);
    std::array<QChar, 2 * std::tuple_size_v<amountdigits::Places>> words;
    std::size_t count = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (count == 0 && places[i] == QLatin1Char('0'))
            continue;
        words[count++] = capitalDigit(places[i]);
        words[count++] = numberwords::CapitalUnits[places.size() - 1 - i][0];
    }
    text.append(words.data(), int(count));
    if (isNegative)
        text.prepend(numberwords::ChineseMinus[0]);
}

void joinZeros(QString &text)
{
    QChar *const start = text.data();
    const QChar *const end = start + text.size();
    QChar *out = start;
    const QChar *it = start;
    while (it != end) {
        if (*it != Zero) {
            *out++ = *it++;
            continue;
        }
        it = endOfZeros(it, end);
        if (it == end || !isGroupUnit(*it))
            *out++ = Zero;
    }
    text.truncate(int(out - start));
}

void completeSuffix(QString &text)
{
    joinZeros(text);
    replacePairs(text, Zero, Fen, Whole);
}

void nameCurrency(QString &text, Input_Format format)
{
    if (format == Format_RmbCapitalYuan)
        text.replace(Yuan, RoundYuan);
    if (format == Format_UsdCapital)
        nameDollarCents(text);
}

void addZeros(QString &text, const Options &options)
{
    if (options.zeroBeforeThousand || options.zeroBeforeJiao)
        insertZeros(text, options);
    replacePairs(text, Zero, Zero, Zero);
    replacePairs(text, Zero, Whole, Whole);
    closeEmptyThousands(text);
}

QString amountText(QStringView content, Input_Format format, const Options &options)
{
    QString text;
    text.reserve(RoomForAmount);
    appendPlaces(text, content);
    if (format == Format_RmbCapitalNoSuffix)
        joinZeros(text);
    else
        completeSuffix(text);
    nameCurrency(text, format);
    addZeros(text, options);
    return text;
}

} // namespace chineseamount
