// SPDX-License-Identifier: MIT
#include "graphic/tavroline.h"

#include "core/paintersaver.h"
#include "core/resizing.h"

TavroLine::TavroLine(QGraphicsItem *parent)
    : TavroPrototype(parent)
{
    setObjType(Obj_Line);
    setIsModified(true);
    setFlag(ItemIsFocusable, false);
    TavroLine::setupReszHandleAndDashRect();
}

TavroLine::~TavroLine() = default;

void TavroLine::setBoundingRect(const QRectF &rect)
{
    storeBoundingRect(rect);
    update(rect);
    Q_EMIT boundingRectChanged();
}

QPainterPath TavroLine::shape() const
{
    const QRectF rect = boundingRect();
    QPainterPath segment(rect.topLeft());
    segment.lineTo(rect.bottomRight());
    return m_stroke.pickArea(segment);
}

void TavroLine::resize(HandleDirect direction, const QPointF &scenePoint)
{
    const bool isEnd = direction == Handle_TopLeft || direction == Handle_BottomRight;
    TavroPrototype::resize(isEnd ? direction : Handle_None, scenePoint);
}

void TavroLine::setupReszHandleAndDashRect()
{
    setupHandles({Handle_TopLeft, Handle_BottomRight});
}

void TavroLine::designPaint(QPainter *painter)
{
    drawLine(painter);
    drawLockedSign(painter);
}

void TavroLine::inputPaint(QPainter *painter)
{
    drawLine(painter);
}

void TavroLine::printPaint(QPainter *painter)
{
    if (isPrint())
        drawLine(painter);
}

double TavroLine::lineWidthPix() const
{
    return m_stroke.widthPix;
}

void TavroLine::setLineWidthPix(const double &width)
{
    m_stroke.widthPix = width;
}

double TavroLine::lineWidthPhy() const
{
    return m_stroke.widthPhy;
}

void TavroLine::setLineWidthPhy(const double &width)
{
    storeSetting(m_stroke.widthPhy, width);
}

unsigned int TavroLine::lineColor() const
{
    return m_stroke.color;
}

void TavroLine::setLineColor(const unsigned int &color)
{
    storeSetting(m_stroke.color, color);
}

Qt::PenStyle TavroLine::lineStyle() const
{
    return m_stroke.style;
}

void TavroLine::setLineStyle(const Qt::PenStyle &style)
{
    storeSetting(m_stroke.style, style);
}

void TavroLine::drawLine(QPainter *painter)
{
    const QRectF rect = boundingRect();
    const PainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(m_stroke.pen());
    painter->drawLine(rect.topLeft(), rect.bottomRight());
}
