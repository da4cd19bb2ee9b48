// SPDX-License-Identifier: MIT
#include "entry/chineseamount.h"

#include <QRandomGenerator>
#include <QRegExp>
#include <QStringList>
#include <QTest>

using chineseamount::Options;

namespace {

// The rules once more, replacement by replacement, as slow and as plain as they can be written.
namespace plainly {

void appendPlaces(QString &text, const QString &content)
{
    const QStringList digits = QStringLiteral("零 壹 贰 叁 肆 伍 陆 柒 捌 玖").split(QLatin1Char(' '));
    const QStringList units = QStringLiteral("分 角 元 拾 佰 仟 万 拾 佰 仟 亿 拾").split(QLatin1Char(' '));
    QString s = content;
    const bool isNegative = s.contains(QLatin1String("-"));
    s.remove(QLatin1String("-"));
    if (s.isEmpty())
        s = QStringLiteral("0.00");
    if (!s.contains(QLatin1String(".")))
        s += QLatin1String(".00");
    int p = s.indexOf(QLatin1String("."));
    if (p < 10)
        s.prepend(QString(10 - p, QLatin1Char('0')));
    p = s.indexOf(QLatin1String("."));
    s += QString(s.size() - p + 1, QLatin1Char('0'));
    const QString places = s.mid(p - 10, 10) + s.mid(p + 1, 2);
    QString words;
    for (int i = 0; i < 12; ++i) {
        if (words.isEmpty() && places.at(i) == QLatin1Char('0'))
            continue;
        words += digits.at(QString(places.at(i)).toInt()) + units.at(11 - i);
    }
    text += words;
    if (isNegative)
        text.prepend(QStringLiteral("负"));
}

void joinZeros(QString &text)
{
    text.replace(QRegExp(QStringLiteral("零(仟|佰|拾|角)")), QStringLiteral("零"));
    text.replace(QRegExp(QStringLiteral("零+")), QStringLiteral("零"));
    text.replace(QStringLiteral("零亿"), QStringLiteral("亿"));
    text.replace(QStringLiteral("零万"), QStringLiteral("万"));
    text.replace(QStringLiteral("零元"), QStringLiteral("元"));
}

void completeSuffix(QString &text)
{
    joinZeros(text);
    text.replace(QStringLiteral("零分"), QStringLiteral("整"));
}

void nameCurrency(QString &text, Input_Format format)
{
    if (format == Format_RmbCapitalYuan)
        text.replace(QStringLiteral("元"), QStringLiteral("圆"));
    if (format == Format_UsdCapital) {
        text.replace(QStringLiteral("分"), QStringLiteral("美分"));
        text.replace(QStringLiteral("角整"), QStringLiteral("拾美分"));
        text.replace(QStringLiteral("角"), QStringLiteral("拾"));
    }
}

void addZeros(QString &text, const Options &options)
{
    if (options.zeroBeforeThousand)
        text.replace(QStringLiteral("万"), QStringLiteral("万零"));
    if (options.zeroBeforeJiao) {
        text.replace(QStringLiteral("元"), QStringLiteral("元零"));
        text.replace(QStringLiteral("圆"), QStringLiteral("圆零"));
    }
    text.replace(QStringLiteral("零零"), QStringLiteral("零"));
    text.replace(QStringLiteral("零整"), QStringLiteral("整"));
    text.replace(QStringLiteral("万零元"), QStringLiteral("万元"));
    text.replace(QStringLiteral("万零圆"), QStringLiteral("万圆"));
}

QString amountText(const QString &content, Input_Format format, const Options &options)
{
    QString text;
    appendPlaces(text, content);
    if (format == Format_RmbCapitalNoSuffix)
        joinZeros(text);
    else
        completeSuffix(text);
    nameCurrency(text, format);
    plainly::addZeros(text, options);
    return text;
}

} // namespace plainly

const QVector<Input_Format> AmountFormats = {Format_RmbCapital, Format_RmbCapitalAlt, Format_RmbCapitalYuan,
                                             Format_UsdCapital, Format_RmbCapitalNoSuffix};
const QVector<Options> AllOptions = {{false, false}, {true, false}, {false, true}, {true, true}};

QString randomText(QRandomGenerator &random, const QString &alphabet, int maxLength)
{
    QString text;
    for (int length = random.bounded(maxLength + 1); length > 0; --length)
        text += alphabet.at(random.bounded(alphabet.size()));
    return text;
}

} // namespace

class ChineseAmountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountText_data();
    void amountText();
    void everyPatternOfZerosAndOnes();
    void everyAmountInItsPlaces();
    void strangeContents_data();
    void strangeContents();
    void randomContents();
    void stagesOnAnyText();
    void appendsToTheTextSoFar();
    void allZero_data();
    void allZero();
    void allZeroIsTheRegularExpression();
    void allZeroText_data();
    void allZeroText();

