// SPDX-License-Identifier: MIT
#include "entry/englishamount.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QTest>

namespace {

// The rules once more, as plain as they can be written.
class PlainEnglish
{
public:
    explicit PlainEnglish(const QString &content)
        : m_places(placesOf(content))
    {
        if (content.contains(QLatin1String("-")))
            m_text = QStringLiteral("Negative ");
    }

    QString written()
    {
        if (m_places.mid(0, 1) != QLatin1String("0"))
            m_text += one(read(0, 1)) + QLatin1String(" BILLION ");
        group(1, QStringLiteral(" MILLION "));
        group(4, QStringLiteral(" THOUSAND "));
        if (read(7, 1) >= 1)
            m_text += one(read(7, 1)) + QLatin1String(" HUNDRED ");
        if (read(7, 1) > 0)
            m_text += QLatin1String(" AND ");
        if (read(8, 2) >= 1)
            m_text += pair(read(8, 2));
        if (read(10, 2) >= 1)
            m_text += QLatin1String(" CENTS ") + pair(read(10, 2));
        m_text += QLatin1String(" ONLY");
        m_text.replace(QLatin1String("  "), QLatin1String(" "));
        return m_text.trimmed();
    }

private:
    static QString placesOf(const QString &content)
    {
        QString s = content.isEmpty() ? QStringLiteral("0.00") : content;
        if (!s.contains(QLatin1String(".")))
            s += QLatin1String(".00");
        int p = s.indexOf(QLatin1String("."));
        if (p < 10)
            s.prepend(QString(10 - p, QLatin1Char('0')));
        p = s.indexOf(QLatin1String("."));
        s += QString(s.size() - p + 1, QLatin1Char('0'));
        return s.mid(p - 10, 10) + s.mid(p + 1, 2);
    }

    static QString one(int value)
    {
        static const QStringList words =
            QStringLiteral("ZERO ONE TWO THREE FOUR FIVE SIX SEVEN EIGHT NINE TEN ELEVEN TWELVE THIRTEEN FOURTEEN "
                           "FIFTEEN SIXTEEN SEVENTEEN EIGHTEEN NINETEEN TWENTY")
                .split(QLatin1Char(' '));
        return QLatin1Char(' ') + words.at(value) + QLatin1Char(' ');
    }

    static QString pair(int value)
    {
        static const QStringList tens =
            QStringLiteral("- - TWENTY THIRTY FORTY FIFTY SIXTY SEVENTY EIGHTY NINETY").split(QLatin1Char(' '));
        if (value <= 20)
            return one(value);
        const QString words = QLatin1Char(' ') + tens.at(value / 10) + QLatin1Char(' ');
        return value % 10 == 0 ? words : words + one(value % 10);
    }

    int read(int place, int count) const { return m_places.mid(place, count).toInt(); }

    void group(int place, const QString &name)
    {
        if (read(place, 3) < 1)
            return;
        if (m_places.mid(place, 1) != QLatin1String("0"))
            m_text += one(read(place, 1)) + QLatin1String(" HUNDRED ");
        if (read(place + 1, 2) >= 1)
            m_text += pair(read(place + 1, 2));
        m_text += name;
    }

    QString m_places;
    QString m_text;
};

void compare(const QString &content)
{
    const QString text = englishamount::amountText(content);
    const QString expected = PlainEnglish(content).written();
    if (text != expected)
        qWarning("content \"%s\"", qPrintable(content));
    QCOMPARE(text, expected);
}

} // namespace

class EnglishAmountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountText_data();
    void amountText();
    void everyPairInEveryGroup();
    void everyPatternOfZerosAndOnes();
    void randomContents();
    void gapsBetweenWords_data();
    void gapsBetweenWords();
};

