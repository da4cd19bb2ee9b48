// SPDX-License-Identifier: MIT
#include "cells/tavroseperateedit.h"

#include "cells/amountcells.h"
#include "cells/typedtext.h"
#include "core/units.h"

#include <QGraphicsSceneMouseEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

TavroSeperateEdit::TavroSeperateEdit(QGraphicsItem *parent)
    : TavroText(parent)
{
    setObjType(Obj_SeperateEdit);
    setSeperateMode(Sep_Amount);
    setPrefixMode(Prefix_Cross);
    setIsPrefixAll(false);
}

TavroSeperateEdit::~TavroSeperateEdit() = default;

void TavroSeperateEdit::setPresetData(const QVariant &preset)
{
    TavroPrototype::setPresetData(preset);
}

void TavroSeperateEdit::setPaintMode(const Paint_Mode &mode)
{
    TavroText::setPaintMode(mode);
    setFlag(ItemIsFocusable, mode == Paint_Input);
}

void TavroSeperateEdit::renew()
{
    if (!isResetAtRenew())
        return;
    TavroText::setContentData(presetData());
    syncDigitsList();
}

void TavroSeperateEdit::setBoundingRect(const QRectF &rect)
{
    TavroText::setBoundingRect(rect);
    syncRectGeometry();
}

void TavroSeperateEdit::setContentData(const QVariant &content)
{
    TavroText::setContentData(content);
    syncDigitsList();
}

QVariant TavroSeperateEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImCursorRectangle ? QVariant(rectAt(cursorIndx())) : TavroText::inputMethodQuery(query);
}

SeperateMode TavroSeperateEdit::seperateMode() const
{
    return m_seperateMode;
}

void TavroSeperateEdit::setSeperateMode(const SeperateMode &mode)
{
    constexpr double wordGap = 5.0;
    m_seperateMode = mode;
    if (mode == Sep_Amount)
        setUnitRange(0, 6);
    else if (mode == Sep_Digits18)
        setNumOfEditable(18);
    else if (mode == Sep_Digits6 || mode == Sep_Chars6)
        setNumOfEditable(6);
    setPhyWidthOfSeperator(mode == Sep_Amount || mode == Sep_Chars6 ? wordGap : 0);
    setInputMethodAcceptable(mode == Sep_Chars6);
    repaint();
}

int TavroSeperateEdit::numOfEditable() const
{
    return m_row.count();
}

void TavroSeperateEdit::setNumOfEditable(int count)
{
    m_row.resetCursor();
    m_row.reset(count);
    syncRectGeometry();
    setIsModified(true);
}

int TavroSeperateEdit::numOfSeperator() const
{
    return m_seperateMode == Sep_Amount ? numOfEditable() : std::max(numOfEditable() - 1, 0);
}

double TavroSeperateEdit::phyWidthOfSeperator() const
{
    return m_phyWidthOfSeperator;
}

void TavroSeperateEdit::setPhyWidthOfSeperator(double width)
{
    storeSetting(m_phyWidthOfSeperator, width);
}

double TavroSeperateEdit::pixWidthOfSeperator() const
{
    return units::pixelLength(m_phyWidthOfSeperator, width(), phyWidth());
}

_UnitRange TavroSeperateEdit::unitRange() const
{
    return m_unitRange;
}

int TavroSeperateEdit::unitStart() const
{
    return m_unitRange.start;
}

int TavroSeperateEdit::unitEnd() const
{
    return m_unitRange.end;
}

bool TavroSeperateEdit::setUnitRange(const int &start, const int &end)
{
    return setUnitRange(_UnitRange{start, end});
}

bool TavroSeperateEdit::setUnitRange(const _UnitRange &range)
{
    setIsModified(true);
    if (!amountcells::isAccepted(range, amountcells::SeparatedRow))
        return false;
    m_unitRange = range;
    setNumOfEditable(amountcells::cellCount(range));
    updateIndxOfYuan();
    return true;
}

void TavroSeperateEdit::updateIndxOfYuan()
{
    m_indxOfYuan = amountcells::indexOfUnit(m_unitRange, amountcells::Yuan);
}

bool TavroSeperateEdit::isDrawMonetaryUnit() const
{
    return m_isDrawMonetaryUnit;
}

void TavroSeperateEdit::setIsDrawMonetaryUnit(bool draw)
{
    storeSetting(m_isDrawMonetaryUnit, draw);
    repaint();
}

bool TavroSeperateEdit::isPrefixAll() const
{
    return m_isPrefixAll;
}

void TavroSeperateEdit::setIsPrefixAll(bool all)
{
    storeSetting(m_isPrefixAll, all);
    repaint();
}

Prefix_Mode TavroSeperateEdit::prefixMode() const
{
    return m_prefixMode;
}

void TavroSeperateEdit::setPrefixMode(const Prefix_Mode &mode)
{
    storeSetting(m_prefixMode, mode);
    if (const auto mark = amountcells::entryAt(amountcells::PrefixMarks, mode))
        storePrefix(mark->toString());
    repaint();
}

bool TavroSeperateEdit::isFocusable() const
{
    return flags() & ItemIsFocusable;
}

void TavroSeperateEdit::setFocusable(bool focusable)
{
    setFlag(ItemIsFocusable, focusable);
    setIsModified(true);
}

bool TavroSeperateEdit::isInputMethodAcceptable() const
{
    return flags() & ItemAcceptsInputMethod;
}

