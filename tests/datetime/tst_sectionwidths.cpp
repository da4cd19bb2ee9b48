// SPDX-License-Identifier: MIT
// How wide the sections of an editor are: dragged, given back, kept or shared out anew, shown or hidden.
#include "tests/datetime/editorprobes.h"
#include "tests/support/stricttest.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <numeric>

using namespace editors;

namespace {

void addKindRows()
{
    QTest::addColumn<bool>("ofTime");
    QTest::newRow("date") << false;
    QTest::newRow("time") << true;
}

// Widths that nobody would share out.
const QList<int> Dragged{150, 15, 30, 15, 60, 15};

int total(const QList<int> &widths)
{
    return std::accumulate(widths.cbegin(), widths.cend(), 0);
}

// Shares of a width are rounded, and a handle of two pixels is grabbed one pixel beside it too.
bool isNear(int width, int expected)
{
    return qAbs(width - expected) <= 1;
}

// Shown, so that a handle can be dragged.
void show(QWidget &widget)
{
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
}

// Drags the handle in front of a label with the left button, step by step.
void dragHandle(DateTimeEditPrototype &editor, int index, int pixels)
{
    QWindow *window = editor.windowHandle();
    const QPoint from = editor.handle(index)->geometry().center();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(window, from + QPoint(pixels / 2, 0));
    QTest::mouseMove(window, from + QPoint(pixels, 0));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, from + QPoint(pixels, 0));
}

QVector<bool> enabledHandles(const DateTimeEditPrototype &editor)
{
    QVector<bool> enabled;
    for (int i = 0; i < editor.count(); ++i)
        enabled.append(editor.handle(i)->isEnabled());
    return enabled;
}

} // namespace

class TestSectionWidths : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void widthsAreGivenBack_data() { addKindRows(); }
    void widthsAreGivenBack();
    void hidingSeparatorsKeepsTheWidths_data();
    void hidingSeparatorsKeepsTheWidths();
    void otherRebuildsShareTheWidthsOutAnew_data();
    void otherRebuildsShareTheWidthsOutAnew();
    void textsLeaveTheWidths_data() { addKindRows(); }
    void textsLeaveTheWidths();
    void hiddenEditorsAreLaidOut_data() { addKindRows(); }
    void hiddenEditorsAreLaidOut();
    void smallRectangles_data();
    void smallRectangles();
    void sectionsAreDragged_data() { addKindRows(); }
    void sectionsAreDragged();
    void sectionsAreDraggedIntoNarrowBoxes();
    void handlesAreEnabledTogether_data() { addKindRows(); }
    void handlesAreEnabledTogether();
    void disabledHandlesAreNotDragged_data() { addKindRows(); }
    void disabledHandlesAreNotDragged();
    void takesNoKey_data() { addKindRows(); }
    void takesNoKey();
    void takesNoWheel_data() { addKindRows(); }
    void takesNoWheel();
};

void TestSectionWidths::widthsAreGivenBack()
{
    QFETCH(bool, ofTime);
    const auto dragged = editor(ofTime);
    dragged->setSizes(Dragged);
    const QList<int> stored = dragged->sizes();
    QCOMPARE(stored.size(), 6);
    QCOMPARE(total(stored), 300 - 5 * 2);
    for (int i = 0; i < stored.size(); ++i)
        QCOMPARE(stored.at(i), dragged->widget(i)->width());
    QVERIFY(stored.at(0) > 2 * stored.at(4) && stored.at(4) > stored.at(2));
    // A form that is loaded finds its sections over the boxes again.
    const auto loaded = editor(ofTime);
    QVERIFY(loaded->sizes() != stored);
    loaded->setSizes(stored);
    QCOMPARE(loaded->sizes(), stored);
}

void TestSectionWidths::hidingSeparatorsKeepsTheWidths_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isShown");
    for (const bool ofTime : {false, true}) {
        for (const int type : {ofTime ? 1 : 0, 2, 3, 4}) {
            QTest::addRow("%s, type %d, hidden while off screen", ofTime ? "time" : "date", type)
                << ofTime << type << false;
            QTest::addRow("%s, type %d, hidden while on screen", ofTime ? "time" : "date", type)
                << ofTime << type << true;
        }
    }
}

void TestSectionWidths::hidingSeparatorsKeepsTheWidths()
{
    QFETCH(bool, ofTime);
    QFETCH(int, type);
    QFETCH(bool, isShown);
    const auto made = editor(ofTime);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    made->setSizes(Dragged);
    if (isShown)
        show(*made);
    const QList<int> before = made->sizes();
    made->setIsShowSeperator(false);
    // As an editor without separators to which the widths are given.
    const auto expected = editor(ofTime);
    expected->setIsShowSeperator(false);
    expected->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    expected->setSizes(before);
    QCOMPARE(made->sizes(), expected->sizes());
    QVERIFY(made->sizes().at(0) > 2 * made->sizes().at(4));
    made->setIsShowSeperator(true);
    QCOMPARE(made->sizes().size(), before.size());
    for (int i = 0; i < before.size(); ++i)
        QVERIFY(isNear(made->sizes().at(i), before.at(i)));
}

