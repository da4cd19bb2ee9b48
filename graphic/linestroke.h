// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"

#include <QPainterPath>
#include <QPen>

/// Line settings that lines and rectangles share. The two widths belong to the host: nothing converts one into the
/// other.
struct TAVRO_EXPORT LineStroke
{
    double widthPix = 1.0;           ///< pen width in pixels, drawn and picked
    double widthPhy = 0.25;          ///< the same width in millimetres, kept for the host
    unsigned int color = 0xFF000000; ///< 0xAARRGGBB
    Qt::PenStyle style = Qt::SolidLine;

    QPen pen() const;
    /// Area in which a pointer picks the outline: 5 px beyond the stroke on each side.
    QPainterPath pickArea(const QPainterPath &outline) const;
};
