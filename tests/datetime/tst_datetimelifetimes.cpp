// SPDX-License-Identifier: MIT
// Objects, proxies, editors and labels that go while others still use them.
#include "tests/datetime/datetimeview.h"
#include "tests/support/stricttest.h"

#include <QPointer>
#include <functional>

using namespace editors;

namespace {

const QRectF Boxes(40, 50, 300, 30);

// Everything that a host may call, on an object that may have lost an editor or its proxy.
void useEverything(TavroDatetime &object)
{
    for (const int format : {3, 5, 6, 0, 9}) {
        object.setDateTimeFormat(static_cast<Datetime_Format>(format));
        for (const int mode : {0, 1, 2, 7}) {
            object.setPaintMode(static_cast<Paint_Mode>(mode));
            object.setBoundingRect(Boxes.translated(format, mode));
            object.setContentData(aMoment());
            object.setOrderType(1);
            object.setDateOrderType(Order_YMD);
            object.setTimeOrderType(Order_HMS);
            object.setSeperatorType(Sep_Slash);
            object.setIsShowSeperator(!object.isShowSeperator());
            object.setSplitSizes(object.splitSizes());
            object.setFont(testFont(9 + mode));
            object.setIsRealTime(mode == 1);
            RecordingDevice device;
            QPainter painter(&device);
            object.designPaint(&painter);
            object.inputPaint(&painter);
            object.printPaint(&painter);
            object.syncContentData();
            object.renew();
        }
    }
}

} // namespace

class TestDatetimeLifetimes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void changesOfAnotherKindWhileDragged_data();
    void changesOfAnotherKindWhileDragged();
    void rebuildWhileTheCalendarIsAskedFor();
    void deletedLaterFromItsSignals();
    void deletedWhileAHandleIsHeld();
    void partsGoInTheirOrder_data();
    void partsGoInTheirOrder();
    void everythingGoesWithTheObject_data();
    void everythingGoesWithTheObject();
    void everythingGoesWithTheScene_data();
    void everythingGoesWithTheScene();
    void widgetTakenOutFromOutside();
    void proxyDeletedFromOutside_data();
    void proxyDeletedFromOutside();
    void editorDeletedFromOutside_data();
    void editorDeletedFromOutside();
};

void TestDatetimeLifetimes::changesOfAnotherKindWhileDragged_data()
{
    QTest::addColumn<int>("change");
    QTest::newRow("time") << 0;
    QTest::newRow("pattern") << 1;
    QTest::newRow("input mode") << 2;
    QTest::newRow("print mode") << 3;
    QTest::newRow("invisible") << 4;
    QTest::newRow("out of the scene") << 5;
}

void TestDatetimeLifetimes::changesOfAnotherKindWhileDragged()
{
    QFETCH(int, change);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Design);
    const Editors both(*object);
    const QVector<std::function<void()>> changes{
        [&] { object->setDateTimeFormat(Dt_Time); }, [&] { object->setDateTimeFormat(Dt_Custom); },
        [&] { object->setPaintMode(Paint_Input); },  [&] { object->setPaintMode(Paint_Print); },
        [&] { object->setVisible(false); },          [&] { form.scene().removeItem(object); },
    };
    connect(both.dates, &QSplitter::splitterMoved, object, changes.at(change));
    const QPoint from = DatetimeView::handleCenter(*object, 3);
    form.press(from);
    form.moveTo(from + QPoint(5, 0));
    form.moveTo(from + QPoint(9, 0));
    form.release(from + QPoint(9, 0));
    QCoreApplication::processEvents();
    QVERIFY(object->isModified());
    if (!object->scene())
        form.scene().addItem(object);
    object->setVisible(true);
    useEverything(*object);
}

void TestDatetimeLifetimes::rebuildWhileTheCalendarIsAskedFor()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Input);
    int asked = 0;
    connect(object, &TavroDatetime::aboutToShowCalendar, object, [&] {
        ++asked;
        object->setOrderType(asked % 2 == 0 ? Order_YMD : Order_Y);
        // A modal calendar lets the event loop turn.
        QCoreApplication::processEvents();
    });
    for (int press = 1; press <= 3; ++press) {
        form.click(DatetimeView::labelCenter(*object, 0));
        QCOMPARE(asked, press);
        QCOMPARE(editorOf(*object)->count(), press % 2 == 0 ? 6 : 2);
    }
}

void TestDatetimeLifetimes::deletedLaterFromItsSignals()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    QPointer<TavroDatetime> designed = form.add(Boxes, Dt_Arabic, Paint_Design);
    connect(editorOf(*designed), &QSplitter::splitterMoved, designed, &QObject::deleteLater);
    const QPoint handle = DatetimeView::handleCenter(*designed, 3);
    form.press(handle);
    form.moveTo(handle + QPoint(5, 0));
    form.moveTo(handle + QPoint(9, 0));
    QTRY_VERIFY(designed.isNull());
    form.release(handle + QPoint(9, 0));

    QPointer<TavroDatetime> filledIn = form.add(Boxes, Dt_Time, Paint_Input);
    connect(filledIn, &TavroDatetime::aboutToShowCalendar, filledIn, &QObject::deleteLater);
    form.click(Boxes.center().toPoint());
    QTRY_VERIFY(filledIn.isNull());
    QCOMPARE(form.scene().items().size(), 0);
}

