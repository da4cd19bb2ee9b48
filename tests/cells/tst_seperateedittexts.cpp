// SPDX-License-Identifier: MIT
// Which texts a separated-cell edit draws, and where: characters, capital digits, marks and unit words.
#include "tests/cells/cellview.h"
#include "tests/cells/seperatecells.h"
#include "tests/cells/seperatepaints.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <limits>

using seperatecells::fill;
using seperatepaints::recorded;
using seperatepaints::setUp;
using seperatepaints::textsOf;

using Edit = TavroSeperateEdit;
using Draw = void (Edit::*)(QPainter *);
Q_DECLARE_METATYPE(Draw)

namespace {

constexpr int Most = std::numeric_limits<int>::max();

QVector<PaintCommand> commandsOf(Edit &edit, Draw draw)
{
    return recorded([&](QPainter *painter) { (edit.*draw)(painter); });
}

QString drawn(Edit &edit, Draw draw)
{
    return textsOf(edit, commandsOf(edit, draw));
}

} // namespace

class TestSeperateEditTexts : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void amountWithoutFocus_data();
    void amountWithoutFocus();
    void amountWithFocus_data();
    void amountWithFocus();
    void numberDecidesWhatIsDrawn();
    void contentOfOtherModes_data();
    void contentOfOtherModes();
    void capitalDigit_data();
    void capitalDigit();
    void marks_data();
    void marks();
    void changedPrefixIsTheMark();
    void unitWords_data();
    void unitWords();
    void unitWordsOfTheContent_data();
    void unitWordsOfTheContent();
    void unitWordsStandInTheGaps_data();
    void unitWordsStandInTheGaps();
    void colourAndFont_data();
    void colourAndFont();
    void largeTextsAreNotCut_data();
    void largeTextsAreNotCut();
};

void TestSeperateEditTexts::amountWithoutFocus_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<bool>("prefixAll");
    QTest::addColumn<QString>("texts");
    const auto row = [](const char *name, const QVariant &content, bool prefixAll, const char *texts) {
        QTest::newRow(name) << content << prefixAll << QString::fromUtf8(texts);
    };
    const auto text = [](const char *content) { return QVariant(QString::fromUtf8(content)); };
    row("thousands", text("1234.5"), false, "1:壹 2:贰 3:叁 4:肆 5:伍 6:零 0:ⓧ");
    row("thousands, all marks", text("1234.5"), true, "1:壹 2:贰 3:叁 4:肆 5:伍 6:零 0:ⓧ");
    row("full row", text("67890.12"), false, "0:陆 1:柒 2:捌 3:玖 4:零 5:壹 6:贰");
    row("full row, all marks", text("67890.12"), true, "0:陆 1:柒 2:捌 3:玖 4:零 5:壹 6:贰");
    row("ten", text("10"), false, "3:壹 4:零 5:零 6:零 2:ⓧ");
    row("ten, all marks", text("10"), true, "3:壹 4:零 5:零 6:零 0:ⓧ 1:ⓧ 2:ⓧ");
    row("five cents", text("0.05"), false, "4:零 5:零 6:伍 3:ⓧ");
    row("five cents, all marks", text("0.05"), true, "4:零 5:零 6:伍 0:ⓧ 1:ⓧ 2:ⓧ 3:ⓧ");
    row("less than a cent", text("0.001"), false, "4:零 5:零 6:零 3:ⓧ");
    row("zero", text("0"), false, "");
    row("zero with places", text("0.00"), false, "");
    row("zero, all marks", text("0"), true, "4:零 5:零 6:零 0:ⓧ 1:ⓧ 2:ⓧ 3:ⓧ");
    row("empty", text(""), false, "");
    row("empty, all marks", text(""), true, "4:零 5:零 6:零 0:ⓧ 1:ⓧ 2:ⓧ 3:ⓧ");
    row("null", QVariant(), false, "");
    row("number", QVariant(12.5), false, "3:壹 4:贰 5:伍 6:零 2:ⓧ");
    row("number zero", QVariant(0.0), false, "");
    row("no number", text("abc"), false, "");
    row("no number, all marks", text("abc"), true, "2:零 3:零 4:零 5:零 6:零 0:ⓧ 1:ⓧ");
    row("negative, the sign shows as a zero", text("-5"), false, "3:零 4:伍 5:零 6:零 2:ⓧ");
    row("beyond the row", text("9000000.00"), false, "4:零 5:零 6:零 3:ⓧ");
}

