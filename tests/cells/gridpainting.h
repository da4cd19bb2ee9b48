// SPDX-License-Identifier: MIT
#pragma once

#include "cells/tavrofinancialedit.h"
#include "tests/support/recordingpaintengine.h"

#include <memory>

/// What tests ask of the painting of a financial edit.
namespace gridpainting {

using Edit = TavroFinancialEdit;

/// The row of words is 10 px high, the cells are 20 px wide.
inline const QRectF Grid(10, 20, 240, 60);

inline std::unique_ptr<Edit> grid(const char *content = "", const QRectF &rect = Grid)
{
    auto edit = std::make_unique<Edit>();
    edit->setFontFamily(QStringLiteral("DejaVu Sans"));
    edit->setTextFillingRule(Fill_NoWrap);
    edit->setPhyRect({0, 0, 120, 30});
    edit->setBoundingRect(rect);
    edit->setContentData(QString::fromLatin1(content));
    return edit;
}

/// What one operation draws, with a painter that smooths edges.
inline QVector<PaintCommand> drawnBy(Edit &edit, void (Edit::*operation)(QPainter *))
{
    RecordingDevice device;
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing);
    (edit.*operation)(&painter);
    painter.end();
    return device.commands();
}

/// The texts that stand in the middle of cells, a word for each cell: "_" for a cell without.
inline QString textsInCells(const Edit &edit, const QVector<PaintCommand> &commands, bool inRowOfWords = false)
{
    QStringList words;
    int found = 0;
    for (int i = 0; i < edit.numOfEditable(); ++i) {
        QRectF cell = edit.rectAt(i);
        if (inRowOfWords)
            cell = QRectF(cell.x(), edit.objY(), cell.width(), edit.unitRowHeight());
        QString word = QStringLiteral("_");
        for (const PaintCommand &command : commands) {
            const QPointF off = command.rect.center() - cell.center();
            if (command.kind == PaintCommand::Text && qAbs(off.x()) <= 1 && qAbs(off.y()) <= 3) {
                word = command.text;
                ++found;
            }
        }
        words << word;
    }
    if (found != commands.size())
        words << QStringLiteral("and others");
    return words.join(QLatin1Char(' '));
}

} // namespace gridpainting
