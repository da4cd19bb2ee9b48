// SPDX-License-Identifier: MIT
// What a date/time object paints itself in each mode and format, command by command. The sections on screen are its
// editor's to paint.
#include "tests/datetime/datetimepaints.h"
#include "tests/support/stricttest.h"

using namespace datetimepaints;
using namespace editors;

class TestTavroDatetimePainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void lockSignComesLast();
    void borderIsTheObjects();
    void separatorsOnPaper_data();
    void separatorsOnPaper();
    void sectionsOnPaperStandOverTheObject();
    void patterns_data();
    void patterns();
    void patternHasBlackPenAndFont_data();
    void patternHasBlackPenAndFont();
    void patternIsCentred_data();
    void patternIsCentred();
    void painterIsRestored_data() { addFormatAndModeRows(); }
    void painterIsRestored();
    void settingsAreSeenAtOnce_data();
    void settingsAreSeenAtOnce();
    void printedRowsAreSeenAtOnce_data();
    void printedRowsAreSeenAtOnce();
};

void TestTavroDatetimePainting::commands_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("border");
    QTest::addColumn<bool>("print");
    QTest::addColumn<QString>("commands");
    const auto row = [](const char *name, int format, int mode, bool border, bool print, const char *commands) {
        QTest::newRow(name) << format << mode << border << print << QString::fromUtf8(commands);
    };
    for (const int format : {0, 1, 2, 3, 4, 5, 9}) {
        row(qPrintable(QStringLiteral("design, format %1").arg(format)), format, 0, true, true, "border");
        row(qPrintable(QStringLiteral("input, format %1").arg(format)), format, 1, true, true, "border");
        row(qPrintable(QStringLiteral("not printed, format %1").arg(format)), format, 2, true, false, "");
    }
    row("design, no border", 3, 0, false, true, "");
    row("input, no border", 3, 1, false, true, "");
    row("design, not printed", 3, 0, true, false, "border");
    row("input, not printed", 5, 1, true, false, "border");
    row("design, pattern", 6, 0, true, true, "2022-01-05 border");
    row("input, pattern", 6, 1, true, true, "2022-01-05 border");
    row("design, pattern, no border", 6, 0, false, false, "2022-01-05");
    row("print, pattern", 6, 2, true, true, "2022-01-05");
    row("print, pattern, not printed", 6, 2, true, false, "");
    row("print, formal capitals", 0, 2, true, true, "贰零贰贰 年 零壹 月 零伍 日");
    row("print, capitals", 1, 2, true, true, "贰零贰贰 年 壹 月 伍 日");
    row("print, numerals", 2, 2, true, true, "二〇二二 年 一 月 五 日");
    row("print, two digits", 3, 2, true, true, "2022 年 01 月 05 日");
    row("print, digits", 4, 2, true, true, "2022 年 1 月 5 日");
    row("print, time", 5, 2, true, true, "8 时 5 分 9 秒");
    row("print, beyond the formats", 9, 2, true, true, "2022 年 1 月 5 日");
    row("beyond the modes", 3, 7, true, true, "");
    row("beyond the modes, pattern", 6, -1, true, true, "");
}

void TestTavroDatetimePainting::commands()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    QFETCH(bool, border);
    QFETCH(bool, print);
    QFETCH(QString, commands);
    const auto made = object(format, mode);
    made->setHasBorder(border);
    made->setIsPrint(print);
    QCOMPARE(sequence(probes::paintedBy(*made)), commands);
    made->setBoundingRect({40, 20, 0, 0});
    QCOMPARE(sequence(probes::paintedBy(*made)), QString());
}

void TestTavroDatetimePainting::lockSignComesLast()
{
    for (const int format : {3, 6}) {
        QGraphicsScene scene;
        TavroDatetime *made = object(format, 0).release();
        scene.addItem(made);
        made->setIsLocked(true);
        made->setSelected(true);
        const QString text = format == 6 ? QStringLiteral("2022-01-05 ") : QString();
        QCOMPARE(sequence(probes::paintedBy(*made)), text + QStringLiteral("border lock"));
        // The sign belongs to the painting of the design, not to the selection alone.
        RecordingDevice device;
        QPainter painter(&device);
        made->inputPaint(&painter);
        QCOMPARE(sequence(device.commands()), text + QStringLiteral("border"));
    }
}

