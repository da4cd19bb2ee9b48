// SPDX-License-Identifier: MIT
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "desk/checking/checking.h"
#include "desk/fonts.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>

namespace {

// Room for every value of the rows in 10 points.
const QRectF Roomy(1, 1, 98, 10);

QJsonObject settings(const QByteArray &json)
{
    return deskforms::value(json.constData()).toObject();
}

QStringList problemsOf(const char *kind, const QRectF &place, const QByteArray &json)
{
    QJsonObject object = deskforms::text(kind, place, settings(json));
    object.insert(QStringLiteral("id"), QStringLiteral("field"));
    const std::unique_ptr<Form> form = deskforms::formWith({object});
    return form ? checking::problems(*form) : QStringList(QStringLiteral("no form"));
}

QStringList named(const QString &problem)
{
    return problem.isEmpty() ? QStringList() : QStringList(QStringLiteral("objects[0] \"field\": ") + problem);
}

QString misfit(const char *value)
{
    return QStringLiteral("value does not fit its cells: \"%1\"").arg(QString::fromUtf8(value));
}

QString invalid(const char *value)
{
    return QStringLiteral("invalid value \"%1\"").arg(QString::fromUtf8(value));
}

QString aboveLimit(const char *value)
{
    return QStringLiteral("value above the limit of its cells: \"%1\"").arg(QString::fromUtf8(value));
}

QString nothing(const char *value)
{
    return QStringLiteral("required, but \"%1\" prints nothing").arg(QString::fromUtf8(value));
}

QByteArray withPreset(QByteArray json, const char *value)
{
    json.chop(1);
    if (json.size() > 1)
        json += ',';
    return json + "\"preset\":\"" + value + "\"}";
}

} // namespace

class CellCheckingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void amountsOfBothKinds_data();
    void amountsOfBothKinds();
    void separatedValues_data();
    void separatedValues();
    void financialValues_data();
    void financialValues();
    void amountThatLostItsCells();
    void fit_data();
    void fit();
    void widthDecides_data();
    void widthDecides();
    void heightDecides();
};

void CellCheckingTest::amountsOfBothKinds_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const QByteArray all = R"({"highestUnit":11})";
    const QByteArray wan = R"({"highestUnit":6})";
    const QByteArray jiao = R"({"highestUnit":6,"lowestUnit":1})";
    const QByteArray yuan = R"({"highestUnit":6,"lowestUnit":2})";
    const QByteArray hundreds = R"({"highestUnit":8,"lowestUnit":4})";
    const auto add = [](const char *name, const char *value, const QByteArray &json, const QString &problem) {
        QTest::newRow(name) << QString::fromUtf8(value) << json << problem;
    };
    add("no value", "", wan, {});
    add("amount", "1234.56", wan, {});
    add("whole amount", "1234", wan, {});
    add("point behind", "1234.", wan, {});
    add("point in front", ".5", wan, {});
    add("largest of the cells", "99999.99", wan, {});
    add("one more", "100000", wan, misfit("100000"));
    add("one 分 more", "100000.00", wan, misfit("100000.00"));
    add("zeros in front", "000000001234.50", wan, {});
    add("zeros behind", "1234.500000000", wan, {});
    add("third place", "1234.501", wan, misfit("1234.501"));
    add("third place that would be rounded off", "0.009", wan, misfit("0.009"));
    add("ten digits", "9999999999.99", all, {});
    add("eleven digits", "12345678901", all, misfit("12345678901"));
    add("eleven digits of a zero", "00000000000", all, {});
    add("more digits than a double holds", "1234567890.0000000000000000001", all,
        misfit("1234567890.0000000000000000001"));
    add("角 in a row down to 角", "5.6", jiao, {});
    add("分 in a row down to 角", "5.65", jiao, misfit("5.65"));
    add("no 分 in a row down to 角", "5.60", jiao, {});
    add("角 in a row down to 元", "5.1", yuan, misfit("5.1"));
    add("whole in a row down to 元", "50.00", yuan, {});
    add("hundreds", "123400", hundreds, {});
    add("ten in a row of hundreds", "123410", hundreds, misfit("123410"));
    add("分 in a row of hundreds", "123400.01", hundreds, misfit("123400.01"));
    add("zero", "0.00", wan, {});
    add("zero without a point", "0", hundreds, {});
    add("negative", "-5", wan, invalid("-5"));
    add("plus", "+5", wan, invalid("+5"));
    add("two points", "1.2.3", wan, invalid("1.2.3"));
    add("point alone", ".", wan, invalid("."));
    add("comma", "1,234", wan, invalid("1,234"));
    add("exponent", "1e3", wan, invalid("1e3"));
    add("letters", "ten", wan, invalid("ten"));
    add("space in front", " 5", wan, invalid(" 5"));
    add("space only", " ", wan, invalid(" "));
    add("wide digits", "１２", wan, invalid("１２"));
    add("currency in the value", "¥5", wan, invalid("¥5"));
}

