// SPDX-License-Identifier: MIT
#include "core/units.h"

#include <cmath>
#include <limits>

namespace units {

static_assert(std::numeric_limits<double>::is_iec559, "a division by zero has to give infinity or not a number");

namespace {
constexpr double MillimetresPerInch = 25.4;
constexpr double PointsPerInch = 72;
} // namespace

int pixelSize(double points, double pixelWidth, double physicalWidth)
{
    if (physicalWidth == 0)
        return 1;
    const double pixels = MillimetresPerInch * points / PointsPerInch * pixelWidth / physicalWidth;
    // Written so that "not a number" fails it; a value beyond int cannot be cut off to one.
    if (!(pixels >= 1 && pixels <= std::numeric_limits<int>::max()))
        return 1;
    return static_cast<int>(pixels);
}

double pointSize(int pixels, double pixelWidth, double physicalWidth)
{
    return physicalWidth * pixels / pixelWidth * PointsPerInch / MillimetresPerInch;
}

double pixelLength(double length, double pixelExtent, double physicalExtent)
{
    const double pixels = pixelExtent * length / physicalExtent;
    return std::isfinite(pixels) ? pixels : 0;
}

} // namespace units
