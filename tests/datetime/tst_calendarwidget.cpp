// SPDX-License-Identifier: MIT
#include "tests/datetime/calendaruser.h"
#include "tests/support/stricttest.h"

#include <QGraphicsDropShadowEffect>
#include <QTextCharFormat>
#include <QVBoxLayout>

class CalendarWidgetTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void isFramelessDialog();
    void hasDeclaredMembers();
    void keepsItsSize_data();
    void keepsItsSize();
    void styleSheets();
    void ground();
    void closeButton();
    void calendar();
    void shadow();
    void todayButton();
    void timeEdit();
    void confirmButton();
    void partsBelongToTheDialog();
    void fontOfTheApplication();
    void fromTopToBottom_data();
    void fromTopToBottom();
    void rowOfTheTime();
    void spacer();
    void allWeeksAreSeen_data();
    void allWeeksAreSeen();
    void fontOfTheWeeks();
    void longNamesOfDays();
    void nothingOverlaps_data();
    void nothingOverlaps();

private:
    QFont m_font;
};

namespace {

constexpr QRgb groundColour = 0xffd2d7d3;

QImage imageOf(const QIcon &icon, int size)
{
    return icon.pixmap(size, size).toImage();
}

QImage resource(const char *name, int size)
{
    return imageOf(QIcon(QStringLiteral(":/image/image/%1.svg").arg(QLatin1String(name))), size);
}

void addFontRows()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("points");
    QTest::addColumn<QLocale>("locale");
    for (const int points : {5, 9, 12, 14, 16, 20}) {
        QTest::addRow("%d pt", points) << QStringLiteral("DejaVu Sans") << points << QLocale(QLocale::English);
        QTest::addRow("%d pt, Chinese", points)
            << QStringLiteral("Noto Sans CJK SC") << points << QLocale(QLocale::Chinese, QLocale::China);
    }
}

void setFontOfRow()
{
    QFETCH(QString, family);
    QFETCH(int, points);
    QFETCH(QLocale, locale);
    QApplication::setFont(QFont(family, points));
    QLocale::setDefault(locale);
}

} // namespace

void CalendarWidgetTest::initTestCase()
{
    m_font = QApplication::font();
}

void CalendarWidgetTest::init()
{
    StrictTest::init();
    QApplication::setFont(m_font);
    QLocale::setDefault(QLocale::c());
}

void CalendarWidgetTest::cleanup()
{
    QApplication::setFont(m_font);
    QLocale::setDefault(QLocale::c());
    StrictTest::cleanup();
}

void CalendarWidgetTest::isFramelessDialog()
{
    QWidget host;
    const CalendarWidget alone(nullptr);
    const CalendarWidget dialog(&host);
    QCOMPARE(dialog.parentWidget(), &host);
    QVERIFY(dialog.isWindow());
    for (const CalendarWidget *each : {&alone, &dialog}) {
        QCOMPARE(each->windowType(), Qt::Dialog);
        QVERIFY(each->windowFlags().testFlag(Qt::FramelessWindowHint));
    }
}

void CalendarWidgetTest::hasDeclaredMembers()
{
    const QMetaObject &meta = CalendarWidget::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.propertyCount(), QDialog::staticMetaObject.propertyCount());
    QVERIFY(meta.indexOfSignal("dateTimeSelected(QDateTime)") >= 0);
    for (const char *slot : {"onClose()", "onShowToday()", "onConfirmDatetime()"})
        QVERIFY2(meta.indexOfSlot(slot) >= 0, slot);
}

void CalendarWidgetTest::keepsItsSize_data()
{
    addFontRows();
}

void CalendarWidgetTest::keepsItsSize()
{
    setFontOfRow();
    CalendarWidget dialog;
    const QSize size(350, 320);
    QCOMPARE(dialog.minimumSize(), size);
    QCOMPARE(dialog.maximumSize(), size);
    dialog.resize(500, 500);
    dialog.show();
    QCOMPARE(dialog.size(), size);
}

void CalendarWidgetTest::styleSheets()
{
    CalendarWidget dialog;
    const CalendarUser user(dialog);
    QCOMPARE(dialog.styleSheet(),
             QStringLiteral("CalendarWidget{background-color: #D2D7D3; border: 1px solid black;}"));
    QCOMPARE(user.todayButton()->styleSheet(), QStringLiteral("QPushButton{background-color: white;}"));
    QCOMPARE(user.confirmButton()->styleSheet(), QStringLiteral("QPushButton{background-color: white;}"));
    QCOMPARE(user.closeButton()->styleSheet(), QString());
}

