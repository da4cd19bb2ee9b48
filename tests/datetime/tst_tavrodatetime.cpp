// SPDX-License-Identifier: MIT
// A date/time object off screen: settings, formats, orders, content and the editors that it keeps in step.
#include "tests/datetime/datetimeview.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QMetaMethod>
#include <QSignalSpy>

using namespace editors;

namespace {

using D = TavroDatetime;

const QDateTime Later(QDate(2030, 11, 30), QTime(23, 59, 58));

QVector<Setting<D>> settings()
{
    constexpr bool marks = true;
    constexpr bool doesNotMark = false;
    const auto dateOrder = [](const D &object) { return static_cast<DateOrderType>(object.orderType()); };
    const auto timeOrder = [](const D &object) { return static_cast<TimeOrderType>(object.orderType()); };
    return {
        setting<D>("isRealTime", &D::isRealTime, &D::setIsRealTime, false, true, marks),
        setting<D>("dateTimeFormat", &D::dateTimeFormat, &D::setDateTimeFormat, Dt_ArabicPadded, Dt_Time, marks),
        setting<D>("dateTimeFormat beyond the formats", &D::dateTimeFormat, &D::setDateTimeFormat, Dt_ArabicPadded,
                   static_cast<Datetime_Format>(-9), marks),
        setting<D>("customDatetimeFormat", &D::customDatetimeFormat, &D::setCustomDatetimeFormat,
                   QStringLiteral("yyyy-MM-dd"), QStringLiteral("MM/yy"), marks),
        setting<D>("seperatorType", &D::seperatorType, &D::setSeperatorType, Sep_ChineseDate, Sep_Slash, marks),
        setting<D>("seperatorType beyond the types", &D::seperatorType, &D::setSeperatorType, Sep_ChineseDate,
                   static_cast<Datetime_Seperator_Type>(77), marks),
        setting<D>("isShowSeperator", &D::isShowSeperator, &D::setIsShowSeperator, true, false, marks),
        setting<D>("orderType", &D::orderType, &D::setOrderType, 0, 7, marks),
        setting<D>("date order", dateOrder, &D::setDateOrderType, Order_YMD, Order_MY, doesNotMark),
        setting<D>("time order", timeOrder, &D::setTimeOrderType, Order_HMS, Order_HM, doesNotMark),
        setting<D>("presetData", &D::presetData, &D::setPresetData, QVariant(), QVariant(aMoment()), marks),
    };
}

} // namespace

class TestTavroDatetime : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data() { addSettingRows(::settings()); }
    void settings();
    void constructor();
    void firstTextsHaveNoLeadingZeros();
    void metaObject();
    void formats_data();
    void formats();
    void customFormatSynchronisesNothing();
    void orders_data();
    void orders();
    void ordersOfOneEditor();
    void ordersSurviveAChangeOfFormat();
    void separatorsGoToBothEditors();
    void setFontReachesBothEditors();
    void draggingMarksModified();
    void calendarIsShown_data();
    void calendarIsShown();
};

void TestTavroDatetime::settings()
{
    QFETCH(int, index);
    checkSetting(::settings().at(index));
}

void TestTavroDatetime::constructor()
{
    QGraphicsRectItem form;
    const QDateTime before = QDateTime::currentDateTime();
    auto *object = new TavroDatetime(&form);
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(object->parentItem(), &form);
    QCOMPARE(object->objType(), Obj_Datetime);
    QCOMPARE(static_cast<int>(object->objType()), 9);
    QCOMPARE(object->isModified(), false);
    QCOMPARE(object->contentData().userType(), static_cast<int>(QMetaType::QDateTime));
    QVERIFY(object->contentData().toDateTime() >= before && object->contentData().toDateTime() <= after);
    QVERIFY(object->presetData().isNull());

    const QGraphicsProxyWidget *proxy = object->widgetPrxy();
    QCOMPARE(proxy->parentItem(), object);
    QCOMPARE(proxy->isVisible(), false);
    QCOMPARE(proxy->minimumSize().height(), 0.0);
    const auto *dates = qobject_cast<DateEdit *>(proxy->widget());
    QVERIFY(dates);
    QCOMPARE(dates->parentWidget(), nullptr);
    QCOMPARE(dates->font(), object->font());
    QCOMPARE(dates->dateTime(), object->contentData().toDateTime());
    const Editors both(*object);
    QCOMPARE(both.dates, dates);
    QCOMPARE(both.times->parentWidget(), nullptr);
    QCOMPARE(both.times->font(), object->font());
    QCOMPARE(both.times->dateTime(), object->contentData().toDateTime());
}

