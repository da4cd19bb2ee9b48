// SPDX-License-Identifier: MIT
// What a combo box object paints itself in each mode, command by command.
#include "tests/choice/combxprobes.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

using namespace combx;

namespace {

// An object as rows describe it: (x, y, w, h), prefix "No." and content "Plum".
struct Painted
{
    explicit Painted(const QRectF &rect = QRectF(10, 20, 200, 40))
    {
        object.setTextFillingRule(Fill_NoWrap);
        object.setBoundingRect(rect);
        object.setPrefix(QStringLiteral("No."));
        object.setContentData(QStringLiteral("Plum"));
    }

    QVector<PaintCommand> commands() { return probes::paintedBy(object); }
    PaintCommand text() { return commands().last(); }

    TavroCombx object;
};

// What the command is for, in a word; texts speak for themselves.
QString wordFor(const PaintCommand &command)
{
    if (command.kind == PaintCommand::Text)
        return command.text;
    if (command.kind == PaintCommand::Image)
        return command.rect.size() == QSizeF(10, 10) ? QStringLiteral("triangle") : QStringLiteral("lock");
    if (command.kind == PaintCommand::Rect)
        return command.brush.style() == Qt::NoBrush ? QStringLiteral("border") : QStringLiteral("square");
    return QStringLiteral("?");
}

QString wordsFor(const QVector<PaintCommand> &commands)
{
    QStringList all;
    for (const PaintCommand &command : commands)
        all.append(wordFor(command));
    return all.join(QLatin1Char(' '));
}

} // namespace

class TavroCombxPaintingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void squarePlace_data();
    void squarePlace();
    void mark();
    void pens();
    void text();
    void textPlace_data();
    void textPlace();
    void painterIsRestored();
};

void TavroCombxPaintingTest::commands_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("border");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("print");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, int mode, bool border, bool locked, bool print, const char *words) {
        QTest::newRow(name) << mode << border << locked << print << QString::fromLatin1(words);
    };
    row("design", 0, true, false, true, "border square triangle No.Plum");
    row("design, locked", 0, true, true, true, "border lock square triangle No.Plum");
    row("design, no border", 0, false, true, true, "lock square triangle No.Plum");
    row("design, not printed", 0, true, false, false, "border square triangle No.Plum");
    row("input", 1, true, false, true, "");
    row("input, locked", 1, true, true, true, "");
    row("print", 2, true, false, true, "No.Plum");
    row("print, locked", 2, true, true, true, "No.Plum");
    row("print, not printed", 2, true, false, false, "");
    row("beyond the modes", 3, true, true, true, "");
    row("below the modes", -1, true, true, true, "");
}

void TavroCombxPaintingTest::commands()
{
    QFETCH(int, mode);
    QFETCH(bool, border);
    QFETCH(bool, locked);
    QFETCH(bool, print);
    Painted painted;
    painted.object.setPaintMode(static_cast<Paint_Mode>(mode));
    painted.object.setHasBorder(border);
    painted.object.setIsLocked(locked);
    painted.object.setIsPrint(print);
    painted.object.setFlag(QGraphicsItem::ItemIsSelectable);
    painted.object.setSelected(true);
    QTEST(wordsFor(painted.commands()), "words");
}

void TavroCombxPaintingTest::squarePlace_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QPointF>("corner");
    QTest::newRow("top right") << QRectF(10, 20, 200, 40) << QPointF(199, 21);
    QTest::newRow("at the origin") << QRectF(0, 0, 11, 11) << QPointF(0, 1);
    QTest::newRow("fractions") << QRectF(0.25, 0.5, 100.5, 30) << QPointF(89.75, 1.5);
    QTest::newRow("narrower than the mark") << QRectF(0, 0, 4, 5) << QPointF(-7, 1);
    QTest::newRow("negative size") << QRectF(100, 50, -40, -20) << QPointF(49, 51);
}

void TavroCombxPaintingTest::squarePlace()
{
    QFETCH(QRectF, rect);
    QFETCH(QPointF, corner);
    Painted painted(rect);
    const QVector<PaintCommand> commands = painted.commands();
    QCOMPARE(wordsFor(commands.mid(0, 3)), QStringLiteral("border square triangle"));
    QCOMPARE(commands.at(1).rect, QRectF(corner, QSizeF(10, 10)));
    QCOMPARE(commands.at(2).rect, QRectF(corner, QSizeF(10, 10)));
}

// A dark mark that points down, on white whatever the form has below it.
void TavroCombxPaintingTest::mark()
{
    TavroCombx object;
    object.setHasBorder(false);
    object.setBoundingRect({0, 0, 40, 30});
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QPainter painter(&image);
    object.paint(&painter, nullptr, nullptr);
    painter.end();
    const auto isDark = [&image](int x, int y) { return qGray(image.pixel(x, y)) < 120; };
    int darkAbove = 0;
    int darkBelow = 0;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            if (!QRect(29, 1, 10, 10).contains(x, y)) {
                QCOMPARE(image.pixelColor(x, y), QColor(Qt::yellow));
                continue;
            }
            QVERIFY(image.pixelColor(x, y) != QColor(Qt::yellow));
            (y < 6 ? darkAbove : darkBelow) += isDark(x, y);
        }
    }
    QCOMPARE(image.pixelColor(29, 1), QColor(Qt::white));
    QCOMPARE(image.pixelColor(38, 10), QColor(Qt::white));
    QVERIFY(isDark(33, 5) && isDark(34, 5));
    QVERIFY(darkAbove > darkBelow && darkBelow > 0);
}