void CellCheckingTest::amountsOfBothKinds()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    for (const char *kind : {"separatedEdit", "financialEdit"})
        QCOMPARE(problemsOf(kind, Roomy, withPreset(settings, value.toUtf8().constData())), named(problem));
}

void CellCheckingTest::separatedValues_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const QString missing = QStringLiteral("required, but missing");
    const auto add = [](const char *name, const char *json, const QString &problem) {
        QTest::newRow(name) << QByteArray(json) << problem;
    };
    add("required", R"({"required":true})", missing);
    add("required, spaces only", R"({"required":true,"preset":"  "})", missing);
    add("required digits", R"({"required":true,"mode":"digits18"})", missing);
    add("required characters, spaces only", R"({"required":true,"mode":"chars6","preset":"  "})", missing);
    add("required, not printed", R"({"required":true,"print":false})", missing);
    add("required and there", R"({"required":true,"preset":"5"})", {});
    add("required zero", R"({"required":true,"preset":"0.00"})", nothing("0.00"));
    add("required zero behind marks", R"({"required":true,"preset":"0.00","prefixAll":true})", {});
    add("required zero without 元", R"({"required":true,"preset":"0","prefixAll":true,"highestUnit":8,"lowestUnit":3})",
        nothing("0"));
    add("zero that prints nothing", R"({"preset":"0.00"})", {});
    add("full row, no cell for the mark", R"({"preset":"99999.99","prefixMark":"cross"})", {});
    add("18 digits", R"({"mode":"digits18","preset":"123456789012345678"})", {});
    add("17 digits", R"({"mode":"digits18","preset":"12345678901234567"})", {});
    add("19 digits", R"({"mode":"digits18","preset":"1234567890123456789"})", misfit("1234567890123456789"));
    add("letter among 18 digits", R"({"mode":"digits18","preset":"12345678901234567X"})",
        invalid("12345678901234567X"));
    add("point among digits", R"({"mode":"digits6","preset":"12.5"})", invalid("12.5"));
    add("space among digits", R"({"mode":"digits6","preset":"12 5"})", invalid("12 5"));
    add("6 digits", R"({"mode":"digits6","preset":"000000"})", {});
    add("7 digits", R"({"mode":"digits6","preset":"0000001"})", misfit("0000001"));
    add("required zeros among digits", R"({"mode":"digits6","required":true,"preset":"000000"})", {});
    add("6 characters", R"({"mode":"chars6","preset":"A b-某1"})", {});
    add("7 characters", R"({"mode":"chars6","preset":"AB 1234"})", misfit("AB 1234"));
    add("6 characters of two units each", R"({"mode":"chars6","preset":"𠀀𠀀𠀀𠀀𠀀𠀀"})", {});
    add("letter with its accent in one cell", "{\"mode\":\"chars6\",\"preset\":\"12345e\xCC\x81\"}", {});
    add("line end", R"({"mode":"chars6","preset":"A\nB"})", invalid("A\\nB"));
    add("tabulator", R"({"mode":"chars6","preset":"A\tB"})", invalid("A\\tB"));
    add("line separator", R"({"mode":"chars6","preset":"A\u2028B"})", invalid("A\\u2028B"));
    add("mode without a name", R"({"mode":77,"preset":"1"})", invalid("1"));
    add("negative mode", R"({"mode":-1,"preset":"1"})", invalid("1"));
    add("mode without a name, no value", R"({"mode":77})", {});
    add("invalid and not printed", R"({"preset":"x","print":false})", invalid("x"));
    add("prefix is no setting", R"({"preset":"5","prefix":"x"})", QStringLiteral("unknown"));
}

