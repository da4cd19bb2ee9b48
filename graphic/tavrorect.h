// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"
#include "graphic/linestroke.h"

/// Rectangular frame without a fill. Picked within 5 px of its outline, not inside. A new rectangle counts as modified.
class TAVRO_EXPORT TavroRect : public TavroPrototype
{
    Q_OBJECT

public:
    explicit TavroRect(QGraphicsItem *parent = nullptr);
    ~TavroRect() override;

    QPainterPath shape() const override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;

    // stroke; no setter repaints
    double lineWidthPix() const;
    /// Pixels. Does not mark modified.
    void setLineWidthPix(const double &width);
    double lineWidthPhy() const;
    /// Millimetres, kept for the host. Marks modified.
    void setLineWidthPhy(const double &width);
    unsigned int lineColor() const;
    /// 0xAARRGGBB. Marks modified.
    void setLineColor(const unsigned int &color);
    Qt::PenStyle lineStyle() const;
    /// Marks modified.
    void setLineStyle(const Qt::PenStyle &style);

    void drawRect(QPainter *painter);

private:
    LineStroke m_stroke;
};