void EnglishAmountTest::amountText_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("text");

    const auto add = [](const char *name, const QString &content, const char *text) {
        QTest::newRow(name) << content << QString::fromLatin1(text);
    };
    add("ones", QStringLiteral("5"), "FIVE ONLY");
    add("twenty", QStringLiteral("20"), "TWENTY ONLY");
    add("tens and ones without hyphen", QStringLiteral("21"), "TWENTY ONE ONLY");
    add("hundreds and cents", QStringLiteral("105.50"), "ONE HUNDRED AND FIVE CENTS FIFTY ONLY");
    add("and with nothing behind", QStringLiteral("100"), "ONE HUNDRED AND ONLY");
    add("cents only", QStringLiteral("0.05"), "CENTS FIVE ONLY");
    add("millions", QStringLiteral("1000000.01"), "ONE MILLION CENTS ONE ONLY");
    add("all places", QStringLiteral("1234567890.12"),
        "ONE BILLION TWO HUNDRED THIRTY FOUR MILLION FIVE HUNDRED SIXTY SEVEN THOUSAND EIGHT HUNDRED AND NINETY CENTS "
        "TWELVE ONLY");

    add("minus spoils the last pair", QStringLiteral("-5"), "Negative ONLY");
    add("minus spoils the hundreds", QStringLiteral("-50"), "Negative FIFTY ONLY");
    add("minus before the thousands", QStringLiteral("-500"), "Negative FIVE HUNDRED AND ONLY");
    add("minus spoils the thousands", QStringLiteral("-5000"), "Negative ONLY");
    add("minus spoils the thousands, not the rest", QStringLiteral("-12345"),
        "Negative THREE HUNDRED AND FORTY FIVE ONLY");
    add("minus before the millions", QStringLiteral("-123456"),
        "Negative ONE HUNDRED TWENTY THREE THOUSAND FOUR HUNDRED AND FIFTY SIX ONLY");
    add("minus in the place of the billions", QStringLiteral("-123456789"),
        "Negative ZERO BILLION ONE HUNDRED TWENTY THREE MILLION FOUR HUNDRED FIFTY SIX THOUSAND SEVEN HUNDRED AND "
        "EIGHTY NINE ONLY");
    add("minus above the tenth place", QStringLiteral("-1234567890"),
        "Negative ONE BILLION TWO HUNDRED THIRTY FOUR MILLION FIVE HUNDRED SIXTY SEVEN THOUSAND EIGHT HUNDRED AND "
        "NINETY ONLY");
    add("minus spoils the cents", QStringLiteral("1.-5"), "Negative ONE ONLY");
    add("minus as second decimal", QStringLiteral("1.5-"), "Negative ONE ONLY");
    add("minus behind the second decimal", QStringLiteral("1.50-"), "Negative ONE CENTS FIFTY ONLY");

    add("eleventh integer digit dropped", QStringLiteral("90000000001"), "ONE ONLY");
    add("third decimal cut", QStringLiteral("0.019"), "CENTS ONE ONLY");
    add("one decimal is tens of cents", QStringLiteral("1.5"), "ONE CENTS FIFTY ONLY");
    add("empty", QString(), "ONLY");
    add("lone point", QStringLiteral("."), "ONLY");
    add("zero", QStringLiteral("0.00"), "ONLY");
    add("nineteen", QStringLiteral("19"), "NINETEEN ONLY");
    add("eleven", QStringLiteral("11"), "ELEVEN ONLY");
    add("ninety nine", QStringLiteral("99.99"), "NINETY NINE CENTS NINETY NINE ONLY");
    add("thousands without hundreds", QStringLiteral("1001"), "ONE THOUSAND ONE ONLY");
    add("empty thousands", QStringLiteral("2000300"), "TWO MILLION THREE HUNDRED AND ONLY");
    add("hundred thousand", QStringLiteral("100000"), "ONE HUNDRED THOUSAND ONLY");
    add("hundred million", QStringLiteral("100000000"), "ONE HUNDRED MILLION ONLY");
    add("billion", QStringLiteral("1000000000"), "ONE BILLION ONLY");

    add("plus is read with its pair", QStringLiteral("+5"), "FIVE ONLY");
    add("plus as a hundred", QStringLiteral("+12345"),
        "ZERO HUNDRED TWELVE THOUSAND THREE HUNDRED AND FORTY FIVE ONLY");
    add("blank as a hundred", QStringLiteral(" 12345"),
        "ZERO HUNDRED TWELVE THOUSAND THREE HUNDRED AND FORTY FIVE ONLY");
    add("blank as a ten", QStringLiteral(" 5"), "FIVE ONLY");
    add("blank inside a group", QStringLiteral("1 2000"), "ONLY");
    add("letter in the place of the billions", QStringLiteral("x000000001"), "ZERO BILLION ONE ONLY");
    add("letter spoils its group", QStringLiteral("1x5000"), "ONLY");
    add("letter as hundred of the last group", QStringLiteral("x21"), "TWENTY ONE ONLY");
    add("second point as decimal", QStringLiteral("1.2.3"), "ONE ONLY");
    add("typographic minus is no sign of the amount", QStringLiteral("\u22125"), "ONLY");
    add("full-width digits", QStringLiteral("１２"), "ONLY");
    add("four hundred digits", QString(400, QLatin1Char('1')),
        "ONE BILLION ONE HUNDRED ELEVEN MILLION ONE HUNDRED ELEVEN THOUSAND ONE HUNDRED AND ELEVEN ONLY");
}

