// SPDX-License-Identifier: MIT
#pragma once

#include "cells/tavrofinancialedit.h"

#include <QSignalSpy>

/// The cells of a grid as one word, a character each, "_" where a cell is empty.
inline QString cellsOf(const TavroFinancialEdit &edit)
{
    QString word;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        word += edit.digitAt(i).isEmpty() ? QStringLiteral("_") : edit.digitAt(i);
    return word;
}

/// Writes such a word into the cells.
inline void setCells(TavroFinancialEdit &edit, const QString &word)
{
    for (int i = 0; i < word.size(); ++i)
        edit.setDigitAt(i, word.at(i) == QLatin1Char('_') ? QString() : QString(word.at(i)));
}

/// The cell that the cursor reaches when it is moved left as far as it goes.
inline int leftmostReached(TavroFinancialEdit &edit)
{
    edit.moveCursorTo(edit.numOfEditable() - 1);
    for (int i = 0; i < edit.numOfEditable(); ++i)
        edit.decreaseCursor();
    return edit.cursorIndx();
}
