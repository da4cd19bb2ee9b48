// SPDX-License-Identifier: MIT
// What an edit object paints in each mode, command by command.
#include "core/tavrotypes.h"
#include "entry/tavroedit.h"
#include "tests/support/recordingpaintengine.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QStyleOptionGraphicsItem>
#include <QTest>
#include <memory>

namespace {

const QRectF Field(10, 20, 300, 40);

struct Painted
{
    QVector<PaintCommand> commands;
    qreal opacityAfter;
};

// Paints an object with a painter whose pen and font are its own.
Painted painted(TavroEdit &edit)
{
    RecordingDevice device;
    QPainter painter(&device);
    painter.setPen(QPen(Qt::magenta, 3));
    painter.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 33));
    const QStyleOptionGraphicsItem option;
    edit.paint(&painter, &option, nullptr);
    return {device.commands(), painter.opacity()};
}

// Kinds in order, a letter each: background and border are both rectangles, told apart by pen and brush.
QString sequence(const QVector<PaintCommand> &commands)
{
    QStringList names;
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Text)
            names << QStringLiteral("text");
        else if (command.kind == PaintCommand::Image)
            names << QStringLiteral("lock");
        else if (command.kind == PaintCommand::Rect)
            names << (command.pen.style() == Qt::NoPen ? QStringLiteral("background") : QStringLiteral("border"));
        else
            names << QStringLiteral("other");
    }
    return names.join(QLatin1Char(' '));
}

PaintCommand only(const QVector<PaintCommand> &commands, PaintCommand::Kind kind)
{
    for (const PaintCommand &command : commands) {
        if (command.kind == kind)
            return command;
    }
    return {};
}

std::unique_ptr<TavroEdit> field(const char *content)
{
    auto edit = std::make_unique<TavroEdit>();
    edit->setFontFamily(QStringLiteral("DejaVu Sans"));
    edit->setBoundingRect(Field);
    edit->setContentData(QString::fromUtf8(content));
    edit->setPlaceholder(QStringLiteral("hint"));
    return edit;
}

} // namespace

class TestTavroEditPainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void commandsPerMode_data();
    void commandsPerMode();
    void lockSignComesLastInDesignMode();
    void textIsPrefixAndShownText_data();
    void textIsPrefixAndShownText();
    void textHasColourAndFont_data();
    void textHasColourAndFont();
    void backgroundFillsTheRectangle();
    void borderIsTheObjects();
    void placeholderIsGreyAndPlain();
    void placeholderShowsInInputModeOnly_data();
    void placeholderShowsInInputModeOnly();
    void placeholderOfClearedZerosAndInvalidContent_data();
    void placeholderOfClearedZerosAndInvalidContent();
    void textStandsAsAligned_data();
    void textStandsAsAligned();
    void textIsWrappedByTheRule_data();
    void textIsWrappedByTheRule();
    void backgroundLeavesTheOpacity_data();
    void backgroundLeavesTheOpacity();
    void nothingOfASizeOfNothing();
};

void TestTavroEditPainting::commandsPerMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("border");
    QTest::addColumn<bool>("print");
    QTest::addColumn<QString>("commands");
    const auto row = [](const char *name, int mode, const char *content, bool border, bool print,
                        const char *commands) {
        QTest::newRow(name) << mode << QString::fromLatin1(content) << border << print << QString::fromLatin1(commands);
    };
    row("design", 0, "abc", true, true, "background text border");
    row("design, empty", 0, "", true, true, "background border");
    row("design, no border", 0, "abc", false, true, "background text");
    row("design, not printed", 0, "abc", true, false, "background text border");
    row("input", 1, "abc", true, true, "background border text");
    row("input, empty", 1, "", true, true, "background border text");
    row("input, no border", 1, "abc", false, true, "background text");
    row("input, not printed", 1, "abc", true, false, "background border text");
    row("print", 2, "abc", true, true, "text");
    row("print, empty", 2, "", true, true, "");
    row("print, not printed", 2, "abc", true, false, "");
    row("beyond the modes", 7, "abc", true, true, "");
}