// The format is padded, the editor is not told so before the format is set.
void TestTavroDatetime::firstTextsHaveNoLeadingZeros()
{
    TavroDatetime object;
    object.setContentData(aMoment());
    QCOMPARE(static_cast<int>(object.dateTimeFormat()), 3);
    QCOMPARE(rowOf(*editorOf(object)), QStringLiteral("2022|年|1|月|5|日"));
    object.setDateTimeFormat(object.dateTimeFormat());
    QCOMPARE(rowOf(*editorOf(object)), QStringLiteral("2022|年|01|月|05|日"));
}

void TestTavroDatetime::metaObject()
{
    const QMetaObject &meta = TavroDatetime::staticMetaObject;
    QCOMPARE(meta.superClass(), &TavroText::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
    const QMetaMethod request = meta.method(meta.methodOffset());
    QCOMPARE(request.methodSignature(), QByteArray("aboutToShowCalendar(QDateTime)"));
    QCOMPARE(request.methodType(), QMetaMethod::Signal);
    const QMetaMethod moved = meta.method(meta.methodOffset() + 1);
    QCOMPARE(moved.methodSignature(), QByteArray("onSplitterMoved()"));
    QCOMPARE(moved.methodType(), QMetaMethod::Slot);
}

void TestTavroDatetime::formats_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("row");
    const auto row = [](int format, const char *section, const char *labels) {
        QTest::addRow("%d", format) << format << QString::fromLatin1(section) << QString::fromUtf8(labels);
    };
    row(0, "date", "贰零贰贰|年|零壹|月|零伍|日");
    row(1, "date", "贰零贰贰|年|壹|月|伍|日");
    row(2, "date", "二〇二二|年|一|月|五|日");
    row(3, "date", "2022|年|01|月|05|日");
    row(4, "date", "2022|年|1|月|5|日");
    row(5, "time", "8|时|5|分|9|秒");
    row(6, "custom", "");
    row(7, "date", "2022|年|1|月|5|日");
    row(-1, "date", "2022|年|1|月|5|日");
}

void TestTavroDatetime::formats()
{
    QFETCH(int, format);
    QFETCH(QString, section);
    QFETCH(QString, row);
    TavroDatetime object;
    object.setBoundingRect({0, 0, 300.9, 30});
    object.setContentData(aMoment());
    object.setDateTimeFormat(static_cast<Datetime_Format>(format));
    QCOMPARE(object.isDateSection(), section == QLatin1String("date"));
    QCOMPARE(object.isTimeSection(), section == QLatin1String("time"));
    QCOMPARE(object.isCustomSection(), section == QLatin1String("custom"));
    if (object.isCustomSection()) {
        QVERIFY(editorOf(object)->isHidden());
        QCOMPARE(object.splitSizes(), QList<int>{300});
        object.setSplitSizes({1, 2, 3, 4, 5, 6});
        QCOMPARE(object.splitSizes(), QList<int>{300});
        object.setBoundingRect({0, 0, -40.9, 30});
        QCOMPARE(object.splitSizes(), QList<int>{-40});
        return;
    }
    DateTimeEditPrototype *editor = editorOf(object);
    QCOMPARE(qobject_cast<TimeEdit *>(editor) != nullptr, object.isTimeSection());
    QVERIFY(!editor->isHidden());
    QCOMPARE(rowOf(*editor), row);
    QCOMPARE(object.splitSizes(), editor->sizes());
    object.setIsModified(false);
    object.setSplitSizes({150, 11, 30, 11, 60, 11});
    QCOMPARE(object.isModified(), false);
    QCOMPARE(object.splitSizes(), editor->sizes());
    QVERIFY(editor->sizes().at(0) > 2 * editor->sizes().at(4));
    if (object.isDateSection())
        QCOMPARE(static_cast<DateEdit *>(editor)->textStyle(), format);
    // A time is no style of dates.
    const Editors both(object);
    object.setDateTimeFormat(Dt_Capital);
    object.setDateTimeFormat(Dt_Time);
    QCOMPARE(both.dates->textStyle(), 1);
}

