// SPDX-License-Identifier: MIT
// What a separated-cell edit paints in each mode and in which order, and its frames, backgrounds and cursor.
#include "tests/cells/cellview.h"
#include "tests/cells/seperatepaints.h"
#include "tests/support/stricttest.h"

#include <QTest>

using seperatepaints::painted;
using seperatepaints::partsOf;
using seperatepaints::recorded;
using seperatepaints::setUp;

using Edit = TavroSeperateEdit;
using Draw = void (Edit::*)(QPainter *);
Q_DECLARE_METATYPE(Draw)

class TestSeperateEditPainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void partsPerMode_data();
    void partsPerMode();
    void partsWithTheKeyboard_data();
    void partsWithTheKeyboard();
    void partsOfEachOperation_data();
    void partsOfEachOperation();
    void lockSignComesLast();
    void nothingWithoutASize();
    void rowWithoutCells();
    void frames_data();
    void frames();
    void backgrounds();
    void textsAreSmooth();
    void cursorFillsItsCell();
    void cursorIsNotShown_data();
    void cursorIsNotShown();
    void painterIsLeftAsItWas_data();
    void painterIsLeftAsItWas();
};

void TestSeperateEditPainting::partsPerMode_data()
{
    QTest::addColumn<int>("paintMode");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("border");
    QTest::addColumn<bool>("print");
    QTest::addColumn<QString>("parts");
    const auto row = [](const char *name, int paintMode, int mode, const char *content, bool border, bool print,
                        const char *parts) {
        QTest::newRow(name) << paintMode << mode << QString::fromLatin1(content) << border << print
                            << QString::fromLatin1(parts);
    };
    for (const int paintMode : {0, 1}) {
        const auto screenRow = [paintMode](const char *name, int mode, const char *content, bool border, bool print,
                                           const char *parts) {
            QTest::addRow("%s, %s", paintMode == 0 ? "design" : "input", name)
                << paintMode << mode << QString::fromLatin1(content) << border << print << QString::fromLatin1(parts);
        };
        screenRow("amount", 0, "12.5", true, true, "frame background word text mark border");
        screenRow("full amount", 0, "12345.67", true, true, "frame background word text border");
        screenRow("zero", 0, "0", true, true, "frame background word border");
        screenRow("no border", 0, "12.5", false, true, "frame background word text mark");
        screenRow("not printed", 0, "12.5", true, false, "frame background word text mark border");
        for (const int mode : {1, 2, 3}) {
            const QByteArray name = "mode " + QByteArray::number(mode);
            screenRow(name.constData(), mode, "12", true, true, "frame background text border");
            screenRow((name + ", empty").constData(), mode, "", true, true, "frame background border");
        }
        screenRow("beyond the modes", 4, "12", true, true, "frame background border");
        screenRow("below the modes", -1, "12", true, true, "frame background border");
    }
    row("print, amount", 2, 0, "12.5", true, true, "text mark");
    row("print, full amount", 2, 0, "12345.67", true, true, "text");
    row("print, zero", 2, 0, "0", true, true, "");
    row("print, digits", 2, 2, "12", true, true, "text");
    row("print, characters", 2, 3, "12", true, true, "text");
    row("print, beyond the modes", 2, 4, "12", true, true, "");
    row("print, amount not printed", 2, 0, "12.5", true, false, "");
    row("print, digits not printed", 2, 2, "12", true, false, "");
    row("beyond the paint modes", 7, 0, "12.5", true, true, "");
    row("below the paint modes", -1, 0, "12.5", true, true, "");
}

void TestSeperateEditPainting::partsPerMode()
{
    QFETCH(int, paintMode);
    QFETCH(int, mode);
    QFETCH(QString, content);
    QFETCH(bool, border);
    QFETCH(bool, print);
    QFETCH(QString, parts);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    setUp(edit);
    edit.setContentData(content);
    edit.setHasBorder(border);
    edit.setIsPrint(print);
    edit.setPaintMode(static_cast<Paint_Mode>(paintMode));
    QCOMPARE(partsOf(edit, painted(edit)), parts);
}

void TestSeperateEditPainting::partsWithTheKeyboard_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("lit");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("parts");
    const QString amount = QStringLiteral("frame background word text border");
    const QString digits = QStringLiteral("frame background text border");
    const QString cursor = QStringLiteral("cursor ");
    QTest::newRow("amount, dark") << 0 << false << false << amount;
    QTest::newRow("amount, lit") << 0 << true << false << cursor + amount;
    QTest::newRow("amount, lit but read-only") << 0 << true << true << amount;
    for (const int mode : {1, 2, 3}) {
        QTest::addRow("mode %d, dark", mode) << mode << false << false << digits;
        QTest::addRow("mode %d, lit", mode) << mode << true << false << cursor + digits;
    }
    QTest::newRow("beyond the modes, lit") << 4 << true << false << cursor + QStringLiteral("frame background border");
}

