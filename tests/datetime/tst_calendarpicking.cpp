// SPDX-License-Identifier: MIT
#include "tests/datetime/calendaruser.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>

using Act = std::function<void(CalendarUser &)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Qt::Key)

namespace {

const QDateTime value(QDate(2022, 10, 20), QTime(14, 35, 6, 789));

QWidget *yearEditOf(const CalendarUser &user)
{
    const auto *button = user.calendar()->findChild<QToolButton *>(QStringLiteral("qt_calendar_yearbutton"));
    QTest::mouseClick(const_cast<QToolButton *>(button), Qt::LeftButton);
    return user.calendar()->findChild<QSpinBox *>();
}

// Places of the keyboard focus in a calendar.
struct Place
{
    const char *name;
    std::function<QWidget *(const CalendarUser &)> widget;
};

const QVector<Place> &places()
{
    static const QVector<Place> all{
        {"weeks", [](const CalendarUser &user) { return user.weeks(); }},
        {"time", [](const CalendarUser &user) { return user.timeEdit(); }},
        {"today button", [](const CalendarUser &user) { return user.todayButton(); }},
        {"close button", [](const CalendarUser &user) { return user.closeButton(); }},
        {"Ok button", [](const CalendarUser &user) { return user.confirmButton(); }},
        {"year", yearEditOf},
    };
    return all;
}

// The middle of the cell of a day of the month that is shown.
QPoint placeOf(int day, const CalendarUser &user)
{
    const QAbstractItemModel *model = user.weeks()->model();
    for (int row = 1; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex cell = model->index(row, column);
            const bool ofMonthBefore = row < 3 && day > 20;
            if (cell.data().toInt() == day && !ofMonthBefore)
                return user.weeks()->visualRect(cell).center();
        }
    }
    return {};
}

} // namespace

class CalendarPickingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheValue_data();
    void showsTheValue();
    void readsLocalTime();
    void invalidValue_data();
    void invalidValue();
    void closing_data();
    void closing();
    void slotsByName();
    void enterAccepts_data();
    void enterAccepts();
    void heldEnterClosesOnce();
    void escapeRejects_data();
    void escapeRejects();
    void typedDateIsTaken();
    void escapeDropsATypedDate();
    void doubleClickLeavesOpen();
    void startsInTheWeeks();
    void tabOrder();
    void picksADay();
    void typesATime();
    void todayKeepsTheTime_data();
    void todayKeepsTheTime();
    void opensAgain();
};

void CalendarPickingTest::showsTheValue_data()
{
    QTest::addColumn<QDateTime>("shown");
    QTest::newRow("with milliseconds") << value;
    QTest::newRow("midnight") << QDateTime(QDate(2022, 1, 5), QTime(0, 0));
    QTest::newRow("last of the day") << QDateTime(QDate(2024, 2, 29), QTime(23, 59, 59, 999));
    QTest::newRow("first year") << QDateTime(QDate(1, 1, 1), QTime(12, 0));
    QTest::newRow("before our era") << QDateTime(QDate(-4, 3, 3), QTime(12, 0));
    QTest::newRow("last of the calendar") << QDateTime(QDate(9999, 12, 31), QTime(12, 0));
}

void CalendarPickingTest::showsTheValue()
{
    QFETCH(QDateTime, shown);
    CalendarWidget dialog;
    CalendarUser user(dialog);
    user.open(shown, [&] {
        QCOMPARE(user.calendar()->selectedDate(), shown.date());
        QCOMPARE(user.calendar()->monthShown(), shown.date().month());
        QCOMPARE(user.calendar()->yearShown(), shown.date().year());
        QCOMPARE(user.timeEdit()->time(), shown.time());
    });
    QCOMPARE(dialog.currentDateTime(), shown);
}

void CalendarPickingTest::readsLocalTime()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    user.open(QDateTime(value.date(), value.time(), Qt::OffsetFromUTC, 5 * 3600), [] {});
    QCOMPARE(dialog.currentDateTime().timeSpec(), Qt::LocalTime);
    QCOMPARE(dialog.currentDateTime().date(), value.date());
    QCOMPARE(dialog.currentDateTime().time(), value.time());
}

void CalendarPickingTest::invalidValue_data()
{
    QTest::addColumn<QDateTime>("shown");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::newRow("null") << QDateTime() << value.date() << value.time();
    QTest::newRow("no such day") << QDateTime(QDate(2023, 2, 29), QTime(8, 0)) << value.date() << QTime(8, 0);
    // A date without a time is midnight for QDateTime.
    QTest::newRow("no such time") << QDateTime(QDate(2023, 2, 28), QTime(25, 0)) << QDate(2023, 2, 28) << QTime(0, 0);
}

// The calendar and the time editor keep what they had.
void CalendarPickingTest::invalidValue()
{
    QFETCH(QDateTime, shown);
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    CalendarWidget dialog;
    CalendarUser user(dialog);
    user.open(value, [] {});
    QCOMPARE(user.open(shown, [&] { CalendarUser::click(user.confirmButton()); }), 1);
    QCOMPARE(dialog.currentDateTime(), QDateTime(date, time));
}

