// SPDX-License-Identifier: MIT
#include "cells/tavrofinancialedit.h"

#include "cells/amountcells.h"
#include "cells/typedtext.h"
#include "core/units.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <algorithm>

TavroFinancialEdit::TavroFinancialEdit(QGraphicsItem *parent)
    : TavroText(parent)
{
    setObjType(Obj_FinancialEdit);
    setCurrency(Currency_None);
    setUnitRange(0, 11);
}

TavroFinancialEdit::~TavroFinancialEdit() = default;

void TavroFinancialEdit::setPresetData(const QVariant &preset)
{
    TavroPrototype::setPresetData(preset);
}

void TavroFinancialEdit::setPaintMode(const Paint_Mode &mode)
{
    TavroText::setPaintMode(mode);
    setFlag(ItemIsFocusable, mode == Paint_Input);
}

void TavroFinancialEdit::renew()
{
    if (!isResetAtRenew())
        return;
    TavroText::setContentData(presetData());
    syncDigitList();
}

void TavroFinancialEdit::setBoundingRect(const QRectF &rect)
{
    TavroText::setBoundingRect(rect);
    syncEditableGeometry();
}

void TavroFinancialEdit::setContentData(const QVariant &content)
{
    TavroText::setContentData(content);
    syncDigitList();
}

Currency TavroFinancialEdit::currencySign() const
{
    return m_currencySign;
}

void TavroFinancialEdit::setCurrency(const Currency &currency)
{
    storeSetting(m_currencySign, currency);
    if (const auto sign = amountcells::entryAt(amountcells::CurrencySigns, currency))
        storePrefix(sign->toString());
    repaint();
}

double TavroFinancialEdit::unitRowPhyHeight() const
{
    return m_unitRowPhyHeight;
}

void TavroFinancialEdit::setUnitRowPhyHeight(const double &height)
{
    storeSetting(m_unitRowPhyHeight, height);
}

double TavroFinancialEdit::unitRowHeight() const
{
    return units::pixelLength(m_unitRowPhyHeight, height(), phyHeight());
}

_UnitRange TavroFinancialEdit::unitRange() const
{
    return m_unitRange;
}

int TavroFinancialEdit::unitStart() const
{
    return m_unitRange.start;
}

int TavroFinancialEdit::unitEnd() const
{
    return m_unitRange.end;
}

bool TavroFinancialEdit::setUnitRange(const int &start, const int &end)
{
    return setUnitRange(_UnitRange{start, end});
}

bool TavroFinancialEdit::setUnitRange(const _UnitRange &range)
{
    setIsModified(true);
    if (!amountcells::isAccepted(range, amountcells::Grid))
        return false;
    m_unitRange = range;
    setNumOfEditable(amountcells::cellCount(range));
    updateIndxOfYuan();
    return true;
}

int TavroFinancialEdit::numOfEditable() const
{
    return m_row.count();
}

void TavroFinancialEdit::setNumOfEditable(int count)
{
    m_row.resetCursor();
    m_row.reset(count);
    syncEditableGeometry();
    setIsModified(true);
}

bool TavroFinancialEdit::isDrawMonetaryUnit() const
{
    return m_isDrawMonetaryUnit;
}

void TavroFinancialEdit::setIsDrawMonetaryUnit(bool draw)
{
    storeSetting(m_isDrawMonetaryUnit, draw);
    repaint();
}

bool TavroFinancialEdit::isShowLimit() const
{
    return m_isShowLimit;
}

void TavroFinancialEdit::setIsShowLimit(bool show)
{
    storeSetting(m_isShowLimit, show);
    repaint();
}

int TavroFinancialEdit::limitUnit() const
{
    return m_limitUnit;
}

void TavroFinancialEdit::setLimitUnit(int unit)
{
    storeSetting(m_limitUnit, unit);
    updateIndxOfLimitUnit();
    setContentData(QString());
}

void TavroFinancialEdit::updateIndxOfLimitUnit()
{
    m_indxOfLimit = m_isShowLimit ? amountcells::indexOfLimit(m_unitRange, m_limitUnit) : -1;
    repaint();
}

bool TavroFinancialEdit::isShowZero() const
{
    return m_isShowZero;
}

void TavroFinancialEdit::setIsShowZero(bool show)
{
    storeSetting(m_isShowZero, show);
}

void TavroFinancialEdit::updateIndxOfYuan()
{
    m_indxOfYuan = amountcells::indexOfUnit(m_unitRange, amountcells::Yuan);
}

void TavroFinancialEdit::setFocusable(bool focusable)
{
    setFlag(ItemIsFocusable, focusable);
    setIsModified(true);
}

QString TavroFinancialEdit::digitAt(int index) const
{
    return m_row.textAt(index);
}

