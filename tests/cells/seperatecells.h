// SPDX-License-Identifier: MIT
#pragma once

#include "cells/tavroseperateedit.h"

/// Cells of a separated-cell edit as one text: from the left, a blank between them, "_" for an empty cell.
namespace seperatecells {

inline QString cellsOf(const TavroSeperateEdit &edit)
{
    QStringList texts;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        texts << (edit.charAt(i).isEmpty() ? QStringLiteral("_") : edit.charAt(i));
    return texts.join(QLatin1Char(' '));
}

/// Cells and cursor.
inline QString rowOf(const TavroSeperateEdit &edit)
{
    return QStringLiteral("%1, %2").arg(cellsOf(edit)).arg(edit.cursorIndx());
}

/// Writes the cells that the text names, and leaves those beyond it.
inline void fill(TavroSeperateEdit &edit, const QString &texts)
{
    const QStringList list = texts.split(QLatin1Char(' '));
    for (int i = 0; i < list.size(); ++i)
        edit.setCharAt(i, list.at(i) == QLatin1String("_") ? QString() : list.at(i));
}

inline QVector<QRectF> rectsOf(const TavroSeperateEdit &edit)
{
    QVector<QRectF> rects;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        rects << edit.rectAt(i);
    return rects;
}

} // namespace seperatecells
