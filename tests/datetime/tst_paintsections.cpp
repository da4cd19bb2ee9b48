// SPDX-License-Identifier: MIT
// What an editor paints of its sections, command by command.
#include "tests/datetime/editorprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

using namespace editors;

namespace {

const QRectF Boxes(40, 20, 300, 30);

QVector<QRectF> rectsOf(const QVector<PaintCommand> &commands)
{
    QVector<QRectF> rects;
    for (const PaintCommand &command : commands)
        rects.append(command.rect);
    return rects;
}

bool isNear(double a, double b)
{
    return qAbs(a - b) <= 1;
}

} // namespace

class TestPaintSections : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void textsStandInTheirSections_data();
    void textsStandInTheirSections();
    void widthsOfTheRowNotOfTheRectangle();
    void fractionsAreRounded_data();
    void fractionsAreRounded();
    void penBrushAndFont_data();
    void penBrushAndFont();
    void longTextsAreNotCutOff();
    void sectionsWithoutRoomStillTakeTheirHandle();
    void painterIsRestored();
};

void TestPaintSections::texts_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<QString>("texts");
    const auto row = [](const char *name, bool ofTime, int order, int type, bool isShown, const char *texts) {
        QTest::newRow(name) << ofTime << order << type << isShown << QString::fromUtf8(texts);
    };
    row("date with words", false, 0, 0, true, "2022|年|1|月|5|日");
    row("date with words, another order", false, 1, 0, true, "5|日|1|月|2022|年");
    row("date with dashes", false, 0, 2, true, "2022|-|1|-|5");
    row("date, words hidden", false, 0, 0, false, "2022|1|5");
    row("date, dashes hidden", false, 2, 2, false, "2022|5|1");
    row("year and its word", false, 7, 0, true, "2022|年");
    row("year alone", false, 7, 2, true, "2022");
    row("date with the words of a time", false, 0, 1, true, "");
    row("date beyond the types", false, 0, 5, true, "");
    row("date beyond the orders", false, 8, 0, true, "");
    row("time with words", true, 0, 1, true, "8|时|5|分|9|秒");
    row("time with colons", true, 0, 4, true, "8|:|5|:|9");
    row("time, words hidden", true, 1, 1, false, "8|5");
    row("time with the words of a date", true, 0, 0, true, "");
    row("time beyond the orders", true, 2, 1, true, "");
}

void TestPaintSections::texts()
{
    QFETCH(bool, ofTime);
    QFETCH(int, order);
    QFETCH(int, type);
    QFETCH(bool, isShown);
    QFETCH(QString, texts);
    const auto made = editor(ofTime);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    made->setIsShowSeperator(isShown);
    setOrder(*made, order);
    QCOMPARE(textsOf(paintedSections(*made, Boxes)), texts);
    // An invalid date or time leaves the separators.
    made->setDateTime(QDateTime());
    QStringList separators;
    for (int i = 1; isShown && i < made->count(); i += 2)
        separators.append(labelAt(*made, i)->text());
    QCOMPARE(textsOf(paintedSections(*made, Boxes)), separators.join(QLatin1Char('|')));
}

void TestPaintSections::textsStandInTheirSections_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isShown");
    for (const bool ofTime : {false, true}) {
        for (const int type : {ofTime ? 1 : 0, 3}) {
            for (const bool isShown : {true, false})
                QTest::addRow("%s, type %d%s", ofTime ? "time" : "date", type, isShown ? "" : ", hidden")
                    << ofTime << type << isShown;
        }
    }
}

void TestPaintSections::textsStandInTheirSections()
{
    QFETCH(bool, ofTime);
    QFETCH(int, type);
    QFETCH(bool, isShown);
    const auto made = editor(ofTime);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    made->setIsShowSeperator(isShown);
    made->setSizes({150, 15, 30, 15, 60, 15});
    const QVector<PaintCommand> commands = paintedSections(*made, Boxes);
    int next = 0;
    double x = Boxes.left();
    for (int i = 0; i < made->count(); ++i) {
        const double width = made->widget(i)->width();
        // A hidden separator is not drawn; the next value stands behind its room all the same.
        if (isShown || i % 2 == 0) {
            QVERIFY(next < commands.size());
            const PaintCommand &command = commands.at(next++);
            QCOMPARE(command.text, labelAt(*made, i)->text());
            QVERIFY(isNear(command.rect.center().x(), x + width / 2));
            QVERIFY(isNear(command.rect.center().y(), Boxes.center().y()));
        }
        x += width + 2;
    }
    QCOMPARE(next, commands.size());
    QCOMPARE(x, Boxes.right() + 2);
}

// The row is as wide as it was laid out, wherever it is painted.
void TestPaintSections::widthsOfTheRowNotOfTheRectangle()
{
    const auto made = editor(false);
    const QVector<QRectF> rects = rectsOf(paintedSections(*made, Boxes));
    QCOMPARE(rects.size(), 6);
    for (const double width : {1.0, 0.0, 299.5, 3000.0, -40.0})
        QCOMPARE(rectsOf(paintedSections(*made, QRectF(Boxes.topLeft(), QSizeF(width, 30)))), rects);
    QVector<QRectF> moved;
    for (const QRectF &rect : rects)
        moved.append(rect.translated(-100, 1000));
    QCOMPARE(rectsOf(paintedSections(*made, Boxes.translated(-100, 1000))), moved);
}