void TavroFinancialEdit::setDigitAt(int index, const QString &text)
{
    m_row.setTextAt(index, text);
    repaint();
}

QRectF TavroFinancialEdit::rectAt(int index) const
{
    return m_row.rectAt(index);
}

void TavroFinancialEdit::setRectAt(int index, const QRectF &rect)
{
    m_row.setRectAt(index, rect);
    repaint();
}

int TavroFinancialEdit::hitEditable(const QPointF &point) const
{
    return m_row.cellAt(point);
}

void TavroFinancialEdit::resetEditable()
{
    m_row.reset(m_row.count());
    repaint();
}

void TavroFinancialEdit::syncEditableGeometry()
{
    const QRectF digitRow = boundingRect().adjusted(0, unitRowHeight(), 0, 0);
    m_row.setRects(amountcells::cellRects(digitRow, numOfEditable(), 0, 0));
    repaint();
}

void TavroFinancialEdit::stringToDigits(const QString &amount)
{
    m_row.setTexts(amountcells::digitsOf(amount, m_unitRange, numOfEditable()));
    removePrefixZero();
}

QString TavroFinancialEdit::digitsToString() const
{
    return amountcells::amountOf(m_row.texts(), m_unitRange.start, amountcells::Grid);
}

void TavroFinancialEdit::syncDigitList()
{
    stringToDigits(contentData().toString());
}

void TavroFinancialEdit::syncContentData()
{
    storeContent(digitsToString());
    Q_EMIT contentDataChanged();
}

void TavroFinancialEdit::fillZeroToTrail()
{
    m_row.fillTrailingZeros();
    repaint();
}

void TavroFinancialEdit::removePrefixZero()
{
    // Unlike a separated row, a grid starts at the first digit that counts: 0.05 is a single 5.
    m_row.removeLeadingZeros(m_isShowZero ? m_indxOfYuan : -1);
    repaint();
}

int TavroFinancialEdit::cursorIndx() const
{
    return m_row.cursor();
}

void TavroFinancialEdit::resetCurosr()
{
    m_row.resetCursor();
    repaint();
}

int TavroFinancialEdit::increaseCursor()
{
    m_row.moveCursorRight();
    repaint();
    return numOfEditable() - 1;
}

void TavroFinancialEdit::decreaseCursor()
{
    if (m_isShowLimit && cursorIndx() <= m_indxOfLimit)
        return;
    m_row.moveCursorLeft();
    repaint();
}

void TavroFinancialEdit::moveCursorTo(int index)
{
    m_row.moveCursorTo(index);
    repaint();
}

void TavroFinancialEdit::triggerDrawCursor()
{
    m_blink.flip();
    repaint();
}

void TavroFinancialEdit::updateDigitByKey(int key, const QString &text)
{
    if (!typedtext::isDigitKey(key))
        return;
    setDigitAt(cursorIndx(), text);
    fillZeroToTrail();
    removePrefixZero();
    increaseCursor();
    syncContentData();
}

void TavroFinancialEdit::moveBack()
{
    if (digitAt(cursorIndx()).isEmpty())
        decreaseCursor();
    // No digit is emptied, unlike in a separated row: in a grid a digit can only be overwritten.
    syncContentData();
    fillZeroToTrail();
    removePrefixZero();
}

void TavroFinancialEdit::focusInEvent(QFocusEvent *event)
{
    m_blink.start(this);
    TavroText::focusInEvent(event);
}

void TavroFinancialEdit::focusOutEvent(QFocusEvent *event)
{
    m_blink.stop();
    TavroText::focusOutEvent(event);
    repaint();
}

void TavroFinancialEdit::timerEvent(QTimerEvent *event)
{
    if (m_blink.isTick(*event))
        triggerDrawCursor();
    TavroText::timerEvent(event);
}

void TavroFinancialEdit::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    TavroText::mousePressEvent(event);
    const int cell = hitEditable(event->pos());
    if (cell < 0)
        return;
    moveCursorTo(m_isShowLimit ? std::max(cell, m_indxOfLimit) : cell);
    // A field below must not take the press as well.
    if (paintMode() == Paint_Input)
        event->accept();
}

void TavroFinancialEdit::keyPressEvent(QKeyEvent *event)
{
    TavroText::keyPressEvent(event);
    if (!hasFocus() || isReadOnly())
        return;
    // Keys that mean something here are not left to the view, which would scroll.
    event->accept();
    const QString text = typedtext::textOf(*event);
    if (event->key() == Qt::Key_Left)
        decreaseCursor();
    else if (event->key() == Qt::Key_Right)
        increaseCursor();
    else if (event->key() == Qt::Key_Backspace)
        moveBack();
    else if (typedtext::isDigitKey(event->key()) && !text.isEmpty())
        updateDigitByKey(event->key(), text);
    else
        event->ignore();
    repaint();
}
