// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class Form;

/// Finds what would make a printed form wrong.
namespace checking {

/// One line for each problem, empty where the form can be printed: values that do not fit their format or their cells,
/// required values that are missing, texts that do not fit their rectangle or their cell, barcodes that nothing could
/// read, pictures that cannot be loaded, and kinds and settings that this version does not know.
/// Brings the fonts of the form up to date.
QStringList problems(const Form &form);

} // namespace checking
