// SPDX-License-Identifier: MIT
#pragma once

#include "datetime/tavrodatetime.h"
#include "tests/datetime/editorprobes.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTest>

/// Both editors of an object, found through its proxy. The object is left in the format that it had.
struct Editors
{
    explicit Editors(TavroDatetime &object)
    {
        const Datetime_Format format = object.dateTimeFormat();
        const bool wasModified = object.isModified();
        object.setDateTimeFormat(Dt_Time);
        times = qobject_cast<TimeEdit *>(object.widgetPrxy()->widget());
        object.setDateTimeFormat(Dt_ArabicPadded);
        dates = qobject_cast<DateEdit *>(object.widgetPrxy()->widget());
        object.setDateTimeFormat(format);
        object.setIsModified(wasModified);
    }

    DateEdit *dates;
    TimeEdit *times;
};

/// The editor that an object shows, null without one.
inline DateTimeEditPrototype *editorOf(const TavroDatetime &object)
{
    return qobject_cast<DateTimeEditPrototype *>(object.widgetPrxy()->widget());
}

/// A form in a shown, active window, pressed and dragged on like a user does. Scene and window pixels are the same.
class DatetimeView
{
public:
    DatetimeView()
        : m_scene(0, 0, 400, 300)
    {
        m_view.setScene(&m_scene);
        m_view.setFrameShape(QFrame::NoFrame);
        m_view.resize(400, 300);
        m_view.show();
        QApplication::setActiveWindow(&m_view);
    }

    bool isActive() { return QTest::qWaitForWindowActive(&m_view); }
    QGraphicsScene &scene() { return m_scene; }
    QGraphicsView &view() { return m_view; }

    /// Adds an object, 8:05:09 on the 5th of January 2022, in a format and a paint mode.
    TavroDatetime *add(const QRectF &rect, Datetime_Format format, Paint_Mode mode)
    {
        auto *object = new TavroDatetime;
        object->setTextFillingRule(Fill_NoWrap);
        object->setBoundingRect(rect);
        object->setDateTimeFormat(format);
        object->setContentData(editors::aMoment());
        object->setPaintMode(mode);
        m_scene.addItem(object);
        object->setIsModified(false);
        return object;
    }

    void press(const QPoint &place, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, place, button, button);
    }
    void release(const QPoint &place, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, place, button, Qt::NoButton);
    }
    /// Moves the pointer with the left button held.
    void moveTo(const QPoint &place) { send(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton); }
    void doubleClick(const QPoint &place)
    {
        click(place);
        send(QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton);
        release(place);
    }
    void click(const QPoint &place, Qt::MouseButton button = Qt::LeftButton)
    {
        press(place, button);
        release(place, button);
    }
    void drag(const QPoint &from, const QPoint &to)
    {
        press(from);
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
    }

    /// Centre of a label, or of the handle in front of it, in the window.
    static QPoint labelCenter(const TavroDatetime &object, int index)
    {
        return inWindow(object, editorOf(object)->widget(index)->geometry().center());
    }
    static QPoint handleCenter(const TavroDatetime &object, int index)
    {
        return inWindow(object, editorOf(object)->handle(index)->geometry().center());
    }

private:
    // Unlike QTest::mousePress() without a warning where the form leaves an event to the window.
    void send(QEvent::Type type, const QPoint &place, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QWidget *viewport = m_view.viewport();
        QMouseEvent event(type, place, viewport->mapToGlobal(place), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &event);
    }

    static QPoint inWindow(const TavroDatetime &object, const QPoint &inEditor)
    {
        return object.widgetPrxy()->mapToScene(inEditor).toPoint();
    }

    QGraphicsScene m_scene;
    QGraphicsView m_view;
};
