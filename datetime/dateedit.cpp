// SPDX-License-Identifier: MIT
#include "datetime/dateedit.h"

#include "datetime/datetexts.h"
#include "datetime/sections.h"

DateEdit::DateEdit(QWidget *parent)
    : DateTimeEditPrototype(parent)
{
    DateEdit::setSeperatorType(Sep_ChineseDate);
    DateEdit::setDateTime(QDateTime::currentDateTime());
}

DateEdit::~DateEdit() = default;

void DateEdit::setDateTime(const QDateTime &dateTime)
{
    DateTimeEditPrototype::setDateTime(dateTime);
    updateTexts();
}

void DateEdit::setSeperatorType(const Datetime_Seperator_Type &type)
{
    DateTimeEditPrototype::setSeperatorType(type);
    rebuild();
}

void DateEdit::setIsShowSeperator(bool show)
{
    DateTimeEditPrototype::setIsShowSeperator(show);
    rebuildKeepingWidths([this] { rebuild(); });
}

DateOrderType DateEdit::orderType() const
{
    return m_orderType;
}

void DateEdit::setOrderType(const DateOrderType &order)
{
    m_orderType = order;
    rebuild();
}

int DateEdit::textStyle() const
{
    return m_textStyle;
}

void DateEdit::setTextStyle(int style)
{
    m_textStyle = style;
    setSeperatorType(seperatorType());
    updateTexts();
}

void DateEdit::rebuild()
{
    whenAtRest([this] {
        m_places = sections::placesOf(m_orderType);
        buildLabels(sections::dateLabels(m_places, seperatorType(), isShowSeperator()));
        writeValues(m_places, m_texts);
    });
}

void DateEdit::updateTexts()
{
    if (datetexts::isDateStyle(m_textStyle))
        m_texts = datetexts::dateTexts(dateTime().date(), m_textStyle);
    writeValues(m_places, m_texts);
}