private:
    static void compare(const QString &content);
};

void ChineseAmountTest::amountText_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("zeroBeforeThousand");
    QTest::addColumn<bool>("zeroBeforeJiao");
    QTest::addColumn<QString>("text");

    struct Row
    {
        const char *name;
        const char *content;
        const char *text;
        Input_Format format = Format_RmbCapital;
        bool zeroBeforeThousand = false;
        bool zeroBeforeJiao = false;
    };
    const Row rows[] = {
        {"cents only", "0.05", "伍分"},
        {"one yuan", "1", "壹元整"},
        {"jiao without cents", "10.50", "壹拾元伍角整"},
        {"empty places before yuan", "100.50", "壹佰元伍角整"},
        {"zero thousands", "10500", "壹万零伍佰元整"},
        {"zero jiao", "1000000.01", "壹佰万元零壹分"},
        {"all places", "1234567890.12", "壹拾贰亿叁仟肆佰伍拾陆万柒仟捌佰玖拾元壹角贰分"},
        {"wan stays behind yi", "100000000", "壹亿万元整"},
        {"negative", "-5", "负伍元整"},
        {"dollar cents", "5.35", "伍元叁拾伍美分", Format_UsdCapital},
        {"tens of dollar cents", "0.50", "伍拾美分", Format_UsdCapital},
        {"zero before thousand", "15000", "壹万零伍仟元整", Format_RmbCapital, true},
        {"zero before jiao", "1.50", "壹元零伍角整", Format_RmbCapital, false, true},
        {"round yuan", "1", "壹圆整", Format_RmbCapitalYuan},

        {"eleventh integer digit dropped", "12345678901", "贰拾叁亿肆仟伍佰陆拾柒万捌仟玖佰零壹元整"},
        {"third decimal cut", "0.019", "壹分"},
        {"third decimal never rounded up", "0.999", "玖角玖分"},
        {"minus nothing", "-0", "负"},
        {"empty", "", ""},
        {"lone point", ".", ""},
        {"only a minus", "-", "负"},
        {"several minus signs are one", "-1-2-", "负壹拾贰元整"},
        {"minus behind the digits", "12-", "负壹拾贰元整"},
        {"point at the end", "7.", "柒元整"},
        {"point at the front", ".7", "柒角整"},
        {"second point reads as zero", "1.2.3", "壹元贰角整"},
        {"letter reads as zero", "1x5", "壹佰零伍元整"},
        {"full-width digits read as zeros", "１２", "元整"},

        {"zeros join", "1001", "壹仟零壹元整"},
        {"zeros join across wan", "10010001", "壹仟零壹万零壹元整"},
        {"yi then ones", "1000000001", "壹拾亿万零壹元整"},
        {"zero wan inside", "1200034567", "壹拾贰亿零叁万肆仟伍佰陆拾柒元整"},
        {"jiao and fen", "3.21", "叁元贰角壹分"},
        {"yuan zero, fen only", "10.01", "壹拾元零壹分"},

        {"alternative format is the same", "10500.50", "壹万零伍佰元伍角整", Format_RmbCapitalAlt},
        {"round yuan throughout", "100000000.05", "壹亿万圆零伍分", Format_RmbCapitalYuan},
        {"dollars without cents", "12", "壹拾贰元整", Format_UsdCapital},
        {"dollars, single cents", "12.03", "壹拾贰元零叁美分", Format_UsdCapital},
        {"dollars, tens of cents", "12.30", "壹拾贰元叁拾美分", Format_UsdCapital},
        {"without suffix, no cents", "1", "壹元零分", Format_RmbCapitalNoSuffix},
        {"without suffix, jiao only", "1.5", "壹元伍角零分", Format_RmbCapitalNoSuffix},
        {"without suffix, cents", "1.05", "壹元零伍分", Format_RmbCapitalNoSuffix},

        {"zero before thousand, already there", "10500", "壹万零伍佰元整", Format_RmbCapital, true},
        {"zero before thousand, nothing follows", "10000", "壹万元整", Format_RmbCapital, true},
        {"zero before thousand, nothing follows, round yuan", "10000", "壹万圆整", Format_RmbCapitalYuan, true},
        {"zero before thousand, no wan", "5000", "伍仟元整", Format_RmbCapital, true},
        {"zero before jiao, already there", "1.05", "壹元零伍分", Format_RmbCapital, false, true},
        {"zero before jiao, nothing follows", "1", "壹元整", Format_RmbCapital, false, true},
        {"zero before jiao, round yuan", "1.50", "壹圆零伍角整", Format_RmbCapitalYuan, false, true},
        {"zero before jiao, no yuan", "0.5", "伍角整", Format_RmbCapital, false, true},
        {"zero before jiao, dollars", "1.50", "壹元零伍拾美分", Format_UsdCapital, false, true},
        {"zero before jiao, without suffix", "1", "壹元零分", Format_RmbCapitalNoSuffix, false, true},
        {"both zeros", "15000.50", "壹万零伍仟元零伍角整", Format_RmbCapital, true, true},
        {"both zeros, only wan", "10000.5", "壹万元零伍角整", Format_RmbCapital, true, true},
    };
    for (const Row &row : rows)
        QTest::newRow(row.name) << QString::fromUtf8(row.content) << int(row.format) << row.zeroBeforeThousand
                                << row.zeroBeforeJiao << QString::fromUtf8(row.text);
}

