// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QImage>
#include <QPen>
#include <QTextOption>
#include <QVector>

/// What a program without the library would put on its scene: items that draw the same, and can nothing else.

class BareLine : public QGraphicsItem
{
public:
    BareLine(const QRectF &rect, const QPen &pen);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
    QPen m_pen;
};

class BareRect : public QGraphicsItem
{
public:
    BareRect(const QRectF &rect, const QPen &pen);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
    QPen m_pen;
};

class BareText : public QGraphicsItem
{
public:
    BareText(const QRectF &rect, const QString &text, const QFont &font, const QTextOption &option,
             const QColor &color);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    void setText(const QString &text);
    void setFont(const QFont &font);

private:
    QRectF m_rect;
    QString m_text;
    QFont m_font;
    QTextOption m_option;
    QColor m_color;
};

/// A text and the cell in whose middle it stands.
struct CellText
{
    QRectF rect;
    QString text;
};

/// Digits in the middle of their cells.
class BareCells : public QGraphicsItem
{
public:
    BareCells(const QRectF &rect, const QFont &font, const QColor &color);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    void setTexts(const QVector<CellText> &texts);

private:
    QRectF m_rect;
    QFont m_font;
    QColor m_color;
    QVector<CellText> m_texts;
};

/// Lines over a ground, with words and digits in the middle of their cells and a border around.
class BareGrid : public QGraphicsItem
{
public:
    struct Content
    {
        QRectF ground;
        QColor groundColor;
        QVector<QLineF> lines;
        QPen linePen; ///< of the words too
        QVector<CellText> words;
        QVector<CellText> digits;
        QColor digitColor;
        QFont font;
        QRectF border;
        QPen borderPen;
    };

    BareGrid(const QRectF &rect, const Content &content);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
    Content m_content;
};

/// An image scaled into a rectangle, with a border around the item where the pen draws one.
class BareImage : public QGraphicsItem
{
public:
    BareImage(const QRectF &rect, const QRectF &target, const QImage &image, const QPen &borderPen);
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
    QRectF m_target;
    QImage m_image;
    QPen m_borderPen;
};