void TestSeperateEditPainting::partsWithTheKeyboard()
{
    QFETCH(int, mode);
    QFETCH(bool, lit);
    QFETCH(bool, readOnly);
    QFETCH(QString, parts);
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF());
    edit->setSeperateMode(static_cast<SeperateMode>(mode));
    setUp(*edit);
    edit->setContentData(QStringLiteral("12"));
    edit->setIsReadOnly(readOnly);
    edit->setFocus();
    if (lit)
        tick(edit);
    QCOMPARE(partsOf(*edit, painted(*edit)), parts);
}

// Each mode has an operation of its own, whatever the mode is.
void TestSeperateEditPainting::partsOfEachOperation_data()
{
    QTest::addColumn<int>("paintMode");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("parts");
    for (const int paintMode : {0, 1, 7}) {
        QTest::addRow("design, paint mode %d", paintMode)
            << paintMode << 0 << QStringLiteral("frame background word text mark border");
        QTest::addRow("input, paint mode %d", paintMode)
            << paintMode << 1 << QStringLiteral("cursor frame background word text mark border");
        QTest::addRow("print, paint mode %d", paintMode) << paintMode << 2 << QStringLiteral("word text mark");
    }
    QTest::newRow("design, print mode") << 2 << 0 << QStringLiteral("frame background text mark border");
    QTest::newRow("input, print mode") << 2 << 1 << QStringLiteral("cursor frame background text mark border");
    QTest::newRow("print, print mode") << 2 << 2 << QStringLiteral("text mark");
}

void TestSeperateEditPainting::partsOfEachOperation()
{
    QFETCH(int, paintMode);
    QFETCH(int, operation);
    QFETCH(QString, parts);
    const std::array<void (TavroPrototype::*)(QPainter *), 3> operations = {
        &TavroPrototype::designPaint, &TavroPrototype::inputPaint, &TavroPrototype::printPaint};
    Edit edit;
    setUp(edit);
    edit.setContentData(QStringLiteral("12.5"));
    edit.setPaintMode(static_cast<Paint_Mode>(paintMode));
    edit.triggerDrawCursor();
    const auto commands =
        recorded([&](QPainter *painter) { (edit.*operations.at(static_cast<std::size_t>(operation)))(painter); });
    QCOMPARE(partsOf(edit, commands), parts);
}

void TestSeperateEditPainting::lockSignComesLast()
{
    QGraphicsScene scene;
    auto *edit = new Edit;
    setUp(*edit);
    edit->setContentData(QStringLiteral("12345.67"));
    scene.addItem(edit);
    edit->setIsLocked(true);
    edit->setSelected(true);
    QCOMPARE(partsOf(*edit, painted(*edit)), QStringLiteral("frame background word text border lock"));
}

void TestSeperateEditPainting::nothingWithoutASize()
{
    Edit edit;
    setUp(edit);
    edit.setContentData(QStringLiteral("12.5"));
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        edit.setPaintMode(mode);
        edit.setBoundingRect(QRectF(10, 20, 0, 0));
        QVERIFY(painted(edit).isEmpty());
        edit.setBoundingRect(QRectF(10, 20, 0, 40));
        QVERIFY(!painted(edit).isEmpty());
        edit.setBoundingRect(QRectF(10, 20, 700, 0));
        QVERIFY(!painted(edit).isEmpty());
    }
}

void TestSeperateEditPainting::rowWithoutCells()
{
    for (const SeperateMode mode : {Sep_Amount, Sep_Digits6, Sep_Chars6}) {
        Edit edit;
        setUp(edit);
        edit.setSeperateMode(mode);
        edit.setNumOfEditable(0);
        edit.setContentData(QStringLiteral("12"));
        edit.setIsPrefixAll(true);
        edit.triggerDrawCursor();
        edit.setPaintMode(Paint_Design);
        QCOMPARE(partsOf(edit, painted(edit)), QStringLiteral("border"));
        edit.setPaintMode(Paint_Print);
        QVERIFY(painted(edit).isEmpty());
    }
}

void TestSeperateEditPainting::frames_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRectF>("rect");
    for (const int mode : {0, 1, 2, 3, 4}) {
        QTest::addRow("mode %d", mode) << mode << QRectF(10, 20, 700, 40);
        QTest::addRow("mode %d, left and up", mode) << mode << QRectF(10, 20, -700, -40);
    }
}

