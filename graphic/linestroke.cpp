// SPDX-License-Identifier: MIT
#include "graphic/linestroke.h"

#include <QPainterPathStroker>

QPen LineStroke::pen() const
{
    QPen pen(QColor::fromRgba(color));
    // Qt keeps 1 px for a negative width, and warns at every paint.
    if (widthPix >= 0)
        pen.setWidthF(widthPix);
    pen.setStyle(style);
    return pen;
}

QPainterPath LineStroke::pickArea(const QPainterPath &outline) const
{
    constexpr double pickMargin = 10;
    QPainterPathStroker stroker;
    stroker.setWidth(widthPix + pickMargin);
    QPainterPath area = stroker.createStroke(outline);
    area.setFillRule(Qt::WindingFill);
    return area;
}
