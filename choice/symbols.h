// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QRectF;

/// The marks of the choice objects, scalable images among the resources.
namespace symbols {

enum Symbol { None, Tick, Cross, Circle, Block, Triangle };

/// Fills the rectangle with the image, drawn for the very pixels that it covers on the device. Each size is read from
/// the resources once and kept, up to 1024 pixels a side; beyond that the largest image is enlarged. Nothing for None
/// and for an empty rectangle.
void draw(QPainter *painter, const QRectF &target, Symbol symbol);

} // namespace symbols
