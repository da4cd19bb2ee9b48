// SPDX-License-Identifier: MIT
#include "bench/bareitems.h"

#include <QPainter>

namespace {

void drawCells(QPainter *painter, const QVector<CellText> &texts)
{
    for (const CellText &text : texts)
        painter->drawText(text.rect, Qt::AlignCenter | Qt::TextDontClip, text.text);
}

} // namespace

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

BareCells::BareCells(const QRectF &rect, const QFont &font, const QColor &color)
    : m_rect(rect)
    , m_font(font)
    , m_color(color)
{
}

QRectF BareCells::boundingRect() const
{
    return m_rect;
}

void BareCells::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(m_color);
    painter->setFont(m_font);
    drawCells(painter, m_texts);
}

void BareCells::setTexts(const QVector<CellText> &texts)
{
    m_texts = texts;
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
    painter->fillRect(m_content.ground, m_content.groundColor);
    painter->setPen(m_content.linePen);
    painter->drawLines(m_content.lines);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter->setFont(m_content.font);
    drawCells(painter, m_content.words);
    painter->setPen(m_content.digitColor);
    drawCells(painter, m_content.digits);
    painter->setPen(m_content.borderPen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(m_content.border);
}

BareImage::BareImage(const QRectF &rect, const QRectF &target, const QImage &image, const QPen &borderPen)
    : m_rect(rect)
    , m_target(target)
    , m_image(image)
    , m_borderPen(borderPen)
{
}

QRectF BareImage::boundingRect() const
{
    return m_rect;
}

void BareImage::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    if (m_borderPen.style() != Qt::NoPen) {
        painter->setPen(m_borderPen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(m_rect.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    if (!m_image.isNull())
        painter->drawImage(m_target, m_image);
}