void CellCheckingTest::separatedValues()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    const QStringList unknown(QStringLiteral("unknown objects[0]: setting \"prefix\""));
    QCOMPARE(problemsOf("separatedEdit", Roomy, settings),
             problem == QLatin1String("unknown") ? unknown : named(problem));
}

void CellCheckingTest::financialValues_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const QString missing = QStringLiteral("required, but missing");
    const auto add = [](const char *name, const char *json, const QString &problem) {
        QTest::newRow(name) << QByteArray(json) << problem;
    };
    add("required", R"({"required":true})", missing);
    add("required, zeros shown", R"({"required":true,"showZero":true})", missing);
    add("required zero", R"({"required":true,"preset":"0.00"})", nothing("0.00"));
    add("required zero, zeros shown", R"({"required":true,"preset":"0.00","showZero":true})", {});
    add("required zero, zeros shown without 元", R"({"required":true,"preset":"0","showZero":true,"lowestUnit":3})",
        nothing("0"));
    add("zero that prints nothing", R"({"preset":"0"})", {});
    add("分 alone", R"({"required":true,"preset":"0.05"})", {});
    add("grid of 角 and 分", R"({"preset":"0.95","highestUnit":1})", {});
    add("grid of 角 and 分, zero in front", R"({"preset":"00.05","highestUnit":1})", {});
    add("元 in a grid of 角 and 分", R"({"preset":"1.95","highestUnit":1})", misfit("1.95"));
    add("角 alone", R"({"preset":"0.9","highestUnit":1,"lowestUnit":1})", {});
    add("分 in a grid of 角 alone", R"({"preset":"0.95","highestUnit":1,"lowestUnit":1})", misfit("0.95"));
    add("full grid, no cell for the sign", R"({"preset":"9.99","highestUnit":2,"currency":"yuan"})", {});
    add("at the limit", R"({"preset":"99999.99","showLimit":true,"limitUnit":6})", {});
    add("above the limit", R"({"preset":"100000","showLimit":true,"limitUnit":6})", aboveLimit("100000"));
    add("above a limit that is not shown", R"({"preset":"100000","limitUnit":6})", {});
    add("zeros above the limit", R"({"preset":"0.50","showLimit":true,"limitUnit":1,"showZero":true})", {});
    add("元 above a limit of 角", R"({"preset":"1.50","showLimit":true,"limitUnit":1,"showZero":true})",
        aboveLimit("1.50"));
    add("limit of the highest unit", R"({"preset":"99999.99","highestUnit":6,"showLimit":true,"limitUnit":6})", {});
    add("limit above the grid", R"({"preset":"99999.99","highestUnit":6,"showLimit":true,"limitUnit":9})", {});
    add("limit below the grid", R"({"preset":"99999","lowestUnit":2,"showLimit":true,"limitUnit":1})", {});
    add("limit of the lowest unit", R"({"preset":"10","lowestUnit":2,"showLimit":true,"limitUnit":2})",
        aboveLimit("10"));
    add("beyond grid and limit", R"({"preset":"100000","highestUnit":6,"showLimit":true,"limitUnit":4})",
        misfit("100000"));
    add("above the limit and not printed", R"({"preset":"100","showLimit":true,"limitUnit":3,"print":false})",
        aboveLimit("100"));
}

