// SPDX-License-Identifier: MIT
// A date or time stands on paper where its sections stand on the screen.
#include "tests/datetime/datetimeview.h"
#include "tests/support/stricttest.h"

#include <functional>

using namespace editors;

namespace {

struct Change
{
    const char *name;
    std::function<void(DatetimeView &, TavroDatetime &)> make;
    bool drags = false;
};

void dragSections(DatetimeView &form, TavroDatetime &object)
{
    for (int handle = 1; handle < editorOf(object)->count(); ++handle) {
        const QPoint from = DatetimeView::handleCenter(object, handle);
        form.drag(from, from + QPoint(handle % 2 == 0 ? 9 : -7, 0));
    }
}

const QVector<Change> Changes{
    {"as it comes", [](DatetimeView &, TavroDatetime &) {}},
    {"handles dragged", dragSections, true},
    {"widths given back",
     [](DatetimeView &, TavroDatetime &object) {
         object.setSplitSizes({70, 9, 20, 9, 31, 9});
     }},
    {"separators hidden after dragging",
     [](DatetimeView &form, TavroDatetime &object) {
         dragSections(form, object);
         object.setIsShowSeperator(false);
     },
     true},
    {"order", [](DatetimeView &, TavroDatetime &object) { object.setOrderType(1); }},
    {"separator type", [](DatetimeView &, TavroDatetime &object) { object.setSeperatorType(Sep_Slash); }},
    {"moved and wider",
     [](DatetimeView &, TavroDatetime &object) {
         object.setBoundingRect({-3.5, 60.5, 200, 44.4});
     }},
    {"font", [](DatetimeView &, TavroDatetime &object) { object.setFont(testFont(23)); }},
    {"font settings",
     [](DatetimeView &, TavroDatetime &object) {
         object.setFontFamily(testFont().family());
         object.setIsBold(true);
     }},
    {"content",
     [](DatetimeView &, TavroDatetime &object) {
         object.setContentData(QDateTime(QDate(1999, 12, 31), QTime(23, 59, 59)));
     }},
    {"format and back",
     [](DatetimeView &, TavroDatetime &object) {
         const Datetime_Format format = object.dateTimeFormat();
         object.setDateTimeFormat(Dt_Custom);
         object.setDateTimeFormat(format == Dt_Time ? Dt_Capital : Dt_Time);
         object.setDateTimeFormat(format);
     }},
    {"widths given back and separators hidden",
     [](DatetimeView &, TavroDatetime &object) {
         object.setSplitSizes({70, 9, 20, 9, 31, 9});
         object.setIsShowSeperator(false);
     }},
};

struct Placed
{
    QString text;
    QPointF center;
};

// What print mode paints. The mode is the object's again afterwards.
QVector<Placed> onPaper(TavroDatetime &object)
{
    const Paint_Mode mode = object.paintMode();
    object.setPaintMode(Paint_Print);
    RecordingDevice device;
    QPainter painter(&device);
    object.printPaint(&painter);
    painter.end();
    object.setPaintMode(mode);
    QVector<Placed> texts;
    for (const PaintCommand &command : device.commands())
        texts.append({command.text, command.rect.center()});
    return texts;
}

// What the labels show, in the coordinates of the object; hidden separators show nothing.
QVector<Placed> onScreen(const TavroDatetime &object)
{
    QCoreApplication::processEvents();
    QVector<Placed> texts;
    const DateTimeEditPrototype *editor = editorOf(object);
    for (int i = 0; i < editor->count(); i += object.isShowSeperator() ? 1 : 2) {
        const QLabel *label = labelAt(*editor, i);
        if (label->isVisible())
            texts.append({label->text(), object.widgetPrxy()->mapToParent(QRectF(label->geometry()).center())});
    }
    return texts;
}

void compare(const QVector<Placed> &paper, const QVector<Placed> &screen, int texts)
{
    QCOMPARE(paper.size(), texts);
    QCOMPARE(screen.size(), texts);
    for (int i = 0; i < texts; ++i) {
        QCOMPARE(paper.at(i).text, screen.at(i).text);
        const QPointF distance = paper.at(i).center - screen.at(i).center;
        QVERIFY2(qAbs(distance.x()) <= 1, qPrintable(QStringLiteral("%1 across").arg(distance.x())));
        QVERIFY2(qAbs(distance.y()) <= 1, qPrintable(QStringLiteral("%1 down").arg(distance.y())));
    }
}

// An editor has to be shown where its handles are dragged.
void addRows(bool isShown)
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("type");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("change");
    struct Row
    {
        const char *name;
        int format;
        int order;
        int type;
    };
    const QVector<Row> rows{{"year month day", 3, 0, 0},
                            {"day/month/year in capitals", 0, 1, 3},
                            {"month day", 2, 4, 0},
                            {"time", 5, 0, 1},
                            {"hour:minute", 5, 1, 4}};
    const QVector<QRectF> rects{{20, 30, 300, 30}, {20.5, 30.5, 150.4, 11.5}, {5, 6, 90, 8}};
    for (const Row &row : rows) {
        for (const QRectF &rect : rects) {
            for (int i = 0; i < Changes.size(); ++i) {
                if (isShown || !Changes.at(i).drags)
                    QTest::addRow("%s, %g wide, %s", row.name, rect.width(), Changes.at(i).name)
                        << row.format << row.order << row.type << rect << i;
            }
        }
    }
}

} // namespace

