// SPDX-License-Identifier: MIT
#include "entry/numberwords.h"

#include <QStringList>
#include <QTest>

namespace {

template <std::size_t Size>
QStringList listed(const std::array<QStringView, Size> &table)
{
    QStringList list;
    for (const QStringView word : table)
        list.append(word.toString());
    return list;
}

} // namespace

class NumberWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tables_data();
    void tables();
    void englishWordsHaveOneBlankOnEachSide();
    void texts_data();
    void texts();
};

void NumberWordsTest::tables_data()
{
    QTest::addColumn<QStringList>("table");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("word");

    // every word spelled out once more, apart from the tables; one row more finds the end of the table
    const auto add = [](const char *name, const QStringList &table, const QString &words) {
        const QStringList expected = words.split(QLatin1Char('|'));
        QTest::addRow("%s size %d", name, int(expected.size()))
            << table << int(table.size()) << QStringLiteral("end after %1").arg(expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QTest::addRow("%s %d", name, i) << table << i << expected.at(i);
    };
    add("capital digit", listed(numberwords::CapitalDigits), QStringLiteral("零|壹|贰|叁|肆|伍|陆|柒|捌|玖"));
    add("plain digit", listed(numberwords::PlainDigits), QStringLiteral("〇|一|二|三|四|五|六|七|八|九"));
    add("capital unit", listed(numberwords::CapitalUnits), QStringLiteral("分|角|元|拾|佰|仟|万|拾|佰|仟|亿|拾"));
    add("plain unit", listed(numberwords::PlainUnits), QStringLiteral("分|角|元|十|百|千|万|十|百|千|亿|十"));
    add("English ones", listed(numberwords::EnglishOnes),
        QStringLiteral(" ZERO | ONE | TWO | THREE | FOUR | FIVE | SIX | SEVEN | EIGHT | NINE | TEN | ELEVEN | TWELVE "
                       "| THIRTEEN | FOURTEEN | FIFTEEN | SIXTEEN | SEVENTEEN | EIGHTEEN | NINETEEN | TWENTY "));
    add("English tens", listed(numberwords::EnglishTens),
        QStringLiteral("|| TWENTY | THIRTY | FORTY | FIFTY | SIXTY | SEVENTY | EIGHTY | NINETY "));
}

void NumberWordsTest::tables()
{
    QFETCH(const QStringList, table);
    QFETCH(const int, index);
    QFETCH(const QString, word);
    const QString found = index < table.size() ? table.at(index) : QStringLiteral("end after %1").arg(index);
    QCOMPARE(found, word);
}

void NumberWordsTest::englishWordsHaveOneBlankOnEachSide()
{
    QStringList words = listed(numberwords::EnglishOnes) + listed(numberwords::EnglishTens);
    QCOMPARE(words.removeAll(QString()), 2);
    for (const QString &word : words)
        QCOMPARE(word, QLatin1Char(' ') + word.simplified() + QLatin1Char(' '));
}

void NumberWordsTest::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const auto add = [](const char *name, QStringView text, const QString &expected) {
        QTest::newRow(name) << text.toString() << expected;
    };
    add("minus", numberwords::ChineseMinus, QStringLiteral("负"));
    add("suffix of a whole amount", numberwords::WholeSuffix, QStringLiteral("整"));
    add("alternative yuan", numberwords::RoundYuan, QStringLiteral("圆"));
    add("dollar cents", numberwords::UsdCents, QStringLiteral("美分"));
    add("nothing", numberwords::ZeroYuan, QStringLiteral("零元整"));
    add("nothing, alternative yuan", numberwords::ZeroRoundYuan, QStringLiteral("零圆整"));
    add("nothing, without suffix", numberwords::ZeroYuanJiaoFen, QStringLiteral("零元零角零分"));
    add("nothing, English", numberwords::ZeroEnglish, QStringLiteral("AND CENTS ONLY"));
    add("and", numberwords::EnglishAnd, QStringLiteral(" AND "));
    add("negative", numberwords::EnglishNegative, QStringLiteral("Negative "));
    add("billion", numberwords::EnglishBillion, QStringLiteral(" BILLION "));
    add("hundred", numberwords::EnglishHundred, QStringLiteral(" HUNDRED "));
    add("million", numberwords::EnglishMillion, QStringLiteral(" MILLION "));
    add("thousand", numberwords::EnglishThousand, QStringLiteral(" THOUSAND "));
    add("cents", numberwords::EnglishCents, QStringLiteral(" CENTS "));
    add("only", numberwords::EnglishOnly, QStringLiteral(" ONLY"));
}

void NumberWordsTest::texts()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(text, expected);
}

QTEST_APPLESS_MAIN(NumberWordsTest)
#include "tst_numberwords.moc"
