// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QRectF>

/// Arithmetic of the resize handles, in pixels of item coordinates. Rectangles may have negative sizes and keep them.
namespace resizing {

/// Point of `rect` on which the handle stands; directions beyond Handle_Center stand on the top-left corner.
QPointF handleAnchor(const QRectF &rect, HandleDirect direction);

/// `rect` after the edges that the handle owns moved to `point`; the opposite edges stay. Nothing is clamped: an edge
/// dragged past the opposite one gives a negative size. Handle_Center and beyond change nothing.
QRectF resized(const QRectF &rect, HandleDirect direction, const QPointF &point);

/// Likewise, with the proportions of `rect`, or those of a square where it is empty. A corner: the largest box that
/// fits between the corner that stays and the point, so that the shorter side governs and the box shrinks to nothing on
/// the way into another quadrant, instead of leaping there. An edge: its own distance governs, and of the edges beside
/// it the left or upper one stays.
QRectF resizedInProportion(const QRectF &rect, HandleDirect direction, const QPointF &point);

/// Whether the handle owns the left edge, or the upper one.
bool movesLeftEdge(HandleDirect direction);
bool movesTopEdge(HandleDirect direction);

/// Whether the handle stands on a corner; only corners are shown on proportional objects.
bool isCorner(HandleDirect direction);

/// Corner reached from one corner of `rect` by the extent of a box, following the signs of the rectangle's size: from
/// the origin corner inwards when `leading`, else from the opposite corner back inwards. A mixed sign with a zero size
/// gives (0, 0).
QPointF boxCorner(const QRectF &rect, const QSizeF &box, bool leading);

} // namespace resizing