void TestTavroDatetime::customFormatSynchronisesNothing()
{
    TavroDatetime object;
    object.setContentData(aMoment());
    const Editors both(object);
    both.dates->setDateTime(Later);
    both.times->setDateTime(Later);
    object.setDateTimeFormat(Dt_Custom);
    QVERIFY(both.dates->isHidden());
    QVERIFY(both.times->isHidden());
    QCOMPARE(both.dates->dateTime(), Later);
    QCOMPARE(both.times->dateTime(), Later);
    object.setDateTimeFormat(Dt_Arabic);
    QCOMPARE(both.dates->dateTime(), aMoment());
    QCOMPARE(both.times->dateTime(), aMoment());
}

void TestTavroDatetime::orders_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("orderOfDates");
    QTest::addColumn<int>("orderOfTimes");
    QTest::newRow("date") << 3 << 5 << 5 << 5 << 0;
    QTest::newRow("date, beyond the orders") << 0 << 100 << 100 << 100 << 0;
    QTest::newRow("date, negative") << 4 << -3 << -3 << -3 << 0;
    QTest::newRow("beyond the formats") << 9 << 2 << 2 << 2 << 0;
    QTest::newRow("time") << 5 << 1 << 1 << 1000 << 1;
    QTest::newRow("time, first beyond the orders") << 5 << 2 << 0 << 1000 << 0;
    QTest::newRow("time, order of a date") << 5 << 5 << 0 << 1000 << 0;
    QTest::newRow("time, negative") << 5 << -3 << -3 << 1000 << -3;
    QTest::newRow("pattern") << 6 << 5 << 7 << 7 << 0;
}

