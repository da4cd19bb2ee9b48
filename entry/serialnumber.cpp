// SPDX-License-Identifier: MIT
#include "entry/serialnumber.h"

#include <algorithm>

namespace serialnumber {

namespace {

// Digit at `place`, counted from the right; 0 to the left of the number.
int digitAt(const QString &number, int place)
{
    if (place >= number.size())
        return 0;
    const ushort character = number.at(number.size() - 1 - place).unicode();
    return character >= u'0' && character <= u'9' ? character - u'0' : 0;
}

} // namespace

QString sumOfNumString(const QString &a, const QString &b)
{
    const int width = std::max(a.size(), b.size());
    QString sum(width, QLatin1Char('0'));
    int carry = 0;
    for (int place = 0; place < width; ++place) {
        const int digits = digitAt(a, place) + digitAt(b, place) + carry;
        sum[width - 1 - place] = QChar(u'0' + digits % 10);
        carry = digits / 10;
    }
    if (carry != 0)
        sum.prepend(QLatin1Char('1'));
    return sum;
}

} // namespace serialnumber
