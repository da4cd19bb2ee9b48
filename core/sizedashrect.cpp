// SPDX-License-Identifier: MIT
#include "core/sizedashrect.h"

#include "core/paintersaver.h"
#include "core/tavroprototype.h"

SizeDashRect::SizeDashRect(QGraphicsItem *owner)
    : QGraphicsRectItem(owner)
{
    hide();
}

SizeDashRect::~SizeDashRect() = default;

SelectionDashRectState SizeDashRect::state() const
{
    return m_state;
}

void SizeDashRect::setState(SelectionDashRectState state)
{
    if (state == m_state)
        return;
    if (state == DashRect_Off) {
        hide();
    } else if (state == DashRect_Inactive || state == DashRect_Active) {
        followOwner();
        show();
    }
    m_state = state;
    update();
}

void SizeDashRect::followOwner()
{
    setRect(parentItem()->boundingRect());
}

void SizeDashRect::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QGraphicsItem *owner = parentItem();
    if (owner->type() != TavroPrototype::Type || static_cast<const TavroPrototype *>(owner)->objType() == Obj_Line)
        return;
    const PainterSaver saver(painter);
    painter->setPen(QPen(QColor(57, 57, 255), 1.1, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(Qt::transparent);
    followOwner();
    painter->drawRect(rect());
}
