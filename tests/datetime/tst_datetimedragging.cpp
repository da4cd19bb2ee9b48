// SPDX-License-Identifier: MIT
// Sections that are built anew while one of them is being dragged.
#include "tests/datetime/datetimeview.h"
#include "tests/support/stricttest.h"

#include <QPointer>
#include <QWindow>
#include <functional>

using namespace editors;

namespace {

const QRectF Boxes(40, 50, 300, 30);

// What a listener does while a section is being dragged, and the labels that are there afterwards.
struct Rebuild
{
    const char *name;
    std::function<void(TavroDatetime &)> ofObject;
    std::function<void(DateEdit &)> ofEditor;
    const char *row;
};

const QVector<Rebuild> Rebuilds{
    {"separator type", [](TavroDatetime &object) { object.setSeperatorType(Sep_Dash); },
     [](DateEdit &editor) { editor.setSeperatorType(Sep_Dash); }, "2022|-|1|-|5"},
    {"order", [](TavroDatetime &object) { object.setOrderType(Order_Y); },
     [](DateEdit &editor) { editor.setOrderType(Order_Y); }, "2022|年"},
    {"no order", [](TavroDatetime &object) { object.setOrderType(99); },
     [](DateEdit &editor) { editor.setOrderType(static_cast<DateOrderType>(99)); }, ""},
    {"hidden separators", [](TavroDatetime &object) { object.setIsShowSeperator(false); },
     [](DateEdit &editor) { editor.setIsShowSeperator(false); }, "2022|  |1|  |5|  "},
    {"style", [](TavroDatetime &object) { object.setDateTimeFormat(Dt_Numeral); },
     [](DateEdit &editor) { editor.setTextStyle(Dt_Numeral); }, "二〇二二|年|一|月|五|日"},
    {"several",
     [](TavroDatetime &object) {
         object.setOrderType(Order_Y);
         object.setIsShowSeperator(false);
         object.setSeperatorType(Sep_Slash);
         object.setOrderType(Order_DMY);
         object.setContentData(QDateTime(QDate(1999, 12, 31), QTime(0, 0)));
     },
     [](DateEdit &editor) {
         editor.setOrderType(Order_Y);
         editor.setIsShowSeperator(false);
         editor.setSeperatorType(Sep_Slash);
         editor.setOrderType(Order_DMY);
         editor.setDateTime(QDateTime(QDate(1999, 12, 31), QTime(0, 0)));
     },
     "31| |12| |1999"},
};

void addRebuildRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Rebuilds.size(); ++i)
        QTest::newRow(Rebuilds.at(i).name) << i;
}

} // namespace

class TestDatetimeDragging : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rebuildWhileAnEditorIsDragged_data() { addRebuildRows(); }
    void rebuildWhileAnEditorIsDragged();
    void rebuildAtTheEndOfADrag();
    void widgetsOfAHost();
    void rebuildWhileAnObjectIsDragged_data() { addRebuildRows(); }
    void rebuildWhileAnObjectIsDragged();
    void eventLoopTurnsWhileDragged();
    void timeIsRebuiltWhileDragged();
};

void TestDatetimeDragging::rebuildWhileAnEditorIsDragged()
{
    QFETCH(int, index);
    const auto made = editor(false);
    auto *dates = static_cast<DateEdit *>(made.get());
    dates->show();
    QVERIFY(QTest::qWaitForWindowExposed(dates));
    int moves = 0;
    connect(dates, &QSplitter::splitterMoved, dates, [&] {
        ++moves;
        Rebuilds.at(index).ofEditor(*dates);
    });
    const QPoint from = dates->handle(3)->geometry().center();
    QWindow *window = dates->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    for (const int x : {5, 9, 14})
        QTest::mouseMove(window, from + QPoint(x, 0));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, from + QPoint(14, 0));
    QVERIFY(moves > 0);
    QTRY_COMPARE(rowOf(*dates), QString::fromUtf8(Rebuilds.at(index).row));
    QCOMPARE(dates->findChildren<QLabel *>().size(), dates->count());
}

void TestDatetimeDragging::rebuildAtTheEndOfADrag()
{
    const auto made = editor(false);
    auto *dates = static_cast<DateEdit *>(made.get());
    // The sections follow when the button is released.
    dates->setOpaqueResize(false);
    dates->show();
    QVERIFY(QTest::qWaitForWindowExposed(dates));
    const QPointer<QSplitterHandle> handle = dates->handle(3);
    int moves = 0;
    connect(dates, &QSplitter::splitterMoved, dates, [&] {
        ++moves;
        dates->setSeperatorType(Sep_Slash);
        QVERIFY(!handle.isNull());
    });
    const QPoint from = dates->handle(3)->geometry().center();
    QWindow *window = dates->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(window, from + QPoint(9, 0));
    QCOMPARE(moves, 0);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, from + QPoint(9, 0));
    QCOMPARE(moves, 1);
    QTRY_COMPARE(dates->count(), 5);
    QVERIFY(handle.isNull());
}

