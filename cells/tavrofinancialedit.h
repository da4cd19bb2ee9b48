// SPDX-License-Identifier: MIT
#pragma once

#include "cells/cellrow.h"
#include "cells/cursorblink.h"
#include "core/tavrotext.h"

/// Amount in the grid of a voucher: a row of unit words over a row of cells with one Arabic digit each, and a currency
/// sign in front of the first digit. Where a limit is shown, the cells of the units above it are gray and a click or
/// the Left key does not reach them. Grid and words are on the paper already: only digits and sign are printed. The
/// content is a decimal number as text. Setting a unit range or a number of cells empties the cells, while the content
/// stays until it is set again. Setters of the configuration mark modified, cells, cursor and indexes do not. On an
/// object without a physical height the row of words has the height 0.
class TAVRO_EXPORT TavroFinancialEdit : public TavroText
{
    Q_OBJECT

public:
    explicit TavroFinancialEdit(QGraphicsItem *parent = nullptr);
    ~TavroFinancialEdit() override;

    // operations of the bases
    void setPresetData(const QVariant &preset) override;
    void setPaintMode(const Paint_Mode &mode) override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;
    void renew() override;
    void setBoundingRect(const QRectF &rect) override;
    void setContentData(const QVariant &content) override;

    // configuration; setters mark modified
    Currency currencySign() const;
    /// Also the prefix, without a signal. Numbers beyond the named signs leave it as it is.
    void setCurrency(const Currency &currency);
    /// Height of the row of words in millimetres.
    double unitRowPhyHeight() const;
    /// The cells follow with the next setBoundingRect() or syncEditableGeometry().
    void setUnitRowPhyHeight(const double &height);
    /// Pixels; 0 without a physical height.
    double unitRowHeight() const;
    _UnitRange unitRange() const;
    int unitStart() const;
    int unitEnd() const;
    /// False where the range does not reach 角 or is upside down: then only the modified mark changes. Units below 0
    /// and above 11 have no digit and no word: their cells stay empty. At most 1000 cells are made. The cell of the
    /// limit stays where it was until updateIndxOfLimitUnit() or setLimitUnit().
    bool setUnitRange(const int &start, const int &end);
    bool setUnitRange(const _UnitRange &range);
    int numOfEditable() const;
    /// Empty cells, the cursor on the first. None below 0, at most 1000.
    void setNumOfEditable(int count);
    bool isDrawMonetaryUnit() const;
    void setIsDrawMonetaryUnit(bool draw);
    bool isShowLimit() const;
    /// The cell of the limit follows with updateIndxOfLimitUnit() or setLimitUnit().
    void setIsShowLimit(bool show);
    int limitUnit() const;
    /// Highest unit that can be filled in. Empties the content. The cursor stays where it is: a host that sets a limit
    /// below the highest unit moves it there.
    void setLimitUnit(int unit);
    /// Does not mark modified.
    void updateIndxOfLimitUnit();
    bool isShowZero() const;
    /// Whether the zeros of 元, 角 and 分 stay visible in an amount below 1. The cells follow with the next content,
    /// digit or Backspace.
    void setIsShowZero(bool show);
    /// Finds the cell of 元 again. Does not mark modified.
    void updateIndxOfYuan();
    void setFocusable(bool focusable);

    // cells, counted from the left; an index outside the row reads as empty and is not written
    QString digitAt(int index) const;
    void setDigitAt(int index, const QString &text);
    QRectF rectAt(int index) const;
    void setRectAt(int index, const QRectF &rect);
    /// First cell that contains the point in item coordinates, -1 without one.
    int hitEditable(const QPointF &point) const;
    /// Empty cells without a place: nothing is drawn in them or hit until syncEditableGeometry().
    void resetEditable();
    void syncEditableGeometry();
    /// Spreads an amount over the cells.
    void stringToDigits(const QString &amount);
    /// The amount that the cells hold.
    QString digitsToString() const;
    /// Content to cells.
    void syncDigitList();
    /// Cells to content. Emits contentDataChanged().
    void syncContentData();
    /// Zeros into the empty cells from the cursor on.
    void fillZeroToTrail();
    /// Empties leading zeros, with isShowZero() only up to the cell of 元.
    void removePrefixZero();

    // cursor
    int cursorIndx() const;
    void resetCurosr();
    /// Index of the last cell.
    int increaseCursor();
    /// Not past the cell of the limit.
    void decreaseCursor();
    /// Ignored outside the row.
    void moveCursorTo(int index);
    void triggerDrawCursor();

    // typing
    /// Writes the text of a digit key at the cursor and moves on. Other keys do nothing.
    void updateDigitByKey(int key, const QString &text);

    // painting, each operation leaves the painter as it was
    void drawControl(QPainter *painter);
    void drawFrameRect(QPainter *painter);
    void drawUnits(QPainter *painter);
    void drawCursor(QPainter *painter);
    void drawInactiveRect(QPainter *painter);
    void drawContent(QPainter *painter);
    void drawDigits(QPainter *painter);
    void drawCurrencySign(QPainter *painter);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void moveBack();

    CellRow m_row;
    Currency m_currencySign = Currency_None;
    double m_unitRowPhyHeight = 5.0;
    int m_limitUnit = 11;
    _UnitRange m_unitRange;
    CursorBlink m_blink;
    bool m_isDrawMonetaryUnit = true;
    bool m_isShowLimit = false;
    bool m_isShowZero = false;
    int m_indxOfYuan = -1;
    int m_indxOfLimit = -1;
};
