// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/kindexercise.h"

#include <QComboBox>
#include <QCompleter>
#include <QGraphicsView>
#include <QPointer>
#include <QWindow>
#include <memory>

/// What may be going on with a form object on a shown view.
namespace kinds {

inline constexpr QPointF Middle(120, 50);
inline constexpr QPointF Outside(2, 2);

// Through the window, as the platform does: what pops up gets its share.
inline void send(QGraphicsView &view, void (*mouse)(QWindow *, Qt::MouseButton, const QPoint &),
                 const QPointF &scenePoint)
{
    mouse(view.windowHandle(), Qt::LeftButton, view.viewport()->mapTo(&view, view.mapFromScene(scenePoint)));
}

inline void press(QWindow *window, Qt::MouseButton button, const QPoint &point)
{
    QTest::mousePress(window, button, Qt::NoModifier, point);
}

inline void release(QWindow *window, Qt::MouseButton button, const QPoint &point)
{
    QTest::mouseRelease(window, button, Qt::NoModifier, point);
}

inline void move(QWindow *window, Qt::MouseButton, const QPoint &point)
{
    QTest::mouseMove(window, point);
}

// A shown view with one object in a mode, and another below it that is left over.
struct Desk
{
    std::unique_ptr<QGraphicsScene> scene = std::make_unique<QGraphicsScene>(0, 0, 400, 200);
    std::unique_ptr<QGraphicsView> view = std::make_unique<QGraphicsView>(scene.get());
    QPointer<TavroPrototype> below;
    QPointer<TavroPrototype> object;

    Desk(int kind, int mode)
    {
        scene->setItemIndexMethod(QGraphicsScene::NoIndex);
        below = kinds::filled(kind);
        object = kinds::filled(kind);
        for (TavroPrototype *item : {below.data(), object.data()}) {
            scene->addItem(item);
            item->setPaintMode(static_cast<Paint_Mode>(mode));
        }
        object->setZValue(1);
        // A rectangle is hit on its outline.
        if (kind == Obj_Rect)
            object->setPos(0, Middle.y() - object->boundingRect().y());
        view->setMouseTracking(true);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
        view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(view.get()));
    }

    // What still comes after the object has gone: the release of the button, another move, a key, a painting.
    void goOn()
    {
        send(*view, move, Middle + QPointF(20, 0));
        send(*view, release, Middle);
        send(*view, move, Outside);
        QTest::keyClick(view->windowHandle(), Qt::Key_5);
        send(*view, press, Middle);
        send(*view, release, Middle);
        QCoreApplication::processEvents();
        view->grab();
    }
};

inline void selectObject(QGraphicsView &view, TavroPrototype &object)
{
    object.setSelected(true);
    QCOMPARE(view.scene()->selectedItems().size(), object.paintMode() == Paint_Design ? 1 : 0);
}

inline void focus(QGraphicsView &view, TavroPrototype &object)
{
    view.setFocus();
    object.setFocus();
    // An editor that is not shown keeps the focus from its object.
    const QGraphicsItem *editor = object.focusProxy();
    const bool isFocusable =
        object.flags().testFlag(QGraphicsItem::ItemIsFocusable) && (!editor || editor->isVisible());
    QCOMPARE(view.scene()->focusItem() != nullptr, isFocusable);
}

inline void hoverObject(QGraphicsView &view, TavroPrototype &object)
{
    send(view, move, Outside);
    send(view, move, Middle);
    QCoreApplication::processEvents();
    QCOMPARE(object.zValue(), object.paintMode() == Paint_Input ? 1000.0 : 1.0);
}

inline void grabMouse(QGraphicsView &view, TavroPrototype &object)
{
    send(view, press, Middle);
    send(view, move, Middle + QPointF(10, 0));
    QVERIFY(view.scene()->mouseGrabberItem() || object.paintMode() != Paint_Design);
}

// The list, the completion or the editor, whichever the kind has; else a click.
inline void openEditor(QGraphicsView &view, TavroPrototype &object)
{
    send(view, press, Middle);
    send(view, release, Middle);
    if (auto *edit = qobject_cast<TavroEdit *>(&object)) {
        edit->readyForEdit();
        QCOMPARE(view.scene()->focusItem(), edit->widgetPrxy());
    }
    auto *combo = qobject_cast<TavroCombx *>(&object);
    if (combo && combo->paintMode() == Paint_Input) {
        combo->setOptionList({QStringLiteral("cash"), QStringLiteral("transfer")});
        static_cast<QComboBox *>(combo->widgetPrxy()->widget())->showPopup();
        QVERIFY(QApplication::activePopupWidget());
    }
    QTest::keyClick(view.windowHandle(), Qt::Key_C);
    QCoreApplication::processEvents();
}

inline void completeOption(QGraphicsView &view, TavroPrototype &object)
{
    openEditor(view, object);
    if (auto *combo = qobject_cast<TavroCombx *>(&object)) {
        auto *box = static_cast<QComboBox *>(combo->widgetPrxy()->widget());
        box->hidePopup();
        if (box->completer())
            box->completer()->complete();
    }
}

} // namespace kinds
