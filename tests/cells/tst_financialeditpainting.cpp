// SPDX-License-Identifier: MIT
// What a financial edit paints in each mode, command by command.
#include "tests/cells/gridpainting.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <functional>

using gridpainting::drawnBy;
using gridpainting::Edit;
using gridpainting::Grid;
using gridpainting::grid;
using Drawing = std::function<void(Edit &, QPainter *)>;
Q_DECLARE_METATYPE(Drawing)
Q_DECLARE_METATYPE(QVector<QLineF>)

namespace {

const QColor CursorColor(102, 204, 153, 127);

QString nameOf(const PaintCommand &command)
{
    if (command.kind == PaintCommand::Line)
        return QStringLiteral("lines");
    if (command.kind == PaintCommand::Image)
        return QStringLiteral("lock");
    if (command.kind == PaintCommand::Text && command.pen.style() == Qt::DotLine)
        return QStringLiteral("words");
    if (command.kind == PaintCommand::Text)
        return command.text.at(0).isDigit() ? QStringLiteral("digits") : QStringLiteral("sign");
    if (command.pen.style() != Qt::NoPen)
        return QStringLiteral("border");
    if (command.brush.color() == CursorColor)
        return QStringLiteral("cursor");
    return command.brush.color() == QColor(Qt::gray) ? QStringLiteral("gray") : QStringLiteral("background");
}

// What is painted, in order, equal neighbours taken as one.
QString sequence(const QVector<PaintCommand> &commands)
{
    QStringList names;
    for (const PaintCommand &command : commands) {
        if (names.isEmpty() || names.last() != nameOf(command))
            names << nameOf(command);
    }
    return names.join(QLatin1Char(' '));
}

QVector<QLineF> linesOf(const QVector<PaintCommand> &commands)
{
    QVector<QLineF> lines;
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Line)
            lines << QLineF(command.rect.topLeft(),
                            command.rect.topLeft() + QPointF(command.rect.width(), command.rect.height()));
    }
    return lines;
}

} // namespace

class TestFinancialEditPainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void commandsPerMode_data();
    void commandsPerMode();
    void lockSignComesLastInDesignMode();
    void nothingOfASizeOfNothing();
    void background();
    void frame_data();
    void frame();
    void framePen();
    void frameFollowsTheCells();
    void limit_data();
    void limit();
    void cursor();
    void painterIsRestored_data();
    void painterIsRestored();
};

void TestFinancialEditPainting::commandsPerMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isPrint");
    QTest::addColumn<bool>("hasWords");
    QTest::addColumn<bool>("hasLimit");
    QTest::addColumn<bool>("blinks");
    QTest::addColumn<QString>("commands");
    const auto row = [](const char *name, int mode, bool print, bool hasWords, bool hasLimit, bool blinks,
                        const char *commands) {
        QTest::newRow(name) << mode << print << hasWords << hasLimit << blinks << QString::fromLatin1(commands);
    };
    row("design", 0, true, true, false, false, "background lines words digits sign border");
    row("design, without words", 0, true, false, false, false, "background lines digits sign border");
    row("design, with limit", 0, true, true, true, false, "background lines words digits sign border");
    row("design, cursor", 0, true, true, false, true, "background lines words cursor digits sign border");
    row("design, not printed", 0, false, true, false, false, "background lines words digits sign border");
    row("input", 1, true, true, false, false, "background lines words digits sign border");
    row("input, without words", 1, true, false, false, false, "background lines digits sign border");
    row("input, with limit", 1, true, true, true, false, "gray background lines words digits sign border");
    row("input, cursor", 1, true, true, false, true, "background lines words cursor digits sign border");
    row("input, all", 1, true, true, true, true, "gray background lines words cursor digits sign border");
    row("input, not printed", 1, false, true, false, false, "background lines words digits sign border");
    row("print", 2, true, true, false, false, "digits sign");
    row("print, all", 2, true, true, true, true, "digits sign");
    row("print, not printed", 2, false, true, true, true, "");
    row("beyond the modes", 7, true, true, true, true, "");
}

