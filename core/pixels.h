// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

/// Points and rectangles of objects on whole pixels, for widgets and images, which stand on nothing else.
namespace pixels {

/// Rounded, halves upwards, with the bounds of rectangles.
QPoint rounded(const QPointF &point);
/// Place and size rounded each on its own, halves upwards, and bounded to what a widget can have; 0 for what is no
/// number.
QRect rounded(const QRectF &rect);
/// Cut off towards zero, with the same bounds.
int truncated(double length);
/// The edges rounded, as QRectF::toRect() does; in floating point, so that no size overflows.
QRectF edgesRounded(const QRectF &rect);

} // namespace pixels
