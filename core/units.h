// SPDX-License-Identifier: MIT
#pragma once

/// Font sizes and lengths between paper and pixels. The scale is always the ratio of an extent of an object in pixels
/// to one of its physical extents in millimetres: no screen resolution is assumed anywhere. 25.4 mm and 72 points to
/// the inch.
namespace units {

/// Whole pixels for a size in points, cut off towards zero. At least 1: sizes below one pixel, negative sizes, sizes
/// that no int can hold and a physical width of 0 all give 1.
int pixelSize(double points, double pixelWidth, double physicalWidth);

/// Points for a size in pixels, neither rounded nor bounded: infinite or not a number where the pixel width is 0.
double pointSize(int pixels, double pixelWidth, double physicalWidth);

/// Pixels of a length on paper, along the extent of an object. 0 where that is no finite number, as on an object
/// without a physical extent: positions are computed from it.
double pixelLength(double length, double pixelExtent, double physicalExtent);

} // namespace units