void TestFinancialEditPainting::commandsPerMode()
{
    QFETCH(int, mode);
    QFETCH(bool, isPrint);
    QFETCH(bool, hasWords);
    QFETCH(bool, hasLimit);
    QFETCH(bool, blinks);
    QFETCH(QString, commands);
    const auto edit = grid();
    edit->setCurrency(Currency_Dollar);
    edit->setIsShowLimit(hasLimit);
    edit->setLimitUnit(6);
    edit->setContentData(QStringLiteral("12.34"));
    edit->setIsPrint(isPrint);
    edit->setIsDrawMonetaryUnit(hasWords);
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    if (blinks)
        edit->triggerDrawCursor();
    QCOMPARE(sequence(probes::paintedBy(*edit)), commands);
    edit->setHasBorder(false);
    QCOMPARE(sequence(probes::paintedBy(*edit)), commands.remove(QStringLiteral(" border")));
}

void TestFinancialEditPainting::lockSignComesLastInDesignMode()
{
    QGraphicsScene scene;
    auto *edit = grid("5").release();
    scene.addItem(edit);
    edit->setIsLocked(true);
    edit->setSelected(true);
    QCOMPARE(sequence(probes::paintedBy(*edit)), QStringLiteral("background lines words digits border lock"));
}

void TestFinancialEditPainting::nothingOfASizeOfNothing()
{
    const auto edit = grid("5", QRectF(10, 20, 0, 0));
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        edit->setPaintMode(mode);
        QCOMPARE(probes::paintedBy(*edit).size(), 0);
    }
}

// The cells, a pixel inside their outline.
void TestFinancialEditPainting::background()
{
    const auto edit = grid();
    edit->setBackgroundColor(0xfedcba);
    const PaintCommand fill = drawnBy(*edit, &Edit::drawControl).first();
    QCOMPARE(fill.rect, QRectF(11, 31, 238, 48));
    QCOMPARE(fill.brush, QBrush(QColor(0xfe, 0xdc, 0xba)));
    QCOMPARE(fill.opacity, 0.4);
    edit->setPhyRect({});
    QCOMPARE(drawnBy(*edit, &Edit::drawControl).first().rect, QRectF(11, 21, 238, 58));
}

void TestFinancialEditPainting::frame_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<QLineF>>("lines");
    QTest::newRow("three cells") << Grid << 3
                                 << QVector<QLineF>{
                                        {10, 30, 250, 30}, {10, 20, 10, 80}, {90, 20, 90, 80}, {170, 20, 170, 80}};
    QTest::newRow("one cell") << Grid << 1 << QVector<QLineF>{{10, 30, 250, 30}, {10, 20, 10, 80}};
    QTest::newRow("no cell") << Grid << 0 << QVector<QLineF>();
    QTest::newRow("broken pixels") << QRectF(0, 0, 25, 60) << 2
                                   << QVector<QLineF>{{0, 10, 25, 10}, {0, 0, 0, 60}, {12.5, 0, 12.5, 60}};
    QTest::newRow("to the left") << QRectF(250, 20, -240, 60) << 2
                                 << QVector<QLineF>{{250, 30, 10, 30}, {250, 20, 250, 80}, {130, 20, 130, 80}};
    QTest::newRow("upwards") << QRectF(10, 80, 240, -60) << 2
                             << QVector<QLineF>{{10, 70, 250, 70}, {10, 80, 10, 20}, {130, 80, 130, 20}};
}

void TestFinancialEditPainting::frame()
{
    QFETCH(QRectF, rect);
    QFETCH(int, count);
    QFETCH(QVector<QLineF>, lines);
    const auto edit = grid("", rect);
    edit->setNumOfEditable(count);
    const QVector<PaintCommand> commands = drawnBy(*edit, &Edit::drawFrameRect);
    QCOMPARE(linesOf(commands), lines);
    QCOMPARE(commands.size(), lines.size());
}

