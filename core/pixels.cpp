// SPDX-License-Identifier: MIT
#include "core/pixels.h"

#include <cmath>

namespace pixels {

namespace {

// Within what a widget can have, and a number.
double bounded(double length)
{
    constexpr double most = (1 << 24) - 1;
    return std::isnan(length) ? 0 : qBound(-most, length, most);
}

} // namespace

QPoint rounded(const QPointF &point)
{
    return {qRound(bounded(point.x())), qRound(bounded(point.y()))};
}

QRect rounded(const QRectF &rect)
{
    const QPoint size = rounded(QPointF(rect.width(), rect.height()));
    return {rounded(rect.topLeft()), QSize(size.x(), size.y())};
}

int truncated(double length)
{
    return static_cast<int>(bounded(length));
}

QRectF edgesRounded(const QRectF &rect)
{
    const auto halvesUp = [](double coordinate) { return std::floor(coordinate + 0.5); };
    return {QPointF(halvesUp(rect.left()), halvesUp(rect.top())),
            QPointF(halvesUp(rect.right()), halvesUp(rect.bottom()))};
}

} // namespace pixels
