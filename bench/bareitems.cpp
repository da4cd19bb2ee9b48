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

BareGrid::BareGrid(const QRectF &rect, const Content &content)
    : m_rect(rect)
    , m_content(content)
{
}

QRectF BareGrid::boundingRect() const
{
    return m_rect;
}

void BareGrid::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const auto draw = [painter](const QVector<Text> &texts) {
        for (const Text &text : texts)
            painter->drawText(text.rect, Qt::AlignCenter | Qt::TextDontClip, text.text);
    };
    painter->fillRect(m_content.ground, m_content.groundColor);
    painter->setPen(m_content.linePen);
    painter->drawLines(m_content.lines);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter->setFont(m_content.font);
    draw(m_content.words);
    painter->setPen(m_content.digitColor);
    draw(m_content.digits);
    painter->setPen(m_content.borderPen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_content.border);
}