void TavroSeperateEdit::setInputMethodAcceptable(bool acceptable)
{
    setFlag(ItemAcceptsInputMethod, acceptable);
    setIsModified(true);
}

QString TavroSeperateEdit::charAt(int index) const
{
    return m_row.textAt(index);
}

void TavroSeperateEdit::setCharAt(int index, const QString &text)
{
    m_row.setTextAt(index, text);
    repaint();
}

QRectF TavroSeperateEdit::rectAt(int index) const
{
    return m_row.rectAt(index);
}

int TavroSeperateEdit::hitEditable(const QPointF &point) const
{
    return m_row.cellAt(point);
}

void TavroSeperateEdit::resetEditable()
{
    m_row.reset(m_row.count());
    repaint();
}

void TavroSeperateEdit::syncRectGeometry()
{
    m_row.setRects(amountcells::cellRects(boundingRect(), numOfEditable(), pixWidthOfSeperator(), numOfSeperator()));
    repaint();
}

void TavroSeperateEdit::strToList(const QString &text)
{
    if (m_seperateMode != Sep_Amount) {
        m_row.setTexts(amountcells::charactersOf(text, numOfEditable()));
        repaint();
        return;
    }
    m_row.setTexts(amountcells::digitsOf(text, m_unitRange, numOfEditable()));
    removePrefixZero();
}

QString TavroSeperateEdit::strListToStr(const QStringList &cells) const
{
    return m_seperateMode == Sep_Amount ? amountcells::amountOf(cells, m_unitRange.start, amountcells::SeparatedRow)
                                        : cells.join(QString());
}

void TavroSeperateEdit::syncDigitsList()
{
    strToList(contentData().toString());
}

void TavroSeperateEdit::syncContentData()
{
    storeContent(strListToStr(m_row.texts()));
    Q_EMIT contentDataChanged();
}

void TavroSeperateEdit::fillZeroToTrail()
{
    m_row.fillTrailingZeros();
    repaint();
}

void TavroSeperateEdit::removePrefixZero()
{
    // 0.05 keeps its 元, 角 and 分: an amount is read from 元 on.
    m_row.removeLeadingZeros(m_indxOfYuan);
    repaint();
}

int TavroSeperateEdit::cursorIndx() const
{
    return m_row.cursor();
}

void TavroSeperateEdit::resetCursor()
{
    m_row.resetCursor();
    repaint();
}

int TavroSeperateEdit::increaseCursor()
{
    m_row.moveCursorRight();
    repaint();
    return numOfEditable() - 1;
}

void TavroSeperateEdit::decreaseCursor()
{
    m_row.moveCursorLeft();
    repaint();
}

void TavroSeperateEdit::moveCursorTo(int index)
{
    m_row.moveCursorTo(index);
    repaint();
}

void TavroSeperateEdit::triggerDrawCursor()
{
    m_blink.flip();
    repaint();
}

bool TavroSeperateEdit::accepts(int key) const
{
    return m_seperateMode == Sep_Chars6 ||
           (m_seperateMode >= Sep_Amount && m_seperateMode <= Sep_Digits6 && typedtext::isDigitKey(key));
}

void TavroSeperateEdit::updateContentByKey(const int &key, const QString &text)
{
    if (accepts(key)) {
        setCharAt(cursorIndx(), text);
        if (m_seperateMode == Sep_Amount) {
            fillZeroToTrail();
            removePrefixZero();
        }
        increaseCursor();
    }
    syncContentData();
}

void TavroSeperateEdit::deleteCharUnderCursor()
{
    if (charAt(cursorIndx()).isEmpty())
        decreaseCursor();
    // The cell stays empty, unlike in a grid: whoever clears a row clears it cell by cell.
    setCharAt(cursorIndx(), QString());
    syncContentData();
}

void TavroSeperateEdit::focusInEvent(QFocusEvent *event)
{
    m_blink.start(this);
    TavroText::focusInEvent(event);
}

void TavroSeperateEdit::focusOutEvent(QFocusEvent *event)
{
    m_blink.stop();
    TavroText::focusOutEvent(event);
    repaint();
}

void TavroSeperateEdit::timerEvent(QTimerEvent *event)
{
    if (m_blink.isTick(*event))
        triggerDrawCursor();
    TavroText::timerEvent(event);
}

void TavroSeperateEdit::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    TavroText::mousePressEvent(event);
    const int cell = hitEditable(event->pos());
    if (cell < 0)
        return;
    moveCursorTo(cell);
    // A field below must not take the press as well.
    if (paintMode() == Paint_Input)
        event->accept();
}

void TavroSeperateEdit::keyPressEvent(QKeyEvent *event)
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
        deleteCharUnderCursor();
    else if (!text.isEmpty())
        updateContentByKey(event->key(), text);
    else
        event->ignore();
    repaint();
}

void TavroSeperateEdit::inputMethodEvent(QInputMethodEvent *event)
{
    TavroText::inputMethodEvent(event);
    // An input method also reports what is not committed yet, and that it lost the keyboard.
    if (isReadOnly() || event->commitString().isEmpty())
        return;
    const int room = numOfEditable() - cursorIndx();
    const QStringList characters = amountcells::charactersOf(event->commitString(), room);
    for (const QString &character : characters) {
        if (character.isEmpty())
            break;
        setCharAt(cursorIndx(), character);
        increaseCursor();
    }
    syncContentData();
}