void TestPaintSections::fractionsAreRounded_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRect>("rounded");
    const auto row = [](const char *name, const QRectF &rect, const QRect &rounded) {
        QTest::newRow(name) << rect << rounded;
    };
    row("left below the half", {10.49, 20, 300, 30}, {10, 20, 300, 30});
    row("left half", {10.5, 20, 300, 30}, {11, 20, 300, 30});
    row("left negative half goes up", {-10.5, 20, 300, 30}, {-10, 20, 300, 30});
    row("left below the negative half", {-10.51, 20, 300, 30}, {-11, 20, 300, 30});
    row("left half below zero", {-0.5, 20, 300, 30}, {0, 20, 300, 30});
    row("top below the half", {10, 20.49, 300, 30}, {10, 20, 300, 30});
    row("top half", {10, 20.5, 300, 30}, {10, 21, 300, 30});
    row("top negative half goes up", {10, -20.5, 300, 30}, {10, -20, 300, 30});
    row("top below the negative half", {10, -20.51, 300, 30}, {10, -21, 300, 30});
    row("height below the half", {10, 20, 300, 31.49}, {10, 20, 300, 31});
    row("height half, to even", {10, 20, 300, 31.5}, {10, 20, 300, 32});
    row("height half, to odd", {10, 20, 300, 30.5}, {10, 20, 300, 31});
    row("negative height", {10, 20, 300, -31.5}, {10, 20, 300, -31});
    row("each on its own", {10.5, 20.5, 300, 30.5}, {11, 21, 300, 31});
}

void TestPaintSections::fractionsAreRounded()
{
    QFETCH(QRectF, rect);
    QFETCH(QRect, rounded);
    const auto made = editor(false);
    const QVector<QRectF> painted = rectsOf(paintedSections(*made, rect));
    QCOMPARE(painted.size(), 6);
    QCOMPARE(painted, rectsOf(paintedSections(*made, rounded)));
    const QRectF first = painted.first();
    QVERIFY(isNear(first.center().x(), rounded.x() + made->widget(0)->width() / 2.0));
    QVERIFY(isNear(first.center().y(), rounded.y() + rounded.height() / 2.0));
}

void TestPaintSections::penBrushAndFont_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::newRow("date") << false;
    QTest::newRow("time") << true;
}

void TestPaintSections::penBrushAndFont()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    QFont font = testFont(19);
    font.setBold(true);
    font.setItalic(true);
    made->setFont(font);
    RecordingDevice device;
    QPainter painter(&device);
    painter.setPen(QPen(Qt::magenta, 3, Qt::DashLine));
    painter.setBrush(Qt::cyan);
    painter.setFont(testFont(33));
    made->paintSections(&painter, Boxes);
    QCOMPARE(device.commands().size(), 6);
    for (const PaintCommand &command : device.commands()) {
        QCOMPARE(command.pen.color(), QColor(Qt::black));
        QCOMPARE(command.pen.widthF(), 1.0);
        QCOMPARE(command.pen.style(), Qt::SolidLine);
        QCOMPARE(command.brush.style(), Qt::NoBrush);
        QCOMPARE(command.font.family(), font.family());
        QCOMPARE(command.font.pixelSize(), 19);
        QCOMPARE(command.font.bold(), true);
        QCOMPARE(command.font.italic(), true);
    }
}

void TestPaintSections::longTextsAreNotCutOff()
{
    const auto made = editor(false);
    made->setSizes({5, 15, 200, 15, 5, 15});
    made->setFont(testFont(40));
    QVERIFY(made->widget(0)->width() < 10);
    // Lower than the text, too.
    const QVector<PaintCommand> commands = paintedSections(*made, {40, 20, 300, 6});
    QCOMPARE(textsOf(commands), QStringLiteral("2022|年|1|月|5|日"));
    for (const PaintCommand &command : commands)
        QVERIFY(!command.hasClip);
    const PaintCommand &year = commands.first();
    QVERIFY(isNear(year.rect.center().x(), 40 + made->widget(0)->width() / 2.0));
    QVERIFY(isNear(year.rect.center().y(), 23));
}

void TestPaintSections::sectionsWithoutRoomStillTakeTheirHandle()
{
    const auto made = editor(false);
    made->setSeperatorType(Sep_Dash);
    made->follow({0, 0, 0, 30});
    QCOMPARE(made->widget(0)->width(), 0);
    const int dash = made->widget(1)->width();
    const QVector<PaintCommand> commands = paintedSections(*made, Boxes);
    QCOMPARE(textsOf(commands), QStringLiteral("2022|-|1|-|5"));
    QVERIFY(isNear(commands.at(0).rect.center().x(), 40));
    QVERIFY(isNear(commands.at(2).rect.center().x(), 40 + 2 + dash + 2));
    QVERIFY(isNear(commands.at(4).rect.center().x(), 40 + 2 * (2 + dash + 2)));
}

void TestPaintSections::painterIsRestored()
{
    for (const int order : {0, 8}) {
        const auto made = editor(false);
        setOrder(*made, order);
        RecordingDevice device;
        QPainter painter(&device);
        const QPen pen(Qt::magenta, 3, Qt::DashLine);
        const QFont font = testFont(33);
        painter.setPen(pen);
        painter.setBrush(Qt::cyan);
        painter.setFont(font);
        painter.translate(3, 4);
        const QFont fontBefore = painter.font();
        made->paintSections(&painter, Boxes);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), QBrush(Qt::cyan));
        QCOMPARE(painter.font(), fontBefore);
        QCOMPARE(painter.transform(), QTransform::fromTranslate(3, 4));
        QVERIFY(!painter.hasClipping());
    }
}

QTEST_MAIN(TestPaintSections)
#include "tst_paintsections.moc"