void TestTavroDatetime::orders()
{
    QFETCH(int, format);
    QFETCH(int, order);
    QFETCH(int, stored);
    QFETCH(int, orderOfDates);
    QFETCH(int, orderOfTimes);
    TavroDatetime object;
    const Editors both(object);
    // Before: another order than any that is set.
    object.setOrderType(format == 6 ? 7 : 1000);
    if (format == 5) {
        object.setDateTimeFormat(Dt_Time);
        object.setOrderType(1);
    }
    object.setDateTimeFormat(static_cast<Datetime_Format>(format));
    both.dates->setGeometry(1, 2, 400, 50);
    both.times->setGeometry(1, 2, 400, 50);
    object.setIsModified(false);
    object.setOrderType(order);
    QCOMPARE(object.orderType(), stored);
    QCOMPARE(static_cast<int>(both.dates->orderType()), orderOfDates);
    QCOMPARE(static_cast<int>(both.times->orderType()), orderOfTimes);
    QVERIFY(object.isModified());
    // Both editors stand over the object again, whatever the format.
    QCOMPARE(both.dates->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(both.times->geometry().topLeft(), QPoint(0, 0));
}

void TestTavroDatetime::ordersOfOneEditor()
{
    for (const Datetime_Format format : {Dt_Arabic, Dt_Time, Dt_Custom}) {
        TavroDatetime object;
        const Editors both(object);
        object.setDateTimeFormat(format);
        both.dates->setGeometry(1, 2, 400, 50);
        both.times->setGeometry(1, 2, 400, 50);
        object.setIsModified(false);
        object.setDateOrderType(Order_DM);
        QCOMPARE(object.orderType(), 6);
        QCOMPARE(both.dates->orderType(), Order_DM);
        QCOMPARE(both.times->orderType(), Order_HMS);
        object.setTimeOrderType(Order_HM);
        QCOMPARE(object.orderType(), 1);
        QCOMPARE(both.dates->orderType(), Order_DM);
        QCOMPARE(both.times->orderType(), Order_HM);
        object.setTimeOrderType(static_cast<TimeOrderType>(5));
        QCOMPARE(object.orderType(), 5);
        QCOMPARE(both.times->count(), 0);
        QCOMPARE(object.isModified(), false);
        // Neither fits an editor into the rectangle.
        QCOMPARE(both.dates->geometry(), QRect(1, 2, 400, 50));
        QCOMPARE(both.times->geometry(), QRect(1, 2, 400, 50));
    }
}

void TestTavroDatetime::ordersSurviveAChangeOfFormat()
{
    TavroDatetime object;
    object.setContentData(aMoment());
    object.setOrderType(Order_MD);
    object.setDateTimeFormat(Dt_Time);
    QCOMPARE(object.orderType(), 4);
    QCOMPARE(rowOf(*editorOf(object)), QStringLiteral("8|时|5|分|9|秒"));
    object.setOrderType(Order_HM);
    object.setDateTimeFormat(Dt_Arabic);
    QCOMPARE(object.orderType(), 1);
    QCOMPARE(rowOf(*editorOf(object)), QStringLiteral("1|月|5|日"));
}

void TestTavroDatetime::separatorsGoToBothEditors()
{
    TavroDatetime object;
    object.setContentData(aMoment());
    const Editors both(object);
    QCOMPARE(rowOf(*both.times), QStringLiteral("8|时|5|分|9|秒"));
    object.setSeperatorType(Sep_Dash);
    QCOMPARE(rowOf(*both.dates), QStringLiteral("2022|-|01|-|05"));
    QCOMPARE(rowOf(*both.times), QStringLiteral("8|-|5|-|9"));
    object.setIsShowSeperator(false);
    QCOMPARE(rowOf(*both.dates), QStringLiteral("2022| |01| |05"));
    QCOMPARE(rowOf(*both.times), QStringLiteral("8| |5| |9"));
    object.setSeperatorType(Sep_ChineseDate);
    QCOMPARE(rowOf(*both.dates), QStringLiteral("2022|  |01|  |05|  "));
    QCOMPARE(both.times->count(), 0);
    object.setSeperatorType(Sep_ChineseTime);
    object.setIsShowSeperator(true);
    QCOMPARE(both.dates->count(), 0);
    QCOMPARE(rowOf(*both.times), QStringLiteral("8|时|5|分|9|秒"));
}

void TestTavroDatetime::setFontReachesBothEditors()
{
    TavroDatetime object;
    const Editors both(object);
    QSignalSpy changed(&object, &TavroDatetime::fontChanged);
    object.setFont(testFont(23));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(object.font(), testFont(23));
    QCOMPARE(both.dates->font(), testFont(23));
    QCOMPARE(both.times->font(), testFont(23));
    QCOMPARE(object.isModified(), false);
    // So do the settings of the text.
    object.setFontFamily(testFont().family());
    object.setIsBold(true);
    QCOMPARE(both.dates->font(), object.font());
    QCOMPARE(both.times->font(), object.font());
    QVERIFY(both.times->font().bold());
}

void TestTavroDatetime::draggingMarksModified()
{
    TavroDatetime object;
    const Editors both(object);
    for (DateTimeEditPrototype *editor :
         {static_cast<DateTimeEditPrototype *>(both.dates), static_cast<DateTimeEditPrototype *>(both.times)}) {
        object.setIsModified(false);
        Q_EMIT editor->splitterMoved(10, 1);
        QVERIFY(object.isModified());
    }
}

void TestTavroDatetime::calendarIsShown_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("realTime");
    QTest::addColumn<bool>("isShown");
    for (const int mode : {0, 1, 2, 7, -1}) {
        QTest::addRow("mode %d", mode) << mode << false << (mode == 1);
        QTest::addRow("mode %d, real time", mode) << mode << true << false;
    }
}

void TestTavroDatetime::calendarIsShown()
{
    QFETCH(int, mode);
    QFETCH(bool, realTime);
    QFETCH(bool, isShown);
    TavroDatetime object;
    object.setIsRealTime(realTime);
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(object.isShowCalendar(), isShown);
}

QTEST_MAIN(TestTavroDatetime)
#include "tst_tavrodatetime.moc"
