// SPDX-License-Identifier: MIT
#include "datetime/calendarwidget.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QGraphicsDropShadowEffect>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableView>
#include <QTextCharFormat>
#include <QTimeEdit>
#include <QVBoxLayout>
#include <algorithm>

namespace {

// Large fonts want more height than the dialog has. What may shrink does so before it covers its neighbour.
constexpr int leastHeight = 20;

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

QStringList shortDayNames(const QLocale &locale)
{
    QStringList names;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        names.append(locale.dayName(day, QLocale::ShortFormat));
    return names;
}

/// Largest font, from the size of `font` downwards, whose measures fit.
template <typename Condition>
QFont shrunk(QFont font, Condition fits)
{
    for (int size = QFontInfo(font).pixelSize(); size > 1 && !fits(QFontMetrics(font)); --size)
        font.setPixelSize(size - 1);
    return font;
}

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
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
    if (auto *weeks = m_calendar->findChild<QTableView *>()) {
        weeks->horizontalHeader()->setMinimumSectionSize(1);
        weeks->verticalHeader()->setMinimumSectionSize(1);
        weeks->installEventFilter(this);
    }

    m_timeEdit->setFont(dialogFont());
    m_timeEdit->setFixedWidth(150);
    m_timeEdit->setMinimumHeight(leastHeight);
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
    // Square with the icon and the style that it has by now.
    m_todayButton->setFixedWidth(m_todayButton->sizeHint().height());

    m_confirmButton->setStyleSheet(whiteGround);
    m_confirmButton->setMinimumHeight(leastHeight);
    // Enter takes what is selected, wherever the keyboard is; the first button would close the dialog instead.
    m_closeButton->setAutoDefault(false);
    m_todayButton->setAutoDefault(false);
    m_confirmButton->setDefault(true);
}

// The weeks share what the fixed size leaves them. By itself their table would keep cells as large as the largest
// letter of the font, and the last weeks and days would be out of sight.
void CalendarWidget::fitWeeks()
{
    auto *weeks = m_calendar->findChild<QTableView *>();
    if (!weeks)
        return;
    constexpr int daysOfWeek = 7;
    constexpr int rows = 1 + 6; // names of the days, weeks
    const QSize area = weeks->viewport()->size();
    const QFont font = shrunk(m_calendar->font(),
                              [&](const QFontMetrics &metrics) { return metrics.height() <= area.height() / rows; });
    weeks->setFont(font);

    // Some languages have long short names. They need not make the days small.
    const int margin = weeks->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, weeks) + 1;
    const int width = area.width() / daysOfWeek - 2 * margin;
    const QStringList names = shortDayNames(m_calendar->locale());
    QTextCharFormat format = m_calendar->headerTextFormat();
    format.setFont(shrunk(font, [&](const QFontMetrics &metrics) {
        return std::all_of(names.cbegin(), names.cend(),
                           [&](const QString &name) { return metrics.horizontalAdvance(name) <= width; });
    }));
    m_calendar->setHeaderTextFormat(format);
}

void CalendarWidget::showEvent(QShowEvent *event)
{
    fitWeeks();
    // Each time anew: keys are meant for the weeks, not for the button that closed the dialog before.
    m_calendar->setFocus();
    QDialog::showEvent(event);
}

bool CalendarWidget::eventFilter(QObject *watched, QEvent *event)
{
    // The weeks keep Enter to themselves. It is theirs first, since it may end a date that is being typed.
    if (event->type() == QEvent::KeyPress && isEnter(*static_cast<QKeyEvent *>(event))) {
        const auto confirm = [this] {
            if (isVisible())
                onConfirmDatetime();
        };
        QMetaObject::invokeMethod(this, confirm, Qt::QueuedConnection);
    }
    return QDialog::eventFilter(watched, event);
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