void CalendarWidgetTest::ground()
{
    CalendarWidget dialog;
    dialog.show();
    const QImage image = dialog.grab().toImage();
    for (const QPoint &corner : {QPoint(0, 0), QPoint(349, 0), QPoint(0, 319), QPoint(349, 319), QPoint(175, 0)})
        QCOMPARE(image.pixel(corner), qRgb(0, 0, 0));
    for (const QPoint &inside : {QPoint(1, 1), QPoint(348, 1), QPoint(1, 318), QPoint(348, 318)})
        QCOMPARE(image.pixel(inside), groundColour);
}

void CalendarWidgetTest::closeButton()
{
    CalendarWidget dialog;
    const QPushButton *button = CalendarUser(dialog).closeButton();
    QVERIFY(button);
    QCOMPARE(button->minimumSize(), QSize(20, 20));
    QCOMPARE(button->maximumSize(), QSize(20, 20));
    QCOMPARE(button->iconSize(), QSize(20, 20));
    QCOMPARE(imageOf(button->icon(), 20), resource("close", 20));
}

void CalendarWidgetTest::calendar()
{
    CalendarWidget dialog;
    const QCalendarWidget *calendar = CalendarUser(dialog).calendar();
    QVERIFY(calendar);
    QCOMPARE(calendar->horizontalHeaderFormat(), QCalendarWidget::ShortDayNames);
    QCOMPARE(calendar->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
    QCOMPARE(calendar->minimumSize(), QSize(320, 200));
    QCOMPARE(calendar->maximumSize(), QSize(320, 200));
}

void CalendarWidgetTest::shadow()
{
    CalendarWidget dialog;
    const auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(CalendarUser(dialog).calendar()->graphicsEffect());
    QVERIFY(shadow);
    QVERIFY(shadow->isEnabled());
    QCOMPARE(shadow->blurRadius(), 5.0);
    QCOMPARE(shadow->offset(), QPointF(3, 3));
    QCOMPARE(shadow->color(), QColor(Qt::gray));
}

void CalendarWidgetTest::todayButton()
{
    CalendarWidget dialog;
    const QPushButton *button = CalendarUser(dialog).todayButton();
    QVERIFY(button);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), QStringLiteral("Today"));
    QCOMPARE(imageOf(button->icon(), 16), resource("today", 16));
    QCOMPARE(button->minimumWidth(), button->sizeHint().height());
    QCOMPARE(button->maximumWidth(), button->sizeHint().height());
    dialog.show();
    QCOMPARE(button->width(), button->height());
}

