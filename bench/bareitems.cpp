// SPDX-License-Identifier: MIT
#include "bench/bareitems.h"

#include <QPainter>

BareLine::BareLine(const QRectF &rect, const QPen &pen)
    : m_rect(rect)
    , m_pen(pen)
{
}

QRectF BareLine::boundingRect() const
{
    return m_rect;
}

void BareLine::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(m_pen);
    painter->drawLine(m_rect.topLeft(), m_rect.bottomRight());
}

BareRect::BareRect(const QRectF &rect, const QPen &pen)
    : m_rect(rect)
    , m_pen(pen)
{
}

QRectF BareRect::boundingRect() const
{
    return m_rect;
}

void BareRect::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(m_pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_rect);
}

BareText::BareText(const QRectF &rect, const QString &text, const QFont &font, const QTextOption &option,
                   const QColor &color)
    : m_rect(rect)
    , m_text(text)
    , m_font(font)
    , m_option(option)
    , m_color(color)
{
}

QRectF BareText::boundingRect() const
{
    return m_rect;
}

void BareText::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(m_color);
    painter->setFont(m_font);
    painter->drawText(m_rect, m_text, m_option);
}

void BareText::setText(const QString &text)
{
    m_text = text;
    update();
}

void BareText::setFont(const QFont &font)
{
    m_font = font;
    update();
}