class TestDatetimeLayout : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void changedOnScreen_data() { addRows(true); }
    void changedOnScreen();
    void changedOnPaper_data() { addRows(false); }
    void changedOnPaper();

private:
    static TavroDatetime *object(DatetimeView &form, Paint_Mode mode);
    static int expectedTexts(const TavroDatetime &object);
};

TavroDatetime *TestDatetimeLayout::object(DatetimeView &form, Paint_Mode mode)
{
    QFETCH(int, format);
    QFETCH(int, order);
    QFETCH(int, type);
    QFETCH(QRectF, rect);
    // The mode comes first: print mode keeps the editors from ever being shown.
    auto *made = new TavroDatetime;
    made->setPaintMode(mode);
    made->setTextFillingRule(Fill_NoWrap);
    made->setFontFamily(testFont().family());
    made->setDateTimeFormat(static_cast<Datetime_Format>(format));
    made->setOrderType(order);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    made->setBoundingRect(rect);
    made->setContentData(aMoment());
    form.scene().addItem(made);
    return made;
}

int TestDatetimeLayout::expectedTexts(const TavroDatetime &object)
{
    const int sections = (object.isTimeSection() && object.orderType() == 1) || object.orderType() == 4 ? 2 : 3;
    if (!object.isShowSeperator())
        return sections;
    return object.seperatorType() < Sep_Dash ? 2 * sections : 2 * sections - 1;
}

void TestDatetimeLayout::changedOnScreen()
{
    QFETCH(int, change);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *made = object(form, Paint_Design);
    made->setIsModified(false);
    Changes.at(change).make(form, *made);
    QVERIFY(made->isModified() || !Changes.at(change).drags);
    const int texts = expectedTexts(*made);
    const QVector<Placed> screen = onScreen(*made);
    compare(onPaper(*made), screen, texts);
    // Neither going on paper nor coming back moves anything.
    compare(onPaper(*made), onScreen(*made), texts);
}

void TestDatetimeLayout::changedOnPaper()
{
    QFETCH(int, change);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *made = object(form, Paint_Print);
    Changes.at(change).make(form, *made);
    QVERIFY(!editorOf(*made)->isVisible());
    const QVector<Placed> paper = onPaper(*made);
    made->setPaintMode(Paint_Design);
    compare(paper, onScreen(*made), expectedTexts(*made));
}

QTEST_MAIN(TestDatetimeLayout)
#include "tst_datetimelayout.moc"