void TestSeperateEditTexts::amountWithoutFocus()
{
    QFETCH(QVariant, content);
    QFETCH(bool, prefixAll);
    QFETCH(QString, texts);
    Edit edit;
    setUp(edit);
    edit.setIsDrawMonetaryUnit(false);
    edit.setIsPrefixAll(prefixAll);
    edit.setContentData(content);
    for (const int mode : {0, 1, 2, 7}) {
        edit.setPaintMode(static_cast<Paint_Mode>(mode));
        QCOMPARE(drawn(edit, &Edit::drawContent), texts);
    }
}

void TestSeperateEditTexts::amountWithFocus_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("texts");
    QTest::newRow("thousands") << QStringLiteral("1234.5") << QStringLiteral("1:1 2:2 3:3 4:4 5:5 6:0");
    QTest::newRow("full row") << QStringLiteral("12345.67") << QStringLiteral("0:1 1:2 2:3 3:4 4:5 5:6 6:7");
    QTest::newRow("zero") << QStringLiteral("0") << QStringLiteral("4:0 5:0 6:0");
    QTest::newRow("sign") << QStringLiteral("-5") << QStringLiteral("3:- 4:5 5:0 6:0");
}

void TestSeperateEditTexts::amountWithFocus()
{
    QFETCH(QString, content);
    QFETCH(QString, texts);
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF());
    setUp(*edit);
    edit->setContentData(content);
    edit->setFocus();
    for (const bool prefixAll : {false, true}) {
        edit->setIsPrefixAll(prefixAll);
        edit->setIsDrawMonetaryUnit(false);
        QCOMPARE(drawn(*edit, &Edit::drawContent), texts);
        edit->setIsDrawMonetaryUnit(true);
        QCOMPARE(drawn(*edit, &Edit::drawContent), QStringLiteral("0>万 1>千 2>百 3>十 4>元 5>角 6>分 ") + texts);
    }
}

// Not the cells: they may have been set apart from the content.
void TestSeperateEditTexts::numberDecidesWhatIsDrawn()
{
    Edit edit;
    setUp(edit);
    edit.setIsDrawMonetaryUnit(false);
    edit.setContentData(QStringLiteral("0"));
    edit.setCharAt(3, QStringLiteral("5"));
    QCOMPARE(drawn(edit, &Edit::drawContent), QString());
    edit.setContentData(QStringLiteral("12"));
    edit.setUnitRange(0, 6);
    QCOMPARE(drawn(edit, &Edit::drawContent), QString());
    edit.setIsPrefixAll(true);
    QCOMPARE(drawn(edit, &Edit::drawContent), QStringLiteral("0:ⓧ 1:ⓧ 2:ⓧ 3:ⓧ 4:ⓧ 5:ⓧ 6:ⓧ"));
}

void TestSeperateEditTexts::contentOfOtherModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("texts");
    for (const int mode : {1, 2, 3}) {
        QTest::addRow("digits, mode %d", mode) << mode << QStringLiteral("0120") << QStringLiteral("0:0 1:1 2:2 3:0");
        QTest::addRow("zero, mode %d", mode) << mode << QStringLiteral("0") << QStringLiteral("0:0");
        QTest::addRow("characters, mode %d", mode) << mode << QStringLiteral("a壹.") << QStringLiteral("0:a 1:壹 2:.");
        QTest::addRow("empty, mode %d", mode) << mode << QString() << QString();
    }
    for (const int mode : {4, -1, Most})
        QTest::addRow("beyond the modes, mode %d", mode) << mode << QStringLiteral("12") << QString();
}

