// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Form;
class QPainter;
class QRectF;
class TavroPrototype;

/// Puts forms on paper at true size.
namespace printing {

inline constexpr int LeastDpi = 10;
inline constexpr int MostDpi = 4800;
inline constexpr int UsualDpi = 300;

/// Switches the form to printing, as after filling it in: what is invisible while filling in is not printed.
void prepare(Form *form);

/// Whether the object of a prepared form comes to paper.
bool isPrinted(const TavroPrototype &object);

/// Paints the page of a prepared form into a rectangle of the painter, in device units.
void paintPage(QPainter *painter, Form *form, const QRectF &target);

/// Whether the name ends with the suffix of a format that write() knows: .pdf, .png, .svg.
bool isKnownFormat(const QString &fileName);

/// Writes the whole file or, on an error, nothing; the result is one line that says what went wrong, else empty.
/// `dpi` is the resolution of a PNG and the grid of a PDF, from LeastDpi to MostDpi; an SVG has a grid of its own.
QString write(Form *form, const QString &fileName, int dpi);

} // namespace printing
