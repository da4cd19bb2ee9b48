// SPDX-License-Identifier: MIT
#include "desk/checking/textfit.h"

#include "core/tavrotext.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>

namespace textfit {

namespace {

// Half a pixel is what antialiasing spreads anyway.
constexpr qreal Tolerance = 0.5;

// Wide enough that no line is broken.
constexpr qreal Unbroken = 1e6;

struct Extent
{
    qreal width = 0;  ///< of the widest line
    qreal height = 0; ///< of the lines
    QRectF ink;       ///< of the glyphs, from the top left corner of the first line
};

// A run of a layout answers the box of its line as its bounding rectangle, so the glyphs are asked one by one.
QRectF inkOf(const QGlyphRun &run)
{
    const QRawFont font = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    QRectF ink;
    for (int i = 0; i < glyphs.size(); ++i)
        ink |= font.boundingRect(glyphs.at(i)).translated(positions.at(i));
    return ink;
}

// Lays the text out as a painter does that draws it into a rectangle of the width.
Extent extentOf(QString text, const QFont &font, const QTextOption &option, qreal width)
{
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    Extent extent;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(option.wrapMode() == QTextOption::NoWrap ? Unbroken : width);
        line.setPosition({0, extent.height});
        extent.height += line.height();
        extent.width = std::max(extent.width, line.naturalTextWidth());
    }
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs)
        extent.ink |= inkOf(run);
    return extent;
}

qreal topOf(const QRectF &rect, qreal height, Qt::Alignment alignment)
{
    if (alignment & Qt::AlignBottom)
        return rect.height() - height;
    if (alignment & Qt::AlignVCenter)
        return (rect.height() - height) / 2;
    return 0;
}

bool isBetween(qreal start, qreal end, qreal length)
{
    return start >= -Tolerance && end <= length + Tolerance;
}

} // namespace

bool fitsObject(const TavroText &object, const QString &text)
{
    if (text.trimmed().isEmpty())
        return true;
    const QRectF rect = object.boundingRect();
    const QTextOption option = object.textOption();
    const Extent extent = extentOf(text, object.font(), option, rect.width());
    const qreal top = topOf(rect, extent.height, option.alignment());
    return extent.width <= rect.width() + Tolerance &&
           isBetween(top + extent.ink.top(), top + extent.ink.bottom(), rect.height());
}

bool fitsCell(const QRectF &cell, const QFont &font, const QString &text)
{
    if (text.trimmed().isEmpty())
        return true;
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    const Extent extent = extentOf(text, font, option, cell.width());
    const qreal left = (cell.width() - extent.width) / 2;
    const qreal top = (cell.height() - extent.height) / 2;
    return isBetween(left + extent.ink.left(), left + extent.ink.right(), cell.width()) &&
           isBetween(top + extent.ink.top(), top + extent.ink.bottom(), cell.height());
}

} // namespace textfit
