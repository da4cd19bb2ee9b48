// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QTimerEvent>

/// Blinking of the cursor in a row of cells, while the row has the keyboard.
class CursorBlink
{
public:
    /// Starts the ticks, which reach the timer event of the object.
    void start(QObject *object)
    {
        constexpr int milliseconds = 500;
        m_timer.start(milliseconds, Qt::CoarseTimer, object);
    }
    /// Ends dark.
    void stop()
    {
        m_timer.stop();
        m_isOn = false;
    }
    bool isTick(const QTimerEvent &event) const { return event.timerId() == m_timer.timerId(); }
    void flip() { m_isOn = !m_isOn; }
    bool isOn() const { return m_isOn; }

private:
    QBasicTimer m_timer;
    bool m_isOn = false;
};
