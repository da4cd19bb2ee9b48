// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QLineF>
#include <QMap>
#include <QRectF>
#include <QString>
#include <QVector>

/// Measures printed pages in millimetres from the top left corner of the paper.
namespace measuring {

/// Page as a picture, to look for ink.
class Picture
{
public:
    Picture(const QImage &image, double dpi);
    /// Page of a PDF file; its image is null where the file cannot be shown.
    static Picture ofPdf(const QString &fileName, int dpi);

    bool isNull() const { return m_image.isNull(); }
    /// Size of the page.
    QSizeF size() const;
    /// Middle of a stroke that crosses the area from top to bottom (x) or from left to right (y).
    double strokeX(const QRectF &area) const;
    double strokeY(const QRectF &area) const;
    /// Where a stroke that leaves the area at its far side (right or bottom) begins, and one that enters it at its near
    /// side (left or top) ends.
    double startX(const QRectF &area) const;
    double endX(const QRectF &area) const;
    double startY(const QRectF &area) const;
    double endY(const QRectF &area) const;

private:
    QVector<double> columns(const QRectF &area) const;
    QVector<double> rows(const QRectF &area) const;
    int pixel(double millimetres) const;
    double darkness(int x, int y) const;

    QImage m_image;
    double m_scale; ///< pixels per millimetre
};

/// Boxes of the words of a PDF file, by word: as wide as the word advances, as high as its line.
QMultiMap<QString, QRectF> wordsOfPdf(const QString &fileName);

/// Strokes of an SVG file and the size that it gives itself.
struct Drawing
{
    QSizeF size;
    QVector<QLineF> lines;
    QVector<QRectF> rects;
    QMap<QString, QPointF> texts; ///< left ends of the base lines, by text
    double unit = 0;              ///< mm that a unit of the drawing is wide; a different height counts as 0
};
Drawing drawingOfSvg(const QString &fileName);

} // namespace measuring
