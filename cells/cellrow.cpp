// SPDX-License-Identifier: MIT
#include "cells/cellrow.h"

#include "cells/amountcells.h"

#include <algorithm>

void CellRow::reset(int count)
{
    const int bounded = amountcells::boundedCount(count);
    m_texts = QVector<QString>(bounded).toList();
    m_rects = QVector<QRectF>(bounded);
}

void CellRow::setTextAt(int index, const QString &text)
{
    if (index >= 0 && index < count())
        m_texts[index] = text;
}

void CellRow::setTexts(const QStringList &texts)
{
    const int count = m_texts.size();
    m_texts = texts.mid(0, count);
    while (m_texts.size() < count)
        m_texts.append(QString());
}

int CellRow::firstFilled() const
{
    const auto found =
        std::find_if(m_texts.cbegin(), m_texts.cend(), [](const QString &text) { return !text.isEmpty(); });
    return found == m_texts.cend() ? -1 : static_cast<int>(found - m_texts.cbegin());
}

void CellRow::removeLeadingZeros(int firstKept)
{
    amountcells::removeLeadingZeros(&m_texts, firstKept);
}

void CellRow::fillTrailingZeros()
{
    amountcells::fillTrailingZeros(&m_texts, m_cursor);
}

void CellRow::setRectAt(int index, const QRectF &rect)
{
    if (index >= 0 && index < count())
        m_rects[index] = rect;
}

void CellRow::setRects(const QVector<QRectF> &rects)
{
    m_rects = rects;
    m_rects.resize(count());
}

int CellRow::cellAt(const QPointF &point) const
{
    const auto found =
        std::find_if(m_rects.cbegin(), m_rects.cend(), [&point](const QRectF &rect) { return rect.contains(point); });
    return found == m_rects.cend() ? -1 : static_cast<int>(found - m_rects.cbegin());
}

void CellRow::moveCursorTo(int index)
{
    if (index >= 0 && index < count())
        m_cursor = index;
}

void CellRow::moveCursorRight()
{
    moveCursorTo(m_cursor + 1);
}

void CellRow::moveCursorLeft()
{
    moveCursorTo(m_cursor - 1);
}
