// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QSizeF>

/// Fits a text to a rectangle by shrinking its font one pixel at a time. Sizes in pixels; fonts carry a pixel size.
namespace textfitting {

struct WrappedFit
{
    QFont font;
    int lineCount; ///< lines of the last layout that was tried
};

/// Largest font, from the size of `font` downwards, in which `text` is at most `width` wide on one line. Never
/// enlarges; ends at 1 px where nothing fits.
QFont shrunkToWidth(const QFont &font, const QString &text, qreal width);

/// Largest font, from the size of `font` downwards, in which `text` wrapped to the width is lower than `box` is high,
/// or stands on one line, however tall. Ends at 1 px where nothing fits; `lineCount` then is that of the size before.
WrappedFit wrappedAndShrunk(const QFont &font, const QString &text, const QSizeF &box, Qt::Alignment alignment);

} // namespace textfitting
