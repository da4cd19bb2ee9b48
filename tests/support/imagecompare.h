// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

class TavroPrototype;

/// Compares what is painted with images that are kept beside the tests.
namespace imagecompare {

/// The object as its mode paints it, on white, with its bounding rectangle in the middle of the image.
QImage painted(TavroPrototype &object, const QSize &size);

/// Empty when `actual` is the same as the baseline `name`, each colour channel within `tolerance`; else what differs.
/// On a difference the actual image and the difference are written to the working directory. With TAVRO_WRITE_BASELINES
/// in the environment the baseline is written instead, and the answer says so, so that no such run passes.
QString difference(const QImage &actual, const QString &name, int tolerance = 8);

} // namespace imagecompare