void TestSectionWidths::otherRebuildsShareTheWidthsOutAnew_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<int>("setter");
    QTest::newRow("separator type of a date") << false << 0;
    QTest::newRow("order of a date") << false << 1;
    QTest::newRow("text style of a date") << false << 2;
    QTest::newRow("separator type of a time") << true << 0;
    QTest::newRow("order of a time") << true << 1;
}

void TestSectionWidths::otherRebuildsShareTheWidthsOutAnew()
{
    QFETCH(bool, ofTime);
    QFETCH(int, setter);
    const auto made = editor(ofTime);
    made->setSizes(Dragged);
    const QPointer<QWidget> labelBefore = made->widget(0);
    // Also a value that was set before builds the labels anew.
    if (setter == 0)
        made->setSeperatorType(made->seperatorType());
    else if (setter == 1)
        setOrder(*made, 0);
    else
        qobject_cast<DateEdit *>(made.get())->setTextStyle(4);
    QVERIFY(labelBefore.isNull());
    const QList<int> widths = made->sizes();
    QVERIFY(isNear(widths.at(0), widths.at(2)));
    QVERIFY(isNear(widths.at(0), widths.at(4)));
    QCOMPARE(total(widths), 300 - 5 * 2);
}

void TestSectionWidths::textsLeaveTheWidths()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    show(*made);
    made->setSizes(Dragged);
    const QList<int> before = made->sizes();
    const QPointer<QWidget> labelBefore = made->widget(0);
    made->setDateTime(QDateTime(QDate(12345, 11, 30), QTime(23, 59, 59)));
    QCoreApplication::processEvents();
    QCOMPARE(made->sizes(), before);
    QCOMPARE(made->widget(0), labelBefore.data());
}

// On paper no editor is ever shown.
void TestSectionWidths::hiddenEditorsAreLaidOut()
{
    QFETCH(bool, ofTime);
    const auto hidden = editor(ofTime);
    const auto shown = editor(ofTime);
    show(*shown);
    const auto check = [&] {
        QVERIFY(!hidden->isVisible());
        QCOMPARE(hidden->sizes(), shown->sizes());
        for (int i = 0; i < hidden->count(); ++i)
            QCOMPARE(hidden->widget(i)->geometry(), shown->widget(i)->geometry());
    };
    check();
    for (DateTimeEditPrototype *made : {hidden.get(), shown.get()})
        made->setSizes(Dragged);
    check();
    for (DateTimeEditPrototype *made : {hidden.get(), shown.get()})
        made->follow(QRect(shown->pos(), QSize(451, 77)));
    check();
    QCOMPARE(hidden->widget(0)->height(), 77);
    for (DateTimeEditPrototype *made : {hidden.get(), shown.get()})
        made->setFont(testFont(25));
    check();
    for (DateTimeEditPrototype *made : {hidden.get(), shown.get()})
        setOrder(*made, 1);
    check();
    for (DateTimeEditPrototype *made : {hidden.get(), shown.get()})
        made->setIsShowSeperator(false);
    check();
}

void TestSectionWidths::smallRectangles_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("fits");
    for (const bool ofTime : {false, true}) {
        const char *kind = ofTime ? "time" : "date";
        QTest::addRow("%s, a small box", kind) << ofTime << QSize(60, 9) << true;
        QTest::addRow("%s, one pixel high", kind) << ofTime << QSize(100, 1) << true;
        QTest::addRow("%s, no height", kind) << ofTime << QSize(100, 0) << true;
        QTest::addRow("%s, narrower than the separators", kind) << ofTime << QSize(8, 5) << false;
        QTest::addRow("%s, nothing", kind) << ofTime << QSize(0, 0) << false;
    }
}

void TestSectionWidths::smallRectangles()
{
    QFETCH(bool, ofTime);
    QFETCH(QSize, size);
    QFETCH(bool, fits);
    const auto made = editor(ofTime);
    made->setFont(testFont(7));
    const QPoint place(-20, 33);
    made->follow(QRect(place, size));
    QCOMPARE(made->pos(), place);
    QCOMPARE(made->height(), size.height());
    const QList<int> widths = made->sizes();
    const int separators = widths.at(1) + widths.at(3) + widths.at(5);
    // Values shrink to nothing, separators and handles stay.
    QCOMPARE(made->width(), fits ? size.width() : separators + 5 * 2);
    QCOMPARE(widths.at(1), QFontMetrics(testFont(7)).horizontalAdvance(labelAt(*made, 1)->text()));
    QCOMPARE(widths.at(0) + widths.at(2) + widths.at(4), made->width() - separators - 5 * 2);
    // And grows again.
    made->follow({0, 0, 300, 30});
    QCOMPARE(made->geometry(), QRect(0, 0, 300, 30));
}

