// SPDX-License-Identifier: MIT
// The unit words, digits and currency signs that a financial edit paints.
#include "tests/cells/gridpainting.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

using gridpainting::drawnBy;
using gridpainting::Edit;
using gridpainting::Grid;
using gridpainting::grid;
using gridpainting::textsInCells;

class TestFinancialEditTexts : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void wordsHaveTheFramePenAndTheFont();
    void digits_data();
    void digits();
    void textsHaveColourAndFont_data();
    void textsHaveColourAndFont();
    void largeTextsAreNotCutOff();
    void signs_data();
    void signs();
    void signIsThePrefix();
    void currencies_data();
    void currencies();
};

void TestFinancialEditTexts::words_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("words");
    QTest::newRow("all units") << 0 << 11 << QStringLiteral("十 亿 千 百 十 万 千 百 十 元 角 分");
    QTest::newRow("jiao and fen") << 0 << 1 << QStringLiteral("角 分");
    QTest::newRow("whole digits") << 2 << 6 << QStringLiteral("万 千 百 十 元");
    QTest::newRow("units without a word") << 9 << 14 << QStringLiteral("_ _ _ 十 亿 千");
    QTest::newRow("units below fen") << -2 << 1 << QStringLiteral("角 分 _ _");
    QTest::newRow("far above") << 40 << 41 << QStringLiteral("_ _");
}

void TestFinancialEditTexts::words()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, words);
    for (const QRectF &rect : {Grid, QRectF(250, 20, -240, 60), QRectF(10, 80, 240, -60)}) {
        const auto edit = grid("", rect);
        QVERIFY(edit->setUnitRange(start, end));
        QCOMPARE(textsInCells(*edit, drawnBy(*edit, &Edit::drawUnits), true), words);
    }
    // Words without a height of their own stand on the upper edge.
    const auto flat = grid();
    flat->setPhyRect({});
    flat->setBoundingRect(Grid);
    QVERIFY(flat->setUnitRange(start, end));
    QCOMPARE(textsInCells(*flat, drawnBy(*flat, &Edit::drawUnits), true), words);
}

void TestFinancialEditTexts::wordsHaveTheFramePenAndTheFont()
{
    const auto edit = grid();
    edit->setFontColor(0x123456);
    edit->setFont(QFont(QStringLiteral("DejaVu Serif"), 7));
    const QVector<PaintCommand> words = drawnBy(*edit, &Edit::drawUnits);
    QCOMPARE(words.size(), 12);
    for (const PaintCommand &word : words) {
        QCOMPARE(word.pen, QPen(Qt::black, 1.0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
        QCOMPARE(word.font.family(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(word.font.pointSize(), 7);
        QVERIFY(!word.hasClip);
    }
}

void TestFinancialEditTexts::digits_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("isShowZero");
    QTest::addColumn<QString>("digits");
    const auto row = [](const char *name, const char *content, bool zero, const char *digits) {
        QTest::newRow(name) << QString::fromLatin1(content) << zero << QString::fromLatin1(digits);
    };
    row("amount", "1234.5", false, "_ _ _ _ _ _ 1 2 3 4 5 0");
    row("full", "1234567890.12", false, "1 2 3 4 5 6 7 8 9 0 1 2");
    row("fen", "0.05", false, "_ _ _ _ _ _ _ _ _ _ _ 5");
    row("fen, zeros shown", "0.05", true, "_ _ _ _ _ _ _ _ _ 0 0 5");
    row("zero", "0", false, "_ _ _ _ _ _ _ _ _ _ _ _");
    row("zero, zeros shown", "0", true, "_ _ _ _ _ _ _ _ _ 0 0 0");
    row("characters", "a-1", false, "_ _ _ _ _ _ _ a - 1 0 0");
}

void TestFinancialEditTexts::digits()
{
    QFETCH(QString, content);
    QFETCH(bool, isShowZero);
    QFETCH(QString, digits);
    for (const QRectF &rect : {Grid, QRectF(250, 20, -240, 60), QRectF(10, 80, 240, -60)}) {
        const auto edit = grid("", rect);
        edit->setIsShowZero(isShowZero);
        edit->setContentData(content);
        QCOMPARE(textsInCells(*edit, drawnBy(*edit, &Edit::drawDigits)), digits);
        QCOMPARE(textsInCells(*edit, drawnBy(*edit, &Edit::drawContent)), digits);
    }
}

void TestFinancialEditTexts::textsHaveColourAndFont_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2})
        QTest::addRow("mode %d", mode) << mode;
}

