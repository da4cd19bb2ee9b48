// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class TavroBarcode;

/// What is wrong with barcodes.
namespace barcodechecking {

/// The first problem in words, empty without one. Fits the symbol to its rectangle.
QString problemOf(TavroBarcode &object);

} // namespace barcodechecking