void CalendarPickingTest::closing_data()
{
    QTest::addColumn<Act>("close");
    QTest::addColumn<int>("result");
    QTest::newRow("Ok") << Act([](CalendarUser &user) { CalendarUser::click(user.confirmButton()); }) << 1;
    QTest::newRow("close button") << Act([](CalendarUser &user) { CalendarUser::click(user.closeButton()); }) << 0;
    QTest::newRow("window system") << Act([](CalendarUser &user) { user.calendar()->window()->close(); }) << 0;
    QTest::newRow("Escape") << Act([](CalendarUser &user) { user.press(Qt::Key_Escape); }) << 0;
    QTest::newRow("Enter") << Act([](CalendarUser &user) { user.press(Qt::Key_Return); }) << 1;
}

// What was picked is read in the same way, however the calendar is closed; the signal stays with the host.
void CalendarPickingTest::closing()
{
    QFETCH(Act, close);
    QFETCH(int, result);
    CalendarWidget dialog;
    CalendarUser user(dialog);
    QSignalSpy selected(&dialog, &CalendarWidget::dateTimeSelected);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    const int answer = user.open(value, [&] {
        user.calendar()->setSelectedDate(QDate(2023, 4, 5));
        user.timeEdit()->setTime(QTime(6, 7, 8));
        close(user);
    });
    QCOMPARE(answer, result);
    QCOMPARE(dialog.currentDateTime(), QDateTime(QDate(2023, 4, 5), QTime(6, 7, 8)));
    QCOMPARE(selected.count(), 0);
    QCOMPARE(accepted.count(), result);
    QCOMPARE(rejected.count(), 1 - result);
}

void CalendarPickingTest::slotsByName()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    QSignalSpy selected(&dialog, &CalendarWidget::dateTimeSelected);
    QCOMPARE(user.open(value, [&] { QVERIFY(QMetaObject::invokeMethod(&dialog, "onConfirmDatetime")); }), 1);
    QCOMPARE(user.open(value, [&] { QVERIFY(QMetaObject::invokeMethod(&dialog, "onClose")); }), 0);
    QCOMPARE(selected.count(), 0);
}

void CalendarPickingTest::enterAccepts_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<Qt::Key>("key");
    for (int i = 0; i < places().size(); ++i) {
        QTest::addRow("Return, %s", places().at(i).name) << i << Qt::Key_Return;
        QTest::addRow("Enter, %s", places().at(i).name) << i << Qt::Key_Enter;
    }
}

void CalendarPickingTest::enterAccepts()
{
    QFETCH(int, place);
    QFETCH(Qt::Key, key);
    CalendarWidget dialog;
    CalendarUser user(dialog);
    QSignalSpy finished(&dialog, &QDialog::finished);
    const int answer = user.open(value, [&] {
        QWidget *widget = places().at(place).widget(user);
        widget->setFocus();
        QCOMPARE(QApplication::focusWidget(), widget);
        user.press(key);
    });
    QCOMPARE(answer, 1);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(dialog.currentDateTime(), value);
}

// The second press is there before the first has closed the calendar.
void CalendarPickingTest::heldEnterClosesOnce()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    QSignalSpy finished(&dialog, &QDialog::finished);
    const int answer = user.open(value, [&] {
        for (int i = 0; i < 2; ++i) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(user.weeks(), &press);
        }
    });
    QCOMPARE(answer, 1);
    QCOMPARE(finished.count(), 1);
}

void CalendarPickingTest::escapeRejects_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("result");
    // The first Escape ends the editing of the year.
    const auto resultAt = [](int place) { return place < places().size() - 1 ? 0 : CalendarUser::leftOpen; };
    for (int i = 0; i < places().size(); ++i)
        QTest::newRow(places().at(i).name) << i << resultAt(i);
}

void CalendarPickingTest::escapeRejects()
{
    QFETCH(int, place);
    QFETCH(int, result);
    CalendarWidget dialog;
    CalendarUser user(dialog);
    const int answer = user.open(value, [&] {
        QWidget *widget = places().at(place).widget(user);
        widget->setFocus();
        QCOMPARE(QApplication::focusWidget(), widget);
        user.press(Qt::Key_Escape);
    });
    QCOMPARE(answer, result);
    QCOMPARE(dialog.currentDateTime(), value);
}

// The calendar takes digits for a date; Enter ends it, and nothing of it is lost.
void CalendarPickingTest::typedDateIsTaken()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    QDateTime accepted;
    connect(&dialog, &QDialog::accepted, &dialog, [&] { accepted = dialog.currentDateTime(); });
    const int answer = user.open(value, [&] {
        user.press(Qt::Key_0);
        user.press(Qt::Key_5);
        QCOMPARE(user.calendar()->selectedDate(), value.date());
        user.press(Qt::Key_Return);
    });
    QCOMPARE(answer, 1);
    QVERIFY(dialog.currentDateTime().date() != value.date());
    QCOMPARE(dialog.currentDateTime().date().day(), 5);
    QCOMPARE(dialog.currentDateTime().time(), value.time());
    QCOMPARE(accepted, dialog.currentDateTime());
}