// The rows of a splitter take in whatever a host makes their child.
void TestDatetimeDragging::widgetsOfAHost()
{
    DateEdit dates;
    dates.addWidget(new QWidget);
    DateEdit none;
    none.setSeperatorType(Sep_ChineseTime);
    none.addWidget(new QWidget);
    DateEdit first;
    first.insertWidget(0, new QWidget);
    DateEdit fewer;
    delete fewer.widget(5);
    QImage image(100, 20, QImage::Format_RGB32);
    QPainter painter(&image);
    for (DateEdit *edit : {&dates, &none, &first, &fewer}) {
        edit->setDateTime(QDateTime(QDate(2022, 1, 5), QTime(8, 5, 9)));
        edit->setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
        edit->paintSections(&painter, QRectF(0, 0, 100, 20));
    }
    QCOMPARE(dates.count(), 7);
    QCOMPARE(qobject_cast<QLabel *>(dates.widget(0))->text(), QStringLiteral("2022"));
    QCOMPARE(none.count(), 1);
    QCOMPARE(first.count(), 7);
    QCOMPARE(fewer.count(), 5);
    // New sections bring the row in order again.
    for (DateEdit *edit : {&first, &fewer}) {
        edit->setSeperatorType(Sep_Dash);
        QCOMPARE(edit->count(), 5);
        QCOMPARE(qobject_cast<QLabel *>(edit->widget(4))->text(), QStringLiteral("5"));
    }
}

void TestDatetimeDragging::rebuildWhileAnObjectIsDragged()
{
    QFETCH(int, index);
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Design);
    DateTimeEditPrototype *dates = editorOf(*object);
    int moves = 0;
    connect(dates, &QSplitter::splitterMoved, object, [&] {
        ++moves;
        Rebuilds.at(index).ofObject(*object);
    });
    const QPoint from = DatetimeView::handleCenter(*object, 3);
    const QPointer<QSplitterHandle> handle = dates->handle(3);
    form.press(from);
    form.moveTo(from + QPoint(5, 0));
    // The proxy has not done with the handle before the event loop turns.
    QVERIFY(!handle.isNull());
    form.moveTo(from + QPoint(9, 0));
    QCoreApplication::processEvents();
    QVERIFY(handle.isNull());
    // The drag goes on without it.
    form.moveTo(from + QPoint(14, 0));
    form.release(from + QPoint(14, 0));
    QVERIFY(moves > 0);
    QTRY_COMPARE(rowOf(*dates), QString::fromUtf8(Rebuilds.at(index).row));
    QCOMPARE(object->pos(), QPointF());
    // The next drag starts anew.
    if (dates->count() < 2)
        return;
    moves = 0;
    const QPoint next = DatetimeView::handleCenter(*object, 1);
    form.drag(next, next + QPoint(-8, 0));
    QVERIFY(moves > 0);
    QTRY_COMPARE(rowOf(*dates), QString::fromUtf8(Rebuilds.at(index).row));
}

// A listener that opens a dialog: the next moves come before it has returned.
void TestDatetimeDragging::eventLoopTurnsWhileDragged()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Arabic, Paint_Design);
    const QPointer<QSplitterHandle> handle = editorOf(*object)->handle(3);
    const QPoint from = DatetimeView::handleCenter(*object, 3);
    int moves = 0;
    connect(editorOf(*object), &QSplitter::splitterMoved, object, [&] {
        if (++moves == 1)
            form.moveTo(from + QPoint(9, 0));
        else if (moves == 3)
            QCoreApplication::processEvents();
        object->setOrderType(Order_Y);
        QVERIFY(!handle.isNull());
    });
    form.press(from);
    form.moveTo(from + QPoint(5, 0));
    QCOMPARE(moves, 2);
    form.moveTo(from + QPoint(14, 0));
    QCOMPARE(moves, 3);
    QTRY_COMPARE(rowOf(*editorOf(*object)), QStringLiteral("2022|年"));
    form.release(from);
}

void TestDatetimeDragging::timeIsRebuiltWhileDragged()
{
    DatetimeView form;
    QVERIFY(form.isActive());
    TavroDatetime *object = form.add(Boxes, Dt_Time, Paint_Design);
    connect(editorOf(*object), &QSplitter::splitterMoved, object, [object] {
        object->setSeperatorType(Sep_Colon);
        object->setOrderType(Order_HM);
        object->setIsShowSeperator(!object->isShowSeperator());
    });
    const QPoint from = DatetimeView::handleCenter(*object, 5);
    form.press(from);
    form.moveTo(from - QPoint(5, 0));
    form.release(from - QPoint(5, 0));
    QCOMPARE(object->orderType(), 1);
    QTRY_COMPARE(rowOf(*editorOf(*object)), QStringLiteral("8| |5"));
}

QTEST_MAIN(TestDatetimeDragging)
#include "tst_datetimedragging.moc"
