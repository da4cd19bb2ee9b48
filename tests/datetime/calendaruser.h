// SPDX-License-Identifier: MIT
#pragma once

#include "datetime/calendarwidget.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>

/// Someone in front of a calendar: sees its parts, and acts in it while it is open.
class CalendarUser
{
public:
    /// Result of a calendar that nothing closed.
    static constexpr int leftOpen = -1;

    explicit CalendarUser(CalendarWidget &dialog)
        : m_dialog(dialog)
    {
    }

    QCalendarWidget *calendar() const { return m_dialog.findChild<QCalendarWidget *>(); }
    QTableView *weeks() const { return m_dialog.findChild<QTableView *>(); }
    QTimeEdit *timeEdit() const { return m_dialog.findChild<QTimeEdit *>(); }
    QPushButton *todayButton() const
    {
        return button([](const QPushButton *b) { return !b->toolTip().isEmpty(); });
    }
    QPushButton *confirmButton() const
    {
        return button([](const QPushButton *b) { return !b->text().isEmpty(); });
    }
    QPushButton *closeButton() const
    {
        return button([](const QPushButton *b) { return b->toolTip().isEmpty() && b->text().isEmpty(); });
    }

    /// Opens the calendar like a host does, and acts in it once it has the keyboard. Returns its result.
    int open(const QDateTime &value, const std::function<void()> &act)
    {
        QTimer::singleShot(0, &m_dialog, [this, &act] {
            if (QTest::qWaitForWindowActive(&m_dialog))
                act();
            // What was closed by a posted event is closed now; what nothing closed would block the test.
            QCoreApplication::processEvents();
            if (m_dialog.isVisible())
                m_dialog.done(leftOpen);
        });
        m_dialog.showWithDatetime(value);
        return m_dialog.result();
    }

    static void click(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    /// Presses a key in the window, which finds the widget itself.
    void press(int key) { QTest::keyClick(m_dialog.windowHandle(), static_cast<Qt::Key>(key)); }

private:
    template <typename Condition>
    QPushButton *button(Condition condition) const
    {
        const QList<QPushButton *> buttons = m_dialog.findChildren<QPushButton *>();
        const auto found = std::find_if(buttons.cbegin(), buttons.cend(), condition);
        return found == buttons.cend() ? nullptr : *found;
    }

    CalendarWidget &m_dialog;
};
