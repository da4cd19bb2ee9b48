// SPDX-License-Identifier: MIT
// Painting of the financial edit.
#include "cells/tavrofinancialedit.h"

#include "cells/amountcells.h"
#include "cells/cellpainting.h"
#include "core/paintersaver.h"

#include <algorithm>

namespace {

// Lighter than in a separated row, since it lies over the ground.
constexpr QColor CursorColor(102, 204, 153, 127);

} // namespace

void TavroFinancialEdit::designPaint(QPainter *painter)
{
    drawControl(painter);
    drawContent(painter);
    TavroText::designPaint(painter);
}

void TavroFinancialEdit::inputPaint(QPainter *painter)
{
    if (m_isShowLimit)
        drawInactiveRect(painter);
    drawControl(painter);
    drawContent(painter);
    TavroText::inputPaint(painter);
}

void TavroFinancialEdit::printPaint(QPainter *painter)
{
    if (isPrint())
        drawContent(painter);
}

void TavroFinancialEdit::drawControl(QPainter *painter)
{
    const PainterSaver saver(painter);
    fillBackground(painter, boundingRect().adjusted(1, unitRowHeight() + 1, -1, -1));
    drawFrameRect(painter);
    if (m_isDrawMonetaryUnit)
        drawUnits(painter);
    drawCursor(painter);
}

void TavroFinancialEdit::drawFrameRect(QPainter *painter)
{
    const PainterSaver saver(painter);
    cellpainting::setUpFrame(painter);
    const int count = numOfEditable();
    if (count == 0)
        return;
    QVector<QLineF> lines;
    lines.reserve(count + 1);
    lines.append({rectAt(0).topLeft(), rectAt(count - 1).topRight()});
    // The form supplies the lines at the right edge, at the top and at the bottom.
    for (int i = 0; i < count; ++i) {
        const double x = objX() + i * width() / count;
        lines.append({x, objY(), x, objY() + height()});
    }
    painter->drawLines(lines);
}

void TavroFinancialEdit::drawUnits(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setPen(cellpainting::framePen());
    painter->setFont(font());
    const int count = numOfEditable();
    const double cellWidth = width() / count;
    for (int i = 0; i < count; ++i)
        cellpainting::drawCentred(painter, {objX() + i * cellWidth, objY(), cellWidth, unitRowHeight()},
                                  amountcells::unitWord(unitEnd() - i).toString());
}

void TavroFinancialEdit::drawCursor(QPainter *painter)
{
    const PainterSaver saver(painter);
    if (m_blink.isOn() && !isReadOnly())
        painter->fillRect(rectAt(cursorIndx()), CursorColor);
}

void TavroFinancialEdit::drawInactiveRect(QPainter *painter)
{
    const PainterSaver saver(painter);
    const int end = std::min(m_indxOfLimit, numOfEditable());
    for (int i = 0; i < end; ++i)
        painter->fillRect(rectAt(i), Qt::gray);
}

void TavroFinancialEdit::drawContent(QPainter *painter)
{
    const PainterSaver saver(painter);
    drawDigits(painter);
    drawCurrencySign(painter);
}

void TavroFinancialEdit::drawDigits(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setFont(font());
    cellpainting::drawTexts(painter, m_row, QColor(fontColor()));
}

void TavroFinancialEdit::drawCurrencySign(QPainter *painter)
{
    const PainterSaver saver(painter);
    const int filled = m_row.firstFilled();
    if (filled <= 0)
        return;
    painter->setPen(QColor(fontColor()));
    painter->setFont(font());
    cellpainting::drawCentred(painter, rectAt(filled - 1), prefix());
}