void EnglishAmountTest::amountText()
{
    QFETCH(const QString, content);
    QFETCH(const QString, text);
    QCOMPARE(englishamount::amountText(content), text);
    QCOMPARE(PlainEnglish(content).written(), text);
}

void EnglishAmountTest::everyPairInEveryGroup()
{
    for (int value = 0; value < 1000; ++value) {
        for (const char *frame : {"%1", "%1000", "%1000000", "0.%1", "%1.%1", "2%1000"}) {
            QString content = QString::fromLatin1(frame);
            content.replace(QLatin1String("%1"), QStringLiteral("%1").arg(value, 3, 10, QLatin1Char('0')));
            compare(content);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void EnglishAmountTest::everyPatternOfZerosAndOnes()
{
    for (int pattern = 0; pattern < 4096; ++pattern) {
        QString content = QStringLiteral("%1").arg(pattern, 12, 2, QLatin1Char('0'));
        content.insert(10, QLatin1Char('.'));
        compare(content);
        if (QTest::currentTestFailed())
            return;
    }
}

void EnglishAmountTest::randomContents()
{
    QRandomGenerator random(20210303);
    const QString alphabets[] = {QStringLiteral("0123456789."), QStringLiteral("0123456789.-"),
                                 QStringLiteral("0019.-+ "), QStringLiteral("19.-+ \t\n\u00a0\u2212,exX１٣")};
    for (const QString &alphabet : alphabets) {
        for (int round = 0; round < 10000; ++round) {
            QString content;
            for (int length = random.bounded(16); length > 0; --length)
                content += alphabet.at(random.bounded(alphabet.size()));
            compare(content);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void EnglishAmountTest::gapsBetweenWords_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("text");

    const auto add = [](const char *name, const char *words, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(words) << QString::fromUtf8(text);
    };
    add("one blank stays", "ONE ONLY", "ONE ONLY");
    add("two blanks are one", " ONE  ONLY ", "ONE ONLY");
    add("three blanks are two", "ONE   ONLY", "ONE  ONLY");
    add("four blanks are two", "ONE    ONLY", "ONE  ONLY");
    add("every gap", "ONE  HUNDRED  AND  ONLY", "ONE HUNDRED AND ONLY");
    add("none at the ends", "     ONE ONLY     ", "ONE ONLY");
    add("other white space stays", "\tONE\u00a0 \u00a0ONLY\n", "\tONE\u00a0 \u00a0ONLY\n");
    add("only blanks", "     ", "");
    add("nothing", "", "");
}

void EnglishAmountTest::gapsBetweenWords()
{
    QFETCH(const QString, words);
    QFETCH(const QString, text);
    QCOMPARE(englishamount::tidied(words), text);
}

QTEST_APPLESS_MAIN(EnglishAmountTest)
#include "tst_englishamount.moc"
