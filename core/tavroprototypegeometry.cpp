// SPDX-License-Identifier: MIT
// Geometry and stacking of a form object: the part of the prototype that moves things.
#include "core/tavroprototype.h"

#include "core/resizing.h"
#include "core/sizedashrect.h"
#include "core/sizehandlerect.h"
#include "core/stacking.h"
#include "core/units.h"

#include <QGraphicsScene>

double TavroPrototype::objX() const
{
    return m_boundingRect.x();
}

void TavroPrototype::setObjX(double x)
{
    setObjPos({x, objY()});
}

double TavroPrototype::objY() const
{
    return m_boundingRect.y();
}

void TavroPrototype::setObjY(double y)
{
    setObjPos({objX(), y});
}

QPointF TavroPrototype::objPos() const
{
    return m_boundingRect.topLeft();
}

void TavroPrototype::setObjPos(const QPointF &topLeft)
{
    setBoundingRect({topLeft, m_boundingRect.size()});
}

void TavroPrototype::setObjCenter(const QPointF &center)
{
    setObjPos(center - QPointF(width() / 2, height() / 2));
}

void TavroPrototype::moveObjBy(const QPointF &offset)
{
    setObjPos(objPos() + offset);
}

double TavroPrototype::width() const
{
    return m_boundingRect.width();
}

void TavroPrototype::setWidth(double width)
{
    setBoundingRect({objX(), objY(), width, height()});
}

double TavroPrototype::height() const
{
    return m_boundingRect.height();
}

void TavroPrototype::setHeight(double height)
{
    setBoundingRect({objX(), objY(), width(), height});
}

QPointF TavroPrototype::scenePos() const
{
    return mapToScene(m_boundingRect.topLeft());
}

QRectF TavroPrototype::sceneBoundingRect() const
{
    return mapRectToScene(m_boundingRect);
}

QRectF TavroPrototype::phyRect() const
{
    return m_phyRect;
}

void TavroPrototype::setPhyRect(const QRectF &rect)
{
    storeSetting(m_phyRect, rect);
}

QPointF TavroPrototype::phyPos() const
{
    return m_phyRect.topLeft();
}

double TavroPrototype::phyWidth() const
{
    return m_phyRect.width();
}

double TavroPrototype::phyHeight() const
{
    return m_phyRect.height();
}

double TavroPrototype::getPhyBoundingRectWidth() const
{
    return m_phyBoundingRectWidth;
}

void TavroPrototype::setPhyBoundingRectWidth(const double &width)
{
    m_phyBoundingRectWidth = width;
}

double TavroPrototype::getPhyBoundingRectHeight() const
{
    return m_phyBoundingRectHeight;
}

void TavroPrototype::setPhyBoundingRectHeight(const double &height)
{
    m_phyBoundingRectHeight = height;
}

int TavroPrototype::pointSzToPixSz(double points) const
{
    return units::pixelSize(points, width(), m_phyBoundingRectWidth);
}

void TavroPrototype::storeBoundingRect(const QRectF &rect)
{
    prepareGeometryChange();
    repaintIfNegative();
    m_boundingRect = rect;
    updateGeometry();
    if (m_dashRect->isVisible())
        m_dashRect->followOwner();
    repaintIfNegative();
}

void TavroPrototype::repaint()
{
    if (m_isPainting)
        return;
    update();
    repaintIfNegative();
}

void TavroPrototype::repaintIfNegative()
{
    // An antialiased stroke reaches this far beyond its rectangle.
    constexpr qreal reach = 2;
    // The lock sign hangs from the origin, out of a rectangle that runs to the left or upwards.
    const QRectF painted = m_boundingRect.normalized() | QRectF(m_boundingRect.topLeft(), m_lockedImage.size());
    if (scene() && (m_boundingRect.width() < 0 || m_boundingRect.height() < 0))
        scene()->update(mapRectToScene(painted).normalized().adjusted(-reach, -reach, reach, reach));
}

void TavroPrototype::updateGeometry()
{
    constexpr qreal half = SizeHandleRect::Size / 2.0;
    for (SizeHandleRect *handle : qAsConst(m_handles))
        handle->setPos(resizing::handleAnchor(m_boundingRect, handle->direction()) - QPointF(half, half));
}

void TavroPrototype::bringObjToFront()
{
    restack(stacking::Move::ToFront);
}

void TavroPrototype::bringObjToBack()
{
    restack(stacking::Move::ToBack);
}

void TavroPrototype::raiseObjUp()
{
    restack(stacking::Move::Up);
}

void TavroPrototype::lowerObjDown()
{
    restack(stacking::Move::Down);
}

void TavroPrototype::restack(stacking::Move move)
{
    QVector<QGraphicsItem *> group{this};
    const QList<QGraphicsItem *> colliding = collidingItems(Qt::IntersectsItemBoundingRect);
    for (QGraphicsItem *item : colliding) {
        if (item->type() == Type)
            group.append(item);
    }
    QVector<qreal> zValues;
    for (const QGraphicsItem *item : qAsConst(group))
        zValues.append(item->zValue());
    const QVector<qreal> restacked = stacking::restacked(zValues, 0, move);
    for (int i = 0; i < group.size(); ++i)
        group.at(i)->setZValue(restacked.at(i));
}
