// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QFont;
class QRectF;
class TavroText;

/// Whether texts stay inside the place that they are printed in. Into a place of negative size no text fits.
namespace textfit {

/// The text of an object in its rectangle: no line wider than the rectangle, and no ink above or below it.
bool fitsObject(const TavroText &object, const QString &text);

/// One line in the middle of a cell: no ink outside. Cells are narrow, and a character may be wider than its ink.
bool fitsCell(const QRectF &cell, const QFont &font, const QString &text);

} // namespace textfit
