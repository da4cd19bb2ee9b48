// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>
#include <functional>

class TavroBarcode;
class ZintWrapper;

/// Barcodes on white paper at the resolution of a printer.
namespace paper {

/// Scale of the forms from which is printed.
constexpr double PixelsPerMillimetre = 8;

/// White around each symbol, millimetres: scanners want it, and it is the paper's.
constexpr double QuietZone = 5;

/// What stands on a piece of paper.
struct Sheet
{
    QSizeF size;                           ///< millimetres, without the quiet zone
    std::function<void(QPainter *)> paint; ///< in pixels of the form, from (0, 0) on
};

/// Millimetres on paper.
struct Measures
{
    double module;
    double height = 0; ///< of bars and text, 0 where it follows from the module
};

/// A barcode as it prints itself. `setUp` is for settings beyond symbology and content.
Sheet sheetOf(int symbology, const QString &content, const Measures &measures,
              const std::function<void(TavroBarcode &)> &setUp = {});

/// What the engine paints, for settings that no object has; `measures` without text.
Sheet sheetOf(const Measures &measures, const std::function<void(ZintWrapper &)> &setUp);

/// Two sheets in a row; a negative gap lets them overlap.
Sheet beside(const Sheet &left, double gap, const Sheet &right);

QImage printed(const Sheet &sheet, double dotsPerInch);

} // namespace paper
