// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QStringList>
#include <QVector>

/// A row of cells: the text and the rectangle of each, and the cursor that the next key fills. An index outside the row
/// reads as empty, and writing there does nothing.
class CellRow
{
public:
    int count() const { return m_texts.size(); }
    /// Empty cells without a place. The cursor stays.
    void reset(int count);

    QString textAt(int index) const { return m_texts.value(index); }
    void setTextAt(int index, const QString &text);
    const QStringList &texts() const { return m_texts; }
    /// Cut off or filled up with empty cells to the count of the row.
    void setTexts(const QStringList &texts);
    /// First cell with a text, -1 without one.
    int firstFilled() const;
    void removeLeadingZeros(int firstKept);
    void fillTrailingZeros();

    QRectF rectAt(int index) const { return m_rects.value(index); }
    void setRectAt(int index, const QRectF &rect);
    const QVector<QRectF> &rects() const { return m_rects; }
    /// One rectangle for each cell.
    void setRects(const QVector<QRectF> &rects);
    /// First cell that contains the point, -1 without one.
    int cellAt(const QPointF &point) const;

    int cursor() const { return m_cursor; }
    void resetCursor() { m_cursor = 0; }
    /// Ignored outside the row.
    void moveCursorTo(int index);
    void moveCursorRight();
    void moveCursorLeft();

private:
    QStringList m_texts;
    QVector<QRectF> m_rects;
    int m_cursor = 0;
};
