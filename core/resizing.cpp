// SPDX-License-Identifier: MIT
#include "core/resizing.h"

#include <array>

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
