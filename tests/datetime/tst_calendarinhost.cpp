// SPDX-License-Identifier: MIT
#include "datetime/tavrodatetime.h"
#include "tests/datetime/calendaruser.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointer>
#include <QSignalSpy>
#include <QTranslator>

/// The calendar as a host opens it over its windows and for its objects.
class CalendarInHostTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isModal();
    void deletedWhileOpen();
    void hostDeletedWhileOpen();
    void fillsInAnObject_data();
    void fillsInAnObject();
    void formClearedWhileOpen();
    void inChinese();
};

namespace {

const QDateTime value(QDate(2022, 10, 20), QTime(14, 35, 6, 789));

// A form with a date to be filled in, under a view.
struct Form
{
    Form()
        : scene(0, 0, 400, 300)
        , view(&scene)
        , date(new TavroDatetime)
    {
        date->setBoundingRect({50, 50, 200, 40});
        date->setContentData(value);
        date->setPaintMode(Paint_Input);
        // An object below, to which a press that is not taken would go next.
        scene.addRect(0, 0, 400, 300)->setZValue(-1);
        scene.addItem(date);
        view.resize(420, 320);
        view.show();
    }

    void press() { QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.mapFromScene(150, 70)); }

    QGraphicsScene scene;
    QGraphicsView view;
    QPointer<TavroDatetime> date;
};

} // namespace

void CalendarInHostTest::isModal()
{
    QWidget host;
    QPushButton button(&host);
    QSignalSpy clicks(&button, &QPushButton::clicked);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    QTest::mouseClick(host.windowHandle(), Qt::LeftButton, {}, button.geometry().center());
    QCOMPARE(clicks.count(), 1);

    CalendarWidget dialog(&host);
    CalendarUser user(dialog);
    bool returned = false;
    user.open(value, [&] {
        QCOMPARE(QApplication::activeModalWidget(), &dialog);
        QTest::mouseClick(host.windowHandle(), Qt::LeftButton, {}, button.geometry().center());
        QVERIFY(!returned);
    });
    returned = true;
    QCOMPARE(clicks.count(), 1);
    QVERIFY(!dialog.isVisible());
    QVERIFY(!QApplication::activeModalWidget());
}

void CalendarInHostTest::deletedWhileOpen()
{
    const QPointer<CalendarWidget> dialog(new CalendarWidget);
    QTimer::singleShot(0, this, [dialog] { delete dialog; });
    dialog->showWithDatetime(value);
    QVERIFY(!dialog);
}

void CalendarInHostTest::hostDeletedWhileOpen()
{
    auto *host = new QWidget;
    host->show();
    const QPointer<CalendarWidget> dialog(new CalendarWidget(host));
    QTimer::singleShot(0, this, [host] { delete host; });
    dialog->showWithDatetime(value);
    QVERIFY(!dialog);
}

void CalendarInHostTest::fillsInAnObject_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::newRow("Ok") << true;
    QTest::newRow("closed") << false;
}

void CalendarInHostTest::fillsInAnObject()
{
    QFETCH(bool, accepts);
    Form form;
    CalendarWidget dialog(&form.view);
    CalendarUser user(dialog);
    const QDateTime picked(QDate(2023, 4, 5), QTime(6, 7, 8));
    int opened = 0;
    connect(form.date, &TavroDatetime::aboutToShowCalendar, &dialog, [&](const QDateTime &content) {
        ++opened;
        QCOMPARE(content, form.date->contentData().toDateTime());
        user.open(content, [&] {
            user.calendar()->setSelectedDate(picked.date());
            user.timeEdit()->setTime(picked.time());
            CalendarUser::click(accepts ? user.confirmButton() : user.closeButton());
        });
        if (dialog.result() == QDialog::Accepted)
            form.date->setContentData(dialog.currentDateTime());
    });
    form.press();
    QCOMPARE(opened, 1);
    QCOMPARE(form.date->contentData().toDateTime(), accepts ? picked : value);

    // The press is over with the calendar, so the next one beside the object is not for it.
    QTest::mouseClick(form.view.viewport(), Qt::LeftButton, {}, form.view.mapFromScene(300, 200));
    QCOMPARE(opened, 1);
    form.press();
    QCOMPARE(opened, 2);
}

void CalendarInHostTest::formClearedWhileOpen()
{
    Form form;
    CalendarWidget dialog(&form.view);
    CalendarUser user(dialog);
    connect(form.date, &TavroDatetime::aboutToShowCalendar, &dialog, [&](const QDateTime &content) {
        user.open(content, [&] {
            form.scene.clear();
            CalendarUser::click(user.confirmButton());
        });
    });
    form.press();
    QCOMPARE(dialog.result(), 1);
    QVERIFY(!form.date);
    form.press();
}

void CalendarInHostTest::inChinese()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral("tavro_zh_CN"), QStringLiteral(TAVRO_TRANSLATIONS)));
    QCoreApplication::installTranslator(&translator);
    CalendarWidget dialog;
    const CalendarUser user(dialog);
    QCOMPARE(user.todayButton()->toolTip(), QStringLiteral("今天"));
    QCOMPARE(user.confirmButton()->text(), QStringLiteral("确定"));
    QVERIFY(user.closeButton());
}

QTEST_MAIN(CalendarInHostTest)
#include "tst_calendarinhost.moc"
