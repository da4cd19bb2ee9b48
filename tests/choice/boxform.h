// SPDX-License-Identifier: MIT
#pragma once

#include "tests/choice/observedbox.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QTest>

/// A form in a shown window. Scene and window pixels are the same.
class BoxForm
{
public:
    BoxForm()
        : m_scene(0, 0, 400, 300)
    {
        m_view.setScene(&m_scene);
        m_view.setFrameShape(QFrame::NoFrame);
        m_view.resize(400, 300);
        m_view.show();
    }

    bool isShown() { return QTest::qWaitForWindowExposed(&m_view); }
    /// Shown, and with the keyboard.
    bool isActive()
    {
        m_view.activateWindow();
        return isShown() && QTest::qWaitForWindowActive(&m_view);
    }
    QGraphicsScene &scene() { return m_scene; }

    /// Adds a box of 40 px at a place.
    ObservedBox *add(const QPointF &place, Paint_Mode mode = Paint_Input)
    {
        auto *box = new ObservedBox;
        box->setBoundingRect(QRectF(place, QSizeF(40, 40)));
        box->setPaintMode(mode);
        box->told.clear();
        m_scene.addItem(box);
        return box;
    }

    void click(const QPointF &place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_view.viewport(), button, Qt::NoModifier, m_view.mapFromScene(place));
    }
    void click(const TavroCheckBox *box) { click(box->sceneBoundingRect().center()); }

    void key(Qt::Key key) { QTest::keyClick(m_view.windowHandle(), key); }

    void press(const QPointF &place)
    {
        QTest::mousePress(m_view.viewport(), Qt::LeftButton, Qt::NoModifier, m_view.mapFromScene(place));
    }
    void release(const QPointF &place)
    {
        QTest::mouseRelease(m_view.viewport(), Qt::LeftButton, Qt::NoModifier, m_view.mapFromScene(place));
    }
    /// Second half of a double click, as the window system reports it after a first click.
    void pressAgain(const QPointF &place)
    {
        QTest::mouseDClick(m_view.viewport(), Qt::LeftButton, Qt::NoModifier, m_view.mapFromScene(place));
        release(place);
    }

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};