void CalendarWidgetTest::timeEdit()
{
    CalendarWidget dialog;
    const QTimeEdit *edit = CalendarUser(dialog).timeEdit();
    QVERIFY(edit);
    QCOMPARE(edit->minimumWidth(), 150);
    QCOMPARE(edit->maximumWidth(), 150);
    QCOMPARE(edit->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void CalendarWidgetTest::confirmButton()
{
    CalendarWidget dialog;
    const QPushButton *button = CalendarUser(dialog).confirmButton();
    QVERIFY(button);
    QCOMPARE(button->text(), QStringLiteral("Ok"));
    QVERIFY(button->isDefault());
}

void CalendarWidgetTest::partsBelongToTheDialog()
{
    CalendarWidget dialog;
    const CalendarUser user(dialog);
    for (const QWidget *part : QVector<QWidget *>{user.closeButton(), user.calendar(), user.todayButton(),
                                                  user.timeEdit(), user.confirmButton()})
        QCOMPARE(part->parentWidget(), &dialog);
}

void CalendarWidgetTest::fontOfTheApplication()
{
    QFont expected(QStringLiteral("DejaVu Sans"), 11);
    expected.setItalic(true);
    QApplication::setFont(expected);
    CalendarWidget dialog;
    const CalendarUser user(dialog);
    for (const QWidget *part : QVector<QWidget *>{user.closeButton(), user.calendar(), user.todayButton(),
                                                  user.timeEdit(), user.confirmButton()}) {
        QCOMPARE(part->font().toString(), expected.toString());
        QCOMPARE(part->font().hintingPreference(), QFont::PreferVerticalHinting);
    }
}

void CalendarWidgetTest::fromTopToBottom_data()
{
    addFontRows();
}

void CalendarWidgetTest::fromTopToBottom()
{
    setFontOfRow();
    CalendarWidget dialog;
    dialog.show();
    const CalendarUser user(dialog);
    const QRect closing = user.closeButton()->geometry();
    const QRect calendar = user.calendar()->geometry();
    const QRect time = user.timeEdit()->geometry();
    const QRect confirming = user.confirmButton()->geometry();
    QVERIFY(closing.bottom() < calendar.top());
    QVERIFY(calendar.bottom() < time.top());
    QVERIFY(time.bottom() < confirming.top());

    QVERIFY(qobject_cast<QVBoxLayout *>(dialog.layout()));
    QCOMPARE(dialog.layout()->count(), 4);
    const QRect area = dialog.layout()->contentsRect();
    QCOMPARE(closing.right(), area.right());
    QCOMPARE(confirming.right(), area.right());
    QCOMPARE(confirming.width(), user.confirmButton()->sizeHint().width());
    QCOMPARE(calendar.left() - dialog.rect().left(), dialog.rect().right() - calendar.right());
}

void CalendarWidgetTest::rowOfTheTime()
{
    CalendarWidget dialog;
    dialog.show();
    const CalendarUser user(dialog);
    const QRect today = user.todayButton()->geometry();
    const QRect time = user.timeEdit()->geometry();
    QVERIFY(qAbs(today.center().y() - time.center().y()) <= 1); // one may be an odd number of pixels high
    QVERIFY(time.left() - today.right() > 30);
}

void CalendarWidgetTest::spacer()
{
    CalendarWidget dialog;
    const CalendarUser user(dialog);
    const QLayout *row = dialog.layout()->itemAt(2)->layout();
    QVERIFY(qobject_cast<const QHBoxLayout *>(row));
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->itemAt(0)->widget(), user.todayButton());
    QCOMPARE(row->itemAt(2)->widget(), user.timeEdit());
    const QSpacerItem *spacer = row->itemAt(1)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(30, 0));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void CalendarWidgetTest::allWeeksAreSeen_data()
{
    addFontRows();
}

void CalendarWidgetTest::allWeeksAreSeen()
{
    setFontOfRow();
    CalendarWidget dialog;
    const CalendarUser user(dialog);
    user.calendar()->setSelectedDate(QDate(2022, 10, 31)); // in the last of six weeks
    dialog.show();
    const QTableView *weeks = user.weeks();
    QCOMPARE(weeks->rowViewportPosition(0), 0);
    QCOMPARE(weeks->rowViewportPosition(6) + weeks->rowHeight(6), weeks->viewport()->height());
    int width = 0;
    for (int column = 0; column < weeks->model()->columnCount(); ++column)
        width += weeks->columnWidth(column);
    QCOMPARE(width, weeks->viewport()->width());

    QVERIFY(QFontMetrics(weeks->font()).height() <= weeks->rowHeight(6));
    const QFontMetrics names(user.calendar()->headerTextFormat().font());
    QVERIFY(names.height() <= weeks->rowHeight(0));
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        QVERIFY(names.horizontalAdvance(QLocale().dayName(day, QLocale::ShortFormat)) < width / 7);
}

// Only what would not fit is made smaller.
void CalendarWidgetTest::fontOfTheWeeks()
{
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    CalendarWidget small;
    small.show();
    QCOMPARE(CalendarUser(small).weeks()->font(), CalendarUser(small).calendar()->font());
    QCOMPARE(CalendarUser(small).calendar()->headerTextFormat().font(), CalendarUser(small).calendar()->font());

    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 20));
    CalendarWidget large;
    large.show();
    QVERIFY(CalendarUser(large).weeks()->fontInfo().pixelSize() <
            CalendarUser(large).calendar()->fontInfo().pixelSize());
    QCOMPARE(CalendarUser(large).weeks()->font().hintingPreference(), QFont::PreferVerticalHinting);
}

// Monday is "segunda", wider than its column.
void CalendarWidgetTest::longNamesOfDays()
{
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Portugal));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    CalendarWidget dialog;
    dialog.show();
    const CalendarUser user(dialog);
    const QFontMetrics names(user.calendar()->headerTextFormat().font());
    QVERIFY(names.horizontalAdvance(QLocale().dayName(Qt::Monday, QLocale::ShortFormat)) <
            user.weeks()->columnWidth(1));
    QCOMPARE(user.weeks()->font(), user.calendar()->font());
}

void CalendarWidgetTest::nothingOverlaps_data()
{
    addFontRows();
}

void CalendarWidgetTest::nothingOverlaps()
{
    setFontOfRow();
    CalendarWidget dialog;
    dialog.show();
    const CalendarUser user(dialog);
    const QVector<QWidget *> parts{user.closeButton(), user.calendar(), user.todayButton(), user.timeEdit(),
                                   user.confirmButton()};
    for (const QWidget *part : parts) {
        QVERIFY(dialog.rect().contains(part->geometry()));
        for (const QWidget *other : parts)
            QVERIFY(part == other || !part->geometry().intersects(other->geometry()));
    }
}

QTEST_MAIN(CalendarWidgetTest)
#include "tst_calendarwidget.moc"
