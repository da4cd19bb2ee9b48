// SPDX-License-Identifier: MIT
#include "datetime/calendarwidget.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QGraphicsDropShadowEffect>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace {

QFont dialogFont()
{
    QFont font = QApplication::font();
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

QIcon icon(const QString &name)
{
    return QIcon(QStringLiteral(":/image/image/%1.svg").arg(name));
}

} // namespace

CalendarWidget::CalendarWidget(QWidget *parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_calendar(new QCalendarWidget)
    , m_timeEdit(new QTimeEdit)
    , m_todayButton(new QPushButton)
    , m_closeButton(new QPushButton)
    , m_confirmButton(new QPushButton(tr("Ok")))
{
    setWindowFlag(Qt::FramelessWindowHint);
    setFixedSize(350, 320);
    setStyleSheet(QStringLiteral("CalendarWidget{background-color: #D2D7D3; border: 1px solid black;}"));
    setUpCalendar();
    setUpButtons();

    auto *row = new QHBoxLayout;
    row->addWidget(m_todayButton);
    row->addSpacerItem(new QSpacerItem(30, 0, QSizePolicy::Minimum, QSizePolicy::Minimum));
    row->addWidget(m_timeEdit);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_closeButton, 0, Qt::AlignRight);
    layout->addWidget(m_calendar, 0, Qt::AlignHCenter);
    layout->addLayout(row);
    layout->addWidget(m_confirmButton, 0, Qt::AlignRight);

    connect(m_closeButton, &QPushButton::clicked, this, &CalendarWidget::onClose);
    connect(m_todayButton, &QPushButton::clicked, this, &CalendarWidget::onShowToday);
    connect(m_confirmButton, &QPushButton::clicked, this, &CalendarWidget::onConfirmDatetime);
}

CalendarWidget::~CalendarWidget() = default;

void CalendarWidget::setUpCalendar()
{
    m_calendar->setFont(dialogFont());
    m_calendar->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setFixedSize(320, 200);
    auto *shadow = new QGraphicsDropShadowEffect(m_calendar);
    shadow->setBlurRadius(5);
    shadow->setOffset(3, 3);
    shadow->setColor(Qt::gray);
    m_calendar->setGraphicsEffect(shadow);

    m_timeEdit->setFont(dialogFont());
    m_timeEdit->setFixedWidth(150);
    m_timeEdit->setAlignment(Qt::AlignCenter);
}

void CalendarWidget::setUpButtons()
{
    const QString whiteGround = QStringLiteral("QPushButton{background-color: white;}");
    for (QPushButton *button : {m_closeButton, m_todayButton, m_confirmButton})
        button->setFont(dialogFont());

    m_closeButton->setFixedSize(20, 20);
    m_closeButton->setIconSize({20, 20});
    m_closeButton->setIcon(icon(QStringLiteral("close")));

    m_todayButton->setIcon(icon(QStringLiteral("today")));
    m_todayButton->setStyleSheet(whiteGround);
    m_todayButton->setToolTip(tr("Today"));
    m_todayButton->setFixedWidth(m_todayButton->sizeHint().height());

    m_confirmButton->setStyleSheet(whiteGround);
    // Enter takes what is selected, wherever the keyboard is; the first button would close the dialog instead.
    m_closeButton->setAutoDefault(false);
    m_todayButton->setAutoDefault(false);
    m_confirmButton->setDefault(true);
}

void CalendarWidget::showWithDatetime(const QDateTime &datetime)
{
    m_calendar->setSelectedDate(datetime.date());
    m_timeEdit->setTime(datetime.time());
    exec();
}

QDateTime CalendarWidget::currentDateTime() const
{
    return QDateTime(m_calendar->selectedDate(), m_timeEdit->time());
}

void CalendarWidget::onClose()
{
    done(Rejected);
}

void CalendarWidget::onShowToday()
{
    m_calendar->setSelectedDate(QDate::currentDate());
}

void CalendarWidget::onConfirmDatetime()
{
    done(Accepted);
}