void TestSeperateEditTexts::contentOfOtherModes()
{
    QFETCH(int, mode);
    QFETCH(QString, content);
    QFETCH(QString, texts);
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF());
    edit->setSeperateMode(static_cast<SeperateMode>(mode));
    setUp(*edit);
    edit->setContentData(content);
    for (const bool prefixAll : {false, true}) {
        edit->setIsPrefixAll(prefixAll);
        edit->clearFocus();
        QCOMPARE(drawn(*edit, &Edit::drawContent), texts);
        edit->setFocus();
        QCOMPARE(drawn(*edit, &Edit::drawContent), texts);
    }
}

void TestSeperateEditTexts::capitalDigit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("capital");
    const QString capitals = QStringLiteral("零壹贰叁肆伍陆柒捌玖");
    for (int digit = 0; digit < 10; ++digit)
        QTest::addRow("%d", digit) << QString::number(digit) << capitals.mid(digit, 1);
    QTest::newRow("digit with a zero in front") << QStringLiteral("07") << QStringLiteral("柒");
    QTest::newRow("digit with a sign") << QStringLiteral("+7") << QStringLiteral("柒");
    QTest::newRow("more than nine") << QStringLiteral("10") << QString();
    QTest::newRow("far more than nine") << QString::number(Most) << QString();
    QTest::newRow("negative") << QStringLiteral("-1") << QString();
    QTest::newRow("sign") << QStringLiteral("-") << QStringLiteral("零");
    QTest::newRow("point") << QStringLiteral(".") << QStringLiteral("零");
    QTest::newRow("letter") << QStringLiteral("a") << QStringLiteral("零");
    QTest::newRow("number with places") << QStringLiteral("7.5") << QStringLiteral("零");
    QTest::newRow("number of base 16") << QStringLiteral("0x7") << QStringLiteral("零");
    QTest::newRow("number of base 8") << QStringLiteral("010") << QString();
    QTest::newRow("capital digit") << QStringLiteral("柒") << QStringLiteral("零");
    QTest::newRow("blank") << QStringLiteral(" ") << QStringLiteral("零");
}

void TestSeperateEditTexts::capitalDigit()
{
    QFETCH(QString, text);
    QFETCH(QString, capital);
    Edit edit;
    setUp(edit);
    edit.setCharAt(2, text);
    QCOMPARE(drawn(edit, &Edit::drawChineseDigit), capital.isEmpty() ? QString() : QStringLiteral("2:%1").arg(capital));
}

void TestSeperateEditTexts::marks_data()
{
    QTest::addColumn<int>("prefixMode");
    QTest::addColumn<bool>("prefixAll");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char *name, int mode, bool all, const char *cells, const char *marks) {
        QTest::newRow(name) << mode << all << QString::fromLatin1(cells) << QString::fromUtf8(marks);
    };
    row("in front of the first digit", 1, false, "_ _ 3 4 5 6 7", "1:ⓧ");
    row("in the first cell", 1, false, "_ 2 3 4 5 6 7", "0:ⓧ");
    row("first cell is filled", 1, false, "1 2 3 4 5 6 7", "");
    row("first cell alone is filled", 1, false, "1 _ _ _ _ _ _", "");
    row("last cell alone is filled", 1, false, "_ _ _ _ _ _ 7", "5:ⓧ");
    row("all cells are empty", 1, false, "_ _ _ _ _ _ _", "");
    row("gap behind the first digit", 1, false, "_ 2 _ _ 5 _ 7", "0:ⓧ");
    row("all, up to the first digit", 1, true, "_ _ _ 4 _ 6 7", "0:ⓧ 1:ⓧ 2:ⓧ");
    row("all, one empty cell", 1, true, "_ 2 3 4 5 6 7", "0:ⓧ");
    row("all, first cell is filled", 1, true, "1 _ 3 4 5 6 7", "");
    row("all, last cell alone is filled", 1, true, "_ _ _ _ _ _ 7", "0:ⓧ 1:ⓧ 2:ⓧ 3:ⓧ 4:ⓧ 5:ⓧ");
    row("all, all cells are empty", 1, true, "_ _ _ _ _ _ _", "0:ⓧ 1:ⓧ 2:ⓧ 3:ⓧ 4:ⓧ 5:ⓧ 6:ⓧ");
    row("zero", 2, false, "_ _ 3 4 5 6 7", "1:零");
    row("zero, all", 2, true, "_ _ 3 4 5 6 7", "0:零 1:零");
    row("none", 0, false, "_ _ 3 4 5 6 7", "");
    row("none, all", 0, true, "_ _ 3 4 5 6 7", "");
    row("beyond the modes", 3, false, "_ _ 3 4 5 6 7", "1:ⓧ");
    row("beyond the modes, all", Most, true, "_ _ 3 4 5 6 7", "0:ⓧ 1:ⓧ");
    row("below the modes", -1, false, "_ _ 3 4 5 6 7", "1:ⓧ");
}