void TestFinancialEditPainting::framePen()
{
    const auto edit = grid();
    for (const PaintCommand &line : drawnBy(*edit, &Edit::drawFrameRect)) {
        QCOMPARE(line.pen, QPen(Qt::black, 1.0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
        QCOMPARE(line.brush.style(), Qt::NoBrush);
        QVERIFY(!line.hints.testFlag(QPainter::Antialiasing));
    }
}

// The level line goes along the cells, the upright ones along the rectangle.
void TestFinancialEditPainting::frameFollowsTheCells()
{
    const auto edit = grid();
    edit->setNumOfEditable(2);
    edit->setRectAt(0, {1, 2, 3, 4});
    edit->setRectAt(1, {5, 6, 7, 8});
    QCOMPARE(linesOf(drawnBy(*edit, &Edit::drawFrameRect)),
             QVector<QLineF>({{1, 2, 12, 6}, {10, 20, 10, 80}, {130, 20, 130, 80}}));
}

void TestFinancialEditPainting::limit_data()
{
    QTest::addColumn<bool>("isShowLimit");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("grayCells");
    QTest::newRow("wan") << true << 6 << 1 << 5;
    QTest::newRow("one below the highest") << true << 10 << 1 << 1;
    QTest::newRow("the highest") << true << 11 << 1 << 0;
    QTest::newRow("the lowest") << true << 0 << 1 << 11;
    QTest::newRow("below the lowest") << true << -1 << 1 << 0;
    QTest::newRow("not shown") << false << 6 << 1 << 0;
    QTest::newRow("design") << true << 6 << 0 << 0;
    QTest::newRow("print") << true << 6 << 2 << 0;
}

void TestFinancialEditPainting::limit()
{
    QFETCH(bool, isShowLimit);
    QFETCH(int, limit);
    QFETCH(int, mode);
    QFETCH(int, grayCells);
    const auto edit = grid();
    edit->setIsShowLimit(true);
    edit->setLimitUnit(limit);
    edit->setIsShowLimit(isShowLimit);
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QVector<QRectF> gray;
    for (const PaintCommand &command : probes::paintedBy(*edit)) {
        if (command.brush != QBrush(Qt::gray, Qt::SolidPattern))
            continue;
        gray << command.rect;
        QCOMPARE(command.opacity, 1.0);
    }
    QCOMPARE(gray.size(), grayCells);
    for (int i = 0; i < grayCells; ++i)
        QCOMPARE(gray.at(i), edit->rectAt(i));
}

void TestFinancialEditPainting::cursor()
{
    const auto edit = grid("1234.5");
    edit->setPaintMode(Paint_Input);
    edit->moveCursorTo(7);
    QCOMPARE(drawnBy(*edit, &Edit::drawCursor).size(), 0);
    edit->triggerDrawCursor();
    for (const int cell : {7, 3}) {
        edit->moveCursorTo(cell);
        const QVector<PaintCommand> commands = drawnBy(*edit, &Edit::drawCursor);
        QCOMPARE(commands.size(), 1);
        QCOMPARE(commands.first().rect, edit->rectAt(cell));
        QCOMPARE(commands.first().brush, QBrush(CursorColor));
        QCOMPARE(commands.first().opacity, 1.0);
    }
    edit->setIsReadOnly(true);
    QCOMPARE(drawnBy(*edit, &Edit::drawCursor).size(), 0);
    edit->setIsReadOnly(false);
    edit->triggerDrawCursor();
    QCOMPARE(drawnBy(*edit, &Edit::drawCursor).size(), 0);
}

void TestFinancialEditPainting::painterIsRestored_data()
{
    QTest::addColumn<Drawing>("draw");
    const auto row = [](const char *name, void (Edit::*operation)(QPainter *)) {
        QTest::newRow(name) << Drawing([operation](Edit &edit, QPainter *painter) { (edit.*operation)(painter); });
    };
    row("control", &Edit::drawControl);
    row("frame", &Edit::drawFrameRect);
    row("words", &Edit::drawUnits);
    row("cursor", &Edit::drawCursor);
    row("limit", &Edit::drawInactiveRect);
    row("content", &Edit::drawContent);
    row("digits", &Edit::drawDigits);
    row("sign", &Edit::drawCurrencySign);
    row("design", &Edit::designPaint);
    row("input", &Edit::inputPaint);
    row("print", &Edit::printPaint);
}

void TestFinancialEditPainting::painterIsRestored()
{
    QFETCH(Drawing, draw);
    const auto edit = grid();
    edit->setIsShowLimit(true);
    edit->setLimitUnit(6);
    edit->setCurrency(Currency_Pound);
    edit->setContentData(QStringLiteral("12.5"));
    edit->triggerDrawCursor();
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(Qt::magenta, 3, Qt::DashLine);
    const QBrush brush(Qt::cyan, Qt::Dense4Pattern);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 33));
    const QFont font = painter.font();
    painter.setOpacity(0.7);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainter::RenderHints hints = painter.renderHints();
    draw(*edit, &painter);
    QVERIFY(!device.commands().isEmpty());
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), brush);
    QCOMPARE(painter.font(), font);
    QCOMPARE(painter.opacity(), 0.7);
    QCOMPARE(painter.renderHints(), hints);
    QVERIFY(!painter.hasClipping());
    QVERIFY(painter.transform().isIdentity());
}

QTEST_MAIN(TestFinancialEditPainting)
#include "tst_financialeditpainting.moc"
