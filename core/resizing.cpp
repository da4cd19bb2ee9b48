// SPDX-License-Identifier: MIT
#include "core/resizing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace resizing {

namespace {

struct Anchor
{
    double x; // share of the width
    double y; // share of the height
};

// Index: HandleDirect 0 to 8.
constexpr std::array<Anchor, 9> Anchors{
    {{0, 0}, {0.5, 0}, {1, 0}, {1, 0.5}, {1, 1}, {0.5, 1}, {0, 1}, {0, 0.5}, {0.5, 0.5}}};

bool isNamed(HandleDirect direction)
{
    return direction >= 0 && direction < static_cast<int>(Anchors.size());
}

} // namespace

QPointF handleAnchor(const QRectF &rect, HandleDirect direction)
{
    if (!isNamed(direction))
        return rect.topLeft();
    const Anchor anchor = Anchors[static_cast<std::size_t>(direction)];
    return {rect.x() + rect.width() * anchor.x, rect.y() + rect.height() * anchor.y};
}

QRectF resized(const QRectF &rect, HandleDirect direction, const QPointF &point)
{
    if (!isNamed(direction))
        return rect;
    const Anchor anchor = Anchors[static_cast<std::size_t>(direction)];
    double x = rect.x();
    double y = rect.y();
    double width = rect.width();
    double height = rect.height();
    if (anchor.x == 0) {
        width = x + width - point.x();
        x = point.x();
    } else if (anchor.x == 1) {
        width = point.x() - x;
    }
    if (anchor.y == 0) {
        height = y + height - point.y();
        y = point.y();
    } else if (anchor.y == 1) {
        height = point.y() - y;
    }
    return {x, y, width, height};
}

QRectF resizedInProportion(const QRectF &rect, HandleDirect direction, const QPointF &point)
{
    if (!isNamed(direction) || direction == Handle_Center)
        return rect;
    const double ratio = rect.width() * rect.height() == 0 ? 1 : std::abs(rect.width() / rect.height());
    const QRectF dragged = resized(rect, direction, point);
    double width = std::abs(dragged.width());
    if (isCorner(direction))
        width = std::min(width, std::abs(dragged.height()) * ratio);
    else if (direction == Handle_Top || direction == Handle_Bottom)
        width = std::abs(dragged.height()) * ratio;
    const QSizeF box(std::copysign(width, dragged.width()), std::copysign(width / ratio, dragged.height()));
    return {QPointF(movesLeftEdge(direction) ? rect.right() - box.width() : rect.left(),
                    movesTopEdge(direction) ? rect.bottom() - box.height() : rect.top()),
            box};
}

bool movesLeftEdge(HandleDirect direction)
{
    return isNamed(direction) && Anchors[static_cast<std::size_t>(direction)].x == 0;
}

bool movesTopEdge(HandleDirect direction)
{
    return isNamed(direction) && Anchors[static_cast<std::size_t>(direction)].y == 0;
}

bool isCorner(HandleDirect direction)
{
    constexpr unsigned corners = 0x55;
    return direction >= 0 && direction <= Handle_Left && ((corners >> direction) & 1U) != 0;
}

QPointF boxCorner(const QRectF &rect, const QSizeF &box, bool leading)
{
    const double w = rect.width();
    const double h = rect.height();
    const bool covered = (w < 0 && h < 0) || (w > 0 && h < 0) || (w < 0 && h > 0) || (w >= 0 && h >= 0);
    if (!covered)
        return {};
    const double dx = w < 0 ? -box.width() : box.width();
    const double dy = h < 0 ? -box.height() : box.height();
    if (leading)
        return {rect.x() + dx, rect.y() + dy};
    return {rect.x() + w - dx, rect.y() + h - dy};
}

} // namespace resizing