void TestDatetimeLifetimes::deletedWhileAHandleIsHeld()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Design);
    const QPoint handle = DatetimeView::handleCenter(*object, 3);
    form.press(handle);
    form.moveTo(handle + QPoint(5, 0));
    QVERIFY(object->isModified());
    // A rebuild is under way, too.
    connect(editorOf(*object), &QSplitter::splitterMoved, object, [object] { object->setOrderType(Order_Y); });
    form.moveTo(handle + QPoint(9, 0));
    delete object;
    form.moveTo(handle + QPoint(14, 0));
    form.release(handle + QPoint(14, 0));
    QCoreApplication::processEvents();
    QCOMPARE(form.scene().mouseGrabberItem(), nullptr);
}

void TestDatetimeLifetimes::partsGoInTheirOrder_data()
{
    QTest::addColumn<int>("format");
    for (const int format : {3, 5, 6})
        QTest::addRow("format %d", format) << format;
}

// The proxy outlives the editor that it held.
void TestDatetimeLifetimes::partsGoInTheirOrder()
{
    QFETCH(int, format);
    auto *object = new TavroDatetime;
    const Editors both(*object);
    object->setDateTimeFormat(static_cast<Datetime_Format>(format));
    QStringList gone;
    connect(both.dates, &QObject::destroyed, this, [&] { gone << QStringLiteral("dates"); });
    connect(both.times, &QObject::destroyed, this, [&] { gone << QStringLiteral("times"); });
    connect(object->widgetPrxy(), &QObject::destroyed, this, [&] { gone << QStringLiteral("proxy"); });
    connect(object, &QObject::destroyed, this, [&] { gone << QStringLiteral("object"); });
    delete object;
    QCOMPARE(gone.join(QLatin1Char(' ')), QStringLiteral("dates times proxy object"));
}

void TestDatetimeLifetimes::everythingGoesWithTheObject_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("mode");
    for (const int format : {3, 5, 6}) {
        for (const int mode : {0, 1, 2})
            QTest::addRow("format %d, mode %d", format, mode) << format << mode;
    }
}

void TestDatetimeLifetimes::everythingGoesWithTheObject()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    for (const bool inWindow : {false, true}) {
        for (const bool visible : {true, false}) {
            DatetimeView form;
            auto *object = new TavroDatetime;
            object->setPaintMode(static_cast<Paint_Mode>(mode));
            if (inWindow)
                form.scene().addItem(object);
            const Editors both(*object);
            object->setDateTimeFormat(static_cast<Datetime_Format>(format));
            object->setVisible(visible);
            QCoreApplication::processEvents();
            const QPointer<DateEdit> dates = both.dates;
            const QPointer<TimeEdit> times = both.times;
            const QPointer<QGraphicsProxyWidget> proxy = object->widgetPrxy();
            delete object;
            QVERIFY(dates.isNull());
            QVERIFY(times.isNull());
            QVERIFY(proxy.isNull());
            QCoreApplication::processEvents();
        }
    }
}

void TestDatetimeLifetimes::everythingGoesWithTheScene_data()
{
    everythingGoesWithTheObject_data();
}

void TestDatetimeLifetimes::everythingGoesWithTheScene()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    QVector<QPointer<QObject>> parts;
    {
        DatetimeView form;
        QVERIFY(form.isActive());
        for (const bool clears : {true, false}) {
            TavroDatetime *object =
                form.add(Boxes, static_cast<Datetime_Format>(format), static_cast<Paint_Mode>(mode));
            const Editors both(*object);
            for (QObject *part : QVector<QObject *>{object, object->widgetPrxy(), both.dates, both.times})
                parts.append(part);
            QCoreApplication::processEvents();
            if (clears)
                form.scene().clear();
        }
        QCOMPARE(parts.count(nullptr), 4);
    }
    QCOMPARE(parts.count(nullptr), 8);
}

void TestDatetimeLifetimes::widgetTakenOutFromOutside()
{
    auto *object = new TavroDatetime;
    const Editors both(*object);
    const QPointer<DateEdit> dates = both.dates;
    object->widgetPrxy()->setWidget(nullptr);
    useEverything(*object);
    object->widgetPrxy()->setWidget(nullptr);
    delete object;
    QVERIFY(dates.isNull());
}

void TestDatetimeLifetimes::proxyDeletedFromOutside_data()
{
    QTest::addColumn<int>("format");
    for (const int format : {3, 5, 6})
        QTest::addRow("format %d", format) << format;
}

void TestDatetimeLifetimes::proxyDeletedFromOutside()
{
    QFETCH(int, format);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Design);
    delete object->widgetPrxy();
    QCOMPARE(object->widgetPrxy(), nullptr);
    QCoreApplication::processEvents();
    useEverything(*object);
    object->setPaintMode(Paint_Input);
    form.click(Boxes.center().toPoint());
    delete object;
}

void TestDatetimeLifetimes::editorDeletedFromOutside_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("deletesTimes");
    for (const int format : {3, 5, 6}) {
        QTest::addRow("date editor, format %d", format) << format << false;
        QTest::addRow("time editor, format %d", format) << format << true;
    }
}

void TestDatetimeLifetimes::editorDeletedFromOutside()
{
    QFETCH(int, format);
    QFETCH(bool, deletesTimes);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Design);
    const Editors both(*object);
    if (deletesTimes)
        delete both.times;
    else
        delete both.dates;
    QCoreApplication::processEvents();
    useEverything(*object);
    if (deletesTimes) {
        object->setDateTimeFormat(Dt_Time);
        QCOMPARE(object->splitSizes(), QList<int>());
    }
    delete object;
}

QTEST_MAIN(TestDatetimeLifetimes)
#include "tst_datetimelifetimes.moc"