void TestSectionWidths::sectionsAreDragged()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    show(*made);
    const QList<int> before = made->sizes();
    QSignalSpy moved(made.get(), &QSplitter::splitterMoved);
    // The handle behind the first separator: the second value gives what the first takes.
    dragHandle(*made, 2, 20);
    QVERIFY(moved.count() > 0);
    const QList<int> after = made->sizes();
    QVERIFY(isNear(after.at(0), before.at(0) + 20));
    QCOMPARE(after.at(1), before.at(1));
    QCOMPARE(after.at(0) + after.at(2), before.at(0) + before.at(2));
    QCOMPARE(after.mid(3), before.mid(3));
}

// Printed boxes of digits are narrow.
void TestSectionWidths::sectionsAreDraggedIntoNarrowBoxes()
{
    const auto made = editor(false);
    show(*made);
    dragHandle(*made, 1, -(made->sizes().at(0) - 5));
    QVERIFY(isNear(made->sizes().at(0), 5));
    dragHandle(*made, 4, -(made->sizes().at(2) - 3));
    QVERIFY(isNear(made->sizes().at(2), 3));
    // To nothing, but the section stays.
    dragHandle(*made, 1, -50);
    QCOMPARE(made->sizes().at(0), 0);
    QVERIFY(made->widget(0)->isVisible());
    QCOMPARE(made->sizes().at(1), labelAt(*made, 1)->minimumWidth());
    dragHandle(*made, 1, 7);
    QVERIFY(isNear(made->sizes().at(0), 7));
}

void TestSectionWidths::handlesAreEnabledTogether()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    QCOMPARE(enabledHandles(*made), QVector<bool>(6, true));
    for (const bool enabled : {false, true}) {
        made->setHandlesEnabled(enabled);
        QCOMPARE(enabledHandles(*made), QVector<bool>(6, enabled));
        // New handles are as the others were.
        made->setSeperatorType(Sep_Slash);
        QCOMPARE(enabledHandles(*made), QVector<bool>(5, enabled));
        setOrder(*made, -1);
        setOrder(*made, 0);
        QCOMPARE(enabledHandles(*made), QVector<bool>(5, enabled));
        made->setIsShowSeperator(!made->isShowSeperator());
        QCOMPARE(enabledHandles(*made), QVector<bool>(5, enabled));
        QVERIFY(made->isEnabled());
        QVERIFY(made->widget(0)->isEnabled());
        made->setSeperatorType(ofTime ? Sep_ChineseTime : Sep_ChineseDate);
    }
}

void TestSectionWidths::disabledHandlesAreNotDragged()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    made->setHandlesEnabled(false);
    show(*made);
    const QList<int> before = made->sizes();
    dragHandle(*made, 2, 20);
    QCOMPARE(made->sizes(), before);
    made->setHandlesEnabled(true);
    dragHandle(*made, 2, 20);
    QVERIFY(made->sizes() != before);
}

void TestSectionWidths::takesNoKey()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    show(*made);
    QCOMPARE(made->focusPolicy(), Qt::NoFocus);
    const QString row = rowOf(*made);
    const QList<int> widths = made->sizes();
    const QVector<QWidget *> receivers{made.get(), made->widget(0), made->handle(1)};
    for (QWidget *receiver : receivers) {
        QCOMPARE(receiver->focusPolicy(), Qt::NoFocus);
        for (const int key : {Qt::Key_7, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp,
                              Qt::Key_Home, Qt::Key_End, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Space}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_7 ? QStringLiteral("7") : QString());
            QCoreApplication::sendEvent(receiver, &event);
            QVERIFY2(!event.isAccepted(), qPrintable(QString::number(key)));
        }
    }
    QCOMPARE(rowOf(*made), row);
    QCOMPARE(made->dateTime(), aMoment());
    QCOMPARE(made->sizes(), widths);
}

void TestSectionWidths::takesNoWheel()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    show(*made);
    const QString row = rowOf(*made);
    const QList<int> widths = made->sizes();
    const QVector<QWidget *> receivers{made.get(), made->widget(0), made->handle(1)};
    for (QWidget *receiver : receivers) {
        for (const int turn : {120, -120}) {
            QWheelEvent event(QPointF(1, 1), receiver->mapToGlobal(QPoint(1, 1)), QPoint(), QPoint(0, turn),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(receiver, &event);
            QVERIFY(!event.isAccepted());
        }
    }
    QCOMPARE(rowOf(*made), row);
    QCOMPARE(made->dateTime(), aMoment());
    QCOMPARE(made->sizes(), widths);
}

QTEST_MAIN(TestSectionWidths)
#include "tst_sectionwidths.moc"