void CellCheckingTest::financialValues()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    QCOMPARE(problemsOf("financialEdit", Roomy, settings), named(problem));
}

// What counts is what stands in the cells, not what should stand there.
void CellCheckingTest::amountThatLostItsCells()
{
    for (const char *kind : {"separatedEdit", "financialEdit"}) {
        const std::unique_ptr<Form> form =
            deskforms::formWith({deskforms::text(kind, Roomy, settings(R"({"preset":"12.5"})"))});
        QVERIFY(form);
        TavroPrototype *object = form->entries.front().object;
        QCOMPARE(checking::problems(*form), QStringList());
        if (auto *row = qobject_cast<TavroSeperateEdit *>(object))
            row->setCharAt(4, QStringLiteral("3"));
        else
            qobject_cast<TavroFinancialEdit *>(object)->setDigitAt(9, QStringLiteral("3"));
        QCOMPARE(checking::problems(*form), QStringList(QStringLiteral("objects[0]: ") + misfit("12.5")));
    }
}

void CellCheckingTest::fit_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("text"); ///< that does not fit, empty where all do

    const auto add = [](const char *name, const char *kind, QSizeF size, const char *json, const char *text) {
        QTest::newRow(name) << QByteArray(kind) << size << QByteArray(json) << QString::fromUtf8(text);
    };
    // 10 points are 3.5 mm; a digit is 2.2 mm wide, a capital 3.5 mm, and the letters USD are 7 mm.
    const char *row = "separatedEdit";
    const char *grid = "financialEdit";
    add("digits in a grid", grid, {36, 10}, R"({"preset":"98"})", "");
    add("digits in narrow cells", grid, {18, 10}, R"({"preset":"98"})", "9");
    add("empty grid in narrow cells", grid, {18, 10}, R"({})", "");
    add("zeros in narrow cells", grid, {18, 10}, R"({"showZero":true})", "0");
    add("narrow cells, not printed", grid, {18, 10}, R"({"preset":"98","print":false})", "");
    add("narrow cells, invisible while filling in", grid, {18, 10}, R"({"preset":"98","visible":false})", "");
    add("narrow cells, disabled while filling in", grid, {18, 10}, R"({"preset":"98","enabled":false})", "9");
    add("low grid", grid, {36, 7}, R"({"preset":"98"})", "9");
    add("low grid without unit words", grid, {36, 7}, R"({"preset":"98","unitRowHeight":0})", "");
    add("unit words higher than the grid", grid, {36, 10}, R"({"preset":"98","unitRowHeight":12})", "9");
    add("sign", grid, {60, 10}, R"({"preset":"98","currency":"yuan"})", "");
    add("letters of the currency", grid, {60, 10}, R"({"preset":"98","currency":"usd"})", "USD");
    add("letters of the currency in wide cells", grid, {96, 10}, R"({"preset":"98","currency":"usd"})", "");
    add("letters of the currency without a cell", grid, {15, 10},
        R"({"preset":"98.00","currency":"usd","highestUnit":3})", "");
    add("letters of the currency without a value", grid, {60, 10}, R"({"currency":"usd"})", "");
    add("capitals", row, {70, 10}, R"({"preset":"98"})", "");
    add("capitals in narrow cells", row, {52, 10}, R"({"preset":"98"})", "玖");
    add("zero that is not printed in narrow cells", row, {40, 10}, R"({"preset":"0"})", "");
    add("zero behind marks in narrow cells", row, {52, 10}, R"({"preset":"0","prefixAll":true})", "零");
    add("marks alone in narrow cells", row, {52, 10},
        R"({"preset":"0","prefixAll":true,"prefixMark":"zero","highestUnit":9,"lowestUnit":3})", "零");
    add("marks of none in narrow cells", row, {52, 10},
        R"({"preset":"0","prefixAll":true,"prefixMark":"none","highestUnit":9,"lowestUnit":3})", "");
    add("gaps wider than the row", row, {30, 10}, R"({"preset":"98"})", "玖");
    add("low row", row, {70, 3}, R"({"preset":"98"})", "玖");
    add("digits", row, {54, 10}, R"({"mode":"digits18","preset":"12"})", "");
    add("digits in narrow cells", row, {27, 10}, R"({"mode":"digits18","preset":"12"})", "1");
    add("letters", row, {55, 10}, R"({"mode":"chars6","preset":"iW"})", "");
    add("wide letter in narrow cells", row, {40, 10}, R"({"mode":"chars6","preset":"iW"})", "W");
    add("unit words in narrow gaps are not printed", row, {70, 10}, R"({"preset":"98","separatorWidth":0.5})", "");
    add("box of negative width", grid, {-36, 10}, R"({"preset":"98"})", "9");
    add("box of negative height", grid, {36, -10}, R"({"preset":"98"})", "9");
    add("larger font", grid, {36, 10}, R"({"preset":"98","fontSize":20})", "9");
}

