// SPDX-License-Identifier: MIT
#include "entry/inputformat.h"

#include <QRegExp>
#include <QStringList>
#include <QTest>

namespace {

const QString AmountPattern = QStringLiteral("(^\\-?[0-9]{1,10}$)|(^\\-?[0-9]{0,10}\\.{1}[0-9]*$)");

const QVector<int> AllFormats = {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 1000};

// Every text of up to four characters that the patterns tell apart, and longer ones around their limits.
QStringList generatedTexts()
{
    QStringList texts = {QString()};
    for (int first = 0, length = 0; length < 4; ++length) {
        const int last = texts.size();
        for (; first < last; ++first) {
            for (const QChar character : QStringLiteral("09.-+ \naz１٣"))
                texts.append(texts.at(first) + character);
        }
    }
    for (const char *sign : {"", "-", "--"}) {
        for (int integers = 0; integers <= 13; ++integers) {
            const QString digits = QString::fromLatin1(sign) + QString(integers, QLatin1Char('5'));
            texts.append(digits);
            texts.append(digits + QLatin1Char('\n'));
            for (int decimals = 0; decimals <= 13; ++decimals) {
                texts.append(digits + QLatin1Char('.') + QString(decimals, QLatin1Char('5')));
                texts.append(texts.last() + QLatin1Char('-'));
                texts.append(texts.last() + QLatin1Char('.'));
            }
        }
    }
    return texts;
}

} // namespace

class InputFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchPattern_data();
    void matchPattern();
    void accepts_data();
    void accepts();
    void acceptsWhatThePatternMatches();
    void freeFormatsAcceptEverything();
    void isAmount();
    void acceptsKey_data();
    void acceptsKey();
    void acceptsTyped_data();
    void acceptsTyped();
    void acceptsTypedWhatThePatternMatches();
};

void InputFormatTest::matchPattern_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("pattern");

    QTest::newRow("text") << 0 << QString();
    QTest::newRow("number") << 1 << QStringLiteral("^[0-9]*\\.?[0-9]*");
    QTest::newRow("capitals") << 2 << AmountPattern;
    QTest::newRow("capitals, alternative format") << 3 << AmountPattern;
    QTest::newRow("capitals, round yuan") << 4 << AmountPattern;
    QTest::newRow("dollar capitals") << 5 << AmountPattern;
    QTest::newRow("capitals without suffix") << 6 << AmountPattern;
    QTest::newRow("English amount") << 7 << AmountPattern;
    QTest::newRow("serial number") << 8 << QStringLiteral("^[0-9]+$");
    QTest::newRow("free text") << 9 << QString();
    QTest::newRow("customised") << 10 << AmountPattern;
    QTest::newRow("first number beyond") << 11 << QString();
    QTest::newRow("far beyond") << 1000 << QString();
    QTest::newRow("negative") << -1 << QString();
}

void InputFormatTest::matchPattern()
{
    QFETCH(const int, format);
    QFETCH(const QString, pattern);
    QCOMPARE(inputformat::matchPattern(Input_Format(format)), pattern);
}

void InputFormatTest::accepts_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");

    const auto add = [](const char *name, QVector<int> formats, const char *text, bool accepted) {
        for (const int format : formats)
            QTest::addRow("%s, format %d", name, format) << format << QString::fromUtf8(text) << accepted;
    };
    const QVector<int> amounts = {2, 3, 4, 5, 6, 7, 10};
    add("ten integer digits", amounts, "1234567890", true);
    add("eleven integer digits", amounts, "12345678901", false);
    add("eleven integer digits and a point", amounts, "12345678901.", false);
    add("negative amount", amounts, "-12.5", true);
    add("negative number", {1, 8}, "-12.5", false);
    add("three decimals", amounts, "1.234", true);
    add("many decimals", amounts, "1.23456789012345", true);
    add("empty amount", amounts, "", false);
    add("lone point", amounts, ".", true);
    add("minus and point", amounts, "-.", true);
    add("lone minus", amounts, "-", false);
    add("two minus signs", amounts, "--1", false);
    add("two points", amounts, "1.2.3", false);
    add("plus", amounts, "+1", false);
    add("blank", amounts, " 1", false);
    add("line feed", amounts, "1\n", false);
    add("letter", amounts, "1a", false);
    add("empty number", {1}, "", true);
    add("lone point", {1}, ".", true);
    add("digits and a point", {1}, "12.", true);
    add("point and digits", {1}, ".12", true);
    add("eleven digits", {1}, "12345678901.12345678901", true);
    add("two points", {1}, "1..", false);
    add("letter", {1}, "1a", false);
    add("digits", {8}, "0099", true);
    add("forty digits", {8}, "1234567890123456789012345678901234567890", true);
    add("empty serial number", {8}, "", false);
    add("point", {8}, "1.", false);
    add("line feed", {8}, "12\n", false);
    add("full-width digits", {1, 2, 8}, "１２", false);
    add("Arabic digits", {1, 2, 8}, "٣", false);
    add("any text", {0, 9}, "any text\n-1.2.3", true);
    add("empty text", {0, 9, 11, -1}, "", true);
    add("a text beyond the named formats", {11, 1000, -1}, "1", false);
}

