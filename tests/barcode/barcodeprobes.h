// SPDX-License-Identifier: MIT
#pragma once

#include "barcode/tavrobarcode.h"
#include "tests/support/itemprobes.h"

#include <QFontMetricsF>

/// What a barcode object paints, in item coordinates.
namespace barcodeprobes {

inline QVector<QRectF> rectsOf(TavroBarcode &barcode, const QColor &color)
{
    QVector<QRectF> rects;
    const QVector<PaintCommand> commands = probes::paintedBy(barcode);
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Rect && command.brush.color() == color)
            rects.append(command.transform.mapRect(command.rect));
    }
    return rects;
}

/// Dark modules, in the order in which they are painted.
inline QVector<QRectF> modulesOf(TavroBarcode &barcode)
{
    return rectsOf(barcode, Qt::black);
}

/// Rectangle around the dark modules, null where there is none.
inline QRectF symbolOf(TavroBarcode &barcode)
{
    QRectF around;
    for (const QRectF &module : modulesOf(barcode))
        around = around.isNull() ? module : around | module;
    return around;
}

inline QVector<PaintCommand> textsOf(TavroBarcode &barcode)
{
    QVector<PaintCommand> texts;
    const QVector<PaintCommand> commands = probes::paintedBy(barcode);
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Text)
            texts.append(command);
    }
    return texts;
}

inline QStringList wordsOf(TavroBarcode &barcode)
{
    QStringList words;
    for (const PaintCommand &command : textsOf(barcode))
        words.append(command.text);
    return words;
}

/// Height of a line of readable text.
inline double textHeight(int pixelSize = 15)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(pixelSize);
    return QFontMetricsF(font).height();
}

inline QRectF around(const QPointF &center, const QSizeF &size)
{
    return {center.x() - size.width() / 2, center.y() - size.height() / 2, size.width(), size.height()};
}

/// Equal but for rounding, and for the trace by which modules overlap.
inline bool isSame(double a, double b)
{
    return qAbs(a - b) < 1e-4;
}

inline bool isSame(const QRectF &a, const QRectF &b)
{
    return isSame(a.left(), b.left()) && isSame(a.top(), b.top()) && isSame(a.right(), b.right()) &&
           isSame(a.bottom(), b.bottom());
}

inline QByteArray inWords(const QRectF &rect)
{
    return QStringLiteral("%1, %2, %3 x %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).toUtf8();
}

} // namespace barcodeprobes