void TestSeperateEditTexts::marks()
{
    QFETCH(int, prefixMode);
    QFETCH(bool, prefixAll);
    QFETCH(QString, cells);
    QFETCH(QString, marks);
    Edit edit;
    setUp(edit);
    edit.setPrefixMode(static_cast<Prefix_Mode>(prefixMode));
    edit.setIsPrefixAll(prefixAll);
    fill(edit, cells);
    QCOMPARE(drawn(edit, &Edit::drawPrefix), marks);
}

void TestSeperateEditTexts::changedPrefixIsTheMark()
{
    Edit edit;
    setUp(edit);
    edit.setContentData(QStringLiteral("5"));
    edit.setPrefix(QStringLiteral("#"));
    QCOMPARE(drawn(edit, &Edit::drawPrefix), QStringLiteral("3:#"));
    edit.setPrefixMode(Prefix_None);
    edit.setPrefix(QStringLiteral("#"));
    QCOMPARE(drawn(edit, &Edit::drawPrefix), QString());
}

void TestSeperateEditTexts::unitWords_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("words");
    QTest::newRow("万 to 分") << 0 << 6 << QStringLiteral("0>万 1>千 2>百 3>十 4>元 5>角 6>分");
    QTest::newRow("all") << 0 << 11 << QStringLiteral("0>十 1>亿 2>千 3>百 4>十 5>万 6>千 7>百 8>十 9>元 10>角 11>分");
    QTest::newRow("without 元") << 3 << 8 << QStringLiteral("0>百 1>十 2>万 3>千 4>百 5>十");
    QTest::newRow("元 alone") << 2 << 2 << QStringLiteral("0>元");
    QTest::newRow("above the units") << 9 << 13 << QStringLiteral("2>十 3>亿 4>千");
    QTest::newRow("below 分") << -2 << 2 << QStringLiteral("0>元 1>角 2>分");
    QTest::newRow("far above the units") << 12 << 15 << QString();
    QTest::newRow("highest unit") << Most << Most << QString();
}

void TestSeperateEditTexts::unitWords()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, words);
    Edit edit;
    QVERIFY(edit.setUnitRange(start, end));
    edit.setPhyWidthOfSeperator(2);
    setUp(edit);
    QCOMPARE(drawn(edit, &Edit::drawMonetaryUnit), words);
    // Before the digits; the content is empty.
    QCOMPARE(drawn(edit, &Edit::drawContent), words);
}

void TestSeperateEditTexts::unitWordsOfTheContent_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("draw");
    QTest::addColumn<int>("paintMode");
    QTest::addColumn<bool>("words");
    for (const int paintMode : {0, 1, 2, 7}) {
        QTest::addRow("amount, paint mode %d", paintMode) << 0 << true << paintMode << (paintMode != 2);
        QTest::addRow("amount without words, paint mode %d", paintMode) << 0 << false << paintMode << false;
        for (const int mode : {1, 2, 3, 4})
            QTest::addRow("mode %d, paint mode %d", mode, paintMode) << mode << true << paintMode << false;
    }
}