void InputFormatTest::accepts()
{
    QFETCH(const int, format);
    QFETCH(const QString, text);
    QFETCH(const bool, accepted);
    QCOMPARE(inputformat::accepts(Input_Format(format), text), accepted);
}

void InputFormatTest::acceptsWhatThePatternMatches()
{
    const QStringList texts = generatedTexts();
    for (const int format : AllFormats) {
        if (format == Format_Text || format == Format_FreeText)
            continue;
        const QRegExp expression(inputformat::matchPattern(Input_Format(format)));
        for (const QString &text : texts)
            QVERIFY2(inputformat::accepts(Input_Format(format), text) == expression.exactMatch(text),
                     qPrintable(QStringLiteral("format %1, text \"%2\"").arg(format).arg(text)));
    }
}

void InputFormatTest::freeFormatsAcceptEverything()
{
    for (const QString &text : generatedTexts()) {
        QVERIFY2(inputformat::accepts(Format_Text, text), qPrintable(text));
        QVERIFY2(inputformat::accepts(Format_FreeText, text), qPrintable(text));
    }
}

void InputFormatTest::isAmount()
{
    QVector<int> amounts;
    for (const int format : AllFormats) {
        if (inputformat::isAmount(Input_Format(format)))
            amounts.append(format);
    }
    QCOMPARE(amounts, QVector<int>({2, 3, 4, 5, 6, 7, 10}));
}

void InputFormatTest::acceptsKey_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QVector<int>>("accepted");

    const QVector<int> digits = {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4,
                                 Qt::Key_5, Qt::Key_6, Qt::Key_7, Qt::Key_8, Qt::Key_9};
    const QVector<int> numberKeys = QVector<int>({Qt::Key_Period}) + digits;
    const QVector<int> others = {Qt::Key_Space, Qt::Key_Plus,   Qt::Key_Comma,  Qt::Key_Minus, Qt::Key_Slash,
                                 Qt::Key_Colon, Qt::Key_A,      Qt::Key_E,      Qt::Key_Z,     Qt::Key_Delete,
                                 Qt::Key_Enter, Qt::Key_Return, Qt::Key_Escape, Qt::Key_F1,    Qt::Key_unknown};

    QTest::newRow("text") << 0 << others + numberKeys;
    QTest::newRow("number") << 1 << numberKeys;
    for (const int format : {2, 3, 4, 5, 6, 7, 10})
        QTest::addRow("amount, format %d", format) << format << numberKeys;
    QTest::newRow("serial number") << 8 << digits;
    QTest::newRow("free text") << 9 << others + numberKeys;
    for (const int format : {11, 1000, -1})
        QTest::addRow("no named format, %d", format) << format << QVector<int>();
}

void InputFormatTest::acceptsKey()
{
    QFETCH(const int, format);
    QFETCH(const QVector<int>, accepted);
    // every key of the main block, and those with codes of their own
    QVector<int> keys = {Qt::Key_Delete, Qt::Key_Enter, Qt::Key_Return, Qt::Key_Escape, Qt::Key_F1, Qt::Key_unknown};
    for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key)
        keys.append(key);
    const bool isFree = accepted.contains(Qt::Key_A);
    for (const int key : qAsConst(keys))
        QVERIFY2(inputformat::acceptsKey(Input_Format(format), key) == (isFree || accepted.contains(key)),
                 qPrintable(QStringLiteral("key %1").arg(key, 0, 16)));
}

void InputFormatTest::acceptsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");

    const auto add = [](const char *name, const char *text, bool accepted) {
        QTest::newRow(name) << QString::fromUtf8(text) << accepted;
    };
    add("ten integer digits", "1234567890", true);
    add("eleventh integer digit", "12345678901", false);
    add("eleventh integer digit before decimals", "12345678901.23", false);
    add("two decimals", "1234567890.12", true);
    add("third decimal", "1.123", false);
    add("point", "1.", true);
    add("lone point", ".", true);
    add("second point", "1.2.", false);
    add("negative", "-1.25", true);
    add("negative with third decimal", "-1.255", false);
    add("empty", "", false);
    add("letter", "1.a", false);
    add("line feed", "1.2\n", false);
}

void InputFormatTest::acceptsTyped()
{
    QFETCH(const QString, text);
    QFETCH(const bool, accepted);
    QCOMPARE(inputformat::acceptsTyped(text), accepted);
}

void InputFormatTest::acceptsTypedWhatThePatternMatches()
{
    const QRegExp expression(QStringLiteral("(^\\-?[0-9]{1,10}$)|(^\\-?[0-9]{0,10}\\.{1}[0-9]{0,2}$)"));
    for (const QString &text : generatedTexts())
        QVERIFY2(inputformat::acceptsTyped(text) == expression.exactMatch(text), qPrintable(text));
}

QTEST_APPLESS_MAIN(InputFormatTest)
#include "tst_inputformat.moc"