void TestTavroEditPainting::commandsPerMode()
{
    QFETCH(int, mode);
    QFETCH(QString, content);
    QFETCH(bool, border);
    QFETCH(bool, print);
    QFETCH(QString, commands);
    const auto edit = field("");
    edit->setContentData(content);
    edit->setHasBorder(border);
    edit->setIsPrint(print);
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(sequence(painted(*edit).commands), commands);
}

void TestTavroEditPainting::lockSignComesLastInDesignMode()
{
    QGraphicsScene scene;
    auto *edit = field("abc").release();
    scene.addItem(edit);
    edit->setIsLocked(true);
    edit->setSelected(true);
    QCOMPARE(sequence(painted(*edit).commands), QStringLiteral("background text border lock"));
    edit->setSelected(false);
    QCOMPARE(sequence(painted(*edit).commands), QStringLiteral("background text border"));
}

void TestTavroEditPainting::textIsPrefixAndShownText_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("text");
    for (const int mode : {0, 1, 2}) {
        QTest::addRow("text, mode %d", mode) << mode << 0 << QStringLiteral("abc") << QStringLiteral("No. abc");
        QTest::addRow("words, mode %d", mode) << mode << 7 << QStringLiteral("5") << QStringLiteral("No. FIVE ONLY");
        QTest::addRow("number, mode %d", mode) << mode << 10 << QStringLiteral("5") << QStringLiteral("No. 5.00");
    }
    QTest::newRow("prefix alone in design mode") << 0 << 7 << QStringLiteral("bad") << QStringLiteral("No. ");
    QTest::newRow("hint without prefix in input mode") << 1 << 7 << QStringLiteral("bad") << QStringLiteral("hint");
    QTest::newRow("prefix alone in print mode") << 2 << 7 << QStringLiteral("bad") << QStringLiteral("No. ");
}

void TestTavroEditPainting::textIsPrefixAndShownText()
{
    QFETCH(int, mode);
    QFETCH(int, format);
    QFETCH(QString, content);
    QFETCH(QString, text);
    const auto edit = field("");
    edit->setPrefix(QStringLiteral("No. "));
    edit->setFormatType(static_cast<Input_Format>(format));
    edit->setContentData(content);
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QString drawn;
    for (const PaintCommand &command : painted(*edit).commands)
        drawn += command.text;
    QCOMPARE(drawn, text);
}

void TestTavroEditPainting::textHasColourAndFont_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2})
        QTest::addRow("mode %d", mode) << mode;
}

void TestTavroEditPainting::textHasColourAndFont()
{
    QFETCH(int, mode);
    const auto edit = field("abc");
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(only(painted(*edit).commands, PaintCommand::Text).pen.color(), QColor(Qt::black));
    edit->setFontColor(0x123456);
    edit->setIsBold(true);
    edit->setIsItalic(true);
    edit->setIsStrikeOut(true);
    const PaintCommand text = only(painted(*edit).commands, PaintCommand::Text);
    QCOMPARE(text.pen.color(), QColor(0x12, 0x34, 0x56));
    QCOMPARE(text.font.family(), QStringLiteral("DejaVu Sans"));
    QCOMPARE(text.font.pixelSize(), edit->font().pixelSize());
    QCOMPARE(text.font.weight(), 75);
    QCOMPARE(text.font.style(), QFont::StyleItalic);
    QVERIFY(text.font.strikeOut());
    QCOMPARE(text.opacity, 1.0);
    edit->setFont(QFont(QStringLiteral("DejaVu Serif"), 11));
    QCOMPARE(only(painted(*edit).commands, PaintCommand::Text).font.family(), QStringLiteral("DejaVu Serif"));
}

