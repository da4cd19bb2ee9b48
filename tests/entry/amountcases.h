// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QVariant>
#include <array>
#include <vector>

/// What every input format shows of a content.
namespace amountcases {

// Marks a content that a format does not accept.
constexpr const char *Bad = nullptr;

/// Expected texts of one content, a column for each format; 2 and 3 share one.
struct Shown
{
    const char *name;
    QVariant content;
    const char *text;
    const char *number;
    const char *capital;
    const char *yuan;
    const char *usd;
    const char *noSuffix;
    const char *english;
    const char *serial;
    const char *freeText;
    const char *customized;
    const char *beyond;

    const char *in(int format) const
    {
        const std::array<const char *, 11> columns = {text,     number,  capital, capital,  yuan,      usd,
                                                      noSuffix, english, serial,  freeText, customized};
        return format >= 0 && format <= 10 ? columns[std::size_t(format)] : beyond;
    }
};

inline QVariant string(const char *text)
{
    return QString::fromUtf8(text);
}

inline std::vector<Shown> acceptedAmounts()
{
    return {
        {"cents", string("0.05"), "0.05", "0.05", "伍分", "伍分", "伍美分", "伍分", "CENTS FIVE ONLY", Bad, "0.05",
         "0.05", Bad},
        {"one", string("1"), "1", "1", "壹元整", "壹圆整", "壹元整", "壹元零分", "ONE ONLY", "1", "1", "1.00", Bad},
        {"tens of cents", string("10.50"), "10.50", "10.50", "壹拾元伍角整", "壹拾圆伍角整", "壹拾元伍拾美分",
         "壹拾元伍角零分", "TEN CENTS FIFTY ONLY", Bad, "10.50", "10.50", Bad},
        {"dollars and cents", string("5.35"), "5.35", "5.35", "伍元叁角伍分", "伍圆叁角伍分", "伍元叁拾伍美分",
         "伍元叁角伍分", "FIVE CENTS THIRTY FIVE ONLY", Bad, "5.35", "5.35", Bad},
        {"fifty cents", string("0.50"), "0.50", "0.50", "伍角整", "伍角整", "伍拾美分", "伍角零分", "CENTS FIFTY ONLY",
         Bad, "0.50", "0.50", Bad},
        {"hundred and cents", string("105.50"), "105.50", "105.50", "壹佰零伍元伍角整", "壹佰零伍圆伍角整",
         "壹佰零伍元伍拾美分", "壹佰零伍元伍角零分", "ONE HUNDRED AND FIVE CENTS FIFTY ONLY", Bad, "105.50", "105.50",
         Bad},
        {"hundred", string("100"), "100", "100", "壹佰元整", "壹佰圆整", "壹佰元整", "壹佰元零分",
         "ONE HUNDRED AND ONLY", "100", "100", "100.00", Bad},
        {"ten thousand", string("10500"), "10500", "10500", "壹万零伍佰元整", "壹万零伍佰圆整", "壹万零伍佰元整",
         "壹万零伍佰元零分", "TEN THOUSAND FIVE HUNDRED AND ONLY", "10500", "10500", "10,500.00", Bad},
        {"million and a cent", string("1000000.01"), "1000000.01", "1000000.01", "壹佰万元零壹分", "壹佰万圆零壹分",
         "壹佰万元零壹美分", "壹佰万元零壹分", "ONE MILLION CENTS ONE ONLY", Bad, "1000000.01", "1,000,000.01", Bad},
        {"hundred million", string("100000000"), "100000000", "100000000", "壹亿万元整", "壹亿万圆整", "壹亿万元整",
         "壹亿万元零分", "ONE HUNDRED MILLION ONLY", "100000000", "100000000", "100,000,000.00", Bad},
        {"all ten places", string("1234567890.12"), "1234567890.12", "1234567890.12",
         "壹拾贰亿叁仟肆佰伍拾陆万柒仟捌佰玖拾元壹角贰分", "壹拾贰亿叁仟肆佰伍拾陆万柒仟捌佰玖拾圆壹角贰分",
         "壹拾贰亿叁仟肆佰伍拾陆万柒仟捌佰玖拾元壹拾贰美分", "壹拾贰亿叁仟肆佰伍拾陆万柒仟捌佰玖拾元壹角贰分",
         "ONE BILLION TWO HUNDRED THIRTY FOUR MILLION FIVE HUNDRED SIXTY SEVEN THOUSAND EIGHT HUNDRED AND NINETY "
         "CENTS TWELVE ONLY",
         Bad, "1234567890.12", "1,234,567,890.12", Bad},
        {"third decimal", string("0.019"), "0.019", "0.019", "壹分", "壹分", "壹美分", "壹分", "CENTS ONE ONLY", Bad,
         "0.019", "0.02", Bad},
        {"digits and a point", string("5."), "5.", "5.", "伍元整", "伍圆整", "伍元整", "伍元零分", "FIVE ONLY", Bad,
         "5.", "5.00", Bad},
        {"point and digits", string(".5"), ".5", ".5", "伍角整", "伍角整", "伍拾美分", "伍角零分", "CENTS FIFTY ONLY",
         Bad, ".5", "0.50", Bad},
        {"point alone", string("."), ".", ".", "", "", "", "", "ONLY", Bad, ".", "0.00", Bad},
        {"negative", string("-5"), "-5", Bad, "负伍元整", "负伍圆整", "负伍元整", "负伍元零分", "Negative ONLY", Bad,
         "-5", "-5.00", Bad},
        {"negative with a decimal", string("-12.5"), "-12.5", Bad, "负壹拾贰元伍角整", "负壹拾贰圆伍角整",
         "负壹拾贰元伍拾美分", "负壹拾贰元伍角零分", "Negative TWELVE CENTS FIFTY ONLY", Bad, "-12.5", "-12.50", Bad},
        {"negative nothing", string("-0"), "-0", Bad, "负", "负", "负", "负", "Negative ONLY", Bad, "-0", "0.00", Bad},
    };
}

inline std::vector<Shown> refusedAmounts()
{
    return {
        {"null", QVariant(), "", "", Bad, Bad, Bad, Bad, Bad, Bad, "", Bad, ""},
        {"empty", string(""), "", "", Bad, Bad, Bad, Bad, Bad, Bad, "", Bad, ""},
        {"minus alone", string("-"), "-", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "-", Bad, Bad},
        {"plus", string("+5"), "+5", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "+5", Bad, Bad},
        {"two points", string("1.2.3"), "1.2.3", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "1.2.3", Bad, Bad},
        {"groups", string("1,234"), "1,234", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "1,234", Bad, Bad},
        {"letters", string("abc"), "abc", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "abc", Bad, Bad},
        {"blank before", string(" 5"), " 5", Bad, Bad, Bad, Bad, Bad, Bad, Bad, " 5", Bad, Bad},
        {"line end behind", string("12\n"), "12\n", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "12\n", Bad, Bad},
        {"full-width digits", string("１２"), "１２", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "１２", Bad, Bad},
        {"ten digits", string("9999999999"), "9999999999", "9999999999", "玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元整",
         "玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖圆整", "玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元整",
         "玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元零分",
         "NINE BILLION NINE HUNDRED NINETY NINE MILLION NINE HUNDRED NINETY NINE THOUSAND NINE HUNDRED AND NINETY "
         "NINE ONLY",
         "9999999999", "9999999999", "9,999,999,999.00", Bad},
        {"eleven digits", string("12345678901"), "12345678901", "12345678901", Bad, Bad, Bad, Bad, Bad, "12345678901",
         "12345678901", Bad, Bad},
        {"eleven digits and a decimal", string("12345678901.5"), "12345678901.5", "12345678901.5", Bad, Bad, Bad, Bad,
         Bad, Bad, "12345678901.5", Bad, Bad},
    };
}

// Contents that are no strings: six digits of a floating-point number are read, but the plain string by the Chinese
// amounts and the two free strings.
inline std::vector<Shown> otherTypes()
{
    return {
        {"double", 12345.67, "12345.7", "12345.7", "壹万贰仟叁佰肆拾伍元陆角柒分", "壹万贰仟叁佰肆拾伍圆陆角柒分",
         "壹万贰仟叁佰肆拾伍元陆拾柒美分", "壹万贰仟叁佰肆拾伍元陆角柒分",
         "TWELVE THOUSAND THREE HUNDRED AND FORTY FIVE CENTS SEVENTY ONLY", Bad, "12345.67", "12,345.70", Bad},
        {"float", 0.25f, "0.25", "0.25", "贰角伍分", "贰角伍分", "贰拾伍美分", "贰角伍分", "CENTS TWENTY FIVE ONLY",
         Bad, "0.25", "0.25", Bad},
        {"float of eight digits", 123456.75f, "123457", "123457", "壹拾贰万叁仟肆佰伍拾陆元柒角伍分",
         "壹拾贰万叁仟肆佰伍拾陆圆柒角伍分", "壹拾贰万叁仟肆佰伍拾陆元柒拾伍美分", "壹拾贰万叁仟肆佰伍拾陆元柒角伍分",
         "ONE HUNDRED TWENTY THREE THOUSAND FOUR HUNDRED AND FIFTY SEVEN ONLY", "123456.75", "123456.75", "123,457.00",
         Bad},
        {"double of seven digits", 1234567.0, "1.23457e+06", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "1234567", Bad, Bad},
        {"infinity", qInf(), "inf", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "inf", Bad, Bad},
        {"int", 15000, "15000", "15000", "壹万伍仟元整", "壹万伍仟圆整", "壹万伍仟元整", "壹万伍仟元零分",
         "FIFTEEN THOUSAND ONLY", "15000", "15000", "15,000.00", Bad},
        {"negative int", -5, "-5", Bad, "负伍元整", "负伍圆整", "负伍元整", "负伍元零分", "Negative ONLY", Bad, "-5",
         "-5.00", Bad},
        {"long int of ten digits", qlonglong(1000000000), "1000000000", "1000000000", "壹拾亿万元整", "壹拾亿万圆整",
         "壹拾亿万元整", "壹拾亿万元零分", "ONE BILLION ONLY", "1000000000", "1000000000", "1,000,000,000.00", Bad},
        {"boolean", true, "true", Bad, Bad, Bad, Bad, Bad, Bad, Bad, "true", Bad, Bad},
        {"bytes", QByteArray("0.05"), "0.05", "0.05", "伍分", "伍分", "伍美分", "伍分", "CENTS FIVE ONLY", Bad, "0.05",
         "0.05", Bad},
        {"date and time", QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5)), "2024-01-02T03:04:05.000", Bad, Bad, Bad, Bad,
         Bad, Bad, Bad, "2024-01-02T03:04:05.000", Bad, Bad},
        {"list, which has no text", QVariantList{1}, "", "", Bad, Bad, Bad, Bad, Bad, Bad, "", Bad, ""},
    };
}

} // namespace amountcases
