// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"
#include "graphic/linestroke.h"

/// Free-standing rule: runs from the origin of the bounding rectangle to its opposite corner, so a negative width or
/// height gives any direction. Picked within 5 px of its stroke. A new line counts as modified. Hosts that let users
/// draw in any direction give their scene no index (QGraphicsScene::NoIndex), or negative rectangles are not found.
class TAVRO_EXPORT TavroLine : public TavroPrototype
{
    Q_OBJECT

public:
    explicit TavroLine(QGraphicsItem *parent = nullptr);
    ~TavroLine() override;

    void setBoundingRect(const QRectF &rect) override;
    QPainterPath shape() const override;
    /// Moves the start (Handle_TopLeft) or the end (Handle_BottomRight); other directions change nothing.
    void resize(HandleDirect direction, const QPointF &scenePoint) override;
    void setupReszHandleAndDashRect() override;
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

    void drawLine(QPainter *painter);

private:
    LineStroke m_stroke;
};
