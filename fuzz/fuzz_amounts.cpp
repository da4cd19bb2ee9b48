// SPDX-License-Identifier: MIT
#include "entry/chineseamount.h"
#include "entry/englishamount.h"
#include "entry/inputformat.h"
#include "entry/numericformat.h"
#include "entry/serialnumber.h"
#include "entry/userpattern.h"

#include <QRegExp>
#include <cstring>

// Any content through every conversion, any pattern around any number.

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

void writeAmounts(const QString &content)
{
    for (int format = -1; format <= 11; ++format) {
        const bool isAccepted = inputformat::accepts(Input_Format(format), content);
        const QString pattern = inputformat::matchPattern(Input_Format(format));
        if (!pattern.isEmpty())
            require(isAccepted == QRegExp(pattern).exactMatch(content));
    }
    for (int format = Format_RmbCapital; format <= Format_RmbCapitalNoSuffix; ++format) {
        for (const bool zeroBeforeThousand : {false, true}) {
            const chineseamount::Options options = {zeroBeforeThousand, content.size() % 2 == 0};
            const QString text = chineseamount::amountText(content, Input_Format(format), options);
            require(text.size() <= 40);
            require(text.startsWith(QStringLiteral("负")) == content.contains(QLatin1Char('-')));
        }
    }
    const QString words = englishamount::amountText(content);
    require(words.endsWith(QLatin1String("ONLY")));
    require(words == words.simplified());

    static const QRegExp allZero(QStringLiteral("(^0+\\.{0,1}0*$)|(^0*\\.{0,1}0+$)|^0+$"));
    require(chineseamount::isAllZero(content) == allZero.exactMatch(content));

    const QString next = serialnumber::sumOfNumString(content, QStringLiteral("1"));
    require(next.size() - content.size() <= 1);
}

// Stages take any text: the bytes choose among the characters that the stages know.
void runStages(const uint8_t *bytes, size_t size)
{
    const QString alphabet = QStringLiteral("零壹仟佰拾角亿万元圆分整");
    QString start;
    for (size_t i = 0; i < size; ++i)
        start += alphabet.at(bytes[i] % alphabet.size());
    for (int format = Format_RmbCapital; format <= Format_RmbCapitalNoSuffix; ++format) {
        QString text = start;
        chineseamount::completeSuffix(text);
        chineseamount::nameCurrency(text, Input_Format(format));
        chineseamount::addZeros(text, {true, true});
        require(text.size() <= 4 * start.size());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(bytes), int(size));
    writeAmounts(text);
    runStages(bytes, size);

    double value = text.toDouble();
    numericformat::format(QStringLiteral("#,##0.00"), value);
    if (size >= sizeof value) {
        std::memcpy(&value, bytes, sizeof value);
        const int rest = int(size - sizeof value);
        const QString pattern = QString::fromUtf8(reinterpret_cast<const char *>(bytes) + sizeof value, rest);
        const QString number = numericformat::format(pattern, value);
        require(number.size() <= 2 * pattern.size() + 2 * 310 + 20);
        UserPattern(pattern).matches(text);
    }
    return 0;
}