void TestTavroEditPainting::backgroundFillsTheRectangle()
{
    const auto edit = field("abc");
    for (const Paint_Mode mode : {Paint_Design, Paint_Input}) {
        edit->setPaintMode(mode);
        edit->setBackgroundColor(0xfedcba);
        const PaintCommand background = painted(*edit).commands.first();
        QCOMPARE(background.rect, Field);
        QCOMPARE(background.brush, QBrush(QColor(0xfe, 0xdc, 0xba)));
        QCOMPARE(background.opacity, 0.4);
    }
}

void TestTavroEditPainting::borderIsTheObjects()
{
    const auto edit = field("");
    edit->setPlaceholder(QString());
    edit->setBorderColor(0x00ff00U);
    edit->setBorderColor(QStringLiteral("red"));
    edit->setBorderWpx(5);
    for (const Paint_Mode mode : {Paint_Design, Paint_Input}) {
        edit->setPaintMode(mode);
        const PaintCommand border = painted(*edit).commands.last();
        QCOMPARE(border.rect, Field.adjusted(0.5, 0.5, -0.5, -0.5));
        QCOMPARE(border.pen.color(), QColor(Qt::green));
        QCOMPARE(border.pen.widthF(), 1.0);
        QCOMPARE(border.brush.style(), Qt::NoBrush);
    }
}

void TestTavroEditPainting::placeholderIsGreyAndPlain()
{
    const auto edit = field("");
    edit->setPaintMode(Paint_Input);
    edit->setFontColor(0x123456);
    edit->setIsBold(true);
    edit->setIsItalic(true);
    edit->setIsStrikeOut(true);
    const PaintCommand hint = only(painted(*edit).commands, PaintCommand::Text);
    QCOMPARE(hint.text, QStringLiteral("hint"));
    QCOMPARE(hint.pen.color(), QColor(Qt::gray));
    QCOMPARE(hint.pen.widthF(), 1.0);
    QCOMPARE(hint.font.weight(), 50);
    QCOMPARE(hint.font.style(), QFont::StyleNormal);
    QCOMPARE(hint.font.family(), QStringLiteral("DejaVu Sans"));
    QCOMPARE(hint.font.pixelSize(), edit->font().pixelSize());
    QVERIFY(hint.font.strikeOut());
    QVERIFY(edit->font().bold());
    QVERIFY(edit->font().italic());
}

void TestTavroEditPainting::placeholderShowsInInputModeOnly_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("texts");
    QTest::newRow("design") << 0 << 0;
    QTest::newRow("input") << 1 << 1;
    QTest::newRow("print") << 2 << 0;
}

void TestTavroEditPainting::placeholderShowsInInputModeOnly()
{
    QFETCH(int, mode);
    QFETCH(int, texts);
    const auto edit = field("");
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(sequence(painted(*edit).commands).count(QStringLiteral("text")), texts);
}

void TestTavroEditPainting::placeholderOfClearedZerosAndInvalidContent_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("clear");
    QTest::addColumn<QString>("text");
    QTest::newRow("zeros cleared") << QStringLiteral("0.00") << true << QStringLiteral("hint");
    QTest::newRow("zeros shown") << QStringLiteral("0.00") << false << QStringLiteral("0.00");
    QTest::newRow("invalid") << QStringLiteral("x") << true << QStringLiteral("hint");
}

void TestTavroEditPainting::placeholderOfClearedZerosAndInvalidContent()
{
    QFETCH(QString, content);
    QFETCH(bool, clear);
    QFETCH(QString, text);
    const auto edit = field("");
    edit->setFormatType(Format_Customized);
    edit->setIsZeroClear(clear);
    edit->setContentData(content);
    edit->setPaintMode(Paint_Input);
    QCOMPARE(only(painted(*edit).commands, PaintCommand::Text).text, text);
}

void TestTavroEditPainting::textStandsAsAligned_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    for (const char *content : {"abc", ""}) {
        for (const int horizontal : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
            for (const int vertical : {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom})
                QTest::addRow("'%s', alignment %d and %d", content, horizontal, vertical)
                    << QString::fromLatin1(content) << horizontal << vertical;
        }
    }
}

