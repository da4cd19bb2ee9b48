// SPDX-License-Identifier: MIT
#pragma once

#include "cells/cellrow.h"
#include "cells/cursorblink.h"
#include "core/tavrotext.h"

/// Value with one character a cell, as vouchers have one printed box a digit. An amount stands in the cells of a unit
/// range, each followed by the word of its unit in the gap; without focus its digits are Chinese capitals, with a mark
/// in front of the first. Other modes are plain rows of 18 or 6 digits or 6 characters. The content is text: an amount
/// with two places, or the characters. Setting a unit range, a mode or a number of cells empties the cells, while the
/// content stays until it is set again. Setters of the configuration mark modified, cells and cursor do not.
/// On an object without a physical width the gaps are 0 and the unit words stand on the edges of the cells.
class TAVRO_EXPORT TavroSeperateEdit : public TavroText
{
    Q_OBJECT

public:
    explicit TavroSeperateEdit(QGraphicsItem *parent = nullptr);
    ~TavroSeperateEdit() override;

    // operations of the bases
    void setPresetData(const QVariant &preset) override;
    void setPaintMode(const Paint_Mode &mode) override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;
    void renew() override;
    void setBoundingRect(const QRectF &rect) override;
    void setContentData(const QVariant &content) override;
    /// Where an input method shows its candidates: at the cursor.
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

    // configuration; setters mark modified
    SeperateMode seperateMode() const;
    /// Also the number of cells, the width of the gaps that belong to the mode, and input methods for characters. The
    /// cells take the new gaps with the next setBoundingRect() or syncRectGeometry().
    void setSeperateMode(const SeperateMode &mode);
    int numOfEditable() const;
    /// Empty cells, the cursor on the first. None below 0, at most 1000.
    void setNumOfEditable(int count);
    /// Gaps between the cells; in an amount the last cell has one too, for the word of its unit.
    int numOfSeperator() const;
    /// Millimetres.
    double phyWidthOfSeperator() const;
    /// The cells follow with the next setBoundingRect() or syncRectGeometry().
    void setPhyWidthOfSeperator(double width);
    /// Pixels; 0 without a physical width.
    double pixWidthOfSeperator() const;
    _UnitRange unitRange() const;
    int unitStart() const;
    int unitEnd() const;
    /// False where the range does not reach 元 or is upside down: then only the modified mark changes. Units below 0
    /// and above 11 have no digit and no word: their cells stay empty. At most 1000 cells are made.
    bool setUnitRange(const int &start, const int &end);
    bool setUnitRange(const _UnitRange &range);
    /// Finds the cell of 元 again. Does not mark modified.
    void updateIndxOfYuan();
    bool isDrawMonetaryUnit() const;
    void setIsDrawMonetaryUnit(bool draw);
    bool isPrefixAll() const;
    /// The mark in every empty cell in front of the first digit.
    void setIsPrefixAll(bool all);
    Prefix_Mode prefixMode() const;
    /// Also the prefix, without a signal. Numbers beyond the named modes leave it as it is.
    void setPrefixMode(const Prefix_Mode &mode);
    bool isFocusable() const;
    void setFocusable(bool focusable);
    bool isInputMethodAcceptable() const;
    void setInputMethodAcceptable(bool acceptable);

    // cells, counted from the left; an index outside the row reads as empty and is not written
    QString charAt(int index) const;
    void setCharAt(int index, const QString &text);
    QRectF rectAt(int index) const;
    /// First cell that contains the point in item coordinates, -1 without one.
    int hitEditable(const QPointF &point) const;
    /// Empty cells without a place: nothing is drawn in them or hit until syncRectGeometry().
    void resetEditable();
    void syncRectGeometry();
    /// Spreads a value over the cells.
    void strToList(const QString &text);
    /// The value that such cells hold.
    QString strListToStr(const QStringList &cells) const;
    /// Content to cells.
    void syncDigitsList();
    /// Cells to content. Emits contentDataChanged().
    void syncContentData();
    /// Zeros into the empty cells from the cursor on.
    void fillZeroToTrail();
    /// Empties leading zeros up to the cell of 元.
    void removePrefixZero();

    // cursor
    int cursorIndx() const;
    void resetCursor();
    /// Index of the last cell.
    int increaseCursor();
    void decreaseCursor();
    /// Ignored outside the row.
    void moveCursorTo(int index);
    void triggerDrawCursor();

    // typing
    /// Writes the text at the cursor where the mode accepts the key, and moves on. Emits contentDataChanged() anyway.
    void updateContentByKey(const int &key, const QString &text);
    /// Empties the cell of the cursor, or the one to its left where that is empty already.
    void deleteCharUnderCursor();

    // painting, each operation leaves the painter as it was
    void drawFrameRect(QPainter *painter);
    void drawContent(QPainter *painter);
    void drawCharacters(QPainter *painter);
    void drawChineseDigit(QPainter *painter);
    void drawPrefix(QPainter *painter);
    void drawMonetaryUnit(QPainter *painter);
    void drawCursor(QPainter *painter);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    bool accepts(int key) const;

    SeperateMode m_seperateMode = Sep_Amount;
    double m_phyWidthOfSeperator = 4.0;
    CellRow m_row;
    CursorBlink m_blink;
    bool m_isDrawMonetaryUnit = true;
    bool m_isPrefixAll = false;
    Prefix_Mode m_prefixMode = Prefix_Cross;
    _UnitRange m_unitRange;
    int m_indxOfYuan = -1;
};
