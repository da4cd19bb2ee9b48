// SPDX-License-Identifier: MIT
#include "graphic/tavrorect.h"

#include "core/paintersaver.h"

TavroRect::TavroRect(QGraphicsItem *parent)
    : TavroPrototype(parent)
{
    setObjType(Obj_Rect);
    setIsModified(true);
    setFlag(ItemIsFocusable, false);
}

TavroRect::~TavroRect() = default;

QPainterPath TavroRect::shape() const
{
    QPainterPath outline;
    outline.addRect(boundingRect());
    return m_stroke.pickArea(outline);
}

void TavroRect::designPaint(QPainter *painter)
{
    drawRect(painter);
    drawLockedSign(painter);
}

void TavroRect::inputPaint(QPainter *painter)
{
    drawRect(painter);
}

void TavroRect::printPaint(QPainter *painter)
{
    if (isPrint())
        drawRect(painter);
}

double TavroRect::lineWidthPix() const
{
    return m_stroke.widthPix;
}

void TavroRect::setLineWidthPix(const double &width)
{
    m_stroke.widthPix = width;
}

double TavroRect::lineWidthPhy() const
{
    return m_stroke.widthPhy;
}

void TavroRect::setLineWidthPhy(const double &width)
{
    storeSetting(m_stroke.widthPhy, width);
}

unsigned int TavroRect::lineColor() const
{
    return m_stroke.color;
}

void TavroRect::setLineColor(const unsigned int &color)
{
    storeSetting(m_stroke.color, color);
}

Qt::PenStyle TavroRect::lineStyle() const
{
    return m_stroke.style;
}

void TavroRect::setLineStyle(const Qt::PenStyle &style)
{
    storeSetting(m_stroke.style, style);
}

void TavroRect::drawRect(QPainter *painter)
{
    QPen pen = m_stroke.pen();
    pen.setJoinStyle(Qt::MiterJoin);
    const PainterSaver saver(painter);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(boundingRect());
}