void TestTavroDatetimePainting::borderIsTheObjects()
{
    for (const int mode : {0, 1}) {
        const auto made = object(6, mode);
        made->setBorderColor(0x123456);
        const PaintCommand border = probes::paintedBy(*made).last();
        QCOMPARE(border.rect, Boxes.adjusted(0.5, 0.5, -0.5, -0.5));
        QCOMPARE(border.pen.color(), QColor(0x12, 0x34, 0x56));
        QCOMPARE(border.brush.style(), Qt::NoBrush);
    }
}

void TestTavroDatetimePainting::separatorsOnPaper_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<QString>("commands");
    QTest::newRow("slashes") << 3 << 3 << true << QStringLiteral("2022 / 01 / 05");
    QTest::newRow("slashes hidden") << 3 << 3 << false << QStringLiteral("2022 01 05");
    QTest::newRow("words hidden") << 1 << 0 << false << QStringLiteral("贰零贰贰 壹 伍");
    QTest::newRow("colons of a time") << 5 << 4 << true << QStringLiteral("8 : 5 : 9");
    QTest::newRow("colons of a time hidden") << 5 << 4 << false << QStringLiteral("8 5 9");
    QTest::newRow("words of a time in a date") << 3 << 1 << true << QString();
    QTest::newRow("words of a date in a time") << 5 << 0 << true << QString();
    QTest::newRow("pattern has none") << 6 << 3 << false << QStringLiteral("2022-01-05");
}

void TestTavroDatetimePainting::separatorsOnPaper()
{
    QFETCH(int, format);
    QFETCH(int, type);
    QFETCH(bool, isShown);
    QFETCH(QString, commands);
    const auto made = object(format, 2);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    made->setIsShowSeperator(isShown);
    QCOMPARE(sequence(probes::paintedBy(*made)), commands);
}

void TestTavroDatetimePainting::sectionsOnPaperStandOverTheObject()
{
    for (const int format : {3, 5}) {
        const auto made = object(format, 2);
        made->setFont(testFont(17));
        made->setSplitSizes({150, 15, 30, 15, 60, 15});
        const QVector<PaintCommand> painted = probes::paintedBy(*made);
        const QVector<PaintCommand> expected = paintedSections(*editorOf(*made), Boxes);
        QCOMPARE(painted.size(), 6);
        for (int i = 0; i < painted.size(); ++i) {
            QCOMPARE(painted.at(i).rect, expected.at(i).rect);
            QCOMPARE(painted.at(i).font.pixelSize(), 17);
            QCOMPARE(painted.at(i).pen.color(), QColor(Qt::black));
        }
    }
}

void TestTavroDatetimePainting::patterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *pattern, const QVariant &content, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(pattern) << content << QString::fromUtf8(text);
    };
    row("both", "dd.MM.yy hh:mm:ss", aMoment(), "05.01.22 08:05:09");
    row("short", "yyyy/M/d", aMoment(), "2022/1/5");
    row("quoted", "'No.' yyyy", aMoment(), "No. 2022");
    row("no field", "--", aMoment(), "--");
    row("empty", "", aMoment(), "");
    row("invalid content", "yyyy-MM-dd", QStringLiteral("tomorrow"), "");
    row("text content", "d/M", QStringLiteral("2022-12-31"), "31/12");
}

void TestTavroDatetimePainting::patterns()
{
    QFETCH(QString, pattern);
    QFETCH(QVariant, content);
    QFETCH(QString, text);
    for (const int mode : {0, 1, 2}) {
        const auto made = object(6, mode);
        made->setHasBorder(false);
        made->setCustomDatetimeFormat(pattern);
        made->setContentData(content);
        QCOMPARE(sequence(probes::paintedBy(*made)), text);
    }
}

void TestTavroDatetimePainting::patternHasBlackPenAndFont_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2})
        QTest::addRow("mode %d", mode) << mode;
}