void TestFinancialEditTexts::textsHaveColourAndFont()
{
    QFETCH(int, mode);
    const auto edit = grid("7");
    edit->setCurrency(Currency_Dollar);
    edit->setIsDrawMonetaryUnit(false);
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    edit->setFontColor(0x123456);
    edit->setFont(QFont(QStringLiteral("DejaVu Serif"), 7));
    QStringList texts;
    for (const PaintCommand &command : probes::paintedBy(*edit)) {
        if (command.kind != PaintCommand::Text)
            continue;
        texts << command.text;
        QCOMPARE(command.pen.color(), QColor(0x12, 0x34, 0x56));
        QCOMPARE(command.pen.style(), Qt::SolidLine);
        QCOMPARE(command.pen.widthF(), 1.0);
        QCOMPARE(command.font.family(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(command.font.pointSize(), 7);
        QCOMPARE(command.opacity, 1.0);
    }
    QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("7 0 0 $"));
}

void TestFinancialEditTexts::largeTextsAreNotCutOff()
{
    const auto edit = grid("1234.5");
    edit->setCurrency(Currency_Usd);
    QFont large(QStringLiteral("DejaVu Sans"));
    large.setPixelSize(90);
    edit->setFont(large);
    for (const auto operation : {&Edit::drawDigits, &Edit::drawCurrencySign, &Edit::drawUnits}) {
        const QVector<PaintCommand> commands = drawnBy(*edit, operation);
        QVERIFY(!commands.isEmpty());
        for (const PaintCommand &command : commands)
            QVERIFY(!command.hasClip);
    }
}

void TestFinancialEditTexts::signs_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("isShowZero");
    QTest::addColumn<QString>("signs");
    const auto row = [](const char *name, const char *content, bool zero, const char *signs) {
        QTest::newRow(name) << QString::fromLatin1(content) << zero << QString::fromLatin1(signs);
    };
    row("before the amount", "1234.5", false, "_ _ _ _ _ $ _ _ _ _ _ _");
    row("before fen", "0.05", false, "_ _ _ _ _ _ _ _ _ _ $ _");
    row("before shown zeros", "0.05", true, "_ _ _ _ _ _ _ _ $ _ _ _");
    row("first cell empty alone", "234567890.12", false, "$ _ _ _ _ _ _ _ _ _ _ _");
    row("first cell filled", "1234567890.12", false, "_ _ _ _ _ _ _ _ _ _ _ _");
    row("all empty", "", false, "_ _ _ _ _ _ _ _ _ _ _ _");
    row("zero", "0", false, "_ _ _ _ _ _ _ _ _ _ _ _");
    row("zero, zeros shown", "0", true, "_ _ _ _ _ _ _ _ $ _ _ _");
    row("sign of the amount", "-5", false, "_ _ _ _ _ _ _ $ _ _ _ _");
}

void TestFinancialEditTexts::signs()
{
    QFETCH(QString, content);
    QFETCH(bool, isShowZero);
    QFETCH(QString, signs);
    for (const QRectF &rect : {Grid, QRectF(250, 20, -240, 60)}) {
        const auto edit = grid("", rect);
        edit->setCurrency(Currency_Dollar);
        edit->setIsShowZero(isShowZero);
        edit->setContentData(content);
        QCOMPARE(textsInCells(*edit, drawnBy(*edit, &Edit::drawCurrencySign)), signs);
    }
}

void TestFinancialEditTexts::signIsThePrefix()
{
    const auto edit = grid("5");
    edit->setPrefix(QStringLiteral("HK$"));
    QCOMPARE(textsInCells(*edit, drawnBy(*edit, &Edit::drawCurrencySign)), QStringLiteral("_ _ _ _ _ _ _ _ HK$ _ _ _"));
}

void TestFinancialEditTexts::currencies_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("sign");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("yuan") << 1 << QStringLiteral("¥");
    QTest::newRow("dollar") << 2 << QStringLiteral("$");
    QTest::newRow("pound") << 3 << QStringLiteral("£");
    QTest::newRow("cent") << 4 << QStringLiteral("￠");
    QTest::newRow("letters") << 5 << QStringLiteral("USD");
    QTest::newRow("unknown after the pound") << 6 << QStringLiteral("£");
}

void TestFinancialEditTexts::currencies()
{
    QFETCH(int, value);
    QFETCH(QString, sign);
    const auto edit = grid("5");
    edit->setCurrency(Currency_Pound);
    edit->setCurrency(static_cast<Currency>(value));
    QString painted;
    for (const PaintCommand &command : drawnBy(*edit, &Edit::drawCurrencySign))
        painted += command.text;
    QCOMPARE(painted, sign);
}

QTEST_MAIN(TestFinancialEditTexts)
#include "tst_financialedittexts.moc"
