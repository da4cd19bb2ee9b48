// SPDX-License-Identifier: MIT
#include "datetime/timeedit.h"

#include "datetime/datetexts.h"
#include "datetime/sections.h"

TimeEdit::TimeEdit(QWidget *parent)
    : DateTimeEditPrototype(parent)
{
    TimeEdit::setSeperatorType(Sep_ChineseTime);
    TimeEdit::setDateTime(QDateTime::currentDateTime());
}

TimeEdit::~TimeEdit() = default;

void TimeEdit::setDateTime(const QDateTime &dateTime)
{
    DateTimeEditPrototype::setDateTime(dateTime);
    m_texts = datetexts::timeTexts(dateTime.time());
    writeValues(m_places, m_texts);
}

void TimeEdit::setSeperatorType(const Datetime_Seperator_Type &type)
{
    DateTimeEditPrototype::setSeperatorType(type);
    rebuild();
}

void TimeEdit::setIsShowSeperator(bool show)
{
    DateTimeEditPrototype::setIsShowSeperator(show);
    rebuildKeepingWidths([this] { rebuild(); });
}

TimeOrderType TimeEdit::orderType() const
{
    return m_orderType;
}

void TimeEdit::setOrderType(const TimeOrderType &order)
{
    m_orderType = order;
    rebuild();
}

void TimeEdit::rebuild()
{
    whenAtRest([this] {
        m_places = sections::placesOf(m_orderType);
        buildLabels(sections::timeLabels(m_places, seperatorType(), isShowSeperator()));
        writeValues(m_places, m_texts);
    });
}
