// SPDX-License-Identifier: MIT
// Presses and drags on a date/time object in a window.
#include "tests/datetime/datetimeview.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QWheelEvent>

using namespace editors;

namespace {

const QRectF Boxes(40, 50, 300, 30);

} // namespace

class TestTavroDatetimeInput : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void pressAsksForACalendar_data();
    void pressAsksForACalendar();
    void pressOnTheEdgeAsks();
    void noOtherPressAsks_data();
    void noOtherPressAsks();
    void everyPressAsks();
    void calendarStartsFromTheContent();
    void chosenValueIsShown();
    void pressIsPassedOn();
    void objectsThatTakeNoInput();
    void sectionsAreDraggedInDesignMode_data();
    void sectionsAreDraggedInDesignMode();
    void sectionsStayInInputMode_data();
    void sectionsStayInInputMode();
    void objectIsSelectedAndMovedByItsLabels_data();
    void objectIsSelectedAndMovedByItsLabels();
    void lockedObjectsStay();
    void sectionIsDraggedAfterTheObject();
    void keysAndWheelChangeNothing_data();
    void keysAndWheelChangeNothing();
};

void TestTavroDatetimeInput::pressAsksForACalendar_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("button");
    for (const int format : {0, 3, 5, 6}) {
        QTest::addRow("format %d", format) << format << static_cast<int>(Qt::LeftButton);
        QTest::addRow("format %d, right button", format) << format << static_cast<int>(Qt::RightButton);
    }
}

void TestTavroDatetimeInput::pressAsksForACalendar()
{
    QFETCH(int, format);
    QFETCH(int, button);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    QVector<QPoint> places;
    if (format == 6) {
        places = {Boxes.center().toPoint(), {45, 55}, {335, 75}};
    } else {
        // Values, separators, and handles that are disabled in this mode.
        for (int i = 0; i < 6; ++i)
            places << DatetimeView::labelCenter(*object, i);
        for (int i = 1; i < 6; ++i)
            places << DatetimeView::handleCenter(*object, i);
    }
    for (const QPoint &place : qAsConst(places)) {
        form.press(place, static_cast<Qt::MouseButton>(button));
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.takeFirst().first(), QVariant(aMoment()));
        form.release(place, static_cast<Qt::MouseButton>(button));
        QCOMPARE(asked.count(), 0);
    }
}

// The editor stands on whole pixels; the object does not.
void TestTavroDatetimeInput::pressOnTheEdgeAsks()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add({40.6, 50.6, 300.7, 30.7}, Dt_Arabic, Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    const QVector<QPoint> border{{41, 65}, {341, 65}, {200, 51}, {200, 81}, {41, 51}, {341, 81}};
    for (const QPoint &place : border)
        form.click(place);
    QCOMPARE(asked.count(), border.size());
    form.click({39, 65});
    form.click({200, 83});
    QCOMPARE(asked.count(), border.size());
}

void TestTavroDatetimeInput::noOtherPressAsks_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("realTime");
    for (const int format : {3, 5, 6}) {
        for (const int mode : {0, 2, 7})
            QTest::addRow("format %d, mode %d", format, mode) << format << mode << false;
        for (const int mode : {0, 1, 2})
            QTest::addRow("format %d, mode %d, real time", format, mode) << format << mode << true;
    }
}

void TestTavroDatetimeInput::noOtherPressAsks()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    QFETCH(bool, realTime);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    const QPoint place = Boxes.center().toPoint() + QPoint(3, 0);
    form.click(place);
    QCOMPARE(asked.count(), 1);
    object->setPaintMode(static_cast<Paint_Mode>(mode));
    object->setIsRealTime(realTime);
    form.click(place);
    form.click(DatetimeView::handleCenter(*object, 1));
    QCOMPARE(asked.count(), 1);
}

void TestTavroDatetimeInput::everyPressAsks()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    const QPoint place = DatetimeView::labelCenter(*object, 2);
    form.click(place);
    QCOMPARE(asked.count(), 1);
    form.doubleClick(place);
    QCOMPARE(asked.count(), 3);
    form.press(place);
    QCOMPARE(asked.count(), 4);
    form.moveTo(place + QPoint(5, 5));
    form.release(place + QPoint(5, 5));
    QCOMPARE(asked.count(), 4);
}