void CalendarPickingTest::escapeDropsATypedDate()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    const int answer = user.open(value, [&] {
        user.press(Qt::Key_0);
        user.press(Qt::Key_5);
        user.press(Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        user.press(Qt::Key_Return);
    });
    QCOMPARE(answer, 1);
    QCOMPARE(dialog.currentDateTime(), value);
}

// A time may follow.
void CalendarPickingTest::doubleClickLeavesOpen()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    const int answer =
        user.open(value, [&] { QTest::mouseDClick(user.weeks()->viewport(), Qt::LeftButton, {}, placeOf(12, user)); });
    QCOMPARE(answer, CalendarUser::leftOpen);
}

void CalendarPickingTest::startsInTheWeeks()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    for (int round = 0; round < 2; ++round) {
        const int answer = user.open(value, [&] {
            user.press(Qt::Key_Right);
            QCOMPARE(user.calendar()->selectedDate(), value.date().addDays(1));
            user.confirmButton()->setFocus();
            user.press(Qt::Key_Space);
        });
        QCOMPARE(answer, 1);
    }
}

void CalendarPickingTest::tabOrder()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    user.open(value, [&] {
        user.closeButton()->setFocus();
        QVector<QWidget *> order{user.closeButton()};
        for (int i = 0; i < 12; ++i) {
            user.press(Qt::Key_Tab);
            // Within the time, Tab goes from section to section first.
            if (QApplication::focusWidget() != order.last())
                order.append(QApplication::focusWidget());
        }
        const QVector<QWidget *> once{user.closeButton(), user.weeks(), user.todayButton(), user.timeEdit(),
                                      user.confirmButton()};
        QCOMPARE(order.mid(0, 8), (once + once).mid(0, 8));
    });
}

void CalendarPickingTest::picksADay()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    const int answer = user.open(value, [&] {
        QTest::mouseClick(user.weeks()->viewport(), Qt::LeftButton, {}, placeOf(31, user));
        QVERIFY(dialog.isVisible());
        CalendarUser::click(user.confirmButton());
    });
    QCOMPARE(answer, 1);
    QCOMPARE(dialog.currentDateTime(), QDateTime(QDate(2022, 10, 31), value.time()));
}

void CalendarPickingTest::typesATime()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    const int answer = user.open(value, [&] {
        user.timeEdit()->setFocus();
        user.timeEdit()->setSelectedSection(QDateTimeEdit::HourSection);
        user.press(Qt::Key_0);
        user.press(Qt::Key_9);
        CalendarUser::click(user.confirmButton());
    });
    QCOMPARE(answer, 1);
    QCOMPARE(dialog.currentDateTime().date(), value.date());
    QCOMPARE(dialog.currentDateTime().time().hour(), 9);
    QCOMPARE(dialog.currentDateTime().time().minute(), 35);
}

void CalendarPickingTest::todayKeepsTheTime_data()
{
    QTest::addColumn<Act>("askForToday");
    QTest::newRow("click") << Act([](CalendarUser &user) { CalendarUser::click(user.todayButton()); });
    QTest::newRow("space bar") << Act([](CalendarUser &user) {
        user.todayButton()->setFocus();
        user.press(Qt::Key_Space);
    });
    QTest::newRow("slot") << Act(
        [](CalendarUser &user) { QMetaObject::invokeMethod(user.calendar()->window(), "onShowToday"); });
}

void CalendarPickingTest::todayKeepsTheTime()
{
    QFETCH(Act, askForToday);
    CalendarWidget dialog;
    CalendarUser user(dialog);
    const QDate before = QDate::currentDate();
    const int answer = user.open(value, [&] { askForToday(user); });
    QCOMPARE(answer, CalendarUser::leftOpen);
    const QDate selected = user.calendar()->selectedDate();
    QVERIFY(selected == before || selected == QDate::currentDate());
    QCOMPARE(user.calendar()->monthShown(), selected.month());
    QCOMPARE(dialog.currentDateTime(), QDateTime(selected, value.time()));
}

void CalendarPickingTest::opensAgain()
{
    CalendarWidget dialog;
    CalendarUser user(dialog);
    QCOMPARE(user.open(value, [&] { CalendarUser::click(user.confirmButton()); }), 1);
    const QDateTime other(QDate(1999, 12, 31), QTime(1, 2));
    QCOMPARE(user.open(other, [&] { QCOMPARE(dialog.currentDateTime(), other); }), CalendarUser::leftOpen);
    QCOMPARE(user.open(value, [&] { CalendarUser::click(user.closeButton()); }), 0);
}

QTEST_MAIN(CalendarPickingTest)
#include "tst_calendarpicking.moc"
