// SPDX-License-Identifier: MIT
#pragma once

#include "core/sizedashrect.h"
#include "core/sizehandlerect.h"
#include "core/tavroprototype.h"
#include "tests/support/recordingpaintengine.h"

#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>

/// What tests ask an item on a scene.
namespace probes {

/// Everything that the item itself paints, its children left out.
inline QVector<PaintCommand> paintedBy(QGraphicsItem &item)
{
    RecordingDevice device;
    QPainter painter(&device);
    const QStyleOptionGraphicsItem option;
    item.paint(&painter, &option, nullptr);
    painter.end();
    return device.commands();
}

/// Resize handles in the order in which they were made.
inline QVector<SizeHandleRect *> handlesOf(const TavroPrototype &object)
{
    QVector<SizeHandleRect *> handles;
    const QList<QGraphicsItem *> children = object.childItems();
    for (QGraphicsItem *child : children) {
        if (auto *handle = dynamic_cast<SizeHandleRect *>(child))
            handles.append(handle);
    }
    return handles;
}

/// Directions of the handles that are shown.
inline QVector<int> visibleHandles(const TavroPrototype &object)
{
    QVector<int> directions;
    for (const SizeHandleRect *handle : handlesOf(object)) {
        if (handle->isVisible())
            directions.append(handle->direction());
    }
    return directions;
}

/// The dashed frame, null when the object has none or more than one.
inline SizeDashRect *dashRectOf(const TavroPrototype &object)
{
    SizeDashRect *found = nullptr;
    const QList<QGraphicsItem *> children = object.childItems();
    for (QGraphicsItem *child : children) {
        if (auto *frame = dynamic_cast<SizeDashRect *>(child)) {
            if (found)
                return nullptr;
            found = frame;
        }
    }
    return found;
}

inline void hover(QGraphicsScene &scene, QGraphicsItem &item, QEvent::Type type)
{
    QGraphicsSceneHoverEvent event(type);
    scene.sendEvent(&item, &event);
}

/// Presses the left button at one point of the scene, and moves to another with the button held.
inline void drag(QGraphicsScene &scene, const QPointF &from, const QPointF &to)
{
    const auto send = [&scene, &from](QEvent::Type type, const QPointF &last, const QPointF &now) {
        QGraphicsSceneMouseEvent event(type);
        event.setScenePos(now);
        event.setScreenPos(now.toPoint());
        event.setLastScenePos(last);
        event.setLastScreenPos(last.toPoint());
        event.setButtonDownScenePos(Qt::LeftButton, from);
        event.setButtonDownScreenPos(Qt::LeftButton, from.toPoint());
        event.setButton(type == QEvent::GraphicsSceneMouseMove ? Qt::NoButton : Qt::LeftButton);
        event.setButtons(type == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
        QCoreApplication::sendEvent(&scene, &event);
    };
    send(QEvent::GraphicsSceneMousePress, from, from);
    send(QEvent::GraphicsSceneMouseMove, from, to);
    send(QEvent::GraphicsSceneMouseRelease, to, to);
}

} // namespace probes