void TestTavroDatetimeInput::calendarStartsFromTheContent()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    const QPoint place = Boxes.center().toPoint();
    // Not from what an editor shows.
    qobject_cast<DateEdit *>(editorOf(*object))->setDateTime(QDateTime(QDate(1999, 1, 1), QTime(1, 1)));
    form.click(place);
    QCOMPARE(asked.takeFirst().first(), QVariant(aMoment()));
    object->setContentData(QStringLiteral("no date"));
    form.click(place);
    QCOMPARE(asked.takeFirst().first(), QVariant(QDateTime()));
}

void TestTavroDatetimeInput::chosenValueIsShown()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_CapitalFormal, Paint_Input);
    connect(object, &TavroDatetime::aboutToShowCalendar, object,
            [object](const QDateTime &shown) { object->setContentData(shown.addDays(5)); });
    form.click(Boxes.center().toPoint());
    QCOMPARE(object->contentData(), QVariant(aMoment().addDays(5)));
    QCOMPARE(rowOf(*editorOf(*object)), QStringLiteral("贰零贰贰|年|零壹|月|零壹拾|日"));
}

// A press does nothing to the object itself, so what lies below it gets it too.
void TestTavroDatetimeInput::pressIsPassedOn()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *below = form.add(Boxes, Dt_Arabic, Paint_Input);
    TavroDatetime *above = form.add(Boxes, Dt_Arabic, Paint_Input);
    QSignalSpy belowAsked(below, &TavroDatetime::aboutToShowCalendar);
    QSignalSpy aboveAsked(above, &TavroDatetime::aboutToShowCalendar);
    form.press(Boxes.center().toPoint());
    QCOMPARE(aboveAsked.count(), 1);
    QCOMPARE(belowAsked.count(), 1);
    QCOMPARE(form.scene().mouseGrabberItem(), nullptr);
    QVERIFY(!above->isSelected());
    form.release(Boxes.center().toPoint());
}

void TestTavroDatetimeInput::objectsThatTakeNoInput()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    object->setObjEnabled(false);
    object->setPaintMode(Paint_Input);
    form.click(Boxes.center().toPoint());
    QCOMPARE(asked.count(), 0);
    object->setObjEnabled(true);
    object->setObjVisible(false);
    object->setPaintMode(Paint_Input);
    QVERIFY(!editorOf(*object)->isVisible());
    form.click(Boxes.center().toPoint());
    QCOMPARE(asked.count(), 0);
    object->setObjVisible(true);
    object->setPaintMode(Paint_Input);
    QVERIFY(editorOf(*object)->isVisible());
    form.click(Boxes.center().toPoint());
    QCOMPARE(asked.count(), 1);
}

void TestTavroDatetimeInput::sectionsAreDraggedInDesignMode_data()
{
    QTest::addColumn<int>("format");
    for (const int format : {0, 3, 5})
        QTest::addRow("format %d", format) << format;
}

void TestTavroDatetimeInput::sectionsAreDraggedInDesignMode()
{
    QFETCH(int, format);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Design);
    const QList<int> before = object->splitSizes();
    const QPoint handle = DatetimeView::handleCenter(*object, 2);
    form.drag(handle, handle + QPoint(30, 0));
    QVERIFY(object->isModified());
    const QList<int> after = object->splitSizes();
    QVERIFY(qAbs(after.at(0) - before.at(0) - 30) <= 1);
    QVERIFY(qAbs(after.at(2) - before.at(2) + 30) <= 1);
    // The section moved, the object did not.
    QCOMPARE(object->pos(), QPointF());
    QCOMPARE(object->boundingRect(), Boxes);
    QVERIFY(!object->isSelected());
    // Down to the width of a printed box.
    const QPoint next = DatetimeView::handleCenter(*object, 1);
    form.drag(next, next - QPoint(after.at(0) - 4, 0));
    QVERIFY(qAbs(object->splitSizes().at(0) - 4) <= 1);
}