void TestSeperateEditTexts::unitWordsOfTheContent()
{
    QFETCH(int, mode);
    QFETCH(bool, draw);
    QFETCH(int, paintMode);
    QFETCH(bool, words);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    edit.setPhyWidthOfSeperator(2);
    setUp(edit);
    edit.setIsDrawMonetaryUnit(draw);
    edit.setPaintMode(static_cast<Paint_Mode>(paintMode));
    for (const char *content : {"0", "1234"}) {
        edit.setContentData(QString::fromLatin1(content));
        QCOMPARE(drawn(edit, &Edit::drawContent).contains(QLatin1Char('>')), words);
    }
}

void TestSeperateEditTexts::unitWordsStandInTheGaps_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("phyWidth");
    QTest::addColumn<QPointF>("first");
    QTest::addColumn<double>("step");
    QTest::newRow("right and down") << QRectF(10, 20, 700, 40) << 70.0 << QPointF(85, 40) << 100.0;
    QTest::newRow("left and up") << QRectF(710, 60, -700, -40) << 70.0 << QPointF(635, 40) << -100.0;
    QTest::newRow("on the edges without a physical width")
        << QRectF(10, 20, 700, 40) << 0.0 << QPointF(110, 40) << 100.0;
}

void TestSeperateEditTexts::unitWordsStandInTheGaps()
{
    QFETCH(QRectF, rect);
    QFETCH(double, phyWidth);
    QFETCH(QPointF, first);
    QFETCH(double, step);
    Edit edit;
    setUp(edit);
    edit.setPhyRect(QRectF(0, 0, phyWidth, 4));
    edit.setBoundingRect(rect);
    const QVector<PaintCommand> commands = commandsOf(edit, &Edit::drawMonetaryUnit);
    QCOMPARE(commands.size(), 7);
    for (int i = 0; i < 7; ++i)
        QVERIFY(seperatepaints::isNear(commands.at(i).rect.center(), first + QPointF(i * step, 0)));
}

void TestSeperateEditTexts::colourAndFont_data()
{
    QTest::addColumn<Draw>("draw");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("characters") << &Edit::drawCharacters << QColor(0x12, 0x34, 0x56);
    QTest::newRow("capital digits") << &Edit::drawChineseDigit << QColor(Qt::black);
    QTest::newRow("mark") << &Edit::drawPrefix << QColor(Qt::black);
    QTest::newRow("unit words") << &Edit::drawMonetaryUnit << QColor(Qt::black);
}

void TestSeperateEditTexts::colourAndFont()
{
    QFETCH(Draw, draw);
    QFETCH(QColor, colour);
    Edit edit;
    setUp(edit);
    edit.setContentData(QStringLiteral("12.5"));
    edit.setFontColor(0x123456);
    edit.setIsBold(true);
    edit.setIsItalic(true);
    const QVector<PaintCommand> commands = commandsOf(edit, draw);
    QVERIFY(!commands.isEmpty());
    for (const PaintCommand &command : commands) {
        QCOMPARE(command.kind, PaintCommand::Text);
        QCOMPARE(command.pen.color(), colour);
        QCOMPARE(command.pen.widthF(), 1.0);
        QCOMPARE(command.pen.style(), Qt::SolidLine);
        QCOMPARE(command.font.family(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(command.font.pixelSize(), 15);
        QVERIFY(command.font.bold());
        QVERIFY(command.font.italic());
    }
}

void TestSeperateEditTexts::largeTextsAreNotCut_data()
{
    colourAndFont_data();
}

void TestSeperateEditTexts::largeTextsAreNotCut()
{
    QFETCH(Draw, draw);
    Edit edit;
    setUp(edit);
    edit.setContentData(QStringLiteral("12.5"));
    QFont large = edit.font();
    large.setPixelSize(90);
    edit.setFont(large);
    const QVector<PaintCommand> commands = commandsOf(edit, draw);
    QVERIFY(!commands.isEmpty());
    for (const PaintCommand &command : commands) {
        QVERIFY(!command.hasClip);
        QVERIFY(command.rect.height() > 40);
        QVERIFY(!seperatepaints::textOf(edit, command).startsWith(QLatin1Char('?')));
    }
}

QTEST_MAIN(TestSeperateEditTexts)
#include "tst_seperateedittexts.moc"
