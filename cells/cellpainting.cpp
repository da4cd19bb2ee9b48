// SPDX-License-Identifier: MIT
#include "cells/cellpainting.h"

#include "cells/cellrow.h"

#include <QPainter>

namespace cellpainting {

QPen framePen()
{
    return QPen(Qt::black, 1, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin);
}

void setUpFrame(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(framePen());
    painter->setBrush(Qt::NoBrush);
}

void drawCentred(QPainter *painter, const QRectF &rect, const QString &text)
{
    painter->drawText(rect, Qt::AlignCenter | Qt::TextDontClip, text);
}

void drawTexts(QPainter *painter, const CellRow &row, const QColor &color)
{
    painter->setPen(QPen(color, 1));
    for (int i = 0; i < row.count(); ++i) {
        if (!row.textAt(i).isEmpty())
            drawCentred(painter, row.rectAt(i), row.textAt(i));
    }
}

} // namespace cellpainting