void CellCheckingTest::fit()
{
    QFETCH(QByteArray, kind);
    QFETCH(QSizeF, size);
    QFETCH(QByteArray, settings);
    QFETCH(QString, text);
    QByteArray json = settings;
    if (!json.contains("fontSize"))
        json.replace("{", json == "{}" ? R"({"fontSize":10)" : R"({"fontSize":10,)");
    json.replace("{", R"({"fill":"noWrap",)");
    const QString problem = text.isEmpty() ? QString() : QStringLiteral("text does not fit its cell: \"%1\"").arg(text);
    QCOMPARE(problemsOf(kind.constData(), {QPointF(1, 1), size}, json), named(problem));
}

namespace {

// The ink of a digit in 20 pt.
QRectF inkOfDigit(const QString &digit)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(56);
    return QFontMetricsF(font).tightBoundingRect(digit);
}

} // namespace

void CellCheckingTest::widthDecides_data()
{
    QTest::addColumn<QString>("digit");
    for (const QString &digit : {QStringLiteral("1"), QStringLiteral("4"), QStringLiteral("8")})
        QTest::newRow(qPrintable(digit)) << digit;
}

// The ink counts, not the advance: a digit may be as wide as its cell.
void CellCheckingTest::widthDecides()
{
    QFETCH(QString, digit);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(56);
    const QRectF ink = inkOfDigit(digit);
    const double advance = QFontMetricsF(font).horizontalAdvance(digit);
    // The digit stands in the middle of the cell with its advance, so the side with less space around the ink decides.
    const double width = 2 * qMax(ink.right() - advance / 2, advance / 2 - ink.left());
    QVERIFY(width < advance);
    const QByteArray json = R"({"mode":"digits6","fill":"noWrap","fontSize":20,"preset":")" + digit.toUtf8() + "\"}";
    const auto problems = [&](double cell) {
        return problemsOf("separatedEdit", {1, 1, 6 * cell / 8, 20}, json).size();
    };
    QCOMPARE(problems(width + 1), 0);
    QCOMPARE(problems(width - 4), 1);
}

void CellCheckingTest::heightDecides()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(56);
    const QFontMetricsF metrics(font);
    const QRectF ink = inkOfDigit(QStringLiteral("4"));
    const double middle = (metrics.ascent() + metrics.descent()) / 2;
    const double height = 2 * qMax(middle - (metrics.ascent() + ink.top()), metrics.ascent() + ink.bottom() - middle);
    const QByteArray json = R"({"unitRowHeight":2,"fill":"noWrap","fontSize":20,"preset":"44"})";
    const auto problems = [&](double cell) {
        return problemsOf("financialEdit", {1, 1, 96, 2 + cell / 8}, json).size();
    };
    QCOMPARE(problems(height + 1), 0);
    QCOMPARE(problems(height - 4), 1);
}

QTEST_MAIN(CellCheckingTest)
#include "tst_cellchecking.moc"