void ChineseAmountTest::amountText()
{
    QFETCH(const QString, content);
    QFETCH(const int, format);
    QFETCH(const bool, zeroBeforeThousand);
    QFETCH(const bool, zeroBeforeJiao);
    QFETCH(const QString, text);
    const Options options = {zeroBeforeThousand, zeroBeforeJiao};
    QCOMPARE(chineseamount::amountText(content, Input_Format(format), options), text);
    QCOMPARE(plainly::amountText(content, Input_Format(format), options), text);
}

void ChineseAmountTest::compare(const QString &content)
{
    for (const Input_Format format : AmountFormats) {
        for (const Options &options : AllOptions) {
            const QString text = chineseamount::amountText(content, format, options);
            const QString expected = plainly::amountText(content, format, options);
            if (text != expected)
                qWarning("content \"%s\", format %d, zeros %d %d", qPrintable(content), int(format),
                         int(options.zeroBeforeThousand), int(options.zeroBeforeJiao));
            QCOMPARE(text, expected);
        }
    }
}

void ChineseAmountTest::everyPatternOfZerosAndOnes()
{
    for (int pattern = 0; pattern < 4096; ++pattern) {
        QString content = QStringLiteral("%1").arg(pattern, 12, 2, QLatin1Char('0'));
        content.insert(10, QLatin1Char('.'));
        compare(content);
        if (QTest::currentTestFailed())
            return;
    }
}