void TestTavroEditPainting::textStandsAsAligned()
{
    QFETCH(QString, content);
    QFETCH(int, horizontal);
    QFETCH(int, vertical);
    const auto edit = field("");
    edit->setContentData(content);
    edit->setHorAlign(static_cast<Qt::AlignmentFlag>(horizontal));
    edit->setVerAlign(static_cast<Qt::AlignmentFlag>(vertical));
    edit->setPaintMode(Paint_Input);
    const QRectF rect = only(painted(*edit).commands, PaintCommand::Text).rect;
    const auto isNear = [](qreal a, qreal b) { return qAbs(a - b) <= 2; };
    if (horizontal == Qt::AlignLeft)
        QVERIFY(isNear(rect.left(), Field.left()));
    else if (horizontal == Qt::AlignRight)
        QVERIFY(isNear(rect.right(), Field.right()));
    else
        QVERIFY(isNear(rect.center().x(), Field.center().x()));
    if (vertical == Qt::AlignTop)
        QVERIFY(isNear(rect.top(), Field.top()));
    else if (vertical == Qt::AlignBottom)
        QVERIFY(isNear(rect.bottom(), Field.bottom()));
    else
        QVERIFY(isNear(rect.center().y(), Field.center().y()));
}

void TestTavroEditPainting::textIsWrappedByTheRule_data()
{
    QTest::addColumn<bool>("placeholder");
    QTest::addColumn<int>("rule");
    QTest::addColumn<bool>("wrapped");
    for (const bool placeholder : {false, true}) {
        const char *what = placeholder ? "hint" : "text";
        QTest::addRow("%s, wrapped", what) << placeholder << 0 << true;
        QTest::addRow("%s, shrunk", what) << placeholder << 1 << false;
        QTest::addRow("%s, wrapped and shrunk", what) << placeholder << 2 << true;
        QTest::addRow("%s, one line", what) << placeholder << 3 << false;
        QTest::addRow("%s, beyond the rules", what) << placeholder << 5 << true;
    }
}

void TestTavroEditPainting::textIsWrappedByTheRule()
{
    QFETCH(bool, placeholder);
    QFETCH(int, rule);
    QFETCH(bool, wrapped);
    const QString text = QStringLiteral("several words that take more than the width of the field, twice at least");
    const auto edit = field("");
    edit->setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
    edit->setBoundingRect({0, 0, 120, 500});
    edit->setPaintMode(Paint_Input);
    if (placeholder)
        edit->setPlaceholder(text);
    else
        edit->setContentData(text);
    edit->adjustTextStyle();
    QSet<qreal> lines;
    for (const PaintCommand &command : painted(*edit).commands) {
        if (command.kind == PaintCommand::Text)
            lines.insert(command.rect.top());
    }
    QCOMPARE(lines.size() > 1, wrapped);
    QVERIFY(!lines.isEmpty());
}

void TestTavroEditPainting::backgroundLeavesTheOpacity_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    for (const int mode : {0, 1, 2}) {
        QTest::addRow("text, mode %d", mode) << mode << QStringLiteral("abc");
        QTest::addRow("hint, mode %d", mode) << mode << QString();
    }
}

void TestTavroEditPainting::backgroundLeavesTheOpacity()
{
    QFETCH(int, mode);
    QFETCH(QString, content);
    const auto edit = field("");
    edit->setContentData(content);
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(painted(*edit).opacityAfter, 1.0);
}

void TestTavroEditPainting::nothingOfASizeOfNothing()
{
    const auto edit = field("abc");
    edit->setBoundingRect({10, 20, 0, 0});
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        edit->setPaintMode(mode);
        QCOMPARE(painted(*edit).commands.size(), 0);
    }
}

QTEST_MAIN(TestTavroEditPainting)
#include "tst_tavroeditpainting.moc"
