// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QColor>
#include <QGraphicsRectItem>

/// Resize handle of a form object: a square of 8 px, or a dot in the centre. It only shows itself and knows its place;
/// the host's view receives the mouse.
class SizeHandleRect : public QGraphicsRectItem
{
public:
    /// Edge of the square in pixels.
    static constexpr int Size = 8;

    /// Colours of the handles of a selected object, and of one that follows the leading object of a selection.
    static QColor leadingColor();
    static QColor followingColor();

    /// Hidden child of `owner`, which also deletes it.
    SizeHandleRect(QGraphicsItem *owner, HandleDirect direction);
    ~SizeHandleRect() override;

    HandleDirect direction() const;
    SelectionHandleState state() const;
    /// 0 hides, 1 and 2 show, any other value is only stored.
    void setState(SelectionHandleState state);
    void setColor(const QColor &color);
    QColor color() const;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    HandleDirect m_direction;
    SelectionHandleState m_state = Handle_Off;
    QColor m_color;
};
