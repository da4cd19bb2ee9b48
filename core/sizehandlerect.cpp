// SPDX-License-Identifier: MIT
#include "core/sizehandlerect.h"

#include "core/paintersaver.h"

QColor SizeHandleRect::leadingColor()
{
    return {0x66, 0xCC, 0x99, 120};
}

QColor SizeHandleRect::followingColor()
{
    return {0, 0, 0, 120};
}

SizeHandleRect::SizeHandleRect(QGraphicsItem *owner, HandleDirect direction)
    : QGraphicsRectItem(0, 0, Size, Size, owner)
    , m_direction(direction)
    , m_color(leadingColor())
{
    hide();
}

SizeHandleRect::~SizeHandleRect() = default;

HandleDirect SizeHandleRect::direction() const
{
    return m_direction;
}

SelectionHandleState SizeHandleRect::state() const
{
    return m_state;
}

void SizeHandleRect::setState(SelectionHandleState state)
{
    m_state = state;
    if (state == Handle_Off)
        hide();
    else if (state == Handle_Inactive || state == Handle_Active)
        show();
}

void SizeHandleRect::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QColor SizeHandleRect::color() const
{
    return m_color;
}

void SizeHandleRect::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::NoPen);
    if (m_direction == Handle_Center) {
        painter->setBrush(Qt::blue);
        painter->drawEllipse(rect());
    } else {
        painter->setBrush(m_color);
        painter->drawRect(rect());
    }
}