void TestSeperateEditPainting::frames()
{
    QFETCH(int, mode);
    QFETCH(QRectF, rect);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    setUp(edit);
    edit.setBoundingRect(rect);
    edit.setBorderColor(0xff0000);
    edit.setFontColor(0xff0000);
    const QVector<PaintCommand> commands = recorded([&](QPainter *painter) { edit.drawFrameRect(painter); });
    QCOMPARE(commands.size(), 2 * edit.numOfEditable());
    for (int i = 0; i < edit.numOfEditable(); ++i) {
        const PaintCommand &frame = commands.at(i);
        QCOMPARE(frame.kind, PaintCommand::Rect);
        QCOMPARE(frame.rect, edit.rectAt(i));
        QCOMPARE(frame.pen, QPen(Qt::black, 1.0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
        QCOMPARE(frame.brush.style(), Qt::NoBrush);
        QCOMPARE(frame.opacity, 1.0);
        // Dots between two pixels would be gray.
        QVERIFY(!frame.hints.testFlag(QPainter::Antialiasing));
    }
}

void TestSeperateEditPainting::backgrounds()
{
    Edit edit;
    setUp(edit);
    edit.setBackgroundColor(0xfedcba);
    const QVector<PaintCommand> commands = recorded([&](QPainter *painter) { edit.drawFrameRect(painter); });
    QCOMPARE(commands.size(), 14);
    for (int i = 0; i < 7; ++i) {
        const PaintCommand &background = commands.at(7 + i);
        QCOMPARE(background.rect, edit.rectAt(i));
        QCOMPARE(background.pen.style(), Qt::NoPen);
        QCOMPARE(background.brush, QBrush(QColor(0xfe, 0xdc, 0xba)));
        QCOMPARE(background.opacity, 0.4);
    }
}

void TestSeperateEditPainting::textsAreSmooth()
{
    Edit edit;
    setUp(edit);
    edit.setContentData(QStringLiteral("12.5"));
    int texts = 0;
    for (const PaintCommand &command : painted(edit)) {
        if (command.kind != PaintCommand::Text)
            continue;
        ++texts;
        QVERIFY(command.hints.testFlag(QPainter::Antialiasing));
        QVERIFY(command.hints.testFlag(QPainter::TextAntialiasing));
        QCOMPARE(command.opacity, 1.0);
    }
    QCOMPARE(texts, 7 + 4 + 1);
}

void TestSeperateEditPainting::cursorFillsItsCell()
{
    Edit edit;
    setUp(edit);
    edit.triggerDrawCursor();
    for (int i = 0; i < 7; ++i) {
        edit.moveCursorTo(i);
        const QVector<PaintCommand> commands = recorded([&](QPainter *painter) { edit.drawCursor(painter); });
        QCOMPARE(commands.size(), 1);
        QCOMPARE(commands.first().kind, PaintCommand::Rect);
        QCOMPARE(commands.first().rect, edit.rectAt(i));
        QCOMPARE(commands.first().pen.style(), Qt::NoPen);
        QCOMPARE(commands.first().brush, QBrush(QColor(102, 204, 153, 200)));
        QCOMPARE(commands.first().opacity, 1.0);
    }
}

void TestSeperateEditPainting::cursorIsNotShown_data()
{
    QTest::addColumn<int>("turns");
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("dark") << 0 << false;
    QTest::newRow("dark again") << 2 << false;
    QTest::newRow("read-only") << 1 << true;
}

void TestSeperateEditPainting::cursorIsNotShown()
{
    QFETCH(int, turns);
    QFETCH(bool, readOnly);
    Edit edit;
    setUp(edit);
    edit.setIsReadOnly(readOnly);
    for (int i = 0; i < turns; ++i)
        edit.triggerDrawCursor();
    QVERIFY(recorded([&](QPainter *painter) { edit.drawCursor(painter); }).isEmpty());
}

void TestSeperateEditPainting::painterIsLeftAsItWas_data()
{
    QTest::addColumn<Draw>("draw");
    QTest::newRow("frame") << &Edit::drawFrameRect;
    QTest::newRow("content") << &Edit::drawContent;
    QTest::newRow("characters") << &Edit::drawCharacters;
    QTest::newRow("capital digits") << &Edit::drawChineseDigit;
    QTest::newRow("mark") << &Edit::drawPrefix;
    QTest::newRow("unit words") << &Edit::drawMonetaryUnit;
    QTest::newRow("cursor") << &Edit::drawCursor;
}

void TestSeperateEditPainting::painterIsLeftAsItWas()
{
    QFETCH(Draw, draw);
    for (const int mode : {0, 3, 4}) {
        Edit edit;
        edit.setSeperateMode(static_cast<SeperateMode>(mode));
        setUp(edit);
        edit.setContentData(QStringLiteral("12"));
        // Leaves room for a mark.
        edit.setCharAt(0, QString());
        edit.triggerDrawCursor();
        RecordingDevice device;
        QPainter painter(&device);
        const QPen pen(Qt::magenta, 3, Qt::DashLine);
        const QBrush brush(Qt::cyan, Qt::Dense3Pattern);
        painter.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 33));
        const QFont font = painter.font();
        const QTransform transform = QTransform::fromScale(2, 2);
        const QPainter::RenderHints hints = QPainter::Antialiasing | QPainter::SmoothPixmapTransform;
        painter.setPen(pen);
        painter.setBrush(brush);
        painter.setOpacity(0.75);
        painter.setRenderHints(painter.renderHints(), false);
        painter.setRenderHints(hints);
        painter.setTransform(transform);
        (edit.*draw)(&painter);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), brush);
        QCOMPARE(painter.font(), font);
        QCOMPARE(painter.opacity(), 0.75);
        QCOMPARE(painter.renderHints(), hints);
        QCOMPARE(painter.transform(), transform);
        QVERIFY(!painter.hasClipping());
        const bool isContent = draw == static_cast<Draw>(&Edit::drawContent);
        QCOMPARE(device.commands().isEmpty(), isContent && mode == 4);
    }
}

QTEST_MAIN(TestSeperateEditPainting)
#include "tst_seperateeditpainting.moc"
