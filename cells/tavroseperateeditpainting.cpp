// SPDX-License-Identifier: MIT
// Painting of the separated-cell edit.
#include "cells/tavroseperateedit.h"

#include "cells/amountcells.h"
#include "cells/cellpainting.h"
#include "core/paintersaver.h"
#include "entry/numberwords.h"

#include <algorithm>

namespace {

// Denser than in a grid, since the ground of the cells is painted over it.
constexpr QColor CursorColor(102, 204, 153, 200);

} // namespace

void TavroSeperateEdit::designPaint(QPainter *painter)
{
    drawFrameRect(painter);
    drawContent(painter);
    TavroText::designPaint(painter);
}

void TavroSeperateEdit::inputPaint(QPainter *painter)
{
    drawCursor(painter);
    drawFrameRect(painter);
    drawContent(painter);
    TavroText::inputPaint(painter);
}

void TavroSeperateEdit::printPaint(QPainter *painter)
{
    if (isPrint())
        drawContent(painter);
}

void TavroSeperateEdit::drawFrameRect(QPainter *painter)
{
    const PainterSaver saver(painter);
    cellpainting::setUpFrame(painter);
    painter->drawRects(m_row.rects());
    for (const QRectF &rect : m_row.rects())
        fillBackground(painter, rect);
}

void TavroSeperateEdit::drawContent(QPainter *painter)
{
    const PainterSaver saver(painter);
    if (m_seperateMode < Sep_Amount || m_seperateMode > Sep_Chars6)
        return;
    if (m_seperateMode == Sep_Amount && m_isDrawMonetaryUnit && paintMode() != Paint_Print)
        drawMonetaryUnit(painter);
    if (m_seperateMode != Sep_Amount || hasFocus()) {
        drawCharacters(painter);
    } else if (m_isPrefixAll || contentData().toDouble() != 0) {
        drawChineseDigit(painter);
        drawPrefix(painter);
    }
}

void TavroSeperateEdit::drawCharacters(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setFont(font());
    cellpainting::drawTexts(painter, m_row, QColor(fontColor()));
}

void TavroSeperateEdit::drawChineseDigit(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::black);
    painter->setFont(font());
    for (int i = 0; i < numOfEditable(); ++i) {
        if (charAt(i).isEmpty())
            continue;
        // What is no number reads as 0, so a sign shows as 零.
        if (const auto digit = amountcells::entryAt(numberwords::CapitalDigits, charAt(i).toInt()))
            cellpainting::drawCentred(painter, rectAt(i), digit->toString());
    }
}

void TavroSeperateEdit::drawPrefix(QPainter *painter)
{
    const PainterSaver saver(painter);
    if (m_prefixMode == Prefix_None)
        return;
    painter->setPen(Qt::black);
    painter->setFont(font());
    const int filled = m_row.firstFilled();
    const int first = m_isPrefixAll ? 0 : std::max(filled - 1, 0);
    const int end = m_isPrefixAll && filled < 0 ? numOfEditable() : filled;
    for (int i = first; i < end; ++i)
        cellpainting::drawCentred(painter, rectAt(i), prefix());
}

void TavroSeperateEdit::drawMonetaryUnit(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::black);
    painter->setFont(font());
    for (int i = 0; i < numOfEditable(); ++i) {
        const QRectF cell = rectAt(i);
        cellpainting::drawCentred(painter, {cell.right(), cell.top(), pixWidthOfSeperator(), height()},
                                  amountcells::unitWord(unitEnd() - i).toString());
    }
}

void TavroSeperateEdit::drawCursor(QPainter *painter)
{
    const PainterSaver saver(painter);
    if (m_blink.isOn() && !isReadOnly())
        painter->fillRect(rectAt(cursorIndx()), CursorColor);
}
