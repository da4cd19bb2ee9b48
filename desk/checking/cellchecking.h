// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class TavroFinancialEdit;
class TavroSeperateEdit;

/// Finds what would make a printed row of cells wrong.
namespace cellchecking {

/// What is wrong with the row, empty where it can be printed: a value that is none, that loses digits or characters on
/// its way into the cells, or that is missing, and digits and signs that stick out of their cells.
QString problemOf(const TavroSeperateEdit &edit);
QString problemOf(const TavroFinancialEdit &edit);

} // namespace cellchecking