void TavroCombxPaintingTest::pens()
{
    Painted painted;
    painted.object.setBorderColor(0xAA5500u);
    painted.object.setBorderWpx(7);
    painted.object.setFontColor(0x336699);
    const QVector<PaintCommand> commands = painted.commands();
    QCOMPARE(commands.at(0).pen, QPen(QColor(0xAA5500), 1));
    QCOMPARE(commands.at(0).rect, QRectF(10.5, 20.5, 199, 39));
    QCOMPARE(commands.at(1).brush, QBrush(Qt::white));
    QCOMPARE(commands.at(3).pen, QPen(QColor(0x336699), 1));
    painted.object.setPaintMode(Paint_Print);
    QCOMPARE(painted.text().pen, QPen(QColor(0x336699), 1));
}

void TavroCombxPaintingTest::text()
{
    Painted painted;
    painted.object.setPhyBoundingRectWidth(50);
    painted.object.setFontFamily(QStringLiteral("DejaVu Serif"));
    painted.object.setFontPtSz(7);
    painted.object.setIsBold(true);
    painted.object.setIsItalic(true);
    for (const Paint_Mode mode : {Paint_Design, Paint_Print}) {
        painted.object.setPaintMode(mode);
        const PaintCommand text = painted.text();
        QCOMPARE(text.text, QStringLiteral("No.Plum"));
        QCOMPARE(text.font.family(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(text.font.pixelSize(), painted.object.fontPixSz());
        QCOMPARE(text.font.bold(), true);
        QCOMPARE(text.font.italic(), true);
    }
    // The content is printed as it is, not the text of the combo box.
    painted.object.setContentData(42);
    QCOMPARE(painted.text().text, QStringLiteral("No.42"));
    painted.object.setContentData(QVariant());
    QCOMPARE(painted.text().text, QStringLiteral("No."));
    painted.object.setPrefix(QString());
    QCOMPARE(painted.commands().size(), 0);
}

void TavroCombxPaintingTest::textPlace_data()
{
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    const auto row = [](const char *name, Qt::AlignmentFlag horizontal, Qt::AlignmentFlag vertical) {
        QTest::newRow(name) << static_cast<int>(horizontal) << static_cast<int>(vertical);
    };
    row("top left", Qt::AlignLeft, Qt::AlignTop);
    row("middle", Qt::AlignHCenter, Qt::AlignVCenter);
    row("bottom right", Qt::AlignRight, Qt::AlignBottom);
}

void TavroCombxPaintingTest::textPlace()
{
    QFETCH(int, horizontal);
    QFETCH(int, vertical);
    const QRectF rect(10, 20, 200, 40);
    Painted painted(rect);
    painted.object.setHorAlign(Qt::Alignment(horizontal));
    painted.object.setVerAlign(Qt::Alignment(vertical));
    for (const Paint_Mode mode : {Paint_Design, Paint_Print}) {
        painted.object.setPaintMode(mode);
        const QRectF text = painted.text().rect;
        const bool isHorizontal = horizontal == Qt::AlignLeft    ? qAbs(text.left() - rect.left()) < 1
                                  : horizontal == Qt::AlignRight ? qAbs(text.right() - rect.right()) < 1
                                                                 : qAbs(text.center().x() - rect.center().x()) < 1;
        const bool isVertical = vertical == Qt::AlignTop      ? qAbs(text.top() - rect.top()) < 1.5
                                : vertical == Qt::AlignBottom ? qAbs(text.bottom() - rect.bottom()) < 1.5
                                                              : qAbs(text.center().y() - rect.center().y()) < 1.5;
        QVERIFY(isHorizontal);
        QVERIFY(isVertical);
    }
    // Wrapped where the option says so.
    painted.object.setContentData(QStringLiteral("Plum").repeated(20));
    QCOMPARE(painted.commands().size(), 1);
    painted.object.setTextFillingRule(Fill_Wrap);
    QVERIFY(painted.commands().size() > 1);
}

void TavroCombxPaintingTest::painterIsRestored()
{
    Painted painted;
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        painted.object.setPaintMode(mode);
        RecordingDevice device;
        QPainter painter(&device);
        const QPen pen(Qt::red, 3);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(33);
        painter.setPen(pen);
        painter.setFont(font);
        painter.setBrush(Qt::green);
        const QFont given = painter.font();
        painted.object.paint(&painter, nullptr, nullptr);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.font(), given);
        QCOMPARE(painter.brush(), QBrush(Qt::green));
    }
}

QTEST_MAIN(TavroCombxPaintingTest)
#include "tst_tavrocombxpainting.moc"
