// SPDX-License-Identifier: MIT
#pragma once

#include "cells/tavroseperateedit.h"
#include "tests/support/recordingpaintengine.h"

#include <QStyleOptionGraphicsItem>
#include <cmath>

/// What a separated-cell edit paints.
namespace seperatepaints {

/// 700 x 40 px that stand for 70 mm, so that the gaps of an amount are 50 px wide, and a font of known size.
inline void setUp(TavroSeperateEdit &edit)
{
    edit.setFontFamily(QStringLiteral("DejaVu Sans"));
    edit.setTextFillingRule(Fill_NoWrap);
    edit.setPhyRect(QRectF(0, 0, 70, 4));
    edit.setBoundingRect(QRectF(10, 20, 700, 40));
}

/// Paints with a painter whose pen, brush and font are its own.
template <typename Paint>
QVector<PaintCommand> recorded(const Paint &paint)
{
    RecordingDevice device;
    QPainter painter(&device);
    painter.setPen(QPen(Qt::magenta, 3, Qt::DashLine));
    painter.setBrush(Qt::cyan);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 33));
    painter.setRenderHint(QPainter::Antialiasing);
    paint(&painter);
    return device.commands();
}

inline QVector<PaintCommand> painted(TavroSeperateEdit &edit)
{
    return recorded([&edit](QPainter *painter) {
        const QStyleOptionGraphicsItem option;
        edit.paint(painter, &option, nullptr);
    });
}

inline bool isNear(const QPointF &a, const QPointF &b)
{
    return std::abs(a.x() - b.x()) < 0.1 && std::abs(a.y() - b.y()) < 0.1;
}

/// A text with the cell in whose middle it stands ("0:壹"), or in the middle of the gap behind which ("0>万").
inline QString textOf(const TavroSeperateEdit &edit, const PaintCommand &command)
{
    const QPointF middle = command.rect.center();
    for (int i = 0; i < edit.numOfEditable(); ++i) {
        const QRectF cell = edit.rectAt(i);
        if (isNear(middle, cell.center()))
            return QStringLiteral("%1:%2").arg(i).arg(command.text);
        if (isNear(middle, QPointF(cell.right() + edit.pixWidthOfSeperator() / 2, cell.center().y())))
            return QStringLiteral("%1>%2").arg(i).arg(command.text);
    }
    return QStringLiteral("?%1").arg(command.text);
}

/// All texts in their order.
inline QString textsOf(const TavroSeperateEdit &edit, const QVector<PaintCommand> &commands)
{
    QStringList texts;
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Text)
            texts << textOf(edit, command);
    }
    return texts.join(QLatin1Char(' '));
}

inline QString partOf(const TavroSeperateEdit &edit, const PaintCommand &command)
{
    if (command.kind == PaintCommand::Image)
        return QStringLiteral("lock");
    if (command.kind == PaintCommand::Text) {
        if (textOf(edit, command).contains(QLatin1Char('>')))
            return QStringLiteral("word");
        return command.text == edit.prefix() ? QStringLiteral("mark") : QStringLiteral("text");
    }
    if (command.kind != PaintCommand::Rect)
        return QStringLiteral("other");
    if (command.pen.style() != Qt::NoPen)
        return command.pen.style() == Qt::DotLine ? QStringLiteral("frame") : QStringLiteral("border");
    return command.opacity < 1 ? QStringLiteral("background") : QStringLiteral("cursor");
}

/// What follows what, each part once.
inline QString partsOf(const TavroSeperateEdit &edit, const QVector<PaintCommand> &commands)
{
    QStringList parts;
    for (const PaintCommand &command : commands) {
        const QString part = partOf(edit, command);
        if (parts.isEmpty() || parts.last() != part)
            parts << part;
    }
    return parts.join(QLatin1Char(' '));
}

} // namespace seperatepaints
