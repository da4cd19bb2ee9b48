// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"

#include <QAbstractEventDispatcher>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>

/// A form with rows of cells in a shown, active window, clicked and typed into like a user does. Scene and window
/// pixels are the same.
class CellView
{
public:
    explicit CellView(const QRectF &form = QRectF(0, 0, 400, 300))
        : m_scene(form)
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

    /// Adds an object in a paint mode.
    template <typename Object>
    Object *add(const QRectF &rect, Paint_Mode mode = Paint_Input)
    {
        auto *object = new Object;
        object->setBoundingRect(rect);
        object->setPaintMode(mode);
        m_scene.addItem(object);
        return object;
    }

    void click(const QPointF &place, Qt::MouseButton button = Qt::LeftButton)
    {
        sendMouse(QEvent::MouseButtonPress, place, button, button);
        sendMouse(QEvent::MouseButtonRelease, place, button, Qt::NoButton);
    }

    /// Presses and releases the left button. Answers who took the press, so that it was not left to those below.
    QGraphicsItem *takerOfPress(const QPointF &place)
    {
        sendMouse(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
        QGraphicsItem *taker = m_scene.mouseGrabberItem();
        sendMouse(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
        return taker;
    }

    /// Presses and releases one key, whatever text it carries. Answers whether the form accepted it, so that it was not
    /// left to the window, which would scroll.
    bool press(int key, const QString &text = QString(), Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_scene.m_isKeyAccepted = false;
        QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&m_view, &down);
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QCoreApplication::sendEvent(&m_view, &up);
        return m_scene.m_isKeyAccepted;
    }

    /// Digits, letters and blanks, a key each.
    void type(const char *characters)
    {
        for (const QChar character : QString::fromLatin1(characters))
            press(character.toUpper().unicode(), character);
    }

    /// What an input method commits, and what it still shows as being composed.
    void commit(const QString &text, const QString &composed = QString())
    {
        QInputMethodEvent event(composed, {});
        event.setCommitString(text);
        QCoreApplication::sendEvent(&m_view, &event);
    }

private:
    void sendMouse(QEvent::Type type, const QPointF &place, Qt::MouseButton button, Qt::MouseButtons held)
    {
        const QPoint pixel = m_view.mapFromScene(place);
        QMouseEvent event(type, pixel, m_view.viewport()->mapToGlobal(pixel), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(m_view.viewport(), &event);
    }

    class Scene : public QGraphicsScene
    {
    public:
        using QGraphicsScene::QGraphicsScene;
        bool m_isKeyAccepted = false;

    protected:
        void keyPressEvent(QKeyEvent *event) override
        {
            QGraphicsScene::keyPressEvent(event);
            m_isKeyAccepted = event->isAccepted();
        }
    };

    Scene m_scene;
    QGraphicsView m_view;
};

/// Timers that run for an object.
inline QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

/// Half a blink, without the wait for it: one tick of each timer of the object.
inline void tick(QObject *object)
{
    const QList<QAbstractEventDispatcher::TimerInfo> timers = timersOf(object);
    for (const QAbstractEventDispatcher::TimerInfo &timer : timers) {
        QTimerEvent event(timer.timerId);
        QCoreApplication::sendEvent(object, &event);
    }
}
