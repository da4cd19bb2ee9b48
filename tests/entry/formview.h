// SPDX-License-Identifier: MIT
#pragma once

#include "entry/tavroedit.h"
#include "entry/textedit.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QTest>

/// A form in a shown, active window, clicked and typed into like a user does. Scene and window pixels are the same.
class FormView
{
public:
    FormView()
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
    QGraphicsView *view() { return &m_view; }

    /// Adds an object in a paint mode.
    template <typename Object>
    Object *add(const QRectF &rect, Paint_Mode mode)
    {
        auto *object = new Object;
        object->setBoundingRect(rect);
        object->setPaintMode(mode);
        m_scene.addItem(object);
        return object;
    }

    void click(const QPointF &place)
    {
        QTest::mouseClick(m_view.viewport(), Qt::LeftButton, Qt::NoModifier, m_view.mapFromScene(place));
    }

    void click(const TavroEdit *edit) { click(edit->sceneBoundingRect().center()); }

    /// Whether the editor of an object is shown and has the keyboard.
    static bool isEdited(const TavroEdit *edit)
    {
        return edit->widgetPrxy()->isVisible() && edit->widgetPrxy()->hasFocus() && editorOf(edit)->hasFocus();
    }

    static TextEdit *editorOf(const TavroEdit *edit) { return qobject_cast<TextEdit *>(edit->widgetPrxy()->widget()); }

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};
