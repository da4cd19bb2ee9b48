// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class Form;
class TavroText;

/// Finds what would make a printed form wrong.
namespace checking {

/// One line for each problem, empty where the form can be printed: values that do not fit their format, required values
/// that are missing, texts that do not fit their rectangle, and kinds and settings that this version does not know.
/// Brings the fonts of the form up to date.
QStringList problems(const Form &form);

/// Whether the text of the object is printed whole: no line wider than the rectangle, and no ink above or below it.
/// Into a rectangle of negative size no text fits.
bool textFits(const TavroText &object, const QString &text);

} // namespace checking
