// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPen>
#include <QRectF>

class CellRow;
class QPainter;
class QString;

/// What rows of cells are drawn with. The painter is left in a changed state.
namespace cellpainting {

/// Dotted frame of cells on the screen.
QPen framePen();
/// Frames are drawn without antialiasing: cells rarely meet whole pixels, and a dotted line smeared over two is gray.
void setUpFrame(QPainter *painter);

/// In the middle of the rectangle. Never cut off: a digit that is too large for its cell has to be seen to be mended.
void drawCentred(QPainter *painter, const QRectF &rect, const QString &text);

/// The text of each filled cell, in the painter's font.
void drawTexts(QPainter *painter, const CellRow &row, const QColor &color);

} // namespace cellpainting