void ChineseAmountTest::everyAmountInItsPlaces()
{
    // each digit alone in each place, bare and with the places behind it filled
    for (int place = 0; place < 12; ++place) {
        for (int digit = 0; digit < 10; ++digit) {
            for (const QChar filler : {QLatin1Char('0'), QLatin1Char('9')}) {
                QString content(12, filler);
                content.replace(0, place, QString(place, QLatin1Char('0')));
                content[place] = QChar(u'0' + digit);
                content.insert(10, QLatin1Char('.'));
                compare(content);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
}

void ChineseAmountTest::strangeContents_data()
{
    QTest::addColumn<QString>("content");

    const auto add = [](const char *name, const QString &content) { QTest::newRow(name) << content; };
    add("empty", QString());
    add("blank", QStringLiteral(" "));
    add("blanks around", QStringLiteral(" 12.5 "));
    add("letters", QStringLiteral("abcdefghijklm.nop"));
    add("hexadecimal", QStringLiteral("0x1F"));
    add("exponent", QStringLiteral("1.5e+06"));
    add("two points", QStringLiteral("1..2"));
    add("three points", QStringLiteral("..."));
    add("point as second decimal", QStringLiteral("5.5."));
    add("only minus signs", QStringLiteral("---"));
    add("minus before the point", QStringLiteral("12-.5"));
    add("minus as decimal", QStringLiteral("12.-5"));
    add("full-width digits", QStringLiteral("１２３.４５"));
    add("full-width minus", QStringLiteral("－5"));
    add("Arabic digits", QStringLiteral("٣٤٥"));
    add("Devanagari digits", QStringLiteral("१२"));
    add("capital numerals", QStringLiteral("壹佰元整"));
    add("beyond the basic plane", QStringLiteral("𝟙𝟚.𝟛"));
    add("four hundred digits", QString(400, QLatin1Char('7')));
    add("four hundred digits and decimals",
        QString(400, QLatin1Char('7')) + QLatin1Char('.') + QString(400, QLatin1Char('3')));
    add("four hundred minus signs", QString(400, QLatin1Char('-')));
    add("minus between four hundred digits", QStringLiteral("7-").repeated(400));
    add("nine digits", QStringLiteral("123456789"));
    add("ten digits", QStringLiteral("1234567890"));
    add("eleven digits", QStringLiteral("12345678901"));
    add("null character", QString(3, QChar()));
}

void ChineseAmountTest::strangeContents()
{
    QFETCH(const QString, content);
    compare(content);
}

void ChineseAmountTest::randomContents()
{
    QRandomGenerator random(20200202);
    const QString alphabets[] = {QStringLiteral("0000000000001."), QStringLiteral("0123456789."),
                                 QStringLiteral("00123456789.-"), QStringLiteral("0019.-+ exX１٣零")};
    for (const QString &alphabet : alphabets) {
        for (int round = 0; round < 1500; ++round) {
            compare(randomText(random, alphabet, 16));
            if (QTest::currentTestFailed())
                return;
        }
    }
}

// A stage takes any text, also one that no amount gives.
void ChineseAmountTest::stagesOnAnyText()
{
    QRandomGenerator random(19700101);
    for (int round = 0; round < 40000; ++round) {
        const QString start = randomText(random, QStringLiteral("零零零壹仟佰拾角亿万元圆分整"), 14);
        const auto check = [&](auto stage, auto plainStage) {
            QString text = start;
            QString expected = start;
            stage(text);
            plainStage(expected);
            if (text != expected)
                qWarning("text \"%s\"", qPrintable(start));
            QCOMPARE(text, expected);
        };
        check(chineseamount::joinZeros, plainly::joinZeros);
        check(chineseamount::completeSuffix, plainly::completeSuffix);
        for (const Input_Format format : AmountFormats)
            check([&](QString &text) { chineseamount::nameCurrency(text, format); },
                  [&](QString &text) { plainly::nameCurrency(text, format); });
        for (const Options &options : AllOptions)
            check([&](QString &text) { chineseamount::addZeros(text, options); },
                  [&](QString &text) { plainly::addZeros(text, options); });
        if (QTest::currentTestFailed())
            return;
    }
}

void ChineseAmountTest::appendsToTheTextSoFar()
{
    QString text = QStringLiteral("金额");
    chineseamount::appendPlaces(text, QStringLiteral("10"));
    QCOMPARE(text, QStringLiteral("金额壹拾零元零角零分"));
    chineseamount::appendPlaces(text, QStringLiteral("-0.2"));
    QCOMPARE(text, QStringLiteral("负金额壹拾零元零角零分贰角零分"));
}

void ChineseAmountTest::allZero_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    QTest::newRow("zero") << QStringLiteral("0") << true;
    QTest::newRow("several zeros") << QStringLiteral("000") << true;
    QTest::newRow("point behind") << QStringLiteral("0.") << true;
    QTest::newRow("point in front") << QStringLiteral(".0") << true;
    QTest::newRow("two decimals") << QStringLiteral("0.00") << true;
    QTest::newRow("wide") << QStringLiteral("00.000") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("lone point") << QStringLiteral(".") << false;
    QTest::newRow("minus") << QStringLiteral("-0") << false;
    QTest::newRow("one cent") << QStringLiteral("0.01") << false;
    QTest::newRow("two points") << QStringLiteral("0.0.0") << false;
    QTest::newRow("blank behind") << QStringLiteral("0 ") << false;
    QTest::newRow("line feed behind") << QStringLiteral("0\n") << false;
    QTest::newRow("full-width zero") << QStringLiteral("０") << false;
}

void ChineseAmountTest::allZero()
{
    QFETCH(const QString, text);
    QFETCH(const bool, expected);
    QCOMPARE(chineseamount::isAllZero(text), expected);
}

void ChineseAmountTest::allZeroIsTheRegularExpression()
{
    const QRegExp expression(QStringLiteral("(^0+\\.{0,1}0*$)|(^0*\\.{0,1}0+$)|^0+$"));
    const QString alphabet = QStringLiteral("0.-1\n ");
    // every text of up to six of these characters
    QStringList texts = {QString()};
    for (int first = 0, length = 0; length < 6; ++length) {
        const int last = texts.size();
        for (; first < last; ++first) {
            for (const QChar character : alphabet)
                texts.append(texts.at(first) + character);
        }
    }
    for (const QString &text : qAsConst(texts))
        QVERIFY2(chineseamount::isAllZero(text) == expression.exactMatch(text), qPrintable(text));
}

void ChineseAmountTest::allZeroText_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");

    QTest::newRow("yuan") << 2 << QStringLiteral("零元整");
    QTest::newRow("yuan, alternative format") << 3 << QStringLiteral("零元整");
    QTest::newRow("round yuan") << 4 << QStringLiteral("零圆整");
    QTest::newRow("dollars") << 5 << QStringLiteral("零元整");
    QTest::newRow("without suffix") << 6 << QStringLiteral("零元零角零分");
    QTest::newRow("English") << 7 << QStringLiteral("AND CENTS ONLY");
    for (const int format : {0, 1, 8, 9, 10, 11, -1})
        QTest::addRow("no words in format %d", format) << format << QString();
}

void ChineseAmountTest::allZeroText()
{
    QFETCH(const int, format);
    QFETCH(const QString, text);
    QCOMPARE(chineseamount::allZeroText(Input_Format(format)), text);
}

QTEST_APPLESS_MAIN(ChineseAmountTest)
#include "tst_chineseamount.moc"
