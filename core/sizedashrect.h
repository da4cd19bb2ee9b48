// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QGraphicsRectItem>

/// Dashed frame around a selected form object. It takes the object's rectangle whenever it paints; a line has none.
class SizeDashRect : public QGraphicsRectItem
{
public:
    /// Hidden child of `owner`, which also deletes it.
    explicit SizeDashRect(QGraphicsItem *owner);
    ~SizeDashRect() override;

    SelectionDashRectState state() const;
    /// Ignored when equal to the current state; else 0 hides, 1 and 2 show, the value is stored, the frame repaints.
    void setState(SelectionDashRectState state);

    /// Takes the owner's rectangle, so that the scene knows where to paint the frame.
    void followOwner();

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    SelectionDashRectState m_state = DashRect_Off;
};
