// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"

#include <QDateTime>
#include <QDialog>

class QCalendarWidget;
class QPushButton;
class QTimeEdit;

/// Frameless dialog in which a date and a time are picked. A host opens it where a date/time object asks for it, and
/// reads result() and currentDateTime() when it is closed. It does not place itself on the screen.
class TAVRO_EXPORT CalendarWidget : public QDialog
{
    Q_OBJECT

public:
    explicit CalendarWidget(QWidget *parent = nullptr);
    ~CalendarWidget() override;

    /// Starts from the value, and blocks until the dialog is closed: 1 in result() for Ok, 0 for everything else.
    void showWithDatetime(const QDateTime &datetime);
    /// What is selected, in local time; also after the dialog was closed, in whichever way.
    QDateTime currentDateTime() const;

public Q_SLOTS:
    void onClose();
    /// Selects the current date; the time stays.
    void onShowToday();
    void onConfirmDatetime();

Q_SIGNALS:
    /// Declared for the host; never emitted by the dialog.
    void dateTimeSelected(const QDateTime &datetime);

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpCalendar();
    void setUpButtons();
    /// Shrinks the font of the weeks until all of them are seen.
    void fitWeeks();

    QCalendarWidget *m_calendar;
    QTimeEdit *m_timeEdit;
    QPushButton *m_todayButton;
    QPushButton *m_closeButton;
    QPushButton *m_confirmButton;
};