void TestTavroDatetimePainting::patternHasBlackPenAndFont()
{
    QFETCH(int, mode);
    const auto made = object(6, mode);
    made->setFontColor(0xff0000);
    QFont font = testFont(19);
    font.setBold(true);
    made->setFont(font);
    const PaintCommand text = probes::paintedBy(*made).first();
    QCOMPARE(text.pen, QPen(Qt::black, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    QCOMPARE(text.pen.capStyle(), Qt::SquareCap);
    QCOMPARE(text.pen.joinStyle(), Qt::BevelJoin);
    QCOMPARE(text.font.family(), font.family());
    QCOMPARE(text.font.pixelSize(), 19);
    QCOMPARE(text.font.bold(), true);
}

void TestTavroDatetimePainting::patternIsCentred_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("wide") << Boxes;
    QTest::newRow("fractions") << QRectF(-10.5, 20.5, 200.25, 51.75);
    // Longer than the rectangle, and not cut off.
    QTest::newRow("narrow") << QRectF(50, 60, 20, 6);
}

void TestTavroDatetimePainting::patternIsCentred()
{
    QFETCH(QRectF, rect);
    const auto made = object(6, 2);
    made->setBoundingRect(rect);
    made->setFont(testFont());
    made->setHorAlign(Qt::AlignRight);
    made->setVerAlign(Qt::AlignTop);
    const QVector<PaintCommand> commands = probes::paintedBy(*made);
    QCOMPARE(sequence(commands), QStringLiteral("2022-01-05"));
    QVERIFY(qAbs(commands.first().rect.center().x() - rect.center().x()) <= 1);
    QVERIFY(qAbs(commands.first().rect.center().y() - rect.center().y()) <= 1);
    QVERIFY(!commands.first().hasClip);
}

void TestTavroDatetimePainting::painterIsRestored()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    const auto made = object(format, mode);
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(Qt::magenta, 3, Qt::DashLine);
    painter.setPen(pen);
    painter.setBrush(Qt::cyan);
    painter.setFont(testFont(33));
    const QFont font = painter.font();
    const QStyleOptionGraphicsItem option;
    made->paint(&painter, &option, nullptr);
    QVERIFY(!device.commands().isEmpty());
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), QBrush(Qt::cyan));
    QCOMPARE(painter.font(), font);
}

void TestTavroDatetimePainting::settingsAreSeenAtOnce_data()
{
    QTest::addColumn<int>("setter");
    QTest::newRow("pattern") << 0;
    QTest::newRow("format") << 1;
    QTest::newRow("content") << 2;
    QTest::newRow("real time") << 3;
}

void TestTavroDatetimePainting::settingsAreSeenAtOnce()
{
    QFETCH(int, setter);
    DatetimeView form;
    QVERIFY(form.isActive());
    auto *made = new Counting;
    made->setBoundingRect(Boxes);
    made->setDateTimeFormat(Dt_Custom);
    form.scene().addItem(made);
    QTRY_VERIFY(made->m_paints > 0);
    QVERIFY(comesToRest(*made));
    const int before = made->m_paints;
    if (setter == 0)
        made->setCustomDatetimeFormat(QStringLiteral("MM/yy"));
    else if (setter == 1)
        made->setDateTimeFormat(Dt_Custom);
    else if (setter == 2)
        made->setContentData(LongAgo);
    else
        made->setIsRealTime(true);
    QTRY_VERIFY(made->m_paints > before);
}

void TestTavroDatetimePainting::printedRowsAreSeenAtOnce_data()
{
    QTest::addColumn<int>("setter");
    QTest::newRow("separator type") << 0;
    QTest::newRow("separators shown") << 1;
    QTest::newRow("order") << 2;
    QTest::newRow("date order") << 3;
    QTest::newRow("widths") << 4;
    QTest::newRow("content written back") << 5;
    QTest::newRow("time order") << 6;
}

// A preview of the paper has no editor that repaints itself.
void TestTavroDatetimePainting::printedRowsAreSeenAtOnce()
{
    QFETCH(int, setter);
    DatetimeView form;
    QVERIFY(form.isActive());
    auto *made = new Counting;
    made->setBoundingRect(Boxes);
    made->setDateTimeFormat(setter == 6 ? Dt_Time : Dt_ArabicPadded);
    made->setPaintMode(Paint_Print);
    form.scene().addItem(made);
    QTRY_VERIFY(made->m_paints > 0);
    QVERIFY(comesToRest(*made));
    const int before = made->m_paints;
    if (setter == 0)
        made->setSeperatorType(Sep_Dash);
    else if (setter == 1)
        made->setIsShowSeperator(false);
    else if (setter == 2)
        made->setOrderType(Order_DMY);
    else if (setter == 3)
        made->setDateOrderType(Order_DMY);
    else if (setter == 4)
        made->setSplitSizes({60, 16, 20, 16, 20, 16});
    else if (setter == 6)
        made->setTimeOrderType(Order_HM);
    else
        made->syncContentData();
    QTRY_VERIFY(made->m_paints > before);
}

QTEST_MAIN(TestTavroDatetimePainting)
#include "tst_tavrodatetimepainting.moc"