void TestTavroDatetimeInput::sectionsStayInInputMode_data()
{
    sectionsAreDraggedInDesignMode_data();
}

void TestTavroDatetimeInput::sectionsStayInInputMode()
{
    QFETCH(int, format);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Input);
    QSignalSpy asked(object, &TavroDatetime::aboutToShowCalendar);
    const QList<int> before = object->splitSizes();
    const QPoint handle = DatetimeView::handleCenter(*object, 2);
    form.drag(handle, handle + QPoint(30, 0));
    QCOMPARE(object->splitSizes(), before);
    QCOMPARE(object->isModified(), false);
    QCOMPARE(object->pos(), QPointF());
    QCOMPARE(asked.count(), 1);
}

void TestTavroDatetimeInput::objectIsSelectedAndMovedByItsLabels_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("label");
    for (const int format : {3, 5}) {
        for (const int label : {0, 1, 4, 5})
            QTest::addRow("format %d, label %d", format, label) << format << label;
    }
    QTest::newRow("pattern") << 6 << -1;
}

void TestTavroDatetimeInput::objectIsSelectedAndMovedByItsLabels()
{
    QFETCH(int, format);
    QFETCH(int, label);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), Paint_Design);
    const QPoint place = label < 0 ? Boxes.center().toPoint() : DatetimeView::labelCenter(*object, label);
    const QList<int> before = object->splitSizes();
    form.click(place);
    QVERIFY(object->isSelected());
    form.drag(place, place + QPoint(12, 34));
    QCOMPARE(object->pos(), QPointF(12, 34));
    QCOMPARE(object->splitSizes(), before);
    // The editor moves along.
    QCOMPARE(object->widgetPrxy()->sceneBoundingRect().topLeft(), Boxes.topLeft() + QPointF(12, 34));
    form.click({390, 290});
    QVERIFY(!object->isSelected());
}

void TestTavroDatetimeInput::lockedObjectsStay()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Design);
    object->setIsLocked(true);
    const QPoint place = DatetimeView::labelCenter(*object, 2);
    form.drag(place, place + QPoint(12, 34));
    QVERIFY(object->isSelected());
    QCOMPARE(object->pos(), QPointF());
}

// A press that a label leaves to the object does not stay with the label.
void TestTavroDatetimeInput::sectionIsDraggedAfterTheObject()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Design);
    for (int round = 0; round < 2; ++round) {
        const QPoint label = DatetimeView::labelCenter(*object, 0);
        const QPointF position = object->pos();
        form.drag(label, label + QPoint(5, 6));
        QCOMPARE(object->pos(), position + QPointF(5, 6));
        const QList<int> before = object->splitSizes();
        const QPoint handle = DatetimeView::handleCenter(*object, 2);
        form.drag(handle, handle + QPoint(10, 0));
        QVERIFY(object->splitSizes() != before);
        QCOMPARE(object->pos(), position + QPointF(5, 6));
    }
}

void TestTavroDatetimeInput::keysAndWheelChangeNothing_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("mode");
    for (const int format : {3, 5}) {
        for (const int mode : {0, 1})
            QTest::addRow("format %d, mode %d", format, mode) << format << mode;
    }
}

void TestTavroDatetimeInput::keysAndWheelChangeNothing()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, static_cast<Datetime_Format>(format), static_cast<Paint_Mode>(mode));
    const QString row = rowOf(*editorOf(*object));
    const QPoint place = DatetimeView::labelCenter(*object, 0);
    form.click(place);
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_7, Qt::Key_Delete, Qt::Key_Space}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("7"));
        QCoreApplication::sendEvent(&form.scene(), &press);
        QVERIFY2(!press.isAccepted(), qPrintable(QString::number(key)));
    }
    QWheelEvent wheel(place, form.view().viewport()->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(form.view().viewport(), &wheel);
    QVERIFY(!wheel.isAccepted());
    QCOMPARE(rowOf(*editorOf(*object)), row);
    QCOMPARE(object->contentData(), QVariant(aMoment()));
    QCOMPARE(object->isModified(), false);
}

QTEST_MAIN(TestTavroDatetimeInput)
#include "tst_tavrodatetimeinput.moc"
